// Merging the members of one member file into the import group of the register.
//
// A player of the group with the same federation number is refreshed; any other member is added
// with a new key. Players of other groups are never looked at.
#pragma once

#include <bitset>
#include <set>
#include <unordered_map>
#include <vector>

#include <tl/expected.hpp>

#include "federation/ledencsv.h"
#include "register/spelerbestand.h"

namespace plexoran {

struct Samenvoegopdracht {
    Tekst importgroep;        ///< code of the group
    Tekst subgroep;           ///< name of the member file; becomes the member group in capitals
    std::vector<Tekst> lstN1; ///< import lines in the order of the file
};

/// What became of the lines of one member file.
struct Samenvoeging {
    std::size_t AantalVerververst = 0; ///< rows refreshed, as often as a line did it
    std::size_t AantalNieuw = 0;       ///< rows added
    Tekst ZonderNBBnr;                 ///< lines without a federation number, each with CR LF
    /// Lines that did neither: their number occurs in the index, but no row bears just that text,
    /// or an earlier line of the file brought it.
    std::vector<Tekst> overgeslagen;
};

enum class Samenvoegfout {
    TeGroot,      ///< what stands as numbers is too long to look for
    GeenSleutels, ///< the register keys have run out
    Gestopt,      ///< the user stopped it
};

using Samenvoeguitkomst = tl::expected<Samenvoeging, Samenvoegfout>;

/// A set of columns, by `Index`.
using Kolommen = std::bitset<AantalKolommen>;

enum class Regellot {
    ZonderNBBnr,
    Ververst,
    Nieuw,
    Overgeslagen, ///< as in `Samenvoeging::overgeslagen`
    Uitgezet,     ///< by the user: nothing is done with it, and it does not count
};

/// What is to happen to an import line.
struct Regelbesluit {
    Regellot lot = Regellot::Nieuw;
    int rij = 0; ///< that is refreshed
    /// Of those that the line fills. The others stay as they are; of a new player they are empty.
    Kolommen kolommen = Kolommen().set();
};
using Besluiten = std::vector<Regelbesluit>; ///< in the order of `lstN1`

/// Decides on every line as the register is now.
[[nodiscard]] tl::expected<Besluiten, Samenvoegfout>
BesluitSamenvoeging(const Spelertabel& tabel, const Samenvoegopdracht& opdracht,
                    const Voortgang& voortgang = {});

/// Does what was decided. On an error the register is as it was.
[[nodiscard]] Samenvoeguitkomst VoerSamenvoegingUit(Register& spelers,
                                                    const Samenvoegopdracht& opdracht,
                                                    const Besluiten& besluiten);

/// Both. On an error the register is as it was.
[[nodiscard]] Samenvoeguitkomst VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht,
                                               const Voortgang& voortgang = {});

/// The columns that an import line fills of a player that is there, rising. Of a new one also the
/// group, and the number.
inline constexpr std::array Importkolommen{
    Kolom::Voornaam, Kolom::Tusv,   Kolom::Achternaam, Kolom::Telef, Kolom::Email, Kolom::Adres,
    Kolom::Postc,    Kolom::Plaats, Kolom::Land,       Kolom::MV,    Kolom::NBBgr};

/// What a line puts in those, and its number without outer spaces: the fields of a new player are
/// trimmed too, those of a refreshed one stand as they are, so that one which was not asked for
/// empties the cell.
[[nodiscard]] Rijblikken Importcellen(Tekstblik regel, Regellot lot, Tekstblik NBBgr);

/// Which federation numbers occur in the import group, asked as a search in one text: for every
/// player "-" and the number in at least 8 digits ("-00012345-00067890"). A number is found
/// wherever it stands in that text, so a longer number hides those within its digits, and one that
/// holds a "-" can be found across two players. That is kept to the letter.
class NBBnrIndex {
  public:
    /// The numbers that will be asked for, known before the first player: of the text only
    /// stretches as long as one of them are looked up.
    explicit NBBnrIndex(const std::vector<Tekstblik>& vragen);
    NBBnrIndex(const NBBnrIndex&) = delete;
    NBBnrIndex& operator=(const NBBnrIndex&) = delete;

    /// Lengthens the text by "-" and this number.
    void Voeg(Tekstblik nummer);
    /// Whether that one of the numbers occurs in the text so far.
    [[nodiscard]] bool Bevat(std::size_t vraag) const;

    /// Longer ones are searched for one by one; a file should hold few of them.
    static constexpr std::size_t Langste = 64;

  private:
    Tekst tekst_;
    std::vector<Tekst> vragen_; ///< as the text has them
    std::unordered_map<Tekstblik, bool> gezien_;
    std::vector<const bool*> antwoorden_; ///< per number asked for; none for the longest
    std::set<std::size_t> lengten_;
    bool metStreep_ = false; ///< one of them holds a "-"
};

} // namespace plexoran
