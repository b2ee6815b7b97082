// Each save on a disk that fails at its first, second, ... operation, until nothing is left to
// fail.
#include <set>

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/instellingen.h"
#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

/// A lock that could not be removed is not waited for.
[[maybe_unused]] const auto ongeduldig = Slotpoos = {};

const Tekst metVeldTeVeel = "HKEY=100007\r\n1,100001,Gr01-,An,,Bos,,,,,,,,,,,,,te veel\r\n";

/// A save that is tried on a failing disk.
struct Proef {
    Pad bestand;
    Tekst oud;
    bool metKopie = false;
    std::function<void(Schijf&)> lees; ///< what is saved, read from the disk and changed
    std::function<Uitkomst<void>(Schijf& schijf, Schijf& binnen)> bewaar;
    std::function<Tekst()> tekst; ///< of what is saved; the same after every attempt
    Tekst nieuw{};

    /// Puts the old file there, alone and on the device, past the failing disk.
    void Bereid(Schijf& binnen, const Mappen& mappen)
    {
        const Pad wortel = mappen.SPEMAP.substr(0, mappen.SPEMAP.rfind('\\'));
        for (const Pad& map :
             {wortel, mappen.SPEMAP, mappen.ADMMAP, Samen(mappen.SPEMAP, "Reservekopie")}) {
            ASSERT_TRUE(binnen.MaakMap(map));
            const auto namen = binnen.Bestanden(map).value();
            for (const Tekst& naam : namen)
                ASSERT_TRUE(binnen.Verwijder(Samen(map, naam)));
        }
        ASSERT_TRUE(SchrijfHeel(binnen, bestand, oud));
        lees(binnen);
        nieuw = tekst();
    }
};

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
    const auto eerste = proef.bewaar(schijf, binnen);
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
    EXPECT_EQ(proef.tekst(), proef.nieuw);
    schijf.FaalNiet();
    ASSERT_TRUE(proef.bewaar(schijf, binnen)) << "de tweede poging";
    EXPECT_EQ(binnen.LeesBestand(proef.bestand), proef.nieuw);
    EXPECT_EQ(proef.tekst(), proef.nieuw);
}

/// One operation refused, each in turn: told, both versions whole, nothing left lying about, and
/// the second attempt succeeds.
void FaalBijElkeStap(Schijf& binnen, const Mappen& mappen, Proef& proef)
{
    FalendeSchijf schijf(binnen);
    proef.Bereid(binnen, mappen);
    ASSERT_TRUE(proef.bewaar(schijf, binnen));
    const int stappen = schijf.Aantal();
    ASSERT_GE(stappen, proef.metKopie ? 18 : 9);
    int mislukt = 0;
    for (int stap = 1; stap <= stappen; ++stap) {
        SCOPED_TRACE("stap " + std::to_string(stap));
        proef.Bereid(binnen, mappen);
        schijf.FaalBij(stap);
        EenStap(binnen, mappen, proef, schijf);
        const Pad map = proef.bestand.substr(0, proef.bestand.find_last_of('\\'));
        const auto buren = binnen.Bestanden(map).value();
        EXPECT_EQ(buren.size(), 1U) << buren.back();

        // A disk that stays broken from there on; its temporary file may be left.
        proef.Bereid(binnen, mappen);
        schijf.FaalVanaf(stap);
        const auto uitkomst = proef.bewaar(schijf, binnen);
        BekijkBestand(binnen, mappen, proef, !uitkomst);
        EXPECT_EQ(proef.tekst(), proef.nieuw);
        mislukt += uitkomst ? 0 : 1;
    }
    // At most the stamp after the save, by which nothing is lost.
    EXPECT_GE(mislukt, stappen - 1);
}

/// The same, with the power cut there: what the device then holds.
void StroomuitvalBijElkeStap(const Mappen& mappen, Proef& proef)
{
    for (const auto namen : {GeheugenSchijf::Namen::Gesynct, GeheugenSchijf::Namen::Alle}) {
        std::set<Tekst> gezien;
        bool klaar = false;
        for (int stap = 1; !klaar; ++stap) {
            ASSERT_LT(stap, 60) << "het opslaan lukt nooit";
            GeheugenSchijf binnen;
            proef.Bereid(binnen, mappen);
            FalendeSchijf schijf(binnen);
            schijf.FaalVanaf(stap);
            klaar = proef.bewaar(schijf, binnen).has_value();
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

/// What is saved.
struct Stand {
    Register spelers;
    Groepen groepen;
};

Proef Spelersproef(const Mappen& mappen, Stand& stand, const Tekst& oud)
{
    return {.bestand = mappen.Spelerbestand(),
            .oud = oud,
            .metKopie = oud == metVeldTeVeel,
            .lees =
                [=, &stand](Schijf& binnen) {
                    stand.spelers = Register();
                    LeesSpelers(binnen, mappen, stand.spelers);
                    const Rijvelden fie{"", "", "", "Fie", "", "Gans"};
                    ASSERT_TRUE(VoegSpelerToe(stand.spelers, "Gr02-", fie));
                },
            .bewaar =
                [=, &stand](Schijf& schijf, Schijf& binnen) {
                    auto uitkomst =
                        SchrijfSpelers(schijf, mappen, stand.spelers, Overschrijven::AlleenEigen);
                    if (uitkomst) // every save is followed by this; it is not what fails here
                        LeesSpelers(binnen, mappen, stand.spelers);
                    return uitkomst;
                },
            .tekst = [&stand] { return SpelersTekst(stand.spelers); }};
}

Proef Groepenproef(const Mappen& mappen, Stand& stand, const Tekst& oud)
{
    return {.bestand = mappen.Groepenbestand(),
            .oud = oud,
            .metKopie = !IsGroepenbestand(oud),
            .lees =
                [=, &stand](Schijf& binnen) {
                    stand.groepen = LeesGroepen(binnen, mappen);
                    stand.groepen.ZetNaam(1, "Clubleden");
                },
            .bewaar =
                [=, &stand](Schijf& schijf, Schijf& /*binnen*/) {
                    return SchrijfGroepen(schijf, mappen, stand.groepen).gelukt;
                },
            .tekst = [&stand] { return GroepenTekst(stand.groepen); }};
}

Proef Instellingenproef(const Mappen& mappen, const Tekst& oud)
{
    return {.bestand = mappen.Instellingenbestand(),
            .oud = oud,
            .metKopie = !IsInstellingenbestand(oud),
            .lees = [](Schijf&) {},
            .bewaar =
                [=](Schijf& schijf, Schijf& /*binnen*/) {
                    Instellingen instellingen{.OPTIND = 4, .LOSTGR = 12};
                    return SchrijfInstellingen(schijf, mappen, instellingen);
                },
            .tekst = [] { return Tekst("OPTIND=4\r\nLOSTGR=12\r\n"); }};
}

/// A start that finds a player file or a group file whose first item is blank.
Proef Startproef(const Mappen& mappen, bool spelers)
{
    return {.bestand = spelers ? mappen.Spelerbestand() : mappen.Groepenbestand(),
            .oud = "\r\nGr01-toch nog iets\r\n",
            .metKopie = true,
            .lees = [](Schijf&) {},
            .bewaar =
                [=](Schijf& schijf, Schijf& /*binnen*/) {
                    Register leeg;
                    return spelers ? MaakSpelerbestand(schijf, mappen, leeg).gemaakt
                                   : MaakGroepenbestand(schijf, mappen).gemaakt;
                },
            .tekst = [=] { return spelers ? "HKEY=100000\r\n" : GroepenTekst(Groepen()); }};
}

std::vector<Proef> Proeven(const Mappen& mappen, Stand& stand)
{
    return {Spelersproef(mappen, stand, vijfSpelers),
            Spelersproef(mappen, stand, metVeldTeVeel),
            Groepenproef(mappen, stand, "Gr01-Oud\r\n"),
            Groepenproef(mappen, stand, "Gr01-Oud, en nog iets\r\n"),
            Instellingenproef(mappen, "OPTIND=4\r\nLOSTGR=3\r\n"),
            Instellingenproef(mappen, "onzin\r\n"),
            Startproef(mappen, true),
            Startproef(mappen, false)};
}

void ElkBestand(Schijf& binnen, const Mappen& mappen)
{
    Stand stand;
    for (Proef& proef : Proeven(mappen, stand)) {
        SCOPED_TRACE(proef.bestand + ": " + proef.oud);
        FaalBijElkeStap(binnen, mappen, proef);
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
    Stand stand;
    for (Proef& proef : Proeven(Proefmappen(), stand)) {
        SCOPED_TRACE(proef.bestand + ": " + proef.oud);
        StroomuitvalBijElkeStap(Proefmappen(), proef);
    }
}

TEST(Opslagfout, NaEenMislukteSyncVanDeMapIsHetBestandNietVanEenAnder)
{
    GeheugenSchijf binnen;
    Register spelers = Gelezen(binnen, vijfSpelers);
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Anna");
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    // Make, rights, write, sync, close, lock, rename, unlock, and then the folder.
    schijf.FaalBij(9);
    EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::NietVast);
    EXPECT_EQ(binnen.Inhoud(spelerbestand), SpelersTekst(spelers));
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Annie");
    EXPECT_TRUE(Bewaar(schijf, spelers));
}

TEST(Opslagfout, NaEenMislukteSyncVanDeMapKomtErGeenKopieVanDeEigenGroepsnamen)
{
    GeheugenSchijf binnen;
    binnen.Zet(groepenbestand, "Gr01-Oud\r\n");
    Groepen groepen = LeesGroepen(binnen, Proefmappen());
    groepen.ZetNaam(1, "Clubleden");
    FalendeSchijf schijf(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    schijf.FaalBij(9);
    EXPECT_EQ(SoortVan(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt), Foutsoort::NietVast);
    EXPECT_EQ(binnen.Inhoud(groepenbestand), GroepenTekst(groepen));
    groepen.ZetNaam(1, "Avond");
    EXPECT_TRUE(SchrijfGroepen(schijf, Proefmappen(), groepen).gelukt);
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
        EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::Geweigerd);
        EXPECT_EQ(schijf.Inhoud(spelerbestand), vijfSpelers);
        EXPECT_EQ(SpelersTekst(spelers), nieuw);
        EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
        schijf.ZetAlleenLezen(vast, false);
        EXPECT_TRUE(Bewaar(schijf, spelers));
        EXPECT_EQ(schijf.Inhoud(spelerbestand), nieuw);
    }
}

/// Writing the history may take so long that another program takes the lock for left behind.
TEST(Opslagfout, WieZijnSlotKwijtraaktVervangtNiets)
{
    struct Trage : Getuige {
        void VoorVervanging(const Pad& /*pad*/, std::optional<Tekstblik> /*nieuw*/) override
        {
            schijf.Zet(Pad(spelerbestand) + ".~plexoran0", "");
        }
        explicit Trage(GeheugenSchijf& welke) : schijf(welke) {}
        GeheugenSchijf& schijf;
    };
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, vijfSpelers);
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "Anna");
    Trage trage(schijf);
    schijf.ZetGetuige(&trage);
    EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::Gewijzigd);
    EXPECT_EQ(schijf.Inhoud(spelerbestand), vijfSpelers);
    EXPECT_TRUE(schijf.Inhoud(Pad(spelerbestand) + ".~plexoran0")) << "het is van een ander";
    schijf.ZetGetuige(nullptr);
    ASSERT_TRUE(schijf.Verwijder(Pad(spelerbestand) + ".~plexoran0"));
    EXPECT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(schijf.Inhoud(spelerbestand), SpelersTekst(spelers));
}
