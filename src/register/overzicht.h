// The club at a glance: how many players there are of each kind, and who they are.
#pragma once

#include "register/spelertabel.h"

namespace plexoran {

struct Overzichtregel {
    int diepte = 0; ///< below how many others it stands
    Tekst tekst;
    std::optional<std::size_t> aantal{}; ///< none for a heading
    std::vector<int> rijen{};            ///< who they are, rising; empty where it is not players
};

/// All players, those of each group that has any and of its subgroups, and which of their data are
/// filled. The first line counts most. Subgroups in text order; who has none comes last.
[[nodiscard]] std::vector<Overzichtregel> MaakOverzicht(const Spelertabel& tabel,
                                                        const Groepen& groepen);

} // namespace plexoran
