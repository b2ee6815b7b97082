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
    /// A place of the hash table.
    struct Vak {
        std::uint64_t merk = 0; ///< a short key itself, the hash of a long one
        int rij = 0;            ///< 0 is free
    };

    [[nodiscard]] std::size_t Plek(Tekstblik key, std::uint64_t merk) const;

    const Spelertabel& tabel_;
    std::vector<Vak> vakken_; ///< a power of two, at least half of them free
};

} // namespace plexoran
