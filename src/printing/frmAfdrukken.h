// Pages as they will come out, one at a time, and printing them: of a list, or what else is drawn.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include <memory>

#include "platform/scherm/maten.h"
#include "printing/bladbeeld.h"
#include "register/administratie.h"

namespace plexoran {

/// What the set-up hands over.
struct Afdruk {
    Printtabel tabel;
    Tekst groeptekst; ///< the group as the main window shows it
    Tekst subgroepkop;
    float schaal = 1;
};

class frmAfdrukken : public QDialog {
    Q_OBJECT

  public:
    /// May warn, in boxes of `ouder`, of columns and pages that do not come out.
    frmAfdrukken(Administratie& administratie, Afdruk afdruk, QWidget* ouder);
    /// Of other pages.
    frmAfdrukken(Administratie& administratie, Bladreeks reeks, QWidget* ouder);
    ~frmAfdrukken() override;
    Q_DISABLE_COPY(frmAfdrukken)

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    frmAfdrukken(Administratie& administratie, const std::shared_ptr<const Printlijst>& lijst,
                 QWidget* ouder);
    void Bouw();
    [[nodiscard]] QLayout* BouwBladkeuze(const Maten& maten);
    void ToonBlad(int blad);
    [[nodiscard]] bool Verwerk(const QKeyEvent& toets);
    void Print();

    Administratie& administratie_;
    Letterkast kast_;
    Bladreeks reeks_;

    Bladbeeld* picP0;
    QScrollBar* Bladscroll = nullptr;
    QLineEdit* txtBlad = nullptr;
    QLabel* Label1 = nullptr;
};

} // namespace plexoran
