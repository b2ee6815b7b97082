#include "pairs/paarregel.h"

#include <algorithm>

namespace plexoran {
namespace {

constexpr Tekstblik Scheiding = "          +";

Paarspeler SpelerUit(Tekstblik deel)
{
    deel = ZonderSpaties(deel);
    return {Eerste6(deel), ZonderSpaties(deel.substr(Eerste6(deel).size()))};
}

} // namespace

Tekst Spelerregel(const Spelertabel& tabel, int rij)
{
    constexpr std::size_t ruim = 64;
    Tekst regel;
    regel.reserve(ruim);
    regel += tabel.Cel(rij, Kolom::Achternaam);
    regel += ' ';
    regel += tabel.Cel(rij, Kolom::Voornaam);
    regel += ' ';
    regel += tabel.Cel(rij, Kolom::Tusv);
    regel += "   ";
    regel += tabel.Cel(rij, Kolom::Key);
    return regel;
}

Tekstblik Spelernaam(Tekstblik spelerregel)
{
    return ZonderSpaties(spelerregel.substr(0, spelerregel.size() - Laatste6(spelerregel).size()));
}

Tekst Keuzeregel(Tekstblik spelerregel)
{
    Tekst regel(Laatste6(spelerregel));
    regel += ' ';
    regel += Spelernaam(spelerregel);
    return regel;
}

Tekst Paarregel(Tekstblik links, Tekstblik rechts)
{
    Tekst regel;
    regel.reserve(links.size() + Scheiding.size() + rechts.size());
    regel += links;
    regel += Scheiding;
    regel += rechts;
    return regel;
}

Tekst Paarspeler::AlsSpelerregel() const
{
    Tekst regel(naam);
    regel += "   ";
    regel += key;
    return regel;
}

std::size_t Plusplaats(Tekstblik paarregel)
{
    const auto scheiding = paarregel.find(Scheiding);
    return scheiding == Tekstblik::npos ? paarregel.find('+') : scheiding + Scheiding.size() - 1;
}

Paarspeler LinkerSpeler(Tekstblik paarregel)
{
    return SpelerUit(paarregel.substr(0, Plusplaats(paarregel)));
}

Paarspeler RechterSpeler(Tekstblik paarregel)
{
    const auto plus = std::min(Plusplaats(paarregel), paarregel.size() - 1);
    return SpelerUit(paarregel.substr(plus + 1));
}

} // namespace plexoran
