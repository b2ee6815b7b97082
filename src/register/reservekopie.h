// Copies of files that a save is about to replace although not everything in them was understood,
// in the folder "Reservekopie" (docs/bestanden.md), and files that must be there, made anew or put
// back at the start. A copy never replaces another.
#pragma once

#include <functional>

#include "platform/schijf/schijf.h"

namespace plexoran {

[[nodiscard]] inline Pad Kopiemap(const Pad& spelersmap)
{
    return Samen(spelersmap, "Reservekopie");
}

/// A path in that folder, which is made when needed, that nothing bears yet: `voor`, this moment
/// and `na`, with a number behind the moment where it must be told from another one.
[[nodiscard]] Uitkomst<Pad> VrijeKopie(Schijf& schijf, const Pad& spelersmap, Tekstblik voor,
                                       Tekstblik na);

/// Writes what `bestand` holds, or was to hold, to the folder "Reservekopie" in `spelersmap`;
/// returns the path of the copy.
/// Any failure is reported as `GeenReservekopie`.
[[nodiscard]] Uitkomst<Pad> MaakReservekopie(Schijf& schijf, const Pad& spelersmap,
                                             const Pad& bestand, Tekstblik inhoud);

/// Writes a small file whole. A file that stands there and that `magWeg` does not let go is copied
/// first, unless it is empty; one that already holds `nieuw` is left alone.
[[nodiscard]] Uitkomst<void> VervangMetKopie(Schijf& schijf, const Pad& spelersmap,
                                             const Pad& bestand, Tekstblik nieuw,
                                             const std::function<bool(Tekstblik)>& magWeg);

/// What the start did for a file that must be there and begin with something.
struct Aanmaak {
    Uitkomst<void> gemaakt{}; ///< `GeenReservekopie` or another error: the file is as it was
    Tekst nieuw{};            ///< what stands there when it was made
    Tekst inhoud{};           ///< what the file held; behind its blank beginning for the windows
    Pad kopie{};              ///< where the file as it was stands now; empty without a copy
};

/// Makes a missing file, and makes one anew whose first item is blank, copied aside first when it
/// holds anything. `inhoud` is the whole of the old text then.
[[nodiscard]] Aanmaak MaakBestand(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                                  Tekst nieuw);

/// Puts back what the file held. One that was changed since it was made is first copied aside.
[[nodiscard]] Uitkomst<void> ZetTerug(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                                      const Aanmaak& aanmaak);

} // namespace plexoran
