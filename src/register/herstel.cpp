#include "register/herstel.h"

#include <algorithm>
#include <unordered_map>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

struct Rijpaar {
    int nu = 0;
    int toen = 0;
    bool onbruikbaar = false; ///< the key tells no players apart
};

using Rijparen = std::unordered_map<Tekstblik, Rijpaar>;

void Zoek(Rijparen& paren, const Spelertabel& tabel, int Rijpaar::*kant)
{
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const Tekstblik key = tabel.Cel(rij, Kolom::Key);
        Rijpaar& paar = paren[key];
        if (paar.*kant != 0 || !AlsGetal(key, 1))
            paar.onbruikbaar = true;
        paar.*kant = rij;
    }
}

/// The keys are views into the tables.
Rijparen ParenVan(const Spelertabel& nu, const Spelertabel& toen)
{
    Rijparen paren;
    Zoek(paren, nu, &Rijpaar::nu);
    Zoek(paren, toen, &Rijpaar::toen);
    return paren;
}

Tekst Inhoud(const Spelertabel& tabel, int rij)
{
    Tekst uit;
    tabel.VoegCellenAan(uit, rij);
    return uit;
}

std::vector<Tekst> ZonderKey(const Rijparen& paren, const Spelertabel& tabel)
{
    std::vector<Tekst> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (paren.at(tabel.Cel(rij, Kolom::Key)).onbruikbaar)
            uit.push_back(Inhoud(tabel, rij));
    }
    std::sort(uit.begin(), uit.end());
    return uit;
}

void VoegToe(Spelertabel& uit, const Spelertabel& tabel, int rij)
{
    Rijblikken cellen;
    for (std::size_t i = 0; i < cellen.size(); ++i)
        cellen[i] = tabel.Cel(rij, static_cast<Kolom>(i + 1));
    uit.VoegToe(cellen);
}

} // namespace

std::vector<Rijverschil> Verschillen(const Spelertabel& nu, const Spelertabel& toen)
{
    const Rijparen paren = ParenVan(nu, toen);
    std::vector<Rijverschil> uit;
    for (int rij = 1; rij <= nu.Rijen(); ++rij) {
        const Tekstblik key = nu.Cel(rij, Kolom::Key);
        const Rijpaar& paar = paren.at(key);
        if (!paar.onbruikbaar && (paar.toen == 0 || Inhoud(nu, rij) != Inhoud(toen, paar.toen)))
            uit.push_back({Tekst(key), rij, paar.toen});
    }
    for (int rij = 1; rij <= toen.Rijen(); ++rij) {
        const Tekstblik key = toen.Cel(rij, Kolom::Key);
        const Rijpaar& paar = paren.at(key);
        if (!paar.onbruikbaar && paar.nu == 0)
            uit.push_back({Tekst(key), 0, rij});
    }
    if (ZonderKey(paren, nu) != ZonderKey(paren, toen))
        uit.emplace_back();
    return uit;
}

Menging Herstel(const Stand& nu, const Stand& toen, const std::set<Tekst>& keys)
{
    const Rijparen paren = ParenVan(nu.tabel, toen.tabel);
    const bool ookZonderKey = keys.contains(Tekst());
    // As if the user had made of the register what it was then, in the order of then.
    Spelertabel doel;
    for (int rij = 1; rij <= toen.tabel.Rijen(); ++rij) {
        const Tekstblik key = toen.tabel.Cel(rij, Kolom::Key);
        const Rijpaar& paar = paren.at(key);
        if (paar.onbruikbaar ? ookZonderKey : keys.contains(Tekst(key)))
            VoegToe(doel, toen.tabel, rij);
        else if (!paar.onbruikbaar && paar.nu != 0)
            VoegToe(doel, nu.tabel, paar.nu);
    }
    for (int rij = 1; rij <= nu.tabel.Rijen(); ++rij) {
        const Tekstblik key = nu.tabel.Cel(rij, Kolom::Key);
        const Rijpaar& paar = paren.at(key);
        if (paar.onbruikbaar ? !ookZonderKey : paar.toen == 0 && !keys.contains(Tekst(key)))
            VoegToe(doel, nu.tabel, rij);
    }
    return Meng(nu, {doel, std::max(nu.HKEY, toen.HKEY)}, nu);
}

} // namespace plexoran
