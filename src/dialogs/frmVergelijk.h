// Players in two states of the register side by side: per player, the fields that differ. Of each
// player one of the two can be chosen, or neither.
#pragma once

#include <QDialog>
#include <QTreeWidget>

#include "register/mengen.h"

namespace plexoran {

/// What the window says of the states that it compares.
struct Vergelijking {
    QString titel;
    QString uitleg;
    QString links; ///< the header above the left state
    QString rechts;
};

/// Adds a line to a player for each field that differs: its name and what stands in it at the left
/// and at the right, in the columns 0 to 2.
void VoegVeldenToe(QTreeWidgetItem& speler, const std::optional<Rijvelden>& links,
                   const std::optional<Rijvelden>& rechts);

class frmVergelijk : public QDialog {
    Q_OBJECT

  public:
    frmVergelijk(const Vergelijking& teksten, const std::vector<Verschil>& verschillen,
                 QWidget* ouder);

    /// The keys of the players of whom the left state was chosen.
    [[nodiscard]] std::set<Tekst> Links() const { return Gekozen(KolomLinks); }
    [[nodiscard]] std::set<Tekst> Rechts() const { return Gekozen(KolomRechts); }

  private:
    enum { KolomWie, KolomLinks, KolomRechts };

    void VoegToe(const Verschil& verschil);
    void KiesAlle(int kolom);
    static void LaatLos(QTreeWidgetItem* speler, int kolom);
    [[nodiscard]] std::set<Tekst> Gekozen(int kolom) const;

    std::vector<Tekst> keys_;
    QTreeWidget* lstVerschillen;
};

} // namespace plexoran
