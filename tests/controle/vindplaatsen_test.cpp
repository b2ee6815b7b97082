#include "controle/vindplaatsen.h"

#include <gtest/gtest.h>

#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

class VindplaatsenTest : public testing::Test {
  protected:
    VindplaatsenTest()
    {
        mappen.SPEMAP = "S:";
        mappen.ZITMAP = "Z:";
        mappen.COMMAP = "C:";
        schijf.ZetMap("S:\\Parenmap");
        schijf.ZetMap("Z:");
        schijf.ZetMap("C:");
    }
    void ZetZitting(const Tekst& lijst, const Tekst& percentages = {})
    {
        schijf.Zet("Z:\\Di\\Zitdata.txt", "");
        schijf.Zet(spelers, lijst);
        if (!percentages.empty())
            schijf.Zet(uitslag, percentages);
    }
    [[nodiscard]] Vindplaatsen Gelezen() { return {schijf, mappen, {}}; }
    /// Each place of 100001, that is to become 100002, on a line.
    [[nodiscard]] Tekst Van()
    {
        Tekst uit;
        for (const Vindplaats& plaats : Gelezen().Van("100001", "100002")) {
            if (plaats.zitting)
                uit += plaats.zitting->naam + "/" + std::to_string(plaats.zitting->ronde) + "/" +
                       std::to_string(plaats.zitting->zitting) + " " + plaats.zitting->plaatsen;
            uit += plaats.paar;
            for (const auto& bestand : plaats.bestanden)
                uit += " " + bestand.pad;
            constexpr std::array bezwaren{"", " ander paar", " zelfde paar", " beide"};
            uit.append(bezwaren.at(static_cast<std::size_t>(plaats.bezwaar))).append("\n");
        }
        return uit;
    }
    /// Puts the other key there, wherever that can be.
    void Vervang()
    {
        for (const Vindplaats& plaats : Gelezen().Van("100001", "100002")) {
            if (plaats.bezwaar != Bezwaar::Beide) {
                EXPECT_TRUE(VervangSleutel(schijf, plaats, "100001", "100002"));
            }
        }
    }
    [[nodiscard]] Tekst Inhoud(const Pad& pad) const { return schijf.Inhoud(pad).value(); }

    GeheugenSchijf schijf;
    Mappen mappen;
    const Pad paren = "S:\\Parenmap\\Gr01-A.txt";
    const Pad spelers = "Z:\\Di\\Spelers.txt";
    const Pad uitslag = "Z:\\Di\\PercZit.txt";
};

} // namespace

TEST_F(VindplaatsenTest, NergensIetsIsGeenFout)
{
    EXPECT_EQ("", Van());
    EXPECT_TRUE(Gelezen().Fouten().empty());
}

TEST_F(VindplaatsenTest, InParenTotOpDeByte)
{
    schijf.Zet(paren, "100003-100001#100004-100005#rommel#1000011000012#100001-100006#");
    schijf.Zet("S:\\RVDparen.txt", "100001-100003#\n");
    schijf.Zet("S:\\Parenmap\\Gr02-.TXT", "100008-100009#\r\n");
    EXPECT_EQ("100003-100001 " + paren + "\n1000011000012 " + paren + "\n100001-100006 " + paren +
                  "\n100001-100003 S:\\RVDparen.txt\n",
              Van());
    Vervang();
    EXPECT_EQ("100003-100002#100004-100005#rommel#1000021000012#100002-100006#", Inhoud(paren));
    EXPECT_EQ("100002-100003#\n", Inhoud("S:\\RVDparen.txt"));
    EXPECT_EQ("", Van());
}

TEST_F(VindplaatsenTest, EenPaarVanBeideBlijftEnEenAnderPaarWordtGenoemd)
{
    schijf.Zet(paren, "100001-100002#100003-100001#");
    EXPECT_EQ("100001-100002 " + paren + " beide\n100003-100001 " + paren + " ander paar\n", Van());
    Vervang();
    EXPECT_EQ("100001-100002#100003-100002#", Inhoud(paren));
}

/// Whoever stands first in it; and with two of the key that goes.
TEST_F(VindplaatsenTest, EenPaarDatErAlStaatKomtErGeenTweedeKeer)
{
    schijf.Zet(paren, "100001-100003#100004-100005#100003-100002#100002-100006#");
    EXPECT_EQ("100001-100003 " + paren + " zelfde paar\n", Van());
    Vervang();
    EXPECT_EQ("100004-100005#100003-100002#100002-100006#", Inhoud(paren));
    schijf.Zet(paren, "100001-100003#100004-100005#100003-100001");
    EXPECT_EQ("100001-100003 " + paren + "\n100003-100001 " + paren + "\n", Van());
    Vervang();
    EXPECT_EQ("100002-100003#100004-100005#", Inhoud(paren));
}

/// As if all were read anew, though no other file is read.
TEST_F(VindplaatsenTest, AlleenDeBestandenVanDezePlaatsenOpnieuwGelezen)
{
    schijf.Zet(paren, "100001-100003#");
    schijf.Zet("S:\\RVDparen.txt", "100007-100008#\n");
    ZetZitting("N01 100001 - 100003\r\n", "1,A,O7,100001-100003,50,0,x\r\n");
    Vindplaatsen plaatsen = Gelezen();
    const auto voor = plaatsen.Van("100001", "100002");
    schijf.Zet(paren, "100003-100001#100002-100009#");
    schijf.Zet(uitslag, "1,A,O7,100004-100001,50,0,x\r\n");
    schijf.Zet("S:\\RVDparen.txt", "100001-100008#\n");
    plaatsen.Herlees(schijf, voor);
    EXPECT_EQ("100003-100001", plaatsen.Van("100001", "100002").at(0).paar);
    EXPECT_EQ(2U, plaatsen.Van("100001", "100002").size());
    EXPECT_EQ(1U, plaatsen.Van("100007", "100002").size()) << "not read again";
    schijf.Zet("S:\\RVDparen.txt", "100007-100008#\n");
    for (const char* key : {"100001", "100003", "100004", "100009", "100008"})
        EXPECT_EQ(Gelezen().Van(key, "100002"), plaatsen.Van(key, "100002")) << key;
}

TEST_F(VindplaatsenTest, InZittingenTotOpDeByte)
{
    ZetZitting("N05 Jansen -100001\r\n\"O12 100001 - 100003\" , N06 100004-  100005\nZ1  Aa-Bos - "
               "100001\r\nZ2 1000011\r",
               "1,\"A\",\"N5\",\"Jansen-100001\",52.08,0,\"100001\"\r\nrommel 100001\r\n");
    EXPECT_EQ("Di/0/0 N05, O12, Z1 " + spelers + " " + uitslag + "\n", Van());
    Vervang();
    EXPECT_EQ("N05 Jansen -100002\r\n\"O12 100002 - 100003\" , N06 100004-  100005\nZ1  Aa-Bos - "
              "100002\r\nZ2 1000011\r",
              Inhoud(spelers));
    EXPECT_EQ("1,\"A\",\"N5\",\"Jansen-100002\",52.08,0,\"100001\"\r\nrommel 100001\r\n",
              Inhoud(uitslag));
}

TEST_F(VindplaatsenTest, InElkeZittingVanEenCompetitie)
{
    schijf.Zet("C:\\Ladder\\Compdata.txt", "");
    schijf.Zet("C:\\Ladder\\Ronde-1\\Zitting-2\\Spelers.txt", "N01 100001 - 100003\r\n");
    schijf.Zet("C:\\Ladder\\Ronde-3\\Zitting-1\\PercZit-1.txt", "1,A,O7,100004-100001,50,0,x\r\n");
    EXPECT_EQ("Ladder/1/2 N01 C:\\Ladder\\Ronde-1\\Zitting-2\\Spelers.txt\n"
              "Ladder/3/1 O7 C:\\Ladder\\Ronde-3\\Zitting-1\\PercZit-1.txt\n",
              Van());
    Vervang();
    EXPECT_EQ("1,A,O7,100004-100002,50,0,x\r\n",
              Inhoud("C:\\Ladder\\Ronde-3\\Zitting-1\\PercZit-1.txt"));
}

/// In whichever of its two files.
TEST_F(VindplaatsenTest, EenZittingMetBeideSleutelsBlijft)
{
    ZetZitting("N01 100001 - 100003\r\n", "1,A,O7,100004-100002,50,0,x\r\n");
    EXPECT_EQ("Di/0/0 N01 " + spelers + " beide\n", Van());
}

TEST_F(VindplaatsenTest, WatErIntussenBijKwamWordtNietOverschreven)
{
    ZetZitting("N01 100001 - 100003\r\n");
    const auto plaatsen = Gelezen().Van("100001", "100002");
    ZetZitting("N01 100001 - 100003\r\nO02 100002 - 100009\r\n");
    const auto uit = VervangSleutel(schijf, plaatsen.at(0), "100001", "100002");
    ASSERT_FALSE(uit);
    EXPECT_EQ(Foutsoort::Gewijzigd, uit.error().soort);
    EXPECT_EQ("N01 100001 - 100003\r\nO02 100002 - 100009\r\n", Inhoud(spelers));
    ZetZitting("N01 Bos - 100003\r\n");
    EXPECT_TRUE(VervangSleutel(schijf, plaatsen.at(0), "100001", "100002"));
    EXPECT_EQ("N01 Bos - 100003\r\n", Inhoud(spelers));
}

TEST_F(VindplaatsenTest, WatNietTeLezenIsWordtGenoemd)
{
    ZetZitting("N01 100001 - 100003\r\n");
    FalendeSchijf falend(schijf);
    std::size_t fouten = 0;
    for (int stap = 1; stap < 30; ++stap) {
        falend.FaalBij(stap);
        fouten += Vindplaatsen(falend, mappen, {}).Fouten().size();
    }
    EXPECT_GT(fouten, 3U);
    Tekst veel;
    for (int i = 0; i < 60'000; ++i)
        veel += "N01 100001 - 100003\r\n";
    ZetZitting(veel);
    const Vindplaatsen plaatsen = Gelezen();
    ASSERT_EQ(1U, plaatsen.Fouten().size());
    EXPECT_EQ("Z:\\Di\\Spelers.txt", plaatsen.Fouten()[0].bestand);
}
