#include "register/herstel.h"

#include <algorithm>

namespace plexoran {
namespace {

Rijindex ParenVan(const Spelertabel& nu, const Spelertabel& toen)
{
    Rijindex paren;
    Indexeer(paren, nu, &Drierij::ons);
    Indexeer(paren, toen, &Drierij::ander);
    return paren;
}

std::vector<Tekst> ZonderKey(const Rijindex& paren, const Spelertabel& tabel)
{
    std::vector<Tekst> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (paren.at(tabel.Cel(rij, Kolom::Key)).onbruikbaar)
            uit.push_back(tabel.Inhoud(rij));
    }
    std::sort(uit.begin(), uit.end());
    return uit;
}

} // namespace

std::vector<Rijverschil> Verschillen(const Spelertabel& nu, const Spelertabel& toen)
{
    const Rijindex paren = ParenVan(nu, toen);
    std::vector<Rijverschil> uit;
    for (int rij = 1; rij <= nu.Rijen(); ++rij) {
        const Tekstblik key = nu.Cel(rij, Kolom::Key);
        const Drierij& paar = paren.at(key);
        if (!paar.onbruikbaar && (paar.ander == 0 || nu.Inhoud(rij) != toen.Inhoud(paar.ander)))
            uit.push_back({Tekst(key), rij, paar.ander});
    }
    for (int rij = 1; rij <= toen.Rijen(); ++rij) {
        const Tekstblik key = toen.Cel(rij, Kolom::Key);
        const Drierij& paar = paren.at(key);
        if (!paar.onbruikbaar && paar.ons == 0)
            uit.push_back({Tekst(key), 0, rij});
    }
    if (ZonderKey(paren, nu) != ZonderKey(paren, toen))
        uit.emplace_back();
    return uit;
}

Menging Herstel(const Stand& nu, const Stand& toen, const std::set<Tekst>& keys)
{
    const Rijindex paren = ParenVan(nu.tabel, toen.tabel);
    const bool ookZonderKey = keys.contains(Tekst());
    // As if the user had made of the register what it was then, in the order of then.
    Spelertabel doel;
    for (int rij = 1; rij <= toen.tabel.Rijen(); ++rij) {
        const Tekstblik key = toen.tabel.Cel(rij, Kolom::Key);
        const Drierij& paar = paren.at(key);
        if (paar.onbruikbaar ? ookZonderKey : keys.contains(Tekst(key)))
            doel.VoegToe(toen.tabel.Cellen(rij));
        else if (!paar.onbruikbaar && paar.ons != 0)
            doel.VoegToe(nu.tabel.Cellen(paar.ons));
    }
    for (int rij = 1; rij <= nu.tabel.Rijen(); ++rij) {
        const Tekstblik key = nu.tabel.Cel(rij, Kolom::Key);
        const Drierij& paar = paren.at(key);
        if (paar.onbruikbaar ? !ookZonderKey : paar.ander == 0 && !keys.contains(Tekst(key)))
            doel.VoegToe(nu.tabel.Cellen(rij));
    }
    return Meng(nu, {doel, std::max(nu.HKEY, toen.HKEY)}, nu);
}

} // namespace plexoran
