// Copying players to another group.
#pragma once

#include <vector>

#include "register/spelerbestand.h"

namespace plexoran {

struct Kopieeropdracht {
    std::vector<Tekst> keys; ///< of the chosen lines, in list order
    Tekst naarGroep;         ///< code of the target group
    bool metNBBgr = true;    ///< copy column 17
    bool metNBBnr = false;   ///< copy column 18
};

/// Appends a row for every key, with a new key of its own. A key that is not in the table gives a
/// row that is empty but for its new key and group; the reload after the save drops it. False when
/// there are not keys enough for all; nothing is changed then.
[[nodiscard]] bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht);

} // namespace plexoran
