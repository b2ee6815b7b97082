// The three sorted lists: the lines that the viewer shows, in the text order of their sort texts.
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

} // namespace plexoran
