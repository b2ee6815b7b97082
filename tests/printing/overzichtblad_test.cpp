#include "printing/overzichtblad.h"

#include <set>

#include "hulp/vlakvanger.h"

using namespace plexoran;

namespace {

Overzichtregel Regel(int diepte, const Tekst& tekst, std::size_t aantal)
{
    return {.diepte = diepte, .tekst = tekst, .aantal = aantal};
}

} // namespace

TEST(Overzichtblad, ElkGetalHeeftZijnBalk)
{
    Vlakvanger vlak;
    TekenOverzicht(vlak, "Overzicht",
                   {Regel(0, "Alle spelers", 40),
                    {.diepte = 0, .tekst = "Groepen"},
                    Regel(1, "Gr01-Clubleden", 10),
                    Regel(2, "A-LIJN", 0),
                    Regel(1, "Zwevend", 80)});
    EXPECT_EQ((std::vector<Tekst>{"Overzicht", "Alle spelers", "40", "Groepen", "Gr01-Clubleden",
                                  "10", "A-LIJN", "0", "Zwevend", "80"}),
              vlak.Teksten());
    ASSERT_EQ(3U, vlak.lijnen.size()) << "een kop en een nul hebben er geen";
    const auto lang = [&](std::size_t i) { return vlak.lijnen[i].x2 - vlak.lijnen[i].x1; };
    EXPECT_NEAR(lang(0) / 4, lang(1), 1e-9);
    EXPECT_NEAR(lang(0), lang(2), 1e-9) << "nooit langer dan de langste";
    EXPECT_NEAR(195, vlak.lijnen[0].x2, 1e-9) << "tot de rechterrand";
    EXPECT_GT(vlak.lijnen[0].y1, vlak.Deel("40").y);
    EXPECT_LT(vlak.lijnen[0].y1, vlak.Deel("Groepen").y);
    EXPECT_GT(vlak.Deel("A-LIJN").x, vlak.Deel("Gr01-Clubleden").x);
}

TEST(Overzichtblad, HoeveelRegelsOokHetPastOpEenBlad)
{
    for (const int aantal : {1, 50, 61, 130, 200, 1000}) {
        std::vector<Overzichtregel> regels;
        for (int i = 0; i < aantal; ++i)
            regels.push_back(Regel(i % 3, Tekst(60, 'x') + std::to_string(i), 1234567));
        Vlakvanger vlak;
        TekenOverzicht(vlak, "Overzicht", regels);
        EXPECT_EQ(static_cast<std::size_t>(aantal), vlak.lijnen.size());
        std::set<std::pair<double, double>> plekken;
        for (const auto& deel : vlak.teksten) {
            EXPECT_GE(deel.x, 15) << aantal;
            EXPECT_LE(deel.x + vlak.Meter().Breedte(deel.letter, deel.tekst), 195 + 1e-9) << aantal;
            EXPECT_LE(deel.y + vlak.Meter().Hoogte(deel.letter), 297 - 15 + 1e-9) << aantal;
            EXPECT_TRUE(plekken.emplace(deel.x, deel.y).second) << aantal;
        }
        for (const auto& lijn : vlak.lijnen)
            EXPECT_LE(lijn.x2, 195 + 1e-9) << aantal;
    }
}
