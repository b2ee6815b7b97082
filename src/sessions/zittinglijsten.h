// The two files of a session that name players, "Spelers.txt" and "PercZit.txt", as texts: finding
// the floating ones, and putting a register key in the place of one of them. What they look like,
// and which bytes a rewriting keeps, stands in docs/bestanden.md.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// Two players joined by "-". The first "-" splits them, also one inside a name.
struct Helften {
    Tekstblik eerste;
    Tekstblik tweede;
    bool operator==(const Helften&) const = default;
};

/// The halves, each without outer spaces; nothing for a text without "-".
[[nodiscard]] std::optional<Helften> SplitsHelften(Tekstblik spelers);

/// An item of a player list: characters 1 to 3 are the position code, the rest the players.
struct Lijstpaar {
    Tekstblik code;
    Tekstblik spelers; ///< from character 4, without outer spaces
    bool operator==(const Lijstpaar&) const = default;
};

/// Outer spaces of the item do not count; nothing for an empty one.
[[nodiscard]] std::optional<Lijstpaar> PaarUit(Tekstblik item);

/// The same for every spelling of a position, a letter and a number: "N05" and "N5" are one.
/// Another text is a position by itself.
[[nodiscard]] Tekst Tafelsleutel(Tekstblik code);

enum class Lijstsoort { Spelers, Percentages };

/// A half of a pair as a file has it, a floating player as a rule; the code as it is written there,
/// without outer spaces.
struct Tafelnaam {
    Tekst code;
    Tekst naam;
    bool operator==(const Tafelnaam&) const = default;
};

/// More names than this stand in no list of a session.
inline constexpr std::size_t MeesteNamen = 100'000;
inline constexpr auto TeVeelNamen = "er staan meer dan 100.000 namen in";

/// Which halves a reading lists.
using Helftkeus = std::function<bool(Tekstblik helft)>;
/// A name: neither empty nor made of digits only.
[[nodiscard]] bool IsZwevend(Tekstblik helft);

struct Lijstlezing {
    /// In file order, of a pair the first player first.
    std::vector<Tafelnaam> zwevend;
    int overgeslagen = 0; ///< lines of a result list that are no record of 7 fields

    /// The reading ended there: it is no list.
    [[nodiscard]] bool IsTeVeel() const { return zwevend.size() > MeesteNamen; }
};

/// The floating players, or the halves that `keus` wants.
[[nodiscard]] Lijstlezing LeesLijst(Tekstblik inhoud, Lijstsoort soort,
                                    const Helftkeus& keus = IsZwevend);

/// What is to be replaced: the name, at these positions only.
struct Naamvervanging {
    std::vector<Tekst> codes;
    Tekst naam;
    Tekst key;
};

struct Herschrijving {
    Tekst inhoud;              ///< the new text; the old one where nothing was replaced
    std::set<Tekst> vervangen; ///< of the codes; of codes of one position only the first counts
};

[[nodiscard]] Herschrijving HerschrijfLijst(Tekstblik inhoud, Lijstsoort soort,
                                            const Naamvervanging& vervanging);

} // namespace plexoran
