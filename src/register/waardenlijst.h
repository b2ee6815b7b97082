// The distinct values of a column, as the windows offer them to choose from.
#pragma once

#include <unordered_map>
#include <vector>

#include "platform/tekst.h"

namespace plexoran {

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
