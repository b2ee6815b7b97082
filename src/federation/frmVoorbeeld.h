// What the import of one file would do, to be looked at before it does it. Lines and fields
// can be switched off in it; the window that opened it asks and imports.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QTreeView>

#include "federation/frmVoorbeeld_model.h"
#include "platform/scherm/tekstvak.h"

namespace plexoran {

class frmVoorbeeld : public QDialog {
    Q_OBJECT

  public:
    /// The preview must outlive the window.
    frmVoorbeeld(Regelvoorbeeld& voorbeeld, const QString& bestand, QWidget* ouder);

    /// For when nothing is going to change.
    [[nodiscard]] static QString Nietstekst();

  private:
    enum { Alles = -2, Twijfelachtig }; ///< among the kinds

    void Bouw();
    void VulSoorten();
    void Toon();
    void ToonTotalen();

    Regelvoorbeeld& voorbeeld_;
    Voorbeeldmodel* model_;
    QLabel* lblTotalen;
    QComboBox* cmbSoort;
    Tekstvak* txtFilter;
    QTreeView* lstVoorbeeld;
};

} // namespace plexoran
