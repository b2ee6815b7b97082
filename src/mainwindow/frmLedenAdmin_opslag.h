// The players to and from their file, with what the user is asked and told.
#pragma once

#include <QStringList>

#include <functional>
#include <vector>

#include "dialogs/toevoegen.h"
#include "mainwindow/frmLedenAdmin_reserve.h"

class QWidget;

namespace plexoran {

/// When a player file is read.
enum class Leesmoment { Start, NaOpslag, Opnieuw };

/// First the register's own warning, then what the reading left out or missed and what that means
/// for the data, in a box each. `tabel` is what was read.
void MeldLezing(QWidget* ouder, const Spelertabel& tabel, const Leesverslag& verslag,
                Leesmoment moment);

/// `RegisterBehouden`: a table without players is not saved, and the last ones are back.
enum class Opslag { Gelukt, RegisterBehouden, Mislukt };

/// A change that could not be saved stays in the table and is tried again with the next save and at
/// the end of the program; until then the window is marked as modified.
class Spelersopslag {
  public:
    /// `toon` shows the table anew behind a box.
    Spelersopslag(Administratie& administratie, QWidget* venster, std::function<void()> toon);

    /// Save and reload.
    Opslag SlaOp();
    /// A link file that names players whom the next save must bring into the register.
    void Bewaak(Koppelverslag verslag) { verslagen_.push_back(std::move(verslag)); }
    [[nodiscard]] Reservewacht& Reserve() { return reserve_; }
    /// Takes over what another program made of the player file, when nothing is unsaved here and
    /// all of it can be read; whether there was anything new, nothing where it cannot be read.
    [[nodiscard]] std::optional<bool> NeemAndereOver();
    /// Whether the program may end, asked where that would lose changes.
    [[nodiscard]] bool MagEindigen();

  private:
    void LeesOpnieuw(Leesmoment moment);
    void SchrijfVerslagen();
    void ZetVerslagenTerug();
    [[nodiscard]] Uitkomst<void> MengMetSchijf();

    Administratie& administratie_;
    QWidget* venster_;
    std::function<void()> toon_;
    Reservewacht reserve_;
    std::vector<Koppelverslag> verslagen_; ///< whose new players are not known to be saved
    QStringList nieuws_;                   ///< to tell when the save is done
};

} // namespace plexoran
