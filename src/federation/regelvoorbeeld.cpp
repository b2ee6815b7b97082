#include "federation/regelvoorbeeld.h"

#include <algorithm>

namespace plexoran {

static constexpr int EersteKolom = static_cast<int>(Kolom::Voornaam);

Tekst Naamsleutel(Tekst naam)
{
    std::erase(naam, ' ');
    return Gewichten(naam);
}

bool IsAndereNaam(const Rijblikken& oud, const Rijblikken& nieuw)
{
    return std::ranges::all_of(std::array{Kolom::Voornaam, Kolom::Achternaam}, [&](Kolom kolom) {
        const Tekst was = Naamsleutel(Tekst(oud[Index(kolom)]));
        return was.empty() || was != Naamsleutel(Tekst(nieuw[Index(kolom)]));
    });
}

Regelvoorbeeld::Regelvoorbeeld(const Spelertabel& tabel, Tekst groep, Besluiten besluiten)
    : tabel_(tabel), groep_(std::move(groep)), besluiten_(std::move(besluiten)),
      regels_(besluiten_.size()), eerdere_(besluiten_.size())
{}

void Regelvoorbeeld::Tel()
{
    for (const Voorbeeldregel& regel : regels_)
        ++aantallen_[static_cast<std::size_t>(regel.soort)];
}

std::size_t Regelvoorbeeld::AantalTwijfelachtig() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(regels_, &Voorbeeldregel::IsTwijfelachtig));
}

/// What stands in a cell after what this line and those before it do to its player.
Tekstblik Regelvoorbeeld::Na(std::optional<std::size_t> regel, int rij, Kolom kolom) const
{
    while (regel && !(IsAan(*regel) && IsAan(*regel, kolom)))
        regel = eerdere_[*regel];
    if (regel)
        return Cellen(*regel)[Index(kolom)];
    return rij > 0 ? tabel_.Cel(rij, kolom) : Tekstblik();
}

std::vector<Veldwijziging> Regelvoorbeeld::Velden(std::size_t regel) const
{
    std::vector<Veldwijziging> uit;
    for (int i = EersteKolom; i <= AantalKolommen; ++i) {
        const auto kolom = static_cast<Kolom>(i);
        if (regels_[regel].anders[Index(kolom)])
            uit.push_back({kolom, Na(eerdere_[regel], regels_[regel].rij, kolom),
                           Cellen(regel)[Index(kolom)]});
    }
    return uit;
}

bool Regelvoorbeeld::IsAan(std::size_t regel) const
{
    return MagUit(regel) && besluiten_[regel].lot != Regellot::Uitgezet;
}

bool Regelvoorbeeld::IsAan(std::size_t regel, Kolom kolom) const
{
    return besluiten_[regel].kolommen[Index(kolom)];
}

void Regelvoorbeeld::Zet(std::size_t regel, bool aan)
{
    if (MagUit(regel))
        besluiten_[regel].lot = !aan                      ? Regellot::Uitgezet
                                : regels_[regel].rij == 0 ? Regellot::Nieuw
                                                          : Regellot::Ververst;
}

void Regelvoorbeeld::Zet(std::size_t regel, Kolom kolom, bool aan)
{
    if (regels_[regel].anders[Index(kolom)] && MagUit(regel, kolom))
        besluiten_[regel].kolommen[Index(kolom)] = aan;
}

std::size_t Regelvoorbeeld::RegelsUit() const
{
    return static_cast<std::size_t>(
        std::ranges::count(besluiten_, Regellot::Uitgezet, &Regelbesluit::lot));
}

std::size_t Regelvoorbeeld::VeldenUit() const
{
    std::size_t aantal = 0;
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (IsAan(i))
            aantal += regels_[i].anders.count() - besluiten_[i].kolommen.count();
    }
    return aantal;
}

/// Of two lines for one player the second can undo the first.
bool Regelvoorbeeld::VerandertIets() const
{
    std::vector<bool> isLaatste(besluiten_.size(), true);
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (eerdere_[i])
            isLaatste[*eerdere_[i]] = false;
    }
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (besluiten_[i].lot == Regellot::Nieuw)
            return true;
        const int rij = regels_[i].rij;
        for (int k = EersteKolom; rij > 0 && isLaatste[i] && k <= AantalKolommen; ++k) {
            const auto kolom = static_cast<Kolom>(k);
            if (Na(i, rij, kolom) != tabel_.Cel(rij, kolom))
                return true;
        }
    }
    return false;
}

} // namespace plexoran
