// Where the intermediate file of an import comes.
#pragma once

#include "platform/schijf/schijf.h"

namespace plexoran {

/// The program's own folder or, where no file can be made in it, as with a program that the system
/// installed, `anders`.
[[nodiscard]] Pad Tussenmap(Schijf& schijf, const Pad& programmamap, const Pad& anders);

} // namespace plexoran
