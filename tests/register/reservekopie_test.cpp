#include "register/reservekopie.h"

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/groepen.h"
#include "register/instellingen.h"
#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr auto eigen = Overschrijven::AlleenEigen;
constexpr const char* kopiemap = "C:\\club\\Spelers\\Reservekopie";
const Tekst goedeRegel = "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";

/// The path with every digit as a 9.
Pad Cijferloos(Pad pad)
{
    std::replace_if(
        pad.begin(), pad.end(), [](char teken) { return teken >= '0' && teken <= '9'; }, '9');
    return pad;
}

/// Reads the file, changes a player and saves: exactly one copy must have come, of the old file.
void VerwachtKopie(const Tekst& inhoud)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, inhoud);
    spelers.tabel.VoegToe({"9", "100009", "Gr01-", "", "", "Nieuw"});
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{inhoud});
    EXPECT_EQ(schijf.Inhoud(spelerbestand), SpelersTekst(spelers));
    // What was lost is lost; the next save has nothing to add, read again or not.
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "An");
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
    LeesSpelers(schijf, Proefmappen(), spelers);
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
}

void VerwachtGeenKopie(const Tekst& inhoud)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, inhoud);
    spelers.tabel.VoegToe({"9", "100009", "Gr01-", "", "", "Nieuw"});
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_TRUE(Kopieen(schijf).empty()) << inhoud;
    EXPECT_EQ(schijf.Soort(kopiemap), Padsoort::Niets);
}

} // namespace

TEST(Reservekopie, FoutInDeEersteGang)
{
    VerwachtKopie(goedeRegel + "1,2,3\r\n");
    VerwachtKopie("onzin");
    VerwachtKopie("HKEY=99999999999\r\n" + goedeRegel);
}

TEST(Reservekopie, FoutInDeTweedeGang)
{
    VerwachtKopie("HKEY=100002\r\n" + goedeRegel + "2,100002,Gr01-,,,Cock,\r\n" + goedeRegel);
}

TEST(Reservekopie, WeggelatenRegels)
{
    VerwachtKopie("HKEY=100002\r\n" + goedeRegel + "2,100002,Gr01-,Bea,,,,,,,,,,,,,,\r\n");
}

TEST(Reservekopie, VeldenTeVeel)
{
    VerwachtKopie("HKEY=100002\r\n2,100002,Gr01-,Bea,,Cock,,,,,,,,,,,,,negentien\r\n");
}

TEST(Reservekopie, TekstAchterDeGroepscode)
{
    VerwachtKopie("HKEY=100002\r\n2,100002,Gr01-Leden,Bea,,Cock,,,,,,,,,,,,\r\n");
}

TEST(Reservekopie, LegeSleutel)
{
    VerwachtKopie("HKEY=100002\r\n" + goedeRegel + "2,,Gr01-,Bea,,Cock,,,,,,,,,,,,\r\n");
}

TEST(Reservekopie, GeenOfGeenKaleSleutelregel)
{
    VerwachtKopie(goedeRegel);
    VerwachtKopie("HKEY=100900\r\nHKEY=100001\r\n" + goedeRegel);
    VerwachtKopie("HKEY=100001 zie schrift\r\n" + goedeRegel);
}

TEST(Reservekopie, NietAlsErNietsVerlorenGaat)
{
    VerwachtGeenKopie(vijfSpelers);
    VerwachtGeenKopie("HKEY=100000\r\n");
    VerwachtGeenKopie("");
    VerwachtGeenKopie("\n\n  \n" + goedeRegel + "HKEY=5\r\n\r\n");
    VerwachtGeenKopie("HKEY=100001\r1,100001,Gr01-,An,,Bos,,,,,,,,,,,,");
    VerwachtGeenKopie("HKEY=100001\r\n,x,G,\x81,, ,,,,,,,,,,,,\r\n");
}

TEST(Reservekopie, NietAlsErNietsGeschrevenWordt)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, "onzin");
    ASSERT_TRUE(spelers.kopieNodig);
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
}

TEST(Reservekopie, GewijzigdDoorEenAnder)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, vijfSpelers);
    spelers.tabel.VerwijderRijen(std::vector<int>{1});
    const Tekst ander = vijfSpelers + "6,100043,Gr01-,Fie,,Gans,,,,,,,,,,,,\r\n";
    schijf.Zet(spelerbestand, ander);

    const auto geweigerd = SchrijfSpelers(schijf, Proefmappen(), spelers, eigen);
    ASSERT_FALSE(geweigerd);
    EXPECT_EQ(geweigerd.error().soort, Foutsoort::Gewijzigd);
    EXPECT_EQ(geweigerd.error().bestand, "C:\\club\\Spelers\\RVDspelers.txt");
    EXPECT_EQ(schijf.Inhoud(spelerbestand), ander);
    EXPECT_TRUE(Kopieen(schijf).empty());
    EXPECT_EQ(spelers.tabel.Rijen(), 4);

    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::OokGewijzigd));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{ander});
    EXPECT_EQ(schijf.Inhoud(spelerbestand), SpelersTekst(spelers));
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
}

TEST(Reservekopie, DezelfdeInhoudMaarLaterGeschrevenIsOokGewijzigd)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, vijfSpelers);
    schijf.ZetTijd(spelerbestand, 1);
    const auto uitkomst = SchrijfSpelers(schijf, Proefmappen(), spelers, eigen);
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Gewijzigd);
}

TEST(Reservekopie, OnleesbaarGeweestWordtNooitStilVervangen)
{
    GeheugenSchijf binnen;
    binnen.Zet(spelerbestand, vijfSpelers);
    FalendeSchijf schijf(binnen);
    for (int stap = 1; stap <= 2; ++stap) {
        schijf.FaalBij(stap);
        Register spelers;
        ASSERT_TRUE(LeesSpelers(schijf, Proefmappen(), spelers).fout);
        spelers.tabel.VoegToe({"1", "100009", "Gr01-", "", "", "Nieuw"});
        const auto uitkomst = SchrijfSpelers(schijf, Proefmappen(), spelers, eigen);
        ASSERT_FALSE(uitkomst);
        EXPECT_EQ(uitkomst.error().soort, Foutsoort::Gewijzigd);
        EXPECT_EQ(binnen.Inhoud(spelerbestand), vijfSpelers);
    }
}

TEST(Reservekopie, EenTweedePogingMaaktGeenTweedeKopie)
{
    const Tekst inhoud = "HKEY=100002\r\n2,100002,Gr01-Leden,Bea,,Cock,,,,,,,,,,,,\r\n";
    GeheugenSchijf binnen;
    Register spelers = Gelezen(binnen, inhoud);
    binnen.ZetAlleenLezen(spelerbestand);
    for (int poging = 1; poging <= 3; ++poging) {
        EXPECT_FALSE(SchrijfSpelers(binnen, Proefmappen(), spelers, eigen));
        EXPECT_EQ(Kopieen(binnen), std::vector<Tekst>{inhoud});
    }
    binnen.ZetAlleenLezen(spelerbestand, false);
    EXPECT_TRUE(SchrijfSpelers(binnen, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(binnen), std::vector<Tekst>{inhoud});
}

TEST(Reservekopie, EenAnderBestandSindsDeKopieVraagtEenNieuwe)
{
    const Tekst een = "HKEY=100002\r\n2,100002,Gr01-Leden,Bea,,Cock,,,,,,,,,,,,\r\n";
    const Tekst twee = "HKEY=100002\r\n2,100002,Gr01-Jeugd,Bea,,Cock,,,,,,,,,,,,\r\n";
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, een);
    schijf.ZetAlleenLezen(spelerbestand);
    EXPECT_FALSE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    schijf.Zet(spelerbestand, twee);
    EXPECT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, Overschrijven::OokGewijzigd));
    auto kopieen = Kopieen(schijf);
    std::sort(kopieen.begin(), kopieen.end());
    EXPECT_EQ(kopieen, (std::vector<Tekst>{twee, een}));
}

TEST(Reservekopie, NaamMetDatumEnTijd)
{
    GeheugenSchijf schijf;
    schijf.Zet(spelerbestand, "oud");
    const auto kopie = MaakReservekopie(schijf, spelersmap, spelerbestand);
    ASSERT_TRUE(kopie);
    EXPECT_EQ(Cijferloos(*kopie),
              "C:\\club\\Spelers\\Reservekopie\\RVDspelers 9999-99-99 999999.txt");
    const Tekst maand = kopie->substr(kopie->find('-') + 1, 2);
    EXPECT_TRUE(maand >= "01" && maand <= "12") << *kopie;
    EXPECT_EQ(schijf.Inhoud(*kopie), "oud");
    EXPECT_EQ(schijf.Inhoud(spelerbestand), "oud");
}

TEST(Reservekopie, NaamZonderSoort)
{
    GeheugenSchijf schijf;
    schijf.Zet("C:\\a.b\\bestand", "oud");
    const auto kopie = MaakReservekopie(schijf, "C:\\a.b", "C:\\a.b\\bestand");
    ASSERT_TRUE(kopie);
    EXPECT_EQ(Cijferloos(*kopie), "C:\\a.b\\Reservekopie\\bestand 9999-99-99 999999");
}

TEST(Reservekopie, VervangtNooitEenAndere)
{
    GeheugenSchijf schijf;
    std::vector<Tekst> verwacht;
    std::vector<Pad> paden;
    for (int keer = 1; keer <= 20; ++keer) { // most of them within one second
        verwacht.push_back("versie " + std::to_string(keer));
        schijf.Zet(spelerbestand, verwacht.back());
        paden.push_back(MaakReservekopie(schijf, spelersmap, spelerbestand).value());
    }
    std::sort(paden.begin(), paden.end());
    EXPECT_EQ(std::unique(paden.begin(), paden.end()), paden.end());
    auto kopieen = Kopieen(schijf);
    std::sort(kopieen.begin(), kopieen.end());
    std::sort(verwacht.begin(), verwacht.end());
    EXPECT_EQ(kopieen, verwacht);
}

TEST(Reservekopie, ZonderKopieGeenOpslag)
{
    // A file with the name of the folder stands in the way.
    const Tekst inhoud = "HKEY=100002\r\n2,100002,Gr01-Leden,Bea,,Cock,,,,,,,,,,,,\r\n";
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, inhoud);
    schijf.Zet(kopiemap, "in de weg");
    const auto uitkomst = SchrijfSpelers(schijf, Proefmappen(), spelers, eigen);
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(spelerbestand), inhoud);
    EXPECT_TRUE(spelers.kopieNodig);

    schijf.Zet(groepenbestand, "onzin");
    Groepen zonderNamen;
    const auto groepen = SchrijfGroepen(schijf, Proefmappen(), zonderNamen);
    ASSERT_FALSE(groepen);
    EXPECT_EQ(groepen.error().soort, Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(groepenbestand), "onzin");

    schijf.Zet(instellingenbestand, "onzin");
    const auto instellingen = SchrijfInstellingen(schijf, Proefmappen(), {});
    ASSERT_FALSE(instellingen);
    EXPECT_EQ(instellingen.error().soort, Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(instellingenbestand), "onzin");

    ASSERT_TRUE(schijf.Verwijder(kopiemap));
    ASSERT_TRUE(SchrijfSpelers(schijf, Proefmappen(), spelers, eigen));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{inhoud});
}

TEST(Reservekopie, AlleenLezenMapSlaatNietOp)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, "onzin");
    spelers.tabel.VoegToe({"1", "100009", "Gr01-", "", "", "Nieuw"});
    schijf.ZetAlleenLezen(spelersmap);
    const auto uitkomst = SchrijfSpelers(schijf, Proefmappen(), spelers, eigen);
    ASSERT_FALSE(uitkomst);
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
    EXPECT_EQ(schijf.Inhoud(spelerbestand), "onzin");
}

TEST(Reservekopie, OpDeEchteSchijf)
{
    const TijdelijkeMap map;
    const Mappen mappen = Proefmappen(map.AlsPad());
    std::filesystem::create_directory(map.Weg() / "Spelers");
    map.Zet("Spelers/RVDspelers.txt", "\x81,onzin\r\n");
    EchteSchijf schijf;
    Register spelers;
    ASSERT_TRUE(LeesSpelers(schijf, mappen, spelers).fout);
    spelers.tabel.VoegToe({"1", "100001", "Gr01-", "", "", "Nieuw"});
    ASSERT_TRUE(SchrijfSpelers(schijf, mappen, spelers, eigen));
    EXPECT_EQ(Kopieen(schijf, mappen), std::vector<Tekst>{"\x81,onzin\r\n"});
    EXPECT_EQ(map.Inhoud("Spelers/RVDspelers.txt"), "HKEY=100000\r\n"
                                                    "1,100001,Gr01-,,,Nieuw,,,,,,,,,,,,\r\n");

    map.Zet("Spelers/RVDspelers.txt", vijfSpelers + "6,100043,Gr01-,Fie,,Gans,,,,,,,,,,,,\r\n");
    const auto gewijzigd = SchrijfSpelers(schijf, mappen, spelers, eigen);
    ASSERT_FALSE(gewijzigd);
    EXPECT_EQ(gewijzigd.error().soort, Foutsoort::Gewijzigd);
}
