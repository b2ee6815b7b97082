#include "sessions/sessiemappen.h"

#include <set>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

Uitkomst<std::vector<Sessiemap>> LeesMappenMet(Schijf& schijf, const Pad& wortel, Tekstblik kenmerk,
                                               std::vector<Fout>* geweigerd)
{
    std::vector<Sessiemap> uit;
    if (wortel.empty())
        return uit;
    auto namen = AlsErIs(schijf.Mappen(wortel));
    if (!namen)
        return Mislukt(namen);
    if (!*namen)
        return uit;
    Sorteer(**namen);
    for (Tekst& naam : **namen) {
        const auto stempel = schijf.NeemStempel(Samen(Samen(wortel, naam), kenmerk));
        if (stempel)
            uit.push_back({std::move(naam), stempel->tijd});
        else if (geweigerd != nullptr && stempel.error().soort != Foutsoort::Ontbreekt)
            geweigerd->push_back(stempel.error());
    }
    return uit;
}

/// The numbers of the folders with the prefix, capitals or not, rising, each once. A folder whose
/// name is not exactly what the number makes is none of them.
Uitkomst<std::set<int>> Nummers(Schijf& schijf, const Pad& map, Tekstblik voorvoegsel)
{
    const auto namen = schijf.Mappen(map);
    if (!namen)
        return Mislukt(namen);
    std::set<int> nummers;
    for (const Tekst& naam : *namen) {
        const auto streep = naam.find('-');
        const int nummer = Geheel32(naam.substr(streep + 1)).value_or(-1);
        if (nummer >= 0 && Hoofdletters(naam) == Hoofdletters(voorvoegsel) + std::to_string(nummer))
            nummers.insert(nummer);
    }
    return nummers;
}

Pad Rondemap(const Mappen& mappen, Tekstblik competitie, int ronde)
{
    return Samen(Samen(mappen.COMMAP, competitie), "Ronde-" + std::to_string(ronde));
}

} // namespace

Uitkomst<std::vector<Sessiemap>> LeesZittingen(Schijf& schijf, const Mappen& mappen,
                                               std::vector<Fout>* geweigerd)
{
    return LeesMappenMet(schijf, mappen.ZITMAP, "Zitdata.txt", geweigerd);
}

Uitkomst<std::vector<Sessiemap>> LeesCompetities(Schijf& schijf, const Mappen& mappen,
                                                 std::vector<Fout>* geweigerd)
{
    return LeesMappenMet(schijf, mappen.COMMAP, "Compdata.txt", geweigerd);
}

Tekst Zitting::Bestandsnaam(Lijstsoort soort) const
{
    if (soort == Lijstsoort::Spelers)
        return "Spelers.txt";
    return inCompetitie ? "PercZit-" + std::to_string(zitting) + ".txt" : "PercZit.txt";
}

Zitting LosseZitting(const Mappen& mappen, Tekstblik naam)
{
    return {.map = Samen(mappen.ZITMAP, naam)};
}

Zitting Competitiezitting(const Mappen& mappen, Tekstblik competitie, int ronde, int zitting)
{
    return {.map = Samen(Rondemap(mappen, competitie, ronde), "Zitting-" + std::to_string(zitting)),
            .inCompetitie = true,
            .ronde = ronde,
            .zitting = zitting};
}

std::vector<Sessie> AlleSessies(Schijf& schijf, const Mappen& mappen, std::vector<Fout>& onleesbaar)
{
    std::vector<Sessie> sessies;
    std::vector<Fout> geweigerd;
    const auto namen = [&](const auto& lijst) {
        if (!lijst)
            onleesbaar.push_back(lijst.error());
        return lijst.value_or(std::vector<Sessiemap>());
    };
    for (const Sessiemap& map : namen(LeesZittingen(schijf, mappen, &geweigerd)))
        sessies.push_back({map.naam, LosseZitting(mappen, map.naam)});
    for (const Sessiemap& map : namen(LeesCompetities(schijf, mappen, &geweigerd))) {
        const auto zittingen = ZittingenVan(schijf, mappen, map.naam);
        if (!zittingen)
            onleesbaar.push_back(zittingen.error());
        for (const Zitting& zitting : zittingen.value_or(std::vector<Zitting>()))
            sessies.push_back({map.naam, zitting});
    }
    onleesbaar.insert(onleesbaar.end(), geweigerd.begin(), geweigerd.end());
    return sessies;
}

Uitkomst<std::vector<Zitting>> ZittingVan(Schijf& schijf, const Mappen& mappen, Tekstblik zitting)
{
    std::vector<Zitting> uit{LosseZitting(mappen, zitting)};
    const auto soort = schijf.Soort(uit.front().map);
    if (!soort)
        return Mislukt(soort);
    if (*soort != Padsoort::Map)
        return Mislukt({.soort = Foutsoort::Ontbreekt, .bestand = schijf.Toonpad(uit.front().map)});
    return uit;
}

Uitkomst<std::vector<Zitting>> ZittingenVan(Schijf& schijf, const Mappen& mappen,
                                            Tekstblik competitie)
{
    const auto rondes = Nummers(schijf, Samen(mappen.COMMAP, competitie), "Ronde-");
    if (!rondes)
        return Mislukt(rondes);
    std::vector<Zitting> uit;
    for (const int ronde : *rondes) {
        const auto zittingen = Nummers(schijf, Rondemap(mappen, competitie, ronde), "Zitting-");
        // A round that went away meanwhile holds nothing any more.
        if (!zittingen && zittingen.error().soort == Foutsoort::Ontbreekt)
            continue;
        if (!zittingen)
            return Mislukt(zittingen);
        for (const int zitting : *zittingen)
            uit.push_back(Competitiezitting(mappen, competitie, ronde, zitting));
    }
    return uit;
}

} // namespace plexoran
