#include "platform/getal.h"

#include <limits>

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Getal, GeheleGetallen)
{
    EXPECT_EQ(Geheel32("0"), 0);
    EXPECT_EQ(Geheel32("123"), 123);
    EXPECT_EQ(Geheel32("-45"), -45);
    EXPECT_EQ(Geheel32("+7"), 7);
    EXPECT_EQ(Geheel32("007"), 7);
    EXPECT_EQ(Geheel32("   12"), 12);
}

TEST(Getal, ZonderCijfersNul)
{
    EXPECT_EQ(Geheel32(""), 0);
    EXPECT_EQ(Geheel32("   "), 0);
    EXPECT_EQ(Geheel32("abc"), 0);
    EXPECT_EQ(Geheel32("-"), 0);
    EXPECT_EQ(Geheel32("."), 0);
    EXPECT_EQ(Geheel32("--5"), 0);
    EXPECT_EQ(Geheel32("x5"), 0);
}

TEST(Getal, WatVolgtTeltNiet)
{
    EXPECT_EQ(Geheel32("12abc"), 12);
    EXPECT_EQ(Geheel32("12,5"), 12);
    EXPECT_EQ(Geheel32("12-3"), 12);
    EXPECT_EQ(Geheel32("3."), 3);
    EXPECT_EQ(Geheel32("3.x9"), 3);
    EXPECT_EQ(Geheel32("1.4.9"), 1);
}

TEST(Getal, BreukRondtAf)
{
    EXPECT_EQ(Geheel32("2.4"), 2);
    EXPECT_EQ(Geheel32("2.6"), 3);
    EXPECT_EQ(Geheel32("2.49999"), 2);
    EXPECT_EQ(Geheel32("-2.6"), -3);
    EXPECT_EQ(Geheel32(".7"), 1);
}

TEST(Getal, HalfNaarEven)
{
    EXPECT_EQ(Geheel32("0.5"), 0);
    EXPECT_EQ(Geheel32("1.5"), 2);
    EXPECT_EQ(Geheel32("2.5"), 2);
    EXPECT_EQ(Geheel32("2.500"), 2);
    EXPECT_EQ(Geheel32("2.501"), 3);
    EXPECT_EQ(Geheel32("2.5x1"), 2);
    EXPECT_EQ(Geheel32("-1.5"), -2);
    EXPECT_EQ(Geheel32("-2.5"), -2);
}

TEST(Getal, Grenzen)
{
    EXPECT_EQ(Geheel16("32767"), 32767);
    EXPECT_EQ(Geheel16("32768"), std::nullopt);
    EXPECT_EQ(Geheel16("-32768"), -32768);
    EXPECT_EQ(Geheel16("-32769"), std::nullopt);
    EXPECT_EQ(Geheel16("32767.4"), 32767);
    EXPECT_EQ(Geheel16("32767.5"), std::nullopt);
    EXPECT_EQ(Geheel32("2147483647"), 2147483647);
    EXPECT_EQ(Geheel32("2147483648"), std::nullopt);
    EXPECT_EQ(Geheel32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Geheel32("-2147483649"), std::nullopt);
}

TEST(Getal, HeelLangeCijferreeks)
{
    EXPECT_EQ(Geheel32("99999999999999999999999999999999999999"), std::nullopt);
    EXPECT_EQ(Geheel32("00000000000000000000000000000000000012"), 12);
}
