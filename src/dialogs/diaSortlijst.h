// Shows a sorted list of players. It sorts nothing itself and paints only the lines that are seen.
#pragma once

#include <QDialog>

#include <functional>

#include "dialogs/sorteerkolommen.h"
#include "platform/scherm/tabelvlak.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

/// What the viewer shows.
struct Sorteerbeeld {
    Sorteersoort soort = Sorteersoort::Key;
    bool importgroep = false; ///< of the group that the main window shows
    int regels = 0;
    std::function<Tekstblik(int)> regel; ///< six fields joined by ","; counted from 0
};

class diaSortlijst : public QDialog {
    Q_OBJECT

  public:
    diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster);

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    Sorteerbeeld beeld_;
    Tabelvlak* P1;
};

} // namespace plexoran
