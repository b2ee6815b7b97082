// Finds players by their register key.
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

/// The first row with each key, as a search from the top of the table finds it. Keys are read in
/// the table, which must outlive the index; meanwhile rows may be added to it, which are not found,
/// and other cells may change.
class Sleutelwijzer {
  public:
    explicit Sleutelwijzer(const Spelertabel& tabel);

    /// 0 when no row has it.
    [[nodiscard]] int Rij(Tekstblik key) const;

  private:
    [[nodiscard]] Tekstblik Key(int rij) const { return tabel_.Cel(rij, Kolom::Key); }

    const Spelertabel& tabel_;
    std::vector<int> rijen_; ///< by key, and of equal keys in table order
};

} // namespace plexoran
