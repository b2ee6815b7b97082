// A drawing surface over a QPainter: a widget, a picture, a page of a printer or of a PDF.
#pragma once

#include <QPainter>

#include "platform/scherm/letterkast.h"

namespace plexoran {

class Schildervlak : public Tekenvlak {
  public:
    enum class Doel {
        Scherm, ///< few dots: base lines and straight lines are put on whole ones, which is sharp
        Papier, ///< many dots: everything stands exactly where it was put
    };

    /// Draws with `schilder`, whose own scale counts, with the top left corner at `oorsprong` in
    /// its units and texts in `inkt`. Both it and the case are borrowed.
    Schildervlak(QPainter& schilder, const Letterkast& kast, double eenhedenPerMm, Doel doel,
                 QPointF oorsprong = {}, const QColor& inkt = Qt::black);

    [[nodiscard]] const Lettermeter& Meter() const override { return kast_; }
    void Schrijf(double x, double y, const Letter& letter, Tekstblik tekst) override;
    void Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte) override;
    void Vul(double x, double y, double breed, double hoog, Kleur kleur) override;

  private:
    [[nodiscard]] QPointF Punt(double x, double y) const;
    [[nodiscard]] QRectF OpPunten(const QRectF& vlak) const;
    [[nodiscard]] QRectF LijnOpPunten(QPointF begin, QPointF eind, double dikte) const;

    QPainter& schilder_;
    const Letterkast& kast_;
    double perMm_;
    Doel doel_;
    QPointF oorsprong_;
    QColor inkt_;
};

} // namespace plexoran
