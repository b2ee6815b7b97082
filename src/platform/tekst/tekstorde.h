// The one text order of the house, the same on every system: character by character, blank before
// other signs (by code) before digits before letters; letters without regard to case or accent (Æ
// as AE, Œ as OE, ß as SS, Ø as O, Þ as TH). Texts that are equal so far are ordered by their
// bytes, so that the order is total.
#pragma once

#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// Whether the one comes before the other, to sort by.
[[nodiscard]] bool KomtVoor(Tekstblik een, Tekstblik ander);

void Sorteer(std::vector<Tekst>& teksten);

/// A key that compares byte by byte as its text compares in the text order.
[[nodiscard]] Tekst Sorteersleutel(Tekstblik tekst);

} // namespace plexoran
