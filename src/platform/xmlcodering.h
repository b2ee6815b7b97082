// The characters of an XML file: which encoding its bytes are in, and the way from there to UTF-8.
//
// A byte order mark tells first; without one, zero bytes tell UTF-16 and then the declaration
// tells. Known are UTF-8, UTF-16 in both orders and Windows-1252, as which ISO-8859-1 and US-ASCII
// are read too. A declaration of UTF-16 that could be read byte by byte is wrong about itself: the
// file is UTF-8.
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "platform/tekst.h"

namespace plexoran {

/// What is wrong with a document, and at which byte of its text.
struct Xmlfout {
    std::size_t plaats = 0;
    std::string wat; ///< in Dutch, UTF-8
};

/// Whether a document may hold the character.
[[nodiscard]] constexpr bool MagInXml(char32_t teken)
{
    if (teken < 0x20)
        return teken == '\t' || teken == '\n' || teken == '\r';
    return teken < 0xD800 || (teken > 0xDFFF && teken < 0xFFFE) ||
           (teken > 0xFFFF && teken <= 0x10FFFF);
}

/// The whole file in UTF-8, without its mark. Refused with the byte of the file: an unknown
/// encoding, bytes that are no character, and characters that XML does not allow.
[[nodiscard]] tl::expected<std::string, Xmlfout> XmlNaarUtf8(Tekstblik bytes);

/// Whether bytes of which nobody says what they are can only be meant as UTF-8: there is a
/// character beyond ASCII in them, and all of those are whole.
[[nodiscard]] bool IsUtf8(Tekstblik bytes);

/// A text in which what is written in ASCII can be searched, whatever the encoding and however
/// damaged the rest. Looks into `bytes` or into `ruimte`.
[[nodiscard]] Tekstblik XmlDoorzoekbaar(Tekstblik bytes, std::string& ruimte);

} // namespace plexoran
