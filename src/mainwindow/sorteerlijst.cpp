#include "mainwindow/sorteerlijst.h"

#include <algorithm>
#include <array>

#include "platform/getal.h"
#include "platform/tekstorde.h"

namespace plexoran {
namespace {

constexpr std::size_t BreedteKey = 6;
constexpr std::size_t BreedteNBBnr = 8;
constexpr std::size_t BreedteGroepveld = 12;
constexpr std::size_t BreedteNaamveld = 30;

constexpr std::array velden{Kolom::Key,        Kolom::Voornaam, Kolom::Tusv,
                            Kolom::Achternaam, Kolom::NBBgr,    Kolom::NBBnr};

void VoegVasteBreedteToe(Tekst& regel, Tekst veld, std::size_t breedte)
{
    veld.resize(breedte, ' ');
    regel += veld;
}

/// The prefix, with its comma where it has one. Nothing when the value is no number.
std::optional<Tekst> Voorvoegsel(const Spelertabel& tabel, int rij, Sorteersoort soort)
{
    if (soort == Sorteersoort::NBBgroep) {
        Tekst regel;
        VoegVasteBreedteToe(
            regel, Tekst(tabel.Cel(rij, Kolom::Groep)).append(tabel.Cel(rij, Kolom::NBBgr)),
            BreedteGroepveld);
        VoegVasteBreedteToe(regel, Tekst(tabel.Cel(rij, Kolom::Achternaam)), BreedteNaamveld);
        return regel;
    }
    const bool opKey = soort == Sorteersoort::Key;
    auto cijfers = AlsGetal(tabel.Cel(rij, opKey ? Kolom::Key : Kolom::NBBnr),
                            opKey ? BreedteKey : BreedteNBBnr);
    if (cijfers)
        *cijfers += ',';
    return cijfers;
}

} // namespace

tl::expected<Sorteerlijst, GeenGetal> VulSorteerlijst(const Spelertabel& tabel, Sorteersoort soort,
                                                      std::optional<Tekst> groepscode)
{
    Sorteerlijst lijst;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (groepscode && tabel.Cel(rij, Kolom::Groep) != *groepscode)
            continue;
        if (soort == Sorteersoort::NBBnr && IsBlanco(tabel.Cel(rij, Kolom::NBBnr)))
            continue;
        auto regel = Voorvoegsel(tabel, rij, soort);
        if (!regel) {
            const Kolom kolom = soort == Sorteersoort::Key ? Kolom::Key : Kolom::NBBnr;
            return tl::unexpected(GeenGetal{rij, Tekst(tabel.Cel(rij, kolom))});
        }
        for (const Kolom veld : velden) {
            *regel += tabel.Cel(rij, veld);
            if (veld != velden.back())
                *regel += ',';
        }
        lijst.push_back(std::move(*regel));
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

} // namespace plexoran
