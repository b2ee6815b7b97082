#include "platform/scherm/schildervlak.h"

#include <QGlyphRun>

#include <algorithm>
#include <cmath>

namespace plexoran {
namespace {

QColor Inkt(Kleur kleur)
{
    return {kleur.rood, kleur.groen, kleur.blauw};
}

} // namespace

Schildervlak::Schildervlak(QPainter& schilder, const Letterkast& kast, double eenhedenPerMm,
                           Doel doel, QPointF oorsprong)
    : schilder_(schilder), kast_(kast), perMm_(eenhedenPerMm), doel_(doel), oorsprong_(oorsprong)
{}

QPointF Schildervlak::Punt(double x, double y) const
{
    return oorsprong_ + QPointF(x * perMm_, y * perMm_);
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
        pen += snede.opschuiving[i];
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
    schilder_.setPen(Qt::black);
    schilder_.translate(basislijn);
    schilder_.scale(schaal * perMm_, schaal * perMm_);
    schilder_.drawGlyphRun(QPointF(), rij);
    schilder_.restore();
}

/// The rectangle on whole dots of the device, at least one of them wide and high.
QRectF Schildervlak::OpPunten(const QRectF& vlak) const
{
    const QTransform naarPunten = schilder_.deviceTransform();
    const QRectF punten = naarPunten.mapRect(vlak);
    const QPointF hoek(std::round(punten.left()), std::round(punten.top()));
    const QSizeF maat(std::max(1.0, std::round(punten.width())),
                      std::max(1.0, std::round(punten.height())));
    return naarPunten.inverted().mapRect(QRectF(hoek, maat));
}

void Schildervlak::Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte)
{
    const bool recht = x1 == x2 || y1 == y2;
    if (doel_ == Doel::Scherm && recht) {
        const double half = dikte / 2;
        const QPointF begin = Punt(std::min(x1, x2), std::min(y1, y2));
        const QPointF eind = Punt(std::max(x1, x2), std::max(y1, y2));
        const QPointF rand(x1 == x2 ? half * perMm_ : 0, y1 == y2 ? half * perMm_ : 0);
        schilder_.fillRect(OpPunten(QRectF(begin - rand, eind + rand)), Inkt(kleur));
        return;
    }
    schilder_.setPen(QPen(Inkt(kleur), dikte * perMm_, Qt::SolidLine, Qt::FlatCap));
    schilder_.drawLine(QLineF(Punt(x1, y1), Punt(x2, y2)));
}

void Schildervlak::Vul(double x, double y, double breed, double hoog, Kleur kleur)
{
    const QRectF vlak(Punt(x, y), QSizeF(breed * perMm_, hoog * perMm_));
    schilder_.fillRect(doel_ == Doel::Scherm ? OpPunten(vlak) : vlak, Inkt(kleur));
}

} // namespace plexoran
