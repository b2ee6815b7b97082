// Moving players to another group.
#pragma once

#include <QComboBox>
#include <QDialog>

#include "dialogs/spelerkeus.h"
#include "register/administratie.h"

namespace plexoran {

class diaVerplaats : public QDialog {
    Q_OBJECT

  public:
    diaVerplaats(Administratie& administratie, QWidget* ouder);

    /// The close box and Escape cancel too.
    [[nodiscard]] bool IngaveGeannuleerd() const { return ingaveGeannuleerd_; }

  private:
    void Bouw();
    void Verplaats();

    Administratie& administratie_;
    bool ingaveGeannuleerd_ = true;

    Spelerkeus* keus_;
    QComboBox* cmbGrnamen;
    QPushButton* cmdOK;
    QPushButton* cmdAnnuleren;
};

} // namespace plexoran
