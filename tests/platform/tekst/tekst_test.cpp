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

// ---- Numbers ----------------------------------------------------------------------------------

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

// ---- Order
// ---------------------------------------------------------------------------------------

namespace {

/// Each text stands strictly before every later one.
void VerwachtOplopend(const std::vector<Tekst>& teksten)
{
    for (std::size_t i = 0; i < teksten.size(); ++i) {
        for (std::size_t j = i + 1; j < teksten.size(); ++j)
            EXPECT_LT(Sorteersleutel(teksten[i]), Sorteersleutel(teksten[j]))
                << "'" << teksten[i] << "' en '" << teksten[j] << "'";
    }
}

} // namespace

/// By itself each character has its place: signs by their codes, letters beside their likes.
TEST(Tekstorde, AlleTekens)
{
    const Tekst letters = "Aa\xC0\xC1\xC2\xC3\xC4\xC5\xE0\xE1\xE2\xE3\xE4\xE5\xC6\xE6"
                          "Bb"
                          "Cc\xC7\xE7"
                          "Dd\xD0\xF0"
                          "Ee\xC8\xC9\xCA\xCB\xE8\xE9\xEA\xEB"
                          "FfGgHhIi\xCC\xCD\xCE\xCF\xEC\xED\xEE\xEFJjKkLlMmNn\xD1\xF1"
                          "Oo\xD2\xD3\xD4\xD5\xD6\xD8\xF2\xF3\xF4\xF5\xF6\xF8\x8C\x9C"
                          "PpQqRrSs\x8A\x9A\xDFTt\xDE\xFEUu\xD9\xDA\xDB\xDC\xF9\xFA\xFB\xFC"
                          "VvWwXxYy\x9F\xDD\xFD\xFFZz\x8E\x9E";
    std::vector<Tekst> verwacht{"", " "};
    for (int i = 0; i < 256; ++i) {
        const char teken = static_cast<char>(i);
        if (teken != ' ' && !IsCijfer(teken) && letters.find(teken) == Tekst::npos)
            verwacht.emplace_back(1, teken);
    }
    for (const char teken : "0123456789" + letters)
        verwacht.emplace_back(1, teken);
    ASSERT_EQ(verwacht.size(), 257U);
    VerwachtOplopend(verwacht);
}

TEST(Tekstorde, EerstBlankDanTekensDanCijfersDanLetters)
{
    VerwachtOplopend({"",  " ", "\t",   "!",    "'",    "(",    ",", "-", ".", "/", ":", "@", "[",
                      "_", "~", "\x80", "\xA0", "\xD7", "\xF7", "0", "1", "9", "A", "B", "Z"});
}

TEST(Tekstorde, EenKortereTekstKomtVoorEenLangere)
{
    VerwachtOplopend({"Bos", "Bos ", "Bos-Dam", "Bos1", "Bosch", "Bosman"});
}

TEST(Tekstorde, HoofdletterEnAccentTellenPasAlsVerderAllesGelijkIs)
{
    VerwachtOplopend({"Anna", "anna", "\xC0nna", "\xE0nna", "anne", "B"});
    VerwachtOplopend({"ZO\xCBK", "zoel", "Zo\xEBM"});
    VerwachtOplopend({"C", "\xC7", "\xE7", "D", "\xD0", "\xF0", "E"});
    VerwachtOplopend({"N", "n", "\xD1", "\xF1", "O"});
    VerwachtOplopend({"R", "S", "s", "\x8A", "\x9A", "T"});
    VerwachtOplopend({"Y", "y", "\x9F", "\xDD", "\xFD", "\xFF", "Z", "z", "\x8E", "\x9E"});
}

TEST(Tekstorde, TekensDieVoorTweeLettersStaan)
{
    VerwachtOplopend({"Ad", "AE", "Ae", "aE", "ae", "\xC6", "\xE6", "Af"});
    VerwachtOplopend({"Od", "OE", "oe", "\x8C", "\x9C", "Of"});
    VerwachtOplopend({"Sr", "SS", "ss", "\xDF", "St"});
    VerwachtOplopend({"Tg", "TH", "th", "\xDE", "\xFE", "Ti"});
    VerwachtOplopend({"Gro\xDFk", "Grossl", "Gro\xDFm"});
    VerwachtOplopend({"Nz", "O", "o", "\xD6", "\xD8", "\xF6", "\xF8", "Oa", "\xD8k"});
}

TEST(Tekstorde, SorteertEnHoudtDubbeleTeksten)
{
    std::vector<Tekst> teksten{"bos", "9", "Zo\xEB", "Bos", "", "\xC5s", "bos", "Zoa", "'t Hof"};
    Sorteer(teksten);
    const std::vector<Tekst> gesorteerd{"",    "'t Hof", "9",   "\xC5s", "Bos",
                                        "bos", "bos",    "Zoa", "Zo\xEB"};
    EXPECT_EQ(gesorteerd, teksten);
    std::vector<Tekst> eigen{"b", "a 2", "\xC9\xE9n", "A 10"};
    Sorteer(eigen);
    EXPECT_EQ((std::vector<Tekst>{"A 10", "a 2", "b", "\xC9\xE9n"}), eigen);
}
