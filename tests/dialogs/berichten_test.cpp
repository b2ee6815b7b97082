#include "platform/scherm/berichten.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <gtest/gtest.h>

namespace plexoran {
namespace {

TEST(MeldVerslag, BreektGeenRegelAf)
{
    const QString regel = QStringLiteral("100079\tMieke\t\tOudewortel-Quist-van-Wielerdam\t") +
                          QStringLiteral("DONDERDAGMIDDAG\t97202990\r\n");
    bool gezien = false;
    QTimer::singleShot(0, qApp, [&] {
        QApplication::processEvents();
        auto* venster = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, venster);
        const auto* label = venster->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        ASSERT_NE(nullptr, label);
        EXPECT_EQ(regel + regel, label->text());
        EXPECT_FALSE(label->wordWrap());
        EXPECT_GE(label->width(), label->sizeHint().width());
        gezien = true;
        venster->close();
    });
    MeldVerslag(nullptr, regel + regel, QStringLiteral("DUBBELE NAMEN"));
    EXPECT_TRUE(gezien);
}

} // namespace
} // namespace plexoran
