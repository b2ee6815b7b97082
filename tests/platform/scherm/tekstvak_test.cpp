#include "platform/scherm/tekstvak.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include <gtest/gtest.h>

#include "hulp/berichtwachter.h"
#include "hulp/venstergrepen.h"

using namespace plexoran;

namespace {

class TekstvakTest : public testing::Test {
  protected:
    void SetUp() override
    {
        venster.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
        vak.setFocus();
    }
    ~TekstvakTest() override { wachter.Klaar(); }

    void Plak(const QString& tekst)
    {
        QApplication::clipboard()->setText(tekst);
        QTest::keyClick(&vak, Qt::Key_V, Qt::ControlModifier);
        QApplication::processEvents();
    }
    void VerwachtTeken(const QString& regels)
    {
        wachter.Waarschuwing(
            u"Dit teken kan niet worden opgeslagen.\n\n%1\n\nKijk na of de tekst zo goed is."_s.arg(
                regels));
    }

    Berichtwachter wachter;
    QWidget venster;
    Tekstvak vak{&venster};
    Tekstvak tweede{&venster};
};

} // namespace

TEST_F(TekstvakTest, GeeftElkeByteEnElkeLengteTerug)
{
    Tekst alles;
    for (int code = 0; code < 256; ++code)
        alles += static_cast<char>(code);
    vak.ZetTekst(alles);
    EXPECT_EQ(alles, vak.GeefTekst());
    EXPECT_EQ(0, vak.cursorPosition());
    const Tekst lang = Tekst(100'000, 'x') + "\x81";
    vak.ZetTekst(lang);
    EXPECT_EQ(lang, vak.GeefTekst());
}

TEST_F(TekstvakTest, OngedefinieerdeBytesBlijvenOokNaEenWijzigingErnaastOfTerug)
{
    for (const Tekst& begin : {Tekst(100'000, 'x') + "\x81", Tekst("a\x81\x8D\x8F\x90\x9Dz")}) {
        vak.ZetTekst(begin);
        QTest::keyClick(&vak, Qt::Key_End);
        Typ(&vak, u"é"_s);
        EXPECT_EQ(begin + "\xE9", vak.GeefTekst());
    }
    vak.ZetTekst("\x01\tz");
    QTest::keyClick(&vak, Qt::Key_End);
    Typ(&vak, u"x"_s);
    QTest::keyClick(&vak, Qt::Key_Backspace);
    EXPECT_EQ("\x01\tz", vak.GeefTekst());
}

TEST_F(TekstvakTest, EenLosAccentHoortBijZijnLetter)
{
    Typ(&vak, u"e\u0301"_s);
    EXPECT_EQ("\xE9", vak.GeefTekst());
    EXPECT_EQ("é", vak.text().toStdString());
}

/// Also where a rule judges the keys.
TEST_F(TekstvakTest, EenTekenDatNietKanWordtDeNaasteLetterOfWeggelaten)
{
    for (const bool metRegel : {false, true}) {
        if (metRegel)
            vak.ZetToetsregel([](char teken, std::size_t) { return teken; });
        for (const auto& [getypt, melding, wordt] :
             {std::tuple(u"aőb"_s, u"In plaats van 'ő' staat er nu 'o'."_s, "aob"),
              std::tuple(u"a漢b"_s, u"'漢' is weggelaten."_s, "ab")}) {
            vak.clear();
            VerwachtTeken(melding);
            Typ(&vak, getypt);
            QApplication::processEvents();
            wachter.Klaar();
            EXPECT_EQ(wordt, vak.GeefTekst()) << metRegel;
        }
    }
}

TEST_F(TekstvakTest, ElkTekenWordtEenKeerGenoemd)
{
    wachter.Waarschuwing(
        u"Deze tekens kunnen niet worden opgeslagen.\n\nIn plaats van 'ő' staat er nu 'o'.\n'漢' "
        "is weggelaten.\n\nKijk na of de tekst zo goed is."_s);
    Plak(u"ő漢ő漢"_s);
    wachter.Klaar();
    EXPECT_EQ("oo", vak.GeefTekst());
    vak.clear();
    VerwachtTeken(u"'😀' is weggelaten."_s); // of two units
    Plak(u"a😀b"_s);
    wachter.Klaar();
    EXPECT_EQ("ab", vak.GeefTekst());
}

TEST_F(TekstvakTest, RegeleindenEnTabsWordenSpatiesEnStuurtekensGaanWeg)
{
    Plak(u"een\r\ntwee\tdrie\u0007vier\u2028vijf"_s);
    const Tekst tekst = vak.GeefTekst();
    EXPECT_EQ(Tekst::npos, tekst.find_first_of("\r\n\t\x07"));
    EXPECT_TRUE(tekst == "een  twee drievier vijf" || tekst == "een twee drievier vijf") << tekst;
}

TEST_F(TekstvakTest, DeToetsregelGeldtVoorTypenEnPlakken)
{
    vak.ZetToetsregel([](char teken, std::size_t lengte) -> std::optional<char> {
        if (teken < '0' || teken > '9' || lengte >= 3)
            return std::nullopt;
        return teken;
    });
    Typ(&vak, u"a1b2"_s);
    EXPECT_EQ("12", vak.GeefTekst());
    Plak(u"x3y4"_s);
    EXPECT_EQ("123", vak.GeefTekst());
    QTest::keyClick(&vak, Qt::Key_Backspace);
    EXPECT_EQ("12", vak.GeefTekst()) << "wissen mag altijd";
}

TEST_F(TekstvakTest, VervangHoudtDeCursorEvenVerVanHetEind)
{
    vak.ZetTekst("a,b,cd");
    vak.setCursorPosition(4);
    vak.Vervang("a_b_cd");
    EXPECT_EQ(4, vak.cursorPosition());
    vak.Vervang("xa_b_cd");
    EXPECT_EQ(5, vak.cursorPosition());
    EXPECT_EQ("xa_b_cd", vak.GeefTekst());
}

TEST_F(TekstvakTest, VerlatenKomtBijEenAnderDeelEnNietBijEenMenu)
{
    int keren = 0;
    QObject::connect(&vak, &Tekstvak::verlaten, &venster, [&] { ++keren; });
    tweede.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(1, keren);
    vak.setFocus();
    QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(&vak, &menu);
    QFocusEvent programma(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&vak, &programma);
    EXPECT_EQ(1, keren);
}

TEST_F(TekstvakTest, GeslepteTekstWordtOokGezuiverd)
{
    VerwachtTeken(u"In plaats van 'ő' staat er nu 'o'."_s);
    QMimeData tekst;
    tekst.setText(u"xő\ny"_s);
    QDragEnterEvent begin(QPoint(3, 3), Qt::CopyAction, &tekst, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&vak, &begin);
    QDropEvent val(QPointF(3, 3), Qt::CopyAction, &tekst, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&vak, &val);
    QApplication::processEvents();
    wachter.Klaar();
    EXPECT_EQ("xo y", vak.GeefTekst());
}
