// Backups at their times, and putting one back.
#pragma once

#include "register/administratie.h"

class QWidget;

namespace plexoran {

/// Makes backups of what stands on the disk, before it changes. A failure holds up no work.
class Reservewacht {
  public:
    Reservewacht(Administratie& administratie, QWidget* venster)
        : administratie_(administratie), venster_(venster)
    {}

    /// Before any change: the first one after the start and the first one of a day get a backup.
    void VoorWijziging();
    /// Before a change that gets one always.
    void Maak(Tekstblik reden);
    /// Tells once that a backup failed. After the change: where that fails too, it is told alone.
    void Meld();

  private:
    Administratie& administratie_;
    QWidget* venster_;
    Tekst laatsteDag_; ///< of the last backup
    Uitkomst<void> laatste_;
    bool gemeld_ = false;
};

/// The user chooses a backup, and what of it comes back. Whether the players in memory are others
/// now, which are to be saved then; group names and pairs are in their files already.
[[nodiscard]] bool ZetReserveTerug(Administratie& administratie, Reservewacht& reserve,
                                   QWidget* venster);

/// The same after a start that found no players, or not all of them: only when there is a backup
/// that has any, and the user wants to see it.
[[nodiscard]] bool BiedReservesAan(Administratie& administratie, QWidget* venster);

} // namespace plexoran
