// Print tables for tests, as wide and as long as a test wants them.
#pragma once

#include "hulp/tabelmaker.h"
#include "printing/printtabel.h"

namespace plexoran {

/// `aantal` players of Gr01- with this surname; first names count from 1.
inline Spelertabel MaakPrintspelers(int aantal, const Tekst& achternaam = "Bos")
{
    std::vector<Proefspeler> spelers(static_cast<std::size_t>(aantal));
    for (std::size_t i = 0; i < spelers.size(); ++i)
        spelers[i] = {.key = std::to_string(100'001 + i),
                      .groep = "Gr01-",
                      .voornaam = "v" + std::to_string(i + 1),
                      .achternaam = achternaam};
    return MaakTabel(spelers);
}

inline Printtabel AlleenNaam(const Spelertabel& tabel)
{
    return MaakPrinttabel(
        tabel, {.groepscode = "Gr01-", .subgroepen = {}, .kolommen = {Kolom::Achternaam}});
}

} // namespace plexoran
