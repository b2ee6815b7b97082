// The bytes of a member file, whatever its form.
#pragma once

#include "platform/schijf.h"

namespace plexoran {

/// Reads the file. One above half a gigabyte is no member file and is refused as `Beschadigd`
/// before it fills the memory.
[[nodiscard]] Uitkomst<Tekst> LeesLedentekst(Schijf& schijf, const Pad& bestand);

} // namespace plexoran
