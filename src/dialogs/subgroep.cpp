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

std::vector<int> RijenVanSubgroep(const Spelertabel& tabel, Tekstblik groepscode,
                                  Tekstblik subgroep)
{
    const bool geen = Hoofdletters(subgroep) == "GEEN";
    std::vector<int> rijen = RijenVanGroep(tabel, groepscode);
    std::erase_if(rijen, [&](int rij) {
        const Tekstblik waarde = tabel.Cel(rij, Kolom::NBBgr);
        return waarde != subgroep && !(geen && waarde.empty());
    });
    return rijen;
}

int VerwijderSubgroep(Spelertabel& tabel, Tekstblik groepscode, Tekstblik subgroep)
{
    const std::vector<int> weg = RijenVanSubgroep(tabel, groepscode, subgroep);
    tabel.Verwijder(weg);
    return static_cast<int>(weg.size());
}

} // namespace plexoran
