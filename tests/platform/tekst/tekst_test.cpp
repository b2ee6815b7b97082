#include "platform/tekst/tekst.h"

#include <limits>

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Tekst, HoofdlettersMetAccenten)
{
    EXPECT_EQ(Hoofdletters("abc xyz 09 {|}"), "ABC XYZ 09 {|}");
    EXPECT_EQ(Hoofdletters("\xE0\xE9\xF6\xF8\xFE"), "\xC0\xC9\xD6\xD8\xDE");
    EXPECT_EQ(Hoofdletters("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
    EXPECT_EQ(Hoofdletters(""), "");
    // What has no capital stays: division sign, sharp s, micro sign, function f, ordinals
    EXPECT_EQ(Hoofdletters("\xF7\xDF\xB5\x83\xAA\xBA"), "\xF7\xDF\xB5\x83\xAA\xBA");
    for (int i = 0; i < 256; ++i) {
        const char teken = Hoofdletter(static_cast<char>(i));
        EXPECT_EQ(Hoofdletter(teken), teken) << i;
    }
}

TEST(Tekst, ZonderSpaties)
{
    EXPECT_EQ(ZonderSpaties("  a b  "), "a b");
    EXPECT_EQ(ZonderSpaties("a"), "a");
    EXPECT_EQ(ZonderSpaties("   "), "");
    EXPECT_EQ(ZonderSpaties(""), "");
    EXPECT_EQ(ZonderSpaties(" \ta\xA0 "), "\ta\xA0");
}

TEST(Tekst, IsBlanco)
{
    EXPECT_TRUE(IsBlanco(""));
    EXPECT_TRUE(IsBlanco("   "));
    EXPECT_FALSE(IsBlanco(" . "));
    EXPECT_FALSE(IsBlanco("\t"));
    EXPECT_FALSE(IsBlanco("\xA0"));
}

TEST(Tekst, Vervang)
{
    EXPECT_EQ(Vervang("a,b,,c", ',', ';'), "a;b;;c");
    EXPECT_EQ(Vervang("abc", ',', ';'), "abc");
    EXPECT_EQ(Vervang("\xE9t\xE9", '\xE9', 'e'), "ete");
}

TEST(Tekst, AlsVeldHoudtKommasEnRegeleindenBuitenEenCel)
{
    EXPECT_EQ(AlsVeld("a,b\r\nc"), "a_b  c");
    EXPECT_EQ(AlsVeld(""), "");
    Tekst uit = "voor,";
    VoegVeldToe(uit, "a,\n");
    EXPECT_EQ(uit, "voor,a_ "); // what stood there stays as it was
    VoegVeldToe(uit, Tekstblik(uit).substr(4, 2));
    EXPECT_EQ(uit, "voor,a_ _a");
}

TEST(Tekst, MetNullen)
{
    EXPECT_EQ(MetNullen(7, 3), "007");
    EXPECT_EQ(MetNullen(1234, 3), "1234");
    EXPECT_EQ(MetNullen(0, 0), "0");
    EXPECT_EQ(MetNullen(0, 2), "00");
    EXPECT_EQ(MetNullen(5, -1), "5");
    EXPECT_EQ(MetNullen(-7, 3), "-007");
    EXPECT_EQ(MetNullen(std::numeric_limits<std::int64_t>::max(), 1), "9223372036854775807");
    EXPECT_EQ(MetNullen(std::numeric_limits<std::int64_t>::min(), 1), "-9223372036854775808");
}
