// The main window: one group of the register in a grid, and every command of the program.
#pragma once

#include <QAbstractListModel>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

#include <functional>
#include <optional>

#include "dialogs/ingave.h"
#include "federation/frmImportNBB.h"
#include "mainwindow/frmLedenAdmin_opslag.h"
#include "mainwindow/lijsten.h"
#include "mainwindow/rooster.h"
#include "platform/scherm/maten.h"

class QLayout;

namespace plexoran {

/// The numbers 1 to n as the content of drop-downs, without an entry in memory for each.
class Nummerlijst : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void ZetAantal(int aantal)
    {
        beginResetModel();
        aantal_ = aantal;
        endResetModel();
    }
    [[nodiscard]] int rowCount(const QModelIndex& ouder = QModelIndex()) const override
    {
        return ouder.isValid() ? 0 : aantal_;
    }
    [[nodiscard]] QVariant data(const QModelIndex& plaats, int rol) const override
    {
        return plaats.isValid() && rol == Qt::DisplayRole ? QString::number(plaats.row() + 1)
                                                          : QVariant();
    }

  private:
    int aantal_ = 0;
};

/// What the start needs from outside.
struct Startgegevens {
    Pad mappenIni;
    /// Whether no other instance of the program runs.
    std::function<bool()> eersteExemplaar;
};

class frmLedenAdmin : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmLedenAdmin(Administratie& administratie, QWidget* ouder = nullptr);

    /// Starts up and shows the group of last time. Nothing when the program can go on, else the
    /// exit status with which it ends at once.
    [[nodiscard]] std::optional<int> Laad(const Startgegevens& start);

    /// Shows the selected group anew, after a choice or a change.
    void ToonGroep();

  protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;

  private:
    // Building (frmLedenAdmin_bouw.cpp)
    void Bouw();
    QWidget* BouwBovenkant();
    QWidget* BouwOpdrachten();
    QLayout* BouwSpelerkolom();
    QLayout* BouwVerwijderkolom();
    QLayout* BouwLijstkolom();
    QLayout* BouwBondkolom();
    QLayout* BouwOnderkant();
    QPushButton* Opdracht(const char16_t* naam, const char16_t* tekst, char16_t letter,
                          void (frmLedenAdmin::*doe)());
    void VerbindToetsen();

    [[nodiscard]] bool IsEersteExemplaar();
    void KiesGroep(int plaats);
    [[nodiscard]] Tekst Groeptekst() const;
    void PasKnoppenAan(const Groepsbeeld& beeld);
    void BewaarInstellingen();
    void ToonSorteerlijst(Sorteersoort soort);
    void MeldGeenGetal(Sorteersoort soort, const GeenGetal& fout);
    void ToonDubbeleNamen();

    // Commands (frmLedenAdmin_opdrachten.cpp)
    void VoegToe();
    void Wijzig();
    bool ToonIngave(Ingave& ingave);
    void VerwijderRij();
    void VerwijderVanTot();
    void Verwijder(int van, int tot, const QString& regels, const QString& klaar);
    void WijzigGroepsnamen();
    bool BewaarGroepen(const Groepen& oud);
    void StartGatenlijst();
    void Verplaats();
    void Kopieer();
    void VerwijderGroep();
    void HaalNBBnamen();
    void VoegSessiespelersToe();
    void KoppelZwevenden();
    void OnderhoudParen();
    void ToonToelichting();
    void Print();
    void SlaOpEnToon(const QString& klaar = QString());
    [[nodiscard]] bool IsRegelGekozen();

    Administratie& administratie_;
    Spelersopslag opslag_;
    Maten maten_;
    Importgeheugen importgeheugen_;
    std::function<bool()> eersteExemplaar_;
    bool instellingenfoutGemeld_ = false; ///< told once, not at every change of group
    bool netGetoond_ = false;             ///< by the pick that is under way

    Rooster* picP0;
    QLabel* Label3;
    QComboBox* cmbGr;
    QCheckBox* chkToonAlle;
    QComboBox* cmbVerwVan;
    QComboBox* cmbVerwTot;
    Nummerlijst* regelnummers_;
    QPushButton* cmdWijzig;
    QPushButton* cmdVerwijder;
    QPushButton* cmdVerwijderVT;
    QPushButton* cmdSortlijst2;
    QPushButton* cmdSortlijst3;
    QPushButton* cmdHaalNBBnamen;
    QPushButton* cmdKoppel;
    QPushButton* cmdToonGatenlijst;
    QPushButton* cmdParenOnderhoud;
    QPushButton* cmdPrint;
};

} // namespace plexoran
