// The geometry of the grid, without a display. Lengths are millimetres on the grid's own surface,
// measured from its top left corner; lines and columns count from 1.
#pragma once

#include <span>

#include "platform/tekst/tekenvlak.h"
#include "register/spelertabel.h"

namespace plexoran {

namespace rooster {
inline constexpr double Regelhoogte = 4.4;
inline constexpr double Bovenmarge = 5.0; ///< room for the header above the first line
inline constexpr double Celmarge = 1.0;   ///< padding of a cell, on one side
inline constexpr double Speling = 0.6;    ///< kept free in a cell besides its padding
inline constexpr double SmalsteKolom = 10.0;
} // namespace rooster

[[nodiscard]] double BovenkantVan(int regel);
[[nodiscard]] double OnderkantVan(int regel);
/// Height of the surface that holds `regels` lines.
[[nodiscard]] double Vlakhoogte(int regels);

/// Widest text of each column over the rows shown, in micrometres; element 0 is column 1.
using Kolommaten = std::array<std::int64_t, AantalKolommen>;

[[nodiscard]] Kolommaten MeetCellen(const Spelertabel& tabel, std::span<const int> rijen,
                                    const Tekstmeter& meter);

enum class Breedteregel { VolgensTeksten, VolgensHeader };

/// Left edges of the columns and, last, the right edge of the final one.
using Kolomranden = std::array<double, AantalKolommen + 1>;

[[nodiscard]] Kolomranden MaakKolommen(const Kolommaten& cellen, const Kolommaten& headers,
                                       Breedteregel regel);

/// The text as it is drawn in a column of this width: whole when it fits, else shortened from its
/// end and closed by "...".
[[nodiscard]] Tekst PasTekst(Tekstblik tekst, double kolombreedte, const Tekstmeter& meter);

} // namespace plexoran
