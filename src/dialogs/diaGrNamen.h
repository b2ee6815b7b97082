// Naming the 50 groups. The names are changed on OK only.
#pragma once

#include <QDialog>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstvak.h"
#include "register/groepen.h"

namespace plexoran {

class diaGrNamen : public QDialog {
    Q_OBJECT

  public:
    diaGrNamen(Groepen& groepen, QWidget* ouder);

    void accept() override;

  private:
    [[nodiscard]] QWidget* BouwKader();
    [[nodiscard]] QWidget* BouwRijen();
    void Verlaat(Tekstvak* vak);
    void MeldKommas();

    Groepen& groepen_;
    Maten maten_;
    bool kommaTeMelden_ = false;
    QList<Tekstvak*> txt1; ///< of the groups in their order
};

} // namespace plexoran
