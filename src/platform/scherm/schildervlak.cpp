#include "platform/scherm/schildervlak.h"

#include <QGlyphRun>

#include <algorithm>
#include <cmath>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

/// The fonts by their names and, behind those, the ones with the same measures.
struct Soort {
    const char* naam;
    const char* gelijke;
    QFont::StyleHint aard;
};
constexpr std::array Soorten{Soort{"Arial", "Liberation Sans", QFont::SansSerif},
                             Soort{"Courier New", "Liberation Mono", QFont::Monospace},
                             Soort{"Times New Roman", "Liberation Serif", QFont::Serif}};

QFont Schermletter(Lettertype type, bool vet, int pixels)
{
    const Soort& soort = Soorten.at(static_cast<std::size_t>(type));
    QFont font;
    font.setFamilies({QString::fromLatin1(soort.naam), QString::fromLatin1(soort.gelijke)});
    // The font has the whole code page, so no other font need be looked for.
    font.setStyleHint(soort.aard, QFont::NoFontMerging);
    font.setPixelSize(pixels);
    font.setBold(vet);
    font.setKerning(false);
    // Hinting would bend the widths towards the dots of one device.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

std::unique_ptr<Lettersnede> Laad(const Letter& letter)
{
    auto snede = std::make_unique<Lettersnede>();
    snede->letter = QRawFont::fromFont(Schermletter(letter.type, letter.vet, Lettersnede::Em));
    snede->stijging = snede->letter.ascent();
    snede->daling = snede->letter.descent();
    for (std::size_t i = 0; i < snede->beeld.size(); ++i) {
        QChar teken = NaarUtf16(Tekst(1, static_cast<char>(i))).front();
        if (teken.category() == QChar::Other_Control)
            teken = u' ';
        const auto beelden = snede->letter.glyphIndexesForString(QString(teken));
        if (beelden.isEmpty())
            continue;
        snede->beeld[i] = beelden.constFirst();
        const auto schuif = snede->letter.advancesForGlyphIndexes(beelden.mid(0, 1));
        snede->meter.opschuiving[i] = schuif.isEmpty() ? 0 : qRound(schuif.constFirst().x());
    }
    return snede;
}

QColor Inkt(Kleur kleur)
{
    return {kleur.rood, kleur.groen, kleur.blauw};
}

} // namespace

const Lettersnede& Letterkast::Snede(const Letter& letter) const
{
    auto& snede = sneden_.at(2 * static_cast<std::size_t>(letter.type) + (letter.vet ? 1 : 0));
    if (!snede)
        snede = Laad(letter);
    return *snede;
}

double Letterkast::Breedte(const Letter& letter, Tekstblik tekst) const
{
    return static_cast<double>(Snede(letter).meter.Breedte(tekst)) * Lettersnede::Mm(letter.punten);
}

double Letterkast::Hoogte(const Letter& letter) const
{
    const Lettersnede& snede = Snede(letter);
    return (snede.stijging + snede.daling) * Lettersnede::Mm(letter.punten);
}

QFont Roosterletter(int pixels)
{
    return Schermletter(Lettertype::Arial, false, pixels);
}

Tekstmeter Roostermeter(int pixels, double pixelsPerMm)
{
    constexpr double MicrometerPerMm = 1000.0;
    const double eenheid = MicrometerPerMm * pixels / (Lettersnede::Em * pixelsPerMm);
    Tekstmeter meter = Laad({.type = Lettertype::Arial})->meter;
    for (std::int32_t& opschuiving : meter.opschuiving)
        opschuiving = qRound(opschuiving * eenheid);
    return meter;
}

// ---------------------------------------------------------------- drawing

Schildervlak::Schildervlak(QPainter& schilder, const Letterkast& kast, double eenhedenPerMm,
                           Doel doel, const QColor& inkt)
    : schilder_(schilder), kast_(kast), perMm_(eenhedenPerMm), doel_(doel), inkt_(inkt)
{}

QPointF Schildervlak::Punt(double x, double y) const
{
    return QPointF(x * perMm_, y * perMm_);
}

void Schildervlak::Schrijf(double x, double y, const Letter& letter, Tekstblik tekst)
{
    const Lettersnede& snede = kast_.Snede(letter);
    QList<quint32> beelden;
    QList<QPointF> plekken;
    beelden.reserve(static_cast<qsizetype>(tekst.size()));
    plekken.reserve(static_cast<qsizetype>(tekst.size()));
    double pen = 0;
    for (const char teken : tekst) {
        const auto i = static_cast<unsigned char>(teken);
        beelden << snede.beeld[i];
        plekken << QPointF(pen, 0);
        pen += snede.meter.opschuiving[i];
    }
    QGlyphRun rij;
    rij.setRawFont(snede.letter);
    rij.setGlyphIndexes(beelden);
    rij.setPositions(plekken);

    const double schaal = Lettersnede::Mm(letter.punten);
    QPointF basislijn = Punt(x, y + snede.stijging * schaal);
    if (doel_ == Doel::Scherm) {
        const QTransform naarPunten = schilder_.deviceTransform();
        const QPointF punten = naarPunten.map(basislijn);
        basislijn = naarPunten.inverted().map(QPointF(punten.x(), std::round(punten.y())));
    }
    schilder_.save();
    schilder_.setPen(inkt_);
    schilder_.translate(basislijn);
    schilder_.scale(schaal * perMm_, schaal * perMm_);
    schilder_.drawGlyphRun(QPointF(), rij);
    schilder_.restore();
}

/// A straight line on whole dots of the device, at least one of them thick. Both its ends take in
/// the dots of the lines that end there.
QRectF Schildervlak::LijnOpPunten(QPointF begin, QPointF eind, double dikte) const
{
    const QTransform naarPunten = schilder_.deviceTransform();
    const double dik = naarPunten.mapRect(QRectF(0, 0, dikte, dikte)).width();
    const auto opPunt = [&](QPointF punt) {
        const QPointF waar = naarPunten.map(punt);
        return QPointF(std::round(waar.x() - dik / 2), std::round(waar.y() - dik / 2));
    };
    const double punten = std::max(1.0, std::round(dik));
    return naarPunten.inverted().mapRect(
        QRectF(opPunt(begin), opPunt(eind) + QPointF(punten, punten)));
}

void Schildervlak::Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte)
{
    if (doel_ == Doel::Scherm) {
        const QRectF punten = LijnOpPunten(Punt(x1, y1), Punt(x2, y2), dikte * perMm_);
        schilder_.fillRect(punten, Inkt(kleur));
        return;
    }
    schilder_.setPen(QPen(Inkt(kleur), dikte * perMm_, Qt::SolidLine, Qt::FlatCap));
    schilder_.drawLine(QLineF(Punt(x1, y1), Punt(x2, y2)));
}

} // namespace plexoran
