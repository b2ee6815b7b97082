// Deleting players by their lines in the grid.
#pragma once

#include "mainwindow/weergave.h"

namespace plexoran {

/// Deletes the player on a grid line; `Nr` of the rows that stay is their new position.
void VerwijderRij(Spelertabel& tabel, const Weergave& weergave, int regel);

/// Deletes the players on the grid lines `van` up to and including `tot`.
void VerwijderRijen(Spelertabel& tabel, const Weergave& weergave, int van, int tot);

} // namespace plexoran
