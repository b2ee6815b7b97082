// The one text order of the house, the same on every system: character by character, blank before
// other signs (by code) before digits before letters; letters without regard to case or accent (Æ
// as AE, Œ as OE, ß as SS, Ø as O, Þ as TH). Texts that are equal so far are ordered by their
// bytes, so that the order is total.
#pragma once

#include <vector>

#include "platform/tekst.h"

namespace plexoran {

/// Keys that compare byte by byte as their texts compare in the text order.
[[nodiscard]] Tekst Sorteersleutel(Tekstblik tekst);

/// Puts the texts in text order. Looks at no more of them than it takes to tell them apart.
void Sorteer(std::vector<Tekstblik>& teksten);
/// The same for texts that own their characters.
void Sorteer(std::vector<Tekst>& teksten);

} // namespace plexoran
