#include "register/groepen.h"

#include <algorithm>
#include <utility>

#include "platform/tekst/regels.h"
#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

bool IsGroepsitem(Tekstblik item)
{
    return item.starts_with("Gr");
}

bool HeeftGroepscode(Tekstblik item)
{
    return item.size() >= LengteGroepscode && IsGroepsitem(item) && IsCijfer(item[2]) &&
           IsCijfer(item[3]) && item[4] == '-';
}

} // namespace

int Groepnummer(Tekstblik code)
{
    int nummer = AantalGroepen;
    while (nummer > 0 && Groepscode(nummer) != code)
        --nummer;
    return nummer;
}

void Groepen::ZetNaam(int nummer, Tekstblik naam)
{
    namen_.at(Index(nummer)) = AlsVeld(naam);
}

std::vector<Tekst> Groepen::Toonteksten() const
{
    std::vector<Tekst> teksten;
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        teksten.push_back(Toontekst(nummer));
    return teksten;
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
        groepen.aantal = nummer;
    }
    return groepen;
}

Tekst GroepenTekst(const Groepen& groepen)
{
    Tekst tekst;
    for (const Tekst& regel : groepen.Toonteksten())
        tekst += regel + "\r\n";
    return tekst;
}

bool IsGroepenbestand(Tekstblik inhoud)
{
    int nummer = 0;
    for (const Tekstblik item : Items(inhoud)) {
        if (item.empty())
            continue;
        if (!HeeftGroepscode(item) || ++nummer > AantalGroepen)
            return false;
    }
    return true;
}

Aanmaak MaakGroepenbestand(Schijf& schijf, const Mappen& mappen)
{
    Aanmaak uit =
        MaakBestand(schijf, mappen.SPEMAP, mappen.Groepenbestand(), GroepenTekst(Groepen()));
    uit.inhoud = Tekst(ZonderBlancoBegin(uit.inhoud));
    return uit;
}

Groepen LeesGroepen(Schijf& schijf, const Mappen& mappen)
{
    auto inhoud = schijf.LeesBestand(mappen.Groepenbestand());
    if (!inhoud)
        return {};
    Groepen groepen = GroepenUit(*inhoud);
    groepen.bestandstekst = std::move(*inhoud);
    return groepen;
}

Bewaring SchrijfGroepen(Schijf& schijf, const Mappen& mappen, Groepen& groepen)
{
    Bewaring uit = BewaarSamen(schijf, mappen.SPEMAP, mappen.Groepenbestand(),
                               groepen.bestandstekst, GroepenTekst(groepen), IsGroepenbestand);
    Groepen daar = GroepenUit(uit.inhoud);
    // One that was cut off, and that we had nothing to add to, stands there as it was.
    if (StaatOpSchijf(uit.gelukt) && daar.aantal >= groepen.aantal) {
        groepen = std::move(daar);
        groepen.bestandstekst = uit.inhoud;
    }
    return uit;
}

} // namespace plexoran
