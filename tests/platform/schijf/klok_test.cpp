#include "platform/schijf/klok.h"

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Klok, DeDatumVanEenStempel)
{
    // Noon, so that the date is the same in every time zone but the outermost.
    EXPECT_EQ("2024-02-29", Datum(1'709'208'000'000'000'000));
    EXPECT_EQ("1999-12-31", Datum(946'641'600'999'999'999));
}

TEST(Klok, DeDagtekeningZoalsMensenHemSchrijven)
{
    const auto zoals = [](const Tekst& datum) {
        return datum.substr(8, 2) + "-" + datum.substr(5, 2) + "-" + datum.substr(0, 4);
    };
    const Tekst voor = zoals(Datum(Nu()));
    const Tekst dag = Dagtekening();
    EXPECT_TRUE(dag == voor || dag == zoals(Datum(Nu()))) << dag;
}

TEST(Klok, HetTijdstempelBegintMetDeDatum)
{
    const Tekst voor = Datum(Nu());
    const Tekst stempel = Tijdstempel();
    ASSERT_EQ(17U, stempel.size());
    EXPECT_TRUE(stempel.starts_with(voor) || stempel.starts_with(Datum(Nu())));
}
