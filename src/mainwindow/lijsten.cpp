#include "mainwindow/lijsten.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

constexpr std::size_t BreedteKey = 6;
constexpr std::size_t BreedteNBBnr = 8;
constexpr std::size_t BreedteGroepveld = 12;
constexpr std::size_t BreedteNaamveld = 30;

void VoegVasteBreedteToe(Tekst& regel, Tekstblik veld, std::size_t breedte)
{
    regel += veld.substr(0, breedte);
    regel.append(breedte - std::min(breedte, veld.size()), ' ');
}

/// Group code and column 17, then the surname.
void VoegGroepEnNaamToe(Tekst& regel, const Spelertabel& tabel, int rij)
{
    const Tekstblik groep = tabel.Cel(rij, Kolom::Groep); // of five characters at the most
    regel += groep;
    VoegVasteBreedteToe(regel, tabel.Cel(rij, Kolom::NBBgr), BreedteGroepveld - groep.size());
    VoegVasteBreedteToe(regel, tabel.Cel(rij, Kolom::Achternaam), BreedteNaamveld);
}

/// Per row the next one with the same name; 0 for the last of its name.
std::vector<int> VolgendeNaamgenoten(const Spelertabel& tabel)
{
    std::vector<std::pair<Tekst, int>> namen;
    namen.reserve(static_cast<std::size_t>(tabel.Rijen()));
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        Tekst naam(tabel.Cel(rij, Kolom::Voornaam));
        naam += tabel.Cel(rij, Kolom::Tusv);
        naam += tabel.Cel(rij, Kolom::Achternaam);
        namen.emplace_back(std::move(naam), rij);
    }
    std::sort(namen.begin(), namen.end());
    std::vector<int> volgende(namen.size() + 1, 0);
    for (std::size_t i = 1; i < namen.size(); ++i) {
        if (namen[i].first == namen[i - 1].first)
            volgende[static_cast<std::size_t>(namen[i - 1].second)] = namen[i].second;
    }
    return volgende;
}

} // namespace

void VoegVeldenToe(Tekst& regel, const Spelertabel& tabel, int rij, char scheiding)
{
    constexpr std::array velden{Kolom::Key,        Kolom::Voornaam, Kolom::Tusv,
                                Kolom::Achternaam, Kolom::NBBgr,    Kolom::NBBnr};
    for (const Kolom veld : velden) {
        regel += tabel.Cel(rij, veld);
        if (veld != velden.back())
            regel += scheiding;
    }
}

tl::expected<Sorteerlijst, GeenGetal> VulSorteerlijst(const Spelertabel& tabel, Sorteersoort soort,
                                                      std::optional<Tekst> groepscode)
{
    const bool opKey = soort == Sorteersoort::Key;
    const Kolom kolom = opKey ? Kolom::Key : Kolom::NBBnr;
    Sorteerlijst lijst;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (groepscode && tabel.Cel(rij, Kolom::Groep) != *groepscode)
            continue;
        Tekst regel;
        if (soort == Sorteersoort::NBBgroep) {
            VoegGroepEnNaamToe(regel, tabel, rij);
        } else {
            const Tekstblik waarde = tabel.Cel(rij, kolom);
            if (!opKey && IsBlanco(waarde))
                continue;
            const auto cijfers = AlsGetal(waarde, opKey ? BreedteKey : BreedteNBBnr);
            if (!cijfers)
                return tl::unexpected(GeenGetal{rij, Tekst(waarde)});
            regel += *cijfers;
            regel += ',';
        }
        VoegVeldenToe(regel, tabel, rij, ',');
        lijst.push_back(std::move(regel));
    }
    Sorteer(lijst);
    return lijst;
}

Tekstblik VeldenVan(Tekstblik regel, Sorteersoort soort)
{
    if (soort == Sorteersoort::NBBgroep)
        return regel.substr(std::min(regel.size(), BreedteGroepveld + BreedteNaamveld));
    return regel.substr(regel.find(',') + 1);
}

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
