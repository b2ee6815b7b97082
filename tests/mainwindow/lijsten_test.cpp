#include "mainwindow/lijsten.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

constexpr auto opKey = Sorteersoort::Key;
constexpr auto opNummer = Sorteersoort::NBBnr;
constexpr auto opGroep = Sorteersoort::NBBgroep;

using Regels = std::vector<Tekst>;

Regels Lijst(const Spelertabel& tabel, Sorteersoort soort,
             const std::optional<Tekst>& groep = std::nullopt)
{
    const auto lijst = VulSorteerlijst(tabel, soort, groep);
    if (lijst)
        return *lijst;
    ADD_FAILURE() << "geen getal: " << lijst.error().waarde;
    return {};
}

Spelertabel VierSpelers()
{
    return MaakTabel({{"100012", "Gr01-", "Bea", "de", "Cock", "A-lijn", "100000"},
                      {"100003", "Gr05-", "Dirk", "", "Eik", "DINSDAG", "12345"},
                      {"99", "Gr01-", "An", "", "Bos", "", ""},
                      {"100007", "Gr01-", "Cor", "van der", "Adel", "A-lijn", "  "}});
}

using Paren = std::vector<std::pair<int, int>>;

Paren Zoek(const Spelertabel& tabel, Tekstblik groep = "Gr01-")
{
    const Dubbelen dubbelen = ZoekDubbeleNamen(tabel, groep);
    EXPECT_FALSE(dubbelen.meer);
    Paren paren;
    for (const Dubbel& dubbel : dubbelen.paren)
        paren.emplace_back(dubbel.rij, dubbel.latere);
    return paren;
}

} // namespace

TEST(Sorteerlijst, OpKeyVanDeGroepOfVanAlle)
{
    const Regels moet{"000099,99,An,,Bos,,", "100003,100003,Dirk,,Eik,DINSDAG,12345",
                      "100007,100007,Cor,van der,Adel,A-lijn,  ",
                      "100012,100012,Bea,de,Cock,A-lijn,100000"};
    EXPECT_EQ(moet, Lijst(VierSpelers(), opKey));
    EXPECT_EQ((Regels{moet[0], moet[2], moet[3]}), Lijst(VierSpelers(), opKey, "Gr01-"));
    EXPECT_EQ(Regels(), Lijst(VierSpelers(), opKey, "Gr02-"));
}

TEST(Sorteerlijst, OpNummerZonderDeLegeNummers)
{
    const Regels moet{"00012345,100003,Dirk,,Eik,DINSDAG,12345",
                      "00100000,100012,Bea,de,Cock,A-lijn,100000"};
    EXPECT_EQ(moet, Lijst(VierSpelers(), opNummer));
    EXPECT_EQ(Regels{moet[0]}, Lijst(VierSpelers(), opNummer, "Gr05-"));
}

/// Meant: no comma between the fixed part and the key.
TEST(Sorteerlijst, OpGroepEnNaamZonderKommaNaHetVoorvoegsel)
{
    const Regels moet{"Gr01-       Bos                           99,An,,Bos,,",
                      "Gr01-A-lijn Adel                          100007,Cor,van der,Adel,"
                      "A-lijn,  ",
                      "Gr01-A-lijn Cock                          100012,Bea,de,Cock,A-lijn,"
                      "100000",
                      "Gr05-DINSDAGEik                           100003,Dirk,,Eik,DINSDAG,"
                      "12345"};
    EXPECT_EQ(moet, Lijst(VierSpelers(), opGroep));
}

TEST(Sorteerlijst, HetVoorvoegselVanGroepEnNaamWordtAfgekapt)
{
    const Tekst lang = "Abcdefghijabcdefghijabcdefghij";
    const Spelertabel tabel =
        MaakTabel({{"100001", "Gr01-", "An", "", lang + "Z", "MAANDAGEN", "1"},
                   {"100002", "Gr01-", "An", "", lang + "A", "MAANDAGAVOND", "1"}});
    // Beyond its width a field does not count; what follows the prefix decides.
    const Regels moet{"Gr01-MAANDAG" + lang + "100001,An,," + lang + "Z,MAANDAGEN,1",
                      "Gr01-MAANDAG" + lang + "100002,An,," + lang + "A,MAANDAGAVOND,1"};
    EXPECT_EQ(moet, Lijst(tabel, opGroep));
}

TEST(Sorteerlijst, OpNaamZonderOpAccentEnHoofdletterTeLetten)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "", "", "Zwaan", "", ""},
                                         {"2", "Gr01-", "", "", "\xD8stergaard", "", ""},
                                         {"3", "Gr01-", "", "", "ota", "", ""},
                                         {"4", "Gr01-", "", "", "'t Hof", "", ""},
                                         {"5", "Gr01-", "", "", "\x8Eola", "", ""}});
    Tekst volgorde;
    for (const Tekst& regel : Lijst(tabel, opGroep))
        volgorde += VeldenVan(regel, opGroep).substr(0, 1);
    EXPECT_EQ("42351", volgorde);
}

TEST(Sorteerlijst, GetallenInHunVolgordeOokMetNullenEnSpaties)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr05-", "", "", "A", "", "00100000"},
                                         {"2", "Gr05-", "", "", "B", "", " 12345 "},
                                         {"3", "Gr05-", "", "", "C", "", "99999999"},
                                         {"4", "Gr05-", "", "", "D", "", "7"}});
    const Regels moet{"00000007,4,,,D,,7", "00012345,2,,,B,, 12345 ", "00100000,1,,,A,,00100000",
                      "99999999,3,,,C,,99999999"};
    EXPECT_EQ(moet, Lijst(tabel, opNummer));
}

TEST(Sorteerlijst, GelijkeRegelsBlijvenAllebei)
{
    const Spelertabel tabel = MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "", ""},
                                         {"100001", "Gr01-", "An", "", "Bos", "", ""}});
    const Regels moet(2, "100001,100001,An,,Bos,,");
    EXPECT_EQ(moet, Lijst(tabel, opKey));
}

TEST(Sorteerlijst, EenKeyDieGeenGetalIsGeeftGeenLijst)
{
    const Spelertabel tabel = MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "", ""},
                                         {"10A002", "Gr02-", "Bo", "", "Cos", "", ""},
                                         {"", "Gr02-", "Cy", "", "Dos", "", ""}});
    const auto lijst = VulSorteerlijst(tabel, opKey, std::nullopt);
    ASSERT_FALSE(lijst);
    EXPECT_EQ(2, lijst.error().rij);
    EXPECT_EQ("10A002", lijst.error().waarde);
    EXPECT_EQ(1U, Lijst(tabel, opKey, "Gr01-").size());
    EXPECT_EQ(3U, Lijst(tabel, opGroep).size());
    for (const char* key : {"", "  ", "-5", "1e5", "100.5"})
        EXPECT_FALSE(VulSorteerlijst(MaakTabel({{key, "Gr01-", "An", "", "Bos"}}), opKey, {}))
            << key;
}

TEST(Sorteerlijst, EenNummerDatGeenGetalIsGeeftGeenLijst)
{
    const Spelertabel tabel = MaakTabel({{"100001", "Gr05-", "An", "", "Bos", "", ""},
                                         {"100002", "Gr05-", "Bo", "", "Cos", "", "lid 12"}});
    const auto lijst = VulSorteerlijst(tabel, opNummer, "Gr05-");
    ASSERT_FALSE(lijst);
    EXPECT_EQ(2, lijst.error().rij);
    EXPECT_EQ("lid 12", lijst.error().waarde);
    EXPECT_EQ(2U, Lijst(tabel, opKey).size());
}

TEST(Sorteerlijst, VeldenZonderVoorvoegsel)
{
    EXPECT_EQ("99,An,,Bos,,", VeldenVan("000099,99,An,,Bos,,", opKey));
    EXPECT_EQ("4,,,D,,7", VeldenVan("00000007,4,,,D,,7", opNummer));
    EXPECT_EQ("99,An,,Bos,,",
              VeldenVan("Gr01-       Bos                           99,An,,Bos,,", opGroep));
}

TEST(DubbeleNamen, ParenMetDeEersteVoorop)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "An", "", "Bos", "", ""},
                                         {"2", "Gr01-", "Bo", "de", "Cos", "", ""},
                                         {"3", "Gr01-", "An", "", "Bos", "x", "7"},
                                         {"4", "Gr01-", "Bo", "de", "Cos", "", ""},
                                         {"5", "Gr01-", "An", "", "Bos", "", ""}});
    EXPECT_EQ(Paren({{1, 3}, {1, 5}, {2, 4}, {3, 5}}), Zoek(tabel));
    EXPECT_EQ(Paren(), Zoek(tabel, "Gr02-"));
}

/// Meant: the rule is one-sided.
TEST(DubbeleNamen, DeTweedeMagInElkeGroepStaanMaarNietEerder)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr02-", "An", "", "Bos", "", ""},
                                         {"2", "Gr01-", "An", "", "Bos", "", ""},
                                         {"3", "Gr05-", "An", "", "Bos", "", ""}});
    EXPECT_EQ(Paren({{2, 3}}), Zoek(tabel, "Gr01-"));
    EXPECT_EQ(Paren({{1, 2}, {1, 3}}), Zoek(tabel, "Gr02-"));
    EXPECT_EQ(Paren(), Zoek(tabel, "Gr05-"));
}

/// Meant: the three fields are joined without a separator.
TEST(DubbeleNamen, AndersVerdeeldIsOokDubbel)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "Jande", "", "Vries", "", ""},
                                         {"2", "Gr01-", "Jan", "de", "Vries", "", ""},
                                         {"3", "Gr01-", "", "", "JandeVries", "", ""}});
    EXPECT_EQ(Paren({{1, 2}, {1, 3}, {2, 3}}), Zoek(tabel));
}

TEST(DubbeleNamen, HoofdletterOfSpatieMaaktVerschil)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "Jan", "", "Bos", "", ""},
                                         {"2", "Gr01-", "jan", "", "Bos", "", ""},
                                         {"3", "Gr01-", "Jan", "", "Bos ", "", ""},
                                         {"4", "Gr01-", "Jan", " ", "Bos", "", ""},
                                         {"5", "Gr01-", "J\xE0n", "", "Bos", "", ""}});
    EXPECT_EQ(Paren(), Zoek(tabel));
}

TEST(DubbeleNamen, OokEenLegeNaamKanDubbelZijn)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-"}, {"2", "Gr01-"}});
    EXPECT_EQ(Paren({{1, 2}}), Zoek(tabel));
    EXPECT_EQ(Paren(), Zoek(Spelertabel()));
}

TEST(DubbeleNamen, TotEnMetHetMeesteIsHetVolledig)
{
    struct Geval {
        std::size_t inDeGroep, elders;
        bool meer;
        int laatste; // the row that the last pair begins with
    };
    for (const Geval& geval :
         {Geval{1, 100'000, false, 1}, Geval{1, 100'001, true, 1}, Geval{20'000, 0, true, 6}}) {
        std::vector<Proefspeler> spelers(geval.inDeGroep, {"1", "Gr01-", "An", "", "Bos", "", ""});
        spelers.resize(geval.inDeGroep + geval.elders, {"2", "Gr02-", "An", "", "Bos", "", ""});
        const Dubbelen dubbelen = ZoekDubbeleNamen(MaakTabel(spelers), "Gr01-");
        ASSERT_EQ(100'000U, dubbelen.paren.size());
        EXPECT_EQ(geval.meer, dubbelen.meer);
        EXPECT_EQ(1, dubbelen.paren.front().rij);
        EXPECT_EQ(2, dubbelen.paren.front().latere);
        EXPECT_EQ(geval.laatste, dubbelen.paren.back().rij);
    }
}
