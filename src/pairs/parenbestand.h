// The files with pairs (docs/bestanden.md). In all but those for a spreadsheet a pair is a token:
// two keys.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "register/mappen.h"
#include "register/reservekopie.h"
#include "register/spelertabel.h"

namespace plexoran {

using Paartekens = std::vector<Tekst>;

/// The pair file of a group-subgroup; nothing when its name holds a character that a file system
/// refuses, so that no such file can exist.
[[nodiscard]] std::optional<Pad> Parenbestand(const Mappen& mappen, Tekstblik keuze);

/// The tokens of a pair file, in their order; as views into its text.
[[nodiscard]] std::vector<Tekstblik> Paarblikken(Tekstblik inhoud);
[[nodiscard]] Paartekens PaartekensUit(Tekstblik inhoud);
/// Whether the text holds one line of tokens and nothing else, so that writing it anew loses
/// nothing.
[[nodiscard]] bool IsParenbestand(Tekstblik inhoud);

/// The text of the pair file; nothing when there is none, which is no error.
[[nodiscard]] Uitkomst<std::optional<Tekst>> LeesParenbestand(Schijf& schijf, const Mappen& mappen,
                                                              Tekstblik keuze);

/// The content of a pair file, from the lines of the pairs list. Nothing when a line has no "+".
[[nodiscard]] std::optional<Tekst> ParenTekst(std::span<const Tekst> regels);

/// What came of `LeesParenbestand`.
using Parenlezing = Uitkomst<std::optional<Tekst>>;

/// Writes the pair file whole. Without lines nothing is written: the file keeps its pairs. What
/// another program did to it since it was read as `gelezen` is brought together with the lines. A
/// file that holds anything else than pairs, or that could not be read, is first copied aside.
/// `Beschadigd` when a line has no "+", `Geweigerd` when no file can have that name.
[[nodiscard]] Bewaring BewaarParen(Schijf& schijf, const Mappen& mappen, Tekstblik keuze,
                                   std::span<const Tekst> regels, const Parenlezing& gelezen);

/// Removes the pair file. One that is not what was read is first copied aside: where to.
[[nodiscard]] Uitkomst<Pad> VerwijderParen(Schijf& schijf, const Mappen& mappen, Tekstblik keuze,
                                           const Parenlezing& gelezen);

/// The pairs in "RVDparen.txt" of which both players are in this group and subgroup, the latter in
/// capitals or not. A missing file gives no pairs.
[[nodiscard]] Uitkomst<Paartekens> ImporteerRVDparen(Schijf& schijf, const Mappen& mappen,
                                                     Tekstblik groepscode, Tekstblik subgroep,
                                                     const Spelertabel& tabel);

/// The two names of each pair, as the files for a spreadsheet have them.
[[nodiscard]] std::vector<Tekst> Paarnamen(const Paartekens& paren, const Spelertabel& tabel);

enum class ParenCSV { EenKolom = 1, TweeKolommen = 2 };

/// The content. A line without a "+" is left out, and its number with it. Players are found by the
/// number that their key is, the first row wins; one who is not found is written as the key.
[[nodiscard]] Tekst ParenCSVTekst(std::span<const Tekst> regels, const Spelertabel& tabel,
                                  ParenCSV soort);

[[nodiscard]] Tekst ParenCSVNaam(ParenCSV soort);
[[nodiscard]] Pad ParenCSVMap(const Mappen& mappen);

/// Writes the file whole, in a folder that is made when it is missing. An error when the suite has
/// no root folder.
[[nodiscard]] Uitkomst<void> SchrijfParenCSV(Schijf& schijf, const Mappen& mappen,
                                             std::span<const Tekst> regels,
                                             const Spelertabel& tabel, ParenCSV soort);

} // namespace plexoran
