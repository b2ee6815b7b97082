// The choice between two installed scoring programs.
#pragma once

#include <QDialog>

#include "register/administratie.h"

namespace plexoran {

class diaRekProgkeus : public QDialog {
    Q_OBJECT

  public:
    explicit diaRekProgkeus(QWidget* ouder);

    /// `Geen` until a choice was made; a choice stands however the window is closed.
    [[nodiscard]] Programma Antwoord() const { return antwoord_; }

  private:
    Programma antwoord_ = Programma::Geen;
};

} // namespace plexoran
