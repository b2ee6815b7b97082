// The member database of a scoring program, read through a child process
// (platform/bronnen/access.h).
#pragma once

#include <vector>

#include "platform/bronnen/access.h"

namespace plexoran {

/// One entry per member file, in the order of the database: its name, a blank and its number in
/// three digits.
[[nodiscard]] Uitkomst<std::vector<Tekst>> HaalLedenbestanden(const Pad& database,
                                                              const Voortgang& voortgang = {},
                                                              const Accessgrenzen& grenzen = {});

/// Reads the members of the member file with number `id` and writes them to `tussenbestand`.
/// Returns how many characters the code page lacks.
[[nodiscard]] Uitkomst<std::size_t> HaalLeden(Schijf& schijf, const Pad& database, int id,
                                              const Pad& tussenbestand,
                                              const Voortgang& voortgang = {},
                                              const Accessgrenzen& grenzen = {});

} // namespace plexoran
