// Whatever has the focus shows it, however it came there and whatever the theme.
#include <QScrollBar>

#include "vensters/kleuren.h"
#include "vensters/rondgang.h"

using namespace plexoran;

namespace {

/// What can take the keys; the scroll bars that Qt itself gives a list are reached by its keys.
QList<QWidget*> Focusdelen(const QWidget& venster)
{
    QList<QWidget*> uit;
    for (auto* deel : venster.findChildren<QWidget*>()) {
        if (deel->isVisible() && deel->isEnabled() && deel->focusPolicy() != Qt::NoFocus &&
            deel->focusProxy() == nullptr)
            uit << deel;
    }
    return uit;
}

/// How many dots of two pictures differ so much that it is seen.
int Zichtbaarverschil(const QImage& een, const QImage& ander)
{
    constexpr double zichtbaar = 3;
    int uit = 0;
    for (int y = 0; y < een.height(); ++y) {
        for (int x = 0; x < een.width(); ++x)
            uit += een.pixel(x, y) != ander.pixel(x, y) &&
                           Contrast(een.pixelColor(x, y), ander.pixelColor(x, y)) >= zichtbaar
                       ? 1
                       : 0;
    }
    return uit;
}

class FocusTest : public Rondgangproef, public testing::WithParamInterface<const char*> {
  protected:
    FocusTest()
    {
        if (GetParam() != std::string("Licht"))
            QApplication::setPalette(GetParam() == std::string("Donker") ? Donker()
                                                                         : HoogContrast());
    }
    ~FocusTest() override { QApplication::setPalette(QPalette()); }
};

} // namespace

TEST_P(FocusTest, WatDeToetsenKrijgtIsTeZien)
{
    int gezien = 0;
    Rondgang(QGuiApplication::primaryScreen(), [&](QWidget& venster) {
        venster.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
        for (QWidget* deel : Focusdelen(venster)) {
            deel->setFocus(Qt::OtherFocusReason);
            QApplication::processEvents();
            if (!deel->hasFocus() || deel->visibleRegion().isEmpty())
                continue;
            const QRect plek(deel->mapTo(&venster, QPoint()), deel->size());
            const QImage met = venster.grab(plek & venster.rect()).toImage();
            deel->clearFocus();
            QApplication::processEvents();
            const QImage zonder = venster.grab(plek & venster.rect()).toImage();
            // A line along two of its sides at the least.
            EXPECT_GE(Zichtbaarverschil(met, zonder), met.width() / 2 + met.height() / 2)
                << deel->metaObject()->className() << ' ' << deel->objectName().toStdString();
            ++gezien;
        }
    });
    EXPECT_GT(gezien, 200);
}

INSTANTIATE_TEST_SUITE_P(Paletten, FocusTest, testing::Values("Licht", "Donker", "HoogContrast"),
                         [](const auto& soort) { return soort.param; });
