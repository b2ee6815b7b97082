#include "dialogs/kopieren.h"

#include "dialogs/keuslijst.h"

namespace plexoran {

bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht)
{
    if (!ZijnErSleutels(spelers, opdracht.keys.size()))
        return false;
    const Sleutelwijzer wijzer(spelers.tabel);
    for (const Tekst& key : opdracht.keys) {
        const int bron = wijzer.Rij(key);
        Rijvelden rij;
        if (bron != 0)
            rij = spelers.tabel.Velden(bron);
        if (!opdracht.metNBBgr)
            rij[Plaats(Kolom::NBBgr)].clear();
        if (!opdracht.metNBBnr)
            rij[Plaats(Kolom::NBBnr)].clear();
        rij[Plaats(Kolom::Key)] = std::to_string(NieuweSleutel(spelers).value());
        rij[Plaats(Kolom::Groep)] = opdracht.naarGroep;
        spelers.tabel.VoegToe(rij);
    }
    return true;
}

} // namespace plexoran
