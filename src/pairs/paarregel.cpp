#include "pairs/paarregel.h"

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
    const auto cel = [&](Kolom kolom) { return tabel.Cel(rij, kolom); };
    Tekst regel(cel(Kolom::Achternaam));
    regel.append(" ").append(cel(Kolom::Voornaam)).append(" ").append(cel(Kolom::Tusv));
    return regel.append("   ").append(cel(Kolom::Key));
}

Tekstblik Spelernaam(Tekstblik spelerregel)
{
    return ZonderSpaties(spelerregel.substr(0, spelerregel.size() - Laatste6(spelerregel).size()));
}

Tekst Keuzeregel(Tekstblik spelerregel)
{
    return Tekst(Laatste6(spelerregel)).append(" ").append(Spelernaam(spelerregel));
}

Tekst Paarregel(Tekstblik links, Tekstblik rechts)
{
    return Tekst(links).append(Scheiding).append(rechts);
}

Tekst Paarspeler::AlsSpelerregel() const
{
    return Tekst(naam).append("   ").append(key);
}

std::size_t Plusplek(Tekstblik paarregel)
{
    const auto scheiding = paarregel.find(Scheiding);
    return scheiding == Tekstblik::npos ? paarregel.find('+') : scheiding + Scheiding.size() - 1;
}

Paarspeler LinkerSpeler(Tekstblik paarregel)
{
    return SpelerUit(paarregel.substr(0, Plusplek(paarregel)));
}

Paarspeler RechterSpeler(Tekstblik paarregel)
{
    return SpelerUit(paarregel.substr(Plusplek(paarregel) + 1));
}

} // namespace plexoran
