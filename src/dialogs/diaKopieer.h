// Copying players to another group, as new rows with new keys.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>

#include "dialogs/spelerkeus.h"
#include "register/administratie.h"

class QGroupBox;

namespace plexoran {

class diaKopieer : public QDialog {
    Q_OBJECT

  public:
    diaKopieer(Administratie& administratie, QWidget* ouder);

    /// The close box and Escape cancel too.
    [[nodiscard]] bool IngaveGeannuleerd() const { return ingaveGeannuleerd_; }

  private:
    void MaakDelen(QGroupBox* kader);
    void Bouw();
    void Verbind();
    void VulKeuslijst();
    void KiesBron();
    void KiesWaarde();
    void Kopieer();

    Administratie& administratie_;
    bool ingaveGeannuleerd_ = true;

    QComboBox* cmbUitGroep = nullptr;
    QComboBox* cmbNBBgr = nullptr;
    QComboBox* cmbGrnamen = nullptr;
    Spelerkeus* keus_ = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QCheckBox* chkNBBgrOok = nullptr;
    QCheckBox* chkNBBnrOok = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdAnnuleren = nullptr;
};

} // namespace plexoran
