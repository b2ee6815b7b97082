// Player tables for tests, and drawing lots.
#pragma once

#include <random>
#include <vector>

#include "register/spelerbestand.h"

namespace plexoran {

/// The columns that lists, moving and copying look at.
struct Proefspeler {
    Tekst key{};
    Tekst groep{};
    Tekst voornaam{};
    Tekst tusv{};
    Tekst achternaam{};
    Tekst nbbgr{};
    Tekst nbbnr{};
};

inline Spelertabel MaakTabel(const std::vector<Proefspeler>& spelers)
{
    Spelertabel tabel;
    for (const Proefspeler& speler : spelers) {
        Rijvelden velden;
        velden[Index(Kolom::Nr)] = std::to_string(tabel.Rijen() + 1);
        velden[Index(Kolom::Key)] = speler.key;
        velden[Index(Kolom::Groep)] = speler.groep;
        velden[Index(Kolom::Voornaam)] = speler.voornaam;
        velden[Index(Kolom::Tusv)] = speler.tusv;
        velden[Index(Kolom::Achternaam)] = speler.achternaam;
        velden[Index(Kolom::Plaats)] = "Ede " + speler.key;
        velden[Index(Kolom::NBBgr)] = speler.nbbgr;
        velden[Index(Kolom::NBBnr)] = speler.nbbnr;
        tabel.VoegToe(velden);
    }
    return tabel;
}

/// As a start reads it.
inline Register Lees(const Tekst& inhoud)
{
    Spelerlezing lezing = SpelersUit(inhoud);
    Register spelers;
    spelers.tabel = std::move(*lezing.tabel);
    spelers.HKEY = lezing.HKEY.value_or(0);
    return spelers;
}

/// Every row with all its cells, so that a change anywhere shows.
inline std::vector<Rijvelden> AlleRijen(const Spelertabel& tabel)
{
    std::vector<Rijvelden> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        rijen.push_back(tabel.Velden(rij));
    return rijen;
}

inline std::size_t Gooi(std::mt19937& toeval, std::size_t aantal)
{
    return std::uniform_int_distribution<std::size_t>(0, aantal - 1)(toeval);
}

inline Tekst Trek(std::mt19937& toeval, const std::vector<Tekst>& uit)
{
    return uit[Gooi(toeval, uit.size())];
}

} // namespace plexoran
