// Three texts, parted by null bytes, as the register that was read, ours and the other program's:
// nobody whom neither deleted gets lost, and no usable key stands there twice.
#include <algorithm>
#include <map>

#include "eis.h"
#include "register/mengen.h"
#include "spelers.h"

using namespace plexoran;

namespace {

std::map<Tekst, int> Keys(const Spelertabel& tabel)
{
    std::map<Tekst, int> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        ++uit[Tekst(tabel.Cel(rij, Kolom::Key))];
    return uit;
}

/// Whether the key is that of one player at the most.
bool IsEnig(const std::map<Tekst, int>& keys, const Tekst& key)
{
    if (!AlsGetal(key, 1))
        return false;
    const auto gevonden = keys.find(key);
    return gevonden == keys.end() || gevonden->second == 1;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst alles = AlsTekst(data, lengte);
    const auto een = std::min(alles.find('\0'), alles.size());
    const auto twee = std::min(alles.find('\0', een + 1), alles.size());
    const std::array registers{
        RegisterVan(alles.substr(0, een)),
        RegisterVan(een < alles.size() ? alles.substr(een + 1, twee - een - 1) : Tekst()),
        RegisterVan(twee < alles.size() ? alles.substr(twee + 1) : Tekst())};
    const Stand basis{registers[0].tabel, registers[0].HKEY};
    const Stand ons{registers[1].tabel, registers[1].HKEY};
    const Stand ander{registers[2].tabel, registers[2].HKEY};

    const Menging uit = Meng(basis, ons, ander);
    Eis(uit.HKEY >= std::max(ons.HKEY, ander.HKEY), "HKEY");
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij)
        Eis(uit.tabel.Cel(rij, Kolom::Nr) == std::to_string(rij), "Nr");
    std::array<std::map<Tekst, int>, 3> keys;
    std::transform(registers.begin(), registers.end(), keys.begin(),
                   [](const Register& van) { return Keys(van.tabel); });
    for (const auto& rij : Keys(uit.tabel)) {
        const bool enig = std::all_of(keys.begin(), keys.end(),
                                      [&](const auto& van) { return IsEnig(van, rij.first); });
        Eis(rij.second == 1 || !enig || uit.HKEY == std::numeric_limits<std::int32_t>::max(),
            "een sleutel staat er twee keer");
    }
    // When one side did nothing, the other's is the outcome.
    Eis(Tel(Meng(basis, basis, ander).tabel) == Tel(ander.tabel), "alleen de ander");
    Eis(Tel(Meng(basis, ons, basis).tabel) == Tel(ons.tabel), "alleen wij");
    // Both did the same.
    Eis(Tel(Meng(basis, ons, ons).tabel) == Tel(ons.tabel), "beide hetzelfde");
    return 0;
}
