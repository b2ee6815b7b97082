// Moving players to another group.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include "platform/scherm/meerkeuzelijst.h"
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
    void VulKeuslijst();
    void Verplaats();

    Administratie& administratie_;
    std::vector<int> rijen_; ///< of the lines in the list
    bool ingaveGeannuleerd_ = true;

    Meerkeuzelijst* lstKeus;
    QComboBox* cmbGrnamen;
    QPushButton* cmdSelAll;
    QPushButton* cmdSelNone;
    QPushButton* cmdOK;
    QPushButton* cmdAnnuleren;
};

} // namespace plexoran
