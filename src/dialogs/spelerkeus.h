// The part that the windows for moving and for copying share: the list of players with its label
// and its two buttons.
#pragma once

#include <QPushButton>

#include "platform/scherm/regellijst.h"

namespace plexoran {

/// The lines of the list end in the key of their player; see dialogs/keuslijst.h.
class Spelerkeus : public QWidget {
  public:
    /// `cmdOK` can be pressed while at least one line is chosen.
    Spelerkeus(QPushButton* cmdOK, QWidget* ouder);

    /// Fills the list anew; `regel` gives the line of a row.
    void Vul(std::vector<int> rijen, std::function<Tekst(int rij)> regel);
    /// Of the chosen lines, in list order.
    [[nodiscard]] std::vector<Tekst> GekozenKeys() const;

    Regellijst* const lstKeus;
    QPushButton* const cmdSelAll;
    QPushButton* const cmdSelNone;
};

} // namespace plexoran
