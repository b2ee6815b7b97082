// Which field of a player each column of a list holds: guessed from its head and from what stands
// in it, remembered per kind of list; and names in one column taken apart.
#pragma once

#include "exchange/spelerslijst.h"
#include "register/spelertabel.h"

namespace plexoran {

/// Besides the columns of the register, of a list's column.
inline constexpr Kolom GeenVeld{0};
inline constexpr Kolom HeleNaam{AantalKolommen + 1};
using Veldkeuzes = std::vector<Kolom>; ///< per column of the list; each field once at the most

/// By what a player of the list is recognised.
enum class Herkenning { Key, NBBnr, Naam };

struct Lijstkeuze {
    Veldkeuzes velden{};
    Herkenning herkenning = Herkenning::Naam;
    bool operator==(const Lijstkeuze&) const = default;
};

/// Whether it is one of these, of which each stands between two blanks.
[[nodiscard]] bool IsEenVan(Tekstblik woord, Tekstblik woorden);
/// Whether the first row names the columns.
[[nodiscard]] bool HeeftKop(const Spelerslijst& lijst);
/// The guess.
[[nodiscard]] Lijstkeuze RaadVelden(const Spelerslijst& lijst, bool kop);

/// First name, particle and surname of "Jan van der Berg", "J. van der Berg" and "Berg, Jan van
/// der".
[[nodiscard]] std::array<Tekst, 3> SplitsNaam(Tekstblik naam);

// What is remembered of a kind of list: by its heads, the choices as a text.
[[nodiscard]] Tekst Lijstkoppen(const Spelerslijst& lijst, bool kop);
[[nodiscard]] Tekst Keuzetekst(const Lijstkeuze& keuze);
/// Nothing for a text that is not about so many columns.
[[nodiscard]] std::optional<Lijstkeuze> KeuzeUit(Tekstblik tekst, std::size_t kolommen);

} // namespace plexoran
