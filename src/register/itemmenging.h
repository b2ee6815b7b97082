// Bringing together what two programs did to a small text file at the same time, item by item:
// group names, pairs, settings and the two lists of a session. The bytes of an item that nobody
// changed stay as they are.
#pragma once

#include <optional>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

struct Itemmenging {
    /// Nothing where no file is to be.
    std::optional<Tekst> inhoud;
    /// The items that the other program added, changed or removed, as they stand in its text; a
    /// removed one as it stood here. Those of `botsingen` are not among them.
    std::vector<Tekst> overgenomen;
    /// The items that both sides changed, each in its own way: ours, or the other's where we
    /// removed it. In `inhoud` stands what the other program did.
    std::vector<Tekst> botsingen;
};

/// The text of the other program in its order, with what changed from `basis`, as it was read, to
/// `ons`, as it is here; new items of ours stand at the end. A state without a text has no file.
///
/// The name of the file in `pad` says what its items are: of "RVDGroepen.txt" the names by their
/// place, of "Plexo.ini" the settings by their key, of a "Spelers.txt" the pairs by their position,
/// of a "PercZit.txt" the records by their first three fields, of "GeenDubbelen.txt" the lines, and
/// of a file in "Parenmap" the pairs. There a pair of ours with a player whom the other program
/// paired too is a collision.
///
/// Nothing for other files and for damaged pair files, unless two of the texts are the same: one of
/// these is the outcome then, to the byte.
[[nodiscard]] std::optional<Itemmenging> MengTekst(Tekstblik pad, const std::optional<Tekst>& basis,
                                                   const std::optional<Tekst>& ons,
                                                   const std::optional<Tekst>& ander);

} // namespace plexoran
