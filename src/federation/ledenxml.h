// The member files that NBBR-3 and NBBR-4 export as XML (docs/bestanden.md), turned into the
// intermediate file.
#pragma once

#include <optional>

#include "platform/schijf/fout.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

struct Xmlomzetting {
    std::size_t vervangenTekens = 0; ///< characters that the code page lacks
    std::optional<Fout> nietGeladen; ///< NBBR-4 only: why there are no members
};

/// A file that cannot be read, or is no XML, is an error and leaves `tussenbestand` as it was.
[[nodiscard]] Uitkomst<Xmlomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                                       const Pad& tussenbestand,
                                                       const Voortgang& voortgang = {});

/// A file that cannot be read, or is no XML, gives an intermediate file without members.
[[nodiscard]] Uitkomst<Xmlomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                                       const Pad& tussenbestand,
                                                       const Voortgang& voortgang = {});

} // namespace plexoran
