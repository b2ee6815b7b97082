// A digit for the kind of file, and three texts, parted by null bytes, as what was read, ours and
// the other program's: two that are the same give the third, and nothing goes that neither took
// out.
#include <algorithm>
#include <array>

#include "eis.h"
#include "platform/tekst/regels.h"
#include "register/itemmenging.h"

using namespace plexoran;

namespace {

constexpr std::array Paden{"RVDGroepen.txt", "Plexo.ini",   "Parenmap\\Gr01-.txt",
                           "Spelers.txt",    "PercZit.txt", "RVDspelers.txt"};

/// Nothing for "-": no file.
std::optional<Tekst> Staat(const Tekst& alles, std::size_t& plek)
{
    const auto eind = std::min(alles.find('\0', plek), alles.size());
    Tekst uit = alles.substr(std::min(plek, eind), eind - std::min(plek, eind));
    plek = std::min(eind + 1, alles.size());
    return uit == "-" ? std::nullopt : std::optional(std::move(uit));
}

std::size_t Keren(const std::optional<Tekst>& tekst, Tekstblik regel)
{
    const Tekst inhoud = tekst.value_or(Tekst());
    const auto regels = Regels(inhoud);
    return static_cast<std::size_t>(std::count(regels.begin(), regels.end(), regel));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    if (lengte == 0)
        return 0;
    const Tekstblik pad = Paden.at(data[0] % Paden.size());
    const Tekst alles = AlsTekst(data + 1, lengte - 1);
    std::size_t plek = 0;
    const auto basis = Staat(alles, plek);
    const auto ons = Staat(alles, plek);
    const auto ander = Staat(alles, plek);

    for (const auto* een : {&basis, &ons, &ander}) {
        for (const auto* twee : {&basis, &ons, &ander}) {
            Eis(MengTekst(pad, *een, *twee, *een)->inhoud == *twee, "alleen wij");
            Eis(MengTekst(pad, *een, *een, *twee)->inhoud == *twee, "alleen de ander");
            Eis(MengTekst(pad, *een, *twee, *twee)->inhoud == *twee, "beide hetzelfde");
        }
    }
    const auto uit = MengTekst(pad, basis, ons, ander);
    if (!uit)
        return 0;
    if (pad == "PercZit.txt") { // a line there is an item, blank ones apart
        const Tekst vanAnder = ander.value_or(Tekst());
        for (const Tekstblik regel : Regels(vanAnder))
            Eis(regel.empty() || Keren(basis, regel) > 0 || Keren(uit->inhoud, regel) > 0,
                "regel weg");
    }
    return 0;
}
