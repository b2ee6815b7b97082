#include "pairs/parencsv.h"

#include <unordered_map>
#include <vector>

#include "pairs/paarregel.h"
#include "platform/schijf/heelschrijven.h"
#include "platform/tekst/getal.h"

namespace plexoran {
namespace {

struct Sleutels {
    std::size_t nummer; ///< in the pairs list, from 1
    Tekst eerste;
    Tekst tweede;
};

/// A key as a whole number; nothing for a text of another kind.
std::optional<std::int32_t> Sleutelgetal(Tekstblik key)
{
    return AlsGetal(key, 1) ? Geheel32(key) : std::nullopt;
}

std::vector<Sleutels> SleutelsUit(std::span<const Tekst> regels)
{
    std::vector<Sleutels> sleutels;
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const Tekstblik regel = regels[i];
        const auto plus = Plusplaats(regel);
        if (plus == Tekstblik::npos)
            continue;
        sleutels.push_back({i + 1, Tekst(ZonderSpaties(Eerste6(regel))),
                            Tekst(ZonderSpaties(Eerste6(regel.substr(plus + 1))))});
    }
    return sleutels;
}

/// The names of the players in the pairs, by the number of their key: one walk over the table.
class Namen {
  public:
    Namen(const std::vector<Sleutels>& sleutels, const Spelertabel& tabel)
    {
        for (const Sleutels& paar : sleutels) {
            for (const Tekst& key : {paar.eerste, paar.tweede}) {
                if (const auto getal = Sleutelgetal(key))
                    rijen_.try_emplace(*getal, 0);
            }
        }
        for (int rij = tabel.Rijen(); rij >= 1; --rij) {
            const auto getal = Geheel32(tabel.Cel(rij, Kolom::Key));
            const auto plaats = getal ? rijen_.find(*getal) : rijen_.end();
            if (plaats != rijen_.end())
                plaats->second = rij;
        }
    }

    [[nodiscard]] Tekst Naam(const Tekst& key, const Spelertabel& tabel) const
    {
        const auto getal = Sleutelgetal(key);
        const int rij = getal ? rijen_.at(*getal) : 0;
        if (rij == 0)
            return key;
        Tekst naam(tabel.Cel(rij, Kolom::Voornaam));
        if (!tabel.Cel(rij, Kolom::Tusv).empty())
            naam.append(" ").append(tabel.Cel(rij, Kolom::Tusv));
        return naam.append(" ").append(tabel.Cel(rij, Kolom::Achternaam));
    }

  private:
    std::unordered_map<std::int32_t, int> rijen_; ///< 0: no row has that number
};

} // namespace

Tekst ParenCSVTekst(std::span<const Tekst> regels, const Spelertabel& tabel, ParenCSV soort)
{
    const std::vector<Sleutels> sleutels = SleutelsUit(regels);
    const Namen namen(sleutels, tabel);
    Tekst tekst;
    for (const Sleutels& paar : sleutels) {
        tekst += std::to_string(paar.nummer);
        tekst += ';';
        tekst += namen.Naam(paar.eerste, tabel);
        tekst += soort == ParenCSV::EenKolom ? " - " : ";";
        tekst += namen.Naam(paar.tweede, tabel);
        tekst += "\r\n";
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
        return tl::unexpected(
            Fout{.soort = Foutsoort::Ontbreekt, .bestand = {}, .regel = 0, .systeem = {}});
    return schijf.MaakMap(map).and_then([&] {
        return SchrijfHeel(schijf, Samen(map, ParenCSVNaam(soort)),
                           ParenCSVTekst(regels, tabel, soort));
    });
}

} // namespace plexoran
