#include "pairs/regelzoeker.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Regels = std::vector<Tekst>;

/// The search as it is told: from the top, anywhere in the line.
int GewoonEerste(const Regels& regels, std::vector<bool>& weg, Tekstblik zes)
{
    for (std::size_t i = 0; i < regels.size(); ++i) {
        if (!weg[i] && regels[i].find(zes) != Tekst::npos) {
            weg[i] = true;
            return static_cast<int>(i);
        }
    }
    return -1;
}

} // namespace

TEST(Regelzoeker, DeEersteRegelDieErIs)
{
    const Regels regels{"Bos An    100001", "Cock Bea de   100002", "Dam Cor    100001"};
    const Paartekens paren{"100002-100001", "100009-100001"};
    Regelzoeker zoeker(regels, paren);
    EXPECT_EQ(1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(0, zoeker.NeemEerste("100001"));
    EXPECT_FALSE(zoeker.IsWeg(2));
    EXPECT_EQ(2, zoeker.NeemEerste("100001"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100001"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100009"));
    EXPECT_TRUE(zoeker.IsWeg(0) && zoeker.IsWeg(1) && zoeker.IsWeg(2));
}

/// Meant: a key inside a name is found too.
TEST(Regelzoeker, OokInDeNaamEnInEenLangerGetal)
{
    const Regels regels{"Bos 100002 An    100001", "Cock 91000023   100005", "Dam    100002"};
    const Paartekens paren{"100002-100002"};
    Regelzoeker zoeker(regels, paren);
    EXPECT_EQ(0, zoeker.NeemEerste("100002"));
    EXPECT_EQ(1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(2, zoeker.NeemEerste("100002"));
}

TEST(Regelzoeker, EenSleutelDieGeenGetalIs)
{
    const Regels regels{"Bos An    100001", "Cock Bea de   100002"};
    const Paartekens paren{"ea de -An    ", std::string(6, '?') + "-100001"};
    Regelzoeker zoeker(regels, paren);
    EXPECT_EQ(1, zoeker.NeemEerste("ea de "));
    EXPECT_EQ(0, zoeker.NeemEerste("An    "));
    EXPECT_EQ(-1, zoeker.NeemEerste(std::string(6, '?')));
    EXPECT_EQ(-1, Regelzoeker({}, paren).NeemEerste("100001"));
}

TEST(Regelzoeker, GelijkAanHetGewoneOpDuizendenLijsten)
{
    std::mt19937 toeval(6);
    const std::vector<Tekst> stukken{"1", "2", "100", "11111", "a", " ", "100001", "b1", "\xE9"};
    const auto maak = [&](std::size_t lengte) {
        Tekst tekst;
        while (tekst.size() < lengte)
            tekst += Trek(toeval, stukken);
        tekst.resize(lengte);
        return tekst;
    };
    std::size_t gevonden = 0;
    for (int keer = 0; keer < 3000; ++keer) {
        Regels regels(Gooi(toeval, 12));
        for (Tekst& regel : regels)
            regel = maak(Gooi(toeval, 16));
        Paartekens paren(15);
        for (Tekst& paar : paren)
            paar = maak(6) + "-" + maak(6);
        Regelzoeker zoeker(regels, paren);
        std::vector<bool> weg(regels.size());
        for (const Tekstblik paar : paren) {
            for (const Tekstblik key : {paar.substr(0, 6), paar.substr(7)}) {
                const int moet = GewoonEerste(regels, weg, key);
                ASSERT_EQ(moet, zoeker.NeemEerste(key)) << key;
                gevonden += moet >= 0 ? 1 : 0;
            }
            for (std::size_t i = 0; i < regels.size(); ++i)
                ASSERT_EQ(weg[i], zoeker.IsWeg(i));
        }
    }
    EXPECT_GT(gevonden, 3000U);
}
