// Finding players by what is typed of them: words in any order, each anywhere in what is known of a
// player. Case and accents do not count, nor what stands between the digits of a telephone number
// or of a post code.
#pragma once

#include <utility>
#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

struct Zoekwoord {
    Tekst kaal;    ///< in plain capitals
    Tekst cijfers; ///< those of a word that could be part of a telephone number
};
using Zoekwoorden = std::vector<Zoekwoord>;

/// The words of a text; a comma, which no cell can hold, parts them too.
[[nodiscard]] Zoekwoorden ZoekwoordenUit(Tekstblik getypt);

/// The rows in which every word is found: first those whose surname begins with one of them, then
/// those whose first name does, then the rest, each in table order. None without words.
[[nodiscard]] std::vector<int> ZoekSpelers(const Spelertabel& tabel, const Zoekwoorden& woorden);

/// A player as one line, and where in it stands what answers: begin and length.
struct Zoekregel {
    Tekst tekst;
    std::vector<std::pair<std::size_t, std::size_t>> merken;
};

/// His name and group, then what else is known of him. With `kort`, for where the line is cut off:
/// what answers stands right behind the group, and of long texts only the neighbourhood of that.
[[nodiscard]] Zoekregel MaakZoekregel(const Spelertabel& tabel, const Groepen& groepen, int rij,
                                      const Zoekwoorden& woorden, bool kort);

} // namespace plexoran
