// What more than one window uses. `main` owns it, windows receive it by reference.
#pragma once

#include "platform/instellingenwinkel.h"
#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/rekenprogramma.h"
#include "register/spelerbestand.h"

namespace plexoran {

struct Administratie {
    Schijf& schijf;
    Instellingenwinkel& winkel; ///< what other programs left for this user
    Mappen mappen{};
    Instellingen instellingen{};
    Groepen groepen{};
    Register spelers{};
    Rekenprogramma rekenprogramma{};
    /// Data folder of the scoring program found at the start; a later choice leaves it as it is.
    Pad DataMap{};
};

} // namespace plexoran
