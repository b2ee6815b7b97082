// The register that the tests of a window work on, with its disk. A window goes before it.
#pragma once

#include "hulp/proefsuite.h"
#include "platform/schijf/echteSchijf.h"
#include "register/administratie.h"
#include "register/spelerbestand.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {

/// A copy of the sample suite, not read yet, with production saving.
struct Suitestand {
    Proefsuite suite;
    Proefwinkel winkel;
    EchteSchijf echteSchijf;
    FalendeSchijf schijf{echteSchijf, FalendeSchijf::Telt::AlleenSchrijven};
    Administratie administratie{.schijf = schijf, .winkel = std::ref(winkel)};

    /// The folders and the players, as the program reads them at its start.
    void LeesRegister()
    {
        administratie.mappen = LeesMappenIni(echteSchijf, suite.MappenIni()).value();
        (void)LeesSpelers(echteSchijf, administratie.mappen, administratie.spelers);
    }
};

/// An empty register, and files in a folder of their own.
struct Mapstand {
    TijdelijkeMap map;
    EchteSchijf echteSchijf;
    FalendeSchijf schijf{echteSchijf, FalendeSchijf::Telt::AlleenSchrijven};
    Proefwinkel winkel;
    Administratie administratie{.schijf = schijf, .winkel = std::ref(winkel)};
};

/// The same with folders for the players and the sessions.
struct Clubstand : Mapstand {
    Clubstand()
    {
        administratie.mappen.SPEMAP = map.AlsPad();
        administratie.mappen.ZITMAP = Samen(map.AlsPad(), "Zittingen");
    }
    void ZetSpelers(const std::string& bestand)
    {
        map.Zet("RVDspelers.txt", bestand);
        (void)LeesSpelers(echteSchijf, administratie.mappen, administratie.spelers);
    }
    void ZetZitting(const std::string& naam, const std::string& spelers) const
    {
        const auto zitting = map.Weg() / "Zittingen" / naam;
        std::filesystem::create_directories(zitting);
        map.Zet(zitting / "Zitdata.txt", "");
        map.Zet(zitting / "Spelers.txt", spelers);
    }
};

/// An empty register, and files in memory.
struct Geheugenstand {
    GeheugenSchijf geheugen;
    FalendeSchijf schijf{geheugen};
    Proefwinkel winkel;
    Administratie administratie{.schijf = schijf, .winkel = std::ref(winkel)};
};

} // namespace plexoran
