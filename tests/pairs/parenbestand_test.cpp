#include "pairs/parenbestand.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

const Pad gr03 = "C:\\club\\Spelers\\Parenmap\\Gr03-Dinsdag.txt";
const Pad rvdparen = "C:\\club\\Spelers\\RVDparen.txt";

Mappen Proefmappen()
{
    Mappen mappen;
    mappen.SPEMAP = "C:\\club\\Spelers";
    return mappen;
}

struct ParenbestandTest : testing::Test {
    ParenbestandTest() { schijf.ZetMap("C:\\club\\Spelers\\Parenmap"); }

    [[nodiscard]] Parenlezing Lees(Tekstblik keuze = "Gr03-Dinsdag")
    {
        return LeesParenbestand(schijf, mappen, keuze).value();
    }
    [[nodiscard]] Uitkomst<void> Bewaar(const std::vector<Tekst>& regels,
                                        const std::optional<Tekst>& gelezen = std::nullopt)
    {
        return BewaarParen(schijf, mappen, "Gr03-Dinsdag", regels, gelezen);
    }
    [[nodiscard]] std::vector<Tekst> Kopieen()
    {
        std::vector<Tekst> uit;
        for (const Pad& pad : schijf.AlleBestanden()) {
            if (pad.find("Reservekopie") != Pad::npos)
                uit.push_back(*schijf.Inhoud(pad));
        }
        return uit;
    }

    GeheugenSchijf schijf;
    Mappen mappen = Proefmappen();
};

const Tekst eenPaar = "100234 Faiskuza          +100417 Beiglim";

} // namespace

// ---- Reading -----------------------------------------------------------------------------------

/// Meant: only the last line counts, and the seventh character is not looked at.
TEST_F(ParenbestandTest, DePaartekensVanDeLaatsteRegel)
{
    const std::vector<std::pair<Tekst, Paartekens>> bestanden{
        {"100234-100417#100301-100222#\r\n", {"100234-100417", "100301-100222"}},
        {"100234-100417", {"100234-100417"}},
        {"100234-100417#\r\n\r\n", {}},
        {"100234-100417#\r\n100301-100222#\r\n", {"100301-100222"}},
        {"100234-100417#\n100301-100222#", {"100301-100222"}},
        {"1002341004170#\r\n", {"1002341004170"}},
        {"#100234-10041#100234-100417##100301-1002223#abc#100301-100222# #\r\n",
         {"100234-100417", "100301-100222"}}};
    for (const auto& [inhoud, paren] : bestanden) {
        schijf.Zet(gr03, inhoud);
        EXPECT_EQ(paren, Lees().paren) << inhoud;
    }
}

TEST_F(ParenbestandTest, EenOntbrekendOfLeegBestandHeeftGeenParen)
{
    EXPECT_EQ(Paartekens(), Lees().paren);
    EXPECT_EQ(std::nullopt, Lees().bestandstekst);
    schijf.Zet(gr03, "");
    EXPECT_EQ(Paartekens(), Lees().paren);
    EXPECT_EQ(Tekst(), Lees().bestandstekst);
}

TEST_F(ParenbestandTest, DeGroepZonderSubgroepHeeftEenBestandMetAlleenDeCode)
{
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr07-.txt", "100234-100417#\r\n");
    EXPECT_EQ(Paartekens{"100234-100417"}, Lees("Gr07-").paren);
    ASSERT_TRUE(BewaarParen(schijf, mappen, "Gr07-", std::vector<Tekst>{eenPaar, eenPaar},
                            Lees("Gr07-").bestandstekst));
    EXPECT_EQ("100234-100417#100234-100417#\r\n",
              schijf.Inhoud("C:\\club\\Spelers\\Parenmap\\Gr07-.txt"));
}

TEST_F(ParenbestandTest, EenBestandDatNietTeLezenIs)
{
    schijf.Zet(gr03, "100234-100417#\r\n");
    FalendeSchijf stuk(schijf);
    stuk.FaalVanaf(1);
    const auto lezing = LeesParenbestand(stuk, mappen, "Gr03-Dinsdag");
    ASSERT_FALSE(lezing);
    EXPECT_EQ(Foutsoort::Geweigerd, lezing.error().soort);
}

// ---- Names -------------------------------------------------------------------------------------

TEST_F(ParenbestandTest, TekensDieNietInEenBestandsnaamKunnen)
{
    EXPECT_EQ("", GeweigerdeTekens("Gr03-Dinsdag & co (A+B)"));
    EXPECT_EQ("/:", GeweigerdeTekens("Gr03-A/B:C/D"));
    EXPECT_EQ("\\*?\"<>|\t", GeweigerdeTekens("Gr03-\\*?\"<>|\t"));
    EXPECT_EQ(gr03, Parenbestand(mappen, "Gr03-Dinsdag"));
    EXPECT_EQ(std::nullopt, Parenbestand(mappen, "Gr03-A/B"));
}

TEST_F(ParenbestandTest, ZoNaamHeeftGeenParenEnWordtNietBewaard)
{
    schijf.ZetMap("C:\\club\\Spelers\\Parenmap\\Gr03-A");
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr03-A\\B.txt", "100234-100417#\r\n");
    EXPECT_EQ(Paartekens(), Lees("Gr03-A\\B").paren);
    const auto bewaard =
        BewaarParen(schijf, mappen, "Gr03-A\\B", std::vector<Tekst>{eenPaar}, std::nullopt);
    ASSERT_FALSE(bewaard);
    EXPECT_EQ(Foutsoort::Geweigerd, bewaard.error().soort);
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud("C:\\club\\Spelers\\Parenmap\\Gr03-A\\B.txt"));
}

// ---- Writing -----------------------------------------------------------------------------------

TEST_F(ParenbestandTest, ParenInDeVolgordeVanDeLijst)
{
    ASSERT_TRUE(
        Bewaar({"100301 Zon          +100222 Aap", eenPaar, "100500 ??????          +100501 X"}));
    EXPECT_EQ("100301-100222#100234-100417#100500-100501#\r\n", schijf.Inhoud(gr03));
}

/// Meant: a list without pairs leaves the file as it was.
TEST_F(ParenbestandTest, ZonderParenBlijftHetBestandZoalsHetWas)
{
    schijf.Zet(gr03, "100234-100417#\r\n");
    ASSERT_TRUE(Bewaar({}, "100234-100417#\r\n"));
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    schijf.Zet(gr03, "");
    ASSERT_TRUE(Bewaar({}));
    EXPECT_EQ("", schijf.Inhoud(gr03));
}

TEST_F(ParenbestandTest, EenRegelZonderPlusBewaartNiets)
{
    schijf.Zet(gr03, "100301-100222#\r\n");
    const auto bewaard = Bewaar({eenPaar, "100234 Faiskuza"}, "100301-100222#\r\n");
    ASSERT_FALSE(bewaard);
    EXPECT_EQ(Foutsoort::Beschadigd, bewaard.error().soort);
    EXPECT_EQ("100301-100222#\r\n", schijf.Inhoud(gr03));
}

TEST_F(ParenbestandTest, WatBewaardIsKomtTerug)
{
    schijf.Zet(gr03, "1002341004170#100301-100222#\r\n");
    ASSERT_TRUE(Bewaar({"100234 A          +004170 B", "100301 C          +100222 D"},
                       Lees().bestandstekst));
    EXPECT_EQ((Paartekens{"100234-004170", "100301-100222"}), Lees().paren);
}

TEST_F(ParenbestandTest, EenGewoonBestandWordtZonderKopieVervangen)
{
    schijf.Zet(gr03, "100301-100222#100234-100417#\r\n");
    ASSERT_TRUE(Bewaar({eenPaar}, Lees().bestandstekst));
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>(), Kopieen());
}

TEST_F(ParenbestandTest, WatNietGelezenIsKomtInEenKopie)
{
    for (const char* oud : {"100301-100222#\r\n100234-100417#\r\n", "100301-100222#kapot#\r\n",
                            "1003011002220#\r\n", "iets anders"}) {
        schijf.Zet(gr03, oud);
        ASSERT_TRUE(Bewaar({eenPaar}, Lees().bestandstekst));
        ASSERT_FALSE(Kopieen().empty()) << oud;
        EXPECT_EQ(oud, Kopieen().back());
        for (const Pad& pad : schijf.AlleBestanden()) {
            if (pad.find("Reservekopie") != Pad::npos) {
                ASSERT_TRUE(schijf.Verwijder(pad));
            }
        }
    }
}

TEST_F(ParenbestandTest, EenBestandDatIntussenVeranderdeKomtInEenKopie)
{
    schijf.Zet(gr03, "100301-100222#\r\n");
    const auto gelezen = Lees().bestandstekst;
    schijf.Zet(gr03, "100500-100501#\r\n");
    ASSERT_TRUE(Bewaar({eenPaar}, gelezen));
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>{"100500-100501#\r\n"}, Kopieen());
}

TEST_F(ParenbestandTest, BijElkeWeigeringVanDeSchijfIsHetOudeOfHetNieuweBestandHeel)
{
    const Tekst oud = "100301-100222#\r\n";
    for (int bij = 1;; ++bij) {
        schijf.Zet(gr03, oud);
        FalendeSchijf stuk(schijf, FalendeSchijf::Telt::AlleenSchrijven);
        stuk.FaalBij(bij);
        const auto bewaard =
            BewaarParen(stuk, mappen, "Gr03-Dinsdag", std::vector<Tekst>{eenPaar}, oud);
        const Tekst nu = schijf.Inhoud(gr03).value_or("weg");
        EXPECT_TRUE(nu == oud || nu == "100234-100417#\r\n") << nu;
        if (bewaard) {
            EXPECT_GT(bij, 5);
            EXPECT_EQ("100234-100417#\r\n", nu);
            break;
        }
    }
}

// ---- RVDparen.txt ------------------------------------------------------------------------------

namespace {

struct RVDparenTest : ParenbestandTest {
    [[nodiscard]] Paartekens Importeer(Tekstblik subgroep)
    {
        return ImporteerRVDparen(schijf, mappen, "Gr03-Clubleden", subgroep, tabel).value();
    }

    Spelertabel tabel = MaakTabel({{"100234", "Gr03-", "An", "", "Bos", "Dinsdag", ""},
                                   {"100417", "Gr03-", "Bea", "", "Cock", "DINSDAG", ""},
                                   {"100301", "Gr03-", "Cor", "", "Dam", "dinsdag", ""},
                                   {"100222", "Gr03-", "Dirk", "", "Eik", "Maandag", ""},
                                   {"100500", "Gr02-", "Els", "", "Fuik", "Dinsdag", ""},
                                   {"0100234", "Gr03-", "Fop", "", "Gans", "Dinsdag", ""},
                                   {"100600", "Gr03-", "Gijs", "", "Haan", "", ""},
                                   {"100601", "Gr03-", "Han", "", "Iep", "", ""}});
};

} // namespace

TEST_F(RVDparenTest, DeParenVanEenGroepEnSubgroep)
{
    schijf.Zet(rvdparen, "100234-100417#100301-100222#100417-100301#100500-100234#"
                         "100234-100600#100600-100601#\r\n");
    EXPECT_EQ((Paartekens{"100234-100417", "100417-100301"}), Importeer("dinsDAG"));
    EXPECT_EQ(Paartekens{"100600-100601"}, Importeer(""));
    EXPECT_EQ(Paartekens(), Importeer("Maandag"));
    EXPECT_EQ(Paartekens(), Importeer("Woensdag"));
}

TEST_F(RVDparenTest, DeVolgordeBlijftEnHetMiddenteken)
{
    schijf.Zet(rvdparen, "100417x100234#100417-100301#\r\n");
    EXPECT_EQ((Paartekens{"100417-100234", "100417-100301"}), Importeer("Dinsdag"));
}

/// The key must be the whole text of the column.
TEST_F(RVDparenTest, DeSleutelMoetPreciesKloppen)
{
    schijf.Zet(rvdparen, "010023-100417#100234-100234#\r\n");
    EXPECT_EQ(Paartekens{"100234-100234"}, Importeer("Dinsdag"));
}

TEST_F(RVDparenTest, EenOverledenSpelerTeltMee)
{
    tabel.ZetCel(1, Kolom::Status, "overleden");
    schijf.Zet(rvdparen, "100234-100417#\r\n");
    EXPECT_EQ(Paartekens{"100234-100417"}, Importeer("Dinsdag"));
}

TEST_F(RVDparenTest, ZonderBestandGeenParen)
{
    EXPECT_EQ(Paartekens(), Importeer("Dinsdag"));
    schijf.Zet(rvdparen, "100234-100417#\r\n");
    FalendeSchijf stuk(schijf);
    stuk.FaalVanaf(1);
    EXPECT_FALSE(ImporteerRVDparen(stuk, mappen, "Gr03-", "Dinsdag", tabel));
}
