#include "platform/scherm/meter.h"

#include <QFontMetricsF>
#include <QStringList>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {

QFont Roosterletter(int pixels)
{
    QFont letter(QStringLiteral("Arial"));
    letter.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    // The font has the whole code page, so no other font need be looked for.
    letter.setStyleHint(QFont::SansSerif, QFont::NoFontMerging);
    letter.setPixelSize(pixels);
    letter.setKerning(false);
    // The same widths at every scale of the screen, and no hinting to be computed at the start.
    letter.setHintingPreference(QFont::PreferNoHinting);
    return letter;
}

Tekstmeter MaakMeter(const QFont& letter, double pixelsPerMm)
{
    constexpr double MicrometerPerMm = 1000.0;
    const QFontMetricsF maten(letter);
    Tekstmeter meter;
    for (std::size_t i = 0; i < meter.opschuiving.size(); ++i) {
        // One character at a time: shaping a text would cost a good part of the start. A control
        // character counts as a wide letter.
        QChar teken = NaarUtf16(Tekst(1, static_cast<char>(i))).front();
        if (teken.category() == QChar::Other_Control)
            teken = QLatin1Char('M');
        meter.opschuiving[i] =
            qRound(maten.horizontalAdvance(teken) / pixelsPerMm * MicrometerPerMm);
    }
    return meter;
}

} // namespace plexoran
