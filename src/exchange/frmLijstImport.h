// "Spelers uit een lijst...": a list of any making is read, its columns get their fields, and what
// comes of it is looked at before anything is written. Saving is the main window's.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTreeWidget>

#include "exchange/lijstimport.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/tekstvak.h"
#include "register/administratie.h"

namespace plexoran {

class frmLijstImport : public QDialog {
    Q_OBJECT

  public:
    /// `groep` is the code of the group that is shown.
    frmLijstImport(Administratie& administratie, Tekstblik groep, QWidget* ouder);

    /// Reads a list and shows what it makes of it.
    void Open(const Pad& bestand);
    /// Code of the group that was imported to.
    [[nodiscard]] Tekst Groep() const { return NaarTekst(cmbGroep->currentText().left(5)); }

  private:
    void Bouw();
    void Verbind();
    void KiesBestand();
    void Decodeer(std::optional<Lijsttekenset> tekenset);
    void Lees();
    void RaadKeuze();
    void ToonKolommen();
    void ToonVeld();
    void KiesVeld();
    void ToonMelding();
    [[nodiscard]] QString Bezwaar() const;
    void Bekijk();

    Administratie& administratie_;
    std::optional<QSettings> geheugen_;
    QString naam_; ///< of the file
    Tekst bytes_;
    Lijstuitkomst<Lijsttekst> tekst_ = tl::unexpected(Lijstfout{Lijstbezwaar::Leeg});
    Lijstuitkomst<Spelerslijst> lijst_ = tl::unexpected(Lijstfout{Lijstbezwaar::Leeg});
    Lijstkeuze keuze_;

    Kortlabel* lblBestand;
    QComboBox* cmbTekenset;
    QComboBox* cmbScheiding;
    QComboBox* cmbAanhaling;
    QComboBox* cmbRegeleinde;
    QCheckBox* chkKop;
    QTreeWidget* lstKolommen;
    QComboBox* cmbVeld;
    QComboBox* cmbGroep;
    Tekstvak* txtSubgroep;
    QComboBox* cmbHerken;
    QLabel* lblMelding;
    QPushButton* cmdBekijk;
};

} // namespace plexoran
