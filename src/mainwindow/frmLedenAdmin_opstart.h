// The start-up, with what the user is asked and told.
#pragma once

#include "register/administratie.h"

class QWidget;

namespace plexoran {

/// Both scoring programs there: the user is asked which, at the start and whenever the import
/// window opens. Without an answer the captions stay those of the one before, whose database is
/// still the one read.
void KiesRekenprogramma(Administratie& administratie, QWidget* venster);

/// `TeBewaren`: the highest key was raised or players were put back, which is to be saved at once.
enum class Startafloop { Mislukt, Gelezen, TeBewaren };

/// All that the program works on is made, mended and read, in a fixed order, before the main window
/// shows it.
[[nodiscard]] Startafloop LeesBijStart(Administratie& administratie, QWidget* venster,
                                       const Pad& mappenIni);

} // namespace plexoran
