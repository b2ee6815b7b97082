// Keeps many texts at the cost of their bytes: one behind the other in large blocks.
#pragma once

#include <algorithm>
#include <vector>

#include "platform/grootgeheugen.h"
#include "platform/tekst.h"

namespace plexoran {

class Tekstvoorraad {
  public:
    /// A copy that stays where it is as long as the store lives, also when the store is moved.
    Tekstblik Bewaar(Tekstblik tekst)
    {
        if (blokken_.empty() || blokken_.back().grootte - blokken_.back().vol < tekst.size())
            blokken_.emplace_back(std::max(Volgende(), tekst.size()));
        Blok& blok = blokken_.back();
        char* const begin = blok.tekens.data() + blok.vol;
        std::copy(tekst.begin(), tekst.end(), begin);
        blok.vol += tekst.size();
        return {begin, tekst.size()};
    }

  private:
    static constexpr std::size_t KleinsteBlok = 65536;
    static constexpr std::size_t GrootsteBlok = 4194304;

    struct Blok {
        explicit Blok(std::size_t bytes) : tekens(bytes), grootte(bytes) {}

        Tekenblok tekens;
        std::size_t grootte;
        std::size_t vol = 0;
    };

    /// Twice the last one: few blocks for many texts, and at most as much unused as used.
    [[nodiscard]] std::size_t Volgende() const
    {
        if (blokken_.empty())
            return KleinsteBlok;
        return std::clamp(2 * blokken_.back().grootte, KleinsteBlok, GrootsteBlok);
    }

    std::vector<Blok> blokken_;
};

} // namespace plexoran
