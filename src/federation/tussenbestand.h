// The member row and the intermediate file in which all sources but the exported CSV end.
//
// Layout of the file: per member one line of 16 fields, each followed by ";", closed by CR LF; the
// block of lines is closed by one more CR LF. Nothing is quoted: a ";" inside a text splits it.
#pragma once

#include <array>
#include <vector>

#include "platform/schijf/schijf.h"

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

/// "M" for "MAN" and "MALE", "V" for "VROUW" and "FEMALE", in capitals or not; empty for any other
/// text, also for one with blanks around it.
[[nodiscard]] Tekst GeslachtUit(Tekstblik tekst);

/// Without the leading characters with a code above 240, which byte order marks leave; a number of
/// blanks only is handed back as it is. The mark of UTF-8 begins with 239 and stays.
[[nodiscard]] Tekstblik ZonderVoorloop(Tekstblik nummer);

/// Every line end replaced by a blank, a CR LF by one.
[[nodiscard]] Tekst ZonderRegeleinden(Tekstblik tekst);

/// Adds the line of a member to the text of the file. A line end inside a field becomes a blank, a
/// CR LF one: lines are members.
void VoegLidToe(Tekst& regels, const Lidrij& lid);

/// Replaces the intermediate file by the lines and the CR LF that closes them, or leaves it as it
/// was. The next thing that happens to it is reading; what the power's loss leaves of it matters to
/// nobody.
[[nodiscard]] Uitkomst<void> SchrijfTussenregels(Schijf& schijf, const Pad& pad, Tekst regels);

/// The same for members that stand in memory already.
[[nodiscard]] Uitkomst<void> SchrijfTussenbestand(Schijf& schijf, const Pad& pad,
                                                  const std::vector<Lidrij>& leden);

} // namespace plexoran
