// The player file, "RVDspelers.txt" (docs/bestanden.md): the register that all programs of the
// suite share.
#pragma once

#include <optional>

#include "register/mappen.h"
#include "register/reservekopie.h"
#include "register/spelertabel.h"

namespace plexoran {

/// `HKEY` is never below it in the file, so that the first key issued is 100001.
inline constexpr std::int32_t Sleutelbasis = 100000;

/// What the reading of a text left out or missed.
struct Leesbevinding {
    std::optional<Fout> fout; ///< the reading ended here; the lines before it are in the table
    int velden = 0;           ///< on that line; 0 for a key line with a number that does not fit
    std::vector<int> zonderAchternaam;  ///< line numbers that were left out
    bool zonderSleutelregel = false;    ///< there are players, but no key line
    int sleutelZonderGetal = 0;         ///< line of the last key line, when it names no number
    std::int32_t hoogsteWeggelaten = 0; ///< the highest key on the lines that were left out
};

/// The outcome of reading a text. The lines are first counted and then filled in: a line that
/// cannot be counted (fewer than 6 fields, or an impossible key) leaves no table at all, one that
/// cannot be filled in (fewer than 18 fields) ends the table before it.
struct Spelerlezing : Leesbevinding {
    std::optional<Spelertabel> tabel;
    std::optional<std::int32_t> HKEY; ///< of the last key line read; none without one
    bool verliest = false;            ///< writing the table would lose something of the text
};

[[nodiscard]] Spelerlezing SpelersUit(Tekst inhoud);

/// The register in memory and what is known of its file.
struct Register {
    Spelertabel tabel;
    std::int32_t HKEY = 0;           ///< highest key ever issued
    std::optional<Tekst> gelezen;    ///< the file as it was when it was read or written last
    bool kopieNodig = false;         ///< the next save would lose something that the file holds
    std::optional<Tekst> gekopieerd; ///< the state of the file of which a copy was made
};

/// What a read found, for the user.
struct Leesverslag : Leesbevinding {
    bool tabelVervangen = false; ///< the table is the file's now

    /// The disk did not give the file at all; the register is as it was.
    [[nodiscard]] bool NietGeopend() const { return fout && fout->soort != Foutsoort::Beschadigd; }
    [[nodiscard]] bool AlleSpelersGelezen() const { return !fout && zonderAchternaam.empty(); }
    [[nodiscard]] bool AllesGelezen() const
    {
        return AlleSpelersGelezen() && !zonderSleutelregel && sleutelZonderGetal == 0;
    }
};

enum class Overschrijven { AlleenEigen, OokGewijzigd };

/// Makes sure that the players folder and the player file exist. A new file has a key line. A file
/// whose first item is blank is made anew, copied aside first when it holds anything.
[[nodiscard]] Aanmaak MaakSpelerbestand(Schijf& schijf, const Mappen& mappen, Register& spelers);

/// Replaces the table by what the file holds. A file of which no line could be taken leaves the
/// table as it was; without a key line `HKEY` keeps its value.
Leesverslag LeesSpelers(Schijf& schijf, const Mappen& mappen, Register& spelers);

/// The text of the player file for this register. Rows without a key are left out, and the rows
/// after them keep their positions as numbers.
[[nodiscard]] Tekst SpelersTekst(const Register& spelers);

/// Writes the file whole; a table without rows is not written: the file keeps its contents.
/// A file that someone else changed since it was read is only replaced with `OokGewijzigd`, after a
/// copy; so is a file of which something was not taken into the table.
/// On any error but `NietVast` the file is as it was; the table is always whole.
[[nodiscard]] Uitkomst<void> SchrijfSpelers(Schijf& schijf, const Mappen& mappen, Register& spelers,
                                            Overschrijven overschrijven);

/// Appends a player of the group with which `groeptekst` begins: a new key, columns 4 to 18 of
/// `velden` without their outer spaces. False when the keys have run out; nothing is changed then.
[[nodiscard]] bool VoegSpelerToe(Register& spelers, Tekstblik groeptekst, const Rijvelden& velden);

/// The next register key, which counts as issued; none when the keys have run out.
[[nodiscard]] std::optional<std::int32_t> NieuweSleutel(Register& spelers);

/// Where the highest key stands, for a message: the player file and its last key line.
[[nodiscard]] Fout RegelVanHKEY(Schijf& schijf, const Mappen& mappen);

/// The highest key in the rows; 0 when none reaches the base, below which no key is issued.
[[nodiscard]] std::int32_t HoogsteSleutel(const Spelertabel& tabel);

/// Whether that many keys can still be issued.
[[nodiscard]] bool ZijnErSleutels(const Register& spelers, std::size_t aantal);

/// Stores columns 4 to 18 of `velden` as they are, and the code with which the group begins.
void WijzigSpeler(Register& spelers, int rij, const Rijvelden& velden);

} // namespace plexoran
