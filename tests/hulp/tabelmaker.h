// Player tables for tests: written out, or small ones at random.
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

/// At most a dozen players, with much in common: keys that occur twice, are short or long, names
/// and subgroups that differ in case, blanks or the field they stand in. The first ones were read
/// from a file, perhaps without an end of its last line, the others added.
inline Spelertabel ToevalligeTabel(std::mt19937& toeval)
{
    std::vector<Proefspeler> spelers(Gooi(toeval, 13));
    for (Proefspeler& speler : spelers)
        speler = {.key = Trek(toeval, {"100001", "100002", "100003", "100004", "12", "7100001"}),
                  .groep = Trek(toeval, {"Gr01-", "Gr02-", "Gr05-"}),
                  .voornaam = Trek(toeval, {"", "a", "ab", "A", "a "}),
                  .tusv = Trek(toeval, {"", "b", "bc", " "}),
                  .achternaam = Trek(toeval, {"c", "bc", "abc", "C"}),
                  .nbbgr = Trek(toeval, {"", "", " ", "x", " x", "X", "geen", "Geen", "x#y", "y"}),
                  .nbbnr = Trek(toeval, {"", " ", "7", "12345", "00100000"})};
    const Spelertabel bron = MaakTabel(spelers);
    const auto uitBestand = static_cast<int>(Gooi(toeval, spelers.size() + 1));
    Tekst inhoud;
    for (int rij = 1; rij <= uitBestand; ++rij) {
        inhoud += std::to_string(rij) + ",";
        bron.VoegCellenAan(inhoud, rij);
        if (rij < uitBestand || Gooi(toeval, 2) == 0)
            inhoud += "\r\n";
    }
    Spelertabel tabel = SpelersUit(std::move(inhoud)).tabel.value();
    for (int rij = uitBestand + 1; rij <= bron.Rijen(); ++rij)
        tabel.VoegToe(bron.Velden(rij));
    return tabel;
}

} // namespace plexoran
