// The member files that NBBR-3 and NBBR-4 export as XML, turned into the intermediate file.
//
// Members are the elements ReportableMember in ReportableMembersList/Members. NBBR-4 tells the data
// of a member by the names of its child elements, NBBR-3 by their position among the child nodes:
// texts and comments take a position too, but only an element fills a field.
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
