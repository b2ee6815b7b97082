// The club at a glance: numbers of players with a bar beside each, and the players behind a bar.
#pragma once

#include <QDialog>
#include <QTreeWidget>

#include "register/administratie.h"
#include "register/overzicht.h"

namespace plexoran {

class frmOverzicht : public QDialog {
    Q_OBJECT

  public:
    /// Reads the sessions and looks for doubles, which may take a while and can be stopped.
    frmOverzicht(Administratie& administratie, QWidget* ouder);

    // Once the window was accepted: the line whose players were asked for, and how it is called
    // where the group above it is not in sight.
    [[nodiscard]] const Overzichtregel& Gekozen() const { return regels_[gekozen_]; }
    [[nodiscard]] const QString& Opschrift() const { return opschrift_; }

  private:
    void ZoekZwevende(QWidget* ouder);
    void ZoekDubbele(QWidget* ouder);
    void Bouw();
    void VulLijst();
    void Kies(const QTreeWidgetItem* regel);
    void Print();

    Administratie& administratie_;
    std::vector<Overzichtregel> regels_;
    Tekst zwevende_; ///< the names, a line each
    std::size_t gekozen_ = 0;
    QString opschrift_;

    QTreeWidget* lstOverzicht = nullptr;
};

} // namespace plexoran
