#include "dialogs/subgroep.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

Spelertabel MetSubgroepen(const Teksten& subgroepen)
{
    std::vector<Proefspeler> spelers;
    for (const Tekst& subgroep : subgroepen)
        spelers.push_back(
            {.key = std::to_string(spelers.size() + 1), .groep = "Gr01-", .nbbgr = subgroep});
    return MaakTabel(spelers);
}

/// The keys that are left, joined.
Tekst Over(const Spelertabel& tabel)
{
    Tekst keys;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        keys += tabel.Cel(rij, Kolom::Key);
    return keys;
}

Teksten GewoneSubgroepen(const std::vector<Rijvelden>& rijen, const Tekst& groep)
{
    Tekst gezien;
    Teksten subgroepen;
    for (const Rijvelden& rij : rijen) {
        if (rij[2] != groep)
            continue;
        Tekst waarde = rij[16];
        while (!waarde.empty() && waarde.back() == ' ')
            waarde.pop_back();
        while (!waarde.empty() && waarde.front() == ' ')
            waarde.erase(0, 1);
        if (waarde.empty())
            waarde = "geen";
        if (gezien.find("#" + waarde + "#") != Tekst::npos)
            continue;
        gezien += "#" + waarde + "#";
        subgroepen.push_back(waarde);
    }
    return subgroepen;
}

int VerwijderGewoon(std::vector<Rijvelden>& rijen, const Tekst& groep, const Tekst& subgroep)
{
    std::vector<Rijvelden> over;
    for (const Rijvelden& rij : rijen) {
        const bool geen = rij[16].empty() && Hoofdletters(subgroep) == "GEEN";
        if (rij[2] == groep && (rij[16] == subgroep || geen))
            continue;
        over.push_back(rij);
        over.back()[0] = std::to_string(over.size());
    }
    const auto weg = rijen.size() - over.size();
    rijen = over;
    return static_cast<int>(weg);
}

} // namespace

TEST(Subgroep, ElkeSubgroepEenKeerInVolgordeVanVerschijnen)
{
    const Spelertabel tabel =
        MetSubgroepen({"B-lijn", "", " A-lijn ", "  ", "B-lijn", "geen", "A-lijn", "b-lijn"});
    EXPECT_EQ((Teksten{"B-lijn", "geen", "A-lijn", "b-lijn"}), SubgroepenVan(tabel, "Gr01-"));
    EXPECT_EQ(Teksten(), SubgroepenVan(tabel, "Gr02-"));
}

/// Meant: a "#" in a value counts as a mark between values.
TEST(Subgroep, EenHekjeKanEenSubgroepVerbergen)
{
    EXPECT_EQ((Teksten{"A#B#C", "A-lijn"}),
              SubgroepenVan(MetSubgroepen({"A#B#C", "B", "A", "A-lijn"}), "Gr01-"));
}

TEST(Subgroep, VerwijdertAlleSpelersVanDeSubgroep)
{
    Spelertabel tabel = MaakTabel({{"1", "Gr01-", "", "", "A", "x", ""},
                                   {"2", "Gr02-", "", "", "B", "x", ""},
                                   {"3", "Gr01-", "", "", "C", "X", ""},
                                   {"4", "Gr01-", "", "", "D", "x", ""},
                                   {"5", "Gr01-", "", "", "E", "", ""}});
    EXPECT_EQ(2, VerwijderSubgroep(tabel, "Gr01-", "x"));
    EXPECT_EQ("235", Over(tabel));
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        EXPECT_EQ(std::to_string(rij), tabel.Cel(rij, Kolom::Nr));
}

TEST(Subgroep, GeenVerwijdertDeLegeEnWatGeenHeet)
{
    Spelertabel tabel = MetSubgroepen({"", "geen", "Geen", "x", ""});
    EXPECT_EQ(3, VerwijderSubgroep(tabel, "Gr01-", "geen"));
    EXPECT_EQ("34", Over(tabel));
}

TEST(Subgroep, GeenInAndereLettersVerwijdertOokDeLege)
{
    Spelertabel tabel = MetSubgroepen({"", "geen", "GEEN", "x"});
    EXPECT_EQ(2, VerwijderSubgroep(tabel, "Gr01-", "GEEN"));
    EXPECT_EQ("24", Over(tabel));
}

/// Meant: listed without its spaces, but compared with them.
TEST(Subgroep, MetSpatiesEromheenBlijftDeSpelerStaan)
{
    Spelertabel tabel = MetSubgroepen({" x", "x ", "x", "  "});
    EXPECT_EQ((Teksten{"x", "geen"}), SubgroepenVan(tabel, "Gr01-"));
    EXPECT_EQ(1, VerwijderSubgroep(tabel, "Gr01-", "x"));
    EXPECT_EQ("124", Over(tabel));
    EXPECT_EQ(0, VerwijderSubgroep(tabel, "Gr01-", "geen"));
    EXPECT_EQ("124", Over(tabel));
}

TEST(Subgroep, AllesWeg)
{
    Spelertabel tabel = MetSubgroepen({"x", "x"});
    EXPECT_EQ(2, VerwijderSubgroep(tabel, "Gr01-", "x"));
    EXPECT_EQ(0, tabel.Rijen());
    EXPECT_EQ(0, VerwijderSubgroep(tabel, "Gr01-", "x"));
}

TEST(Subgroep, GelijkAanHetGewoneOpDuizendenKleineRegisters)
{
    std::mt19937 toeval(36);
    for (int keer = 0; keer < 5000; ++keer) {
        Spelertabel tabel = ToevalligeTabel(toeval);
        auto moet = AlleRijen(tabel);
        while (true) {
            const Teksten subgroepen = SubgroepenVan(tabel, "Gr01-");
            ASSERT_EQ(GewoneSubgroepen(moet, "Gr01-"), subgroepen);
            if (subgroepen.empty() || Gooi(toeval, 4) == 0)
                break;
            const Tekst subgroep = Trek(toeval, subgroepen);
            ASSERT_EQ(VerwijderGewoon(moet, "Gr01-", subgroep),
                      VerwijderSubgroep(tabel, "Gr01-", subgroep));
            ASSERT_EQ(moet, AlleRijen(tabel));
        }
    }
}
