// Room for much data. The first touch of fresh memory costs a trap into the system per page, and
// with pages of 4 KB these traps take longer than filling a buffer of many megabytes.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

namespace plexoran {

/// Asks the system for large pages behind memory that nothing was written to yet. Only for some
/// megabytes and more; a system that has no such thing, or no such page free, gives small ones.
void VraagGrotePaginas(const void* begin, std::size_t bytes);

/// Brings what lies there into the processor's caches while other work goes on.
inline void HaalAlvast([[maybe_unused]] const void* plek)
{
#if defined(__GNUC__)
    __builtin_prefetch(plek);
#endif
}

inline constexpr std::size_t GrotePagina = std::size_t{2} << 20U; ///< on most machines

/// Characters that nobody cleared, a block of a large page and more at the border of such pages:
/// what lies beside the pages inside it would take as many traps as without them.
class Tekenblok {
  public:
    explicit Tekenblok(std::size_t bytes);
    [[nodiscard]] char* data() const { return tekens_.get(); }

  private:
    struct Wis {
        std::align_val_t uitlijning;
        void operator()(char* tekens) const { ::operator delete[](tekens, uitlijning); }
    };
    std::unique_ptr<char[], Wis> tekens_;
};

/// As `bak.reserve(aantal)` for a text or a vector, the room being asked for in large pages.
template <class Bak> void ReserveerGroot(Bak& bak, std::size_t aantal)
{
    if (aantal <= bak.capacity())
        return;
    Bak nieuw;
    nieuw.reserve(aantal);
    VraagGrotePaginas(nieuw.data(), nieuw.capacity() * sizeof(*nieuw.data()));
    nieuw.insert(nieuw.end(), std::make_move_iterator(bak.begin()),
                 std::make_move_iterator(bak.end()));
    bak = std::move(nieuw);
}

} // namespace plexoran
