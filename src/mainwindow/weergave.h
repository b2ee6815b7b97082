// What the grid shows of a group, and where, without a display: its rows, its columns, which
// commands belong to it, and which of these can be used now. Lengths are millimetres on the grid's
// own surface, measured from its top left corner; lines and columns count from 1.
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
inline constexpr double SmalsteKeuze = 4.0; ///< to which the user can narrow a column
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

/// What the user made of a column; without a width of his own it has the stated one.
struct Kolomkeuze {
    double breedte = 0;
    bool verborgen = false;
};
using Kolomkeuzes = std::array<Kolomkeuze, AantalKolommen>;

/// The edges with what the user chose; a hidden column has no width.
[[nodiscard]] Kolomranden MetKeuzes(const Kolomranden& gesteld, const Kolomkeuzes& keuzes);

/// Of the narrowest column in which a text of so many micrometres stands whole.
[[nodiscard]] double PassendeBreedte(std::int64_t tekst);

/// Gives the columns that are shown, together, this room, so that the least is cut: of all ways to
/// share it, the one in which names and cells lose the fewest millimetres in all. What is more than
/// they need they get in equal parts.
[[nodiscard]] Kolomkeuzes VerdeelRuimte(double ruimte, const Spelertabel& tabel,
                                        std::span<const int> rijen, const Namenrij& namen,
                                        const Kolomkeuzes& keuzes, const Tekstmeter& meter);

/// The rows by what stands in a column: `Nr`, `Key` and `NBBnr` by number, the others in the order
/// of texts; equal ones stay as they come.
[[nodiscard]] Weergave Gesorteerd(const Spelertabel& tabel, Weergave rijen, Kolom kolom);

/// A line for each row, with the cells that are shown, as a sheet takes them.
[[nodiscard]] Tekst Kopieertekst(const Spelertabel& tabel, std::span<const int> rijen,
                                 const Namenrij& namen, const Kolomkeuzes& keuzes);

/// A player in full: his name, telephone, e-mail and address, as far as they are there.
[[nodiscard]] Tekst SpelerVoluit(const Spelertabel& tabel, int rij);

/// What a command needs, and how things stand.
struct Eisen {
    bool wijzigt = false;
    bool regels = false; ///< in the group
    bool regel = false;  ///< that is chosen
    bool importgroep = false;
    bool keuzelijsten = false; ///< in sight, of which lines it is about
    bool gaatErheen = false;   ///< to the import group, from any other
    bool nooit = false;        ///< does nothing in this program
};
struct Opdrachtstand {
    bool alleenKijken = false;
    int regels = 0;
    int gekozen = 0;
    bool importgroep = false;
    Tekstblik importcode{};
    bool knopVerborgen = false; ///< the button of the command
    bool keuzelijsten = true;
};

/// Why a command cannot be used now; empty when it can.
[[nodiscard]] Tekst WaaromNiet(const Eisen& eisen, const Opdrachtstand& stand);

/// The text as it is drawn in a column of this width: whole when it fits, else shortened from its
/// end and closed by "...".
[[nodiscard]] Tekst PasTekst(Tekstblik tekst, double kolombreedte, const Tekstmeter& meter);

} // namespace plexoran
