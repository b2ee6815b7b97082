#include "dialogs/kopieren.h"

#include <array>

#include "register/sleutelwijzer.h"

namespace plexoran {
namespace {

void VoegKopieToe(Spelertabel& tabel, int bron, Tekstblik key, const Kopieeropdracht& opdracht)
{
    std::array<Celtekst, 4> anders{{{Kolom::Key, key}, {Kolom::Groep, opdracht.naarGroep}, {}, {}}};
    std::size_t aantal = 2;
    if (!opdracht.metNBBgr)
        anders[aantal++] = {Kolom::NBBgr, {}};
    if (!opdracht.metNBBnr)
        anders[aantal++] = {Kolom::NBBnr, {}};
    tabel.VoegKopieToe(bron, std::span(anders).first(aantal));
}

void VoegLegeRijToe(Spelertabel& tabel, const Tekst& key, const Tekst& groep)
{
    Rijvelden rij;
    rij[Plaats(Kolom::Key)] = key;
    rij[Plaats(Kolom::Groep)] = groep;
    tabel.VoegToe(rij);
}

/// The row of each key, 0 where there is none, with room made for their copies.
std::vector<int> ZoekBronnen(Spelertabel& tabel, const Kopieeropdracht& opdracht)
{
    constexpr std::size_t langsteKey = 10;
    const Sleutelwijzer wijzer(tabel);
    std::vector<int> bronnen;
    bronnen.reserve(opdracht.keys.size());
    std::size_t bytes = 0;
    for (const Tekst& key : opdracht.keys) {
        const int bron = wijzer.Rij(key);
        bronnen.push_back(bron);
        bytes += bron == 0 ? std::size_t{AantalKolommen} : tabel.Lengte(bron);
        bytes += langsteKey + opdracht.naarGroep.size();
    }
    tabel.Reserveer(bronnen.size(), bytes);
    return bronnen;
}

} // namespace

bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht)
{
    if (!ZijnErSleutels(spelers, opdracht.keys.size()))
        return false;
    const std::vector<int> bronnen = ZoekBronnen(spelers.tabel, opdracht);
    for (const int bron : bronnen) {
        const Tekst nieuweKey = std::to_string(NieuweSleutel(spelers).value());
        if (bron != 0)
            VoegKopieToe(spelers.tabel, bron, nieuweKey, opdracht);
        else
            VoegLegeRijToe(spelers.tabel, nieuweKey, opdracht.naarGroep);
    }
    return true;
}

} // namespace plexoran
