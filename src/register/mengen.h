// Bringing together what two programs did to the register at the same time.
//
// Three states of it are compared: as it was read here, as it is here now, and as the other program
// left it on the disk. A row is the same player in all three when its key is a number that no other
// row of that state has. Rows without such a key are told apart by what stands in them only.
#pragma once

#include <deque>
#include <set>
#include <unordered_map>

#include "register/spelerbestand.h"

namespace plexoran {

/// A register as `Meng` compares it. The table must outlive the comparison.
struct Stand {
    const Spelertabel& tabel;
    std::int32_t HKEY = 0;
};

/// A player as he stands in two states of the register; nothing where he is not in it.
struct Verschil {
    Tekst key;
    std::optional<Rijvelden> links;
    std::optional<Rijvelden> rechts;
};

/// The rows with a key in three states of the register, 0 where there is none.
struct Drierij {
    int basis = 0;
    int ons = 0;
    int ander = 0;
    bool onbruikbaar = false; ///< the key tells no players apart
};
/// The keys are views into the tables.
using Rijindex = std::unordered_map<Tekstblik, Drierij>;
/// Adds a state; whether each of its keys tells a player apart.
bool Indexeer(Rijindex& opKey, const Spelertabel& tabel, int Drierij::*kant);

/// The full name and the key that tells players of one name apart.
[[nodiscard]] Tekst Aanduiding(const Verschil& verschil);

/// A new player of ours whose key the other program had issued too.
struct Hernummering {
    Tekst was;
    Tekst nu;
};

struct Menging {
    Spelertabel tabel;
    std::int32_t HKEY = 0;
    /// Players of whom both sides changed the same field, each in its own way, or whom one side
    /// deleted and the other changed: ours at the left.
    std::vector<Verschil> botsingen;
    /// The full names of the players whom the other program added, changed or deleted, in the order
    /// of its file, the deleted ones last. Those of `botsingen` are not among them.
    std::vector<Tekst> overgenomen;
    std::deque<Hernummering> hernummerd;
};

/// The rows of the other program in their order, with our changes. A new row of ours stands behind
/// the one that it followed here, and at the end when it stood at the end. Where both collide the
/// table gets what the other program made of the player, or what we did when his key is in
/// `voorOns`. Two sides that did the same do not collide. Who is new on both sides in the import
/// group, by his federation number, is so once: as the other program added him.
[[nodiscard]] Menging Meng(const Stand& basis, const Stand& ons, const Stand& ander,
                           const std::set<Tekst>& voorOns = {}, Tekstblik importgroep = {});

/// The player file as another program left it, to be brought together with the register here.
class AnderRegister {
  public:
    [[nodiscard]] static Uitkomst<AnderRegister> Lees(Schijf& schijf, const Mappen& mappen);

    /// Whether the file is another one than was read here.
    [[nodiscard]] bool IsAnders(const Register& ons) const { return ons.gelezen != inhoud_; }
    /// Whether all of it could be read. A register that has lost all its players is not taken as
    /// it stands either.
    [[nodiscard]] bool IsHeel(const Register& ons) const;
    [[nodiscard]] Menging MengMet(const Register& ons, const std::set<Tekst>& voorOns = {}) const;
    /// From now on this is the file that was read, and the table is what came of both.
    void NeemOver(Register& ons, Menging menging) const;

  private:
    Tekst inhoud_;
    Spelerlezing lezing_;
    Tekst importgroep_;
};

} // namespace plexoran
