#include "platform/scherm/schildervlak.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

constexpr double MmPerPunt = 25.4 / 72.0;

constexpr Letter Arial10{.type = Lettertype::Arial, .punten = 10};
constexpr Letter Arial10Vet{.type = Lettertype::Arial, .punten = 10, .vet = true};
constexpr Letter Courier10{.type = Lettertype::CourierNew, .punten = 10};
constexpr Letter Times10{.type = Lettertype::TimesNewRoman, .punten = 10};

} // namespace

/// The advances of these fonts, in units of 2048 to the size of the letter, are published and hold
/// for their metric equals too.
TEST(Letterkast, DeBreedtenZijnDieVanDeGenoemdeLetters)
{
    const Letterkast kast;
    const auto eenheden = [&](const Letter& letter, Tekstblik tekst) {
        return kast.Breedte(letter, tekst) / (letter.punten * MmPerPunt) * 2048;
    };
    EXPECT_NEAR(1366, eenheden(Arial10, "A"), 0.01);
    EXPECT_NEAR(455, eenheden(Arial10, "i"), 0.01);
    EXPECT_NEAR(569, eenheden(Arial10, " "), 0.01);
    EXPECT_NEAR(1139, eenheden(Arial10, "0"), 0.01);
    EXPECT_NEAR(1479, eenheden(Arial10Vet, "A"), 0.01);
    EXPECT_NEAR(569, eenheden(Arial10Vet, "i"), 0.01);
    EXPECT_NEAR(1229, eenheden(Courier10, "A"), 0.01);
    EXPECT_NEAR(1229, eenheden(Courier10, "i"), 0.01);
    EXPECT_NEAR(1479, eenheden(Times10, "A"), 0.01);
    EXPECT_NEAR(1139, eenheden(Arial10, "\x80"), 0.01); // the euro
    EXPECT_NEAR(1366, eenheden(Arial10, "\xC9"), 0.01); // E with an accent
}

/// Pairs such as AV are not moved together and "fi" stays two letters.
TEST(Letterkast, EenTekstIsZoBreedAlsZijnTekens)
{
    const Letterkast kast;
    for (const Letter& letter : {Arial10, Arial10Vet, Courier10, Times10}) {
        for (const Tekstblik tekst : {"AVAWA", "office fi fl", "To. Ty\xEB"}) {
            double som = 0;
            for (const char teken : tekst)
                som += kast.Breedte(letter, Tekstblik(&teken, 1));
            EXPECT_NEAR(som, kast.Breedte(letter, tekst), 1e-9) << tekst;
        }
        EXPECT_EQ(0, kast.Breedte(letter, ""));
    }
}

TEST(Letterkast, DeMatenGroeienPreciesMetDePunten)
{
    const Letterkast kast;
    for (const double punten : {7.0, 8.0, 13.0, 14.0}) {
        Letter letter = Arial10;
        letter.punten = punten;
        EXPECT_NEAR(kast.Breedte(Arial10, "Achternaam") * punten / 10,
                    kast.Breedte(letter, "Achternaam"), 1e-9);
        EXPECT_NEAR(kast.Hoogte(Arial10) * punten / 10, kast.Hoogte(letter), 1e-9);
    }
}

TEST(Letterkast, EenLetterVanTienPuntenPastInEenRegel)
{
    const Letterkast kast;
    EXPECT_GT(kast.Hoogte(Arial10), 3.5);
    EXPECT_LT(kast.Hoogte(Arial10), 4.5);
}

TEST(Letterkast, StuurtekensZijnSpatiesBreed)
{
    const Letterkast kast;
    for (const Tekstblik teken : {"\t", "\r", "\x81", "\x01"})
        EXPECT_EQ(kast.Breedte(Arial10, " "), kast.Breedte(Arial10, teken));
}
