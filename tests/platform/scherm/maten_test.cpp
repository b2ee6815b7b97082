#include "platform/scherm/maten.h"

#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

namespace plexoran {
namespace {

class ZetInSchermTest : public testing::Test {
  protected:
    QPoint Zet(QSize maat, QPoint linksboven)
    {
        venster.resize(maat);
        ZetInScherm(&venster, vrij.topLeft() + linksboven, hoofd);
        return venster.pos() - vrij.topLeft();
    }

    QWidget hoofd;
    QWidget venster;
    QRect vrij = hoofd.screen()->availableGeometry();
};

} // namespace

TEST_F(ZetInSchermTest, WaarErRuimteIsBlijftDePlek)
{
    const QPoint hoek(vrij.width() - 304, vrij.height() - 240);
    EXPECT_EQ(QPoint(0, 0), Zet({300, 200}, {0, 0}));
    EXPECT_EQ(QPoint(40, 70), Zet({300, 200}, {40, 70}));
    EXPECT_EQ(hoek, Zet({300, 200}, hoek));
}

/// With 40 pixels below for the title that comes on top of it, and 4 for the rims at the sides.
TEST_F(ZetInSchermTest, OverDeRandSchuiftHetTerug)
{
    const QPoint hoek(vrij.width() - 304, vrij.height() - 240);
    EXPECT_EQ(hoek, Zet({300, 200}, hoek + QPoint(1, 1)));
    EXPECT_EQ(hoek, Zet({300, 200}, {5000, 5000}));
    EXPECT_EQ(QPoint(0, 0), Zet({300, 200}, {-1, -5000}));
}

/// The corner with the title stays in sight, whatever else does not.
TEST_F(ZetInSchermTest, EenTeGrootVensterBegintLinksboven)
{
    EXPECT_EQ(QPoint(0, 0), Zet(vrij.size() + QSize(50, 50), {20, 20}));
}

} // namespace plexoran
