#include "exchange/etiketvel.h"

#include "hulp/vlakvanger.h"

using namespace plexoran;

namespace {

constexpr double Naast = 1e-6;

/// One column of one label with room for text of 95 by 62.7 mm.
Etiketmaat Groot()
{
    return {1, 1, 100, 67.7, 10, 10, 100, 67.7};
}

std::vector<Etiketregel> Pas(const Etiketmaat& maat, const Etiket& etiket, bool naamkaarten = false)
{
    const Vastemeter meter;
    return PasEtiket({.maat = maat, .naamkaarten = naamkaarten}, etiket, meter);
}

Vlakvanger Teken(const Etiketwerk& werk, int blad, const std::optional<Kleur>& kader = {})
{
    Vlakvanger vlak;
    TekenEtiketten(vlak, werk, blad, kader);
    return vlak;
}

/// As many labels of one line, "1" and on.
Etiketwerk Werk(const Etiketmaat& maat, int aantal, int eerste = 1)
{
    Etiketwerk werk{.maat = maat, .eerste = eerste};
    for (int i = 1; i <= aantal; ++i)
        werk.etiketten.push_back({std::to_string(i)});
    return werk;
}

} // namespace

// ---------------------------------------------------------------- measures

TEST(Etiketmaat, DeGewoneVellenPassenOpA4)
{
    std::vector<int> aantallen;
    for (const Etiketmaat& maat : Etiketvellen) {
        EXPECT_TRUE(maat.IsGoed()) << maat.PerVel();
        aantallen.push_back(maat.PerVel());
        // As much white at the right as at the left, and below as above.
        EXPECT_NEAR(210, 2 * maat.links + (maat.kolommen - 1) * maat.stapOpzij + maat.breed, 0.011);
        EXPECT_NEAR(297, 2 * maat.boven + (maat.rijen - 1) * maat.stapOmlaag + maat.hoog, 0.011);
    }
    EXPECT_EQ((std::vector<int>{14, 21, 24, 8, 40}), aantallen);
    EXPECT_TRUE(Etiketmaat().IsGoed());
}

TEST(Etiketmaat, WatNietPastIsGeenVel)
{
    EXPECT_TRUE((Etiketmaat{2, 2, 100, 50, 10, 10, 100, 50}.IsGoed()));
    EXPECT_FALSE((Etiketmaat{2, 2, 100, 50, 10.01, 10, 100, 50}.IsGoed())) << "te breed";
    EXPECT_FALSE((Etiketmaat{2, 2, 100, 50, 0, 0, 110.5, 50}.IsGoed())) << "te breed";
    EXPECT_TRUE((Etiketmaat{1, 5, 100, 59.4, 0, 0, 0, 59.4}.IsGoed()));
    EXPECT_FALSE((Etiketmaat{1, 5, 100, 59.4, 0, 0.01, 0, 59.4}.IsGoed())) << "te hoog";
    EXPECT_FALSE((Etiketmaat{2, 2, 100, 50, 0, 0, 99.99, 50}.IsGoed())) << "over elkaar";
    EXPECT_FALSE((Etiketmaat{2, 2, 100, 50, 0, 0, 100, 49}.IsGoed())) << "over elkaar";
    EXPECT_TRUE((Etiketmaat{1, 1, 20, 16.1, 10, 10, 0, 0}.IsGoed()));
    EXPECT_FALSE((Etiketmaat{1, 1, 19.9, 16.1, 10, 10, 0, 0}.IsGoed())) << "te smal";
    EXPECT_FALSE((Etiketmaat{1, 1, 20, 16, 10, 10, 0, 0}.IsGoed())) << "te laag";
    EXPECT_FALSE((Etiketmaat{1, 1, 20, 16.1, 0, 10, 0, 0}.IsGoed())) << "de rand print niet";
}

// ---------------------------------------------------------------- the file

TEST(Etiketmaat, HetBestandIsTeLezen)
{
    const Tekst tekst = "KOLOMMEN=3\r\nRIJEN=7\r\nBREED=63.5\r\nHOOG=38.1\r\nLINKS=7.25\r\n"
                        "BOVEN=15.15\r\nSTAPOPZIJ=66\r\nSTAPOMLAAG=38.1\r\n";
    EXPECT_EQ(tekst, EtiketmaatTekst(Etiketvellen[1]));
    EXPECT_EQ(Etiketvellen[1], EtiketmaatUit(tekst).value());
    EXPECT_EQ(Etiketvellen[1],
              EtiketmaatUit("KOLOMMEN= 3\nRIJEN=7 \nBREED=63,5\nHOOG=38,10\nLINKS=7,25\n"
                            "BOVEN=15.15\nSTAPOPZIJ=66.00\nSTAPOMLAAG=38.1")
                  .value());
}

TEST(Etiketmaat, EenBeschadigdBestandNoemtDeRegel)
{
    const auto regel = [](const Tekst& van, const Tekst& naar) {
        Tekst tekst = EtiketmaatTekst(Etiketvellen[1]);
        tekst.replace(tekst.find(van), van.size(), naar);
        const auto uit = EtiketmaatUit(tekst);
        return uit || uit.error().soort != Foutsoort::Beschadigd ? -1 : uit.error().regel;
    };
    EXPECT_EQ(1, regel("KOLOMMEN=3", "KOLOMMEN=0"));
    EXPECT_EQ(1, regel("KOLOMMEN=3", "KOLOMMEN=2.5"));
    EXPECT_EQ(2, regel("RIJEN=7", "RIJEN="));
    EXPECT_EQ(3, regel("BREED=63.5", "BREED=-63.5"));
    EXPECT_EQ(3, regel("BREED=63.5", "BREED=63.5mm"));
    EXPECT_EQ(3, regel("BREED=63.5", "BREED=nan"));
    EXPECT_EQ(3, regel("BREED=63.5", "BREED=1e300"));
    EXPECT_EQ(4, regel("HOOG", "LENGTE"));
    EXPECT_EQ(5, regel("LINKS=7.25\r\n", ""));
    EXPECT_EQ(9, regel("STAPOMLAAG=38.1\r\n", "STAPOMLAAG=38.1\r\nMEER=1\r\n"));
    EXPECT_EQ(0, regel("BREED=63.5", "BREED=66.5")) << "past niet; geen regel alleen heeft schuld";
    EXPECT_EQ(1, EtiketmaatUit("").error().regel);
    EXPECT_EQ(1, EtiketmaatUit(Tekst(5, '\0')).error().regel);
}

// ---------------------------------------------------------------- a label

/// 4.4 mm to a line of 11 points.
TEST(Etiketvel, EenAdresStaatLinksOpHalveHoogte)
{
    const auto regels = Pas(Groot(), {"Jan Bos", "Brink 1", "0411 AB  Ede"});
    ASSERT_EQ(3U, regels.size());
    const double boven = 2.5 + (62.7 - 13.2) / 2;
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ((Letter{.punten = 11}), regels[i].letter);
        EXPECT_NEAR(2.5, regels[i].x, Naast);
        EXPECT_NEAR(boven + 4.4 * static_cast<double>(i), regels[i].y, Naast);
        EXPECT_FALSE(regels[i].ingekort);
    }
    EXPECT_EQ("0411 AB  Ede", regels[2].tekst);
}

TEST(Etiketvel, EenNaamkaartjeStaatInHetMidden)
{
    const auto regels = Pas(Groot(), {"Jan", "Bos", "De Rietkraag"}, true);
    ASSERT_EQ(3U, regels.size());
    const double boven = 2.5 + (62.7 - 2 * 10.4 - 4) / 2;
    EXPECT_EQ((Letter{.punten = 26, .vet = true}), regels[0].letter);
    EXPECT_EQ((Letter{.punten = 26, .vet = true}), regels[1].letter);
    EXPECT_EQ((Letter{.punten = 10}), regels[2].letter);
    EXPECT_NEAR(50 - 3 * 26 * 0.125 / 2, regels[0].x, Naast);
    EXPECT_NEAR(50 - 12 * 10 * 0.1 / 2, regels[2].x, Naast);
    EXPECT_NEAR(boven, regels[0].y, Naast);
    EXPECT_NEAR(boven + 10.4, regels[1].y, Naast);
    EXPECT_NEAR(boven + 20.8, regels[2].y, Naast);
    // Without a first name and a small line the surname alone stands in the middle.
    const auto een = Pas(Groot(), {"", "Bos", ""}, true);
    ASSERT_EQ(1U, een.size());
    EXPECT_EQ((Letter{.punten = 26, .vet = true}), een[0].letter);
    EXPECT_NEAR(2.5 + (62.7 - 10.4) / 2, een[0].y, Naast);
}

/// 95 mm hold 95 characters of 10 points, and 135 of 7.
TEST(Etiketvel, WatTeBreedIsWordtKleinerEnDanIngekort)
{
    const auto regels = Pas(Groot(), {Tekst(95, 'x'), Tekst(135, 'y'), Tekst(140, 'z'), "w"});
    EXPECT_NEAR(10, regels[0].letter.punten, Naast);
    EXPECT_EQ(Tekst(95, 'x'), regels[0].tekst);
    EXPECT_FALSE(regels[0].ingekort);
    EXPECT_NEAR(95.0 / 13.5, regels[1].letter.punten, Naast);
    EXPECT_EQ(Tekst(135, 'y'), regels[1].tekst);
    EXPECT_FALSE(regels[1].ingekort);
    EXPECT_NEAR(7, regels[2].letter.punten, Naast);
    EXPECT_EQ(Tekst(132, 'z') + "...", regels[2].tekst);
    EXPECT_TRUE(regels[2].ingekort);
    EXPECT_NEAR(11, regels[3].letter.punten, Naast);
    // A smaller line stands half way down its own place.
    const double boven = 2.5 + (62.7 - 4 * 4.4) / 2;
    EXPECT_NEAR(boven + (4.4 - 4) / 2, regels[0].y, Naast);
    EXPECT_NEAR(boven + 3 * 4.4, regels[3].y, Naast);
}

/// Room of 11.1 mm for four lines of 4.4 mm.
TEST(Etiketvel, WatTeHoogIsWordtSamenKleiner)
{
    const auto regels = Pas({1, 1, 100, 16.1, 10, 10, 0, 0}, {"a", "b", "c", "d"});
    ASSERT_EQ(4U, regels.size());
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(11 * 11.1 / 17.6, regels[i].letter.punten, Naast);
        EXPECT_NEAR(2.5 + 11.1 / 4 * static_cast<double>(i), regels[i].y, Naast);
    }
}

/// No printer reaches the five millimetres along the edge of the sheet.
TEST(Etiketvel, LangsDeRandVanHetVelStaatNiets)
{
    const Etiketmaat& maat = Etiketvellen[2]; // up to the sides, half a millimetre below the edge
    const auto regels = Pas(maat, {Tekst(500, 'x'), "b", "c", "d"});
    EXPECT_NEAR(5, regels[0].x, Naast);
    EXPECT_NEAR(60, Vastemeter().Breedte(regels[0].letter, regels[0].tekst), 0.7);
    EXPECT_NEAR(4.5 + (28 - 17.6) / 2 + 4.4, regels[1].y, Naast);
}

// ---------------------------------------------------------------- the sheets

TEST(Etiketvel, DeEtikettenStaanOpHunPlaats)
{
    const Vlakvanger vlak = Teken(Werk(Etiketvellen[1], 21), 1);
    ASSERT_EQ(21U, vlak.teksten.size());
    EXPECT_TRUE(vlak.lijnen.empty());
    const double binnen = (38.1 - 4.4) / 2;
    for (int i = 0; i < 21; ++i) {
        const auto deel = vlak.Deel(std::to_string(i + 1));
        EXPECT_NEAR(7.25 + 2.5 + 66 * (i % 3), deel.x, Naast) << i;
        EXPECT_NEAR(15.15 + binnen + 38.1 * (i / 3), deel.y, Naast) << i;
    }
}

TEST(Etiketvel, HetEersteVrijeEtiket)
{
    const Etiketwerk werk = Werk(Etiketvellen[3], 9, 4);
    EXPECT_EQ(2, werk.Bladen());
    const Vlakvanger een = Teken(werk, 1);
    EXPECT_EQ((std::vector<Tekst>{"1", "2", "3", "4", "5"}), een.Teksten());
    EXPECT_NEAR(4.65 + 101.6 + 2.5, een.Deel("1").x, Naast);
    EXPECT_NEAR(13.1 + 67.7 + (67.7 - 4.4) / 2, een.Deel("1").y, Naast);
    const Vlakvanger twee = Teken(werk, 2);
    EXPECT_EQ((std::vector<Tekst>{"6", "7", "8", "9"}), twee.Teksten());
    EXPECT_NEAR(4.65 + 2.5, twee.Deel("6").x, Naast);
    EXPECT_NEAR(13.1 + (67.7 - 4.4) / 2, twee.Deel("6").y, Naast);
}

TEST(Etiketvel, HoeveelVellen)
{
    EXPECT_EQ(1, Werk(Etiketvellen[3], 0).Bladen());
    EXPECT_EQ(1, Werk(Etiketvellen[3], 8).Bladen());
    EXPECT_EQ(2, Werk(Etiketvellen[3], 9).Bladen());
    EXPECT_EQ(1, Werk(Etiketvellen[3], 1, 8).Bladen());
    EXPECT_EQ(2, Werk(Etiketvellen[3], 2, 8).Bladen());
}

TEST(Etiketvel, DeLijnenStaanOmElkEtiketVanHetVel)
{
    const Vlakvanger vlak = Teken(Werk(Etiketvellen[3], 1), 1, Kleur{100, 100, 100});
    ASSERT_EQ(8 * 4U, vlak.lijnen.size());
    const auto& boven = vlak.lijnen[4]; // of the second label
    EXPECT_NEAR(106.25, boven.x1, Naast);
    EXPECT_NEAR(13.1, boven.y1, Naast);
    EXPECT_NEAR(205.35, boven.x2, Naast);
    EXPECT_NEAR(13.1, boven.y2, Naast);
    const auto& rechts = vlak.lijnen[7];
    EXPECT_NEAR(205.35, rechts.x1, Naast);
    EXPECT_NEAR(80.8, rechts.y2, Naast);
    EXPECT_EQ((Kleur{100, 100, 100}), boven.kleur);
    EXPECT_EQ(0.1, boven.dikte);
}

TEST(Etiketvel, OpEenVelDatNietPastStaatGeenTekst)
{
    const Vlakvanger vlak = Teken(Werk({3, 1, 90, 60, 0, 0, 90, 60}, 3), 1, Kleur{});
    EXPECT_TRUE(vlak.teksten.empty());
    EXPECT_EQ(3 * 4U, vlak.lijnen.size());
}
