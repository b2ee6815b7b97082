// Single-byte text in Windows-1252: one byte is one character, so lengths, cuts and columns are
// byte arithmetic and a file comes back to the byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexoran {

using Tekst = std::string;
using Tekstblik = std::string_view;

/// The capital of a character; signs and letters without a capital in the code page stay.
[[nodiscard]] char Hoofdletter(char teken);

/// The text in capitals, accented letters included.
[[nodiscard]] Tekst Hoofdletters(Tekstblik tekst);

/// Without leading and trailing spaces. Only spaces: tabs and other signs stay.
[[nodiscard]] Tekstblik ZonderSpaties(Tekstblik tekst);

/// Whether the text is empty or holds spaces only.
[[nodiscard]] bool IsBlanco(Tekstblik tekst);

/// Every `van` replaced by `door`.
[[nodiscard]] Tekst Vervang(Tekstblik tekst, char van, char door);

/// What the suite's files can hold of a text as a field: a comma becomes an underscore, a line end
/// a space. The windows keep both out before; this is the last guard.
[[nodiscard]] Tekst AlsVeld(Tekstblik tekst);

/// The same, behind what `uit` holds; `tekst` may be a view into `uit`.
void VoegVeldToe(Tekst& uit, Tekstblik tekst);

/// The number in decimal with at least `breedte` digits, padded with leading zeros.
[[nodiscard]] Tekst MetNullen(std::int64_t getal, int breedte);

} // namespace plexoran
