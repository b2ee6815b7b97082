// Moving players to another group.
#pragma once

#include <QDialog>

#include "dialogs/spelerkeus.h"
#include "register/administratie.h"

namespace plexoran {

class diaVerplaats : public QDialog {
    Q_OBJECT

  public:
    diaVerplaats(Administratie& administratie, QWidget* ouder);

    /// The close box and Escape cancel too.
    [[nodiscard]] bool IngaveGeannuleerd() const { return result() != Accepted; }
    void accept() override;

  private:
    Administratie& administratie_;
    Spelerkeus* keus_;
    QComboBox* cmbGrnamen;
};

} // namespace plexoran
