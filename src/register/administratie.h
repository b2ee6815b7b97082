// What more than one window uses. `main` owns it, windows receive it by reference.
#pragma once

#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/spelerbestand.h"

namespace plexoran {

struct Administratie {
    Schijf& schijf;
    Mappen mappen{};
    Instellingen instellingen{};
    Groepen groepen{};
    Register spelers{};
};

} // namespace plexoran
