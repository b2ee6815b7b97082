#include "platform/scherm/berichten.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

#include "platform/scherm/tekstbrug.h"

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

TEST(MeldVerslag, BreektGeenRegelAf)
{
    const QString regel =
        u"100079\tMieke\t\tOudewortel-Quist-van-Wielerdam\t"_s + u"DONDERDAGMIDDAG\t97202990\r\n"_s;
    bool gezien = false;
    QTimer straks;
    straks.setSingleShot(true);
    QObject::connect(&straks, &QTimer::timeout, qApp, [&] {
        QApplication::processEvents();
        auto* venster = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, venster);
        const auto* label = venster->findChild<QLabel*>(u"qt_msgbox_label"_s);
        ASSERT_NE(nullptr, label);
        EXPECT_EQ(regel + regel, label->text());
        EXPECT_FALSE(label->wordWrap());
        EXPECT_GE(label->width(), label->sizeHint().width());
        gezien = true;
        venster->close();
    });
    straks.start(0);
    MeldVerslag(nullptr, regel + regel, u"DUBBELE NAMEN"_s);
    EXPECT_TRUE(gezien);
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
        bool gezien = false;
        QTimer::singleShot(0, qApp, [&] {
            QApplication::processEvents();
            auto* venster = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, venster);
            EXPECT_TRUE(scherm.contains(venster->frameGeometry()));
            const QPoint midden = venster->geometry().center() - ouder.geometry().center();
            EXPECT_LE(std::abs(midden.x()), 40) << venster->width();
            EXPECT_LE(std::abs(midden.y()), 40) << venster->height();
            gezien = true;
            venster->close();
        });
        MeldVerslag(&ouder, tekst, u"DUBBELE NAMEN"_s);
        EXPECT_TRUE(gezien);
    }
}

/// The names of a register can be of any length.
TEST(MeldVerslag, SchuiftAlsEenRegelBrederIsDanHetScherm)
{
    for (const int lengte : {40, 400}) {
        const QString tekst = u"100079\t"_s + QString(lengte, u'x');
        QString venster;
        QTimer straks;
        straks.setSingleShot(true);
        QObject::connect(&straks, &QTimer::timeout, qApp, [&] {
            QApplication::processEvents();
            QWidget* dialoog = QApplication::activeModalWidget();
            ASSERT_NE(nullptr, dialoog);
            venster = dialoog->objectName();
            EXPECT_TRUE(dialoog->screen()->availableGeometry().contains(
                QRect(QPoint(0, 0), dialoog->size())));
            if (const auto* vak = dialoog->findChild<QPlainTextEdit*>()) {
                EXPECT_EQ(tekst, vak->toPlainText());
            }
            dialoog->close();
        });
        straks.start(0);
        MeldVerslag(nullptr, tekst, u"DUBBELE NAMEN"_s);
        EXPECT_EQ(lengte == 40 ? "" : "frmBericht", venster.toStdString());
    }
}

/// What is too long for a box keeps the icon that the box would have.
TEST(MeldLijst, EenLangeTekstHoudtZijnIcoon)
{
    for (const auto icoon : {QMessageBox::Warning, QMessageBox::Information}) {
        QImage verwacht = QMessageBox(icoon, {}, {}).iconPixmap().toImage();
        bool gezien = false;
        QTimer::singleShot(0, qApp, [&] {
            QWidget* dialoog = QApplication::activeModalWidget();
            ASSERT_NE(nullptr, dialoog);
            EXPECT_EQ("frmBericht", dialoog->objectName());
            const auto* label = dialoog->findChild<QLabel*>(u"lblIcoon"_s);
            gezien =
                label != nullptr && label->isVisible() && label->pixmap().toImage() == verwacht;
            dialoog->close();
        });
        QWidget ouder;
        MeldLijst(&ouder, icoon, u"regel\n"_s.repeated(40));
        EXPECT_TRUE(gezien) << icoon;
    }
    EXPECT_NE(QMessageBox(QMessageBox::Warning, {}, {}).iconPixmap().toImage(),
              QMessageBox(QMessageBox::Information, {}, {}).iconPixmap().toImage());
}

} // namespace
} // namespace plexoran
