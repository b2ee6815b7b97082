// The lists of the main window: players sorted, and names that occur twice.
#pragma once

#include <optional>
#include <vector>

#include "dialogs/sorteerkolommen.h"
#include "platform/schijf/fout.h"
#include "register/spelertabel.h"

namespace plexoran {

/// In text order. Each line is a sort prefix followed by the six fields key, first name, particle,
/// surname, column 17 and column 18, joined by ",". Kinds 1 and 2 have a comma behind their prefix
/// of digits, kind 3 has none behind its 42 characters.
using Sorteerlijst = std::vector<Tekst>;

/// Appends the six fields, joined by `scheiding`.
void VoegVeldenToe(Tekst& regel, const Spelertabel& tabel, int rij, char scheiding);

/// A key or federation number that is no number.
struct GeenGetal {
    int rij = 0;
    Tekst waarde;
};

/// The lines of one group, or of all groups where `groepscode` is none.
[[nodiscard]] tl::expected<Sorteerlijst, GeenGetal>
VulSorteerlijst(const Spelertabel& tabel, Sorteersoort soort, std::optional<Tekst> groepscode);

/// The six fields of a line, without its prefix.
[[nodiscard]] Tekstblik VeldenVan(Tekstblik regel, Sorteersoort soort);

/// Two rows with the same name, the earlier one first.
struct Dubbel {
    int rij;
    int latere;
};

struct Dubbelen {
    std::vector<Dubbel> paren;
    bool meer = false; ///< there are more than `MeesteDubbelen`
};

/// A name that thousands bear gives millions of pairs; nobody reads a report of that length.
inline constexpr std::size_t MeesteDubbelen = 100'000;

/// Every row of the group with each later row, of any group, that bears the same name: first name,
/// particle and surname joined without a separator, compared byte by byte. The rule is one-sided on
/// purpose: a namesake of another group that comes earlier in the table is not found. In table
/// order of the first row, then of the second.
[[nodiscard]] Dubbelen ZoekDubbeleNamen(const Spelertabel& tabel, Tekstblik groepscode);

} // namespace plexoran
