// The sources of members that are turned into the intermediate file: the exports of NBBR-3 and
// NBBR-4 as XML (docs/bestanden.md), and the database of a scoring program, which is read through a
// child process (platform/bronnen/access.h).
#pragma once

#include <optional>
#include <vector>

#include "platform/bronnen/access.h"

namespace plexoran {

struct Ledenomzetting {
    std::size_t vervangenTekens = 0; ///< characters that the code page lacks
    std::optional<Fout> nietGeladen; ///< NBBR-4 only: why there are no members
};

/// A file that cannot be read, or is no XML, is an error and leaves `tussenbestand` as it was.
[[nodiscard]] Uitkomst<Ledenomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                                         const Pad& tussenbestand,
                                                         const Voortgang& voortgang = {});

/// A file that cannot be read, or is no XML, gives an intermediate file without members.
[[nodiscard]] Uitkomst<Ledenomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                                         const Pad& tussenbestand,
                                                         const Voortgang& voortgang = {});

/// One entry per member file, in the order of the database: its name, a blank and its number in
/// three digits.
[[nodiscard]] Uitkomst<std::vector<Tekst>> HaalLedenbestanden(const Pad& database,
                                                              const Voortgang& voortgang = {},
                                                              const Accessgrenzen& grenzen = {});

/// Reads the members of the member file with number `id` and writes them to `tussenbestand`.
[[nodiscard]] Uitkomst<Ledenomzetting> HaalLeden(Schijf& schijf, const Pad& database, int id,
                                                 const Pad& tussenbestand,
                                                 const Voortgang& voortgang = {},
                                                 const Accessgrenzen& grenzen = {});

} // namespace plexoran
