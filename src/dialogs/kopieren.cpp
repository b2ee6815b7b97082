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

} // namespace

bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht)
{
    if (!ZijnErSleutels(spelers, opdracht.keys.size()))
        return false;
    const Sleutelwijzer wijzer(spelers.tabel);
    for (const Tekst& key : opdracht.keys) {
        const int bron = wijzer.Rij(key); // a copy made here is never found, nor copied again
        const Tekst nieuweKey = std::to_string(NieuweSleutel(spelers).value());
        if (bron != 0)
            VoegKopieToe(spelers.tabel, bron, nieuweKey, opdracht);
        else
            VoegLegeRijToe(spelers.tabel, nieuweKey, opdracht.naarGroep);
    }
    return true;
}

} // namespace plexoran
