// The columns of a sorted list, without a display. Lengths are in widths of the letter "A".
#pragma once

#include <array>

namespace plexoran {

enum class Sorteersoort { Key = 1, NBBnr = 2, NBBgroep = 3 };

inline constexpr int AantalSorteervelden = 6;

/// T(1) to T(6) are the left edges of the columns, T(7) the right edge; element 0 is T(1).
using Sorteerranden = std::array<float, AantalSorteervelden + 1>;

[[nodiscard]] constexpr Sorteerranden ZetKolommen(Sorteersoort soort)
{
    constexpr float linkermarge = 1;
    Sorteerranden t{linkermarge};
    t[1] = t[0] + 12 + (soort == Sorteersoort::Key ? 1.5F : 0);
    t[2] = t[1] + 20;
    t[3] = t[2] + 12;
    t[4] = t[3] + 27;
    t[5] = t[4] + 15 + (soort == Sorteersoort::NBBgroep ? 2.0F : 0);
    t[6] = t[5] + 16 + (soort == Sorteersoort::NBBnr ? 2.0F : 0);
    return t;
}

/// The field, from 1, that is printed bold: the one that the list is sorted by.
[[nodiscard]] constexpr int VetVeld(Sorteersoort soort)
{
    constexpr std::array velden{1, 6, 5}; // by kind
    return velden[static_cast<std::size_t>(soort) - 1];
}

} // namespace plexoran
