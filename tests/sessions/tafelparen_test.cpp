#include "sessions/tafelparen.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Paarteksten = std::pair<Tekst, Tekst>;

std::optional<Paarteksten> Gesplitst(Tekstblik spelers)
{
    const auto helften = SplitsHelften(spelers);
    if (!helften)
        return std::nullopt;
    return Paarteksten(helften->eerste, helften->tweede);
}

} // namespace

TEST(Tafelparen, HetEersteStreepjeSplitst)
{
    EXPECT_EQ(Gesplitst("Jansen - 100234"), Paarteksten("Jansen", "100234"));
    EXPECT_EQ(Gesplitst("Jansen-100234"), Paarteksten("Jansen", "100234"));
    EXPECT_EQ(Gesplitst("  Jan  Bos  -  Piet "), Paarteksten("Jan  Bos", "Piet"));
    EXPECT_EQ(Gesplitst("-"), Paarteksten("", ""));
    EXPECT_EQ(Gesplitst("Jansen"), std::nullopt);
    EXPECT_EQ(Gesplitst(""), std::nullopt);
}

/// Meant: a hyphen in the name of the first player counts as the one between the two.
TEST(Tafelparen, OokEenStreepjeInDeEersteNaamSplitst)
{
    EXPECT_EQ(Gesplitst("Tol-Vink - 100234"), Paarteksten("Tol", "Vink - 100234"));
    EXPECT_EQ(Gesplitst("100234 - Tol-Vink"), Paarteksten("100234", "Tol-Vink"));
}

TEST(Tafelparen, ZwevendIsWatNietAlleenUitCijfersBestaat)
{
    EXPECT_TRUE(IsZwevend("Jansen"));
    EXPECT_TRUE(IsZwevend("100234a"));
    EXPECT_TRUE(IsZwevend("10 0234"));
    EXPECT_TRUE(IsZwevend("+100234"));
    EXPECT_FALSE(IsZwevend("100234"));
    EXPECT_FALSE(IsZwevend("7")); // digits, though no register key
    EXPECT_FALSE(IsZwevend(""));
}

TEST(Tafelparen, DeHelftDieDeNaamIsWordtDeKey)
{
    EXPECT_EQ(MetKey({"Jan", "Piet"}, "Jan", "100237"), "100237 - Piet");
    EXPECT_EQ(MetKey({"Jan", "Piet"}, "Piet", "100237"), "Jan - 100237");
    EXPECT_EQ(MetKey({"Jan", "Jan"}, "Jan", "100237"), "100237 - 100237");
    EXPECT_EQ(MetKey({"Jansen", "Piet"}, "Jan", "100237"), std::nullopt);
    EXPECT_EQ(MetKey({"jan", "Piet"}, "Jan", "100237"), std::nullopt);
}

TEST(Tafelparen, EenItemIsCodeEnSpelers)
{
    const auto paar = PaarUit("N05 Jansen - 100234");
    ASSERT_TRUE(paar);
    EXPECT_EQ("N05", paar->code);
    EXPECT_EQ("Jansen - 100234", paar->spelers);
    EXPECT_EQ("Jansen - 1", PaarUit("  N05Jansen - 1 ")->spelers);
    EXPECT_EQ("N5 ", PaarUit("N5 Jansen - 1")->code);
    EXPECT_EQ("5 Jansen - 1", PaarUit("N105 Jansen - 1")->spelers); // three characters, no more
    EXPECT_EQ("", PaarUit("N05")->spelers);
    EXPECT_EQ("N", PaarUit("N")->code);
    EXPECT_EQ("", PaarUit("N")->spelers);
    EXPECT_FALSE(PaarUit(""));
    EXPECT_FALSE(PaarUit("   "));
}

TEST(Tafelparen, EenPlaatsIsEenLetterEnEenGetal)
{
    EXPECT_EQ(Plaatssleutel("N05"), Plaatssleutel("N5"));
    EXPECT_EQ(Plaatssleutel("N005"), Plaatssleutel(" N5 "));
    EXPECT_EQ(Plaatssleutel("N0"), Plaatssleutel("N00"));
    EXPECT_NE(Plaatssleutel("N5"), Plaatssleutel("N50"));
    EXPECT_NE(Plaatssleutel("N5"), Plaatssleutel("O5"));
    EXPECT_NE(Plaatssleutel("N5"), Plaatssleutel("n5"));
    EXPECT_NE(Plaatssleutel("105"), Plaatssleutel("15"));
    EXPECT_NE(Plaatssleutel("N0x"), Plaatssleutel("Nx"));
    EXPECT_EQ(Plaatssleutel("N"), "N");
    EXPECT_EQ(Plaatssleutel(""), "");
}
