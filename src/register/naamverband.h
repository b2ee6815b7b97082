// How players are alike, as far as their own fields tell.
#pragma once

#include "register/dubbelen.h"

namespace plexoran {

/// Stands for a text that only has to be the same; 0 for none.
using Merk = std::size_t;
[[nodiscard]] inline Merk MerkVan(Tekstblik tekst)
{
    return tekst.empty() ? 0 : std::hash<Tekstblik>()(tekst);
}

/// What is compared of a player.
struct Wie {
    Tekst gespeld; ///< the full name
    Tekst voor;    ///< the words of the first name
    Tekst kern;    ///< those of the surname, without the particle before it
    Tekst heel;    ///< both
    Merk vol = 0;  ///< the words of the full name
    Merk mail = 0;
    Merk telefoon = 0;
    Merk nbbnr = 0;
    Merk groep = 0;
    Tekst geslacht;        ///< "M" or "V"
    bool afgekort = false; ///< the first name, to initials
    bool junior = false;
};

[[nodiscard]] Wie WieIs(const Spelertabel& tabel, int rij);

/// One letter more, less or other, or two that changed places. A digit is no letter.
[[nodiscard]] bool ScheeltEenLetter(Tekstblik een, Tekstblik ander);

/// Whether they can be the first names of one person; none can be any.
[[nodiscard]] bool LijkenVoornamen(const Wie& een, const Wie& ander);
/// Also one surname and the same behind or before that of a partner.
[[nodiscard]] bool LijkenAchternamen(const Wie& een, const Wie& ander);

/// How the full names are alike, if at all.
[[nodiscard]] std::optional<Dubbelreden> Naamverband(const Wie& een, const Wie& ander);

} // namespace plexoran
