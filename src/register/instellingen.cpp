#include "register/instellingen.h"

#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

constexpr Tekstblik optind = "OPTIND=";
constexpr Tekstblik lostgr = "LOSTGR=";

/// The setting that an item is of; empty for another item.
Tekst SleutelVan(Tekstblik item)
{
    Tekst sleutel = Hoofdletters(item.substr(0, optind.size()));
    return sleutel == optind || sleutel == lostgr ? sleutel : Tekst();
}

} // namespace

bool IsInstellingenbestand(Tekstblik inhoud)
{
    for (const Tekstblik item : Items(inhoud)) {
        const bool instelling =
            !SleutelVan(item).empty() && Geheel16(item.substr(optind.size())).has_value();
        if (!IsBlanco(item) && !instelling)
            return false;
    }
    return true;
}

Instellingen InstellingenUit(Tekstblik inhoud)
{
    Instellingen instellingen;
    for (const Tekstblik item : Items(inhoud)) {
        const Tekst sleutel = SleutelVan(item);
        if (sleutel.empty())
            continue;
        const auto waarde = Geheel16(item.substr(sleutel.size()));
        if (!waarde)
            break;
        (sleutel == optind ? instellingen.OPTIND : instellingen.LOSTGR) = *waarde;
    }
    return instellingen;
}

Tekst InstellingenTekst(const Instellingen& instellingen)
{
    return Tekst(optind) + std::to_string(instellingen.OPTIND) + "\r\n" + Tekst(lostgr) +
           std::to_string(instellingen.LOSTGR) + "\r\n";
}

Instellingen LeesInstellingen(Schijf& schijf, const Mappen& mappen)
{
    if (mappen.ADMMAP.empty())
        return {};
    const auto inhoud = schijf.LeesBestand(mappen.Instellingenbestand());
    Instellingen instellingen = inhoud ? InstellingenUit(*inhoud) : Instellingen();
    instellingen.OPTINDopSchijf = instellingen.OPTIND;
    return instellingen;
}

Uitkomst<void> SchrijfInstellingen(Schijf& schijf, const Mappen& mappen, Instellingen& instellingen)
{
    if (mappen.ADMMAP.empty())
        return Mislukt({.soort = Foutsoort::Ontbreekt, .bestand = "Plexo.ini"});
    const Pad pad = mappen.Instellingenbestand();
    const auto nu = AlsErIs(schijf.LeesBestand(pad));
    if (!nu)
        return Mislukt(nu);
    const bool isHeel = *nu && !IsLeeg(**nu) && IsInstellingenbestand(**nu);
    if (isHeel && instellingen.OPTIND == instellingen.OPTINDopSchijf)
        instellingen.OPTIND = InstellingenUit(**nu).OPTIND;
    const auto gelukt = BewaarSamen(schijf, mappen.SPEMAP, pad, *nu,
                                    InstellingenTekst(instellingen), IsInstellingenbestand)
                            .gelukt;
    if (StaatOpSchijf(gelukt))
        instellingen.OPTINDopSchijf = instellingen.OPTIND;
    return gelukt;
}

} // namespace plexoran
