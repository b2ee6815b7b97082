// Three texts, parted by null bytes, as the register that was read, ours and the other program's:
// nobody whom neither deleted gets lost, and no usable key stands there twice.
#include <algorithm>
#include <map>

#include "eis.h"
#include "register/mengen.h"

using namespace plexoran;

namespace {

/// How often each row stands in a table, its number apart.
std::map<Tekst, int> Tel(const Spelertabel& tabel)
{
    std::map<Tekst, int> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        Tekst inhoud;
        tabel.VoegCellenAan(inhoud, rij);
        ++uit[inhoud];
    }
    return uit;
}

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
    const std::array lezingen{
        SpelersUit(alles.substr(0, een)),
        SpelersUit(een < alles.size() ? alles.substr(een + 1, twee - een - 1) : Tekst()),
        SpelersUit(twee < alles.size() ? alles.substr(twee + 1) : Tekst())};
    std::vector<Spelertabel> tabellen;
    std::vector<std::int32_t> hoogste;
    for (const Spelerlezing& lezing : lezingen) {
        tabellen.push_back(lezing.tabel.value_or(Spelertabel()));
        hoogste.push_back(lezing.HKEY.value_or(Sleutelbasis));
    }
    const Stand basis{tabellen[0], hoogste[0]};
    const Stand ons{tabellen[1], hoogste[1]};
    const Stand ander{tabellen[2], hoogste[2]};

    const Menging uit = Meng(basis, ons, ander);
    Eis(uit.HKEY >= std::max(ons.HKEY, ander.HKEY), "HKEY");
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij)
        Eis(uit.tabel.Cel(rij, Kolom::Nr) == std::to_string(rij), "Nr");
    std::array<std::map<Tekst, int>, 3> keys;
    std::transform(tabellen.begin(), tabellen.end(), keys.begin(), Keys);
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
