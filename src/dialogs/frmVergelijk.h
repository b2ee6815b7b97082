// Players in two states of the register side by side: per player, the fields that differ. Of each
// player one of the two can be chosen, or neither.
#pragma once

#include <QDialog>

#include "platform/scherm/boom.h"
#include "register/mengen.h"

namespace plexoran {

/// What the window says of the states that it compares.
struct Vergelijking {
    QString titel;
    QString uitleg;
    QString links; ///< the header above the left state
    QString rechts;
};

/// Adds a line to a player for each field that differs: from `kolom` on the name that the grid has
/// for it, and what stands in it at the left and at the right.
void VoegVeldenToe(QTreeWidgetItem& speler, const Verschil& verschil, Tekstblik importgroep,
                   int kolom = 0);

class frmVergelijk : public QDialog {
    Q_OBJECT

  public:
    frmVergelijk(const Vergelijking& teksten, const std::vector<Verschil>& verschillen,
                 Tekstblik importgroep, QWidget* ouder);

    /// The keys of the players of whom the left state was chosen.
    [[nodiscard]] std::set<Tekst> Links() const { return Aangevinkt(*lstVerschillen, KolomLinks); }
    [[nodiscard]] std::set<Tekst> Rechts() const
    {
        return Aangevinkt(*lstVerschillen, KolomRechts);
    }

  private:
    enum { KolomWie, KolomLinks, KolomRechts };

    static void LaatLos(QTreeWidgetItem* speler, int kolom);

    QTreeWidget* lstVerschillen;
};

} // namespace plexoran
