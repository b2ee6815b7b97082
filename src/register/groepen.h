// The 50 fixed groups and the names that the user gave them, "RVDGroepen.txt" (docs/bestanden.md).
// "Gr", two digits and "-" are the code of a group.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "register/mappen.h"
#include "register/reservekopie.h"

namespace plexoran {

inline constexpr int AantalGroepen = 50;
inline constexpr std::size_t LengteGroepscode = 5;

/// "Gr01-" to "Gr50-"; `nummer` counts from 1.
[[nodiscard]] inline Tekst Groepscode(int nummer)
{
    return "Gr" + MetNullen(nummer, 2) + "-";
}

/// The group code of a text that begins with one, such as a drop-down's: its first five characters.
[[nodiscard]] inline Tekstblik CodeUit(Tekstblik tekst)
{
    return tekst.substr(0, LengteGroepscode);
}

/// The number of the group with that code; 0 when it is none of the fifty.
[[nodiscard]] int Groepnummer(Tekstblik code);

class Groepen {
  public:
    /// `nummer` counts from 1.
    [[nodiscard]] const Tekst& Naam(int nummer) const { return namen_.at(Index(nummer)); }
    /// A comma cannot stand in the file; it is kept out by the windows and, last, here: it becomes
    /// an underscore, a line end a space.
    void ZetNaam(int nummer, Tekstblik naam);
    /// Code and name together, as every drop-down shows a group.
    [[nodiscard]] Tekst Toontekst(int nummer) const { return Groepscode(nummer) + Naam(nummer); }
    /// The text of the file that the names were read from or written to; none when there is no such
    /// text, so that a file that stands there is not known.
    std::optional<Tekst> bestandstekst;
    int aantal = 0; ///< of how many groups that text has a name, be it an empty one

    /// Those of all groups, in their order.
    [[nodiscard]] std::vector<Tekst> Toonteksten() const;

  private:
    static std::size_t Index(int nummer) { return static_cast<std::size_t>(nummer - 1); }

    std::array<Tekst, AantalGroepen> namen_;
};

/// Codec of the file. Reading takes what it can: names beyond the 50th are passed over.
[[nodiscard]] Groepen GroepenUit(Tekstblik inhoud);
[[nodiscard]] Tekst GroepenTekst(const Groepen& groepen);
/// Whether the text holds group names and nothing else, so that writing it anew loses nothing.
[[nodiscard]] bool IsGroepenbestand(Tekstblik inhoud);

/// Makes sure that there is a group file with 50 lines: a missing or empty one is made, and one
/// whose first item is blank is made anew, copied aside first when it holds anything.
[[nodiscard]] Aanmaak MaakGroepenbestand(Schijf& schijf, const Mappen& mappen);

/// A file that cannot be read gives groups without names.
[[nodiscard]] Groepen LeesGroepen(Schijf& schijf, const Mappen& mappen);

/// Writes the file whole. Names that another program gave since it was read come along, into
/// `groepen` too. A file that holds anything else than group names, or that is not known, is first
/// copied aside.
[[nodiscard]] Bewaring SchrijfGroepen(Schijf& schijf, const Mappen& mappen, Groepen& groepen);

} // namespace plexoran
