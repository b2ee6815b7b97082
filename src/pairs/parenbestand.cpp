#include "pairs/parenbestand.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "pairs/paarregel.h"
#include "platform/schijf/schijf.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr std::size_t Tekenlengte = 13;
constexpr std::size_t Streep = 6; // where it stands in a token

/// The pieces between the "#" of the last line.
std::vector<Tekstblik> Stukken(Tekstblik inhoud)
{
    const auto regels = Regels(inhoud);
    Tekstblik rest = regels.empty() ? Tekstblik() : regels.back();
    std::vector<Tekstblik> stukken;
    for (auto hekje = rest.find('#'); hekje != Tekstblik::npos; hekje = rest.find('#')) {
        stukken.push_back(rest.substr(0, hekje));
        rest.remove_prefix(hekje + 1);
    }
    stukken.push_back(rest);
    return stukken;
}

/// The name of a player with a key; the key itself when nobody has it.
class Namen {
  public:
    explicit Namen(const Spelertabel& tabel) : tabel_(tabel)
    {
        for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
            if (const auto getal = Geheel32(tabel.Cel(rij, Kolom::Key)))
                rijen_.try_emplace(*getal, rij);
        }
    }

    Tekst operator()(Tekstblik key) const
    {
        const auto getal = AlsGetal(key, 1) ? Geheel32(key) : std::nullopt;
        const auto rij = getal ? rijen_.find(*getal) : rijen_.end();
        if (rij == rijen_.end())
            return Tekst(key);
        Tekst uit(tabel_.Cel(rij->second, Kolom::Voornaam));
        if (!tabel_.Cel(rij->second, Kolom::Tusv).empty())
            uit.append(" ").append(tabel_.Cel(rij->second, Kolom::Tusv));
        return uit.append(" ").append(tabel_.Cel(rij->second, Kolom::Achternaam));
    }

  private:
    const Spelertabel& tabel_;
    std::unordered_map<std::int32_t, int> rijen_; ///< by the number of the key
};

Tekst Paarteken(Tekstblik key1, Tekstblik key2)
{
    return Tekst(key1).append("-").append(key2);
}

} // namespace

std::optional<Pad> Parenbestand(const Mappen& mappen, Tekstblik keuze)
{
    if (!GeweigerdeTekens(keuze).empty())
        return std::nullopt;
    return Samen(mappen.Parenmap(), keuze) + ".txt";
}

std::vector<Tekstblik> Paarblikken(Tekstblik inhoud)
{
    std::vector<Tekstblik> paren = Stukken(inhoud);
    std::erase_if(paren, [](Tekstblik stuk) { return stuk.size() != Tekenlengte; });
    return paren;
}

Paartekens PaartekensUit(Tekstblik inhoud)
{
    const auto paren = Paarblikken(inhoud);
    return {paren.begin(), paren.end()};
}

bool IsParenbestand(Tekstblik inhoud)
{
    const auto stukken = Stukken(inhoud);
    return Regels(inhoud).size() <= 1 &&
           std::all_of(stukken.begin(), stukken.end(), [](Tekstblik stuk) {
               return stuk.empty() || (stuk.size() == Tekenlengte && stuk[Streep] == '-');
           });
}

Uitkomst<std::optional<Tekst>> LeesParenbestand(Schijf& schijf, const Mappen& mappen,
                                                Tekstblik keuze)
{
    const auto pad = Parenbestand(mappen, keuze);
    return pad ? LeesAlsErIs(schijf, *pad) : std::nullopt;
}

std::optional<Tekst> ParenTekst(std::span<const Tekst> regels)
{
    Tekst tekst;
    for (const Tekst& regel : regels) {
        if (Plusplek(regel) == Tekst::npos)
            return std::nullopt;
        tekst += Paarteken(LinkerSpeler(regel).key, RechterSpeler(regel).key) + "#";
    }
    return tekst + "\r\n";
}

Bewaring BewaarParen(Schijf& schijf, const Mappen& mappen, Tekstblik keuze,
                     std::span<const Tekst> regels, const Parenlezing& gelezen)
{
    if (regels.empty())
        return {};
    const auto tekst = ParenTekst(regels);
    const auto pad = Parenbestand(mappen, keuze);
    if (!tekst || !pad)
        return {.gelukt = Mislukt({.soort = tekst ? Foutsoort::Geweigerd : Foutsoort::Beschadigd})};
    const auto basis = gelezen ? std::optional(gelezen->value_or(Tekst())) : std::nullopt;
    return BewaarSamen(schijf, mappen.SPEMAP, *pad, basis, *tekst, IsParenbestand);
}

Uitkomst<Pad> VerwijderParen(Schijf& schijf, const Mappen& mappen, Tekstblik keuze,
                             const Parenlezing& gelezen)
{
    const Pad pad = Parenbestand(mappen, keuze).value_or(Pad());
    const auto nu = LeesParenbestand(schijf, mappen, keuze);
    const bool isAnders = nu && *nu && gelezen && *nu != *gelezen;
    auto kopie =
        isAnders ? MaakReservekopie(schijf, mappen.SPEMAP, pad, **nu) : Uitkomst<Pad>(Pad());
    if (!kopie)
        return kopie;
    return VerwijderBlijvend(schijf, pad).map([&] { return *kopie; });
}

Uitkomst<Paartekens> ImporteerRVDparen(Schijf& schijf, const Mappen& mappen, Tekstblik groepscode,
                                       Tekstblik subgroep, const Spelertabel& tabel)
{
    const auto inhoud = LeesAlsErIs(schijf, Samen(mappen.SPEMAP, "RVDparen.txt"));
    if (!inhoud)
        return Mislukt(inhoud);
    const Tekst gezocht = Hoofdletters(subgroep);
    std::unordered_set<Tekstblik> aanwezig;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == CodeUit(groepscode) &&
            Hoofdletters(tabel.Cel(rij, Kolom::NBBgr)) == gezocht)
            aanwezig.insert(tabel.Cel(rij, Kolom::Key));
    }
    Paartekens paren;
    for (const Tekst& paar : PaartekensUit(inhoud->value_or(Tekst()))) {
        if (aanwezig.contains(Eerste6(paar)) && aanwezig.contains(Laatste6(paar)))
            paren.push_back(Paarteken(Eerste6(paar), Laatste6(paar)));
    }
    return paren;
}

std::vector<Tekst> Paarnamen(const Paartekens& paren, const Spelertabel& tabel)
{
    const Namen naam(tabel);
    std::vector<Tekst> uit;
    for (const Tekst& paar : paren)
        uit.push_back(naam(Eerste6(paar)) + " - " + naam(Laatste6(paar)));
    return uit;
}

Tekst ParenCSVTekst(std::span<const Tekst> regels, const Spelertabel& tabel, ParenCSV soort)
{
    const Namen naam(tabel);
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
