// The lists from which players are chosen, to move or to copy: one line a player.
//
// A line is a visible text, 60 spaces and the player's key. The key is read back as the last six
// characters of the line.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// The key of a line: its last six characters.
[[nodiscard]] Tekstblik KeyVan(Tekstblik regel);

/// The rows that can be moved, in table order: those outside the import group.
[[nodiscard]] std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep);
[[nodiscard]] Tekst Verplaatsregel(const Spelertabel& tabel, int rij);

/// The rows of a group, in table order.
[[nodiscard]] std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode);
[[nodiscard]] Tekst Kopieerregel(const Spelertabel& tabel, int rij);

} // namespace plexoran
