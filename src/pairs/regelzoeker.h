// Which line of a list is the first that contains a key, as a search from the top finds it:
// anywhere in the line, a player's name included. With an index, because every stored pair asks it
// twice.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/tekst.h"

namespace plexoran {

class Regelzoeker {
  public:
    /// The lines must stay as they are while the object lives.
    explicit Regelzoeker(std::span<const Tekstblik> regels);

    /// The place, from 0, of the first line left that contains these six characters, or -1. That
    /// line is taken out.
    [[nodiscard]] int NeemEerste(Tekstblik zes);
    [[nodiscard]] const std::vector<bool>& Weg() const { return weg_; }

  private:
    /// Every six characters of the lines that are asked for, and the lines that contain them, from
    /// the top down.
    class Wijzer {
      public:
        void Bouw(std::span<const Tekstblik> regels, bool alleenCijfers);
        [[nodiscard]] bool Gebouwd() const { return !emmers_.empty(); }
        /// Entries of lines that are gone are dropped on the way.
        [[nodiscard]] int Eerste(Tekstblik zes, const std::vector<bool>& weg);

      private:
        struct Deel {
            std::uint64_t zes;
            int regel;
            int volgende; ///< in the same bucket; -1 at its end
        };
        [[nodiscard]] std::size_t Emmer(std::uint64_t zes) const;

        std::vector<Deel> delen_;
        std::vector<int> emmers_; ///< first entry of each, -1 for none
    };

    std::span<const Tekstblik> regels_;
    std::vector<bool> weg_;
    Wijzer cijfers_; ///< what a sound key can be found in
    Wijzer alles_;   ///< built when a damaged key asks for it
};

} // namespace plexoran
