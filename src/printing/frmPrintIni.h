// The print set-up: which columns and subgroups of a group are printed, and at what scale.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include "platform/scherm/inrichting.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/regellijst.h"
#include "printing/printtabel.h"
#include "register/administratie.h"

class QGroupBox;

namespace plexoran {

class frmPrintIni : public QDialog {
    Q_OBJECT

  public:
    /// `groeptekst` and `kolomnamen` are the group and the columns as the main window shows them;
    /// the scales are written as `getallen` has it.
    frmPrintIni(Administratie& administratie, Tekst groeptekst,
                const std::array<Tekstblik, AantalKolommen>& kolomnamen, QWidget* ouder,
                const QLocale& getallen = Getalnotatie());

  private:
    void MaakDelen();
    void Bouw();
    [[nodiscard]] QGroupBox* BouwKolommen();
    [[nodiscard]] QLayout* BouwRechts();
    void Vul();
    void Verbind();
    void PasKnopAan();
    void Print();
    [[nodiscard]] float Schaal() const;

    Administratie& administratie_;
    Maten maten_;
    Tekst groeptekst_;
    std::array<Tekstblik, AantalKolommen> kolomnamen_;
    QLocale getallen_;
    std::vector<Tekst> subgroepen_; ///< as listed; none: the group is empty

    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label5 = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* Label7 = nullptr;
    Regellijst* lstKeus = nullptr;
    Regellijst* lstNBBgr = nullptr;
    QComboBox* cmbSchaal = nullptr;
    QPushButton* cmdSelAll = nullptr;
    QPushButton* cmdSelNone = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdAnnuleren = nullptr;
};

} // namespace plexoran
