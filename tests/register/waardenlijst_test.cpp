#include "register/waardenlijst.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

/// The values seen, kept as one text.
Teksten GewoonVerzameld(const Teksten& waarden)
{
    Tekst gezien;
    Teksten nieuw;
    for (const Tekst& waarde : waarden) {
        const Tekst gemerkt = "#" + waarde + "#";
        if (gezien.find(gemerkt) != Tekst::npos)
            continue;
        gezien += gemerkt;
        nieuw.push_back(waarde);
    }
    return nieuw;
}

Teksten Verzameld(const Teksten& waarden)
{
    Waardenlijst lijst;
    for (const Tekst& waarde : waarden)
        lijst.Voeg(waarde);
    return lijst.Waarden();
}

} // namespace

TEST(Waardenlijst, ElkeWaardeEenKeerInVolgordeVanVerschijnen)
{
    EXPECT_EQ((Teksten{"b", "geen", "a", "B", " b"}),
              Verzameld({"b", "geen", "b", "a", "geen", "B", "a", " b"}));
    EXPECT_TRUE(Verzameld({}).empty());
    EXPECT_EQ((Teksten{"A-lijn", "A", "lijn", "A-lij"}),
              Verzameld({"A-lijn", "A", "lijn", "A-lij"}));
}

/// Meant: a "#" in a value counts as a mark and can hide another value.
TEST(Waardenlijst, EenHekjeInEenWaardeVerbergtAndere)
{
    EXPECT_EQ((Teksten{"a#b#c"}), Verzameld({"a#b#c", "b", "a", "c", "a#b", "b#c"}));
    EXPECT_EQ((Teksten{"a", "b"}), Verzameld({"a", "b", "a##b", ""}));
    EXPECT_EQ((Teksten{"a", "#"}), Verzameld({"a", "#", "#"}));
}

TEST(Waardenlijst, GelijkAanHetZoekenInEenDoorlopendeTekst)
{
    std::mt19937 toeval(33);
    for (int keer = 0; keer < 20'000; ++keer) {
        Teksten waarden(Gooi(toeval, 25));
        for (Tekst& waarde : waarden) {
            waarde.resize(Gooi(toeval, 6));
            for (char& teken : waarde)
                teken = "ab#"[Gooi(toeval, 3)];
        }
        ASSERT_EQ(GewoonVerzameld(waarden), Verzameld(waarden)) << testing::PrintToString(waarden);
    }
}
