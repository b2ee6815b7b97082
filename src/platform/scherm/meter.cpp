#include "platform/scherm/meter.h"

#include <QFontMetricsF>
#include <QStringList>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {

QFont Roosterletter(int pixels)
{
    QFont letter(QStringLiteral("Arial"));
    letter.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    letter.setStyleHint(QFont::SansSerif);
    letter.setPixelSize(pixels);
    letter.setKerning(false);
    return letter;
}

Tekstmeter MaakMeter(const QFont& letter, double pixelsPerMm)
{
    constexpr double MicrometerPerMm = 1000.0;
    const QFontMetricsF maten(letter);
    Tekstmeter meter;
    for (std::size_t i = 0; i < meter.opschuiving.size(); ++i) {
        // One character at a time: shaping a text would cost a good part of the start.
        const QChar teken = NaarUtf16(Tekst(1, static_cast<char>(i))).front();
        meter.opschuiving[i] =
            qRound(maten.horizontalAdvance(teken) / pixelsPerMm * MicrometerPerMm);
    }
    return meter;
}

} // namespace plexoran
