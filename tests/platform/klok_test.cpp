#include "platform/klok.h"

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Klok, DeDatumVanEenStempel)
{
    // Noon, so that the date is the same in every time zone but the outermost.
    EXPECT_EQ("2024-02-29", Datum(1'709'208'000'000'000'000));
    EXPECT_EQ("1999-12-31", Datum(946'641'600'999'999'999));
}

TEST(Klok, HetTijdstempelBegintMetDeDatum)
{
    const Tekst voor = Datum(Nu());
    const Tekst stempel = Tijdstempel();
    ASSERT_EQ(17U, stempel.size());
    EXPECT_TRUE(stempel.starts_with(voor) || stempel.starts_with(Datum(Nu())));
}
