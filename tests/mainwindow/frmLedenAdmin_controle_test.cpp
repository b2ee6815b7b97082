#include <QMenu>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

class ControleopdrachtTest : public HoofdvensterTest {
  protected:
    /// By the keys of the menu.
    void Controleer(std::function<void(QDialog&)> stappen)
    {
        venster->activateWindow(); // no window manager does that here
        ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
        wachter.Bedien(std::move(stappen));
        QTest::keyClick(venster.get(), Qt::Key_X, Qt::AltModifier);
        auto* menu = Vind<QMenu>(*venster, "mnuExtra");
        ASSERT_TRUE(QTest::qWaitFor([=] { return menu->isVisible(); }));
        QTest::keyClick(menu, Qt::Key_C);
        wachter.Klaar();
    }
};

} // namespace

TEST_F(ControleopdrachtTest, ZonderHerstelWordtErNietsOpgeslagen)
{
    schijf.FaalNiet();
    Controleer([](QDialog& dialoog) {
        EXPECT_EQ("frmControle", dialoog.objectName().toStdString());
        EXPECT_TRUE(dialoog.isModal());
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_EQ(0, schijf.Aantal());
}

TEST_F(ControleopdrachtTest, EenVerhoogdeSleutelWordtOpgeslagen)
{
    wachter.Begin(u"In het spelerbestand staat een speler met sleutel 100009"_s,
                  QMessageBox::Warning, u"Niet verhogen"_s);
    HerstartMet("HKEY=100002\r\n1,100009,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n");
    Controleer([](QDialog& dialoog) {
        Druk(dialoog, "cmdHerstel");
        Druk(dialoog, "cmdHerstel");
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_TRUE(suite.Spelers().starts_with("HKEY=100002\r\n")) << "raised and not";
    Controleer([](QDialog& dialoog) {
        Druk(dialoog, "cmdHerstel");
        dialoog.reject();
    });
    EXPECT_EQ("HKEY=100009\r\n1,100009,Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n", suite.Spelers());
}
