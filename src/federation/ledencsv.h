// The member CSV, in which all sources end: exported as such, or the intermediate file that the
// other sources write (docs/bestanden.md).
#pragma once

#include <optional>

#include "federation/importregel.h"
#include "platform/schijf/fout.h"
#include "platform/schijf/schijf.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

/// The fields in use of a member in the intermediate file.
namespace Lidveld {
enum : std::size_t {
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
    Aantal = 16, ///< with those that stay empty
};
} // namespace Lidveld

using Lidrij = std::array<Tekst, Lidveld::Aantal>;

/// "M" for "MAN" and "MALE", "V" for "VROUW" and "FEMALE", in capitals or not; empty for any other
/// text, also for one with blanks around it.
[[nodiscard]] Tekst GeslachtUit(Tekstblik tekst);

/// Without the leading characters with a code above 240, which byte order marks leave; a number of
/// blanks only is handed back as it is. The mark of UTF-8 begins with 239 and stays.
[[nodiscard]] Tekstblik ZonderVoorloop(Tekstblik nummer);

/// Every line end replaced by a blank, a CR LF by one.
[[nodiscard]] Tekst ZonderRegeleinden(Tekstblik tekst);

/// Adds the line of a member to the text of the intermediate file. A line end inside a field
/// becomes a blank, a CR LF one: lines are members.
void VoegLidToe(Tekst& regels, const Lidrij& lid);

/// Replaces the intermediate file by the lines and the CR LF that closes them, or leaves it as it
/// was. The next thing that happens to it is reading; what the power's loss leaves of it matters to
/// nobody.
[[nodiscard]] Uitkomst<void> SchrijfTussenregels(Schijf& schijf, const Pad& pad, Tekst regels);

/// What was read of a member file.
struct Ledenlezing {
    std::vector<Tekst> lstN1;      ///< import lines in the order of the file
    std::vector<Tekst> metIsTeken; ///< lines left out because of a "="
    int teKorteRegel = 0; ///< line, from 1, at which reading ended for want of columns; 0: none
    bool inUtf8 = false;  ///< an exported CSV that was saved as UTF-8, and read byte by byte
    std::size_t vervangenTekens = 0; ///< characters that the code page lacks
    std::optional<Fout> nietGeladen; ///< an NBBR-4 file that could not be loaded has no members
    /// Database: the number of the member file that was read, when it is not that of the entry.
    std::optional<int> anderNummer;
};

/// Fails, without the name of a file, for a text that holds a NUL: that is no text.
[[nodiscard]] Uitkomst<Ledenlezing> LeesLedencsv(Tekstblik tekst, const Importkeuzes& keuzes,
                                                 const Voortgang& voortgang = {});

} // namespace plexoran
