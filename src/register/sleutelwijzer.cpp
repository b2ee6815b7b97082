#include "register/sleutelwijzer.h"

#include <bit>
#include <functional>

#include "platform/grootgeheugen.h"

namespace plexoran {
namespace {

constexpr std::size_t Kort = 7;
constexpr std::uint64_t lang = std::uint64_t{1} << 63U;

/// The characters of a short key with its length in front, so that most keys need not be looked up
/// in the table. Long keys have the top bit set.
std::uint64_t Merk(Tekstblik key)
{
    if (key.size() > Kort)
        return std::hash<Tekstblik>()(key) | lang;
    std::uint64_t merk = key.size();
    for (const char teken : key)
        merk = merk << 8U | static_cast<unsigned char>(teken);
    return merk;
}

/// Keys that differ in their last digit only, as most neighbours in a register do, lie together in
/// the processor's cache.
std::size_t Hash(std::uint64_t merk)
{
    constexpr std::uint64_t menger = 0x9E3779B97F4A7C15U;
    const std::uint64_t begin = (merk >> 4U) * menger;
    return static_cast<std::size_t>(begin >> 32U << 4U | (merk & 15U));
}

} // namespace

Sleutelwijzer::Sleutelwijzer(const Spelertabel& tabel) : tabel_(tabel), rijen_(tabel.Rijen())
{}

int Sleutelwijzer::Rij(Tekstblik key) const
{
    if (vakken_.empty()) {
        if (const int rij = ZoekInStijgende(key); rij != 0)
            return rij;
        while (StijgtVerder()) {
            if (Key(stijgend_) == key)
                return stijgend_;
        }
        if (stijgend_ == rijen_)
            return 0;
        VulVakken();
    }
    return vakken_[Plek(key, Merk(key))].rij;
}

/// Looks at one row more, as long as there is one and its key comes after that of the row before.
bool Sleutelwijzer::StijgtVerder() const
{
    if (stijgend_ == rijen_ || (stijgend_ > 0 && Key(stijgend_ + 1) <= Key(stijgend_)))
        return false;
    ++stijgend_;
    return true;
}

int Sleutelwijzer::ZoekInStijgende(Tekstblik key) const
{
    if (stijgend_ == 0 || key > Key(stijgend_)) // the next of many
        return 0;
    int van = 1;
    int tot = stijgend_;
    while (van < tot) {
        const int midden = van + (tot - van) / 2;
        if (Key(midden) < key)
            van = midden + 1;
        else
            tot = midden;
    }
    return Key(van) == key ? van : 0;
}

void Sleutelwijzer::VulVakken() const
{
    const auto aantal = std::bit_ceil(2 * static_cast<std::size_t>(rijen_) + 1);
    ReserveerGroot(vakken_, aantal);
    vakken_.resize(aantal);
    for (int rij = 1; rij <= rijen_; ++rij) {
        const Tekstblik key = Key(rij);
        const std::uint64_t merk = Merk(key);
        Vak& vak = vakken_[Plek(key, merk)];
        if (vak.rij == 0)
            vak = {merk, rij};
    }
}

/// The place of the key, or else the free one where it belongs.
std::size_t Sleutelwijzer::Plek(Tekstblik key, std::uint64_t merk) const
{
    const std::size_t masker = vakken_.size() - 1;
    std::size_t plek = Hash(merk) & masker;
    for (; vakken_[plek].rij != 0; plek = (plek + 1) & masker) {
        const Vak& vak = vakken_[plek];
        if (vak.merk == merk && ((merk & lang) == 0 || Key(vak.rij) == key))
            break;
    }
    return plek;
}

} // namespace plexoran
