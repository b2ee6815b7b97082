// Putting players back as they were in an earlier state of the register.
#pragma once

#include "register/mengen.h"

namespace plexoran {

/// A player who is not the same in two states, by his row in each; 0 where he is not.
struct Rijverschil {
    Tekst key; ///< empty for all rows together that no key tells apart
    int nu = 0;
    int toen = 0;
};

/// By key, as in `Meng`: those of now in their order, then those who are gone in theirs, then the
/// rows without a key of their own as one, when these differ.
[[nodiscard]] std::vector<Rijverschil> Verschillen(const Spelertabel& nu, const Spelertabel& toen);

/// The register of now with these players, by the keys of their differences, as they were then: who
/// came since goes, who changed is as he was, who went comes back behind the one he stood behind,
/// or at the end. Keys keep their value, and the highest one issued is never lowered.
[[nodiscard]] Menging Herstel(const Stand& nu, const Stand& toen, const std::set<Tekst>& keys);

} // namespace plexoran
