// Single-byte text in Windows-1252: one byte is one character, so lengths, cuts and columns are
// byte arithmetic and a file comes back to the byte.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

// The numeric value of a text, as the suite's files use it.

[[nodiscard]] constexpr bool IsCijfer(char teken)
{
    return teken >= '0' && teken <= '9';
}

/// The number with which the text begins: spaces, a sign, digits and a fraction after a point;
/// what follows is ignored. Without digits it is 0. A value with a fraction is rounded to the
/// nearest whole number, a half to the even one. Nothing when it does not fit.
[[nodiscard]] std::optional<std::int16_t> Geheel16(Tekstblik tekst);
[[nodiscard]] std::optional<std::int32_t> Geheel32(Tekstblik tekst);

/// Whether the text begins with a number, rather than being read as 0 for want of digits.
[[nodiscard]] bool BegintMetGetal(Tekstblik tekst);

/// A text of digits, outer spaces apart, as a number of at least `breedte` digits with leading
/// zeros. Nothing for any other text.
[[nodiscard]] std::optional<Tekst> AlsGetal(Tekstblik tekst, std::size_t breedte);

/// The plain capitals, one or two, that a letter counts as in the text order; empty for what is no
/// letter.
[[nodiscard]] Tekst Letters(char teken);

// The one text order of the house, the same on every system: character by character, blank before
// other signs (by code) before digits before letters; letters without regard to case or accent (Æ
// as AE, Œ as OE, ß as SS, Ø as O, Þ as TH). Texts that are equal so far are ordered by their
// bytes, so that the order is total.

void Sorteer(std::vector<Tekst>& teksten);

/// A key that compares byte by byte as its text compares in the text order.
[[nodiscard]] Tekst Sorteersleutel(Tekstblik tekst);
/// The part of it that is equal for texts that differ in case or accent only.
[[nodiscard]] Tekst Gewichten(Tekstblik tekst);

/// The letters, as they count in the text order, and the digits of a text; a single blank where
/// anything else stands between two of them.
[[nodiscard]] Tekst KaleWoorden(Tekstblik tekst);

} // namespace plexoran
