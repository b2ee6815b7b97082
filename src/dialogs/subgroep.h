// Deleting a whole subgroup.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

/// The subgroups of a group, trimmed, an empty one as "geen", in order of first appearance.
[[nodiscard]] std::vector<Tekst> SubgroepenVan(const Spelertabel& tabel, Tekstblik groepscode);

/// The players of the group whose column 17 is exactly the subgroup, or empty where the subgroup is
/// "geen" in any case. A column 17 with outer spaces is listed without them and so never matches.
[[nodiscard]] std::vector<int> RijenVanSubgroep(const Spelertabel& tabel, Tekstblik groepscode,
                                                Tekstblik subgroep);

/// Deletes those players; returns how many.
int VerwijderSubgroep(Spelertabel& tabel, Tekstblik groepscode, Tekstblik subgroep);

} // namespace plexoran
