// The letters in which is drawn and printed, and the surface on which: one source of measures for
// screen, printer and PDF, so that a text is equally wide on all of them and stands where the
// layout put it.
#pragma once

#include <QPainter>
#include <QRawFont>

#include <array>
#include <memory>

#include "platform/tekst/tekenvlak.h"

namespace plexoran {

/// One font in one weight, loaded at a fixed size at which the advances of its characters are
/// whole numbers.
struct Lettersnede {
    static constexpr int Em = 2048; ///< the size, in units; every measure below is in these units

    QRawFont letter;
    std::array<quint32, 256> beeld{}; ///< the glyph of each character of the code page
    Tekstmeter meter;
    double stijging = 0; ///< from the base line up
    double daling = 0;   ///< from the base line down

    /// Units to millimetres for a letter of this many points.
    [[nodiscard]] static double Mm(double punten) { return punten * (25.4 / 72) / Em; }
};

class Letterkast : public Lettermeter {
  public:
    /// Loaded when first asked for; it lives as long as the case.
    [[nodiscard]] const Lettersnede& Snede(const Letter& letter) const;

    [[nodiscard]] double Breedte(const Letter& letter, Tekstblik tekst) const override;
    [[nodiscard]] double Hoogte(const Letter& letter) const override;

  private:
    static constexpr std::size_t AantalSneden = 6; // three fonts, each in two weights
    mutable std::array<std::unique_ptr<Lettersnede>, AantalSneden> sneden_;
};

/// The font of the grid and of lists on the screen: "Arial", or its metric equal, without kerning,
/// so that the width of a text is the sum of its characters'.
[[nodiscard]] QFont Roosterletter(int pixels);
/// Its widths in micrometres.
[[nodiscard]] Tekstmeter Roostermeter(int pixels, double pixelsPerMm);

/// A drawing surface over a QPainter: a widget, a picture, a page of a printer or of a PDF.
class Schildervlak : public Tekenvlak {
  public:
    enum class Doel {
        Scherm, ///< few dots: base lines and straight lines are put on whole ones, which is sharp
        Papier, ///< many dots: everything stands exactly where it was put
    };

    /// Draws with `schilder`, whose own scale counts, and texts in `inkt`. Both it and the case are
    /// borrowed.
    Schildervlak(QPainter& schilder, const Letterkast& kast, double eenhedenPerMm, Doel doel,
                 const QColor& inkt = Qt::black);

    [[nodiscard]] const Lettermeter& Meter() const override { return kast_; }
    /// What it draws with, for what is drawn by others, and its units per millimetre.
    [[nodiscard]] QPainter& Schilder() const { return schilder_; }
    [[nodiscard]] double PerMm() const { return perMm_; }
    void Schrijf(double x, double y, const Letter& letter, Tekstblik tekst) override;
    void Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte) override;

  private:
    [[nodiscard]] QPointF Punt(double x, double y) const;
    [[nodiscard]] QRectF LijnOpPunten(QPointF begin, QPointF eind, double dikte) const;

    QPainter& schilder_;
    const Letterkast& kast_;
    double perMm_;
    Doel doel_;
    QColor inkt_;
};

} // namespace plexoran
