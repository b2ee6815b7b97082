// Naming the 50 groups. The names are changed on OK only.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <array>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstvak.h"
#include "register/groepen.h"

namespace plexoran {

class diaGrNamen : public QDialog {
    Q_OBJECT

  public:
    diaGrNamen(Groepen& groepen, QWidget* ouder);

    [[nodiscard]] bool Geannuleerd() const { return geannuleerd_; }
    void accept() override;

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void wheelEvent(QWheelEvent* gebeurtenis) override;

  private:
    void Bouw();
    void BouwKader();
    void BouwRijen();
    void PlaatsDelen();
    void PlaatsRijen(int breed);
    void BrengInBeeld(const QWidget* vak);
    void Verlaat(Tekstvak* vak);
    void MeldKommas();

    template <class T> using PerGroep = std::array<T*, AantalGroepen + 1>; // element 0 is unused

    Groepen& groepen_;
    Maten maten_;
    bool geannuleerd_ = true; ///< until OK
    bool kommaTeMelden_ = false;

    QFrame* Frame2 = nullptr;
    QWidget* P0;
    QWidget* P1;
    QScrollBar* VScroll1;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdAnnuleren = nullptr;
    PerGroep<QLabel> lbl1{};
    PerGroep<Tekstvak> txt1{};
};

} // namespace plexoran
