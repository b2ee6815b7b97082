// Copies of files that a save is about to replace although not everything in them was understood.
//
// They stand in the folder "Reservekopie" in the players folder, named after the file with date and
// time: "RVDspelers 2026-03-01 142355.txt". A copy never replaces another.
#pragma once

#include <functional>

#include "platform/schijf.h"

namespace plexoran {

[[nodiscard]] inline Pad Kopiemap(const Pad& spelersmap)
{
    return Samen(spelersmap, "Reservekopie");
}

/// Copies `bestand` to the folder "Reservekopie" in `spelersmap`; returns the path of the copy.
/// Any failure is reported as `GeenReservekopie`.
[[nodiscard]] Uitkomst<Pad> MaakReservekopie(Schijf& schijf, const Pad& spelersmap,
                                             const Pad& bestand);

/// Writes a small file whole. A file that stands there and that `magWeg` does not let go is copied
/// first, unless it is empty; one that already holds `nieuw` is left alone.
[[nodiscard]] Uitkomst<void> VervangMetKopie(Schijf& schijf, const Pad& spelersmap,
                                             const Pad& bestand, Tekstblik nieuw,
                                             const std::function<bool(Tekstblik)>& magWeg);

} // namespace plexoran
