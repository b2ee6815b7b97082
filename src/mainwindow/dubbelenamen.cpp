#include "mainwindow/dubbelenamen.h"

#include <unordered_map>
#include <utility>

namespace plexoran {
namespace {

/// Per row the next one with the same name; 0 for the last of its name.
std::vector<int> VolgendeNaamgenoten(const Spelertabel& tabel)
{
    std::vector<int> volgende(static_cast<std::size_t>(tabel.Rijen()) + 1, 0);
    std::unordered_map<Tekst, int> eerste; // of the rows below
    eerste.reserve(volgende.size());
    for (int rij = tabel.Rijen(); rij >= 1; --rij) {
        Tekst naam(tabel.Cel(rij, Kolom::Voornaam));
        naam += tabel.Cel(rij, Kolom::Tusv);
        naam += tabel.Cel(rij, Kolom::Achternaam);
        volgende[static_cast<std::size_t>(rij)] = std::exchange(eerste[std::move(naam)], rij);
    }
    return volgende;
}

} // namespace

Dubbelen ZoekDubbeleNamen(const Spelertabel& tabel, Tekstblik groepscode)
{
    const std::vector<int> volgende = VolgendeNaamgenoten(tabel);
    Dubbelen dubbelen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (volgende[static_cast<std::size_t>(rij)] == 0 ||
            tabel.Cel(rij, Kolom::Groep) != groepscode)
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
