#include "platform/scherm/pictogram.h"

#include <QPainter>
#include <QPainterPath>

namespace plexoran {
namespace {

/// In a square of 100 by 100.
QPainterPath Schoppen()
{
    QPainterPath blad(QPointF(50, 14));
    blad.cubicTo(58, 32, 86, 42, 82, 62);
    blad.cubicTo(79, 76, 60, 76, 54, 64);
    blad.cubicTo(55, 74, 58, 82, 66, 86);
    blad.lineTo(34, 86);
    blad.cubicTo(42, 82, 45, 74, 46, 64);
    blad.cubicTo(40, 76, 21, 76, 18, 62);
    blad.cubicTo(14, 42, 42, 32, 50, 14);
    return blad;
}

QPixmap Teken(int maat)
{
    QPixmap beeld(maat, maat);
    beeld.fill(Qt::transparent);
    QPainter schilder(&beeld);
    schilder.setRenderHint(QPainter::Antialiasing);
    schilder.scale(maat / 100.0, maat / 100.0);
    schilder.setPen(Qt::NoPen);
    schilder.setBrush(QColor(24, 110, 66));
    schilder.drawRoundedRect(QRectF(2, 2, 96, 96), 18, 18);
    schilder.setBrush(Qt::white);
    schilder.drawPath(Schoppen());
    return beeld;
}

} // namespace

QIcon Pictogram()
{
    QIcon pictogram;
    for (const int maat : {16, 32, 64, 128})
        pictogram.addPixmap(Teken(maat));
    return pictogram;
}

} // namespace plexoran
