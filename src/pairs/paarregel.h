// The lines of the pairs window's lists. Each is made here and taken apart here, since the pair
// file and the CSV outputs are made from the lines themselves:
//
//     <Achternaam> <Voornaam> <Tusv>   <Key>                  an available player
//     <Key> <name>                                            a choice
//     <choice>          +<choice>                             a pair: ten blanks and a "+"
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

/// The first, and the last, six characters of a text: in a line or a pair token that is a key.
[[nodiscard]] constexpr Tekstblik Eerste6(Tekstblik tekst)
{
    return tekst.substr(0, 6);
}
[[nodiscard]] constexpr Tekstblik Laatste6(Tekstblik tekst)
{
    return tekst.size() <= 6 ? tekst : tekst.substr(tekst.size() - 6);
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
[[nodiscard]] std::size_t Plusplek(Tekstblik paarregel);

/// The players of a line that has a "+".
[[nodiscard]] Paarspeler LinkerSpeler(Tekstblik paarregel);
[[nodiscard]] Paarspeler RechterSpeler(Tekstblik paarregel);

} // namespace plexoran
