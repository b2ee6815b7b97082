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
#include "platform/scherm/schildervlak.h"
#include "printing/printtabel.h"
#include "register/administratie.h"

class QGroupBox;

namespace plexoran {

class frmPrintIni : public QDialog {
    Q_OBJECT

  public:
    /// `groeptekst` and `kolomnamen` are the group and the columns as the main window shows them;
    /// the scales are written as `getallen` has it. With `rijen` these players are printed, under
    /// `groeptekst`.
    frmPrintIni(Administratie& administratie, Tekst groeptekst,
                const std::array<Tekstblik, AantalKolommen>& kolomnamen, QWidget* ouder,
                const QLocale& getallen = Getalnotatie(),
                std::optional<std::vector<int>> rijen = {});

  signals:
    /// Labels for the players that are chosen here.
    void etikettenGevraagd(const std::vector<int>& rijen);

  private:
    void Bouw();
    [[nodiscard]] QGroupBox* BouwKolommen();
    [[nodiscard]] QLayout* BouwRechts();
    void KiesTelefoonlijst();
    void PasAan();
    void ToonBreedte();
    void Print();
    [[nodiscard]] bool IsSubgroepGekozen();
    [[nodiscard]] Printopdracht Opdracht() const;
    [[nodiscard]] float Schaal(int plaats) const;

    Administratie& administratie_;
    Maten maten_;
    Tekst groeptekst_;
    std::array<Tekstblik, AantalKolommen> kolomnamen_;
    QLocale getallen_;
    std::optional<std::vector<int>> rijen_;
    Letterkast kast_;
    int passend_ = -1; ///< the largest scale at which all columns come out, its place in the list
    std::vector<Tekst> subgroepen_; ///< as listed; none: the group is empty

    Regellijst* lstKeus = nullptr;
    Regellijst* lstNBBgr = nullptr;
    QLabel* lblBreedte = nullptr;
    QComboBox* cmbSchaal = nullptr;
    QPushButton* cmdPassend = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace plexoran
