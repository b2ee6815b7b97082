// The search for double names.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// Two rows with the same name, the earlier one first.
struct Dubbel {
    int rij;
    int latere;
};

struct Dubbelen {
    std::vector<Dubbel> paren;
    bool meer = false; ///< there are more than `MeesteDubbelen`
};

/// A name that thousands bear gives millions of pairs; nobody reads a report of that length.
inline constexpr std::size_t MeesteDubbelen = 100'000;

/// Every row of the group with each later row, of any group, that bears the same name: first name,
/// particle and surname joined without a separator, compared byte by byte. The rule is one-sided on
/// purpose: a namesake of another group that comes earlier in the table is not found. In table
/// order of the first row, then of the second.
[[nodiscard]] Dubbelen ZoekDubbeleNamen(const Spelertabel& tabel, Tekstblik groepscode);

} // namespace plexoran
