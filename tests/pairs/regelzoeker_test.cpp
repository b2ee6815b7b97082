#include "pairs/regelzoeker.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Regels = std::vector<Tekstblik>;

/// The search as it is told: from the top, anywhere in the line.
int GewoonEerste(Regels& regels, std::vector<bool>& weg, const Tekst& zes)
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
    Regelzoeker zoeker(regels);
    EXPECT_EQ(1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(0, zoeker.NeemEerste("100001"));
    EXPECT_EQ(2, zoeker.NeemEerste("100001"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100001"));
    EXPECT_EQ(-1, zoeker.NeemEerste("100009"));
    EXPECT_EQ(std::vector<bool>({true, true, true}), zoeker.Weg());
}

/// Meant: a key inside a name is found too.
TEST(Regelzoeker, OokInDeNaamEnInEenLangerGetal)
{
    const Regels regels{"Bos 100002 An    100001", "Cock 91000023   100005", "Dam    100002"};
    Regelzoeker zoeker(regels);
    EXPECT_EQ(0, zoeker.NeemEerste("100002"));
    EXPECT_EQ(1, zoeker.NeemEerste("100002"));
    EXPECT_EQ(2, zoeker.NeemEerste("100002"));
}

TEST(Regelzoeker, EenSleutelDieGeenGetalIs)
{
    const Regels regels{"Bos An    100001", "Cock Bea de   100002"};
    Regelzoeker zoeker(regels);
    EXPECT_EQ(1, zoeker.NeemEerste("ea de "));
    EXPECT_EQ(0, zoeker.NeemEerste("An    "));
    EXPECT_EQ(-1, zoeker.NeemEerste("??????"));
    EXPECT_EQ(-1, Regelzoeker(Regels()).NeemEerste("100001"));
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
    for (int keer = 0; keer < 3000; ++keer) {
        std::vector<Tekst> teksten(Gooi(toeval, 12));
        for (Tekst& tekst : teksten)
            tekst = maak(Gooi(toeval, 16));
        Regels regels(teksten.begin(), teksten.end());
        Regelzoeker zoeker(regels);
        std::vector<bool> weg(regels.size());
        for (int vraag = 0; vraag < 15; ++vraag) {
            const Tekst zes = maak(6);
            ASSERT_EQ(GewoonEerste(regels, weg, zes), zoeker.NeemEerste(zes)) << zes;
            ASSERT_EQ(weg, zoeker.Weg());
        }
    }
}
