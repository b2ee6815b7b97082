// The member row and the intermediate file in which all sources but the exported CSV end.
//
// Layout of the file: per member one line of 16 fields, each followed by ";", closed by CR LF; the
// block of lines is closed by one more CR LF. Nothing is quoted: a ";" inside a text splits it.
#pragma once

#include <array>
#include <vector>

#include "platform/schijf.h"

namespace plexoran {

inline constexpr std::size_t AantalLidvelden = 16;

/// The 16 texts of a member; element 0 is field 1.
using Lidrij = std::array<Tekst, AantalLidvelden>;

/// The places of the fields in use.
enum class Lidveld : std::size_t {
    NBBnr,
    Geslacht,
    Voornaam,
    Voorletters,
    Tussenvoegsel,
    Achternaam,
    Adres,
    Postcode,
    Plaats,
    Telefoon,
    Email,
};

/// "M", "V" or empty.
[[nodiscard]] Tekst GeslachtUit(Tekstblik tekst);

/// Takes out leading characters with a code above 240 when the number, trimmed, is not empty.
[[nodiscard]] Tekstblik ZonderVoorloop(Tekstblik nummer);

/// Replaces the intermediate file.
[[nodiscard]] Uitkomst<void> SchrijfTussenbestand(Schijf& schijf, const Pad& pad,
                                                  const std::vector<Lidrij>& leden);

} // namespace plexoran
