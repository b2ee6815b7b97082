#include "mainwindow/weergave.h"

#include <algorithm>
#include <cmath>

namespace plexoran {

constexpr double PerMillimeter = 1000.0; // micrometres

Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode)
{
    const auto heeftWoord = [&](Tekstblik woord) {
        return mappen.ODKEYS.find(woord) != Tekst::npos;
    };
    Groepsbeeld beeld;
    beeld.importgroep = groepscode == mappen.DFIMPG;
    if (!beeld.importgroep) {
        beeld.kolomnamen[Index(Kolom::NBBgr)] = Subgroepnaam;
        beeld.kolomnamen[Index(Kolom::NBBnr)] = "";
    }
    if (heeftWoord("ODNBB4SP"))
        beeld.cmdHaalNBBnamen = false;
    else if (heeftWoord("ODNBB28"))
        beeld.verbergGatenlijst = true;
    else
        beeld.cmdHaalNBBnamen = beeld.importgroep;
    return beeld;
}

Kolommaten MeetCellen(const Spelertabel& tabel, std::span<const int> rijen, const Tekstmeter& meter)
{
    Kolommaten maten{};
    for (const int rij : rijen) {
        for (std::size_t i = 0; i < maten.size(); ++i)
            maten[i] = std::max(maten[i], meter.Breedte(tabel.Cel(rij, static_cast<Kolom>(i + 1))));
    }
    return maten;
}

Kolomranden MaakKolommen(const Kolommaten& cellen, const Kolommaten& headers, Breedteregel regel)
{
    const bool volgensHeader = regel == Breedteregel::VolgensHeader;
    const Kolommaten& maten = volgensHeader ? headers : cellen;
    const double marge = (volgensHeader ? 2 : 4) * rooster::Celmarge;
    Kolomranden randen{};
    for (std::size_t i = 0; i < maten.size(); ++i) {
        const double breedte = static_cast<double>(maten[i]) / PerMillimeter + marge;
        randen[i + 1] = randen[i] + std::max(breedte, rooster::SmalsteKolom);
    }
    return randen;
}

Tekst PasTekst(Tekstblik tekst, double kolombreedte, const Tekstmeter& meter)
{
    const double ruimte = kolombreedte - 2 * rooster::Celmarge - rooster::Speling;
    const auto beschikbaar = static_cast<std::int64_t>(std::floor(ruimte * PerMillimeter));
    return Ingekort(tekst, beschikbaar, [&](Tekstblik deel) { return meter.Breedte(deel); });
}

} // namespace plexoran
