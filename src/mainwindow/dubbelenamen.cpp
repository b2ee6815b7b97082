#include "mainwindow/dubbelenamen.h"

#include <algorithm>
#include <unordered_map>

namespace plexoran {
namespace {

Tekst VolleNaam(const Spelertabel& tabel, int rij)
{
    Tekst naam(tabel.Cel(rij, Kolom::Voornaam));
    naam += tabel.Cel(rij, Kolom::Tusv);
    naam += tabel.Cel(rij, Kolom::Achternaam);
    return naam;
}

} // namespace

Dubbelen ZoekDubbeleNamen(const Spelertabel& tabel, Tekstblik groepscode)
{
    // Per row the next one with the same name; 0 for the last of its name.
    std::vector<int> volgende(static_cast<std::size_t>(tabel.Rijen()) + 1, 0);
    std::unordered_map<Tekst, int> laatste;
    laatste.reserve(volgende.size());
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const auto [plaats, nieuw] = laatste.try_emplace(VolleNaam(tabel, rij), rij);
        if (!nieuw) {
            volgende[static_cast<std::size_t>(plaats->second)] = rij;
            plaats->second = rij;
        }
    }

    Dubbelen dubbelen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != groepscode)
            continue;
        for (int latere = volgende[static_cast<std::size_t>(rij)]; latere != 0;
             latere = volgende[static_cast<std::size_t>(latere)]) {
            if (dubbelen.paren.size() == MeesteDubbelen) {
                dubbelen.meer = true;
                return dubbelen;
            }
            dubbelen.paren.push_back({rij, latere});
        }
    }
    return dubbelen;
}

} // namespace plexoran
