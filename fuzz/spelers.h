// What the targets share that have texts with players as their input.
#pragma once

#include <map>

#include "register/spelerbestand.h"

namespace plexoran {

inline Register RegisterVan(const std::optional<Tekst>& tekst)
{
    Spelerlezing lezing = SpelersUit(tekst.value_or(Tekst()));
    Register uit;
    uit.tabel = lezing.tabel.value_or(Spelertabel());
    uit.HKEY = lezing.HKEY.value_or(Sleutelbasis);
    return uit;
}

/// How often each row stands in a table, its number apart.
inline std::map<Tekst, int> Tel(const Spelertabel& tabel)
{
    std::map<Tekst, int> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        ++uit[tabel.Inhoud(rij)];
    return uit;
}

} // namespace plexoran
