// Members as text: the import line, one as the import merges it, and before it
// the member CSV, in which all sources end: exported as such, or the intermediate file that the
// other sources write (docs/bestanden.md).
#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "platform/schijf/schijf.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

/// Which optional data travel along; the fields of the others are present but empty.
struct Importkeuzes {
    bool naw = true;   ///< address fields
    bool tel = true;   ///< telephone
    bool email = true; ///< e-mail
    bool mv = true;    ///< sex
};

/// The fields of an import line, which joins them by commas without any quoting: a comma inside a
/// field splits it in two when the line is split again.
namespace Importveld {
enum : std::size_t {
    Voornaam,
    Tusv,
    Achternaam,
    Adres,
    Postc,
    Plaats,
    Telef,
    Email,
    Land,
    MV,
    NBBnr,
    Aantal,
};
} // namespace Importveld

/// A line split on its commas; fields that a short line lacks are empty, what follows the
/// eleventh is left out.
using Importvelden = std::array<Tekstblik, Importveld::Aantal>;

[[nodiscard]] inline Importvelden SplitsImportregel(Tekstblik regel)
{
    Importvelden velden;
    for (Tekstblik& veld : velden) {
        veld = regel.substr(0, regel.find(','));
        regel.remove_prefix(std::min(veld.size() + 1, regel.size()));
    }
    return velden;
}

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

/// "M", "V" or empty.
[[nodiscard]] Tekst GeslachtUit(Tekstblik tekst);

/// Without the leading characters with a code above 240, which byte order marks leave.
[[nodiscard]] Tekstblik ZonderVoorloop(Tekstblik nummer);

/// Every line end replaced by a blank.
[[nodiscard]] Tekst ZonderRegeleinden(Tekstblik tekst);

/// Adds the line of a member to the text of the intermediate file. Lines are members: a line end
/// inside a field becomes a blank.
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
