#include "pairs/parencsv.h"

#include <unordered_map>

#include "pairs/paarregel.h"
#include "platform/schijf/heelschrijven.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

Tekst ParenCSVTekst(std::span<const Tekst> regels, const Spelertabel& tabel, ParenCSV soort)
{
    std::unordered_map<std::int32_t, int> rijen; // by the number of the key
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (const auto getal = Geheel32(tabel.Cel(rij, Kolom::Key)))
            rijen.try_emplace(*getal, rij);
    }
    const auto naam = [&](Tekstblik key) {
        const auto getal = AlsGetal(key, 1) ? Geheel32(key) : std::nullopt;
        const auto rij = getal ? rijen.find(*getal) : rijen.end();
        if (rij == rijen.end())
            return Tekst(key);
        Tekst uit(tabel.Cel(rij->second, Kolom::Voornaam));
        if (!tabel.Cel(rij->second, Kolom::Tusv).empty())
            uit.append(" ").append(tabel.Cel(rij->second, Kolom::Tusv));
        return uit.append(" ").append(tabel.Cel(rij->second, Kolom::Achternaam));
    };
    Tekst tekst;
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const Tekstblik regel = regels[i];
        const auto plus = Plusplek(regel);
        if (plus == Tekstblik::npos)
            continue;
        tekst += std::to_string(i + 1) + ";" + naam(ZonderSpaties(Eerste6(regel)));
        tekst += soort == ParenCSV::EenKolom ? " - " : ";";
        tekst += naam(ZonderSpaties(Eerste6(regel.substr(plus + 1)))) + "\r\n";
    }
    return tekst;
}

Tekst ParenCSVNaam(ParenCSV soort)
{
    return soort == ParenCSV::EenKolom ? "RVDparenCSV1.csv" : "RVDparenCSV2.csv";
}

Pad ParenCSVMap(const Mappen& mappen)
{
    return Samen(mappen.RVDMAP, "DiverseUitvoer");
}

Uitkomst<void> SchrijfParenCSV(Schijf& schijf, const Mappen& mappen, std::span<const Tekst> regels,
                               const Spelertabel& tabel, ParenCSV soort)
{
    const Pad map = ParenCSVMap(mappen);
    if (mappen.RVDMAP.empty())
        return Mislukt({.soort = Foutsoort::Ontbreekt});
    return schijf.MaakMap(map).and_then([&] {
        return SchrijfHeel(schijf, Samen(map, ParenCSVNaam(soort)),
                           ParenCSVTekst(regels, tabel, soort));
    });
}

} // namespace plexoran
