// What becomes of the chosen players, before it does: moved or copied to a group, or one field of
// all set to a text; who changes, from what to what.
#pragma once

#include <QDialog>

#include <array>

#include "dialogs/groepswerk.h"
#include "platform/scherm/regellijst.h"
#include "platform/scherm/tekstvak.h"
#include "register/administratie.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace plexoran {

enum class Gekozenwerk { Verplaatsen, Kopieren, Wijzigen };

class frmVeld : public QDialog {
    Q_OBJECT

  public:
    /// `kolomnamen` are those of the grid; a column without a name cannot be chosen.
    frmVeld(const Administratie& administratie, std::vector<int> rijen,
            const std::array<Tekstblik, AantalKolommen>& kolomnamen, Gekozenwerk werk,
            QWidget* ouder);

    /// Does it; false when there are not keys enough for the copies.
    [[nodiscard]] bool VoerUit(Register& spelers) const;
    /// What is to be done, for the history.
    [[nodiscard]] Tekst Wat() const;

  private:
    void KiesVeld();
    void Toon();
    [[nodiscard]] Tekst Regel(int plaats) const;

    const Administratie& administratie_;
    std::vector<int> rijen_;
    Gekozenwerk werk_;
    Veldopdracht opdracht_{}; ///< of a copy the group, and all players

    QComboBox* cmbVeld;
    QComboBox* cmbGroep;
    Tekstvak* txtWaarde;
    QCheckBox* chkLeeg;
    QLabel* lblAantal;
    QLabel* lblUitleg;
    Regellijst* lstVeld;
    QPushButton* cmdOK;
};

} // namespace plexoran
