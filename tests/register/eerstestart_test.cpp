// The first start without a window: which "Mappen.ini" holds, what the search finds, and new
// administrations on a disk that fails at every step.
#include "register/eerstestart.h"

#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "register/groepen.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

const Pad ini = "C:\\Anja\\config\\plexoran\\suite.ini";
const Pad club = "C:\\Anja\\Documents\\Onze club";

struct EersteStart : testing::Test {
    EersteStart() { geheugen.ZetMap("C:\\Anja\\Documents"); }

    auto Maak(const Pad& map = club)
    {
        return MaakAdministratie(schijf, map, NieuweDelen("Onze club"), Samen(map, "Spelers"));
    }
    void ZetSuite(const Pad& map)
    {
        geheugen.Zet(Samen(map, "Mappen.ini"), NieuweMappenIni(map, Samen(map, "Spelers")));
        geheugen.ZetMap(Samen(map, "Spelers"));
    }
    std::vector<Pad> Zoek(const std::vector<Zoekplaats>& plaatsen, int stappen = 1000)
    {
        return ZoekSuites(schijf, plaatsen, [&stappen] { return stappen-- > 0; });
    }

    GeheugenSchijf geheugen;
    FalendeSchijf schijf{geheugen, FalendeSchijf::Telt::AlleenSchrijven};
};

std::string Vervangen(std::string tekst, const std::string& van, const std::string& door)
{
    for (auto plek = tekst.find(van); plek != std::string::npos;
         plek = tekst.find(van, plek + door.size()))
        tekst.replace(plek, van.size(), door);
    return tekst;
}

} // namespace

// ---- Which one holds --------------------------------------------------------------------------

TEST_F(EersteStart, HetBestandBijHetProgrammaGaatVoorDeKeuze)
{
    EXPECT_EQ("C:\\RVD\\Mappen.ini", StartMappenIni(schijf, "C:\\RVD\\Admin", ini));
    ASSERT_TRUE(OnthoudMappenIni(schijf, ini, "D:\\Club\\Mappen.ini"));
    EXPECT_EQ("MAPPEN=D:\\Club\\Mappen.ini\r\n", geheugen.Inhoud(ini));
    EXPECT_EQ("D:\\Club\\Mappen.ini", StartMappenIni(schijf, "C:\\RVD\\Admin", ini));
    EXPECT_EQ("C:\\RVD\\Mappen.ini", StartMappenIni(schijf, "C:\\RVD\\Admin", {}));
    geheugen.Zet("C:\\RVD\\Mappen.ini", "");
    EXPECT_EQ("C:\\RVD\\Mappen.ini", StartMappenIni(schijf, "C:\\RVD\\Admin", ini));
    ASSERT_TRUE(OnthoudMappenIni(schijf, ini, "E:\\Mappen.ini"));
    EXPECT_EQ("E:\\Mappen.ini", StartMappenIni(schijf, "C:\\Bin", ini));
    geheugen.Zet(ini, "MAPPEN=\r\niets anders\r\n");
    EXPECT_EQ("C:\\Bin\\Mappen.ini", StartMappenIni(schijf, "C:\\Bin", ini));
}

TEST_F(EersteStart, EenKeuzeDieNietTeOnthoudenIsLaatDeVorigeStaan)
{
    ASSERT_TRUE(OnthoudMappenIni(schijf, ini, "D:\\Een\\Mappen.ini"));
    schijf.FaalVanaf(1);
    EXPECT_FALSE(OnthoudMappenIni(schijf, ini, "D:\\Twee\\Mappen.ini"));
    EXPECT_EQ("MAPPEN=D:\\Een\\Mappen.ini\r\n", geheugen.Inhoud(ini));
}

// ---- Finding ----------------------------------------------------------------------------------

TEST_F(EersteStart, ZoektZoDiepAlsDePlaatsZegtEnHetNabijeEerst)
{
    for (const char* map : {"C:\\Anja\\Documents\\Club\\Oud", "C:\\Anja\\Documents\\Bridge",
                            "C:\\Anja\\Documents\\A\\B\\C", "C:\\Anja\\Documents\\.weg", "D:\\RVD"})
        ZetSuite(map);
    EXPECT_EQ((std::vector<Pad>{"D:\\RVD\\Mappen.ini", "C:\\Anja\\Documents\\Bridge\\Mappen.ini",
                                "C:\\Anja\\Documents\\Club\\Oud\\Mappen.ini"}),
              Zoek({{"D:\\RVD", 0}, {"C:\\Anja\\Documents", 2}, {"C:\\Anja", 2}, {"E:", 2}}));
    EXPECT_EQ(std::vector<Pad>(), Zoek({{"C:\\Anja\\Documents", 0}, {"D:", 0}}));
}

TEST_F(EersteStart, VindtAlleenWatEenSpelersmapNoemtDieErIs)
{
    geheugen.Zet("C:\\Anja\\Documents\\A\\Mappen.ini", "RVDMAP=C:\\A\r\n");
    geheugen.Zet("C:\\Anja\\Documents\\B\\Mappen.ini", "SPEMAP=C:\\Weg\\Spelers\r\n");
    geheugen.ZetMap("C:\\Anja\\Documents\\C\\Mappen.ini");
    EXPECT_EQ(std::vector<Pad>(), Zoek({{"C:\\Anja\\Documents", 2}}));
}

TEST_F(EersteStart, ZoektNietLangerDanHetMag)
{
    for (const char* map : {"C:\\Een", "C:\\Twee", "C:\\Vier"})
        ZetSuite(map);
    for (int stappen = 0; stappen <= 5; ++stappen)
        EXPECT_EQ(static_cast<std::size_t>(std::clamp(stappen - 1, 0, 3)),
                  Zoek({{"C:\\Leeg", 0}, {"C:\\Een", 0}, {"C:\\Twee", 0}, {"C:\\Vier", 0}}, stappen)
                      .size());
}

// ---- What is there ----------------------------------------------------------------------------

TEST_F(EersteStart, ZietEenAdministratieEnEenLosRegister)
{
    EXPECT_EQ("", ZoekBestaand(schijf, club)->mappenIni + ZoekBestaand(schijf, club)->spelersmap);
    geheugen.Zet(club + "\\RVDspelers.txt", "");
    EXPECT_EQ(club, ZoekBestaand(schijf, club)->spelersmap);
    geheugen.Zet(club + "\\Spelers\\RVDspelers.txt", "");
    EXPECT_EQ(club + "\\Spelers", ZoekBestaand(schijf, club)->spelersmap);
    EXPECT_EQ("", ZoekBestaand(schijf, club)->mappenIni);
    geheugen.Zet(club + "\\Mappen.ini", "");
    EXPECT_EQ(club + "\\Mappen.ini", ZoekBestaand(schijf, club)->mappenIni);
    FalendeSchijf dicht(geheugen);
    for (int nummer = 1; nummer <= 3; ++nummer) {
        dicht.FaalBij(nummer);
        EXPECT_FALSE(ZoekBestaand(dicht, club)) << nummer;
    }
}

// ---- Making -----------------------------------------------------------------------------------

TEST_F(EersteStart, EenNieuweMappenIniNoemtAlleSleutelsEnIsDieVanHetVoorbeeld)
{
    std::ifstream bestand(VOORBEELD "/Mappen.ini.sjabloon", std::ios::binary);
    const std::string sjabloon{std::istreambuf_iterator<char>(bestand), {}};
    EXPECT_EQ(Vervangen(sjabloon, "@SUITE@", club), NieuweMappenIni(club, club + "\\Spelers"));
    const Mappen mappen = MappenUit(NieuweMappenIni(club, "D:\\Spelers"));
    EXPECT_EQ("D:\\Spelers", mappen.SPEMAP);
    EXPECT_EQ(club + "\\Bestanden", mappen.WINMAP);
    EXPECT_EQ("Gr05-", mappen.DFIMPG);
    EXPECT_EQ(1, mappen.NEWPAGR);
}

TEST_F(EersteStart, MaaktMappenGroepenEnMappenIni)
{
    EXPECT_EQ(club + "\\Mappen.ini", Maak().value());
    EXPECT_EQ("Onze club\r\n", geheugen.Inhoud(club + "\\Puntenboek\\Rev_Clubnaam.txt"));
    EXPECT_EQ(GroepenTekst(Groepen()), geheugen.Inhoud(club + "\\Spelers\\RVDGroepen.txt"));
    EXPECT_EQ(NieuweMappenIni(club, club + "\\Spelers"), geheugen.Inhoud(club + "\\Mappen.ini"));
    for (const char* map : {"Zittingen", "Admin", "Indelingen", "Competities", "Bestanden"})
        EXPECT_EQ(Padsoort::Map, geheugen.Soort(Samen(club, map)).value()) << map;
    EXPECT_EQ(3U, geheugen.AlleBestanden().size());
}

TEST_F(EersteStart, WatErStondBlijftZoalsHetWas)
{
    geheugen.Zet(club + "\\Spelers\\RVDGroepen.txt", "Gr01-Oud\r\n");
    geheugen.Zet(club + "\\Admin\\Plexo.ini", "OPTIND=4\r\n");
    EXPECT_TRUE(Maak());
    EXPECT_EQ("Gr01-Oud\r\n", geheugen.Inhoud(club + "\\Spelers\\RVDGroepen.txt"));
    geheugen.Zet(club + "\\Mappen.ini", "SPEMAP=X\r\n");
    EXPECT_TRUE(Maak());
    EXPECT_EQ("SPEMAP=X\r\n", geheugen.Inhoud(club + "\\Mappen.ini"));
    EXPECT_EQ("OPTIND=4\r\n", geheugen.Inhoud(club + "\\Admin\\Plexo.ini"));
}

TEST_F(EersteStart, BijEenFoutInWelkeStapOokBlijftErNietsHalfGemaaktsStaan)
{
    geheugen.Zet("C:\\Anja\\Documents\\brief.txt", "x");
    const Pad diep = "C:\\Anja\\Documents\\Bridge\\Onze club";
    ASSERT_TRUE(Maak("E:\\Telling"));
    const int stappen = schijf.Aantal() + 1; // one more folder above it
    ASSERT_GT(stappen, 20);
    for (const auto& bestand : geheugen.AlleBestanden()) {
        if (bestand.starts_with("E:")) {
            ASSERT_TRUE(geheugen.Verwijder(bestand));
        }
    }
    for (int nummer = 1; nummer <= stappen; ++nummer) {
        schijf.FaalBij(nummer);
        const auto uitslag = Maak(diep);
        ASSERT_FALSE(uitslag) << nummer;
        EXPECT_EQ("schijf vol", uitslag.error().fout.systeem);
        EXPECT_EQ(std::vector<std::string>(), uitslag.error().gebleven) << nummer;
        EXPECT_EQ(std::vector<Pad>{"C:\\Anja\\Documents\\brief.txt"}, geheugen.AlleBestanden());
        EXPECT_EQ(Padsoort::Niets, geheugen.Soort("C:\\Anja\\Documents\\Bridge").value()) << nummer;
    }
    schijf.FaalNiet();
    EXPECT_TRUE(Maak(diep));
}

TEST_F(EersteStart, WatNietTerugTeNemenIsWordtGenoemd)
{
    ASSERT_TRUE(Maak("E:\\Telling"));
    const int stappen = schijf.Aantal();
    for (int nummer = 1; nummer <= stappen; ++nummer) {
        const Pad map = "C:\\Anja\\Documents\\Club " + std::to_string(nummer);
        schijf.FaalVanaf(nummer);
        const auto uitslag = Maak(map);
        ASSERT_FALSE(uitslag) << nummer;
        EXPECT_EQ(geheugen.Soort(map) == Padsoort::Map,
                  std::ranges::find(uitslag.error().gebleven, map) !=
                      uitslag.error().gebleven.end())
            << nummer;
        for (const Pad& bestand : geheugen.AlleBestanden()) {
            if (bestand.starts_with(map + "\\") && bestand.find(".~") == Pad::npos) {
                EXPECT_NE(uitslag.error().gebleven.end(),
                          std::ranges::find(uitslag.error().gebleven, bestand))
                    << bestand;
            }
        }
    }
}

TEST_F(EersteStart, OpEenPlaatsZonderRechtenOfDieErNietIsKomtErNiets)
{
    geheugen.ZetAlleenLezen("C:\\Anja\\Documents");
    EXPECT_EQ(Foutsoort::Geweigerd, Maak().error().fout.soort);
    EXPECT_EQ(Padsoort::Niets, geheugen.Soort(club).value());
    geheugen.Zet("C:\\bestand", "x");
    EXPECT_FALSE(Maak("C:\\bestand\\Club"));
    EXPECT_EQ("x", geheugen.Inhoud("C:\\bestand"));
}

TEST(Naambezwaar, ZegtWatErAanDeNaamMankeert)
{
    EXPECT_EQ("", Naambezwaar("B.C. 't Hof (\xE9\xE9n)", club));
    EXPECT_EQ("Vul de naam van uw club in.", Naambezwaar("", club));
    EXPECT_EQ(
        "In de naam van uw club kan dit niet staan, want die krijgt ook de map: /?\n\nKies een "
        "andere naam.",
        Naambezwaar("A/B?/", club));
    EXPECT_EQ("De naam van een map kan niet eindigen op een punt. Kies een andere naam.",
              Naambezwaar("..", club));
    EXPECT_EQ("", Naambezwaar("Club", Pad(150, 'x')));
    EXPECT_TRUE(
        Naambezwaar("Club", Pad(151, 'x'))
            .starts_with(
                "De naam van de map is te lang: met alle mappen erboven heeft hij 151 tekens"));
}

// ---- The club to practise with ----------------------------------------------------------------

TEST_F(EersteStart, DeOefenclubKrijgtEenNummerAlsErAlIetsAndersStaat)
{
    const std::vector<Zipdeel> delen = NieuweDelen("De Ruitenzeven");
    const Pad documenten = "C:\\Anja\\Documents";
    const auto zoek = [&] { return ZoekOefenplaats(schijf, documenten, delen).value(); };
    EXPECT_EQ(documenten + "\\Plexoran oefenclub", zoek().vrij);
    EXPECT_EQ("", zoek().bestaand);
    geheugen.Zet(documenten + "\\Plexoran oefenclub", "een bestand");
    ASSERT_TRUE(Maak(documenten + "\\Plexoran oefenclub 2"));
    EXPECT_EQ(documenten + "\\Plexoran oefenclub 3", zoek().vrij);
    EXPECT_EQ("", zoek().bestaand) << "van een andere club";
    const Pad derde = zoek().vrij;
    ASSERT_TRUE(MaakAdministratie(schijf, derde, delen, Samen(derde, "Spelers")));
    EXPECT_EQ(derde, zoek().bestaand);
    EXPECT_EQ(documenten + "\\Plexoran oefenclub 4", zoek().vrij);
    ASSERT_TRUE(geheugen.Verwijder(derde + "\\Mappen.ini"));
    EXPECT_EQ("", zoek().bestaand) << "nooit afgemaakt";
    EXPECT_FALSE(ZoekOefenplaats(schijf, documenten, {})->bestaand.size());
    FalendeSchijf dicht(geheugen);
    dicht.FaalBij(1);
    EXPECT_FALSE(ZoekOefenplaats(dicht, documenten, delen)) << "en het zoeken houdt op";
}
