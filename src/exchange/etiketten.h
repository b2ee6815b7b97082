// What stands on labels: per address those who live there, or each player by himself, sorted; and
// the badges of players.
#pragma once

#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

enum class Etiketsoort { PerAdres, PerSpeler, Naamkaart };

struct Etiketopdracht {
    Etiketsoort soort = Etiketsoort::PerAdres;
    bool alsFamilie = false; ///< "Fam. Bos-de Vries" for those of one address
    bool opPostcode = true;  ///< else by surname
    Tekst onderschrift{};    ///< small on every badge; may be empty
};

/// Of a badge first name, surname and small line; else name, street, "post code  town" and the
/// country, what is blank left out.
using Etiket = std::vector<Tekst>;

struct Etiketreeks {
    std::vector<Etiket> etiketten; ///< as they come on the sheets
    std::vector<int> zonderAdres;  ///< rows of players who get none; badges need no address
};

/// Players share an address when street, number and post code are the same, without a post code the
/// town; capitals, accents and signs do not count. Who stands there twice is named once, and of a
/// family each part of a surname: "Bos" and "Bos-de Vries" are "Fam. Bos-de Vries". A player has an
/// address when there is a street, and a post code or a town.
[[nodiscard]] Etiketreeks MaakEtiketten(const Spelertabel& tabel, const std::vector<int>& rijen,
                                        const Etiketopdracht& opdracht);

} // namespace plexoran
