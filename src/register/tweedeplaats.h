// The second place of the newest backup, such as a stick: chosen per user and computer, and kept in
// "reservekopie.ini" (docs/bestanden.md). It may be away at any time.
#pragma once

#include "register/mappen.h"

namespace plexoran {

struct Tweedeplaats {
    Pad map;      ///< empty: none was chosen
    Tekst gezien; ///< the last day on which the newest backup was there, such as "2026-11-22"
};

/// None where `ini` is missing, cannot be read, or is not known (empty).
[[nodiscard]] Tweedeplaats LeesTweedeplaats(Schijf& schijf, const Pad& ini);
/// Makes the folder of the file when needed.
[[nodiscard]] Uitkomst<void> BewaarTweedeplaats(Schijf& schijf, const Pad& ini,
                                                const Tweedeplaats& plaats);

/// Brings the newest backup to the second place, read back there, unless it is there already. When
/// the place is away or full nothing happens, but that the days are counted on. Nothing is removed
/// there: it may hold what the user or another club put there.
void WerkTweedeplaatsBij(Schijf& schijf, const Mappen& mappen, const Pad& ini);

/// How many days ago the newest backup was there last, when that is two weeks or more; else, and
/// without a second place, 0.
[[nodiscard]] int DagenWeg(const Tweedeplaats& plaats, Tekstblik vandaag);

} // namespace plexoran
