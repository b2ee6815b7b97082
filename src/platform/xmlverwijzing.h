// The references of an XML text ("&lt;", "&#233;"), looked at before parsing: the parser would
// leave one that it does not know in the text as it is written, and cut a text at a "&#0;".
#pragma once

#include <optional>
#include <string_view>

#include "platform/xmlcodering.h"

namespace plexoran {

/// The first reference, comments, CDATA sections and instructions apart, that is neither one of
/// "&amp;", "&lt;", "&gt;", "&quot;", "&apos;" nor the number of a character that XML allows.
[[nodiscard]] std::optional<Xmlfout> OnbekendeVerwijzing(std::string_view utf8);

} // namespace plexoran
