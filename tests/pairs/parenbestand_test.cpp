#include "pairs/parenbestand.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "register/geschiedenis.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

const Pad gr03 = "C:\\club\\Spelers\\Parenmap\\Gr03-Dinsdag.txt";
const Pad rvdparen = "C:\\club\\Spelers\\RVDparen.txt";

struct ParenbestandTest : testing::Test {
    ParenbestandTest()
    {
        schijf.ZetMap("C:\\club\\Spelers\\Parenmap");
        mappen.RVDMAP = "C:\\club";
        mappen.SPEMAP = "C:\\club\\Spelers";
    }

    [[nodiscard]] std::optional<Tekst> Lees(Tekstblik keuze = "Gr03-Dinsdag")
    {
        return LeesParenbestand(schijf, mappen, keuze).value();
    }
    [[nodiscard]] Paartekens Tekens(Tekstblik keuze = "Gr03-Dinsdag")
    {
        return PaartekensUit(Lees(keuze).value());
    }
    [[nodiscard]] Uitkomst<void> Bewaar(const std::vector<Tekst>& regels,
                                        const std::optional<Tekst>& gelezen = std::nullopt)
    {
        return BewaarParen(schijf, mappen, "Gr03-Dinsdag", regels, gelezen).gelukt;
    }
    /// While another program left this in the file since it was read.
    [[nodiscard]] Bewaring BewaarTerwijl(const Tekst& gelezen, const std::vector<Tekst>& regels,
                                         const Tekst& daar)
    {
        schijf.Zet(gr03, daar);
        return BewaarParen(schijf, mappen, "Gr03-Dinsdag", regels, std::optional(gelezen));
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
    Mappen mappen;
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
        EXPECT_EQ(paren, Tekens()) << inhoud;
    }
}

TEST_F(ParenbestandTest, EenOntbrekendOfLeegBestandHeeftGeenParen)
{
    EXPECT_EQ(std::nullopt, Lees());
    schijf.Zet(gr03, "");
    EXPECT_EQ("", Lees());
    EXPECT_EQ(Paartekens(), Tekens());
}

TEST_F(ParenbestandTest, DeGroepZonderSubgroepHeeftEenBestandMetAlleenDeCode)
{
    schijf.Zet("C:\\club\\Spelers\\Parenmap\\Gr07-.txt", "100234-100417#\r\n");
    EXPECT_EQ(Paartekens{"100234-100417"}, Tekens("Gr07-"));
    ASSERT_TRUE(
        BewaarParen(schijf, mappen, "Gr07-", std::vector<Tekst>{eenPaar, eenPaar}, Lees("Gr07-"))
            .gelukt);
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
    EXPECT_EQ(std::nullopt, Lees("Gr03-A\\B"));
    const auto bewaard =
        BewaarParen(schijf, mappen, "Gr03-A\\B", std::vector<Tekst>{eenPaar}, std::nullopt).gelukt;
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
    ASSERT_TRUE(Bewaar({"100234 A          +004170 B", "100301 C          +100222 D"}, Lees()));
    EXPECT_EQ((Paartekens{"100234-004170", "100301-100222"}), Tekens());
}

TEST_F(ParenbestandTest, EenGewoonBestandWordtZonderKopieVervangen)
{
    schijf.Zet(gr03, "100301-100222#100234-100417#\r\n");
    ASSERT_TRUE(Bewaar({eenPaar}, Lees()));
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>(), Kopieen());
}

TEST_F(ParenbestandTest, WatNietGelezenIsKomtInEenKopie)
{
    for (const char* oud : {"100301-100222#\r\n100234-100417#\r\n", "100301-100222#kapot#\r\n",
                            "1003011002220#\r\n", "iets anders"}) {
        const auto voor = Kopieen().size();
        schijf.Zet(gr03, oud);
        ASSERT_TRUE(Bewaar({eenPaar}, Lees()));
        ASSERT_EQ(voor + 1, Kopieen().size()) << oud;
        EXPECT_EQ(1, std::ranges::count(Kopieen(), oud)) << oud;
    }
}

TEST_F(ParenbestandTest, DeParenVanEenAnderProgrammaKomenMee)
{
    const Bewaring bewaard =
        BewaarTerwijl("100301-100222#\r\n", {eenPaar, "100301 X          +100222 Y"},
                      "100301-100222#100500-100501#\r\n");
    ASSERT_TRUE(bewaard.gelukt);
    EXPECT_EQ("100301-100222#100500-100501#100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>{"100500-100501"}, bewaard.overgenomen);
    EXPECT_EQ(std::vector<Tekst>(), Kopieen());
}

/// The list of the window has another order than the file; that alone is no change.
TEST_F(ParenbestandTest, WieNietsVeranderdeLaatHetBestandVanDeAnder)
{
    const Bewaring bewaard =
        BewaarTerwijl("100301-100222#100234-100417#\r\n", {eenPaar, "100301 X          +100222 Y"},
                      "100500-100501#100301-100222#\r\n");
    ASSERT_TRUE(bewaard.gelukt);
    EXPECT_EQ("100500-100501#100301-100222#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ((std::vector<Tekst>{"100500-100501", "100234-100417"}), bewaard.overgenomen);
    // A file that came meanwhile is no less another program's.
    ASSERT_TRUE(BewaarTerwijl("", {eenPaar}, "100500-100501#\r\n").gelukt);
    EXPECT_EQ("100500-100501#100234-100417#\r\n", schijf.Inhoud(gr03));
}

TEST_F(ParenbestandTest, EenSpelerDieOokEldersGepaardIsKomtInEenKopie)
{
    const Bewaring bewaard = BewaarTerwijl("", {eenPaar}, "100417-100500#\r\n");
    ASSERT_TRUE(bewaard.gelukt);
    EXPECT_EQ("100417-100500#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>{"100234-100417"}, bewaard.botsingen);
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(bewaard.onze));
    EXPECT_EQ(std::vector<Tekst>{"100234-100417#\r\n"}, Kopieen());
}

TEST_F(ParenbestandTest, WatEenAnderBeschadigdeKomtInEenKopieDieGenoemdWordt)
{
    for (const char* stuk : {"100301-100222#1002", "100301-100222#\r\nx", "iets anders"}) {
        const Bewaring bewaard = BewaarTerwijl("100301-100222#\r\n", {eenPaar}, stuk);
        ASSERT_TRUE(bewaard.gelukt);
        EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
        EXPECT_EQ(stuk, schijf.Inhoud(bewaard.andere));
        EXPECT_EQ(std::vector<Tekst>(), bewaard.overgenomen);
    }
    // Emptied, or gone: there is nothing to bring together, and no pair is lost.
    ASSERT_TRUE(BewaarTerwijl("100234-100417#\r\n", {eenPaar}, "\r\n").gelukt);
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    const auto gelezen = Lees();
    ASSERT_TRUE(schijf.Verwijder(gr03));
    ASSERT_TRUE(Bewaar({eenPaar}, gelezen));
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(3U, Kopieen().size());
}

TEST_F(ParenbestandTest, WatNietTeLezenWasWordtVervangenNaEenKopie)
{
    schijf.Zet(gr03, "100301-100222#\r\n");
    const Parenlezing mislukt = Mislukt({.soort = Foutsoort::Geweigerd});
    const Bewaring bewaard =
        BewaarParen(schijf, mappen, "Gr03-Dinsdag", std::vector<Tekst>{eenPaar}, mislukt);
    ASSERT_TRUE(bewaard.gelukt);
    EXPECT_EQ("", bewaard.andere) << "dat er een kopie komt, is bij het lezen al gezegd";
    EXPECT_EQ("100234-100417#\r\n", schijf.Inhoud(gr03));
    EXPECT_EQ(std::vector<Tekst>{"100301-100222#\r\n"}, Kopieen());
}

TEST_F(ParenbestandTest, VerwijderenMetEenKopieVanWatNietGelezenWas)
{
    const auto verwijder = [&](const Parenlezing& gelezen) {
        schijf.Zet(gr03, "100301-100222#\r\n");
        const auto kopie = VerwijderParen(schijf, mappen, "Gr03-Dinsdag", gelezen);
        EXPECT_EQ(std::nullopt, schijf.Inhoud(gr03));
        return kopie.value_or("mislukt");
    };
    EXPECT_EQ("", verwijder(std::optional<Tekst>("100301-100222#\r\n")));
    EXPECT_EQ(std::vector<Tekst>(), Kopieen());
    for (const auto& gelezen : {std::optional<Tekst>("100234-100417#\r\n"), std::optional<Tekst>()})
        EXPECT_EQ("100301-100222#\r\n", schijf.Inhoud(verwijder(gelezen)));

    schijf.Zet(gr03, "100301-100222#\r\n");
    FalendeSchijf stuk(schijf, FalendeSchijf::Telt::AlleenSchrijven);
    stuk.FaalBij(1);
    const auto kopie = VerwijderParen(stuk, mappen, "Gr03-Dinsdag", std::optional<Tekst>("anders"));
    ASSERT_FALSE(kopie);
    EXPECT_EQ(Foutsoort::GeenReservekopie, kopie.error().soort);
    EXPECT_EQ("100301-100222#\r\n", schijf.Inhoud(gr03));
}

TEST_F(ParenbestandTest, VerwijderenIsOngedaanTeMaken)
{
    schijf.Zet(gr03, "100301-100222#\r\n");
    Geschiedenis geschiedenis(schijf);
    geschiedenis.Open(mappen, "pc", "an");
    ASSERT_TRUE(
        VerwijderParen(schijf, mappen, "Gr03-Dinsdag", std::optional<Tekst>("100301-100222#\r\n")));
    const auto handeling = geschiedenis.Laatste(Handelingsoort::Ongedaan);
    ASSERT_TRUE(handeling);
    ASSERT_TRUE(
        DraaiBestandTerug(schijf, mappen, handeling->wijzigingen.at(0), Handelingsoort::Ongedaan));
    EXPECT_EQ("100301-100222#\r\n", schijf.Inhoud(gr03));
}

/// Whoever saves over another program's work loses nothing of it wherever the disk fails.
TEST_F(ParenbestandTest, BijElkeWeigeringBlijftWatEenAnderSchreef)
{
    const Tekst daar = "100417-100500#100301-100222#\r\n";
    const Tekst samen = "100417-100500#100301-100222#100600-100601#\r\n";
    const Tekst ons = "100234-100417#100600-100601#\r\n";
    bool gelukt = false;
    int bij = 0;
    while (!gelukt) {
        schijf.Zet(gr03, daar);
        FalendeSchijf stuk(schijf);
        stuk.FaalBij(++bij);
        const Bewaring bewaard = BewaarParen(
            stuk, mappen, "Gr03-Dinsdag",
            std::vector<Tekst>{eenPaar, "100600 X          +100601 Y"}, std::optional<Tekst>(""));
        gelukt = stuk.Aantal() < bij;
        const Tekst nu = schijf.Inhoud(gr03).value_or("weg");
        EXPECT_EQ(StaatOpSchijf(bewaard.gelukt) ? samen : daar, nu) << bij;
        if (StaatOpSchijf(bewaard.gelukt)) {
            EXPECT_EQ(ons, schijf.Inhoud(bewaard.onze)) << bij;
        }
    }
    EXPECT_GT(bij, 20);
}

TEST_F(ParenbestandTest, BijElkeWeigeringVanDeSchijfIsHetOudeOfHetNieuweBestandHeel)
{
    const Tekst oud = "100301-100222#\r\n";
    for (int bij = 1;; ++bij) {
        schijf.Zet(gr03, oud);
        FalendeSchijf stuk(schijf, FalendeSchijf::Telt::AlleenSchrijven);
        stuk.FaalBij(bij);
        const auto bewaard = BewaarParen(stuk, mappen, "Gr03-Dinsdag", std::vector<Tekst>{eenPaar},
                                         std::optional(oud))
                                 .gelukt;
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

/// The order stays; a key must be the whole text of the column, whatever its player's status.
TEST_F(RVDparenTest, WelkeTekensParenVanDinsdagZijn)
{
    tabel.ZetCel(1, Kolom::Status, "overleden");
    for (const auto& [inhoud, paren] : std::vector<std::pair<Tekst, Paartekens>>{
             {"100417x100234#100417-100301#\r\n", {"100417-100234", "100417-100301"}},
             {"010023-100417#100234-100234#\r\n", {"100234-100234"}}}) {
        schijf.Zet(rvdparen, inhoud);
        EXPECT_EQ(paren, Importeer("Dinsdag")) << inhoud;
    }
}

TEST_F(RVDparenTest, ZonderBestandGeenParen)
{
    EXPECT_EQ(Paartekens(), Importeer("Dinsdag"));
    schijf.Zet(rvdparen, "100234-100417#\r\n");
    FalendeSchijf stuk(schijf);
    stuk.FaalVanaf(1);
    EXPECT_FALSE(ImporteerRVDparen(stuk, mappen, "Gr03-", "Dinsdag", tabel));
}

// ---- CSV ---------------------------------------------------------------------------------------

namespace {

struct ParenCSVTest : ParenbestandTest {
    [[nodiscard]] Uitkomst<void> SchrijfNaar(Schijf& op, ParenCSV soort)
    {
        return SchrijfParenCSV(
            op, mappen,
            std::vector<Tekst>{"100001 Bos An          +100002 C\xF4te Fran\xE7ois",
                               "100003 Partner_2          +100001 Bos An"},
            tabel, soort);
    }

    Spelertabel tabel = MaakTabel({{"100001", "Gr03-", "An", "", "Bos", "", ""},
                                   {"100002", "Gr02-", "Fran\xE7ois", "van de", "C\xF4te", "", ""},
                                   {"100003", "Gr03-", "", "", "Partner_2", "", ""},
                                   {"100001", "Gr03-", "Dubbel", "", "Dubbel", "", ""},
                                   {"x", "Gr03-", "Geen", "", "Getal", "", ""},
                                   {" 0100007", "Gr03-", "Nul", "", "Nullen", "", ""}});
};

} // namespace

/// A key that is not in the register stands there itself; else the numbers count, not the texts. A
/// line that is passed over leaves a gap in the numbers.
TEST_F(ParenCSVTest, DeRegels)
{
    const Tekst anAn = "100001 Bos An          +100001 Bos An";
    for (const auto& [regels, moet] : std::vector<std::pair<std::vector<Tekst>, Tekst>>{
             {{"100099 ??????          +100001 Bos An"}, "1;100099;An Bos\r\n"},
             {{"100001 Bos An          +rommel ??????"}, "1;An Bos;rommel\r\n"},
             {{"100007 ??????          +100001 Bos An"}, "1;Nul Nullen;An Bos\r\n"},
             {{"7      ??????          +100001 Bos An"}, "1;7;An Bos\r\n"},
             {{anAn, "100001 Bos An", anAn}, "1;An Bos;An Bos\r\n3;An Bos;An Bos\r\n"}})
        EXPECT_EQ(moet, ParenCSVTekst(regels, tabel, ParenCSV::TweeKolommen));
}

TEST_F(ParenCSVTest, HetBestandInDeMapDieErNogNietIs)
{
    ASSERT_TRUE(SchrijfNaar(schijf, ParenCSV::EenKolom));
    ASSERT_TRUE(SchrijfNaar(schijf, ParenCSV::TweeKolommen));
    EXPECT_EQ("1;An Bos - Fran\xE7ois van de C\xF4te\r\n2; Partner_2 - An Bos\r\n",
              schijf.Inhoud("C:\\club\\DiverseUitvoer\\RVDparenCSV1.csv"));
    EXPECT_EQ("1;An Bos;Fran\xE7ois van de C\xF4te\r\n2; Partner_2;An Bos\r\n",
              schijf.Inhoud("C:\\club\\DiverseUitvoer\\RVDparenCSV2.csv"));
}

TEST_F(ParenCSVTest, WatMisgaatIsEenFout)
{
    FalendeSchijf stuk(schijf);
    stuk.FaalVanaf(1);
    EXPECT_FALSE(SchrijfNaar(stuk, ParenCSV::EenKolom));
    mappen.RVDMAP.clear();
    const auto zonder = SchrijfNaar(schijf, ParenCSV::EenKolom);
    ASSERT_FALSE(zonder);
    EXPECT_EQ(Foutsoort::Ontbreekt, zonder.error().soort);
    EXPECT_EQ(std::vector<Pad>(), schijf.AlleBestanden());
}
