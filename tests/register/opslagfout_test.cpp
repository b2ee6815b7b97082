// Each save on a disk that fails at its first, second, ... operation, until nothing is left to
// fail.
#include <functional>
#include <set>

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

/// A save that is tried on a failing disk.
struct Proef {
    Pad bestand;
    Tekst oud;
    Tekst nieuw;
    bool metKopie = false;
    std::function<void()> bereid; ///< puts the old file there, past the failing disk
    std::function<Uitkomst<void>(Schijf&)> bewaar;
    std::function<void()> naAfloop = [] {}; ///< what must hold after each attempt
};

/// The names of the files in the folder of the file under test.
std::vector<Tekst> Buren(Schijf& schijf, const Proef& proef)
{
    return schijf.Bestanden(proef.bestand.substr(0, proef.bestand.find_last_of('\\'))).value();
}

/// The file is one of the two versions, and the new one only after its copy.
void BekijkBestand(Schijf& binnen, const Mappen& mappen, const Proef& proef, bool gemeld)
{
    const auto inhoud = binnen.LeesBestand(proef.bestand);
    ASSERT_TRUE(inhoud);
    ASSERT_TRUE(*inhoud == proef.oud || *inhoud == proef.nieuw) << *inhoud;
    if (*inhoud == proef.oud) {
        EXPECT_TRUE(gemeld);
    } else if (proef.metKopie) {
        EXPECT_FALSE(Kopieen(binnen, mappen).empty());
    }
    for (const Tekst& kopie : Kopieen(binnen, mappen))
        EXPECT_EQ(kopie, proef.oud); // never a part of it under the name of a copy
}

void EenStap(Schijf& binnen, const Mappen& mappen, const Proef& proef, FalendeSchijf& schijf)
{
    const auto eerste = proef.bewaar(schijf);
    BekijkBestand(binnen, mappen, proef, !eerste);
    if (!eerste) {
        const bool kopieMislukt = eerste.error().soort == Foutsoort::GeenReservekopie;
        // What is told is what stands there: the new file only behind the error that says so.
        const bool staatEr = binnen.LeesBestand(proef.bestand) == proef.nieuw;
        EXPECT_EQ(staatEr, eerste.error().soort == Foutsoort::NietVast);
        EXPECT_TRUE(kopieMislukt || staatEr || eerste.error().soort == Foutsoort::Geweigerd);
        EXPECT_EQ(eerste.error().systeem, "schijf vol");
        EXPECT_NE(eerste.error().bestand, "");
        if (kopieMislukt) {
            EXPECT_EQ(binnen.LeesBestand(proef.bestand), proef.oud);
        }
    }
    proef.naAfloop();
    schijf.FaalNiet();
    ASSERT_TRUE(proef.bewaar(schijf)) << "de tweede poging";
    EXPECT_EQ(binnen.LeesBestand(proef.bestand), proef.nieuw);
    proef.naAfloop();
}

/// One operation refused, each in turn: told, both versions whole, nothing left lying about, and
/// the second attempt succeeds.
void FaalBijElkeStap(Schijf& binnen, const Mappen& mappen, const Proef& proef)
{
    FalendeSchijf schijf(binnen);
    proef.bereid();
    schijf.FaalNiet();
    ASSERT_TRUE(proef.bewaar(schijf));
    const int stappen = schijf.Aantal();
    ASSERT_GE(stappen, proef.metKopie ? 18 : 9);
    int mislukt = 0;
    for (int stap = 1; stap <= stappen; ++stap) {
        SCOPED_TRACE("stap " + std::to_string(stap));
        proef.bereid();
        schijf.FaalBij(stap);
        EenStap(binnen, mappen, proef, schijf);
        const auto buren = Buren(binnen, proef);
        EXPECT_EQ(buren.size(), 1U) << buren.back();

        // A disk that stays broken from there on; its temporary file may be left.
        proef.bereid();
        schijf.FaalVanaf(stap);
        const auto uitkomst = proef.bewaar(schijf);
        BekijkBestand(binnen, mappen, proef, !uitkomst);
        proef.naAfloop();
        mislukt += uitkomst ? 0 : 1;
    }
    // At most the stamp after the save, by which nothing is lost.
    EXPECT_GE(mislukt, stappen - 1);
}

/// The same, with the power cut there: what the device then holds.
void StroomuitvalBijElkeStap(const std::function<void(GeheugenSchijf&)>& bereid, const Proef& proef)
{
    for (const auto namen : {GeheugenSchijf::Namen::Gesynct, GeheugenSchijf::Namen::Alle}) {
        std::set<Tekst> gezien;
        bool klaar = false;
        for (int stap = 1; !klaar; ++stap) {
            ASSERT_LT(stap, 60) << "het opslaan lukt nooit";
            GeheugenSchijf binnen;
            bereid(binnen);
            FalendeSchijf schijf(binnen);
            schijf.FaalVanaf(stap);
            klaar = proef.bewaar(schijf).has_value();
            const auto over = binnen.NaStroomuitval(namen);
            ASSERT_TRUE(over.contains(proef.bestand)) << "stap " << stap;
            const Tekst& inhoud = over.at(proef.bestand);
            gezien.insert(inhoud);
            ASSERT_TRUE(inhoud == proef.nieuw || (inhoud == proef.oud && !klaar)) << inhoud;
            const bool kopie = std::any_of(over.begin(), over.end(), [&](const auto& bestand) {
                return bestand.first.find("Reservekopie") != Pad::npos &&
                       bestand.first.find(".~") == Pad::npos && bestand.second == proef.oud;
            });
            EXPECT_TRUE(inhoud == proef.oud || kopie || !proef.metKopie) << "stap " << stap;
        }
        EXPECT_EQ(gezien, (std::set<Tekst>{proef.oud, proef.nieuw}));
    }
}

const Tekst metVeldTeVeel = "HKEY=100007\r\n1,100001,Gr01-,An,,Bos,,,,,,,,,,,,,te veel\r\n";

void LeegMap(Schijf& schijf, const Pad& map)
{
    const auto namen = schijf.Bestanden(map);
    if (!namen)
        return;
    for (const Tekst& naam : *namen)
        ASSERT_TRUE(schijf.Verwijder(Samen(map, naam)));
}

void ZetBestand(Schijf& schijf, const Mappen& mappen, const Pad& pad, const Tekst& inhoud)
{
    const Pad wortel = mappen.SPEMAP.substr(0, mappen.SPEMAP.rfind('\\'));
    for (const Pad& map :
         {wortel, mappen.SPEMAP, mappen.ADMMAP, Samen(mappen.SPEMAP, "Reservekopie")}) {
        ASSERT_TRUE(schijf.MaakMap(map));
        LeegMap(schijf, map);
    }
    auto schrijver = schijf.MaakNieuw(pad);
    ASSERT_TRUE(schrijver && (*schrijver)->Schrijf(inhoud) && (*schrijver)->Sluit());
}

/// The register in `spelers` was read from `oud` and got a player; the table must stay as it is
/// through all failures.
Proef Spelersproef(Schijf& binnen, const Mappen& mappen, Register& spelers, const Tekst& oud)
{
    Proef proef;
    proef.bestand = mappen.Spelerbestand();
    proef.oud = oud;
    proef.metKopie = oud == metVeldTeVeel;
    proef.bereid = [&binnen, &spelers, mappen, oud] {
        ZetBestand(binnen, mappen, mappen.Spelerbestand(), oud);
        spelers = Register();
        LeesSpelers(binnen, mappen, spelers);
        ASSERT_TRUE(VoegSpelerToe(spelers, "Gr02-", {"", "", "", "Fie", "", "Gans"}));
    };
    proef.bereid();
    proef.nieuw = SpelersTekst(spelers);
    proef.bewaar = [&binnen, &spelers, mappen](Schijf& schijf) {
        auto uitkomst = SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen);
        if (uitkomst) // every save is followed by this; it is not what fails here
            LeesSpelers(binnen, mappen, spelers);
        return uitkomst;
    };
    proef.naAfloop = [&spelers, nieuw = proef.nieuw] { EXPECT_EQ(SpelersTekst(spelers), nieuw); };
    return proef;
}

Proef Groepenproef(Schijf& binnen, const Mappen& mappen, Groepen& groepen, const Tekst& oud)
{
    Proef proef;
    proef.bestand = mappen.Groepenbestand();
    proef.oud = oud;
    proef.metKopie = !IsGroepenbestand(oud);
    proef.bereid = [&binnen, &groepen, mappen, oud] {
        ZetBestand(binnen, mappen, mappen.Groepenbestand(), oud);
        groepen = LeesGroepen(binnen, mappen);
        groepen.ZetNaam(1, "Clubleden");
    };
    proef.bereid();
    proef.nieuw = GroepenTekst(groepen);
    proef.bewaar = [&groepen, mappen](Schijf& schijf) {
        return SchrijfGroepen(schijf, mappen, groepen);
    };
    proef.naAfloop = [&groepen, nieuw = proef.nieuw] { EXPECT_EQ(GroepenTekst(groepen), nieuw); };
    return proef;
}

Proef Instellingenproef(Schijf& binnen, const Mappen& mappen, const Tekst& oud)
{
    Proef proef;
    proef.bestand = mappen.Instellingenbestand();
    proef.oud = oud;
    proef.nieuw = "OPTIND=4\r\nLOSTGR=12\r\n";
    proef.metKopie = !IsInstellingenbestand(oud);
    proef.bereid = [&binnen, mappen, oud] {
        ZetBestand(binnen, mappen, mappen.Instellingenbestand(), oud);
    };
    proef.bewaar = [mappen](Schijf& schijf) {
        return SchrijfInstellingen(schijf, mappen, {.OPTIND = 4, .LOSTGR = 12});
    };
    return proef;
}

/// A start that finds a player file or a group file whose first item is blank.
Proef Startproef(Schijf& binnen, const Mappen& mappen, bool spelerbestandIsHet)
{
    const Pad pad = spelerbestandIsHet ? mappen.Spelerbestand() : mappen.Groepenbestand();
    Proef proef;
    proef.bestand = pad;
    proef.oud = "\r\nGr01-toch nog iets\r\n";
    proef.nieuw = spelerbestandIsHet ? "HKEY=100000\r\n" : GroepenTekst(Groepen());
    proef.metKopie = true;
    proef.bereid = [&binnen, mappen, pad, oud = proef.oud] {
        ZetBestand(binnen, mappen, pad, oud);
    };
    proef.bewaar = [mappen, spelerbestandIsHet](Schijf& schijf) {
        Register spelers;
        return spelerbestandIsHet ? MaakSpelerbestand(schijf, mappen, spelers).gemaakt
                                  : MaakGroepenbestand(schijf, mappen).gemaakt;
    };
    return proef;
}

void ElkBestand(Schijf& binnen, const Mappen& mappen)
{
    Register spelers;
    Groepen groepen;
    for (const Tekst& oud : {vijfSpelers, metVeldTeVeel}) {
        SCOPED_TRACE("spelers");
        FaalBijElkeStap(binnen, mappen, Spelersproef(binnen, mappen, spelers, oud));
    }
    for (const Tekst oud : {"Gr01-Oud\r\n", "Gr01-Oud, en nog iets\r\n"}) {
        SCOPED_TRACE("groepen");
        FaalBijElkeStap(binnen, mappen, Groepenproef(binnen, mappen, groepen, oud));
    }
    for (const Tekst oud : {"OPTIND=4\r\nLOSTGR=3\r\n", "onzin\r\n"}) {
        SCOPED_TRACE("instellingen");
        FaalBijElkeStap(binnen, mappen, Instellingenproef(binnen, mappen, oud));
    }
    for (const bool spelerbestandIsHet : {true, false}) {
        SCOPED_TRACE("start");
        FaalBijElkeStap(binnen, mappen, Startproef(binnen, mappen, spelerbestandIsHet));
    }
}

} // namespace

TEST(Opslagfout, ElkeStapVanElkBestandInGeheugen)
{
    GeheugenSchijf schijf;
    ElkBestand(schijf, Proefmappen());
}

TEST(Opslagfout, ElkeStapVanElkBestandOpDeEchteSchijf)
{
    const TijdelijkeMap map;
    EchteSchijf schijf;
    ElkBestand(schijf, Proefmappen(map.AlsPad()));
}

TEST(Opslagfout, StroomuitvalBijElkeStap)
{
    const Mappen mappen = Proefmappen();
    const auto zet = [](const Pad& pad, const Tekst& inhoud) {
        return [pad, inhoud](GeheugenSchijf& schijf) { schijf.Zet(pad, inhoud); };
    };
    GeheugenSchijf los;
    Groepen groepen;
    for (const Tekst oud : {"Gr01-Oud\r\n", "Gr01-Oud, en nog iets\r\n"}) {
        const Proef proef = Groepenproef(los, mappen, groepen, oud);
        const auto bereid = [&](GeheugenSchijf& schijf) {
            schijf.Zet(groepenbestand, oud);
            groepen = LeesGroepen(schijf, mappen);
            groepen.ZetNaam(1, "Clubleden");
        };
        StroomuitvalBijElkeStap(bereid, proef);
    }
    for (const bool spelerbestandIsHet : {true, false}) {
        const Proef proef = Startproef(los, mappen, spelerbestandIsHet);
        StroomuitvalBijElkeStap(zet(proef.bestand, proef.oud), proef);
    }
    Register spelers;
    for (const Tekst& oud : {vijfSpelers, metVeldTeVeel}) {
        const Proef proef = Spelersproef(los, mappen, spelers, oud);
        const auto bereid = [&](GeheugenSchijf& schijf) {
            spelers = Gelezen(schijf, oud);
            ASSERT_TRUE(VoegSpelerToe(spelers, "Gr02-", {"", "", "", "Fie", "", "Gans"}));
        };
        StroomuitvalBijElkeStap(bereid, proef);
    }
}

TEST(Opslagfout, NaEenMislukteSyncVanDeMapIsHetBestandNietVanEenAnder)
{
    GeheugenSchijf binnen;
    Register spelers = Gelezen(binnen, vijfSpelers);
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Anna");
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    schijf.FaalBij(7); // make, rights, write, sync, close, rename, and then the folder
    const auto eerste = SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::AlleenEigen);
    ASSERT_FALSE(eerste);
    EXPECT_EQ(eerste.error().soort, Foutsoort::NietVast);
    EXPECT_EQ(binnen.Inhoud(spelerbestand), SpelersTekst(spelers));
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Annie");
    EXPECT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::AlleenEigen));
}

TEST(Opslagfout, NaEenMislukteSyncVanDeMapKomtErGeenKopieVanDeEigenGroepsnamen)
{
    GeheugenSchijf binnen;
    binnen.Zet(groepenbestand, "Gr01-Oud\r\n");
    Groepen groepen = LeesGroepen(binnen, Proefmappen());
    groepen.ZetNaam(1, "Clubleden");
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    schijf.FaalBij(7);
    const auto eerste = SchrijfGroepen(schijf, Proefmappen(), groepen);
    ASSERT_FALSE(eerste);
    EXPECT_EQ(eerste.error().soort, Foutsoort::NietVast);
    EXPECT_EQ(binnen.Inhoud(groepenbestand), GroepenTekst(groepen));
    groepen.ZetNaam(1, "Avond");
    EXPECT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen));
    EXPECT_EQ(Kopieen(binnen), std::vector<Tekst>{});
}

TEST(Opslagfout, AlleenLezenMapOfBestand)
{
    for (const Pad& vast : {Pad(spelersmap), Pad(spelerbestand)}) {
        GeheugenSchijf schijf;
        Register spelers = Gelezen(schijf, vijfSpelers);
        spelers.tabel.ZetCel(1, Kolom::Voornaam, "Anna");
        const Tekst nieuw = SpelersTekst(spelers);
        schijf.ZetAlleenLezen(vast);
        const auto uitkomst =
            SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::AlleenEigen);
        ASSERT_FALSE(uitkomst);
        EXPECT_EQ(uitkomst.error().soort, Foutsoort::Geweigerd);
        EXPECT_EQ(schijf.Inhoud(spelerbestand), vijfSpelers);
        EXPECT_EQ(SpelersTekst(spelers), nieuw);
        EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
        schijf.ZetAlleenLezen(vast, false);
        EXPECT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::AlleenEigen));
        EXPECT_EQ(schijf.Inhoud(spelerbestand), nieuw);
    }
}
