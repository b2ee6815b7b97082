// The lists from which players are chosen, to move or to copy: one line a player.
//
// A line is a visible text, 60 spaces and the player's key. The key is read back as the last six
// characters of the line.
#pragma once

#include <unordered_map>
#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// The key of a line: its last six characters.
[[nodiscard]] Tekstblik KeyVan(Tekstblik regel);

/// The rows that can be moved, in table order: those outside the import group.
[[nodiscard]] std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep);
[[nodiscard]] Tekst Verplaatsregel(const Spelertabel& tabel, int rij);

/// The rows of a group, in table order.
[[nodiscard]] std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode);
[[nodiscard]] Tekst Kopieerregel(const Spelertabel& tabel, int rij);

/// Distinct values in order of first appearance. A value is new when "#" + value + "#" does not
/// occur in the running text of those seen, each between two "#" marks of its own; so a value with
/// a "#" in it can hide another one. That is kept to the letter, with an index instead of a search.
class Waardenlijst {
  public:
    void Voeg(const Tekst& waarde);
    [[nodiscard]] const std::vector<Tekst>& Waarden() const { return waarden_; }

  private:
    [[nodiscard]] bool IsGezien(const std::vector<Tekst>& delen) const;
    [[nodiscard]] bool StaatOp(const std::vector<Tekst>& delen, std::size_t begin) const;
    void VoegDeelToe(const Tekst& deel);

    std::vector<Tekst> delen_{Tekst()}; ///< the running text, cut at its marks
    std::unordered_map<Tekst, std::vector<std::size_t>> plaatsen_;
    std::vector<Tekst> waarden_;
};

} // namespace plexoran
