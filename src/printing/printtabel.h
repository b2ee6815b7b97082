// The print table: the chosen columns of the chosen players of a group, in printed order.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// The first column that can be printed; `Nr`, `Key` and `Groep` are never offered.
inline constexpr Kolom EerstePrintkolom = Kolom::Voornaam;

/// What stands for a player without a subgroup; blanks alone are none.
inline constexpr Tekstblik GeenSubgroep = "GEEN";

/// The distinct subgroups of the group's players, as the set-up lists them: a `Waardenlijst`.
[[nodiscard]] std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel, Tekstblik groepscode);
/// The same of these players.
[[nodiscard]] std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel,
                                                 const std::vector<int>& rijen);

/// "Subgroep(en): " and the subgroups as listed, joined by " + "; empty without any.
[[nodiscard]] Tekst Subgroepkop(const std::vector<Tekst>& subgroepen);

/// What is printed. Rows and columns are counted as on paper: row 1 is the first player, column 0
/// the number of the row, columns 1 to `Kolommen()` are the chosen ones.
struct Printtabel {
    const Spelertabel& tabel; ///< borrowed, and not to change meanwhile
    std::vector<int> rijen;
    std::vector<Kolom> kolommen;
    std::vector<Tekst> titels; ///< of these columns

    [[nodiscard]] int Rijen() const { return static_cast<int>(rijen.size()); }
    [[nodiscard]] int Kolommen() const { return static_cast<int>(kolommen.size()); }
    /// "RegNr" for column 0.
    [[nodiscard]] Tekstblik Titel(int kolom) const
    {
        return kolom == 0 ? Tekstblik("RegNr") : titels[static_cast<std::size_t>(kolom - 1)];
    }
    /// The text of a column but the first; it holds until the table is changed.
    [[nodiscard]] Tekstblik Cel(int rij, int kolom) const
    {
        return tabel.Cel(rijen[static_cast<std::size_t>(rij - 1)],
                         kolommen[static_cast<std::size_t>(kolom - 1)]);
    }
};

/// What the set-up asks for.
struct Printopdracht {
    Tekst groepscode{};
    /// The chosen ones, as listed; empty: all players. Capitals do not count, and a player is in
    /// when the running text of the chosen ones holds his subgroup.
    std::vector<Tekst> subgroepen{};
    std::vector<Kolom> kolommen{};                                 ///< in list order
    std::array<Tekstblik, AantalKolommen> kolomnamen = Kolomnamen; ///< as the group shows them
    std::optional<std::vector<int>> rijen{}; ///< these players, whatever their group
};

/// Sorted by surname when a column of that name is among the chosen ones, players with the same
/// surname in table order; else in table order.
[[nodiscard]] Printtabel MaakPrinttabel(const Spelertabel& tabel, const Printopdracht& opdracht);

} // namespace plexoran
