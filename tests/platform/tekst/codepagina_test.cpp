#include "platform/tekst/codepagina.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

Tekst AlleBytes()
{
    Tekst uit;
    for (int i = 0; i < 256; ++i)
        uit += static_cast<char>(i);
    return uit;
}

/// The replacement of a text of one character, which must be the only one and in place.
Tekst NaastVan(std::u16string_view teken)
{
    const Omzetting omzetting = NaarCodepagina(std::u16string(u"a") + std::u16string(teken) + u"z");
    if (omzetting.vervangen.size() != 1 || omzetting.vervangen[0].teken != teken)
        return "niet als enige vervangen";
    EXPECT_EQ(omzetting.tekst, "a" + omzetting.vervangen[0].door + "z");
    return omzetting.vervangen[0].door;
}

} // namespace

TEST(Codepagina, AlleBytesKomenTerug)
{
    const std::u16string tekens = NaarUtf16(AlleBytes());
    ASSERT_EQ(tekens.size(), 256U);
    EXPECT_EQ(ExactNaarCodepagina(tekens), AlleBytes());
    const Omzetting omzetting = NaarCodepagina(tekens);
    EXPECT_EQ(omzetting.tekst, AlleBytes());
    EXPECT_TRUE(omzetting.vervangen.empty());
}

TEST(Codepagina, BytesZijnDezeTekens)
{
    EXPECT_EQ(NaarUtf16("Az 09~\x7F"), u"Az 09~\u007F");
    EXPECT_EQ(NaarUtf16("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(NaarUtf16("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              u"‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(NaarUtf16("\xA0\xA9\xBF\xC0\xDF\xE9\xFF"), u"\u00A0©¿Àßéÿ");
}

TEST(Codepagina, OnbepaaldeBytesZijnStuurtekens)
{
    const std::u16string stuur = {0x81, 0x8D, 0x8F, 0x90, 0x9D};
    EXPECT_EQ(NaarUtf16("\x81\x8D\x8F\x90\x9D"), stuur);
    EXPECT_EQ(ExactNaarCodepagina(stuur), "\x81\x8D\x8F\x90\x9D");
    // Other control characters do not fit.
    EXPECT_EQ(ExactNaarCodepagina(std::u16string{0x80}), std::nullopt);
    EXPECT_EQ(NaastVan(std::u16string{0x9F}), "");
}

TEST(Codepagina, NaarUtf8)
{
    EXPECT_EQ(NaarUtf8(""), "");
    EXPECT_EQ(NaarUtf8("Ren\xE9 \x80 10"), "Ren\xC3\xA9 \xE2\x82\xAC 10");
    EXPECT_EQ(NaarUtf8(Tekst("a\0\x81", 3)), std::string("a\0\xC2\x81", 4));
}

TEST(Codepagina, ExactWeigertWatNietPast)
{
    EXPECT_EQ(ExactNaarCodepagina(u"Dvořák"), std::nullopt);
    EXPECT_EQ(ExactNaarCodepagina(u"e\u0301"), std::nullopt);
    EXPECT_EQ(ExactNaarCodepagina(u"𝔸"), std::nullopt);
    EXPECT_EQ(ExactNaarCodepagina(u""), "");
}

TEST(Codepagina, LosAccentWordtSamengesteld)
{
    const Omzetting omzetting = NaarCodepagina(u"Rene\u0301 A\u030Angstro\u0308m s\u030C");
    EXPECT_EQ(omzetting.tekst, "Ren\xE9 \xC5ngstr\xF6m \x9A");
    EXPECT_TRUE(omzetting.vervangen.empty());
}

TEST(Codepagina, AccentDatNietPastValtWeg)
{
    const Omzetting omzetting = NaarCodepagina(u"Dvořa\u0301k c\u030C x\u0302");
    EXPECT_EQ(omzetting.tekst, "Dvor\xE1k c x");
    ASSERT_EQ(omzetting.vervangen.size(), 3U);
    EXPECT_EQ(omzetting.vervangen[0].teken, u"ř");
    EXPECT_EQ(omzetting.vervangen[0].door, "r");
    EXPECT_EQ(omzetting.vervangen[1].teken, u"č");
    EXPECT_EQ(omzetting.vervangen[1].door, "c");
    EXPECT_EQ(omzetting.vervangen[2].teken, u"\u0302");
    EXPECT_EQ(omzetting.vervangen[2].door, "");
}

TEST(Codepagina, NaasteLetters)
{
    const std::u16string_view letters = u"ĐƉđƏəǤǥĦħıĸŁłŊŋŦŧƷʒ";
    for (std::size_t i = 0; i < letters.size(); ++i)
        EXPECT_EQ(NaastVan(letters.substr(i, 1)), Tekst(1, "DDdEeGgHhikLlNnTtZz"[i])) << i;
    const std::pair<std::u16string_view, Tekst> andere[] = {
        {u"ő", "o"},         {u"ấ", "a"},         {u"Ș", "S"},      {u"ǽ", "\xE6"},
        {u"ĳ", "ij"},        {u"ﬃ", "ffi"},       {u"①", "1"},      {u"Ａ", "A"},
        {u"№", "No"},        {u"⅓", "1/3"},       {u"ŉ", "\x92n"},  {u"ẞ", "SS"},
        {u"Ǆ", "D\x8E"},     {u"ǅ", "D\x9E"},     {u"ǆ", "d\x9E"},  {u"ǯ", "z"},
        {u"\u2010", "-"},    {u"\u2011", "-"},    {u"\u2212", "-"}, {u"\u2012", "\x96"},
        {u"\u2015", "\x97"}, {u"\u2009", " "},    {u"\u202F", " "}, {u"\u02BC", "\x92"},
        {u"\u201B", "\x91"}, {u"\u2032", "'"},    {u"\u02B9", "'"}, {u"\u02C8", "'"},
        {u"\u2033", "\""},   {u"\u03BC", "\xB5"}, {u"\u2044", "/"}, {u"\u2215", "/"}};
    for (const auto& [teken, door] : andere)
        EXPECT_EQ(NaastVan(teken), door);
}

TEST(Codepagina, ZonderGelijkenisWeggelaten)
{
    // U+FDFA would leave nothing but the spaces between its words, U+32C0 is a 1 and a sign that
    // has no likeness.
    for (const std::u16string_view teken :
         {u"Ж", u"中", u"\u200B", u"\uFEFF", u"\u02D9", u"\uFDFA", u"\U000100D7", u"\u32C0"})
        EXPECT_EQ(NaastVan(teken), "");
}

TEST(Codepagina, BuitenHetBasisvlak)
{
    EXPECT_EQ(NaastVan(u"𝐁"), "B");
    EXPECT_EQ(NaastVan(u"😀"), "");
    const Omzetting omzetting = NaarCodepagina(u"\U0001F600x\U0001D401");
    EXPECT_EQ(omzetting.tekst, "xB");
    ASSERT_EQ(omzetting.vervangen.size(), 2U);
    EXPECT_EQ(omzetting.vervangen[0].teken.size(), 2U);
}

TEST(Codepagina, LosseSurrogaten)
{
    const std::u16string hoog = {0xD835};
    const std::u16string laag = {0xDC01};
    EXPECT_EQ(NaastVan(hoog), "");
    EXPECT_EQ(NaastVan(laag), "");
    const Omzetting omgekeerd = NaarCodepagina(laag + hoog);
    EXPECT_EQ(omgekeerd.tekst, "");
    ASSERT_EQ(omgekeerd.vervangen.size(), 2U);
    EXPECT_EQ(omgekeerd.vervangen[0].teken, laag);
    EXPECT_EQ(omgekeerd.vervangen[1].teken, hoog);
    EXPECT_EQ(NaarCodepagina(u"a" + hoog).tekst, "a");
    EXPECT_EQ(ExactNaarCodepagina(hoog), std::nullopt);
}

TEST(Codepagina, HerkentUtf8)
{
    EXPECT_TRUE(IsUtf8("Zo\xC3\xAB"));
    EXPECT_TRUE(IsUtf8("\xEF\xBB\xBF"
                       "1;M"));
    EXPECT_TRUE(IsUtf8("\xE2\x82\xAC\x1A"));
    EXPECT_FALSE(IsUtf8(""));
    EXPECT_FALSE(IsUtf8("Zoe"));
    EXPECT_FALSE(IsUtf8("Zo\xEB"));
    EXPECT_FALSE(IsUtf8("Zo\xC3\xAB en Zo\xEB")) << "een enkel ander teken";
    EXPECT_FALSE(IsUtf8("Zo\xC3")) << "afgekapt";
    EXPECT_FALSE(IsUtf8("\xFF\xFE"
                        "1"));
}
