#include "register/sleutelwijzer.h"

#include <algorithm>
#include <numeric>

namespace plexoran {

Sleutelwijzer::Sleutelwijzer(const Spelertabel& tabel)
    : tabel_(tabel), rijen_(static_cast<std::size_t>(tabel.Rijen()))
{
    std::iota(rijen_.begin(), rijen_.end(), 1);
    const auto opKey = [&](int een, int ander) { return Key(een) < Key(ander); };
    if (!std::is_sorted(rijen_.begin(), rijen_.end(), opKey)) // as a rule they are
        std::stable_sort(rijen_.begin(), rijen_.end(), opKey);
}

int Sleutelwijzer::Rij(Tekstblik key) const
{
    const auto plek =
        std::lower_bound(rijen_.begin(), rijen_.end(), key,
                         [&](int rij, Tekstblik gezocht) { return Key(rij) < gezocht; });
    return plek != rijen_.end() && Key(*plek) == key ? *plek : 0;
}

} // namespace plexoran
