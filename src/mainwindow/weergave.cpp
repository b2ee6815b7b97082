#include "mainwindow/weergave.h"

namespace plexoran {

Weergave BouwWeergave(const Spelertabel& tabel, Tekstblik groepscode)
{
    Weergave weergave;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == groepscode)
            weergave.push_back(rij);
    }
    return weergave;
}

Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode)
{
    const auto heeftWoord = [&](Tekstblik woord) {
        return mappen.ODKEYS.find(woord) != Tekst::npos;
    };
    Groepsbeeld beeld;
    beeld.importgroep = groepscode == mappen.DFIMPG;
    if (!beeld.importgroep) {
        beeld.kolomnamen[Index(Kolom::NBBgr)] = "Subgr";
        beeld.kolomnamen[Index(Kolom::NBBnr)] = "";
    }
    if (heeftWoord("ODNBB4SP"))
        beeld.cmdHaalNBBnamen = Zichtbaarheid::Verbergen;
    else if (heeftWoord("ODNBB28"))
        beeld.cmdToonGatenlijst = Zichtbaarheid::Verbergen;
    else
        beeld.cmdHaalNBBnamen = beeld.importgroep ? Zichtbaarheid::Tonen : Zichtbaarheid::Verbergen;
    return beeld;
}

} // namespace plexoran
