#include "platform/schijf/schijf.h"

#include <utility>

#include "platform/tekst/codepagina.h"

namespace plexoran {

bool IsKaleNaam(Tekstblik naam)
{
    const bool metStation = naam.size() > 1 && naam[1] == ':';
    return naam.find_first_of("\\/") == Tekstblik::npos && !metStation && naam != "." &&
           naam != "..";
}

Fout GeenNaam(Tekstblik naam, std::string bestand)
{
    return {.soort = Foutsoort::Beschadigd,
            .bestand = std::move(bestand),
            .systeem = std::string("'").append(NaarUtf8(naam)) +
                       "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                       "'\\', 'C:' of '..' staan"};
}

Uitkomst<Tekst> LeesBegrensd(Schijf& schijf, const Pad& pad)
{
    constexpr std::uint64_t grootste = std::uint64_t{64} << 20U;
    const auto stempel = schijf.NeemStempel(pad);
    if (!stempel)
        return Mislukt(stempel);
    if (stempel->grootte > grootste)
        return Mislukt({.soort = Foutsoort::Beschadigd,
                        .bestand = schijf.Toonpad(pad),
                        .systeem = "het bestand is te groot: meer dan 64 MB"});
    return schijf.LeesBestand(pad);
}

Uitkomst<std::optional<Tekst>> LeesAlsErIs(Schijf& schijf, const Pad& pad)
{
    auto inhoud = AlsErIs(LeesBegrensd(schijf, pad));
    if (!inhoud && schijf.Soort(pad) == Padsoort::Map)
        return std::nullopt;
    return inhoud;
}

} // namespace plexoran
