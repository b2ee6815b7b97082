// Forming and dissolving the pairs of a group-subgroup, and writing them for a spreadsheet. Nothing
// is saved but by `cmdEinde`; the player table is never changed.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "pairs/paren.h"
#include "pairs/parencsv.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/regellijst.h"
#include "register/administratie.h"

class QGridLayout;
class QHBoxLayout;

namespace plexoran {

class frmParenOnderhoud : public QDialog {
    Q_OBJECT

  public:
    /// For the group with which `groeptekst` begins.
    frmParenOnderhoud(Administratie& administratie, Tekstblik groeptekst, QWidget* ouder);

  private:
    // Building
    void MaakDelen();
    void Bouw();
    QHBoxLayout* BouwKeuze();
    void BouwSamenstelling(QGroupBox* kader);
    void BouwCSVKader(QGroupBox* kader);
    void Verbind();

    void MaakParenmap();
    void KiesSubgroep();
    void LaadSubgroep(const Tekst& keuze);
    void MeldLosse(const Tekst& losse);
    void VulSpelerslijsten(Regellijst::Plek plek);
    void VulParenlijst(Regellijst::Plek plek);
    void ToonAantalParen();

    void SpelerGekozen(const Regellijst* lijst);
    void PaarGekozen();
    void ZetKnoppen();
    void ZetKnopOKE(bool aan);
    void ZetKnopOntbindt(bool aan);

    void MaakPaar();
    void Ontbind();
    void SorteerParen();
    void VerwijderBestand();
    void SchrijfCSV(ParenCSV soort);
    void Einde();
    void MeldOpslagfout(const Fout& fout);
    void ToonUitleg();

    Administratie& administratie_;
    Tekst code_;                   ///< of the group
    std::vector<Tekst> keuzes_;    ///< the lines of `cmbNBBledengr`
    Tekst keuze_;                  ///< the group-subgroup that was chosen last
    std::optional<Tekst> gelezen_; ///< the text of its pair file
    Paren paren_;
    Maten maten_;

    QLabel* lblRVDledengr = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QLabel* Label10 = nullptr;
    QComboBox* cmbNBBledengr = nullptr;
    Regellijst* L1 = nullptr;
    Regellijst* L2 = nullptr;
    Regellijst* L3 = nullptr;
    QPushButton* cmdOKE = nullptr;
    QPushButton* cmdOntbindt = nullptr;
    QPushButton* cmdSortL3 = nullptr;
    QPushButton* cmdVerwParenbest = nullptr;
    QPushButton* cmdUitleg = nullptr;
    QPushButton* cmdPrintVast = nullptr;
    QPushButton* cmdPrintLos = nullptr;
    QPushButton* cmdEinde = nullptr;
    QPushButton* cmdAnnu = nullptr;
};

} // namespace plexoran
