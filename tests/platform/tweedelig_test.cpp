#include "platform/tweedelig.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Tweedelig, WatErbijKomtVerplaatstHetEersteDeelNiet)
{
    Tweedelig<std::vector<int>> getallen({1, 2, 3});
    const int* const eerste = getallen.Vanaf(0);
    for (int i = 4; i <= 1000; ++i)
        getallen.Tweede().push_back(i);
    ASSERT_EQ(getallen.size(), 1000U);
    for (std::size_t i = 0; i < getallen.size(); ++i)
        ASSERT_EQ(getallen[i], static_cast<int>(i) + 1);
    EXPECT_EQ(getallen.Vanaf(0), eerste);
}

TEST(Tweedelig, KortInTotInElkDeel)
{
    for (std::size_t aantal = 0; aantal <= 5; ++aantal) {
        Tweedelig<std::string> tekst(std::string("abc"));
        tekst.Tweede() = "de";
        tekst.KortIn(aantal);
        ASSERT_EQ(tekst.size(), aantal);
        for (std::size_t i = 0; i < aantal; ++i)
            ASSERT_EQ(tekst[i], "abcde"[i]);
        tekst.Tweede() += 'x';
        ASSERT_EQ(tekst[aantal], 'x');
    }
}

TEST(Tweedelig, SchrijvenInBeideDelen)
{
    Tweedelig<std::string> tekst(std::string("abc"));
    tekst.Tweede() = "de";
    tekst[1] = 'B';
    *tekst.Vanaf(4) = 'E';
    EXPECT_EQ(std::string(tekst.Vanaf(0), 3) + std::string(tekst.Vanaf(3), 2), "aBcdE");
}
