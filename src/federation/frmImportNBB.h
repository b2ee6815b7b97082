// The import of federation members: where they come from, which data travel along, and the run over
// the chosen member files.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "federation/ledenimport.h"
#include "platform/scherm/regellijst.h"

namespace plexoran {

class frmImportNBB : public QDialog {
    Q_OBJECT

  public:
    frmImportNBB(Administratie& administratie, Importgeheugen& geheugen, QWidget* ouder);

    [[nodiscard]] bool IetsGewijzigd() const { return import_.IetsGewijzigd(); }
    void ZetGrenzen(const Accessgrenzen& grenzen) { import_.ZetGrenzen(grenzen); }

    /// Not while an import runs.
    void reject() override;

  private:
    // Building and help (frmImportNBB_bouw.cpp)
    void Bouw();
    QWidget* BouwBronnen();
    QWidget* BouwGegevens();
    QLayout* BouwKeuze();
    QLayout* BouwHulp();

    // Where the members come from (frmImportNBB.cpp)
    void KiesBron(Ledenbron bron);
    void KiesDatabase();
    void KiesExportMap();
    bool ToonMap(const Pad& map, Tekstblik aangewezen);
    void ToonLijst(const QString& aantal = {});
    void MaakBruikbaar(bool bruikbaar);
    [[nodiscard]] std::vector<Tekst> GekozenBestanden();
    [[nodiscard]] Ledenopdracht Opdracht() const;
    void ControleerNBBnrs();

    // The run (frmImportNBB_import.cpp)
    using Behandeling = bool (frmImportNBB::*)(const Tekst& naam, Ledenlezing lezing);
    void ImporteerLedenbestanden();
    void BekijkLedenbestanden();
    void Behandel(Behandeling behandeling);
    [[nodiscard]] bool LeesEnBehandel(const Ledenopdracht& opdracht, const Tekst& naam,
                                      Behandeling behandeling);
    [[nodiscard]] bool ImporteerEenBestand(const Tekst& naam, Ledenlezing lezing);
    [[nodiscard]] bool BekijkEenBestand(const Tekst& naam, Ledenlezing lezing);
    [[nodiscard]] bool VraagOfHetMag(const Tekst& naam, std::size_t aantal);
    [[nodiscard]] bool RondAf(const Tekst& naam, const Ledenlezing& lezing,
                              const Samenvoeguitkomst& uitkomst);
    void MeldVooraf(Ledenbron bron, const Tekst& naam, const Ledenlezing& lezing);
    void MeldUitkomst(const Tekst& naam, const Ledenlezing& lezing, const Samenvoeging& uitkomst,
                      const QString& gedaan);
    void MeldAfgebroken(const Tekst& naam, Samenvoegfout fout);

    Administratie& administratie_;
    Ledenimport import_;
    bool bezig_ = false; ///< an import runs

    QList<QRadioButton*> opties_; ///< in the order of the sources
    QPushButton* cmdKiesExportMap = nullptr;
    QLabel* lblExportMap = nullptr;
    QLabel* Label3 = nullptr;
    Regellijst* lstNBBbest = nullptr;
    QCheckBox* chkNAW = nullptr;
    QCheckBox* chkTel = nullptr;
    QCheckBox* chkEmail = nullptr;
    QCheckBox* chkMV = nullptr;
    QPushButton* cmdControleNBBnrs = nullptr;
    QPushButton* cmdBekijk = nullptr;
    QPushButton* cmdImporteer = nullptr;
};

} // namespace plexoran
