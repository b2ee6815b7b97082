#include "platform/scherm/zoeklijst.h"

#include <QScrollBar>

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"
#include "platform/scherm/meter.h"

using namespace plexoran;

namespace {

class ZoeklijstTest : public testing::Test {
  protected:
    void SetUp() override
    {
        lijst.resize(220, 200);
        lijst.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&lijst));
        QApplication::setKeyboardInputInterval(200);
    }
    void Vul(std::vector<Tekst> nieuwe, Zoeklijst::Plek plek = Zoeklijst::Plek::Begin)
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
    /// Typed after a pause.
    int NaTypen(const char* tekst)
    {
        QTest::qWait(230);
        QTest::keyClicks(&lijst, QString::fromUtf8(tekst));
        return lijst.Gekozen();
    }

    std::vector<Tekst> regels;
    Zoeklijst lijst{7, Roosterletter(12), nullptr};
};

std::vector<Tekst> Honderden(int aantal)
{
    std::vector<Tekst> regels;
    for (int i = 0; i < aantal; ++i)
        regels.push_back(std::to_string(100000 + i) + " Naam");
    return regels;
}

} // namespace

TEST_F(ZoeklijstTest, TypenSpringtNaarDeNaamAchterDeSleutel)
{
    VulNamen();
    EXPECT_EQ(-1, lijst.Gekozen());
    EXPECT_EQ(1, NaTypen("b"));
    EXPECT_EQ(5, NaTypen("Z"));
    EXPECT_EQ(2, NaTypen("boss")); // the sharp s counts as two
    EXPECT_EQ(4, NaTypen("el"));
    EXPECT_EQ(4, NaTypen("eland d"));
    EXPECT_EQ(4, NaTypen("x")); // there is none
}

TEST_F(ZoeklijstTest, AccentenEnHoofdlettersDoenErNietToe)
{
    VulNamen();
    EXPECT_EQ(3, NaTypen("ei"));
    EXPECT_EQ(3, NaTypen("Éik"));
}

TEST_F(ZoeklijstTest, DezelfdeLetterGaatNaarDeVolgende)
{
    VulNamen();
    EXPECT_EQ(2, NaTypen("bb"));
    EXPECT_EQ(1, NaTypen("b")); // around
    EXPECT_EQ(3, NaTypen("e"));
    EXPECT_EQ(4, NaTypen("e"));
}

TEST_F(ZoeklijstTest, CijfersSpringenNaarDeSleutel)
{
    VulNamen();
    EXPECT_EQ(4, NaTypen("100003"));
    EXPECT_EQ(5, NaTypen("2"));
}

TEST_F(ZoeklijstTest, InEenLegeListIsTypenOngevaarlijk)
{
    EXPECT_EQ(-1, NaTypen("a "));
    Vul({"kort"});
    EXPECT_EQ(-1, NaTypen("k"));
}

TEST_F(ZoeklijstTest, DeSpatiebalkKiestDeHuidigeRegel)
{
    VulNamen();
    QTest::keyClick(&lijst, Qt::Key_Space);
    EXPECT_EQ(0, lijst.Gekozen());
}

TEST_F(ZoeklijstTest, EnterEnDeleteWordenGemeld)
{
    VulNamen();
    int enters = 0;
    int deletes = 0;
    QObject::connect(&lijst, &Zoeklijst::enterGedrukt, [&] { ++enters; });
    QObject::connect(&lijst, &Zoeklijst::deleteGedrukt, [&] { ++deletes; });
    QTest::keyClick(&lijst, Qt::Key_Return);
    QTest::keyClick(&lijst, Qt::Key_Enter);
    QTest::keyClick(&lijst, Qt::Key_Delete);
    EXPECT_EQ(2, enters);
    EXPECT_EQ(1, deletes);
}

TEST_F(ZoeklijstTest, OpnieuwVullenHoudtDeSchuifplaatsEnKiestNiets)
{
    Vul(Honderden(500));
    lijst.verticalScrollBar()->setValue(300);
    Klik(lijst.viewport(), lijst.visualRect(lijst.model()->index(302, 0)).center());
    ASSERT_EQ(302, lijst.Gekozen());
    Vul(Honderden(498), Zoeklijst::Plek::Behouden);
    EXPECT_EQ(300, lijst.verticalScrollBar()->value());
    EXPECT_EQ(-1, lijst.Gekozen());
    EXPECT_EQ(302, lijst.currentIndex().row());
    Vul(Honderden(200), Zoeklijst::Plek::Behouden);
    EXPECT_EQ(199, lijst.currentIndex().row());
    EXPECT_EQ(lijst.verticalScrollBar()->maximum(), lijst.verticalScrollBar()->value());
    Vul(Honderden(200), Zoeklijst::Plek::Begin);
    EXPECT_EQ(0, lijst.verticalScrollBar()->value());
    EXPECT_EQ(0, lijst.currentIndex().row());
}

/// Nothing of a long line is out of reach.
TEST_F(ZoeklijstTest, EenLangeRegelSchuiftOpzij)
{
    Vul({"100001 Bos", "100002 " + Tekst(60, 'M')});
    EXPECT_GT(lijst.horizontalScrollBar()->maximum(), 0);
    Vul({"100001 Bos"});
    EXPECT_EQ(0, lijst.horizontalScrollBar()->maximum());
}
