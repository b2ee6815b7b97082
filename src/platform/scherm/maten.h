// Positions and sizes given in twips, of which 15 are one logical pixel at the standard font. With
// a larger font everything grows by the same factor, so that nothing is clipped.
#pragma once

#include <QFont>
#include <QSize>

class QWidget;

namespace plexoran {

inline constexpr double MmPerInch = 25.4;

class Maten {
  public:
    /// For the fonts of the application as they are now.
    Maten();

    /// Twips to logical pixels.
    [[nodiscard]] int Twips(int twips) const;
    [[nodiscard]] QSize Twips(int breed, int hoog) const { return {Twips(breed), Twips(hoog)}; }
    /// Millimetres to logical pixels, growing with the font; whole only after rounding by the
    /// caller.
    [[nodiscard]] double PixelsPerMm() const { return pixelsPerMm_; }
    /// A font of this many points at the standard font, larger with a larger one.
    [[nodiscard]] QFont Letter(double punten) const;

  private:
    double factor_;
    double pixelsPerMm_;
};

/// What a window manager puts around a window, its title above all.
inline constexpr QSize Kader(16, 40);

/// The property in which `PasInScherm` leaves the size that it was asked for.
inline constexpr auto Standaardmaat = "standaardmaat";

/// Makes a window this large, or as large as the screen allows.
void PasInScherm(QWidget* venster, QSize maat);

/// Moves a window there, or as near as it stays whole on the screen of `hoofdvenster`.
void ZetInScherm(QWidget* venster, QPoint linksboven, const QWidget& hoofdvenster);

/// Screen readers say it at once, wherever the keys are; it becomes the name of this part.
void Spreek(QWidget* deel, const QString& tekst);

/// Gives a control its name: for style sheets, tests and, when it has no text of its own, as
/// `gesproken` for screen readers.
void Noem(QWidget* widget, const QString& naam, const QString& gesproken = QString());

} // namespace plexoran
