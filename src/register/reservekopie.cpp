#include "register/reservekopie.h"

#include "platform/schijf/heelschrijven.h"
#include "platform/schijf/klok.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

/// "RVDspelers" and ".txt" of a path to "RVDspelers.txt".
std::pair<Tekst, Tekst> NaamEnSoort(const Pad& bestand)
{
    const auto map = bestand.find_last_of('\\');
    const Tekst naam = map == Pad::npos ? bestand : bestand.substr(map + 1);
    const auto punt = naam.find_last_of('.');
    if (punt == Tekst::npos)
        return {naam, {}};
    return {naam.substr(0, punt), naam.substr(punt)};
}

Uitkomst<Pad> VrijeNaam(Schijf& schijf, const Pad& kopiemap, const Pad& bestand)
{
    const auto [naam, soort] = NaamEnSoort(bestand);
    const Pad basis = Samen(kopiemap, naam + " " + Tijdstempel());
    Pad pad = basis + soort;
    for (int volgnummer = 2;; ++volgnummer) {
        const auto wat = schijf.Soort(pad);
        if (!wat)
            return tl::unexpected(wat.error());
        if (*wat == Padsoort::Niets)
            return pad;
        pad = basis + "-" + std::to_string(volgnummer) + soort;
    }
}

} // namespace

Uitkomst<Pad> MaakReservekopie(Schijf& schijf, const Pad& spelersmap, const Pad& bestand)
{
    const Pad kopiemap = Kopiemap(spelersmap);
    return schijf
        .MaakMap(kopiemap)
        // The copy is only as safe as the name of the folder that it is in.
        .and_then([&] { return schijf.SyncMapVan(kopiemap); })
        .and_then([&] { return VrijeNaam(schijf, kopiemap, bestand); })
        .and_then([&](const Pad& kopie) -> Uitkomst<Pad> {
            const auto inhoud = schijf.LeesBestand(bestand);
            if (!inhoud)
                return tl::unexpected(inhoud.error());
            return SchrijfHeel(schijf, kopie, *inhoud).map([&] { return kopie; });
        })
        .map_error([](Fout fout) {
            fout.soort = Foutsoort::GeenReservekopie;
            return fout;
        });
}

Uitkomst<void> VervangMetKopie(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                               Tekstblik nieuw, const std::function<bool(Tekstblik)>& magWeg)
{
    const auto oud = schijf.LeesBestand(bestand);
    if (!oud && oud.error().soort != Foutsoort::Ontbreekt)
        return tl::unexpected(oud.error());
    if (oud && *oud == nieuw)
        return {};
    if (oud && !IsLeeg(*oud) && !magWeg(*oud)) {
        const auto kopie = MaakReservekopie(schijf, spelersmap, bestand);
        if (!kopie)
            return tl::unexpected(kopie.error());
    }
    return SchrijfHeel(schijf, bestand, nieuw);
}

Aanmaak MaakBestand(Schijf& schijf, const Pad& spelersmap, const Pad& bestand, Tekst nieuw)
{
    const auto oud = schijf.LeesBestand(bestand);
    if (!oud && oud.error().soort != Foutsoort::Ontbreekt)
        return {.gemaakt = tl::unexpected(oud.error())};
    if (oud && !IsBlanco(EersteItem(*oud)))
        return {};
    Aanmaak uit{.nieuw = std::move(nieuw)};
    if (oud && !IsLeeg(*oud)) {
        uit.inhoud = *oud;
        const auto kopie = MaakReservekopie(schijf, spelersmap, bestand);
        if (!kopie) {
            uit.gemaakt = tl::unexpected(kopie.error());
            return uit;
        }
        uit.kopie = *kopie;
    }
    uit.gemaakt = SchrijfHeel(schijf, bestand, uit.nieuw);
    return uit;
}

Uitkomst<void> ZetTerug(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                        const Aanmaak& aanmaak)
{
    return VervangMetKopie(schijf, spelersmap, bestand, aanmaak.inhoud,
                           [&](Tekstblik nu) { return nu == aanmaak.nieuw; });
}

} // namespace plexoran
