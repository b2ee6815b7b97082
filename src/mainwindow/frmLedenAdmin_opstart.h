// The start-up, with what the user is asked and told.
#pragma once

#include "register/administratie.h"

class QWidget;

namespace plexoran {

/// Whether the user's own choice of an administration counts: neither the command line names one
/// nor a file beside the program, which is to be mended when it cannot be read.
[[nodiscard]] bool MagKiezen(const Administratie& administratie);

/// Both scoring programs there: the user is asked which, at the start and whenever the import
/// window opens. Without an answer the captions stay those of the one before, whose database is
/// still the one read.
void KiesRekenprogramma(Administratie& administratie, QWidget* venster);

/// Reads where the folders are; whether the program can go on.
[[nodiscard]] bool LeesMappen(Administratie& administratie, QWidget* venster, const Pad& mappenIni);

/// All that the program works on is made, mended and read, in a fixed order, before the main window
/// shows it; for who only looks it is read as it stands. Whether the register is to be saved at
/// once: the highest key was raised, or players were put back.
[[nodiscard]] bool LeesBijStart(Administratie& administratie, QWidget* venster, bool alleenKijken);

} // namespace plexoran
