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
                           Doel doel, QPointF oorsprong, const QColor& inkt)
    : schilder_(schilder), kast_(kast), perMm_(eenhedenPerMm), doel_(doel), oorsprong_(oorsprong),
      inkt_(inkt)
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

/// The rectangle on whole dots of the device, at least one of them wide and high. Edges that lie on
/// the same place come out on the same dot.
QRectF Schildervlak::OpPunten(const QRectF& vlak) const
{
    const QTransform naarPunten = schilder_.deviceTransform();
    const QRectF punten = naarPunten.mapRect(vlak);
    const QPointF hoek(std::round(punten.left()), std::round(punten.top()));
    const QPointF eind(std::max(hoek.x() + 1, std::round(punten.right())),
                       std::max(hoek.y() + 1, std::round(punten.bottom())));
    return naarPunten.inverted().mapRect(QRectF(hoek, eind));
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
    const bool recht = x1 == x2 || y1 == y2;
    if (doel_ == Doel::Scherm && recht) {
        const QPointF begin = Punt(std::min(x1, x2), std::min(y1, y2));
        const QPointF eind = Punt(std::max(x1, x2), std::max(y1, y2));
        schilder_.fillRect(LijnOpPunten(begin, eind, dikte * perMm_), Inkt(kleur));
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
