// A real program that is killed while it saves the register: the file must be whole each time.
#ifndef _WIN32

#include <unistd.h>

#include "hulp/kill.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/registerhulp.h"

using namespace plexoran;

namespace {

constexpr int spelersAantal = 2000;

/// Of different length, so that a mixture cannot pass for either; long enough to be written in more
/// than one piece.
Tekst Registertekst(int aantal, const Tekst& plaats, const Tekst& einde)
{
    Tekst tekst = "HKEY=" + std::to_string(100000 + aantal) + "\r\n";
    for (int nr = 1; nr <= aantal; ++nr) {
        tekst += std::to_string(nr) + "," + std::to_string(100000 + nr);
        tekst += ",Gr01-,Voornaam,van der,Achternaam-Meisjesnaam,06-12345678,"
                 "voornaam.achternaam@bridgeclub.example,Burgemeesterspad 108 driehoog,1234 AB,";
        tekst += plaats;
        tekst += ",,M,,,,A-lijn,";
        tekst += einde;
        tekst += "\r\n";
    }
    return tekst;
}

constexpr auto eigen = Overschrijven::AlleenEigen;

[[noreturn]] void BewaarSteeds(const Mappen& mappen, const Tekst& een, const Tekst& twee)
{
    EchteSchijf schijf;
    Register spelers;
    if (LeesSpelers(schijf, mappen, spelers).fout)
        ::_exit(1);
    const Spelertabel tabellen[] = {*SpelersUit(twee).tabel, *SpelersUit(een).tabel};
    for (;;) {
        for (const Spelertabel& tabel : tabellen) {
            spelers.tabel = tabel;
            spelers.HKEY = 100000 + tabel.Rijen();
            if (!SchrijfSpelers(schijf, mappen, spelers, eigen))
                ::_exit(2);
        }
    }
}

/// One start of the program and one save.
[[noreturn]] void BewaarEenmaal(const Mappen& mappen)
{
    EchteSchijf schijf;
    Register spelers;
    if (LeesSpelers(schijf, mappen, spelers).fout)
        ::_exit(1);
    if (!SchrijfSpelers(schijf, mappen, spelers, eigen))
        ::_exit(2);
    ::_exit(0);
}

} // namespace

TEST(RegisterKill, BestandIsAltijdEenVanDeTweeVersies)
{
    constexpr int kills = 250;
    const TijdelijkeMap map;
    const Mappen mappen = Proefmappen(map.AlsPad());
    std::filesystem::create_directory(map.Weg() / "Spelers");
    const Tekst een = Registertekst(spelersAantal, "Ede", "");
    const Tekst twee = Registertekst(spelersAantal + 40, "Elzenmade", "1");
    map.Zet("Spelers/RVDspelers.txt", een);
    EchteSchijf schijf;

    Wachttijd wachttijd(20'240'608);
    Tekst vorige = een;
    int eenGezien = 0;
    int tweeGezien = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const pid_t kind = Kind([&] { BewaarSteeds(mappen, een, twee); });
        ASSERT_NE(kind, -1);
        ASSERT_TRUE(KillNa(kind, wachttijd.Volgende())) << "het opslaan zelf mislukte";
        const auto inhoud = schijf.LeesBestand(mappen.Spelerbestand());
        ASSERT_TRUE(inhoud) << inhoud.error().systeem;
        ASSERT_TRUE(*inhoud == een || *inhoud == twee)
            << "kill " << kill << " liet " << inhoud->size() << " bytes achter";
        ++(*inhoud == een ? eenGezien : tweeGezien);
        wachttijd.WasTeLaat(*inhoud != vorige);
        vorige = *inhoud;
    }
    // The kills must have come at all sorts of moments, or the test shows nothing.
    EXPECT_GT(eenGezien, 10);
    EXPECT_GT(tweeGezien, 10);
    EXPECT_GT(schijf.Bestanden(mappen.SPEMAP)->size(), 1U); // temporary files of killed saves
    EXPECT_EQ(schijf.Soort(Samen(mappen.SPEMAP, "Reservekopie")), Padsoort::Niets);
}

TEST(RegisterKill, NieuwBestandNooitZonderDeKopieVanHetOude)
{
    constexpr int kills = 100;
    const TijdelijkeMap map;
    const Mappen mappen = Proefmappen(map.AlsPad());
    const Tekst oud = Registertekst(spelersAantal, "Ede", ",negentien");
    const Tekst nieuw = Registertekst(spelersAantal, "Ede", "");
    EchteSchijf schijf;

    Wachttijd wachttijd(20'240'609);
    int oudGezien = 0;
    int nieuwGezien = 0;
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
    }
    EXPECT_GT(oudGezien, 5);
    EXPECT_GT(nieuwGezien, 5);
}

#endif
