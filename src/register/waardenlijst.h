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
    void Voeg(Tekstblik waarde)
    {
        if (!tekst_.empty())
            delen_.emplace(); // between the closing mark of one value and the opening of the next
        tekst_.append("#").append(waarde) += '#';
        for (;;) {
            const auto hekje = waarde.find('#');
            delen_.emplace(waarde.substr(0, hekje));
            if (hekje == Tekstblik::npos)
                return;
            waarde.remove_prefix(hekje + 1);
        }
    }
    [[nodiscard]] bool Bevat(const Tekst& waarde) const
    {
        // Looked up where that will do, so that many values cost no search each.
        return waarde.find('#') == Tekst::npos ? delen_.contains(waarde)
                                               : tekst_.find("#" + waarde + "#") != Tekst::npos;
    }

  private:
    Tekst tekst_;
    std::unordered_set<Tekst> delen_; ///< all that stands between two marks that follow each other
};

/// Distinct values in order of first appearance: those that the running text of the values so far
/// did not hold.
class Waardenlijst {
  public:
    void Voeg(const Tekst& waarde)
    {
        if (gezien_.Bevat(waarde))
            return;
        gezien_.Voeg(waarde);
        waarden_.push_back(waarde);
    }
    [[nodiscard]] const std::vector<Tekst>& Waarden() const { return waarden_; }

  private:
    Hekjestekst gezien_;
    std::vector<Tekst> waarden_;
};

} // namespace plexoran
