// The border between the register's bytes (Windows-1252) and Unicode. Bytes to Unicode cannot fail:
// the five undefined bytes stand for the control characters of the same number and come back as
// the same bytes. Unicode to bytes answers which characters did not fit.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

[[nodiscard]] std::u16string NaarUtf16(Tekstblik tekst);
[[nodiscard]] std::string NaarUtf8(Tekstblik tekst);

/// A character that the code page lacks, and what was taken for it.
struct Vervanging {
    std::u16string teken; ///< the character, one or two code units
    Tekst door;           ///< nearest plain letters; empty when there are none and it was left out
};

struct Omzetting {
    Tekst tekst;
    std::vector<Vervanging> vervangen; ///< in order of appearance; empty when everything fitted
};

/// Composes (NFC) and converts; a character that the code page lacks becomes its nearest plain
/// letter, or is left out, and is listed.
[[nodiscard]] Omzetting NaarCodepagina(std::u16string_view tekst);

/// The same for UTF-8; a byte order mark in front is none of the text.
[[nodiscard]] Omzetting Utf8NaarCodepagina(std::string_view tekst);

/// Whether bytes of which nobody says what they are can only be meant as UTF-8: there is a
/// character beyond ASCII in them, and all of those are whole.
[[nodiscard]] bool IsUtf8(Tekstblik bytes);

/// The exact conversion: nothing when any character does not fit.
[[nodiscard]] std::optional<Tekst> ExactNaarCodepagina(std::u16string_view tekst);

} // namespace plexoran
