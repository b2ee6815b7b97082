#include "platform/scherm/schildervlak.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

constexpr double MmPerPunt = 25.4 / 72.0;

constexpr Letter Arial10{.type = Lettertype::Arial, .punten = 10};
constexpr Letter Arial10Vet{.type = Lettertype::Arial, .punten = 10, .vet = true};
constexpr Letter Courier10{.type = Lettertype::CourierNew, .punten = 10};
constexpr Letter Times10{.type = Lettertype::TimesNewRoman, .punten = 10};

constexpr double PuntenPerMm = 4.0;
constexpr Kleur Grijs{100, 100, 100};

/// A white sheet of 100 by 50 mm, looked at dot by dot.
class SchildervlakTest : public testing::Test {
  protected:
    template <class Werk> void Teken(const Werk& werk, double schaal = 1.0)
    {
        beeld = QImage(static_cast<int>(100 * PuntenPerMm * schaal),
                       static_cast<int>(50 * PuntenPerMm * schaal), QImage::Format_RGB32);
        beeld.setDevicePixelRatio(schaal);
        beeld.fill(Qt::white);
        QPainter schilder(&beeld);
        Schildervlak vlak(schilder, kast, PuntenPerMm, Schildervlak::Doel::Scherm);
        werk(vlak);
    }

    /// The box around all dots that are not white, in dots.
    [[nodiscard]] QRect Inkt() const
    {
        QRect inkt;
        for (int y = 0; y < beeld.height(); ++y) {
            for (int x = 0; x < beeld.width(); ++x) {
                if (beeld.pixelColor(x, y) != QColor(Qt::white))
                    inkt |= QRect(x, y, 1, 1);
            }
        }
        return inkt;
    }

    Letterkast kast;
    QImage beeld;
};

} // namespace

TEST_F(SchildervlakTest, EenTekstStaatWaarHijGevraagdIs)
{
    const Letter letter{.type = Lettertype::Arial, .punten = 20};
    for (const double schaal : {1.0, 1.5, 2.0}) {
        Teken([&](Schildervlak& vlak) { vlak.Schrijf(10, 5, letter, "HHHH"); }, schaal);
        const QRect inkt = Inkt();
        const double perMm = PuntenPerMm * schaal;
        const double stam = kast.Breedte(letter, "H") * 0.08; // white before the stem of an H
        EXPECT_NEAR((10 + stam) * perMm, inkt.left(), 1.5) << schaal;
        EXPECT_NEAR((10 + kast.Breedte(letter, "HHHH") - stam) * perMm, inkt.right() + 1, 1.5);
        // The base line: the letters reach 0.905 of the size above it.
        const double basis = 5 + 0.905 * 20 * 25.4 / 72;
        EXPECT_NEAR(basis * perMm, inkt.bottom() + 1, 1.01) << schaal;
    }
}

TEST_F(SchildervlakTest, LijnenZijnScherpOpElkScherm)
{
    for (const double schaal : {1.0, 1.25, 1.5, 2.0, 2.25}) {
        Teken([](Schildervlak& vlak) { vlak.Lijn(10.03, 5.07, 60.02, 5.07, Grijs, 0.1); }, schaal);
        const QRect inkt = Inkt();
        EXPECT_EQ(1, inkt.height()) << schaal;
        EXPECT_NEAR(50 * PuntenPerMm * schaal, inkt.width(), 1.01) << schaal;
        EXPECT_NEAR(5.07 * PuntenPerMm * schaal, inkt.top(), 1.01) << schaal;
        for (int x = inkt.left(); x <= inkt.right(); ++x)
            ASSERT_EQ(QColor(100, 100, 100), beeld.pixelColor(x, inkt.top())) << schaal;
    }
}

/// A frame of four lines is closed: wherever its sides fall between the dots, they share the dots
/// of the corners and none of them sticks out.
TEST_F(SchildervlakTest, LijnenDieElkaarRakenDelenHunHoek)
{
    for (const double schaal : {0.75, 1.0, 1.25, 1.5, 2.0}) {
        for (double schuif = 0; schuif < 0.5; schuif += 0.02) {
            const double links = 10 + schuif;
            const double boven = 5 + 0.7 * schuif;
            const double rechts = 40.03 + 0.3 * schuif;
            const double onder = 20.05 + schuif;
            Teken(
                [&](Schildervlak& vlak) {
                    vlak.Lijn(links, boven, rechts, boven, Grijs, 0.1);
                    vlak.Lijn(links, onder, rechts, onder, Grijs, 0.1);
                    vlak.Lijn(links, boven, links, onder, Grijs, 0.1);
                    vlak.Lijn(rechts, boven, rechts, onder, Grijs, 0.1);
                },
                schaal);
            const QRect inkt = Inkt();
            int punten = 0;
            for (int y = inkt.top(); y <= inkt.bottom(); ++y) {
                for (int x = inkt.left(); x <= inkt.right(); ++x)
                    punten += beeld.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
            }
            EXPECT_EQ(2 * inkt.width() + 2 * (inkt.height() - 2), punten)
                << schaal << " " << schuif;
        }
    }
}

/// Afterwards the painter draws as it did before.
TEST_F(SchildervlakTest, DeSchilderBlijftZoalsHijWas)
{
    QImage blad(10, 10, QImage::Format_RGB32);
    QPainter schilder(&blad);
    schilder.setPen(Qt::red);
    Schildervlak vlak(schilder, kast, PuntenPerMm, Schildervlak::Doel::Papier);
    vlak.Schrijf(1, 1, {}, "tekst");
    EXPECT_EQ(QColor(Qt::red), schilder.pen().color());
    EXPECT_TRUE(schilder.transform().isIdentity());
}

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
TEST(Letterkast, EenTekstIsZoBreedAlsZijnTekensEnEenStuurtekenAlsEenSpatie)
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
    for (const Tekstblik teken : {"\t", "\r", "\x81", "\x01"})
        EXPECT_EQ(kast.Breedte(Arial10, " "), kast.Breedte(Arial10, teken));
}

TEST(Letterkast, DeMatenGroeienPreciesMetDePuntenEnTienPuntenPastInEenRegel)
{
    const Letterkast kast;
    for (const double punten : {7.0, 8.0, 13.0, 14.0}) {
        Letter letter = Arial10;
        letter.punten = punten;
        EXPECT_NEAR(kast.Breedte(Arial10, "Achternaam") * punten / 10,
                    kast.Breedte(letter, "Achternaam"), 1e-9);
        EXPECT_NEAR(kast.Hoogte(Arial10) * punten / 10, kast.Hoogte(letter), 1e-9);
    }
    EXPECT_GT(kast.Hoogte(Arial10), 3.5);
    EXPECT_LT(kast.Hoogte(Arial10), 4.5);
}
