// A drawing surface that keeps what was drawn on it. Its letters are all equally wide, so that a
// test can work out positions by hand.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/tekst/tekenvlak.h"

namespace plexoran {

/// Every character is a tenth of a millimetre wide per point, a bold one an eighth; a line of text
/// is 0.4 mm high per point.
class Vastemeter : public Lettermeter {
  public:
    [[nodiscard]] double Breedte(const Letter& letter, Tekstblik tekst) const override
    {
        return static_cast<double>(tekst.size()) * letter.punten * (letter.vet ? 0.125 : 0.1);
    }
    [[nodiscard]] double Hoogte(const Letter& letter) const override { return 0.4 * letter.punten; }
};

class Vlakvanger : public Tekenvlak {
  public:
    struct Geschreven {
        double x = 0;
        double y = 0;
        Letter letter;
        Tekst tekst;
    };
    struct Getrokken {
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        Kleur kleur;
        double dikte = 0;
    };

    Vlakvanger() = default;
    /// With letters as wide as another meter says.
    explicit Vlakvanger(const Lettermeter& meter) : meter_(&meter) {}

    [[nodiscard]] const Lettermeter& Meter() const override
    {
        return meter_ == nullptr ? vast_ : *meter_;
    }
    void Schrijf(double x, double y, const Letter& letter, Tekstblik tekst) override
    {
        teksten.push_back({x, y, letter, Tekst(tekst)});
    }
    void Lijn(double x1, double y1, double x2, double y2, Kleur kleur, double dikte) override
    {
        lijnen.push_back({x1, y1, x2, y2, kleur, dikte});
    }
    [[nodiscard]] std::vector<Tekst> Teksten() const
    {
        std::vector<Tekst> uit;
        for (const Geschreven& deel : teksten)
            uit.push_back(deel.tekst);
        return uit;
    }

    /// The first text that reads so.
    [[nodiscard]] Geschreven Deel(const Tekst& tekst) const
    {
        for (const Geschreven& deel : teksten) {
            if (deel.tekst == tekst)
                return deel;
        }
        ADD_FAILURE() << "niet getekend: " << tekst;
        return {};
    }

    std::vector<Geschreven> teksten;
    std::vector<Getrokken> lijnen;

  private:
    Vastemeter vast_;
    const Lettermeter* meter_ = nullptr;
};

} // namespace plexoran
