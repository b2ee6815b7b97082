#include "register/reservezip.h"

#include <algorithm>

#include "register/reservekopie.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr Tekstblik telling = "spelers=";

/// Adds a file that is there.
Uitkomst<void> Verzamel(Schijf& schijf, const Pad& pad, Pad naam, std::vector<Zipdeel>& delen)
{
    return AlsErIs(schijf.LeesBestand(pad)).map([&](std::optional<Tekst> inhoud) {
        if (inhoud)
            delen.push_back({std::move(naam), std::move(*inhoud)});
    });
}

Uitkomst<std::vector<Zipdeel>> Verzameld(Schijf& schijf, const Mappen& mappen)
{
    std::vector<std::pair<Pad, Pad>> bronnen{{mappen.Spelerbestand(), Pad(Spelersdeel)},
                                             {mappen.Groepenbestand(), Pad(Groependeel)},
                                             {Samen(mappen.SPEMAP, Parendeel), Pad(Parendeel)}};
    if (!mappen.ADMMAP.empty())
        bronnen.emplace_back(mappen.Instellingenbestand(), "Plexo.ini");
    auto paren = Parenbestanden(schijf, mappen);
    if (!paren)
        return Mislukt(paren);
    std::ranges::sort(*paren);
    for (const Tekst& naam : *paren)
        bronnen.emplace_back(Samen(mappen.Parenmap(), naam), Tekst(Parenmapdeel) + naam);
    std::vector<Zipdeel> delen;
    for (auto& [pad, naam] : bronnen) {
        const auto erbij = Verzamel(schijf, pad, std::move(naam), delen);
        if (!erbij)
            return Mislukt(erbij);
    }
    return delen;
}

int AantalSpelers(Tekst inhoud)
{
    const auto tabel = SpelersUit(std::move(inhoud)).tabel;
    return tabel ? tabel->Rijen() : 0;
}

Uitkomst<Tekst> Ingepakt(const std::vector<Zipdeel>& delen)
{
    int spelers = 0;
    for (const Zipdeel& deel : delen)
        spelers += deel.naam == Spelersdeel ? AantalSpelers(deel.inhoud) : 0;
    return ZipVan(delen, Tekst(telling) + std::to_string(spelers));
}

/// What the device gave back must hold what went into it.
Uitkomst<void> LeesTerug(Schijf& schijf, const Pad& pad, const std::vector<Zipdeel>& delen)
{
    return schijf.LeesBestand(pad)
        .and_then([](const Tekst& zip) { return Uitgepakt(zip); })
        .and_then([&](const std::vector<Zipdeel>& terug) -> Uitkomst<void> {
            if (terug != delen)
                return Mislukt(
                    {.soort = Foutsoort::Beschadigd,
                     .systeem = "wat werd teruggelezen, is anders dan wat werd opgeslagen"});
            return {};
        })
        .map_error([&](Fout fout) {
            fout.bestand = schijf.Toonpad(pad);
            return fout;
        });
}

std::optional<int> Telling(Schijf& schijf, const Pad& pad, const Kopienaam& kopie)
{
    auto inhoud = schijf.LeesBestand(pad);
    if (!inhoud)
        return std::nullopt;
    if (!kopie.IsZip())
        return AantalSpelers(std::move(*inhoud));
    const auto toelichting = Toelichting(*inhoud);
    if (!toelichting || !toelichting->starts_with(telling))
        return std::nullopt;
    return Geheel32(toelichting->substr(telling.size()));
}

/// Failures do no harm.
void DunUit(Schijf& schijf, const Pad& map)
{
    const auto namen = schijf.Bestanden(map);
    if (!namen)
        return;
    for (const Tekst& naam : Uitgediend(*namen, Tijdtekst("yyyy-MM-dd")))
        static_cast<void>(schijf.Verwijder(Samen(map, naam)));
}

} // namespace

Uitkomst<Pad> MaakReservezip(Schijf& schijf, const Mappen& mappen, Tekstblik reden)
{
    const auto delen = Verzameld(schijf, mappen);
    if (!delen)
        return Mislukt(delen);
    const auto zip = Ingepakt(*delen);
    if (!zip)
        return Mislukt(zip);
    auto pad = VrijeKopie(schijf, mappen.SPEMAP, "", Tekst(" ").append(reden).append(".zip"));
    if (!pad)
        return pad;
    const auto goed =
        SchrijfHeel(schijf, *pad, *zip).and_then([&] { return LeesTerug(schijf, *pad, *delen); });
    if (!goed) {
        static_cast<void>(schijf.Verwijder(*pad)); // the first failure is the one to tell
        return Mislukt(goed);
    }
    DunUit(schijf, Kopiemap(mappen.SPEMAP));
    return pad;
}

Uitkomst<std::vector<Reserve>> Reserves(Schijf& schijf, const Mappen& mappen)
{
    const Pad map = Kopiemap(mappen.SPEMAP);
    const auto namen = AlsErIs(schijf.Bestanden(map));
    if (!namen)
        return Mislukt(namen);
    std::vector<Reserve> uit;
    for (Kopienaam& kopie : Kopienamen(namen->value_or(std::vector<Tekst>()))) {
        if (!kopie.IsZip() && kopie.bestand != "RVDspelers")
            continue;
        const auto spelers = Telling(schijf, Samen(map, kopie.naam), kopie);
        uit.push_back({std::move(kopie), spelers});
    }
    return uit;
}

Uitkomst<std::vector<Zipdeel>> LeesReserve(Schijf& schijf, const Mappen& mappen,
                                           const Kopienaam& kopie)
{
    const Pad pad = Samen(Kopiemap(mappen.SPEMAP), kopie.naam);
    return schijf.LeesBestand(pad)
        .and_then([&](Tekst inhoud) -> Uitkomst<std::vector<Zipdeel>> {
            if (kopie.IsZip())
                return Uitgepakt(inhoud);
            return std::vector<Zipdeel>{{Pad(Spelersdeel), std::move(inhoud)}};
        })
        .map_error([&](Fout fout) {
            fout.bestand = schijf.Toonpad(pad);
            return fout;
        });
}

} // namespace plexoran
