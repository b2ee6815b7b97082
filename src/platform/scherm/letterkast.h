// The letters in which is drawn and printed, and their measures: one source for screen, printer and
// PDF, so that a text is equally wide on all of them and stands where the layout put it.
#pragma once

#include <QFont>
#include <QRawFont>

#include <array>
#include <memory>

#include "platform/tekst/tekenvlak.h"
#include "platform/tekst/tekstmeter.h"

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
    [[nodiscard]] static double Mm(double punten);
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

} // namespace plexoran
