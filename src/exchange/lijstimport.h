// What the import of a list is going to do, and doing it. A player whom the list names is
// refreshed, field by field as far as the list has a text there: an empty cell never empties a
// field. Anybody else is added to the target group with a new key.
//
// By key players of all groups are recognised, since a key is one player's; by federation number,
// and by name with post code, those of the target group alone, since the same person may stand in
// other groups too.
#pragma once

#include "exchange/lijstvelden.h"
#include "federation/regelvoorbeeld.h"

namespace plexoran {

struct Lijstopdracht {
    Tekst groep{};    ///< code of the target group
    Tekst subgroep{}; ///< of new players for whom the list has none
    Lijstkeuze keuze{};
    bool kop = true; ///< the first row is no player
};

/// A text of a sheet that would be taken for a formula carries an apostrophe in front.
[[nodiscard]] Tekstblik ZonderWacht(Tekstblik cel);

struct Lijsttelling {
    std::size_t nieuw = 0;
    std::size_t gewijzigd = 0;
};

class Lijstvoorbeeld : public Regelvoorbeeld {
  public:
    /// Nothing when the user stopped it. The table and the list must outlive the preview, and the
    /// table must not change meanwhile.
    [[nodiscard]] static std::optional<Lijstvoorbeeld> Maak(const Spelertabel& tabel,
                                                            const Spelerslijst& lijst,
                                                            Lijstopdracht opdracht,
                                                            const Voortgang& voortgang = {});

    [[nodiscard]] int Bestandsregel(std::size_t regel) const override
    {
        return lijst_.Regel(regel + Eerste());
    }
    [[nodiscard]] Tekst Naam(std::size_t regel) const override
    {
        return VolleNaam(wens_, static_cast<int>(regel) + 1);
    }
    [[nodiscard]] Tekstblik Nummer(std::size_t regel) const override
    {
        return wens_.Cel(static_cast<int>(regel) + 1, Kolom::NBBnr);
    }
    /// Does what is on. Nothing when the keys have run out; the register is as it was then.
    [[nodiscard]] std::optional<Lijsttelling> VoerUit(Register& spelers) const;

  private:
    Lijstvoorbeeld(const Spelertabel& tabel, const Spelerslijst& lijst, Lijstopdracht opdracht);

    [[nodiscard]] Rijblikken Cellen(std::size_t regel) const override
    {
        return wens_.Cellen(static_cast<int>(regel) + 1);
    }
    [[nodiscard]] std::size_t Eerste() const { return opdracht_.kop ? 1 : 0; }
    /// By what a player is recognised; empty when he cannot be.
    [[nodiscard]] Tekst Merk(const Rijblikken& cellen) const;
    struct Boek;
    void NeemSpeler(Boek& boek, int rij) const;
    void NeemRegel(Boek& boek, std::size_t regel);
    struct Rij;
    [[nodiscard]] Rij LeesRij(std::size_t regel) const;
    void Vergelijk(std::size_t regel, Rij& rij, int bekende);
    [[nodiscard]] std::optional<Weigering> Bezwaar(std::size_t regel, const Rij& rij) const;

    const Spelerslijst& lijst_;
    Lijstopdracht opdracht_;
    Spelertabel wens_; ///< a row per line: what its player becomes
};

} // namespace plexoran
