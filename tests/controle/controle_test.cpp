#include "controle/controle.h"

#include <gtest/gtest.h>

#include "hulp/proefstand.h"

using namespace plexoran;

namespace {

using Regels_t = std::vector<std::string>;

constexpr std::array Namen{"onleesbaar", "dubbel",  "boven HKEY",    "geen sleutel", "geen naam",
                           "groep",      "NBBnr",   "paar onbekend", "paar dood",    "paar elders",
                           "zitting",    "zwevend", "tekens",        "utf8"};

/// A finding as one line: kind, where, what.
std::string AlsRegel(const Vondst& vondst)
{
    std::string uit = Namen.at(static_cast<std::size_t>(vondst.soort));
    uit += " | ";
    if (vondst.plek) {
        const Zittingplek& plek = *vondst.plek;
        uit += plek.naam;
        if (plek.inCompetitie)
            uit += " R" + std::to_string(plek.ronde) + " Z" + std::to_string(plek.zitting);
        uit += " " + plek.plaatsen;
    }
    uit += vondst.speler + vondst.bestand;
    if (vondst.regel > 0)
        uit += ":" + std::to_string(vondst.regel);
    for (const std::string& deel : {vondst.wat, vondst.ander, vondst.reden}) {
        if (!deel.empty())
            uit += " | " + deel;
    }
    return uit;
}

/// The line of a player: key, group, first name, surname, status, subgroup and federation number.
struct Lid {
    Tekst key;
    Tekst groep = "Gr01-";
    Tekst naam = "Bos";
    Tekst status{};
    Tekst subgroep{};
    Tekst nbbnr{};
};

class ControleTest : public testing::Test, protected Geheugenstand {
  protected:
    ControleTest()
    {
        mappen.SPEMAP = "S";
        mappen.ZITMAP = "Z";
        mappen.COMMAP = "C";
        mappen.DFIMPG = "Gr05-";
        for (const char* map : {"S", "Z", "C"})
            geheugen.ZetMap(map);
        ZetLeden({{"100001"}, {"100002"}, {"100003"}});
    }

    void ZetLeden(const std::vector<Lid>& leden, const Tekst& hkey = "HKEY=100900\r\n")
    {
        Tekst tekst = hkey;
        for (const Lid& lid : leden)
            tekst += "1," + lid.key + "," + lid.groep + ",An,," + lid.naam + ",,,,,,,,,," +
                     lid.status + "," + lid.subgroep + "," + lid.nbbnr + "\r\n";
        ZetSpelers(tekst);
    }
    void ZetSpelers(const Tekst& tekst) { geheugen.Zet("S\\RVDspelers.txt", tekst); }
    void ZetParen(const Tekst& naam, const Tekst& paren)
    {
        geheugen.Zet("S\\Parenmap\\" + naam, paren);
    }
    void ZetZitting(const Tekst& naam, const Tekst& spelers, const Tekst& percentages = {})
    {
        geheugen.Zet("Z\\" + naam + "\\Zitdata.txt", "");
        geheugen.Zet("Z\\" + naam + "\\Spelers.txt", spelers);
        if (!percentages.empty())
            geheugen.Zet("Z\\" + naam + "\\PercZit.txt", percentages);
    }

    Controleuitslag Voer(const Voortgang& voortgang = {})
    {
        return ControleerSuite(schijf, mappen, voortgang);
    }
    Regels_t Vondsten()
    {
        Regels_t uit;
        for (const Vondst& vondst : Voer().vondsten)
            uit.push_back(AlsRegel(vondst));
        return uit;
    }

    Mappen& mappen = administratie.mappen;
};

} // namespace

TEST_F(ControleTest, NietsTeMelden)
{
    ZetLeden({{"100001", "Gr01-", "Bos", "", "A"},
              {"100002", "Gr01-", "Eik", "", "A"},
              {"100003", "Gr05-", "Es", "lid", "MA", "123"}});
    geheugen.Zet("S\\RVDGroepen.txt", "Gr01-Clubleden\r\n");
    ZetParen("Gr01-A.txt", "100001-100002#\r\n");
    geheugen.Zet("S\\RVDparen.txt", "100001-100003#\r\n");
    ZetZitting("Een", "N01 100001 - 100002\r\n", "1,\"A\",\"N1\",\"100001-100002\",50,0,\"\"\r\n");
    geheugen.Zet("C\\Ladder\\Compdata.txt", "");
    geheugen.Zet("C\\Ladder\\Ronde-1\\Zitting-2\\Spelers.txt", "N01 100001 - 100003\r\n");
    const Controleuitslag uitslag = Voer();
    EXPECT_TRUE(uitslag.vondsten.empty());
    EXPECT_EQ(3U, uitslag.telling.spelers);
    EXPECT_EQ(2U, uitslag.telling.groepen);
    EXPECT_EQ(2U, uitslag.telling.parenbestanden);
    EXPECT_EQ(2U, uitslag.telling.zittingen);
    EXPECT_EQ(7U, uitslag.telling.bestanden);
    EXPECT_FALSE(uitslag.IsTeVerhogen());
    EXPECT_FALSE(uitslag.gestopt);
}

TEST_F(ControleTest, ErVerandertNiets)
{
    ZetLeden({{"100001"}, {"100001"}}, "HKEY=100000\r\n");
    ZetZitting("Een", "N01 Jan - 100002\r\n");
    const auto oud = geheugen.NaStroomuitval(GeheugenSchijf::Namen::Alle);
    EXPECT_FALSE(Voer().vondsten.empty());
    EXPECT_EQ(oud, geheugen.NaStroomuitval(GeheugenSchijf::Namen::Alle));
}

// ---------------------------------------------------------------- players

TEST_F(ControleTest, DubbeleSleutels)
{
    ZetLeden({{"100001"}, {"100002"}, {"100001", "Gr02-", "Eik"}, {"100001", "Gr03-", "Es"}});
    EXPECT_EQ((Regels_t{"dubbel | 100001 An Eik (Gr02-) | 100001 An Bos (Gr01-)",
                        "dubbel | 100001 An Es (Gr03-) | 100001 An Bos (Gr01-)"}),
              Vondsten());
}

TEST_F(ControleTest, SleutelsBovenHKEY)
{
    ZetLeden({{"100001"}, {"100003"}, {"100007"}}, "HKEY=100002\r\n");
    EXPECT_EQ(
        (Regels_t{"boven HKEY | 100003 An Bos (Gr01-)", "boven HKEY | 100007 An Bos (Gr01-)"}),
        Vondsten());
    const Controleuitslag uitslag = Voer();
    EXPECT_TRUE(uitslag.IsTeVerhogen());
    EXPECT_EQ(100002, uitslag.HKEY);
    EXPECT_EQ(100007, uitslag.hoogste);
}

TEST_F(ControleTest, GeenSleutelIsNooitDeHoogste)
{
    ZetLeden({{""}, {"1000123"}, {"10012x"}, {"12345"}, {"100001"}});
    EXPECT_EQ((Regels_t{"geen sleutel |  An Bos (Gr01-)",
                        "geen sleutel | 1000123 An Bos (Gr01-) | 1000123",
                        "geen sleutel | 10012x An Bos (Gr01-) | 10012x",
                        "geen sleutel | 12345 An Bos (Gr01-) | 12345"}),
              Vondsten());
    EXPECT_EQ(100001, Voer().hoogste);
}

/// Such a player is left out, but his key is known and his line would be lost by a save.
TEST_F(ControleTest, RegelsZonderAchternaam)
{
    ZetLeden({{"100001"}, {"100950", "Gr01-", ""}, {"100951"}});
    ZetZitting("Een", "N01 100950 - 100001\r\n");
    EXPECT_EQ((Regels_t{"boven HKEY | 100951 An Bos (Gr01-)",
                        "geen naam | S\\RVDspelers.txt:3 | 100950 An"}),
              Vondsten());
    EXPECT_FALSE(Voer().IsTeVerhogen());
}

TEST_F(ControleTest, OnbekendeGroepen)
{
    ZetLeden({{"100001", "Gr50-"}, {"100002", "Gr51-"}, {"100003", "Gr00-"}, {"100004", ""}});
    EXPECT_EQ((Regels_t{"groep | 100002 An Bos (Gr51-) | Gr51-",
                        "groep | 100003 An Bos (Gr00-) | Gr00-", "groep | 100004 An Bos ()"}),
              Vondsten());
}

TEST_F(ControleTest, DubbeleNBBnummersInDeImportgroep)
{
    ZetLeden({{"100001", "Gr05-", "Bos", "", "", "123"},
              {"100002", "Gr01-", "Bos", "", "", "123"},
              {"100003", "Gr05-", "Eik", "", "", " 0123"},
              {"100004", "Gr05-", "Es"},
              {"100005", "Gr05-", "Es"}});
    EXPECT_EQ(Regels_t{"NBBnr | 100003 An Eik (Gr05-) | 0123 | 100001 An Bos (Gr05-)"}, Vondsten());
}

// ---------------------------------------------------------------- pairs

TEST_F(ControleTest, ParenMetSpelersDieErNietMeerZijn)
{
    ZetLeden({{"100001", "Gr01-", "Bos", "", "A"},
              {"100002", "Gr01-", "Eik", "OVERL", "A"},
              {"100003", "Gr01-", "Es", "", "B"}});
    ZetParen("Gr01-a.txt", "100001-100002#100999-100001#100003-100001#\r\n");
    geheugen.Zet("S\\RVDparen.txt", "100003-100998#100002-100003#");
    EXPECT_EQ(
        (Regels_t{"paar onbekend | S\\Parenmap\\Gr01-a.txt | 100999-100001 | 100999",
                  "paar onbekend | S\\RVDparen.txt | 100003-100998 | 100998",
                  "paar dood | S\\Parenmap\\Gr01-a.txt | 100001-100002 | 100002 An Eik (Gr01-)",
                  "paar dood | S\\RVDparen.txt | 100002-100003 | 100002 An Eik (Gr01-)",
                  "paar elders | S\\Parenmap\\Gr01-a.txt | 100003-100001 | 100003 An Es (Gr01-)"}),
        Vondsten());
}

TEST_F(ControleTest, AlleenTekstbestandenInDeParenmap)
{
    ZetParen("Gr01-.bak", "100999-100998#");
    ZetParen("Gr01-.TXT", "100001-100002#x#");
    EXPECT_EQ(Regels_t{"onleesbaar | S\\Parenmap\\Gr01-.TXT | er staat iets anders in dan paren"},
              Vondsten());
    EXPECT_EQ(1U, Voer().telling.parenbestanden);
}

// ---------------------------------------------------------------- sessions

TEST_F(ControleTest, SleutelsVanNiemandEnZwevendeNamen)
{
    ZetZitting("Een", "N01 100001 - 100999\r\nN02 Jan Tol - 100999\r\nN03 0 - 1234567\r\n",
               "1,\"A\",\"N1\",\"100001-100999\",50,0,\"\"\r\n"
               "2,\"A\",\"N2\",\"Jan Tol-100999\",50,0,\"\"\r\n");
    geheugen.Zet("C\\Ladder\\Compdata.txt", "");
    geheugen.Zet("C\\Ladder\\Ronde-1\\Zitting-2\\Spelers.txt", "N01 100001 - 100002\r\n");
    geheugen.Zet("C\\Ladder\\Ronde-1\\Zitting-2\\PercZit-2.txt",
                 "2,\"A\",\"O12\",\"100998-100002\",50,0,\"\"\r\n");
    EXPECT_EQ((Regels_t{"zitting | Een N01, N02 | 100999", "zitting | Ladder R1 Z2 O12 | 100998",
                        "zwevend | Een N02 | Jan Tol"}),
              Vondsten());
}

/// Without the whole register nobody can say which keys are nobody's.
TEST_F(ControleTest, ZonderAlleSpelersGeenSleutelsVanNiemand)
{
    ZetSpelers("HKEY=100002\r\n1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n2,100002,Gr01-,Bep\r\n");
    ZetParen("Gr01-.txt", "100001-100002#");
    ZetZitting("Een", "N01 100001 - 100002\r\nN02 Jan - 100001\r\n");
    EXPECT_EQ(
        (Regels_t{"onleesbaar | S\\RVDspelers.txt:3 | deze regel heeft 4 velden in plaats van 18",
                  "zwevend | Een N02 | Jan"}),
        Vondsten());
    EXPECT_FALSE(Voer().IsTeVerhogen());
}

// ---------------------------------------------------------------- files

TEST_F(ControleTest, WatErInHetSpelerbestandOntbreekt)
{
    const Tekst bos = "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";
    for (const auto& [tekst, vondst] : std::vector<std::pair<Tekst, std::string>>{
             {bos, " | de regel HKEY= met de hoogste sleutel ontbreekt"},
             {"HKEY=x\r\n" + bos, ":1 | achter HKEY= staat geen getal"},
             {"HKEY=99999999999\r\n" + bos, ":1 | achter HKEY= staat een getal dat niet past"},
             {"HKEY=100002\r\n1,100001,Gr01-,An,,Bos,\r\n",
              ":2 | deze regel heeft 7 velden in plaats van 18"}}) {
        ZetSpelers(tekst);
        const Regels_t vondsten = Vondsten();
        ASSERT_FALSE(vondsten.empty()) << tekst;
        EXPECT_EQ("onleesbaar | S\\RVDspelers.txt" + vondst, vondsten.front());
    }
}

TEST_F(ControleTest, BestandenDieNietGelezenKunnenWorden)
{
    geheugen.Zet("S\\RVDGroepen.txt", "Gr01-\r\n");
    ZetParen("Gr01-.txt", "100001-100002#");
    ZetZitting("Een", "N01 100001 - 100002\r\n", "1\r\n");
    geheugen.Zet("C\\Ladder\\Compdata.txt", "");
    for (const char* pad :
         {"S\\RVDspelers.txt", "S\\RVDGroepen.txt", "S\\Parenmap", "S\\Parenmap\\Gr01-.txt", "Z",
          "Z\\Een\\Zitdata.txt", "Z\\Een\\Spelers.txt", "Z\\Een\\PercZit.txt", "C", "C\\Ladder"}) {
        schijf.Vooraf([pad](const Pad& welk) { return welk != pad; });
        const Regels_t vondsten = Vondsten();
        ASSERT_FALSE(vondsten.empty()) << pad;
        EXPECT_TRUE(vondsten.front().starts_with(std::string("onleesbaar | ") + pad + " | "))
            << vondsten.front();
    }
}

TEST_F(ControleTest, BestandenMetIetsAnders)
{
    geheugen.Zet("S\\RVDGroepen.txt", "Gr01-\r\nHallo\r\n");
    ZetZitting("Een", "N01 100001 - 100002\r\n",
               "1,\"A\",\"N1\",\"100001-100002\",50,0,\"\"\r\n1,2\r\n3\r\n");
    EXPECT_EQ((Regels_t{"onleesbaar | S\\RVDGroepen.txt | er staat iets anders in dan groepsnamen",
                        "onleesbaar | Z\\Een\\PercZit.txt | regels die geen uitslag van zeven "
                        "velden zijn: 2"}),
              Vondsten());
}

TEST_F(ControleTest, MappenDieErNietZijnZijnLeeg)
{
    mappen.ZITMAP.clear();
    mappen.COMMAP = "weg";
    EXPECT_EQ(Regels_t(), Vondsten());
}

TEST_F(ControleTest, TekensDieDeCodepaginaNietKent)
{
    ZetLeden({{"100001"}, {"100002", "Gr01-", "B\x81s\x9D"}, {"100003", "Gr01-", "R\xE9my"}});
    ZetZitting("Een", "N01 100001 - 100002\r\nN02 J\x90n - 100001\r\n");
    EXPECT_EQ((Regels_t{"zwevend | Een N02 | J\x90n", "tekens | S\\RVDspelers.txt:3 | 81, 9D",
                        "tekens | Z\\Een\\Spelers.txt:2 | 90"}),
              Vondsten());
}

TEST_F(ControleTest, BestandenInUtf8)
{
    geheugen.Zet("S\\RVDGroepen.txt", "Gr01-Caf\xC3\xA9\r\n");
    EXPECT_EQ(Regels_t{"utf8 | S\\RVDGroepen.txt"}, Vondsten());
}

// ---------------------------------------------------------------- the walk

TEST_F(ControleTest, ElkBestandWordtEenKeerGelezen)
{
    geheugen.Zet("S\\RVDGroepen.txt", "Gr01-\r\n");
    ZetParen("Gr01-.txt", "100001-100002#");
    ZetZitting("Een", "N01 100001 - 100002\r\n", "1,\"A\",\"N1\",\"Jan-100002\",50,0,\"\"\r\n");
    std::map<Pad, int> keren;
    schijf.Vooraf([&](const Pad& pad) {
        ++keren[pad];
        return true;
    });
    (void)Voer();
    // A stamp, which tells its size, and the reading.
    EXPECT_LE(keren["S\\RVDspelers.txt"], 2);
    EXPECT_LE(keren["S\\Parenmap\\Gr01-.txt"], 2);
    EXPECT_LE(keren["Z\\Een\\Spelers.txt"], 2);
    EXPECT_LE(keren["Z\\Een\\PercZit.txt"], 2);
}

TEST_F(ControleTest, HetKanWordenGestopt)
{
    for (const char* naam : {"Een", "Twee", "Zes"})
        ZetZitting(naam, "N01 Jan - 100002\r\n");
    std::vector<std::size_t> gemeld;
    const Controleuitslag uitslag = Voer([&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_EQ(3U, geheel);
        gemeld.push_back(gedaan);
        return gedaan < 2;
    });
    EXPECT_EQ((std::vector<std::size_t>{0, 1, 2}), gemeld);
    EXPECT_TRUE(uitslag.gestopt);
    EXPECT_EQ(2U, uitslag.vondsten.size());
    EXPECT_EQ(2U, uitslag.telling.zittingen);
}
