// The distinct values of a column, as the windows offer them to choose from.
#pragma once

#include <unordered_set>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// A running text in which each value stands between two "#" marks of its own. It holds whatever
/// stands between two marks in it; so a value with a "#" in it answers for its parts too. That is
/// kept to the letter.
class Hekjestekst {
  public:
    void Voeg(Tekstblik waarde);
    [[nodiscard]] bool Bevat(const Tekst& waarde) const;

  private:
    Tekst tekst_;
    std::unordered_set<Tekst> delen_; ///< all that stands between two marks that follow each other
};

/// Distinct values in order of first appearance: those that the running text of the values so far
/// did not hold.
class Waardenlijst {
  public:
    void Voeg(const Tekst& waarde);
    [[nodiscard]] const std::vector<Tekst>& Waarden() const { return waarden_; }

  private:
    Hekjestekst gezien_;
    std::vector<Tekst> waarden_;
};

} // namespace plexoran
