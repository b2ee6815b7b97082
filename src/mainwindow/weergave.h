// Which rows of the player table the grid shows, and which commands belong to the shown group.
#pragma once

#include <vector>

#include "register/mappen.h"
#include "register/spelertabel.h"

namespace plexoran {

/// The rows of the players in a group, in table order: element i is the row on grid line i + 1.
using Weergave = std::vector<int>;

[[nodiscard]] Weergave BouwWeergave(const Spelertabel& tabel, Tekstblik groepscode);

/// What the option words do to a button when a group is shown.
enum class Zichtbaarheid { Ongemoeid, Tonen, Verbergen };

/// What depends on the shown group.
struct Groepsbeeld {
    bool importgroep = false;
    Zichtbaarheid cmdHaalNBBnamen = Zichtbaarheid::Ongemoeid;
    Zichtbaarheid cmdToonGatenlijst = Zichtbaarheid::Ongemoeid;
    /// The column names as this group shows them.
    std::array<Tekstblik, AantalKolommen> kolomnamen = Kolomnamen;
};

[[nodiscard]] Groepsbeeld BeeldVan(const Mappen& mappen, Tekstblik groepscode);

} // namespace plexoran
