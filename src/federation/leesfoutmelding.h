// What the user is told when a member file could not be read.
#pragma once

#include <QString>

#include "federation/ledenbestand.h"

namespace plexoran {

/// The text of the box: which file, what went wrong and where, and that nothing was taken from it.
[[nodiscard]] QString Leesfouttekst(Ledenbron bron, Tekstblik naam, const Fout& fout);

} // namespace plexoran
