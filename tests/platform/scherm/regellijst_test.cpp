#include "platform/scherm/regellijst.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

#include "hulp/groei.h"
#include "hulp/tekstvanger.h"
#include "hulp/venstergrepen.h"
#include "platform/scherm/schildervlak.h"

using namespace plexoran;

namespace {

using Plaatsen = std::vector<int>;

class Meerkeuze : public testing::Test {
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
            return "regel " + std::to_string(plaats);
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
    Regellijst lijst{QListView::MultiSelection, {}, {}, nullptr};
};

} // namespace

TEST_F(Meerkeuze, EenKlikKiestEnNogEenLaatLosMaarNietElders)
{
    QSignalSpy spion(&lijst, &Regellijst::keuzeVeranderd);
    KlikOp(2);
    KlikOp(5);
    EXPECT_EQ(Plaatsen({2, 5}), lijst.GekozenPlaatsen());
    KlikOp(2);
    EXPECT_EQ(Plaatsen({5}), lijst.GekozenPlaatsen());
    EXPECT_TRUE(lijst.IetsGekozen());
    KlikOp(5);
    EXPECT_FALSE(lijst.IetsGekozen());
    EXPECT_EQ(4, spion.count());
    EXPECT_EQ(5, lijst.currentIndex().row());
    QTest::mouseClick(lijst.viewport(), Qt::RightButton, {}, Op(2));
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, QPoint(20, 390));
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(Meerkeuze, TweeSnelleKlikkenZijnTweeKlikken)
{
    KlikOp(2);
    // What the display makes of the second of two quick clicks.
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Op(2));
    EXPECT_FALSE(lijst.IetsGekozen());
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Op(2));
    EXPECT_EQ(Plaatsen({2}), lijst.GekozenPlaatsen());
}

TEST_F(Meerkeuze, SlepenKiestOfLaatLosZoalsDeEersteRegel)
{
    Sleep(Op(2), {3, 6});
    EXPECT_EQ(Plaatsen({2, 3, 4, 5, 6}), lijst.GekozenPlaatsen());
    Sleep(Op(5), {3});
    EXPECT_EQ(Plaatsen({2, 6}), lijst.GekozenPlaatsen());
}

TEST_F(Meerkeuze, ShiftKlikKiestTotEnMet)
{
    KlikOp(2);
    KlikOp(5, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({2, 3, 4, 5}), lijst.GekozenPlaatsen());
    KlikOp(7);
    KlikOp(6, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({2, 3, 4, 5, 6, 7}), lijst.GekozenPlaatsen());
}

TEST_F(Meerkeuze, SpatieKiestDeHuidigeEnPijlenVerschuivenAlleen)
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

TEST_F(Meerkeuze, ShiftMetPijlKiestWatErLangsKomt)
{
    lijst.ZetHuidige(4);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({4, 5, 6}), lijst.GekozenPlaatsen());
    Toets(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Plaatsen({4, 5, 6, 7, 8, 9}), lijst.GekozenPlaatsen());
}

/// The capital is typed with Shift, which chooses lines with the arrow keys only.
TEST_F(Meerkeuze, EenHoofdletterTypenKiestNiets)
{
    lijst.ZetHuidige(4);
    QTest::keyClick(&lijst, 'R', Qt::ShiftModifier);
    EXPECT_EQ(5, lijst.currentIndex().row());
    EXPECT_FALSE(lijst.IetsGekozen());
}

TEST_F(Meerkeuze, TypenZoektDeRegelOfDeNaamAchterDeTab)
{
    const std::vector<Tekst> regels{"Gr01-\tBos   An",
                                    "Gr01-\t\xC7"
                                    "elik   Aylin",
                                    "Gr02-\tCock   Bea",
                                    "Gr02-\t\xC6"
                                    "derlin   Jo",
                                    "Gr02-"};
    lijst.Vul(static_cast<int>(regels.size()),
              [&](int plaats) { return regels[static_cast<std::size_t>(plaats)]; });
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

TEST_F(Meerkeuze, KiesAllesEnNiets)
{
    KlikOp(3);
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(10U, lijst.GekozenPlaatsen().size());
    KlikOp(4);
    EXPECT_EQ(9U, lijst.GekozenPlaatsen().size());
    lijst.clearSelection();
    EXPECT_FALSE(lijst.IetsGekozen());
    lijst.selectAll();
    EXPECT_EQ(10U, lijst.GekozenPlaatsen().size());
}

TEST_F(Meerkeuze, KiezenLaatNietsLosEnMeldtZichEenKeer)
{
    lijst.Kies({1, 8});
    QSignalSpy spion(&lijst, &Regellijst::keuzeVeranderd);
    lijst.Kies({9, 8, 3});
    EXPECT_EQ(Plaatsen({1, 3, 8, 9}), lijst.GekozenPlaatsen());
    EXPECT_EQ(1, spion.count());
    lijst.Kies({});
    EXPECT_EQ(Plaatsen({1, 3, 8, 9}), lijst.GekozenPlaatsen());
}

/// A line that becomes the current one by a search or by the program is not chosen by that.
TEST_F(Meerkeuze, DeHuidigeIsNietGekozen)
{
    lijst.ZetHuidige(4);
    EXPECT_EQ(4, lijst.currentIndex().row());
    EXPECT_FALSE(lijst.IetsGekozen());
    KlikOp(4);
    lijst.ZetHuidige(2);
    lijst.ZetHuidige(4);
    EXPECT_EQ(Plaatsen({4}), lijst.GekozenPlaatsen());
}

TEST_F(Meerkeuze, OpnieuwVullenLaatAllesLos)
{
    lijst.selectAll();
    Vul(3);
    EXPECT_EQ(3, lijst.Aantal());
    EXPECT_FALSE(lijst.IetsGekozen());
    Vul(0);
    EXPECT_EQ(0, lijst.Aantal());
    lijst.ZetHuidige(0);
    lijst.selectAll();
    EXPECT_FALSE(lijst.IetsGekozen());
    Toets(Qt::Key_Space);
    Toets(Qt::Key_Down, Qt::ShiftModifier);
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(lijst.IetsGekozen());
}

/// What assistive programs see: a list with a row for each line, which says whether it is chosen,
/// and which they can choose; the key behind a line is not read out.
TEST_F(Meerkeuze, DeSchermlezerKentDeRegelsEnDeKeuze)
{
    lijst.Vul(10, [](int plaats) {
        return "regel " + std::to_string(plaats) + Tekst(60, ' ') + "100001";
    });
    lijst.Kies({1});
    auto* gesproken = QAccessible::queryAccessibleInterface(&lijst);
    ASSERT_NE(nullptr, gesproken);
    EXPECT_EQ(QAccessible::List, gesproken->role());
    ASSERT_EQ(10, gesproken->childCount());
    EXPECT_EQ("regel 1", gesproken->child(1)->text(QAccessible::Name).toStdString());
    EXPECT_TRUE(gesproken->child(1)->state().selected);
    EXPECT_FALSE(gesproken->child(2)->state().selected);
    ASSERT_NE(nullptr, gesproken->child(2)->tableCellInterface());
    gesproken->tableInterface()->selectRow(2);
    EXPECT_EQ(Plaatsen({1, 2}), lijst.GekozenPlaatsen());
}

TEST_F(Meerkeuze, HonderdduizendRegelsZonderWachten)
{
    EXPECT_TRUE(GroeitMee(100'000, [this](int aantal) {
        gevraagd = 0;
        Vul(aantal);
        QApplication::processEvents();
        lijst.selectAll();
        QApplication::processEvents();
        KlikOp(1);
        KlikOp(1);
        lijst.ZetHuidige(aantal - 1);
        QApplication::processEvents();
        EXPECT_EQ(static_cast<std::size_t>(aantal), lijst.GekozenPlaatsen().size());
        // Only what is seen is asked for.
        EXPECT_LT(gevraagd, 1000);
        EXPECT_TRUE(lijst.viewport()->rect().contains(Op(aantal - 1)));
    }));
}

/// Every second line, chosen twice over: the ranges are then as many as they can be.
TEST_F(Meerkeuze, EenKeuzeMetVeelGatenZonderWachten)
{
    EXPECT_TRUE(GroeitMee(100'000, [this](int aantal) {
        Vul(aantal);
        for (const int eerste : {0, 1, 0}) {
            std::vector<int> plaatsen;
            for (int plaats = eerste; plaats < aantal; plaats += 2)
                plaatsen.push_back(plaats);
            if (eerste == 0)
                lijst.clearSelection();
            lijst.Kies(plaatsen);
            QApplication::processEvents();
        }
        KlikOp(3);
        EXPECT_EQ(static_cast<std::size_t>(aantal / 2 + 1), lijst.GekozenPlaatsen().size());
        lijst.selectAll();
        EXPECT_EQ(static_cast<std::size_t>(aantal), lijst.GekozenPlaatsen().size());
    }));
}

TEST_F(Meerkeuze, EenTeLangeRegelEindigtInDriePuntjesEnHeeftEenWenk)
{
    const Tekst naam(100, 'x');
    const std::vector<Tekst> regels{"kort", naam, "<b>" + naam};
    lijst.Vul(3, [&](int plaats) {
        return regels[static_cast<std::size_t>(plaats)] + Tekst(60, ' ') + "100001";
    });
    lijst.clearFocus();
    QApplication::processEvents();
    Tekstvanger vanger(lijst.viewport()->size());
    lijst.viewport()->render(&vanger, {}, {}, QWidget::RenderFlags());
    ASSERT_EQ(3U, vanger.Teksten().size());
    EXPECT_EQ("kort", vanger.Teksten()[0].tekst);
    const std::string& lang = vanger.Teksten()[1].tekst;
    EXPECT_TRUE(lang.starts_with("xxxxx") && lang.ends_with("...")) << lang;
    EXPECT_LE(vanger.Teksten()[1].breed, lijst.viewport()->width());

    const auto wenk = [&](int plaats) {
        return lijst.model()->index(plaats, 0).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ("", wenk(0));
    EXPECT_EQ(naam, wenk(1));
    EXPECT_NE(std::string::npos, wenk(2).find("&lt;b&gt;" + naam));
}

// ---- One line can be chosen ---------------------------------------------------------------------

namespace {

class Eenkeuze : public testing::Test {
  protected:
    void SetUp() override
    {
        lijst.setFont(Roosterletter(12));
        lijst.ZetNaamVanaf(7);
        lijst.resize(220, 200);
        lijst.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&lijst));
        QApplication::setKeyboardInputInterval(200);
    }
    void Vul(std::vector<Tekst> nieuwe, Regellijst::Plek plek = Regellijst::Plek::Begin)
    {
        regels = std::move(nieuwe);
        lijst.Vul(
            static_cast<int>(regels.size()),
            [this](int plaats) { return regels[static_cast<std::size_t>(plaats)]; }, plek);
        QApplication::processEvents();
    }
    void VulNamen()
    {
        Vul({"100005 Aap", "100001 Bos", "100002 Bo\xDFman", "100009 \xC9ik", "100003 Eland de",
             "200001 Zon"});
    }
    /// What is typed, each after a pause, and the line that is chosen then.
    void NaTypen(const std::vector<std::pair<const char*, int>>& verwacht)
    {
        for (const auto& [tekst, plaats] : verwacht) {
            QTest::qWait(230);
            QTest::keyClicks(&lijst, QString::fromUtf8(tekst));
            EXPECT_EQ(plaats, lijst.Gekozen()) << tekst;
        }
    }

    std::vector<Tekst> regels;
    Regellijst lijst{QListView::SingleSelection, {}, {}, nullptr};
};

std::vector<Tekst> Honderden(int aantal)
{
    std::vector<Tekst> regels;
    for (int i = 0; i < aantal; ++i)
        regels.push_back(std::to_string(100000 + i) + " Naam");
    return regels;
}

} // namespace

TEST_F(Eenkeuze, TypenSpringtNaarDeNaamOfDeSleutelEnDezelfdeLetterGaatNaarDeVolgende)
{
    VulNamen();
    EXPECT_EQ(-1, lijst.Gekozen());
    NaTypen({{"b", 1},
             {"Z", 5},
             {"boss", 2}, // the sharp s counts as two
             {"el", 4},
             {"eland d", 4},
             {"x", 4},  // there is none
             {"ei", 3}, // without regard to accents
             {"el", 4},
             {"Éik", 3},
             {"100003", 4},
             {"2", 5}});
    VulNamen();
    NaTypen({{"bb", 2}, {"b", 1}, {"e", 3}, {"e", 4}}); // around
}

TEST_F(Eenkeuze, InEenLegeListIsTypenOngevaarlijk)
{
    NaTypen({{"a ", -1}});
    Vul({"kort"});
    NaTypen({{"x", -1}, {"k", 0}});
}

TEST_F(Eenkeuze, DeSpatiebalkKiestDeHuidigeRegel)
{
    VulNamen();
    QTest::keyClick(&lijst, Qt::Key_Space);
    EXPECT_EQ(0, lijst.Gekozen());
}

TEST_F(Eenkeuze, OpnieuwVullenHoudtDeSchuifplaatsEnKiestNiets)
{
    Vul(Honderden(500));
    lijst.verticalScrollBar()->setValue(300);
    Klik(lijst.viewport(), lijst.visualRect(lijst.model()->index(302, 0)).center());
    ASSERT_EQ(302, lijst.Gekozen());
    Vul(Honderden(498), Regellijst::Plek::Behouden);
    EXPECT_EQ(300, lijst.verticalScrollBar()->value());
    EXPECT_EQ(-1, lijst.Gekozen());
    EXPECT_EQ(302, lijst.currentIndex().row());
    Vul(Honderden(200), Regellijst::Plek::Behouden);
    EXPECT_EQ(199, lijst.currentIndex().row());
    EXPECT_EQ(lijst.verticalScrollBar()->maximum(), lijst.verticalScrollBar()->value());
    Vul(Honderden(200), Regellijst::Plek::Begin);
    EXPECT_EQ(0, lijst.verticalScrollBar()->value());
    EXPECT_EQ(0, lijst.currentIndex().row());
}

/// Nothing of a long line is out of reach.
TEST_F(Eenkeuze, EenLangeRegelSchuiftOpzijZoBreedAlsHijIs)
{
    Vul({"100001 Bos", "100002 " + Tekst(60, 'M')});
    EXPECT_GT(lijst.horizontalScrollBar()->maximum(), 0);
    Vul({"100001 Bos"});
    EXPECT_EQ(0, lijst.horizontalScrollBar()->maximum());
    // In a font whose letters are all as wide too, where an "i" takes more than in that of the
    // grid.
    QFont vast = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    vast.setPixelSize(12);
    lijst.setFont(vast);
    const Tekst regel(60, 'i');
    Vul({regel});
    const int breed = lijst.fontMetrics().horizontalAdvance(NaarQString(regel));
    EXPECT_GE(lijst.horizontalScrollBar()->maximum(), breed - lijst.viewport()->width());
}

// ---- As a file manager chooses ------------------------------------------------------------------

TEST(Uitgebreidekeuze, EenKlikKiestEenRegelEnCtrlShiftEnCtrlAMeer)
{
    Regellijst lijst(QListView::ExtendedSelection, u"lijst"_s, u"Lijst"_s, nullptr);
    lijst.resize(300, 400);
    lijst.Vul(10, [](int plaats) { return "regel " + std::to_string(plaats); });
    lijst.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&lijst));
    const auto klik = [&](int plaats, Qt::KeyboardModifiers bij = {}) {
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, bij,
                          lijst.visualRect(lijst.model()->index(plaats, 0)).center());
    };
    klik(2);
    klik(4);
    EXPECT_EQ(Plaatsen{4}, lijst.GekozenPlaatsen());
    klik(6, Qt::ShiftModifier);
    klik(1, Qt::ControlModifier);
    EXPECT_EQ((Plaatsen{1, 4, 5, 6}), lijst.GekozenPlaatsen());
    QTest::keyClick(&lijst, Qt::Key_Down);
    EXPECT_EQ(Plaatsen{2}, lijst.GekozenPlaatsen());
    QTest::keyClick(&lijst, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(8U, lijst.GekozenPlaatsen().size());
    QTest::keyClick(&lijst, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(10U, lijst.GekozenPlaatsen().size());
    lijst.ZetHuidige(3);
    EXPECT_EQ(Plaatsen{3}, lijst.GekozenPlaatsen());
}

TEST(Uitgebreidekeuze, WatGemerktIsStaatOpEenEigenGrond)
{
    Regellijst lijst(QListView::ExtendedSelection, u"lijst"_s, u"Lijst"_s, nullptr);
    lijst.resize(300, 100);
    lijst.Vul(2, [](int) { return Tekst("iiiiiiiiWWWWiiii"); });
    const auto geel = [&](int plaats) {
        const QImage beeld = lijst.viewport()->grab().toImage();
        const QRect deel = lijst.visualRect(lijst.model()->index(plaats, 0));
        QRect uit;
        for (int y = deel.top(); y <= deel.bottom(); ++y) {
            for (int x = deel.left(); x < beeld.width(); ++x) {
                if (beeld.pixelColor(x, y) == QColor(255, 224, 102))
                    uit |= QRect(x, y, 1, 1);
            }
        }
        return uit;
    };
    lijst.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&lijst));
    EXPECT_TRUE(geel(0).isEmpty());
    lijst.ZetMerken([](int plaats) {
        return plaats == 0 ? Regellijst::Merken{{8, 4}} : Regellijst::Merken{{0, 1}, {900, 4}};
    });
    lijst.ZetHuidige(0);
    const QFontMetrics maten(lijst.font());
    EXPECT_NEAR(maten.horizontalAdvance(u"iiiiiiii"_s), geel(0).left(), 8);
    EXPECT_NEAR(maten.horizontalAdvance(u"WWWW"_s), geel(0).width(), 4);
    EXPECT_LE(geel(1).width(), maten.horizontalAdvance(u'i') + 2);
    EXPECT_FALSE(geel(1).isEmpty());
}
