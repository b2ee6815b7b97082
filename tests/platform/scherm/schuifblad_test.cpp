#include "platform/scherm/schuifblad.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

#include <gtest/gtest.h>

using namespace plexoran;

/// A field that keys lead to comes into sight; of one that is wider than the area its beginning
/// does.
TEST(Schuifblad, WatDeToetsenBereikenKomtInBeeld)
{
    auto* inhoud = new QWidget;
    inhoud->setMinimumSize(600, 2000);
    auto* breed = new QWidget(inhoud);
    breed->setFocusPolicy(Qt::StrongFocus);
    breed->setGeometry(10, 10, 580, 30);
    auto* laag = new QLineEdit(inhoud);
    laag->setGeometry(400, 1500, 100, 30);
    QWidget venster;
    Schuifblad blad(inhoud, &venster);
    blad.setGeometry(0, 0, 300, 200);
    venster.resize(300, 200);
    venster.show();
    venster.activateWindow();
    breed->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(0, blad.horizontalScrollBar()->value());
    laag->setFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(blad.viewport()->rect().contains(
        QRect(laag->mapTo(blad.viewport(), QPoint()), laag->size())));
    breed->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(10, breed->mapTo(inhoud, QPoint()).x());
    EXPECT_LE(blad.horizontalScrollBar()->value(), 10);
    EXPECT_LE(blad.verticalScrollBar()->value(), 10);
}
