// Deleting every player of a subgroup.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "register/administratie.h"

namespace plexoran {

/// Who would be deleted with these rows: how many players, and the names of the first ten, none of
/// them wider than a message box.
[[nodiscard]] QString NoemSpelers(const Spelertabel& tabel, const std::vector<int>& rijen,
                                  const QWidget& venster);

class frmVerwSubgroep : public QDialog {
    Q_OBJECT

  public:
    frmVerwSubgroep(Administratie& administratie, QWidget* ouder);

    /// Whether anything was deleted, so that there is something to save.
    [[nodiscard]] bool IetsVerwijderd() const { return ietsVerwijderd_; }

  signals:
    /// Rows of the table went; the window stays open.
    void rijenVerwijderd();

  private:
    void KiesGroep();
    void VerwijderSubgroep();
    [[nodiscard]] Tekst Code() const { return Groepscode(cmbRVDgr->currentIndex() + 1); }

    Administratie& administratie_;
    std::vector<Tekst> subgroepen_;
    bool ietsVerwijderd_ = false;

    QLabel* Label3;
    QComboBox* cmbRVDgr;
    QComboBox* cmbSubGr;
    QPushButton* cmdVerwijder;
};

} // namespace plexoran
