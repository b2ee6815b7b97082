// The choice between two installed scoring programs.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

#include "register/administratie.h"

namespace plexoran {

class diaRekProgkeus : public QDialog {
    Q_OBJECT

  public:
    explicit diaRekProgkeus(QWidget* ouder);

    /// `Geen` until a choice was made; a choice stands however the window is closed.
    [[nodiscard]] Programma Antwoord() const { return antwoord_; }

  private:
    void Kies(Programma programma);

    Programma antwoord_ = Programma::Geen;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QPushButton* cmdOK;
};

} // namespace plexoran
