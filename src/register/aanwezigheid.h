// Who has the register open now: a small file per program in the players folder, renewed while that
// program runs (docs/bestanden.md).
#pragma once

#include <vector>

#include "register/mappen.h"

namespace plexoran {

struct Aanwezige {
    Tekst computer;
    Tekst gebruiker;
    Tekst sinds; ///< "02-11-2026 19:04", as the clock of that computer has it
    bool operator==(const Aanwezige&) const = default;
};

class Aanwezigheid {
  public:
    Aanwezigheid(Schijf& schijf, const Mappen& mappen, Tekst computer, Tekst gebruiker);
    Aanwezigheid(const Aanwezigheid&) = delete;
    Aanwezigheid& operator=(const Aanwezigheid&) = delete;
    /// Leaves: its file goes.
    ~Aanwezigheid();

    /// Comes, or stays: every 30 seconds. A failure does no harm, but that others do not know.
    void Meld();
    /// The others. Who did not renew for two minutes has gone; what a day ago was left goes. Times
    /// are those of the disk, since clocks differ.
    [[nodiscard]] std::vector<Aanwezige> Anderen() const;

  private:
    Schijf& schijf_;
    Pad map_;
    Aanwezige zelf_;
    Tekst naam_; ///< of the file
};

} // namespace plexoran
