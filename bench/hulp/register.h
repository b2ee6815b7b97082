// Made-up registers of any size, with lines as long as those of real clubs.
#pragma once

#include <functional>

#include "register/spelertabel.h"

namespace plexoran {

enum class Verdeling {
    EenGroep,    ///< everybody in Gr01-
    AlleGroepen, ///< spread over Gr01- to Gr50-
};

/// The text of a player file. The same on every machine and at every call, and the players of a
/// smaller register are the first ones of a larger one.
[[nodiscard]] Tekst MaakRegister(int spelers, Verdeling verdeling);
/// The same with what `zet` makes of each row.
[[nodiscard]] Tekst MaakRegister(int spelers, Verdeling verdeling,
                                 const std::function<void(Spelertabel& tabel, int rij)>& zet);

} // namespace plexoran
