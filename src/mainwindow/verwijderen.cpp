#include "mainwindow/verwijderen.h"

#include <cassert>

namespace plexoran {

void VerwijderRij(Spelertabel& tabel, const Weergave& weergave, int regel)
{
    VerwijderRijen(tabel, weergave, regel, regel);
}

void VerwijderRijen(Spelertabel& tabel, const Weergave& weergave, int van, int tot)
{
    assert(van >= 1 && van <= tot && tot <= static_cast<int>(weergave.size()));
    const std::span rijen(weergave);
    tabel.Verwijder(
        rijen.subspan(static_cast<std::size_t>(van - 1), static_cast<std::size_t>(tot - van + 1)));
}

} // namespace plexoran
