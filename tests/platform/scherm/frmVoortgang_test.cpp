#include "platform/scherm/frmVoortgang.h"

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"

using namespace plexoran;

namespace {

/// Work that goes on until the window is there.
bool WerkTotInBeeld(frmVoortgang& voortgang)
{
    QElapsedTimer klok;
    klok.start();
    while (!voortgang.isVisible() && klok.elapsed() < 5000)
        voortgang.Meld(1, 4);
    return voortgang.isVisible();
}

} // namespace

TEST(frmVoortgangTest, KortWerkToontNiets)
{
    frmVoortgang voortgang(QStringLiteral("bezig"), QString(), nullptr);
    for (std::size_t i = 0; i < 1000; ++i)
        EXPECT_TRUE(voortgang.Meld(i, 1000));
    EXPECT_FALSE(voortgang.isVisible());
}

TEST(frmVoortgangTest, LangWerkToontHoeVerHetIs)
{
    frmVoortgang voortgang(QStringLiteral("bezig"), QString(), nullptr);
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    auto* balk = Vind<QProgressBar>(voortgang, "balk");
    EXPECT_EQ(balk->maximum() / 4, balk->value());
    EXPECT_TRUE(voortgang.isModal());
    EXPECT_EQ(nullptr, voortgang.findChild<QPushButton*>());
}

/// Otherwise the windows behind it would take commands in the middle of the work.
TEST(frmVoortgangTest, ZonderStopknopBlijftHetVensterStaan)
{
    frmVoortgang voortgang(QStringLiteral("bezig"), QString(), nullptr);
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    voortgang.close();
    QTest::keyClick(&voortgang, Qt::Key_Escape);
    EXPECT_TRUE(voortgang.isVisible());
    EXPECT_FALSE(voortgang.Gestopt());
    EXPECT_TRUE(voortgang.Meld(2, 4));
}

TEST(frmVoortgangTest, StoppenMetKnopEscapeOfSluitvak)
{
    for (int weg = 0; weg < 3; ++weg) {
        frmVoortgang voortgang(QStringLiteral("bezig"), QStringLiteral("&Stoppen"), nullptr);
        ASSERT_TRUE(WerkTotInBeeld(voortgang));
        if (weg == 0)
            Klik(Vind<QPushButton>(voortgang, "cmdStop"));
        else if (weg == 1)
            QTest::keyClick(&voortgang, Qt::Key_Escape);
        else
            voortgang.close();
        EXPECT_TRUE(voortgang.Gestopt()) << weg;
        EXPECT_FALSE(voortgang.AlsVoortgang()(2, 4)) << weg;
        EXPECT_TRUE(voortgang.isVisible()) << weg; // until the work has ended
    }
}

TEST(frmVoortgangTest, ZonderBekendGeheelBeweegtDeBalkAlleen)
{
    frmVoortgang voortgang(QStringLiteral("bezig"), QString(), nullptr);
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    QTest::qWait(60);
    voortgang.Meld(5, 0);
    EXPECT_EQ(0, Vind<QProgressBar>(voortgang, "balk")->maximum());
}
