#include "platform/scherm/meerkeuzelijst.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "hulp/groei.h"
#include "hulp/tekstvanger.h"
#include "hulp/venstergrepen.h"

using namespace plexoran;

namespace {

using Plaatsen = std::vector<int>;

class MeerkeuzelijstTest : public testing::Test {
  protected:
    void SetUp() override
    {
        lijst.resize(300, 400);
        Vul(10);
        lijst.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&lijst));
    }

    void Vul(int aantal)
    {
        lijst.Vul(aantal, [this](int plaats) {
            ++gevraagd;
            return QStringLiteral("regel %1").arg(plaats);
        });
    }
    [[nodiscard]] QPoint Op(int plaats) const
    {
        return lijst.visualRect(lijst.model()->index(plaats, 0)).center();
    }
    void KlikOp(int plaats, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, bij, Op(plaats));
    }
    void Sleep(QPoint van, const std::vector<int>& langs) const
    {
        QTest::mousePress(lijst.viewport(), Qt::LeftButton, {}, van);
        QPoint laatste = van;
        for (const int plaats : langs) {
            laatste = Op(plaats);
            QMouseEvent beweging(QEvent::MouseMove, laatste,
                                 lijst.viewport()->mapToGlobal(QPointF(laatste)), Qt::NoButton,
                                 Qt::LeftButton, {});
            QApplication::sendEvent(lijst.viewport(), &beweging);
        }
        QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, laatste);
    }
    void Toets(Qt::Key toets, Qt::KeyboardModifiers bij = {})
    {
        QTest::keyClick(&lijst, toets, bij);
    }

    int gevraagd = 0;
    Meerkeuzelijst lijst;
};

} // namespace

TEST_F(MeerkeuzelijstTest, EenKlikKiestEnNogEenLaatLos)
{
    QSignalSpy spion(&lijst, &Meerkeuzelijst::keuzeVeranderd);
    KlikOp(2);
    KlikOp(5);
    EXPECT_EQ(Plaatsen({2, 5}), lijst.GekozenPlaatsen());
    EXPECT_TRUE(lijst.Gekozen(2));
    EXPECT_FALSE(lijst.Gekozen(3));
    KlikOp(2);
    EXPECT_EQ(Plaatsen({5}), lijst.GekozenPlaatsen());
    EXPECT_TRUE(lijst.IetsGekozen());
    KlikOp(5);
    EXPECT_FALSE(lijst.IetsGekozen());
    EXPECT_EQ(4, spion.count());
    EXPECT_EQ(5, lijst.currentIndex().row());
}

TEST_F(MeerkeuzelijstTest, TweeSnelleKlikkenZijnTweeKlikken)
{
    KlikOp(2);
    // What the display makes of the second of two quick clicks.
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Op(2));
    EXPECT_FALSE(lijst.IetsGekozen());
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Op(2));
    EXPECT_EQ(Plaatsen({2}), lijst.GekozenPlaatsen());
}

TEST_F(MeerkeuzelijstTest, AndereKnoppenEnNaastDeRegelsKiezenNiets)
{
    QTest::mouseClick(lijst.viewport(), Qt::RightButton, {}, Op(2));
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, QPoint(20, 390));
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, SlepenKiestOfLaatLosZoalsDeEersteRegel)
{
    Sleep(Op(2), {3, 6});
    EXPECT_EQ(Plaatsen({2, 3, 4, 5, 6}), lijst.GekozenPlaatsen());
    Sleep(Op(5), {3});
    EXPECT_EQ(Plaatsen({2, 6}), lijst.GekozenPlaatsen());
}

TEST_F(MeerkeuzelijstTest, ShiftKlikKiestTotEnMet)
{
    KlikOp(2);
    KlikOp(5, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({2, 3, 4, 5}), lijst.GekozenPlaatsen());
    KlikOp(7);
    KlikOp(6, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({2, 3, 4, 5, 6, 7}), lijst.GekozenPlaatsen());
}

TEST_F(MeerkeuzelijstTest, SpatieKiestDeHuidigeEnPijlenVerschuivenAlleen)
{
    lijst.ZetHuidige(0);
    Toets(Qt::Key_Space);
    Toets(Qt::Key_Down);
    Toets(Qt::Key_Down);
    Toets(Qt::Key_Space);
    EXPECT_EQ(Plaatsen({0, 2}), lijst.GekozenPlaatsen());
    Toets(Qt::Key_Space);
    EXPECT_EQ(Plaatsen({0}), lijst.GekozenPlaatsen());
}

TEST_F(MeerkeuzelijstTest, ShiftMetPijlKiestWatErLangsKomt)
{
    lijst.ZetHuidige(4);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({4, 5, 6}), lijst.GekozenPlaatsen());
    Toets(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({4, 5, 6, 7, 8, 9}), lijst.GekozenPlaatsen());
}

/// The capital is typed with Shift, which chooses lines with the arrow keys only.
TEST_F(MeerkeuzelijstTest, EenHoofdletterTypenKiestNiets)
{
    lijst.ZetHuidige(4);
    QTest::keyClick(&lijst, 'R', Qt::ShiftModifier);
    EXPECT_EQ(5, lijst.currentIndex().row());
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, TypenZoektDeRegelOfDeNaamAchterDeTab)
{
    const QStringList regels{QStringLiteral("Gr01-\tBos   An"),
                             QStringLiteral("Gr01-\tÇelik   Aylin"),
                             QStringLiteral("Gr02-\tCock   Bea"),
                             QStringLiteral("Gr02-\tÆderlin   Jo"), QStringLiteral("Gr02-")};
    lijst.Vul(static_cast<int>(regels.size()), [&](int plaats) { return regels[plaats]; });
    lijst.ZetHuidige(0);
    QApplication::setKeyboardInputInterval(150);
    const auto typ = [&](const char* tekst) {
        // Letters that come so long after the last one begin a new search.
        QTest::qWait(QApplication::keyboardInputInterval() + 10);
        QTest::keyClicks(&lijst, QString::fromUtf8(tekst));
        return lijst.currentIndex().row();
    };
    EXPECT_EQ(1, typ("c"));
    EXPECT_EQ(2, typ("c"));
    EXPECT_EQ(1, typ("c")); // from the top again
    EXPECT_EQ(3, typ("aed"));
    EXPECT_EQ(0, typ("Bos"));
    EXPECT_EQ(2, typ("gr02-"));
    EXPECT_EQ(2, typ("zwaan"));
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, CtrlAKiestAlles)
{
    KlikOp(3);
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(10U, lijst.GekozenPlaatsen().size());
}

TEST_F(MeerkeuzelijstTest, KiesAllesEnNiets)
{
    lijst.KiesAlles(true);
    EXPECT_EQ(10U, lijst.GekozenPlaatsen().size());
    lijst.Kies(4, false);
    EXPECT_EQ(9U, lijst.GekozenPlaatsen().size());
    lijst.KiesAlles(false);
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, KiesOokLaatNietsLos)
{
    lijst.Kies(1, true);
    lijst.KiesOok([](int plaats) { return plaats > 7; });
    EXPECT_EQ(Plaatsen({1, 8, 9}), lijst.GekozenPlaatsen());
}

TEST_F(MeerkeuzelijstTest, OpnieuwVullenLaatAllesLos)
{
    lijst.KiesAlles(true);
    Vul(3);
    EXPECT_EQ(3, lijst.Aantal());
    EXPECT_FALSE(lijst.IetsGekozen());
    Vul(0);
    EXPECT_EQ(0, lijst.Aantal());
    lijst.ZetHuidige(0);
    lijst.KiesAlles(true);
    EXPECT_FALSE(lijst.IetsGekozen());
    Toets(Qt::Key_Space);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, SlepenVanNaastDeRegelsKiestNiets)
{
    lijst.ZetHuidige(0);
    Sleep({20, 390}, {8, 6});
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(MeerkeuzelijstTest, DeSchermlezerHoortOfEenRegelGekozenIs)
{
    lijst.Kies(1, true);
    const auto gesproken = [&](int plaats) {
        return lijst.model()
            ->data(lijst.model()->index(plaats, 0), Qt::AccessibleTextRole)
            .toString()
            .toStdString();
    };
    EXPECT_EQ("regel 1, gekozen", gesproken(1));
    EXPECT_EQ("regel 2, niet gekozen", gesproken(2));
}

TEST_F(MeerkeuzelijstTest, HonderdduizendRegelsZonderWachten)
{
    EXPECT_TRUE(GroeitMee(100'000, [this](int aantal) {
        gevraagd = 0;
        Vul(aantal);
        QApplication::processEvents();
        lijst.KiesAlles(true);
        QApplication::processEvents();
        lijst.ZetHuidige(aantal - 1);
        QApplication::processEvents();
        EXPECT_EQ(static_cast<std::size_t>(aantal), lijst.GekozenPlaatsen().size());
        // Only what is seen is asked for.
        EXPECT_LT(gevraagd, 1000);
        EXPECT_TRUE(lijst.viewport()->rect().contains(Op(aantal - 1)));
    }));
}

TEST_F(MeerkeuzelijstTest, EenTeLangeRegelEindigtInEenBeletselteken)
{
    const QString naam(100, u'x');
    lijst.Vul(2, [&](int plaats) { return plaats == 0 ? QStringLiteral("kort") : naam; });
    QApplication::processEvents();
    Tekstvanger vanger(lijst.viewport()->size());
    lijst.viewport()->render(&vanger, {}, {}, QWidget::RenderFlags());
    ASSERT_EQ(2U, vanger.Teksten().size());
    EXPECT_EQ("kort", vanger.Teksten()[0].tekst);
    const std::string& lang = vanger.Teksten()[1].tekst;
    EXPECT_TRUE(lang.starts_with("xxxxx") && lang.ends_with("…")) << lang;
    EXPECT_LE(vanger.Teksten()[1].breed, lijst.viewport()->width());
}
