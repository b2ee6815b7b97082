#include "register/reservekopie.h"

#include <algorithm>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

Uitkomst<Pad> VrijeNaam(Schijf& schijf, const Pad& basis, Tekstblik na)
{
    Pad pad = Pad(basis).append(na);
    for (int volgnummer = 2;; ++volgnummer) {
        const auto wat = schijf.Soort(pad);
        if (!wat)
            return Mislukt(wat);
        if (*wat == Padsoort::Niets)
            return pad;
        pad = (basis + "-" + std::to_string(volgnummer)).append(na);
    }
}

} // namespace

Uitkomst<Pad> VrijeKopie(Schijf& schijf, const Pad& spelersmap, Tekstblik voor, Tekstblik na)
{
    const Pad kopiemap = Kopiemap(spelersmap);
    return schijf
        .MaakMap(kopiemap)
        // The copy is only as safe as the name of the folder that it is in.
        .and_then([&] { return schijf.SyncMapVan(kopiemap); })
        .and_then([&] {
            return VrijeNaam(schijf, Samen(kopiemap, voor).append(Tijdtekst("yyyy-MM-dd HHmmss")),
                             na);
        });
}

Uitkomst<Pad> MaakReservekopie(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                               Tekstblik inhoud)
{
    const Tekst naam = bestand.substr(bestand.rfind('\\') + 1);
    const auto punt = std::min(naam.rfind('.'), naam.size());
    return VrijeKopie(schijf, spelersmap, naam.substr(0, punt) + " ", naam.substr(punt))
        .and_then([&](const Pad& kopie) {
            return SchrijfHeel(schijf, kopie, inhoud).map([&] { return kopie; });
        })
        .map_error([](Fout fout) {
            fout.soort = Foutsoort::GeenReservekopie;
            return fout;
        });
}

Uitkomst<void> VervangMetKopie(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                               Tekstblik nieuw, const std::function<bool(Tekstblik)>& magWeg)
{
    const auto oud = AlsErIs(schijf.LeesBestand(bestand));
    if (!oud)
        return Mislukt(oud);
    if (*oud == nieuw)
        return {};
    if (*oud && !IsLeeg(**oud) && !magWeg(**oud)) {
        const auto kopie = MaakReservekopie(schijf, spelersmap, bestand, **oud);
        if (!kopie)
            return Mislukt(kopie);
    }
    return SchrijfHeel(schijf, bestand, nieuw);
}

Aanmaak MaakBestand(Schijf& schijf, const Pad& spelersmap, const Pad& bestand, Tekst nieuw)
{
    const auto gelezen = AlsErIs(schijf.LeesBestand(bestand));
    if (!gelezen)
        return {.gemaakt = Mislukt(gelezen)};
    const Tekst oud = gelezen->value_or(Tekst());
    if (!IsBlanco(EersteItem(oud)))
        return {};
    Aanmaak uit{.nieuw = std::move(nieuw)};
    if (!IsLeeg(oud)) {
        uit.inhoud = oud;
        const auto kopie = MaakReservekopie(schijf, spelersmap, bestand, oud);
        if (!kopie) {
            uit.gemaakt = Mislukt(kopie);
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
