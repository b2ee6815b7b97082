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
            .regel = 0,
            .systeem = std::string("'").append(NaarUtf8(naam)) +
                       "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                       "'\\', 'C:' of '..' staan"};
}

Uitkomst<Tekst> LeesBegrensd(Schijf& schijf, const Pad& pad)
{
    constexpr std::uint64_t grootste = std::uint64_t{64} << 20U;
    const auto stempel = schijf.NeemStempel(pad);
    if (!stempel)
        return tl::unexpected(stempel.error());
    if (stempel->grootte > grootste)
        return tl::unexpected(Fout{.soort = Foutsoort::Beschadigd,
                                   .bestand = schijf.Toonpad(pad),
                                   .regel = 0,
                                   .systeem = "het bestand is te groot: meer dan 64 MB"});
    return schijf.LeesBestand(pad);
}

Uitkomst<std::optional<Tekst>> LeesAlsErIs(Schijf& schijf, const Pad& pad)
{
    auto inhoud = LeesBegrensd(schijf, pad);
    if (inhoud)
        return std::optional(std::move(*inhoud));
    const auto soort = schijf.Soort(pad);
    const bool geenBestand = soort && *soort != Padsoort::Bestand;
    if (inhoud.error().soort == Foutsoort::Ontbreekt || geenBestand)
        return std::nullopt;
    return tl::unexpected(inhoud.error());
}

} // namespace plexoran
