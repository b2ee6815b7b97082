// A real program that is killed while it saves a register of which it has to keep a copy.
#ifndef _WIN32

#include <limits>

#include <unistd.h>

#include "hulp/kill.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/registerhulp.h"

using namespace plexoran;

namespace {

constexpr int spelersAantal = 2000;

Tekst Registertekst(const Tekst& einde)
{
    Tekst tekst = "HKEY=" + std::to_string(100000 + spelersAantal) + "\r\n";
    for (int nr = 1; nr <= spelersAantal; ++nr) {
        tekst += std::to_string(nr) + "," + std::to_string(100000 + nr);
        tekst += ",Gr01-,Voornaam,van der,Achternaam-Meisjesnaam,06-12345678,"
                 "voornaam.achternaam@bridgeclub.example,Burgemeesterspad 108 driehoog,1234 "
                 "AB,Ede,,M,,,,A-lijn,";
        tekst += einde;
        tekst += "\r\n";
    }
    return tekst;
}

/// One start of the program and one save.
[[noreturn]] void BewaarEenmaal(const Mappen& mappen)
{
    EchteSchijf schijf;
    Register spelers;
    if (LeesSpelers(schijf, mappen, spelers).fout)
        ::_exit(1);
    if (!SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen))
        ::_exit(2);
    ::_exit(0);
}

} // namespace

TEST(RegisterKill, NieuwBestandNooitZonderDeKopieVanHetOude)
{
    constexpr int kills = 100;
    const TijdelijkeMap map;
    const Mappen mappen = Proefmappen(map.AlsPad());
    const Tekst oud = Registertekst(",negentien");
    const Tekst nieuw = Registertekst("");
    EchteSchijf schijf;

    Wachttijd wachttijd(20'240'609);
    int oudGezien = 0;
    int nieuwGezien = 0;
    int restGezien = 0;
    for (int kill = 0; kill < kills; ++kill) {
        std::filesystem::remove_all(map.Weg() / "Spelers");
        std::filesystem::create_directory(map.Weg() / "Spelers");
        map.Zet("Spelers/RVDspelers.txt", oud);
        const pid_t kind = Kind([&] { BewaarEenmaal(mappen); });
        ASSERT_NE(kind, -1);
        ASSERT_TRUE(KillNa(kind, wachttijd.Volgende())) << "het opslaan zelf mislukte";
        const auto inhoud = schijf.LeesBestand(mappen.Spelerbestand());
        ASSERT_TRUE(inhoud) << inhoud.error().systeem;
        ASSERT_TRUE(*inhoud == oud || *inhoud == nieuw) << "kill " << kill;
        ++(*inhoud == oud ? oudGezien : nieuwGezien);
        wachttijd.WasTeLaat(*inhoud == nieuw);
        const auto kopieen = Kopieen(schijf, mappen);
        if (*inhoud == nieuw) {
            EXPECT_EQ(std::count(kopieen.begin(), kopieen.end(), oud), 1) << "kill " << kill;
        }
        restGezien += schijf.Bestanden(mappen.SPEMAP)->size() > 1 ? 1 : 0;
        RuimTijdelijkeOp(schijf, mappen.SPEMAP, "RVDspelers.txt",
                         std::numeric_limits<std::int64_t>::max());
        EXPECT_EQ(schijf.Bestanden(mappen.SPEMAP), std::vector<Tekst>{"RVDspelers.txt"});
    }
    EXPECT_GT(oudGezien, 5);
    EXPECT_GT(nieuwGezien, 5);
    EXPECT_GT(restGezien, 0);
}

#endif
