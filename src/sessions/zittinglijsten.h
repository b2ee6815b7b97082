// The two files of a session that name players, as texts: finding the floating ones, and putting a
// register key in the place of one of them.
//
// "Spelers.txt", the player list: items, one a line, each a pair:
//
//     N05 Jan Bos - 100234 CR LF
//
// "PercZit.txt", the result list: records of 7 fields, one a line; the third is the position code,
// the fourth the pair; texts stand between double quotes:
//
//     1,"x","N5","Jan Bos-100234",52.08,0,"" CR LF
//
// Rewriting keeps the text and changes it only where the name was replaced; docs/bestanden.md says
// which bytes these are.
#pragma once

#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

enum class Lijstsoort { Spelers, Percentages };

/// A floating player as a file has him; the code as it is written there, without outer spaces.
struct Vindplaats {
    Tekst code;
    Tekst naam;
    bool operator==(const Vindplaats&) const = default;
};

/// More names than this stand in no list of a session.
inline constexpr std::size_t MeesteNamen = 100'000;
inline constexpr auto TeVeelNamen = "er staan meer dan 100.000 namen in";

struct Lijstlezing {
    std::vector<Vindplaats> zwevend; ///< in file order, of a pair the first player first
    int overgeslagen = 0;            ///< lines of a result list that are no record of 7 fields

    /// The reading ended there: it is no list.
    [[nodiscard]] bool IsTeVeel() const { return zwevend.size() > MeesteNamen; }
};

[[nodiscard]] Lijstlezing LeesLijst(Tekstblik inhoud, Lijstsoort soort);

/// What is to be replaced: the name, at these places only.
struct Naamvervanging {
    std::vector<Tekst> codes;
    Tekst naam;
    Tekst key;
};

struct Herschrijving {
    Tekst inhoud;                ///< the new text; the old one where nothing was replaced
    std::vector<bool> vervangen; ///< per code; of codes of one place only the first counts

    [[nodiscard]] bool IetsVervangen() const;
};

[[nodiscard]] Herschrijving HerschrijfLijst(Tekstblik inhoud, Lijstsoort soort,
                                            const Naamvervanging& vervanging);

} // namespace plexoran
