// The import of federation members: where they come from, which data travel along, and the run over
// the chosen member files. The window changes the table in memory; saving is the main window's.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <map>
#include <optional>

#include "federation/ledenbestand.h"
#include "federation/samenvoegen.h"
#include "platform/scherm/regellijst.h"
#include "register/administratie.h"

namespace plexoran {

/// What was chosen last, for as long as the program runs.
struct Importgeheugen {
    std::map<Ledenbron, Pad> mappen; ///< the folder per kind of source
    std::optional<Ledenbron> bron;
};

class frmImportNBB : public QDialog {
    Q_OBJECT

  public:
    frmImportNBB(Administratie& administratie, Importgeheugen& geheugen, QWidget* ouder);

    /// Whether a player was refreshed or added, so that there is something to save.
    [[nodiscard]] bool IetsGewijzigd() const { return ietsGewijzigd_; }

    /// Of reading the database; asked for when a source is chosen.
    void ZetGrenzen(const Accessgrenzen& grenzen) { grenzen_ = grenzen; }

    /// Not while an import runs.
    void reject() override;

  private:
    /// Whether the next member file may follow.
    enum class Verloop { Verder, Afgebroken };

    // Building (frmImportNBB_bouw.cpp)
    void MaakDelen();
    void MaakHulpknoppen();
    void Bouw();
    QGroupBox* BouwBronnen();
    QGroupBox* BouwGegevens();
    QWidget* BouwKeuze();
    QWidget* BouwHulp();
    void StelTabvolgordeIn();
    void Verbind();

    // Help (frmImportNBB_hulp.cpp)
    void VerbindHulp();

    // Where the members come from (frmImportNBB_bronnen.cpp)
    void ToonAanbod();
    void KiesBron(Ledenbron bron);
    void KiesDatabase();
    void KiesExportMap();
    bool ToonMap(const Pad& map, Tekstblik gekozen);
    bool ZoekBestanden(std::vector<Tekst> namen);
    void KiesInLijst(Tekstblik gekozen);
    void MeldNietVanSoort(const Tekst& gekozen);
    void ToonLijsttekst(const QString& tekst);
    void VulLijst(std::vector<Tekst> namen);
    void MaakBruikbaar(bool bruikbaar);
    [[nodiscard]] Pad Beginmap() const;
    [[nodiscard]] std::vector<Tekst> GekozenBestanden() const;
    [[nodiscard]] Ledenopdracht Opdracht() const;
    void ControleerNBBnrs();

    // The run (frmImportNBB_import.cpp)
    void ImporteerLedenbestanden();
    [[nodiscard]] Verloop LeesEnImporteer(const Ledenopdracht& opdracht, const Tekst& naam);
    [[nodiscard]] Verloop ImporteerEenBestand(const Tekst& naam, Ledenlezing lezing);
    void RuimTussenbestandOp(const Ledenopdracht& opdracht, const Tekst& naam);
    void MeldVooraf(Ledenbron bron, const Tekst& naam, const Ledenlezing& lezing);
    void MeldUitkomst(const Tekst& naam, const Ledenlezing& lezing, const Samenvoeging& uitkomst);
    void MeldAfgebroken(const Tekst& naam, Samenvoegfout fout);

    Administratie& administratie_;
    Importgeheugen& geheugen_;
    std::optional<Ledenbron> bron_;
    Pad map_; ///< the chosen folder of exports; empty without one
    Pad LedenDatabase_;
    Accessgrenzen grenzen_;
    std::vector<Tekst> namen_; ///< the entries of lstNBBbest
    bool ietsGewijzigd_ = false;
    bool bezig_ = false; ///< an import runs

    QLabel* lblOpening = nullptr;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QRadioButton* Option3 = nullptr;
    QRadioButton* Option4 = nullptr;
    QPushButton* cmdKiesExportMap = nullptr;
    QLabel* lblExportMap = nullptr;
    QLabel* Label3 = nullptr;
    Regellijst* lstNBBbest = nullptr;
    QCheckBox* chkVoornaam = nullptr;
    QCheckBox* chkTus = nullptr;
    QCheckBox* chkAchternaam = nullptr;
    QCheckBox* chkNBBnr = nullptr;
    QCheckBox* chkNAW = nullptr;
    QCheckBox* chkTel = nullptr;
    QCheckBox* chkEmail = nullptr;
    QCheckBox* chkMV = nullptr;
    QPushButton* cmdControleNBBnrs = nullptr;
    QPushButton* cmdHint = nullptr;
    QPushButton* cmdHelpImport28 = nullptr;
    QPushButton* cmdHelpImport31 = nullptr;
    QPushButton* cmdHelpImport4 = nullptr;
    QPushButton* cmbHelpCSV = nullptr;
    QPushButton* cmdAnnuleren = nullptr;
    QPushButton* cmdImporteer = nullptr;
};

} // namespace plexoran
