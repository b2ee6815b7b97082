#include "mainwindow/weergave.h"

#include <cassert>

namespace plexoran {

Weergave BouwWeergave(const Spelertabel& tabel, Tekstblik groepscode,
                      const std::function<void(int)>& bijElkeRij)
{
    Weergave weergave;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != groepscode)
            continue;
        weergave.push_back(rij);
        bijElkeRij(rij);
    }
    return weergave;
}

void VerwijderRijen(Spelertabel& tabel, const Weergave& weergave, int van, int tot)
{
    assert(van >= 1 && van <= tot && tot <= static_cast<int>(weergave.size()));
    const std::span rijen(weergave);
    tabel.Verwijder(
        rijen.subspan(static_cast<std::size_t>(van - 1), static_cast<std::size_t>(tot - van + 1)));
}

Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode)
{
    const auto heeftWoord = [&](Tekstblik woord) {
        return mappen.ODKEYS.find(woord) != Tekst::npos;
    };
    Groepsbeeld beeld;
    beeld.importgroep = groepscode == mappen.DFIMPG;
    if (!beeld.importgroep) {
        beeld.kolomnamen[Plaats(Kolom::NBBgr)] = "Subgr";
        beeld.kolomnamen[Plaats(Kolom::NBBnr)] = "";
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
