#include "platform/scherm/berichten.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTimer>

#include <functional>

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"

namespace plexoran {
namespace {

TEST(Aantal, EenIsGeenMeervoud)
{
    const auto spelers = [](std::size_t aantal) {
        return Aantal(aantal, u"speler"_s, u"spelers"_s).toStdString();
    };
    EXPECT_EQ("0 spelers", spelers(0));
    EXPECT_EQ("1 speler", spelers(1));
    EXPECT_EQ("2 spelers", spelers(2));
}

/// Looks at the window that comes, and closes it.
void MetVenster(const std::function<void()>& toon, const std::function<void(QWidget&)>& kijk)
{
    bool gezien = false;
    QTimer::singleShot(0, qApp, [&] {
        QApplication::processEvents();
        QWidget* venster = QApplication::activeModalWidget();
        ASSERT_NE(nullptr, venster);
        kijk(*venster);
        gezien = true;
        venster->close();
    });
    toon();
    EXPECT_TRUE(gezien);
}

TEST(MeldVerslag, BreektGeenRegelAf)
{
    const QString tekst =
        u"100079\tMieke\t\tOudewortel-Quist-van-Wielerdam\tDONDERDAGMIDDAG\t97202990\r\n"_s
            .repeated(2);
    MetVenster([&] { MeldVerslag(nullptr, tekst, u"DUBBELE NAMEN"_s); },
               [&](QWidget& venster) {
                   const auto* label = Vind<QLabel>(venster, "qt_msgbox_label");
                   EXPECT_EQ(tekst, label->text());
                   EXPECT_FALSE(label->wordWrap());
                   EXPECT_GE(label->width(), label->sizeHint().width());
               });
}

/// Its place follows from the size that its unbroken lines give it, not from the one before.
TEST(MeldVerslag, StaatMiddenVoorZijnOuderEnHeelOpHetScherm)
{
    const QString regel = u"een woord, "_s.repeated(9) + u'\n';
    for (const QString& tekst : {regel, regel.repeated(20)}) {
        QWidget ouder;
        const QRect scherm = ouder.screen()->availableGeometry();
        ouder.setGeometry(scherm.adjusted(100, 100, -100, -100));
        ouder.show();
        MetVenster([&] { MeldVerslag(&ouder, tekst, u"DUBBELE NAMEN"_s); },
                   [&](QWidget& venster) {
                       EXPECT_NE(nullptr, qobject_cast<QMessageBox*>(&venster));
                       EXPECT_TRUE(scherm.contains(venster.frameGeometry()));
                       const QPoint uit = venster.geometry().center() - ouder.geometry().center();
                       EXPECT_LE(std::abs(uit.x()), 40) << venster.width();
                       EXPECT_LE(std::abs(uit.y()), 40) << venster.height();
                   });
    }
}

/// The names of a register can be of any length.
TEST(MeldVerslag, SchuiftAlsEenRegelBrederIsDanHetScherm)
{
    for (const int lengte : {40, 400}) {
        const QString tekst = u"100079\t"_s + QString(lengte, u'x');
        MetVenster(
            [&] { MeldVerslag(nullptr, tekst, u"DUBBELE NAMEN"_s); },
            [&](QWidget& venster) {
                EXPECT_EQ(lengte == 40 ? "" : "frmBericht", venster.objectName().toStdString());
                EXPECT_TRUE(venster.screen()->availableGeometry().contains(
                    QRect(QPoint(0, 0), venster.size())));
                if (lengte == 400) {
                    EXPECT_EQ(tekst, Vind<QPlainTextEdit>(venster, "txtBericht")->toPlainText());
                }
            });
    }
}

/// What is too long for a box keeps the icon that the box would have.
TEST(MeldLijst, EenLangeTekstHoudtZijnIcoon)
{
    const auto plaatje = [](QMessageBox::Icon icoon) {
        return QMessageBox(icoon, {}, {}).iconPixmap().toImage();
    };
    for (const auto icoon : {QMessageBox::Warning, QMessageBox::Information}) {
        QWidget ouder;
        MetVenster([&] { MeldLijst(&ouder, icoon, u"regel\n"_s.repeated(40)); },
                   [&](QWidget& venster) {
                       EXPECT_EQ("frmBericht", venster.objectName());
                       const auto* label = Vind<QLabel>(venster, "lblIcoon");
                       EXPECT_TRUE(label->isVisible());
                       EXPECT_EQ(plaatje(icoon), label->pixmap().toImage());
                   });
    }
    EXPECT_NE(plaatje(QMessageBox::Warning), plaatje(QMessageBox::Information));
}

} // namespace
} // namespace plexoran
