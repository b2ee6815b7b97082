#include "dialogs/subgroep.h"

#include "dialogs/keuslijst.h"
#include "register/waardenlijst.h"

namespace plexoran {

std::vector<Tekst> SubgroepenVan(const Spelertabel& tabel, Tekstblik groepscode)
{
    Waardenlijst subgroepen;
    for (const int rij : RijenVanGroep(tabel, groepscode)) {
        const Tekstblik waarde = ZonderSpaties(tabel.Cel(rij, Kolom::NBBgr));
        subgroepen.Voeg(waarde.empty() ? "geen" : Tekst(waarde));
    }
    return subgroepen.Waarden();
}

int VerwijderSubgroep(Spelertabel& tabel, Tekstblik groepscode, Tekstblik subgroep)
{
    const bool geen = Hoofdletters(subgroep) == "GEEN";
    std::vector<int> weg;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != groepscode)
            continue;
        const Tekstblik waarde = tabel.Cel(rij, Kolom::NBBgr);
        if (waarde == subgroep || (geen && waarde.empty()))
            weg.push_back(rij);
    }
    tabel.Verwijder(weg);
    return static_cast<int>(weg.size());
}

} // namespace plexoran
