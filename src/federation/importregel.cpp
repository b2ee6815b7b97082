#include "federation/importregel.h"

#include <algorithm>

namespace plexoran {

Importvelden SplitsImportregel(Tekstblik regel)
{
    Importvelden velden;
    for (Tekstblik& veld : velden) {
        const auto komma = std::min(regel.find(','), regel.size());
        veld = regel.substr(0, komma);
        regel.remove_prefix(std::min(komma + 1, regel.size()));
    }
    return velden;
}

} // namespace plexoran
