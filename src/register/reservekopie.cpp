#include "register/reservekopie.h"

#include <algorithm>

#include "platform/tekst/regels.h"
#include "register/itemmenging.h"

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

/// Where the copy is, as the system names it.
Uitkomst<std::string> Kopieer(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                              Tekstblik inhoud)
{
    return MaakReservekopie(schijf, spelersmap, bestand, inhoud).map([&](const Pad& kopie) {
        return schijf.Toonpad(kopie);
    });
}

/// One try to save over the text `nu`; `Gewijzigd` when that is not what stands there any more.
Bewaring BewaarOver(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                    const std::optional<Tekst>& basis, const Tekst& ons,
                    const std::function<bool(Tekstblik)>& isHeel, const std::optional<Tekst>& nu)
{
    const bool isEr = nu && !IsLeeg(*nu);
    const bool isAnders = isEr && nu != basis;
    auto samen = isAnders && basis ? MengTekst(bestand, basis, ons, nu) : std::nullopt;
    const bool nietSamen = isAnders && !samen;
    if (!samen)
        samen.emplace().inhoud = ons;
    Bewaring uit{.inhoud = samen->inhoud.value_or(Tekst()),
                 .overgenomen = std::move(samen->overgenomen),
                 .botsingen = std::move(samen->botsingen)};
    if (!uit.botsingen.empty()) {
        const auto kopie = Kopieer(schijf, spelersmap, bestand, ons);
        if (!kopie)
            return {.gelukt = Mislukt(kopie)};
        uit.onze = *kopie;
    }
    if (nu == uit.inhoud)
        return uit;
    if (isEr && (nietSamen || !isHeel(*nu))) {
        const auto kopie = Kopieer(schijf, spelersmap, bestand, *nu);
        if (!kopie)
            return {.gelukt = Mislukt(kopie)};
        if (nietSamen && basis)
            uit.andere = *kopie;
    }
    uit.gelukt = VervangOngewijzigd(schijf, bestand, uit.inhoud, nu);
    return uit;
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

Bewaring BewaarSamen(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                     const std::optional<Tekst>& basis, const Tekst& ons,
                     const std::function<bool(Tekstblik)>& isHeel)
{
    constexpr int pogingen = 20;
    for (int poging = 1;; ++poging) {
        const auto nu = AlsErIs(schijf.LeesBestand(bestand));
        if (!nu)
            return {.gelukt = Mislukt(nu)};
        Bewaring uit = BewaarOver(schijf, spelersmap, bestand, basis, ons, isHeel, *nu);
        if (uit.gelukt || uit.gelukt.error().soort != Foutsoort::Gewijzigd || poging == pogingen)
            return uit;
    }
}

Aanmaak MaakBestand(Schijf& schijf, const Pad& spelersmap, const Pad& bestand, Tekst nieuw)
{
    const auto gelezen = AlsErIs(schijf.LeesBestand(bestand));
    if (!gelezen)
        return {.gemaakt = Mislukt(gelezen)};
    // Not copied: it may be the whole register.
    const Tekstblik oud = *gelezen ? Tekstblik(**gelezen) : Tekstblik();
    if (!IsBlanco(EersteItem(oud)))
        return {};
    Aanmaak uit{.nieuw = std::move(nieuw)};
    if (!IsLeeg(oud)) {
        uit.inhoud = **gelezen;
        const auto kopie = MaakReservekopie(schijf, spelersmap, bestand, uit.inhoud);
        if (!kopie) {
            uit.gemaakt = Mislukt(kopie);
            return uit;
        }
        uit.kopie = *kopie;
    }
    uit.gemaakt = VervangOngewijzigd(schijf, bestand, uit.nieuw, *gelezen);
    return uit;
}

Uitkomst<void> ZetTerug(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                        const Aanmaak& aanmaak)
{
    const auto isHeel = [](Tekstblik /*nu*/) { return true; };
    return BewaarSamen(schijf, spelersmap, bestand, aanmaak.nieuw, aanmaak.inhoud, isHeel).gelukt;
}

} // namespace plexoran
