// Pairs as the session files name them: a position code and two players, each a register key or, as
// long as he is floating, a name.
#pragma once

#include <optional>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// Two players joined by "-". The first "-" splits them, also one inside a name.
struct Helften {
    Tekstblik eerste;
    Tekstblik tweede;
};

/// The halves, each without outer spaces; nothing for a text without "-".
[[nodiscard]] std::optional<Helften> SplitsHelften(Tekstblik spelers);

/// A half is floating when it is neither empty nor made of digits only.
[[nodiscard]] bool IsZwevend(Tekstblik helft);

/// The halves joined by " - ", in each of which the name has become the key. Nothing when neither
/// is the name.
[[nodiscard]] std::optional<Tekst> MetKey(const Helften& helften, Tekstblik naam, Tekstblik key);

/// An item of a player list: characters 1 to 3 are the position code, the rest the players.
struct Lijstpaar {
    Tekstblik code;
    Tekstblik spelers; ///< from character 4, without outer spaces
};

/// Outer spaces of the item do not count; nothing for an empty one.
[[nodiscard]] std::optional<Lijstpaar> PaarUit(Tekstblik item);

/// The same for every spelling of a place, a letter and a number: "N05" and "N5" are one. Another
/// text is a place by itself.
[[nodiscard]] Tekst Plaatssleutel(Tekstblik code);

} // namespace plexoran
