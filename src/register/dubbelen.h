// Players who probably stand in the register twice: what tells so, which pairs are none, and one
// row made of two.
#pragma once

#include <bitset>
#include <set>

#include "register/mappen.h"
#include "register/reservekopie.h"
#include "register/spelertabel.h"

namespace plexoran {

/// In the order in which they are shown.
enum class Dubbelreden {
    NBBnr,
    Email,
    Naam,
    Accent, ///< or capitals and signs
    Tussenvoegsel,
    Omgewisseld, ///< first name and surname
    Voorletter,
    EenLetter,
    Telefoon,
    AnderNBBnr,  ///< speaks against it
    TweeGroepen, ///< a copy: nothing else differs
    Aantal
};

struct Dubbelpaar {
    int rij = 0;
    int latere = 0;
    std::bitset<static_cast<std::size_t>(Dubbelreden::Aantal)> redenen{};
    int waarde = 0; ///< how probable it is

    [[nodiscard]] bool Heeft(Dubbelreden reden) const
    {
        return redenen[static_cast<std::size_t>(reden)];
    }
};

/// Of two players, the lowest key first.
using Sleutelparen = std::set<std::pair<Tekst, Tekst>>;
[[nodiscard]] std::pair<Tekst, Tekst> Sleutelpaar(const Spelertabel& tabel, int rij, int latere);

/// What more players than this have in common says nothing of any two of them.
inline constexpr std::size_t MeesteGelijken = 50;
inline constexpr std::size_t MeesteParen = 5000;

struct Dubbeluitslag {
    std::vector<Dubbelpaar> paren; ///< the best first, `MeesteParen` at the most
    std::size_t meer = 0;          ///< that were found too
    bool teVaak = false;           ///< more than `MeesteGelijken` have something in common
    bool gestopt = false;          ///< by the user: not all was looked at
};

/// People of one household, with other first names, are none.
[[nodiscard]] Dubbeluitslag ZoekDubbelen(const Spelertabel& tabel, const Sleutelparen& geen,
                                         const Voortgang& voortgang = {});

/// Puts these fields on the row that stays, with its own number and key; the other one goes.
void VoegDubbelSamen(Spelertabel& tabel, int blijft, int weg, Rijvelden velden);
/// Nobody is looked for anew: these are the other pairs, by the rows of the table without that one.
void NeemUitParen(std::vector<Dubbelpaar>& paren, int weg);

// The pairs of which the user said that they are no doubles: "GeenDubbelen.txt" in the players
// folder (docs/bestanden.md).

[[nodiscard]] Sleutelparen GeenDubbelenUit(Tekstblik inhoud);
[[nodiscard]] Uitkomst<Sleutelparen> LeesGeenDubbelen(Schijf& schijf, const Mappen& mappen);
/// What other programs added meanwhile stays.
[[nodiscard]] Bewaring BewaarGeenDubbel(Schijf& schijf, const Mappen& mappen,
                                        const Spelertabel& tabel, int rij, int latere);

} // namespace plexoran
