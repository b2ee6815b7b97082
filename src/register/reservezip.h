// Backups: one zip in the folder "Reservekopie" with all that the user enters here, made before a
// change and read back before it counts (docs/bestanden.md).
#pragma once

#include "platform/bronnen/zip.h"
#include "register/kopienaam.h"
#include "register/mappen.h"

namespace plexoran {

/// The names in a backup; those in the folder of pairs stand behind "Parenmap\".
inline constexpr Tekstblik Spelersdeel = "RVDspelers.txt";
inline constexpr Tekstblik Groependeel = "RVDGroepen.txt";
inline constexpr Tekstblik Parendeel = "RVDparen.txt";
inline constexpr Tekstblik Parenmapdeel = "Parenmap\\";

/// Packs what stands on the disk now: players, group names, settings and pairs, as far as they are
/// there. The path of the backup, once it was read back and held the same. Then those that have had
/// their time go. On an error there is no new backup.
[[nodiscard]] Uitkomst<Pad> MaakReservezip(Schijf& schijf, const Mappen& mappen, Tekstblik reden);

/// What can be put back.
struct Reserve {
    Kopienaam kopie;
    std::optional<int> spelers; ///< how many; none when it cannot be read
};

/// The backups and the copies of the register, the newest first; none where the folder is missing.
[[nodiscard]] Uitkomst<std::vector<Reserve>> Reserves(Schijf& schijf, const Mappen& mappen);

/// The files in it; a copy of the register is its only one.
[[nodiscard]] Uitkomst<std::vector<Zipdeel>> LeesReserve(Schijf& schijf, const Mappen& mappen,
                                                         const Kopienaam& kopie);

} // namespace plexoran
