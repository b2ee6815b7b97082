// The player table: the register in memory, rows of 18 texts, both counted from 1.
//
// The table keeps the bytes of the file in one buffer and, per row, where its 18 cells begin, so
// that it costs little more than the file. A cell is changed where it stands when its length stays
// the same; else its row is written anew behind what is there. Bytes that nothing refers to any
// more, of old rows and of deleted ones, stay unused until the register is read again, as it is
// after every save.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "register/groepen.h"

namespace plexoran {

inline constexpr int AantalKolommen = 18;

enum class Kolom : int {
    Nr = 1, ///< row number as the file has it; renumbered by deleting and saving
    Key,    ///< register key, six digits
    Groep,  ///< group code, five characters at the most
    Voornaam,
    Tusv,
    Achternaam,
    Telef,
    Email,
    Adres,
    Postc,
    Plaats,
    Land,
    MV,
    Div1,
    Div2,
    Status,
    NBBgr, ///< federation member group in the import group, else the subgroup
    NBBnr, ///< federation number
};

/// The names of the columns, in their order.
inline constexpr std::array<Tekstblik, AantalKolommen> Kolomnamen{
    "Nr",    "Key",    "Groep", "Voornaam", "Tusv", "Achternaam", "Telef",  "Email", "Adres",
    "Postc", "Plaats", "Land",  "M/V",      "Div1", "Div2",       "Status", "NBBgr", "NBBnr"};

/// What `NBBgr` is called in any other group than the import group.
inline constexpr Tekstblik Subgroepnaam = "Subgr";

/// What is to stand in a cell.
struct Celtekst {
    Kolom kolom;
    Tekstblik tekst;
};

/// The 18 texts of a row; element 0 is column 1.
using Rijvelden = std::array<Tekst, AantalKolommen>;
using Rijblikken = std::array<Tekstblik, AantalKolommen>;

[[nodiscard]] constexpr std::size_t Index(Kolom kolom)
{
    return static_cast<std::size_t>(kolom) - 1;
}

class Spelertabel {
  public:
    /// Where the cells of a row lie in the text: cell c is `[grens[c-1], grens[c] - 1)`, so that
    /// the one byte between two cells (the comma) belongs to neither.
    using Celgrenzen = std::array<std::uint32_t, AantalKolommen + 1>;

    /// Half of what the bounds can address: the rest is for what changes add until the next read.
    static constexpr std::size_t GrootsteTekst = 0x7FFF0000;

    Spelertabel() = default;
    /// Takes a text of at most `GrootsteTekst` bytes and the bounds of its rows.
    Spelertabel(Tekst tekst, std::vector<Celgrenzen> rijen);

    [[nodiscard]] int Rijen() const { return static_cast<int>(rijen_.size()); }
    /// About as many as its file has.
    [[nodiscard]] std::size_t AantalBytes() const { return tekst_.size(); }

    /// The view holds until the table is changed.
    [[nodiscard]] Tekstblik Cel(int rij, Kolom kolom) const
    {
        const Celgrenzen& grenzen = Grenzen(rij);
        const auto plek = Index(kolom);
        const Tekstblik cel = Bytes(grenzen[plek], grenzen[plek + 1]);
        // The file may carry the group's name behind its code; only the code is the cell.
        return kolom == Kolom::Groep ? CodeUit(cel) : cel;
    }
    /// These cells as they stand in a file, joined by commas. The view holds as that of `Cel`.
    [[nodiscard]] Tekstblik Celreeks(int rij, Kolom van, Kolom tot) const
    {
        const Celgrenzen& grenzen = Grenzen(rij);
        return Bytes(grenzen[Index(van)], grenzen[Index(tot) + 1]);
    }
    /// The cells 2 to 18 as they stand in a file, joined by commas.
    void VoegCellenAan(Tekst& uit, int rij) const;
    /// The same: all that tells what a row says; its number is only its place.
    [[nodiscard]] Tekst Inhoud(int rij) const
    {
        Tekst uit;
        VoegCellenAan(uit, rij);
        return uit;
    }

    /// A comma cannot stand in a cell; the windows keep it out and, last, the table does: it
    /// becomes an underscore, a line end a space.
    void ZetRij(int rij, const Rijvelden& velden);
    void ZetCel(int rij, Kolom kolom, Tekstblik tekst);
    void ZetCellen(int rij, std::span<const Celtekst> anders);
    /// Of texts that are its own or, as `Rijblikken`, kept elsewhere, be it in the table itself.
    template <class Rij = Rijvelden> void VoegToe(const Rij& velden)
    {
        rijen_.push_back(Schrijf(velden));
    }
    /// Adds a row that is another one with some of its cells changed.
    void VoegKopieToe(int rij, std::span<const Celtekst> anders);

    /// Takes these rows out and gives every row that stays its new position as `Nr`. Rows may come
    /// in any order and more than once.
    void VerwijderRijen(std::span<const int> rijen);

    [[nodiscard]] Rijvelden Velden(int rij) const { return Cellen<Rijvelden>(rij); }
    /// As `Rijblikken`, views that hold until the table is changed.
    template <class Rij = Rijblikken> [[nodiscard]] Rij Cellen(int rij) const
    {
        Rij uit;
        for (std::size_t i = 0; i < uit.size(); ++i)
            uit[i] = Cel(rij, static_cast<Kolom>(i + 1));
        return uit;
    }

  private:
    [[nodiscard]] const Celgrenzen& Grenzen(int rij) const
    {
        assert(rij >= 1 && rij <= Rijen());
        return rijen_[static_cast<std::size_t>(rij - 1)];
    }
    [[nodiscard]] Celgrenzen& Grenzen(int rij)
    {
        return const_cast<Celgrenzen&>(std::as_const(*this).Grenzen(rij));
    }
    /// What stands from one bound of a row to another, without the separator at its end.
    [[nodiscard]] Tekstblik Bytes(std::uint32_t van, std::uint32_t tot) const
    {
        return {tekst_.data() + van, tot - van - std::size_t{1}};
    }
    /// Behind the text; the row's own bounds are not touched.
    template <class Rij> Celgrenzen Schrijf(const Rij& velden)
    {
        constexpr std::size_t gewoonlijk = 256;
        Tekst regel; // on its own first, since the texts may be views into this table
        regel.reserve(gewoonlijk);
        Celgrenzen grenzen{};
        for (std::size_t i = 0; i < velden.size(); ++i) {
            grenzen[i] = static_cast<std::uint32_t>(tekst_.size() + regel.size());
            VoegVeldToe(regel, velden[i]);
            regel += ',';
        }
        tekst_ += regel;
        grenzen[AantalKolommen] = static_cast<std::uint32_t>(tekst_.size());
        return grenzen;
    }
    /// The same of a row with some cells changed, these in column order.
    Celgrenzen SchrijfKopie(int rij, std::span<const Celtekst> anders);

    Tekst tekst_; ///< the file and what was written since
    std::vector<Celgrenzen> rijen_;
};

/// First name, particle and last name, as far as they are there.
[[nodiscard]] Tekst VolleNaam(Tekstblik voornaam, Tekstblik tusv, Tekstblik achternaam);
[[nodiscard]] Tekst VolleNaam(const Spelertabel& tabel, int rij);

/// A federation number as such numbers are compared: digits with leading zeros to at least 8, any
/// other text as it is. Outer spaces do not count for digits.
[[nodiscard]] Tekst OpgemaaktNBBnr(Tekstblik nummer);

/// Whether a surname is that of somebody's partner without a name of his own. It is one word then.
[[nodiscard]] bool IsPartner(Tekstblik achternaam);

/// Finds players by their register key: the first row with each key, as a search from the top of
/// the table finds it. Keys are read in the table, which must outlive the index; meanwhile rows may
/// be added to it, which are not found, and other cells may change.
class Sleutelwijzer {
  public:
    explicit Sleutelwijzer(const Spelertabel& tabel);

    /// 0 when no row has it.
    [[nodiscard]] int Rij(Tekstblik key) const;

  private:
    [[nodiscard]] Tekstblik Key(int rij) const { return tabel_.Cel(rij, Kolom::Key); }

    const Spelertabel& tabel_;
    std::vector<int> rijen_; ///< by key, and of equal keys in table order
};

} // namespace plexoran
