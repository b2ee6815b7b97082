// Moving players to another group.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// Gives the first row with each key the group's code; keys that are not in the table are skipped.
/// Nothing else of a row changes.
void VerplaatsSpelers(Spelertabel& tabel, const std::vector<Tekst>& keys, Tekstblik groepscode);

} // namespace plexoran
