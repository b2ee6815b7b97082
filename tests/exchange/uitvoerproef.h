// Players to export, cell by cell.
#pragma once

#include <gtest/gtest.h>

#include "exchange/uitvoer.h"

namespace plexoran {

using Cellen = std::vector<std::pair<Kolom, Tekst>>;

inline Spelertabel MaakSpelers(const std::vector<Cellen>& spelers)
{
    Spelertabel tabel;
    for (const Cellen& cellen : spelers) {
        Rijvelden velden;
        for (const auto& [kolom, tekst] : cellen)
            velden[Index(kolom)] = tekst;
        tabel.VoegToe(velden);
    }
    return tabel;
}

/// All of these, in table order.
struct Uitvoerproef {
    Spelertabel tabel;
    Groepen groepen{};

    [[nodiscard]] Uitvoer Van(std::vector<Kolom> kolommen) const
    {
        Uitvoer uit{
            .tabel = tabel, .groepen = groepen, .rijen = {}, .kolommen = std::move(kolommen)};
        for (int rij = 1; rij <= tabel.Rijen(); ++rij)
            uit.rijen.push_back(rij);
        return uit;
    }
};

/// Stops at its second question.
inline Voortgang StoptMeteen()
{
    return [keer = 0](std::size_t, std::size_t) mutable { return ++keer < 2; };
}

} // namespace plexoran
