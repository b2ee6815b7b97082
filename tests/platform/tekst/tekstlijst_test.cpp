#include "platform/tekst/tekstlijst.h"

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Tekstlijst, HoudtDeVolgordeEnOokLegeTeksten)
{
    Tekstlijst lijst{"een", "", "drie"};
    lijst.VoegToe("");
    lijst.VoegToe("vijf");
    EXPECT_EQ(lijst.size(), 5U);
    EXPECT_EQ(std::vector<Tekst>(lijst.begin(), lijst.end()),
              (std::vector<Tekst>{"een", "", "drie", "", "vijf"}));
    EXPECT_EQ(lijst[0], "een");
    EXPECT_EQ(lijst[3], "");
    EXPECT_EQ(lijst[4], "vijf");
}

TEST(Tekstlijst, ReserverenVerandertNiets)
{
    Tekstlijst lijst{"een"};
    lijst.Reserveer(1'000'000, 5'000'000);
    lijst.VoegToe("twee");
    EXPECT_EQ(lijst, (Tekstlijst{"een", "twee"}));
}

TEST(Tekstlijst, GelijkIsGelijkPerTekst)
{
    EXPECT_TRUE(Tekstlijst().empty());
    EXPECT_NE((Tekstlijst{"ab", "c"}), (Tekstlijst{"a", "bc"}));
    EXPECT_NE((Tekstlijst{""}), Tekstlijst());
}
