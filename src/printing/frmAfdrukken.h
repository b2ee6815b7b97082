// The pages of a list as they will come out, one at a time, and printing them.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

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
    ~frmAfdrukken() override;
    Q_DISABLE_COPY(frmAfdrukken)

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Bouw();
    [[nodiscard]] QLayout* BouwBladkeuze(const Maten& maten);
    [[nodiscard]] QString Reden() const;
    void WaarschuwVooraf();
    void ToonBlad(int blad);
    [[nodiscard]] bool Verwerk(const QKeyEvent& toets);
    void Print();

    Administratie& administratie_;
    Letterkast kast_;
    Printlijst lijst_;

    Bladbeeld* picP0;
    QScrollBar* Bladscroll = nullptr;
    QLineEdit* txtBlad = nullptr;
    QLabel* Label1 = nullptr;
};

} // namespace plexoran
