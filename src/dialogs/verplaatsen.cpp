#include "dialogs/verplaatsen.h"

#include "register/sleutelwijzer.h"

namespace plexoran {

void VerplaatsSpelers(Spelertabel& tabel, const std::vector<Tekst>& keys, Tekstblik groepscode)
{
    const Sleutelwijzer wijzer(tabel);
    for (const Tekst& key : keys) {
        if (const int rij = wijzer.Rij(key); rij != 0)
            tabel.ZetCel(rij, Kolom::Groep, groepscode);
    }
}

} // namespace plexoran
