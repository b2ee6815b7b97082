// XML documents read whole with pugixml, whose nodes the readers use themselves; texts come out in
// Windows-1252.
//
// Known are UTF-8, UTF-16 and Windows-1252, as which ISO-8859-1 and US-ASCII are read too: a byte
// order mark tells first, then the zero byte beside the first "<", then the declaration. A document
// type is refused, and with it all entities but the five predefined ones.
#pragma once

#include <pugixml.hpp>

#include "platform/schijf/fout.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

struct Xmldocument {
    std::string bron;            ///< the whole file in UTF-8, without its mark
    pugi::xml_document document; ///< its nodes, of which the offsets count in `bron`
};

/// Reads the text of a file; texts of white space are nodes too. `bestand` names the file in an
/// error, which is `Beschadigd` and tells the line and, in Dutch, what is wrong and where on that
/// line.
[[nodiscard]] Uitkomst<void> LeesXml(Tekst bytes, const std::string& bestand, Xmldocument& in);

/// Whether a node is a text that is written as white space only, as an indented document has
/// between its elements; a blank that is written as a reference is meant.
[[nodiscard]] bool IsWit(const pugi::xml_node& knoop, std::string_view bron);

/// All texts and CDATA sections below an element, in order; line ends are LF. White space is kept,
/// unless the element holds nothing else. Returns how many characters the code page lacks: the
/// nearest letters stand for them.
std::size_t LeesTekst(const pugi::xml_node& element, std::string_view bron, Tekst& uit);

} // namespace plexoran
