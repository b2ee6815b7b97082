// What the grid shows of a group, and where, without a display: its rows, its columns and which
// commands belong to it. Lengths are millimetres on the grid's own surface, measured from its top
// left corner; lines and columns count from 1.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/tekst/tekenvlak.h"
#include "register/mappen.h"
#include "register/spelertabel.h"

namespace plexoran {

/// The rows of the players in a group, in table order: element i is the row on grid line i + 1.
using Weergave = std::vector<int>;

/// The column names as the shown group has them.
using Namenrij = std::array<Tekstblik, AantalKolommen>;

/// What depends on the shown group. A button of which the option words say nothing stays as it is.
struct Groepsbeeld {
    bool importgroep = false;
    std::optional<bool> cmdHaalNBBnamen{}; ///< to be shown or hidden
    bool verbergGatenlijst = false;
    Namenrij kolomnamen = Kolomnamen;
};

[[nodiscard]] Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode);

namespace rooster {
inline constexpr double Regelhoogte = 4.4;
inline constexpr double Bovenmarge = 5.0; ///< room for the header above the first line
inline constexpr double Celmarge = 1.0;   ///< padding of a cell, on one side
inline constexpr double Speling = 0.6;    ///< kept free in a cell besides its padding
inline constexpr double SmalsteKolom = 10.0;
} // namespace rooster

/// A line ends where the next one begins, the surface below its last line.
[[nodiscard]] constexpr double BovenkantVan(int regel)
{
    return (regel - 1) * rooster::Regelhoogte + rooster::Bovenmarge;
}

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
