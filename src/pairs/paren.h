// The players of one group-subgroup who are still to be paired, and its pairs: what the pairs
// window shows and changes. Nothing here touches the player table.
#pragma once

#include "pairs/paarregel.h"
#include "pairs/parenbestand.h"

namespace plexoran {

/// The distinct group-subgroup names (group code and subgroup) of a group's players, told apart by
/// their characters, in table order.
[[nodiscard]] std::vector<Tekst> VulGroepSubgroepen(const Spelertabel& tabel, Tekstblik groepscode);

/// Whether a status marks a player who has died: in capitals or not, at least five characters that
/// contain "OVERLEDEN" or are its beginning, such as "overl".
[[nodiscard]] bool IsOverleden(Tekstblik status);

class Paren {
  public:
    /// Fills both lists for a group-subgroup, whose players are known without regard to case, and
    /// its stored pairs. The answer is a line for every pair of which a player is missing; such a
    /// pair is in the list too.
    [[nodiscard]] Tekst LaadSubgroep(const Spelertabel& tabel, Tekstblik groepscode,
                                     Tekstblik keuze, const Paartekens& paren);

    /// The lines of the available players, in text order.
    [[nodiscard]] const std::vector<Tekst>& Lalle() const { return lalle_; }
    /// What the choice lists show of such a line.
    [[nodiscard]] Tekst Keuze(int regel) const { return Keuzeregel(lalle_.at(Index(regel))); }
    /// The lines of the pairs, in the order of their first player's names.
    [[nodiscard]] const std::vector<Tekst>& L3() const { return l3_; }

    /// Makes a pair of the players in these two lines of `Lalle`; both are taken out, and so is
    /// every line that contains one of their keys. The answer is the pair's line in `L3`.
    int MaakPaar(int links, int rechts);
    /// Takes a pair out of `L3`; its players come back, whoever they are.
    void Ontbind(int regel);
    /// Orders the pairs by the first player's name and key, then as they stood.
    void Sorteer();
    void WisParen() { l3_.clear(); }

  private:
    [[nodiscard]] static std::size_t Index(int regel) { return static_cast<std::size_t>(regel); }
    [[nodiscard]] Tekst ToonParen(const Paartekens& paren);

    std::vector<Tekst> lalle_;
    std::vector<Tekst> l3_;
};

} // namespace plexoran
