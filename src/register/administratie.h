// What more than one window uses.
#pragma once

#include "platform/bronnen/instellingenwinkel.h"
#include "platform/schijf/programma.h"
#include "register/eerstestart.h"
#include "register/geschiedenis.h"
#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/spelerbestand.h"

namespace plexoran {

enum class Programma { Geen = 0, NBBR = 1, BridgeIt = 2 };

/// Which of the two scoring programs with a member database is installed, and where its data lie.
struct Rekenprogramma {
    bool NBBRaanwezig = false;
    bool BRITaanwezig = false;
    Programma GekozenProgramma = Programma::Geen;
    Tekst DataRoot;      ///< the chosen program's data folder; empty without one
    Tekst ProgrammaCode; ///< "NBBR" or "BRIT"
    Tekst ProgrammaNaam; ///< for captions
};

/// `main` owns it, windows receive it by reference.
struct Administratie {
    Schijf& schijf;
    Instellingenwinkel winkel;         ///< what other programs left for this user
    Pad programmamap = Programmamap(); ///< where the running program stands
    Pad tweedeplaatsIni{};             ///< of this user; empty: no second place can be chosen
    Pad vensterIni{};                  ///< how this user wants his window; empty: not kept
    Pad etikettenIni{};                ///< his own sheet of labels; empty: not kept
    /// None: the start without a "Mappen.ini" ends.
    std::optional<Startomgeving> eersteStart{};
    Mappen mappen{};
    Instellingen instellingen{};
    Groepen groepen{};
    Register spelers{};
    Geschiedenis geschiedenis{schijf};
    Rekenprogramma rekenprogramma{};
    /// Data folder of the scoring program found at the start; a later choice leaves it as it is.
    Pad DataMap{};
};

} // namespace plexoran
