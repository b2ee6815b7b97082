// What the user is told when a member file could not be read.
#pragma once

#include <QString>

#include "federation/ledenbestand.h"

namespace plexoran {

/// What the members were read for, and so what a failure means.
enum class Leesdoel { Import, Overzicht };

/// The text of the box: which file, what went wrong and where, and that nothing was taken from it.
[[nodiscard]] QString Leesfouttekst(Ledenbron bron, Tekstblik naam, const Fout& fout,
                                    Leesdoel doel);

/// The same in a few words, for a line among others: what went wrong and where.
[[nodiscard]] QString Leesfoutreden(const Fout& fout);

} // namespace plexoran
