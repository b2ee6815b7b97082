#include "register/tweedeplaats.h"

#include "platform/tekst/regels.h"
#include "register/reservekopie.h"
#include "register/reservezip.h"

namespace plexoran {
namespace {

constexpr Tekstblik mapsleutel = "MAP=";
constexpr Tekstblik gezienSleutel = "GEZIEN=";

/// The name of the newest backup; empty when there is none.
Uitkomst<Tekst> Nieuwste(Schijf& schijf, const Pad& map)
{
    return AlsErIs(schijf.Bestanden(map)).map([](const std::optional<std::vector<Tekst>>& namen) {
        for (const Kopienaam& kopie : Kopienamen(namen.value_or(std::vector<Tekst>()))) {
            if (kopie.IsZip())
                return kopie.naam;
        }
        return Tekst();
    });
}

/// Whether the newest backup is in the other folder now.
bool Breng(Schijf& schijf, const Pad& van, const Pad& naar)
{
    if (schijf.Soort(naar) != Padsoort::Map)
        return false;
    const auto naam = Nieuwste(schijf, van);
    if (!naam || naam->empty())
        return naam.has_value();
    const Pad doel = Samen(naar, *naam);
    if (schijf.Soort(doel) == Padsoort::Bestand)
        return true;
    const auto zip = schijf.LeesBestand(Samen(van, *naam));
    if (!zip)
        return false;
    RuimTijdelijkeOp(schijf, naar, *naam);
    if (!SchrijfHeel(schijf, doel, *zip) || schijf.LeesBestand(doel) != *zip) {
        static_cast<void>(schijf.Verwijder(doel));
        return false;
    }
    return true;
}

} // namespace

Tweedeplaats LeesTweedeplaats(Schijf& schijf, const Pad& ini)
{
    Tweedeplaats uit;
    const auto inhoud = ini.empty() ? Tekst() : schijf.LeesBestand(ini).value_or(Tekst());
    for (const Tekstblik regel : Regels(inhoud)) {
        if (regel.starts_with(mapsleutel))
            uit.map = regel.substr(mapsleutel.size());
        else if (regel.starts_with(gezienSleutel))
            uit.gezien = regel.substr(gezienSleutel.size());
    }
    return uit;
}

Uitkomst<void> BewaarTweedeplaats(Schijf& schijf, const Pad& ini, const Tweedeplaats& plaats)
{
    return schijf.MaakMap(ini.substr(0, ini.rfind('\\'))).and_then([&] {
        return SchrijfHeel(schijf, ini,
                           Tekst(mapsleutel) + plaats.map + "\r\n" + Tekst(gezienSleutel) +
                               plaats.gezien + "\r\n");
    });
}

void WerkTweedeplaatsBij(Schijf& schijf, const Mappen& mappen, const Pad& ini)
{
    Tweedeplaats plaats = LeesTweedeplaats(schijf, ini);
    if (plaats.map.empty() || !Breng(schijf, Kopiemap(mappen.SPEMAP), plaats.map))
        return;
    const Tekst vandaag = Tijdtekst("yyyy-MM-dd");
    if (plaats.gezien == vandaag)
        return;
    plaats.gezien = vandaag;
    static_cast<void>(BewaarTweedeplaats(schijf, ini, plaats));
}

int DagenWeg(const Tweedeplaats& plaats, Tekstblik vandaag)
{
    constexpr int teLang = 14;
    const auto gezien = Dagnummer(plaats.gezien);
    const auto nu = Dagnummer(vandaag);
    if (plaats.map.empty() || !gezien || !nu || *nu - *gezien < teLang)
        return 0;
    return *nu - *gezien;
}

} // namespace plexoran
