#include "platform/scherm/maten.h"

#include <QAccessible>
#include <QApplication>
#include <QFontInfo>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace plexoran {
namespace {

constexpr double TwipsPerPixel = 15.0;
constexpr double StandaardPunten = 9.0;
constexpr double PuntenPerInch = 72.0;
constexpr double StandaardDpi = 96.0;
constexpr int Zijranden = 4; // as they are mostly: a few pixels or not seen at all

} // namespace

Maten::Maten()
{
    const double pixels = QFontInfo(QApplication::font()).pixelSize();
    factor_ = std::max(1.0, pixels / (StandaardPunten * StandaardDpi / PuntenPerInch));
    pixelsPerMm_ = factor_ * StandaardDpi / MmPerInch;
}

int Maten::Twips(int twips) const
{
    return qRound(factor_ * twips / TwipsPerPixel);
}

QFont Maten::Letter(double punten) const
{
    QFont letter = QApplication::font();
    letter.setPixelSize(qRound(factor_ * punten * StandaardDpi / PuntenPerInch));
    return letter;
}

void PasInScherm(QWidget* venster, QSize maat)
{
    venster->setProperty(Standaardmaat, maat);
    venster->resize(maat.boundedTo(venster->screen()->availableSize() - Kader));
}

void ZetInScherm(QWidget* venster, QPoint linksboven, const QWidget& hoofdvenster)
{
    const QRect vrij = hoofdvenster.screen()->availableGeometry();
    const int rechts = vrij.x() + vrij.width() - venster->width() - Zijranden;
    const int onder = vrij.y() + vrij.height() - venster->height() - Kader.height();
    venster->move(std::max(vrij.x(), std::min(linksboven.x(), rechts)),
                  std::max(vrij.y(), std::min(linksboven.y(), onder)));
}

void Spreek(QWidget* deel, const QString& tekst)
{
    deel->setAccessibleName(tekst);
    QAccessibleEvent roep(deel, QAccessible::Alert);
    QAccessible::updateAccessibility(&roep);
}

void Noem(QWidget* widget, const QString& naam, const QString& gesproken)
{
    widget->setObjectName(naam);
    if (!gesproken.isEmpty())
        widget->setAccessibleName(gesproken);
}

} // namespace plexoran
