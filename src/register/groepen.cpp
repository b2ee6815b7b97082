#include "register/groepen.h"

#include <algorithm>

#include "platform/regels.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

bool IsGroepsitem(Tekstblik item)
{
    return item.starts_with("Gr");
}

bool NietsBegrepen(Tekstblik)
{
    return false;
}

} // namespace

void Groepen::ZetNaam(int nummer, Tekstblik naam)
{
    Tekst schoon = Vervang(naam, ',', '_');
    std::replace_if(
        schoon.begin(), schoon.end(), [](char teken) { return teken == '\r' || teken == '\n'; },
        ' ');
    namen_.at(Plaats(nummer)) = std::move(schoon);
}

Groepen GroepenUit(Tekstblik inhoud)
{
    Groepen groepen;
    int nummer = 0;
    for (const Tekstblik item : Items(inhoud)) {
        if (!IsGroepsitem(item))
            continue;
        if (++nummer > AantalGroepen)
            break;
        groepen.ZetNaam(nummer, item.substr(std::min(item.size(), LengteGroepscode)));
    }
    return groepen;
}

Tekst GroepenTekst(const Groepen& groepen)
{
    Tekst tekst;
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        tekst += groepen.Toontekst(nummer) + "\r\n";
    return tekst;
}

bool IsGroepenbestand(Tekstblik inhoud)
{
    int nummer = 0;
    for (const Tekstblik item : Items(inhoud)) {
        if (item.empty())
            continue;
        if (!IsGroepsitem(item) || item.size() < LengteGroepscode || ++nummer > AantalGroepen)
            return false;
    }
    return true;
}

Uitkomst<void> MaakGroepenbestand(Schijf& schijf, const Mappen& mappen)
{
    const Pad pad = mappen.Groepenbestand();
    const auto inhoud = schijf.LeesBestand(pad);
    if (!inhoud && inhoud.error().soort != Foutsoort::Ontbreekt)
        return tl::unexpected(inhoud.error());
    if (inhoud && !IsBlanco(EersteItem(*inhoud)))
        return {};
    return VervangMetKopie(schijf, mappen.SPEMAP, pad, GroepenTekst(Groepen()), NietsBegrepen);
}

Groepen LeesGroepen(Schijf& schijf, const Mappen& mappen)
{
    const auto inhoud = schijf.LeesBestand(mappen.Groepenbestand());
    return inhoud ? GroepenUit(*inhoud) : Groepen();
}

Uitkomst<void> SchrijfGroepen(Schijf& schijf, const Mappen& mappen, const Groepen& groepen)
{
    return VervangMetKopie(schijf, mappen.SPEMAP, mappen.Groepenbestand(), GroepenTekst(groepen),
                           IsGroepenbestand);
}

} // namespace plexoran
