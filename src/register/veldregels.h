// What a text must be before it may stand in a field of a player, whoever brings it.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

enum class Reparatie { Komma, Partner };

struct Veldverlaten {
    Tekst tekst;
    std::vector<Reparatie> reparaties; ///< to tell the user, in this order
};

/// What leaving a field makes of its text.
[[nodiscard]] Veldverlaten VerlaatVeld(Kolom veld, Tekstblik tekst);

} // namespace plexoran
