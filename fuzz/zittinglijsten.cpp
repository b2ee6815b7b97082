// Any text as a player list and as a result list of a session: a name that is found can be replaced
// by a key, after which the file reads back the same but for that half, and nothing else changed.
#include <algorithm>
#include <optional>

#include "eis.h"
#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"
#include "sessions/zittinglijsten.h"

using namespace plexoran;

namespace {

constexpr Tekstblik key = "100237";

/// A half of a pair, keys too.
struct Helft {
    Tekst plaats;
    Tekst speler;
    bool operator==(const Helft&) const = default;
};

std::vector<Helft> AlleHelften(Tekstblik inhoud, Lijstsoort soort)
{
    std::vector<Helft> uit;
    const auto voeg = [&](Tekstblik code, Tekstblik spelers) {
        const auto helften = SplitsHelften(spelers);
        if (!helften)
            return;
        uit.push_back({Tafelsleutel(code), Tekst(helften->eerste)});
        uit.push_back({Tafelsleutel(code), Tekst(helften->tweede)});
    };
    for (const Tekstblik regel : Regels(inhoud)) {
        const auto items = ItemsVan(regel);
        if (soort == Lijstsoort::Percentages && items.size() == 7)
            voeg(items[2].tekst, items[3].tekst);
        if (soort == Lijstsoort::Spelers) {
            for (const Item& item : items) {
                if (const auto paar = PaarUit(item.tekst))
                    voeg(paar->code, paar->spelers);
            }
        }
    }
    return uit;
}

void EisEenVervangen(const Tekst& inhoud, Lijstsoort soort, const Tafelnaam& gekozen)
{
    const Naamvervanging vervanging{{gekozen.code}, gekozen.naam, Tekst(key)};
    const Herschrijving nieuw = HerschrijfLijst(inhoud, soort, vervanging);
    Eis(!nieuw.vervangen.empty(), "wat gevonden is, wordt vervangen");
    std::vector<Helft> verwacht = AlleHelften(inhoud, soort);
    for (Helft& helft : verwacht) {
        if (helft.plaats == Tafelsleutel(gekozen.code) && helft.speler == gekozen.naam)
            helft.speler = key;
    }
    Eis(AlleHelften(nieuw.inhoud, soort) == verwacht, "alleen die helft is anders");
    Eis(HerschrijfLijst(nieuw.inhoud, soort, vervanging).inhoud == nieuw.inhoud,
        "nog eens verandert niets");
    // Lines without the name are there to the byte, in their order.
    std::size_t vanaf = 0;
    for (const Tekstblik regel : Regels(inhoud)) {
        if (regel.find(gekozen.naam) != Tekstblik::npos)
            continue;
        const auto plaats = nieuw.inhoud.find(regel, vanaf);
        Eis(plaats != Tekst::npos, "een regel zonder de naam is er nog");
        vanaf = plaats + regel.size();
    }
}

void Proef(const Tekst& inhoud, Lijstsoort soort)
{
    const Lijstlezing lezing = LeesLijst(inhoud, soort);
    const auto zwevend = AlleHelften(inhoud, soort);
    Eis(lezing.zwevend.size() <= zwevend.size(), "niet meer zwevenden dan helften");
    for (const Tafelnaam& wie : lezing.zwevend)
        Eis(!wie.naam.empty() && !AlsGetal(wie.naam, 1), "een zwevende is geen getal en niet leeg");
    constexpr std::size_t hoogstens = 8;
    for (std::size_t i = 0; i < std::min(lezing.zwevend.size(), hoogstens); ++i)
        EisEenVervangen(inhoud, soort, lezing.zwevend[i]);
    const Herschrijving ongemoeid =
        HerschrijfLijst(inhoud, soort, {{"N05"}, "een naam\nmet een regeleinde", Tekst(key)});
    Eis(ongemoeid.vervangen.empty() && ongemoeid.inhoud == inhoud, "anders blijft alles");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    Proef(inhoud, Lijstsoort::Spelers);
    Proef(inhoud, Lijstsoort::Percentages);
    return 0;
}
