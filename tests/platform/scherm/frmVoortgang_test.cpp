#include "platform/scherm/frmVoortgang.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

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

class frmVoortgangTest : public testing::Test {
  protected:
    frmVoortgang voortgang{u"bezig"_s, QString(), nullptr};
    QProgressBar* balk = Vind<QProgressBar>(voortgang, "balk");
};

} // namespace

TEST_F(frmVoortgangTest, KortWerkToontNiets)
{
    for (std::size_t i = 0; i < 1000; ++i)
        EXPECT_TRUE(voortgang.Meld(i, 1000));
    EXPECT_FALSE(voortgang.isVisible());
}

TEST_F(frmVoortgangTest, LangWerkToontHoeVerHetIs)
{
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    EXPECT_EQ(balk->maximum() / 4, balk->value());
    EXPECT_EQ("Voortgang", balk->accessibleName());
    EXPECT_EQ("Plexoran", voortgang.windowTitle());
    EXPECT_EQ(Qt::ApplicationModal, voortgang.windowModality());
    EXPECT_EQ(nullptr, voortgang.findChild<QPushButton*>());
    voortgang.Meld(4, 4);
    EXPECT_EQ(balk->maximum(), balk->value());
    EXPECT_TRUE(voortgang.isVisible()); // what comes after it may take long too
}

TEST_F(frmVoortgangTest, EenNaamMetOpmaakStaatErZoalsHijIs)
{
    frmVoortgang venster(u"<b>A</b>.csv"_s, QString(), nullptr);
    EXPECT_EQ(Qt::PlainText, Vind<QLabel>(venster, "lblTekst")->textFormat());
    venster.setLabelText(u"<b>B</b>.csv"_s);
    EXPECT_EQ("<b>B</b>.csv", Vind<QLabel>(venster, "lblTekst")->text());
}

TEST_F(frmVoortgangTest, EenLangeNaamBlijftInBeeld)
{
    for (const QString& naam : {u"lange naam "_s.repeated(20), QString(250, u'x')}) {
        frmVoortgang venster(QString(), u"&Stoppen"_s, nullptr);
        venster.setLabelText(naam);
        ASSERT_TRUE(WerkTotInBeeld(venster));
        EXPECT_LE(venster.width(), 700);
        const auto* tekst = Vind<QLabel>(venster, "lblTekst");
        EXPECT_GE(tekst->height(), tekst->heightForWidth(tekst->width()));
        EXPECT_TRUE(venster.rect().contains(Vind<QPushButton>(venster, "cmdStop")->geometry()));
    }
}

/// A box that is shown during the work is waited for without the window.
TEST_F(frmVoortgangTest, ZonderMeldingKomtHetVensterNiet)
{
    voortgang.Meld(0, 4);
    QTest::qWait(frmVoortgang::totInBeeld + 100);
    EXPECT_FALSE(voortgang.isVisible());
    for (const QTimer* wekker : voortgang.findChildren<QTimer*>())
        EXPECT_TRUE(!wekker->isActive() || wekker->remainingTime() > 3'600'000);
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    voortgang.hide();
    QTest::qWait(50);
    EXPECT_FALSE(voortgang.isVisible());
    voortgang.Meld(2, 4);
    EXPECT_TRUE(voortgang.isVisible());
}

TEST_F(frmVoortgangTest, MeerDanEenBalkKanTellen)
{
    constexpr std::size_t groot = 400'000'000'000;
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    voortgang.Meld(groot / 4, groot);
    EXPECT_NEAR(balk->maximum() / 4.0, balk->value(), 1);
    voortgang.Meld(groot, groot);
    EXPECT_EQ(balk->maximum(), balk->value());
}

/// Otherwise the windows behind it would take commands in the middle of the work.
TEST_F(frmVoortgangTest, ZonderStopknopBlijftHetVensterStaan)
{
    ASSERT_TRUE(WerkTotInBeeld(voortgang));
    voortgang.close();
    QTest::keyClick(&voortgang, Qt::Key_Escape);
    EXPECT_TRUE(voortgang.isVisible());
    EXPECT_FALSE(voortgang.Gestopt());
    EXPECT_TRUE(voortgang.Meld(2, 4));
}

TEST_F(frmVoortgangTest, StoppenMetKnopEscapeOfSluitvak)
{
    for (int weg = 0; weg < 3; ++weg) {
        frmVoortgang venster(u"bezig"_s, u"&Stoppen"_s, nullptr);
        ASSERT_TRUE(WerkTotInBeeld(venster));
        if (weg == 0)
            Klik(Vind<QPushButton>(venster, "cmdStop"));
        else if (weg == 1)
            QTest::keyClick(&venster, Qt::Key_Escape);
        else
            venster.close();
        EXPECT_TRUE(venster.Gestopt()) << weg;
        EXPECT_FALSE(venster.AlsVoortgang()(2, 4)) << weg;
        EXPECT_TRUE(venster.isVisible()) << weg; // until the work has ended
        EXPECT_FALSE(Vind<QPushButton>(venster, "cmdStop")->isEnabled()) << weg;
    }
}

TEST_F(frmVoortgangTest, ZonderBekendGeheelBeweegtDeBalkAlleen)
{
    QTest::qWait(frmVoortgang::totInBeeld);
    voortgang.Meld(0, 0);
    EXPECT_TRUE(voortgang.isVisible());
    EXPECT_EQ(0, balk->maximum());
    voortgang.Meld(3, 4);
    EXPECT_EQ(balk->maximum() / 4 * 3, balk->value());
    voortgang.Meld(5, 0);
    EXPECT_EQ(0, balk->maximum());
}
