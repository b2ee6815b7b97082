// Which of the two scoring programs with a member database is installed, and where its data lie.
#pragma once

#include "platform/tekst/tekst.h"

namespace plexoran {

enum class Programma { Geen = 0, NBBR = 1, BridgeIt = 2 };

struct Rekenprogramma {
    bool NBBRaanwezig = false;
    bool BRITaanwezig = false;
    Programma GekozenProgramma = Programma::Geen;
    Tekst DataRoot;      ///< the chosen program's data folder; empty without one
    Tekst ProgrammaCode; ///< "NBBR" or "BRIT"
    Tekst ProgrammaNaam; ///< for captions
};

} // namespace plexoran
