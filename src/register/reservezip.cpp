#include "register/reservezip.h"

#include <algorithm>

#include "register/reservekopie.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr Tekstblik telling = "spelers=";

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
        auto inhoud = AlsErIs(schijf.LeesBestand(pad));
        if (!inhoud)
            return Mislukt(inhoud);
        if (*inhoud)
            delen.push_back({std::move(naam), std::move(**inhoud)});
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

Uitkomst<std::vector<Zipdeel>> LeesZip(Schijf& schijf, const Pad& pad)
{
    return schijf.LeesBestand(pad)
        .and_then([](const Tekst& zip) { return Uitgepakt(zip); })
        .map_error([&](Fout fout) {
            fout.bestand = schijf.Toonpad(pad);
            return fout;
        });
}

/// What the device gave back must hold what went into it.
Uitkomst<void> LeesTerug(Schijf& schijf, const Pad& pad, const std::vector<Zipdeel>& delen)
{
    return LeesZip(schijf, pad).and_then([&](const auto& terug) -> Uitkomst<void> {
        if (terug == delen)
            return {};
        return Mislukt({.soort = Foutsoort::Beschadigd,
                        .bestand = schijf.Toonpad(pad),
                        .systeem = "wat werd teruggelezen, is anders dan wat werd opgeslagen"});
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
    const auto namen = schijf.Bestanden(map).value_or(std::vector<Tekst>());
    for (const Tekst& naam : Uitgediend(namen, Tijdtekst("yyyy-MM-dd")))
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
    if (kopie.IsZip())
        return LeesZip(schijf, pad);
    return schijf.LeesBestand(pad).map([](Tekst inhoud) {
        return std::vector<Zipdeel>{{Pad(Spelersdeel), std::move(inhoud)}};
    });
}

} // namespace plexoran
