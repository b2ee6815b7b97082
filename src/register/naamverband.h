// How players are alike, as far as their own fields tell.
#pragma once

#include "register/dubbelen.h"

namespace plexoran {

/// What is compared of a player.
struct Wie {
    Tekst gespeld; ///< the full name in capitals
    Tekst vol;     ///< the words of it
    Tekst voor;    ///< those of the first name
    Tekst kern;    ///< those of the surname, without the particle before it
    Tekst heel;    ///< both
    Tekst mail;
    Tekst telefoon;
    Tekst nbbnr;
    bool afgekort = false; ///< the first name, to initials
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
