#include "register/reservekopie.h"

#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "register/instellingen.h"
#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr const char* kopiemap = "C:\\club\\Spelers\\Reservekopie";
const Tekst goedeRegel = "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";
const Tekst metGroepsnaam = "HKEY=100002\r\n2,100002,Gr01-Leden,Bea,,Cock,,,,,,,,,,,,\r\n";
const Rijvelden nieuweSpeler{"9", "100009", "Gr01-", "", "", "Nieuw"};

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
    spelers.tabel.VoegToe(nieuweSpeler);
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{inhoud});
    EXPECT_EQ(schijf.Inhoud(spelerbestand), SpelersTekst(spelers));
    // What was lost is lost; the next save has nothing to add, read again or not.
    spelers.tabel.ZetCel(1, Kolom::Voornaam, "An");
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
    Lees(schijf, spelers);
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
}

} // namespace

TEST(Reservekopie, VanWatHetOpslaanVerliest)
{
    const Tekst sleutel = "HKEY=100002\r\n";
    for (const Tekst& inhoud :
         {goedeRegel + "1,2,3\r\n", Tekst("onzin"), "HKEY=99999999999\r\n" + goedeRegel,
          sleutel + goedeRegel + "2,100002,Gr01-,,,Cock,\r\n" + goedeRegel,
          sleutel + goedeRegel + "2,100002,Gr01-,Bea,,,,,,,,,,,,,,\r\n",
          sleutel + "2,100002,Gr01-,Bea,,Cock,,,,,,,,,,,,,negentien\r\n", metGroepsnaam,
          sleutel + goedeRegel + "2,,Gr01-,Bea,,Cock,,,,,,,,,,,,\r\n", goedeRegel,
          "HKEY=100900\r\nHKEY=100001\r\n" + goedeRegel,
          "HKEY=100001 zie schrift\r\n" + goedeRegel}) {
        SCOPED_TRACE(inhoud);
        VerwachtKopie(inhoud);
    }
}

TEST(Reservekopie, NietAlsErNietsVerlorenGaat)
{
    for (const Tekst& inhoud : {vijfSpelers, Tekst("HKEY=100000\r\n"), Tekst(),
                                "\n\n  \n" + goedeRegel + "HKEY=5\r\n\r\n",
                                Tekst("HKEY=100001\r1,100001,Gr01-,An,,Bos,,,,,,,,,,,,"),
                                Tekst("HKEY=100001\r\n,x,G,\x81,, ,,,,,,,,,,,,\r\n")}) {
        GeheugenSchijf schijf;
        Register spelers = Gelezen(schijf, inhoud);
        spelers.tabel.VoegToe(nieuweSpeler);
        ASSERT_TRUE(Bewaar(schijf, spelers));
        EXPECT_TRUE(Kopieen(schijf).empty()) << inhoud;
        EXPECT_EQ(schijf.Soort(kopiemap), Padsoort::Niets);
    }
    // Nor where nothing is written.
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, "onzin");
    ASSERT_TRUE(spelers.kopieNodig);
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{spelerbestand});
}

TEST(Reservekopie, GewijzigdDoorEenAnder)
{
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, vijfSpelers);
    spelers.tabel.VerwijderRijen(std::vector<int>{1});
    const Tekst ander = vijfSpelers + "6,100043,Gr01-,Fie,,Gans,,,,,,,,,,,,\r\n";
    schijf.Zet(spelerbestand, ander);

    const auto geweigerd = Bewaar(schijf, spelers);
    ASSERT_FALSE(geweigerd);
    EXPECT_EQ(geweigerd.error().soort, Foutsoort::Gewijzigd);
    EXPECT_EQ(geweigerd.error().bestand, "C:\\club\\Spelers\\RVDspelers.txt");
    EXPECT_EQ(schijf.Inhoud(spelerbestand), ander);
    EXPECT_TRUE(Kopieen(schijf).empty());
    EXPECT_EQ(spelers.tabel.Rijen(), 4);

    ASSERT_TRUE(Bewaar(schijf, spelers, Overschrijven::OokGewijzigd));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{ander});
    EXPECT_EQ(schijf.Inhoud(spelerbestand), SpelersTekst(spelers));
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(Kopieen(schijf).size(), 1U);
    schijf.ZetTijd(spelerbestand, 1); // the same contents, but written at another time
    EXPECT_TRUE(Bewaar(schijf, spelers));
}

TEST(Reservekopie, OnleesbaarGeweestWordtNooitStilVervangen)
{
    GeheugenSchijf binnen;
    binnen.Zet(spelerbestand, vijfSpelers);
    FalendeSchijf schijf(binnen);
    schijf.FaalBij(1);
    Register spelers;
    ASSERT_TRUE(Lees(schijf, spelers).fout);
    spelers.tabel.VoegToe(nieuweSpeler);
    EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::Gewijzigd);
    EXPECT_EQ(binnen.Inhoud(spelerbestand), vijfSpelers);
}

TEST(Reservekopie, EenTweedePogingMaaktGeenTweedeKopieVanHetzelfdeBestand)
{
    const Tekst ander = "HKEY=100002\r\n2,100002,Gr01-Jeugd,Bea,,Cock,,,,,,,,,,,,\r\n";
    for (const bool gewijzigd : {false, true}) {
        GeheugenSchijf schijf;
        Register spelers = Gelezen(schijf, metGroepsnaam);
        schijf.ZetAlleenLezen(spelerbestand);
        for (int poging = 1; poging <= 3; ++poging) {
            EXPECT_FALSE(Bewaar(schijf, spelers));
            EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{metGroepsnaam});
        }
        schijf.ZetAlleenLezen(spelerbestand, false);
        if (gewijzigd)
            schijf.Zet(spelerbestand, ander);
        EXPECT_TRUE(Bewaar(schijf, spelers,
                           gewijzigd ? Overschrijven::OokGewijzigd : Overschrijven::AlleenEigen));
        auto kopieen = Kopieen(schijf);
        std::sort(kopieen.begin(), kopieen.end());
        EXPECT_EQ(kopieen, gewijzigd ? std::vector<Tekst>({ander, metGroepsnaam})
                                     : std::vector<Tekst>{metGroepsnaam});
    }
}

TEST(Reservekopie, NaamMetDatumEnTijd)
{
    GeheugenSchijf schijf;
    schijf.Zet(spelerbestand, "oud");
    const auto kopie = MaakReservekopie(schijf, spelersmap, spelerbestand, "oud");
    ASSERT_TRUE(kopie);
    EXPECT_EQ(Cijferloos(*kopie),
              "C:\\club\\Spelers\\Reservekopie\\RVDspelers 9999-99-99 999999.txt");
    const Tekst maand = kopie->substr(kopie->find('-') + 1, 2);
    EXPECT_TRUE(maand >= "01" && maand <= "12") << *kopie;
    EXPECT_EQ(schijf.Inhoud(*kopie), "oud");
    EXPECT_EQ(schijf.Inhoud(spelerbestand), "oud");
    schijf.Zet("C:\\a.b\\bestand", "oud"); // of no kind
    EXPECT_EQ(Cijferloos(MaakReservekopie(schijf, "C:\\a.b", "C:\\a.b\\bestand", "oud").value()),
              "C:\\a.b\\Reservekopie\\bestand 9999-99-99 999999");
}

TEST(Reservekopie, VervangtNooitEenAndere)
{
    GeheugenSchijf schijf;
    schijf.ZetMap(spelersmap);
    std::vector<Tekst> verwacht;
    std::vector<Pad> paden;
    for (int keer = 1; keer <= 20; ++keer) { // most of them within one second
        verwacht.push_back("versie " + std::to_string(keer));
        paden.push_back(
            MaakReservekopie(schijf, spelersmap, spelerbestand, verwacht.back()).value());
    }
    const auto tweede = [](const Pad& pad) { return pad.ends_with("-2.txt"); };
    EXPECT_TRUE(std::any_of(paden.begin(), paden.end(), tweede));
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
    GeheugenSchijf schijf;
    Register spelers = Gelezen(schijf, metGroepsnaam);
    schijf.Zet(kopiemap, "in de weg");
    EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(spelerbestand), metGroepsnaam);
    EXPECT_TRUE(spelers.kopieNodig);

    schijf.Zet(groepenbestand, "onzin");
    Groepen zonderNamen;
    EXPECT_EQ(SoortVan(SchrijfGroepen(schijf, Proefmappen(), zonderNamen).gelukt),
              Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(groepenbestand), "onzin");

    schijf.Zet(instellingenbestand, "onzin");
    Instellingen nul;
    EXPECT_EQ(SoortVan(SchrijfInstellingen(schijf, Proefmappen(), nul)),
              Foutsoort::GeenReservekopie);
    EXPECT_EQ(schijf.Inhoud(instellingenbestand), "onzin");

    ASSERT_TRUE(schijf.Verwijder(kopiemap));
    ASSERT_TRUE(Bewaar(schijf, spelers));
    EXPECT_EQ(Kopieen(schijf), std::vector<Tekst>{metGroepsnaam});
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
    ASSERT_TRUE(SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen));
    EXPECT_EQ(Kopieen(schijf, mappen), std::vector<Tekst>{"\x81,onzin\r\n"});
    EXPECT_EQ(map.Inhoud("Spelers/RVDspelers.txt"), "HKEY=100000\r\n"
                                                    "1,100001,Gr01-,,,Nieuw,,,,,,,,,,,,\r\n");

    map.Zet("Spelers/RVDspelers.txt", vijfSpelers + "6,100043,Gr01-,Fie,,Gans,,,,,,,,,,,,\r\n");
    EXPECT_EQ(SoortVan(SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen)),
              Foutsoort::Gewijzigd);
}

// ---- The files that the start makes anew

namespace {

/// The player file or the group file.
class AanmaakTest : public testing::TestWithParam<bool> {
  protected:
    Aanmaak Maak()
    {
        return GetParam() ? MaakSpelerbestand(schijf_, Proefmappen(), spelers_)
                          : MaakGroepenbestand(schijf_, Proefmappen());
    }

    GeheugenSchijf schijf_;
    Register spelers_;
    Pad bestand_ = GetParam() ? spelerbestand : groepenbestand;
    Tekst nieuw_ = GetParam() ? "HKEY=100000\r\n" : GroepenTekst(Groepen());
};

INSTANTIATE_TEST_SUITE_P(, AanmaakTest, testing::Bool(),
                         [](const auto& soort) { return soort.param ? "Spelers" : "Groepen"; });

} // namespace

TEST_P(AanmaakTest, OntbrekendWordtGemaakt)
{
    schijf_.ZetMap(spelersmap);
    ASSERT_TRUE(Maak().gemaakt);
    EXPECT_EQ(schijf_.Inhoud(bestand_), nieuw_);
    EXPECT_EQ(schijf_.AlleBestanden(), std::vector<Pad>{bestand_});
    EXPECT_EQ(spelers_.HKEY, GetParam() ? 100000 : 0);
}

TEST_P(AanmaakTest, LeegWordtOpnieuwGemaaktZonderKopie)
{
    for (const Tekst leeg : {"", "\r\n", "    ", " \n \r\r\n"}) {
        schijf_.Zet(bestand_, leeg);
        ASSERT_TRUE(Maak().gemaakt);
        EXPECT_EQ(schijf_.Inhoud(bestand_), nieuw_);
        EXPECT_TRUE(Kopieen(schijf_).empty());
    }
}

/// Meant: a blank first item makes the file anew whatever follows; the copy keeps it.
TEST_P(AanmaakTest, EersteItemBlancoWordtOpnieuwGemaaktMetKopie)
{
    std::size_t kopieen = 0;
    for (const Tekst& half : {"\r\n" + vijfSpelers, "  \n" + vijfSpelers, Tekst(",\r\n"),
                              Tekst("  ,Gr01-a\r\n"), Tekst(" \nx"), "," + goedeRegel}) {
        schijf_.Zet(bestand_, half);
        spelers_.HKEY = 0;
        const Aanmaak aanmaak = Maak();
        ASSERT_TRUE(aanmaak.gemaakt);
        EXPECT_EQ(schijf_.Inhoud(bestand_), nieuw_);
        EXPECT_EQ(spelers_.HKEY, GetParam() ? 100000 : 0);
        EXPECT_EQ(schijf_.Inhoud(aanmaak.kopie), half);
        EXPECT_EQ(Kopieen(schijf_).size(), ++kopieen);
    }
}

TEST_P(AanmaakTest, AndersBlijftHetZoalsHetIs)
{
    for (const Tekst& inhoud : {vijfSpelers, Tekst("onzin\r\n\r\n"), Tekst("\t\r\n"), Tekst("x"),
                                Tekst("Gr01-a\r\n"), Tekst("HKEY=\r\n"), Tekst("\0", 1)}) {
        schijf_.Zet(bestand_, inhoud);
        const auto voor = schijf_.NeemStempel(bestand_);
        ASSERT_TRUE(Maak().gemaakt);
        EXPECT_EQ(schijf_.Inhoud(bestand_), inhoud);
        EXPECT_EQ(schijf_.NeemStempel(bestand_), *voor);
        EXPECT_EQ(spelers_.HKEY, 0);
        EXPECT_TRUE(Kopieen(schijf_).empty());
    }
}
