#include "platform/tekst/tekst.h"

#include <limits>

#include <gtest/gtest.h>

using namespace plexoran;

/// Without digits it is 0; what follows does not count; a fraction rounds, a half to the even
/// number.
TEST(Getal, HetBeginVanDeTekst)
{
    const std::pair<const char*, int> gevallen[] = {
        {"0", 0},     {"123", 123},  {"-45", -45}, {"+7", 7},      {"007", 7},   {"   12", 12},
        {"", 0},      {"   ", 0},    {"abc", 0},   {"-", 0},       {".", 0},     {"--5", 0},
        {"x5", 0},    {"12abc", 12}, {"12,5", 12}, {"12-3", 12},   {"3.", 3},    {"3.x9", 3},
        {"1.4.9", 1}, {"2.4", 2},    {"2.6", 3},   {"2.49999", 2}, {"-2.6", -3}, {".7", 1},
        {"0.5", 0},   {"1.5", 2},    {"2.5", 2},   {"2.500", 2},   {"2.501", 3}, {"2.5x1", 2},
        {"-1.5", -2}, {"-2.5", -2}};
    for (const auto& [tekst, getal] : gevallen)
        EXPECT_EQ(Geheel32(tekst), getal) << tekst;
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
    EXPECT_EQ(Geheel32("99999999999999999999999999999999999999"), std::nullopt);
    EXPECT_EQ(Geheel32("00000000000000000000000000000000000012"), 12);
}

TEST(Getal, AlsGetalVultAanMetNullen)
{
    EXPECT_EQ(AlsGetal("12345", 8), "00012345");
    EXPECT_EQ(AlsGetal("100001", 6), "100001");
    EXPECT_EQ(AlsGetal("0", 6), "000000");
    EXPECT_EQ(AlsGetal("000", 2), "00");
    EXPECT_EQ(AlsGetal("7", 0), "7");
    // It is not cut short.
    EXPECT_EQ(AlsGetal("123456789", 6), "123456789");
    EXPECT_EQ(AlsGetal("0000000123456789", 6), "123456789");
    EXPECT_EQ(AlsGetal("99999999999999999999999999", 8), "99999999999999999999999999");
    // Spaces around it do not count.
    EXPECT_EQ(AlsGetal("  12 ", 4), "0012");
    EXPECT_EQ(AlsGetal("1 2", 4), std::nullopt);
}

TEST(Getal, WatGeenCijfersZijnIsGeenGetal)
{
    for (const char* tekst :
         {"", "   ", "abc", "12a", "a12", "-5", "+5", "1.5", "1,5", "\t1", "\xB2", "0x10", "1e3"})
        EXPECT_EQ(AlsGetal(tekst, 6), std::nullopt) << tekst;
}

TEST(BegintMetGetal, MetEenCijferNaTekenEnPunt)
{
    for (const char* getal : {"1", " 0x", "-5", "+7", ".5", "-.5", "12abc"})
        EXPECT_TRUE(BegintMetGetal(getal)) << getal;
    for (const char* geen : {"", " ", "-", "x1", "--5", ".", "-.x", "\t1"})
        EXPECT_FALSE(BegintMetGetal(geen)) << geen;
}
