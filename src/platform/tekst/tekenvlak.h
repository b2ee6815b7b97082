// Drawing and measuring in millimetres, without a display. One routine draws a page on whatever
// surface it is given: the screen at any zoom, a printer, a PDF file, or a record kept by a test.
//
// A text is as wide everywhere: the sum of the advances of its characters, which are fractions of
// the size of the letter, without kerning and without rounding to the dots of a device.
#pragma once

#include <array>
#include <cstdint>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// The fonts that lists and explanations name. Where one is missing its metric equal is used, in
/// which every character is as wide.
enum class Lettertype { Arial, CourierNew, TimesNewRoman };

struct Letter {
    Lettertype type = Lettertype::Arial;
    double punten = 10.0; ///< 1/72 inch
    bool vet = false;
    bool operator==(const Letter&) const = default;
};

struct Kleur {
    std::uint8_t rood = 0;
    std::uint8_t groen = 0;
    std::uint8_t blauw = 0;
    bool operator==(const Kleur&) const = default;
};

enum class Papierstand { Staand = 1, Liggend = 2 };

/// The width of texts in a font without kerning: a sum over a table of 256 advances.
struct Tekstmeter {
    std::array<std::int32_t, 256> opschuiving{}; ///< of each character, in the unit of its maker

    /// In the same unit.
    [[nodiscard]] std::int64_t Breedte(Tekstblik tekst) const
    {
        std::int64_t som = 0;
        for (const char teken : tekst)
            som += opschuiving[static_cast<unsigned char>(teken)];
        return som;
    }
};

/// The text, or its beginning closed by three dots where it is wider than `ruimte`. By `breedte` a
/// text is as wide as its characters are together, so that they need to be measured only once.
template <class Ruimte, class Meter>
[[nodiscard]] Tekst Ingekort(Tekstblik tekst, Ruimte ruimte, const Meter& breedte)
{
    constexpr Tekstblik puntjes = "...";
    if (breedte(tekst) <= ruimte)
        return Tekst(tekst);
    Ruimte som = breedte(puntjes);
    std::size_t past = 0;
    while (past < tekst.size() && (som += breedte(tekst.substr(past, 1))) <= ruimte)
        ++past;
    return Tekst(tekst.substr(0, past)).append(puntjes);
}

/// The widths of texts before anything is drawn.
class Lettermeter {
  public:
    virtual ~Lettermeter() = default;
    /// Millimetres.
    [[nodiscard]] virtual double Breedte(const Letter& letter, Tekstblik tekst) const = 0;
    /// From the top of the highest letter to the bottom of the lowest, millimetres.
    [[nodiscard]] virtual double Hoogte(const Letter& letter) const = 0;
};

/// A page, or a part of the screen. All lengths are millimetres from its top left corner.
class Tekenvlak {
  public:
    virtual ~Tekenvlak() = default;

    [[nodiscard]] virtual const Lettermeter& Meter() const = 0;
    /// Writes in black with the left end of the text at `x` and the top of its letters, capitals
    /// with accents included, at `y`. A control character is a blank.
    virtual void Schrijf(double x, double y, const Letter& letter, Tekstblik tekst) = 0;
    /// A line straight to the right or down, around whose middle `dikte` lies. On the screen it is
    /// never thinner than one of its dots.
    virtual void Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte) = 0;
};

} // namespace plexoran
