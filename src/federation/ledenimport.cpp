#include "federation/ledenimport.h"

#include <algorithm>

#include "platform/tekst/tekst.h"

namespace plexoran {

Ledenimport::Ledenimport(Administratie& administratie, Importgeheugen& geheugen)
    : administratie_(administratie), geheugen_(geheugen)
{
    if (!administratie_.DataMap.empty())
        LedenDatabase_ = Samen(administratie_.DataMap, "Members.mdb");
}

void Ledenimport::KiesBron(Ledenbron bron)
{
    bron_ = bron;
    geheugen_.bron = bron;
    map_.clear();
    namen_.clear();
}

Pad Ledenimport::Beginmap() const
{
    Pad map;
    if (const auto eerder = geheugen_.mappen.find(bron_); eerder != geheugen_.mappen.end())
        map = eerder->second;
    else if (!administratie_.mappen.WINMAP.empty())
        map = administratie_.mappen.Ledenmap();
    if (map.empty() || administratie_.schijf.Soort(map) != Padsoort::Map)
        return {};
    return map;
}

Uitkomst<void> Ledenimport::KiesDatabase(const Voortgang& voortgang)
{
    return HaalLedenbestanden(LedenDatabase_, voortgang, grenzen_)
        .map([this](std::vector<Tekst> namen) { namen_ = std::move(namen); });
}

Uitkomst<void> Ledenimport::KiesMap(const Pad& map)
{
    auto bestanden = administratie_.schijf.Bestanden(map);
    if (!bestanden)
        return Mislukt(bestanden);
    const Tekstblik einde = bron_ == Ledenbron::Csv ? ".CSV" : ".XML";
    std::erase_if(*bestanden,
                  [&](const Tekst& naam) { return !Hoofdletters(naam).ends_with(einde); });
    Sorteer(*bestanden);
    namen_ = std::move(*bestanden);
    map_ = map;
    geheugen_.mappen[bron_] = map;
    return {};
}

void Ledenimport::HoudVanSoort(const Voortgang& voortgang)
{
    if (bron_ != Ledenbron::Csv)
        namen_ = BepaalXMLsoort(administratie_.schijf, map_, namen_, bron_, voortgang);
}

int Ledenimport::EersteKeus(Tekstblik aangewezen) const
{
    const auto gevonden = std::ranges::find(namen_, aangewezen);
    if (gevonden != namen_.end())
        return static_cast<int>(gevonden - namen_.begin());
    return bron_ == Ledenbron::Csv || namen_.empty() ? -1 : 0;
}

Ledenopdracht Ledenimport::Opdracht(const Importkeuzes& keuzes) const
{
    return {.bron = bron_,
            .map = map_,
            .programmamap = bron_ == Ledenbron::Csv
                                ? administratie_.programmamap
                                : Tussenmap(administratie_.schijf, administratie_.programmamap,
                                            administratie_.mappen.ADMMAP),
            .LedenDatabase = LedenDatabase_,
            .keuzes = keuzes,
            .grenzen = grenzen_};
}

Samenvoegopdracht Ledenimport::Samenvoegen(Tekstblik naam, std::vector<Tekst> lstN1) const
{
    return {.importgroep = administratie_.mappen.DFIMPG,
            .subgroep = SubgroepUitNaam(naam),
            .lstN1 = std::move(lstN1)};
}

Samenvoeguitkomst Ledenimport::Importeer(Tekstblik naam, std::vector<Tekst> lstN1,
                                         const Voortgang& voortgang)
{
    return Onthoud(
        VoegLedenSamen(administratie_.spelers, Samenvoegen(naam, std::move(lstN1)), voortgang));
}

tl::expected<Voorbeeld, Samenvoegfout> Ledenimport::Bekijk(Tekstblik naam, Ledenlezing& lezing,
                                                           const Voortgang& voortgang) const
{
    return Voorbeeld::Maak(administratie_.spelers.tabel, Samenvoegen(naam, std::move(lezing.lstN1)),
                           lezing, voortgang);
}

Samenvoeguitkomst Ledenimport::Importeer(const Voorbeeld& voorbeeld)
{
    const bool verandertIets = voorbeeld.VerandertIets(); // asked while the table is as it was
    auto uitkomst =
        VoerSamenvoegingUit(administratie_.spelers, voorbeeld.Opdracht(), voorbeeld.Gekozen());
    return verandertIets ? Onthoud(std::move(uitkomst)) : uitkomst;
}

Samenvoeguitkomst Ledenimport::Onthoud(Samenvoeguitkomst uitkomst)
{
    if (uitkomst && uitkomst->AantalVerververst + uitkomst->AantalNieuw > 0)
        ietsGewijzigd_ = true;
    return uitkomst;
}

} // namespace plexoran
