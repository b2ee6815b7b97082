// Players for other programs, as the bytes of a file (docs/bestanden.md).
#pragma once

#include <optional>
#include <vector>

#include "platform/schijf/fout.h"
#include "register/spelertabel.h"

namespace plexoran {

struct Uitvoer {
    const Spelertabel& tabel;    ///< borrowed, and not to change meanwhile
    const Groepen& groepen;      ///< borrowed
    std::vector<int> rijen;      ///< in this order
    std::vector<Kolom> kolommen; ///< in this order
};

/// None when the user wanted to stop.
using Uitvoerbytes = Uitkomst<std::optional<Tekst>>;

/// Asked before each row: false once the user wants to stop.
[[nodiscard]] inline bool MagDoor(const Voortgang& voortgang, std::size_t rij, std::size_t rijen)
{
    constexpr std::size_t stap = 1000;
    return !voortgang || rij % stap != 0 || voortgang(rij, rijen);
}

/// Whether a sheet would calculate the text. Apostrophes in front of it do not count: one more put
/// there as a guard can always be taken off again.
[[nodiscard]] bool LijktFormule(Tekstblik tekst);

enum class Tekenset { Utf8, Windows1252 };
/// A text that a sheet would take for a formula gets an apostrophe in front.
[[nodiscard]] Uitvoerbytes MaakCsv(const Uitvoer& uitvoer, Tekenset tekenset,
                                   const Voortgang& voortgang = {});

/// A sheet of texts. A text that is too long for a sheet is `Beschadigd`, and `regel` its row.
[[nodiscard]] Uitvoerbytes MaakXlsx(const Uitvoer& uitvoer, const Voortgang& voortgang = {});

enum class Kaartversie { Drie, Vier };
/// A vCard for each player. The columns say what it may tell besides his name; their order does
/// not count.
[[nodiscard]] Uitvoerbytes MaakVcards(const Uitvoer& uitvoer, Kaartversie versie,
                                      const Voortgang& voortgang = {});

} // namespace plexoran
