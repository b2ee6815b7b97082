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

/// What came of saving a small file that another program may have changed meanwhile.
struct Bewaring {
    Uitkomst<void> gelukt{};
    Tekst inhoud{};                   ///< what the file holds then
    std::vector<Tekst> overgenomen{}; ///< items that are the other program's doing
    std::vector<Tekst> botsingen{};   ///< items that both changed: the other's stand in the file
    std::string onze{};               ///< and the copy that holds ours; for the eye only
    std::string andere{};             ///< the copy of what could not be brought together with ours
};

/// Saves `ons`, which came of `basis`. Another text in the file is the other program's work and is
/// brought together with ours; where that cannot be, and where `isHeel` says that the file holds
/// more than a save keeps, it is copied first. Without `basis` what stands there is not known, and
/// is copied and replaced. An empty file is none, and one that holds the outcome is left alone.
[[nodiscard]] Bewaring BewaarSamen(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                                   const std::optional<Tekst>& basis, const Tekst& ons,
                                   const std::function<bool(Tekstblik)>& isHeel);

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

/// Puts back what the file held. One that was changed since it was made is brought together with
/// it, or first copied aside.
[[nodiscard]] Uitkomst<void> ZetTerug(Schijf& schijf, const Pad& spelersmap, const Pad& bestand,
                                      const Aanmaak& aanmaak);

} // namespace plexoran
