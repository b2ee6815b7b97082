// One page of a printed list, drawn the same way on screen, printer and PDF.
#pragma once

#include "printing/bladindeling.h"

namespace plexoran {

/// The grid of the list.
inline constexpr Kleur Lijnkleur{100, 100, 100};

/// All that the pages show.
struct Printlijst {
    Printtabel tabel;
    Bladindeling indeling;
    Tekst groeptekst;  ///< code and name of the group
    Tekst subgroepkop; ///< empty: none was chosen
    Tekst datum;       ///< at the foot
    Tekst programma;   ///< name of the suite's main application, at the foot
};

/// Draws page `blad`, from 1: the block at the head, the titles of the columns, the rows and the
/// foot. The surface is the whole sheet.
void TekenBlad(Tekenvlak& vlak, const Printlijst& lijst, int blad);

} // namespace plexoran
