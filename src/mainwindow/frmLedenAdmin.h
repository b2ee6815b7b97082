// The main window: one group of the register in a grid, and every command of the program.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

#include <functional>

#include "dialogs/ingave.h"
#include "dialogs/toevoegen.h"
#include "federation/frmImportNBB.h"
#include "mainwindow/rooster.h"
#include "mainwindow/sorteerlijst.h"
#include "platform/scherm/maten.h"
#include "register/administratie.h"

namespace plexoran {

class Nummerlijst;

/// What the start needs from outside.
struct Opstart {
    Pad mappenIni;
    /// Whether no other instance of the program runs.
    std::function<bool()> eersteExemplaar;
};

class frmLedenAdmin : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmLedenAdmin(Administratie& administratie, QWidget* ouder = nullptr);

    /// The start-up, in its fixed order. Nothing when the program can go on, else the exit status
    /// with which it ends at once.
    [[nodiscard]] std::optional<int> Laad(const Opstart& opstart);

    /// Shows the selected group anew, after a choice or a change.
    void ToonGroep();

  protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;

  private:
    /// When a player file is read.
    enum class Leesmoment { Start, NaOpslag, Opnieuw };
    enum class Opslag { Gelukt, RegisterBehouden, Mislukt };
    /// What the user wants after a save that failed.
    enum class Vervolg { Opnieuw, Overschrijven, LeesOpnieuw, Later };

    // Building (frmLedenAdmin_bouw.cpp)
    void MaakKnoppen();
    void Bouw();
    QWidget* BouwBovenkant();
    QWidget* BouwOpdrachten();
    QGroupBox* BouwVerwijderkader();
    QGroupBox* BouwSorteerkader();
    void StelTabvolgordeIn();
    void Verbind();

    // Start-up (frmLedenAdmin_start.cpp)
    [[nodiscard]] bool LeesMappenBijStart(const Pad& mappenIni);
    void MaakLedenmapBijStart();
    void RuimRestenOp();
    void LeesInstellingenBijStart();
    void ZoekRekenprogrammaBijStart();
    void KiesRekenprogramma();
    void LeesGroepenBijStart();
    void MeldLosseSleutels();
    void BiedTerugzettenAan(const Aanmaak& aanmaak, const Pad& pad, const QString& wat);
    [[nodiscard]] bool IsGemaakt(const Aanmaak& aanmaak, const QString& wat);
    void MeldMapfout(const QString& wat, const Fout& fout);

    // Reading the players (frmLedenAdmin_lezing.cpp)
    [[nodiscard]] bool LeesSpelersBijStart();
    [[nodiscard]] bool VraagHogereSleutel(std::int32_t hoogste);
    void MeldLezing(const Leesverslag& verslag, Leesmoment moment);
    void MeldNietGeopend(const Fout& fout, Leesmoment moment);
    [[nodiscard]] QString WaarHetLezenStopte(const Leesverslag& verslag) const;

    // Groups
    void VulGroepen();
    void KiesGroep(int plaats);
    [[nodiscard]] Tekst Groeptekst() const;
    void PasKnoppenAan(const Groepsbeeld& beeld);
    void BewaarInstellingen();

    // Commands (frmLedenAdmin_opdrachten.cpp)
    void VoegToe();
    void Wijzig();
    bool ToonIngave(Ingave& ingave);
    void VerwijderGekozen();
    void VerwijderVanTot();
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
    [[nodiscard]] bool VraagVerwijderen(const QString& vraag, int van, int tot);
    [[nodiscard]] bool IsRegelGekozen();

    // Lists (frmLedenAdmin_lijsten.cpp)
    void ToonSorteerlijst(Sorteersoort soort);
    void MeldGeenGetal(Sorteersoort soort, const GeenGetal& fout);
    void ToonDubbeleNamen();

    // Saving (frmLedenAdmin_opslag.cpp)
    Opslag SlaOp();
    void LeesOpnieuw(Leesmoment moment);
    void MerkNietOpgeslagen(bool nietOpgeslagen);
    [[nodiscard]] Vervolg VraagVervolg(const Fout& fout);
    [[nodiscard]] Vervolg VraagNaWijziging(const Fout& fout);
    void MeldRegisterBehouden(Opslag opslag);
    void SchrijfVerslagen();
    void ZetVerslagenTerug(bool vervallen);

    Administratie& administratie_;
    Maten maten_;
    Importgeheugen importgeheugen_;
    std::function<bool()> eersteExemplaar_;
    std::vector<Koppelverslag> verslagen_; ///< whose new players are not known to be saved
    bool nietOpgeslagen_ = false;          ///< the table holds changes that the file lacks
    bool instellingenfoutGemeld_ = false;  ///< told once, not at every change of group
    bool opstarten_ = false;               ///< keeps `chkKolBr` from redrawing
    int gewisseld_ = -1;                   ///< the group that a pick has shown already

    Rooster* picP0;
    QLabel* lblToel;
    QLabel* Label1;
    QLabel* Label3;
    QLabel* lblVan;
    QLabel* lblTot;
    QComboBox* cmbGr;
    QCheckBox* chkKolBr;
    QCheckBox* chkToonAlle;
    QComboBox* cmbVerwVan;
    QComboBox* cmbVerwTot;
    Nummerlijst* regelnummers_;
    QPushButton* cmdMaakGrNamen;
    QPushButton* cmdAanm;
    QPushButton* cmdWijzig;
    QPushButton* cmdVerwijder;
    QPushButton* cmdVerwijderVT;
    QPushButton* cmdVerplaats;
    QPushButton* cmdKopieer;
    QPushButton* cmdVerwGroep;
    QPushButton* cmdSortlijst1;
    QPushButton* cmdSortlijst2;
    QPushButton* cmdSortlijst3;
    QPushButton* cmdZoekDubbeleNamen;
    QPushButton* cmdSpToevoegen;
    QPushButton* cmdHaalNBBnamen;
    QPushButton* cmdKoppel;
    QPushButton* cmdParenOnderhoud;
    QPushButton* cmdPrint;
    QPushButton* cmdToelichting;
    QPushButton* cmdToonGatenlijst;
    QPushButton* cmdMaakScripts;
    QPushButton* cmdEinde;
};

} // namespace plexoran
