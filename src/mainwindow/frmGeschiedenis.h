// What was done in the suite, by whom and on which computer, the last first; each opens to what it
// changed, and can be undone or done again.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <set>

#include "platform/scherm/boom.h"
#include "register/administratie.h"

namespace plexoran {

class frmGeschiedenis : public QDialog {
    Q_OBJECT

  public:
    using Draai = std::function<void(const Handeling&, Handelingsoort)>;

    /// Of all players, or of the one with `key`. `draai` undoes an entry or does it again.
    frmGeschiedenis(Administratie& administratie, Tekst key, Draai draai, QWidget* ouder);

  private:
    void Vul();
    void Open(QTreeWidgetItem* regel);
    void OpenSpelers(QTreeWidgetItem* regel, const Wijziging& wijziging) const;
    [[nodiscard]] QTreeWidgetItem* Gekozen() const;
    void Kies();
    void DraaiGekozen();
    [[nodiscard]] bool IsGekozen(const Handeling& handeling) const;

    Administratie& administratie_;
    Tekst key_;
    Draai draai_;
    std::set<Tekst> ongedaan_; ///< the ids of what is undone now

    QLabel* Label1;
    QTreeWidget* lstHandelingen;
    QPushButton* cmdOngedaan;
};

} // namespace plexoran
