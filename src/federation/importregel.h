// The import line: one federation member as the import window lists it and merges it.
#pragma once

#include <algorithm>
#include <array>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// Which optional data travel along; the fields of the others are present but empty.
struct Importkeuzes {
    bool naw = true;   ///< address fields
    bool tel = true;   ///< telephone
    bool email = true; ///< e-mail
    bool mv = true;    ///< sex
};

/// The fields of an import line, which joins them by commas without any quoting: a comma inside a
/// field splits it in two when the line is split again.
namespace Importveld {
enum : std::size_t {
    Voornaam,
    Tusv,
    Achternaam,
    Adres,
    Postc,
    Plaats,
    Telef,
    Email,
    Land,
    MV,
    NBBnr,
    Aantal,
};
} // namespace Importveld

/// A line split on its commas; fields that a short line lacks are empty, what follows the
/// eleventh is left out.
using Importvelden = std::array<Tekstblik, Importveld::Aantal>;

[[nodiscard]] inline Importvelden SplitsImportregel(Tekstblik regel)
{
    Importvelden velden;
    for (Tekstblik& veld : velden) {
        veld = regel.substr(0, regel.find(','));
        regel.remove_prefix(std::min(veld.size() + 1, regel.size()));
    }
    return velden;
}

} // namespace plexoran
