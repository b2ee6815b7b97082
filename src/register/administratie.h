// What more than one window uses. `main` owns it, windows receive it by reference.
#pragma once

#include "platform/bronnen/instellingenwinkel.h"
#include "platform/schijf/programma.h"
#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/rekenprogramma.h"
#include "register/spelerbestand.h"

namespace plexoran {

struct Administratie {
    Schijf& schijf;
    Instellingenwinkel& winkel;        ///< what other programs left for this user
    Pad programmamap = Programmamap(); ///< where the running program stands
    Mappen mappen{};
    Instellingen instellingen{};
    Groepen groepen{};
    Register spelers{};
    Rekenprogramma rekenprogramma{};
    /// Data folder of the scoring program found at the start; a later choice leaves it as it is.
    Pad DataMap{};
};

} // namespace plexoran
