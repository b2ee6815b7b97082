// Which line of a list is the first that contains a key, as a search from the top finds it:
// anywhere in the line, a player's name included.
#pragma once

#include <span>
#include <unordered_map>
#include <vector>

#include "pairs/parenbestand.h"

namespace plexoran {

/// Only keys of the pairs it was made for can be asked, so that one walk through the lines finds
/// where each of them stands.
class Regelzoeker {
  public:
    /// The lines and the pairs must stay as they are while the object lives.
    Regelzoeker(std::span<const Tekst> regels, const Paartekens& paren);

    /// The place, from 0, of the first line left that contains the key, or -1. That line is taken
    /// out.
    [[nodiscard]] int NeemEerste(Tekstblik key);
    [[nodiscard]] bool IsWeg(std::size_t regel) const { return weg_[regel]; }

  private:
    std::unordered_map<Tekstblik, std::vector<int>> regelsMet_; ///< by key, from the bottom up
    std::vector<bool> weg_;
};

} // namespace plexoran
