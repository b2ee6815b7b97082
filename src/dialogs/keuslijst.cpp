#include "dialogs/keuslijst.h"

#include <algorithm>

namespace plexoran {
namespace {

constexpr std::size_t LengteKey = 6;
constexpr std::size_t AantalSpaties = 60;

/// Group code, tab, surname, three spaces, first name, space, particle.
Tekst Naamdeel(const Spelertabel& tabel, int rij)
{
    Tekst regel(tabel.Cel(rij, Kolom::Groep));
    regel += '\t';
    regel += tabel.Cel(rij, Kolom::Achternaam);
    regel += "   ";
    regel += tabel.Cel(rij, Kolom::Voornaam);
    regel += ' ';
    regel += tabel.Cel(rij, Kolom::Tusv);
    return regel;
}

Tekst MetKey(Tekst regel, const Spelertabel& tabel, int rij)
{
    regel.append(AantalSpaties, ' ');
    regel += tabel.Cel(rij, Kolom::Key);
    return regel;
}

template <class Hoort> std::vector<int> Rijen(const Spelertabel& tabel, Hoort hoort)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (hoort(tabel.Cel(rij, Kolom::Groep)))
            rijen.push_back(rij);
    }
    return rijen;
}

} // namespace

Tekstblik KeyVan(Tekstblik regel)
{
    return regel.substr(regel.size() - std::min(regel.size(), LengteKey));
}

std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep)
{
    return Rijen(tabel, [&](Tekstblik groep) { return groep != importgroep; });
}

Tekst Verplaatsregel(const Spelertabel& tabel, int rij)
{
    return MetKey(Naamdeel(tabel, rij), tabel, rij);
}

std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode)
{
    return Rijen(tabel, [&](Tekstblik groep) { return groep == groepscode; });
}

Tekst Kopieerregel(const Spelertabel& tabel, int rij)
{
    Tekst regel = Naamdeel(tabel, rij);
    const Tekstblik subgroep = tabel.Cel(rij, Kolom::NBBgr);
    if (IsBlanco(subgroep)) {
        regel += "(geen)";
    } else {
        regel += "  (";
        regel += subgroep;
        regel += ')';
    }
    return MetKey(std::move(regel), tabel, rij);
}

} // namespace plexoran
