// Finds players by their register key.
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

/// The first row with each key, as a search from the top of the table finds it. Keys are read in
/// the table, which must outlive the index; meanwhile rows may be added to it, which are not found,
/// and other cells may change.
///
/// A register gives out its keys by rising number, and as a rule its rows still stand in that
/// order: then the table itself is searched, as far as its keys were seen to rise, and no index is
/// made. Who asks for many keys from the top down reads the table once.
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

    void VulVakken() const;
    [[nodiscard]] Tekstblik Key(int rij) const { return tabel_.Cel(rij, Kolom::Key); }
    [[nodiscard]] bool StijgtVerder() const;
    [[nodiscard]] int ZoekInStijgende(Tekstblik key) const;
    [[nodiscard]] std::size_t Plek(Tekstblik key, std::uint64_t merk) const;

    const Spelertabel& tabel_;
    int rijen_;                ///< of the table when the index was made
    mutable int stijgend_ = 0; ///< the keys of so many rows were seen to rise, by their bytes
    /// A power of two, at least half of them free; none while keys rise.
    mutable std::vector<Vak> vakken_;
};

} // namespace plexoran
