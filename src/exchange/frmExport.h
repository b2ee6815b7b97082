// Players to a file for other programs: who, which of their columns in which order, and in what
// kind of file.
#pragma once

#include <QDialog>

#include "exchange/uitvoer.h"
#include "register/administratie.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace plexoran {

class frmExport : public QDialog {
    Q_OBJECT

  public:
    /// Begins with the players in these rows, or without any with those of the group.
    frmExport(Administratie& administratie, Tekstblik groepscode, QWidget* ouder,
              std::vector<int> gekozen = {});

    /// What was done, for the line at the foot of the main window.
    [[nodiscard]] const QString& Gedaan() const { return gedaan_; }

  private:
    void Bouw();
    [[nodiscard]] QGroupBox* BouwKolommen();
    void VulKolommen();
    void KiesWie();
    void KiesSubgroep();
    void PasAan();
    void Verzet(int stap);
    void VinkAlle(bool aan);
    void Exporteer();
    void MeldMislukt(const Fout& fout);
    [[nodiscard]] std::vector<int> RijenVan(const std::vector<Tekst>& subgroepen) const;
    [[nodiscard]] std::vector<Kolom> GekozenKolommen() const;
    void Onthoud() const;

    Administratie& administratie_;
    std::vector<int> gekozen_;
    std::vector<int> rijen_; ///< who is exported
    QString gedaan_;

    QComboBox* cmbWie = nullptr;
    QComboBox* cmbSubgroep = nullptr;
    QLabel* lblAantal = nullptr;
    QListWidget* lstKolommen = nullptr;
    QComboBox* cmbSoort = nullptr;
    QLabel* lblUitleg = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace plexoran
