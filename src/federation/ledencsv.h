// The text of a member CSV, in which all sources end, as import lines.
//
// Layout: one member per line, columns apart by ";" without quoting: federation number, sex, first
// name, initials, particle, surname, street address, postcode, town, telephone, e-mail, a further
// address column; what follows is not used. A line that holds "=" anywhere is a heading.
#pragma once

#include "federation/ledenbestand.h"

namespace plexoran {

/// Fails, without the name of a file, for a text that holds a NUL: that is no text.
[[nodiscard]] Uitkomst<Ledenlezing> LeesLedencsv(Tekstblik tekst, const Importkeuzes& keuzes,
                                                 const Voortgang& voortgang = {});

} // namespace plexoran
