// Copying players to another group, as new rows with new keys.
#pragma once

#include <QCheckBox>
#include <QDialog>

#include "dialogs/spelerkeus.h"
#include "register/administratie.h"

class QGroupBox;

namespace plexoran {

class diaKopieer : public QDialog {
    Q_OBJECT

  public:
    diaKopieer(Administratie& administratie, QWidget* ouder);

    /// The close box and Escape cancel too.
    [[nodiscard]] bool IngaveGeannuleerd() const { return result() != Accepted; }
    /// When the question is answered with OK and there are keys enough.
    void accept() override;

  private:
    void BouwKader(QGroupBox* kader);
    void KiesBron();
    void KiesWaarde();
    [[nodiscard]] Tekst Broncode() const { return Groepscode(cmbUitGroep->currentIndex() + 1); }

    Administratie& administratie_;
    Spelerkeus* keus_;
    QComboBox* cmbUitGroep;
    QComboBox* cmbNBBgr;
    QComboBox* cmbGrnamen;
    QLabel* Label3;
    QCheckBox* chkNBBgrOok;
    QCheckBox* chkNBBnrOok;
};

} // namespace plexoran
