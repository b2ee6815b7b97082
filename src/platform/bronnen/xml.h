// XML documents read whole with pugixml, whose nodes the readers use themselves; texts come out in
// Windows-1252.
//
// docs/bestanden.md tells which encodings and entities are known. A byte order mark tells the
// encoding first, then the zero byte beside the first "<", then the declaration.
#pragma once

#include <string_view>

#include "platform/schijf/fout.h"
#include "platform/tekst/tekst.h"

namespace pugi {
class xml_document;
class xml_node;
} // namespace pugi

namespace plexoran {

/// The whole file in UTF-8, without its mark. `bestand` names the file in an error, here and below,
/// which is `Beschadigd` and tells the line and, in Dutch, what is wrong and where on that line.
[[nodiscard]] Uitkomst<std::string> LeesXml(Tekst bytes, const std::string& bestand);

/// Texts of white space only are no nodes, or are. Without them the text that an element begins
/// with stands in the element itself: a third of the nodes in half the time.
enum class Xmlwit { Weg, Blijft };

/// Fills the document, of whose nodes the offsets count in `bron`.
[[nodiscard]] Uitkomst<void> OntleedXml(std::string_view bron, const std::string& bestand,
                                        pugi::xml_document& document, Xmlwit wit);

/// Whether a node is a text that is written as white space only, as an indented document has
/// between its elements; a blank that is written as a reference is meant.
[[nodiscard]] bool IsWit(const pugi::xml_node& knoop, std::string_view bron);

/// All texts and CDATA sections below an element, in order; line ends are LF. White space is kept,
/// unless the element holds nothing else; beside other nodes it takes `Xmlwit::Blijft`. Returns how
/// many characters the code page lacks: the nearest letters stand for them.
std::size_t LeesTekst(const pugi::xml_node& element, std::string_view bron, Tekst& uit);

} // namespace plexoran
