// The pairs as a file for a spreadsheet, in one column or in two (docs/bestanden.md).
#pragma once

#include <span>

#include "register/mappen.h"
#include "register/spelertabel.h"

namespace plexoran {

enum class ParenCSV { EenKolom = 1, TweeKolommen = 2 };

/// The content. A line without a "+" is left out, and its number with it. Players are found by the
/// number that their key is, the first row wins; one who is not found is written as the key.
[[nodiscard]] Tekst ParenCSVTekst(std::span<const Tekst> regels, const Spelertabel& tabel,
                                  ParenCSV soort);

[[nodiscard]] Tekst ParenCSVNaam(ParenCSV soort);
/// The folder, which is made when it is missing. An error when the suite has no root folder.
[[nodiscard]] Pad ParenCSVMap(const Mappen& mappen);

/// Writes the file whole.
[[nodiscard]] Uitkomst<void> SchrijfParenCSV(Schijf& schijf, const Mappen& mappen,
                                             std::span<const Tekst> regels,
                                             const Spelertabel& tabel, ParenCSV soort);

} // namespace plexoran
