#include "platform/tekst/tekstorde.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

using namespace plexoran;

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

/// The letters of a character, written out; empty for what is no letter.
Tekst LettersVan(char teken)
{
    static const std::vector<std::pair<Tekst, Tekst>> lijst{
        {"\xC0\xC1\xC2\xC3\xC4\xC5\xE0\xE1\xE2\xE3\xE4\xE5", "A"},
        {"\xC7\xE7", "C"},
        {"\xD0\xF0", "D"},
        {"\xC8\xC9\xCA\xCB\xE8\xE9\xEA\xEB", "E"},
        {"\xCC\xCD\xCE\xCF\xEC\xED\xEE\xEF", "I"},
        {"\xD1\xF1", "N"},
        {"\xD2\xD3\xD4\xD5\xD6\xD8\xF2\xF3\xF4\xF5\xF6\xF8", "O"},
        {"\x8A\x9A", "S"},
        {"\xD9\xDA\xDB\xDC\xF9\xFA\xFB\xFC", "U"},
        {"\xDD\xFD\x9F\xFF", "Y"},
        {"\x8E\x9E", "Z"},
        {"\xC6\xE6", "AE"},
        {"\x8C\x9C", "OE"},
        {"\xDF", "SS"},
        {"\xDE\xFE", "TH"}};
    if (teken >= 'A' && teken <= 'Z')
        return {teken};
    if (teken >= 'a' && teken <= 'z')
        return {static_cast<char>(teken - 'a' + 'A')};
    for (const auto& [tekens, letters] : lijst) {
        if (tekens.find(teken) != Tekst::npos)
            return letters;
    }
    return {};
}

/// The same order, said plainly: a number per letter, sign or digit, and then the bytes.
std::pair<std::vector<int>, Tekst> GewoneSleutel(const Tekst& tekst)
{
    std::vector<int> gewichten;
    for (const char teken : tekst) {
        const Tekst letters = LettersVan(teken);
        for (const char letter : letters)
            gewichten.push_back(3000 + letter);
        const int code = static_cast<unsigned char>(teken);
        const int soort = teken == ' ' ? 0 : teken >= '0' && teken <= '9' ? 2000 : 1000;
        if (letters.empty())
            gewichten.push_back(soort + code);
    }
    return {gewichten, tekst};
}

} // namespace

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

TEST(Tekstorde, AlleenGelijkeTekstenHebbenEenGelijkeSleutel)
{
    for (int i = 0; i < 256; ++i) {
        for (int j = 0; j < 256; ++j) {
            const Tekst een(1, static_cast<char>(i));
            const Tekst ander(1, static_cast<char>(j));
            EXPECT_EQ(i == j, Sorteersleutel(een) == Sorteersleutel(ander)) << i << " " << j;
        }
    }
}

TEST(Tekstorde, GelijkAanDeGewoneVergelijking)
{
    std::mt19937 toeval(20);
    const Tekst geliefd = "aAbBeEoOsStThH \xC6\xE6\x8C\x9C\xDF\xDE\xFE\xD8\xE9,-09";
    const auto tekst = [&] {
        Tekst uit(toeval() % 6, ' ');
        for (char& teken : uit)
            teken = toeval() % 3 == 0 ? static_cast<char>(toeval() % 256)
                                      : geliefd[toeval() % geliefd.size()];
        return uit;
    };
    for (int i = 0; i < 100'000; ++i) {
        const Tekst een = tekst();
        const Tekst ander = tekst();
        const bool eerder = GewoneSleutel(een) < GewoneSleutel(ander);
        ASSERT_EQ(eerder, KomtVoor(een, ander)) << een << "\n" << ander;
        ASSERT_EQ(eerder, Sorteersleutel(een) < Sorteersleutel(ander)) << een << "\n" << ander;
    }
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
