// A printed list on A4: its layout, reckoned in single precision, and a page of it, drawn the same
// way on screen, printer and PDF. Millimetres unless said otherwise.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/tekst/tekenvlak.h"
#include "printing/printtabel.h"

namespace plexoran {

inline constexpr int Bladgrens = 30; ///< more pages are neither shown nor printed
inline constexpr float A4Kort = 210;
inline constexpr float A4Lang = 297;

/// What the scale alone decides.
struct Schaalmaten {
    float schaal;
    float punten = schaal * 10;        ///< size of the letters
    float titelpunten = schaal * 14;   ///< of the title of the list
    float celmarge = schaal * 0.8F;    ///< white on either side of a text in its column
    float kophoogte = schaal * 15;     ///< H, of the block above the titles of the columns
    float titelhoogte = schaal * 4.5F; ///< T, of the row with those titles
    float rijhoogte = schaal * 4.5F;   ///< h

    [[nodiscard]] Letter Gewoon() const { return {.punten = static_cast<double>(punten)}; }
    [[nodiscard]] Letter Vet() const
    {
        return {.punten = static_cast<double>(punten), .vet = true};
    }
};

/// Sheet and margins of an orientation.
struct Papier {
    Papierstand stand;
    float breed = stand == Papierstand::Staand ? A4Kort : A4Lang;
    float hoog = stand == Papierstand::Staand ? A4Lang : A4Kort;
    float zijmarge = 15;
    float bovenmarge = stand == Papierstand::Staand ? 15.0F : 10.0F; ///< and at the bottom
};

struct Bladindeling {
    Schaalmaten maten;
    /// x(0) to x(C+1): where each column begins and, last, the print width W.
    std::vector<float> begin;
    Papier papier;
    float links;      ///< of x(0) on the sheet: the margin, less where the list is too wide for it
    int kolommen;     ///< how many columns are drawn, the number of the row counted along
    int rijenPerBlad; ///< N
    int bladen;       ///< P, which may exceed the limit

    [[nodiscard]] float Printbreedte() const { return begin.back(); }
    /// Whole millimetres, never fewer than there are.
    [[nodiscard]] int Millimeters() const { return static_cast<int>(std::ceil(Printbreedte())); }
    /// Wider than A4 on its side.
    [[nodiscard]] bool TeBreed() const { return Printbreedte() > A4Lang; }
    [[nodiscard]] int ToonbareBladen() const { return std::min(bladen, Bladgrens); }
    /// First row of a page, from 1, and the last one that exists; last < first on an empty page.
    [[nodiscard]] int EersteRij(int blad) const { return (blad - 1) * rijenPerBlad + 1; }
    [[nodiscard]] int LaatsteRij(int blad, int rijen) const
    {
        return std::min(EersteRij(blad) + rijenPerBlad - 1, rijen);
    }
};

[[nodiscard]] Bladindeling BerekenKolommen(const Printtabel& tabel, float schaal,
                                           const Lettermeter& meter);

/// The grid of the list.
inline constexpr Kleur Lijnkleur{100, 100, 100};

/// All that the pages show.
struct Printlijst {
    Printtabel tabel;
    Bladindeling indeling;
    Tekst groeptekst;  ///< code and name of the group
    Tekst subgroepkop; ///< empty: none was chosen
    Tekst datum;       ///< at the foot
    Tekst programma;   ///< name of the suite's main application, at the foot
};

/// Draws page `blad`, from 1: the block at the head, the titles of the columns, the rows and the
/// foot. The surface is the whole sheet.
void TekenBlad(Tekenvlak& vlak, const Printlijst& lijst, int blad);

} // namespace plexoran
