#include "sessions/sessiemappen.h"

#include <algorithm>
#include <charconv>

#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

/// The names of the folders in a folder; none where it is missing or not named.
Uitkomst<std::vector<Tekst>> Ondermappen(Schijf& schijf, const Pad& map)
{
    if (map.empty())
        return std::vector<Tekst>();
    auto namen = schijf.Mappen(map);
    if (!namen && namen.error().soort == Foutsoort::Ontbreekt)
        return std::vector<Tekst>();
    return namen;
}

Uitkomst<std::vector<Sessiemap>> LeesMappenMet(Schijf& schijf, const Pad& wortel, Tekstblik kenmerk)
{
    auto namen = Ondermappen(schijf, wortel);
    if (!namen)
        return tl::unexpected(namen.error());
    Sorteer(*namen);
    std::vector<Sessiemap> uit;
    for (Tekst& naam : *namen) {
        const auto stempel = schijf.NeemStempel(Samen(Samen(wortel, naam), kenmerk));
        if (stempel)
            uit.push_back({std::move(naam), stempel->tijd});
    }
    return uit;
}

/// The number behind the prefix, when the name is exactly what the number makes; capitals do not
/// count.
std::optional<int> NummerUit(Tekstblik naam, Tekstblik voorvoegsel)
{
    if (Hoofdletters(naam.substr(0, voorvoegsel.size())) != Hoofdletters(voorvoegsel))
        return std::nullopt;
    const Tekstblik cijfers = naam.substr(voorvoegsel.size());
    int nummer = 0;
    const auto [eind, fout] =
        std::from_chars(cijfers.data(), cijfers.data() + cijfers.size(), nummer);
    const bool heel = fout == std::errc() && eind == cijfers.data() + cijfers.size();
    if (!heel || nummer < 0 || std::to_string(nummer) != cijfers)
        return std::nullopt;
    return nummer;
}

/// The numbers of the folders with the prefix, rising, each once.
Uitkomst<std::vector<int>> Nummers(Schijf& schijf, const Pad& map, Tekstblik voorvoegsel)
{
    const auto namen = schijf.Mappen(map);
    if (!namen)
        return tl::unexpected(namen.error());
    std::vector<int> nummers;
    for (const Tekst& naam : *namen) {
        if (const auto nummer = NummerUit(naam, voorvoegsel))
            nummers.push_back(*nummer);
    }
    std::sort(nummers.begin(), nummers.end());
    nummers.erase(std::unique(nummers.begin(), nummers.end()), nummers.end());
    return nummers;
}

constexpr Tekstblik Ronde = "Ronde-";
constexpr Tekstblik Zitting = "Zitting-";

Pad Rondemap(const Mappen& mappen, Tekstblik competitie, int ronde)
{
    return Samen(Samen(mappen.COMMAP, competitie), Tekst(Ronde) + std::to_string(ronde));
}

} // namespace

Uitkomst<std::vector<Sessiemap>> LeesZittingen(Schijf& schijf, const Mappen& mappen)
{
    return LeesMappenMet(schijf, mappen.ZITMAP, "Zitdata.txt");
}

Uitkomst<std::vector<Sessiemap>> LeesCompetities(Schijf& schijf, const Mappen& mappen)
{
    return LeesMappenMet(schijf, mappen.COMMAP, "Compdata.txt");
}

Tekst Zittingplaats::Bestandsnaam(Lijstsoort soort) const
{
    if (soort == Lijstsoort::Spelers)
        return "Spelers.txt";
    return inCompetitie ? "PercZit-" + std::to_string(zitting) + ".txt" : "PercZit.txt";
}

Zittingplaats LosseZitting(const Mappen& mappen, Tekstblik naam)
{
    return {.map = Samen(mappen.ZITMAP, naam)};
}

Zittingplaats Competitiezitting(const Mappen& mappen, Tekstblik competitie, int ronde, int zitting)
{
    return {
        .map = Samen(Rondemap(mappen, competitie, ronde), Tekst(Zitting) + std::to_string(zitting)),
        .inCompetitie = true,
        .ronde = ronde,
        .zitting = zitting};
}

Uitkomst<std::vector<Zittingplaats>> ZittingenVan(Schijf& schijf, const Mappen& mappen,
                                                  Tekstblik competitie)
{
    const auto rondes = Nummers(schijf, Samen(mappen.COMMAP, competitie), Ronde);
    if (!rondes)
        return tl::unexpected(rondes.error());
    std::vector<Zittingplaats> uit;
    for (const int ronde : *rondes) {
        const auto zittingen = Nummers(schijf, Rondemap(mappen, competitie, ronde), Zitting);
        // A round that went away meanwhile holds nothing any more.
        if (!zittingen && zittingen.error().soort == Foutsoort::Ontbreekt)
            continue;
        if (!zittingen)
            return tl::unexpected(zittingen.error());
        for (const int zitting : *zittingen)
            uit.push_back(Competitiezitting(mappen, competitie, ronde, zitting));
    }
    return uit;
}

} // namespace plexoran
