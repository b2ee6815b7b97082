#include "mainwindow/lijsten.h"

#include <random>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Paren = std::vector<std::pair<int, int>>;

Paren ParenVan(const Dubbelen& dubbelen)
{
    Paren paren;
    for (const Dubbel& dubbel : dubbelen.paren)
        paren.emplace_back(dubbel.rij, dubbel.latere);
    return paren;
}

Paren Zoek(const Spelertabel& tabel, Tekstblik groep = "Gr01-")
{
    const Dubbelen dubbelen = ZoekDubbeleNamen(tabel, groep);
    EXPECT_FALSE(dubbelen.meer);
    return ParenVan(dubbelen);
}

/// Every row with every later one.
Paren GewoonGezocht(const std::vector<Rijvelden>& rijen, const Tekst& groep)
{
    Paren paren;
    for (std::size_t i = 0; i < rijen.size(); ++i) {
        if (rijen[i][2] != groep)
            continue;
        for (std::size_t j = i + 1; j < rijen.size(); ++j) {
            if (rijen[i][3] + rijen[i][4] + rijen[i][5] == rijen[j][3] + rijen[j][4] + rijen[j][5])
                paren.emplace_back(static_cast<int>(i + 1), static_cast<int>(j + 1));
        }
    }
    return paren;
}

Spelertabel Naamgenoten(std::size_t eerste, std::size_t verder, const Tekst& anders)
{
    std::vector<Proefspeler> spelers(eerste, {"1", "Gr01-", "An", "", "Bos", "", ""});
    spelers.resize(eerste + verder, {"2", anders, "An", "", "Bos", "", ""});
    return MaakTabel(spelers);
}

} // namespace

TEST(DubbeleNamen, EenPaarMetDeEersteVoorop)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "An", "", "Bos", "", ""},
                                         {"2", "Gr01-", "Bo", "de", "Cos", "", ""},
                                         {"3", "Gr01-", "An", "", "Bos", "x", "7"}});
    EXPECT_EQ(Paren({{1, 3}}), Zoek(tabel));
    EXPECT_EQ(Paren(), Zoek(tabel, "Gr02-"));
}

TEST(DubbeleNamen, DrieKeerGeeftDrieParen)
{
    EXPECT_EQ(Paren({{1, 2}, {1, 3}, {2, 3}}), Zoek(Naamgenoten(3, 0, "")));
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

TEST(DubbeleNamen, GelijkAanDeGewoneOpDuizendenKleineRegisters)
{
    std::mt19937 toeval(32);
    std::size_t gevonden = 0;
    for (int keer = 0; keer < 5000; ++keer) {
        const Spelertabel tabel = ToevalligeTabel(toeval);
        const auto rijen = AlleRijen(tabel);
        for (const char* groep : {"Gr01-", "Gr02-", "Gr05-"}) {
            const Paren moet = GewoonGezocht(rijen, groep);
            gevonden += moet.size();
            ASSERT_EQ(moet, Zoek(tabel, groep));
        }
    }
    EXPECT_GT(gevonden, 1000U);
}

/// From a few rows to so many that hashes are dealt out over many drawers.
TEST(DubbeleNamen, TotEnMetHetMeesteIsHetVolledig)
{
    const Dubbelen precies = ZoekDubbeleNamen(Naamgenoten(1, 100'000, "Gr02-"), "Gr01-");
    EXPECT_EQ(100'000U, precies.paren.size());
    EXPECT_FALSE(precies.meer);
    const Dubbelen meer = ZoekDubbeleNamen(Naamgenoten(1, 100'001, "Gr02-"), "Gr01-");
    EXPECT_EQ(100'000U, meer.paren.size());
    EXPECT_TRUE(meer.meer);
}

/// Among so many names some have the same short hash: that alone makes no double.
TEST(DubbeleNamen, DuizendenNaamgenotenHoudenOpBijHetMeeste)
{
    const Dubbelen dubbelen = ZoekDubbeleNamen(Naamgenoten(20'000, 0, ""), "Gr01-");
    ASSERT_EQ(100'000U, dubbelen.paren.size());
    EXPECT_TRUE(dubbelen.meer);
    EXPECT_EQ(1, dubbelen.paren.front().rij);
    EXPECT_EQ(2, dubbelen.paren.front().latere);
    EXPECT_EQ(6, dubbelen.paren.back().rij);
}
