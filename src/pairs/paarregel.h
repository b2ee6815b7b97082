// The lines of the pairs window's lists. Each is made here and taken apart here, since the pair
// file and the CSV outputs are made from the lines themselves:
//
//     <Achternaam> <Voornaam> <Tusv>   <Key>                  an available player
//     <Key> <name>                                            a choice
//     <choice>          +<choice>                             a pair: ten blanks and a "+"
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

/// Every key in a line or a pair token takes six characters.
inline constexpr std::size_t Sleutellengte = 6;
/// Stands for the name of a player who is not available.
inline constexpr Tekstblik OnbekendeNaam = "??????";

/// The first, and the last, six characters of a text, or all of a shorter one.
[[nodiscard]] constexpr Tekstblik Eerste6(Tekstblik tekst)
{
    return tekst.substr(0, Sleutellengte);
}
[[nodiscard]] constexpr Tekstblik Laatste6(Tekstblik tekst)
{
    return tekst.size() <= Sleutellengte ? tekst : tekst.substr(tekst.size() - Sleutellengte);
}

/// The line of an available player. The key is always its last six characters.
[[nodiscard]] Tekst Spelerregel(const Spelertabel& tabel, int rij);
/// The name in such a line: all but the key, without outer spaces.
[[nodiscard]] Tekstblik Spelernaam(Tekstblik spelerregel);
[[nodiscard]] Tekst Keuzeregel(Tekstblik spelerregel);

[[nodiscard]] Tekst Paarregel(Tekstblik links, Tekstblik rechts);

/// A player in a pair's line: the first six characters and what follows them, without outer spaces.
struct Paarspeler {
    Tekstblik key;
    Tekstblik naam;

    /// The line of an available player, as dissolving a pair makes it.
    [[nodiscard]] Tekst AlsSpelerregel() const;
};

/// Where the "+" between the two players is: behind ten blanks, so that a "+" in the first one's
/// name does no harm, and else the first "+" of the line. `npos` when there is none.
[[nodiscard]] std::size_t Plusplaats(Tekstblik paarregel);

/// The players of a line that has a "+".
[[nodiscard]] Paarspeler LinkerSpeler(Tekstblik paarregel);
[[nodiscard]] Paarspeler RechterSpeler(Tekstblik paarregel);

} // namespace plexoran
