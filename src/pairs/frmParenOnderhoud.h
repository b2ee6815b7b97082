// Forming and dissolving the pairs of a group-subgroup, and writing them for a spreadsheet. Nothing
// is saved but by `cmdEinde`; the player table is never changed.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "pairs/paren.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/regellijst.h"
#include "register/administratie.h"

namespace plexoran {

class frmParenOnderhoud : public QDialog {
    Q_OBJECT

  public:
    /// For the group with which `groeptekst` begins.
    frmParenOnderhoud(Administratie& administratie, Tekstblik groeptekst, QWidget* ouder);

    /// Opens with the group-subgroup of the players in these rows, the first chosen on the left and
    /// the other on the right; who is in a pair already is not.
    void Kies(const std::vector<int>& rijen);

  private:
    // Building (frmParenOnderhoud_bouw.cpp)
    void Bouw();
    QLayout* BouwKeuze();
    QGroupBox* BouwSamenstelling();
    QLayout* BouwMidden();
    QGroupBox* BouwCSVKader();
    QLayout* BouwOnderkant();
    Regellijst* Lijst(const QString& naam, const QString& gesproken);

    void LaadSubgroep();
    void VulSpelerslijsten(Regellijst::Plek plek);
    void VulParenlijst(Regellijst::Plek plek);
    void ToonAantalParen();

    void KeuzeIn(const Regellijst* lijst);
    void ZetKnoppen();

    void MaakPaar();
    void Ontbind();
    void SorteerParen();
    void VerwijderBestand();
    void SchrijfCSV(ParenCSV soort);
    void Einde();
    void ToonUitleg();

    Administratie& administratie_;
    Tekst code_;                ///< of the group
    std::vector<Tekst> keuzes_; ///< the lines of `cmbNBBledengr`
    Tekst keuze_;               ///< the group-subgroup that was chosen last
    Parenlezing gelezen_;       ///< of its pair file
    Paren paren_;
    Maten maten_;

    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QComboBox* cmbNBBledengr = nullptr;
    Regellijst* L1 = nullptr;
    Regellijst* L2 = nullptr;
    Regellijst* L3 = nullptr;
    QPushButton* cmdOKE = nullptr;
    QPushButton* cmdOntbindt = nullptr;
};

} // namespace plexoran
