// Linking floating players: names in session files that get the register key of a player of the
// import group.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/scherm/regellijst.h"
#include "register/administratie.h"
#include "sessions/koppelen.h"

namespace plexoran {

class frmKoppelNBBnr : public QDialog {
    Q_OBJECT

  public:
    frmKoppelNBBnr(Administratie& administratie, QWidget* ouder);

  signals:
    /// Files are about to change.
    void begint();

  private:
    // Building (frmKoppelNBBnr_bouw.cpp)
    void Bouw();
    QGroupBox* BouwKeuze();
    QGroupBox* BouwUitleg();
    QGroupBox* BouwZwevenden();
    QGroupBox* BouwRegister();
    QWidget* BouwKolomkoppen();
    QLayout* BouwKnoppen();
    QWidget* BouwResultaat();

    // Choosing
    void KiesSoort();
    void VergeetGevonden();
    void LeesRegister();
    void PlaatsKoppen();
    void KiesUitRegister();
    void ToonZwevende();
    void ToonSpeler();
    void ToonKnoppen();
    void ToonResultaat(const QStringList& regels);
    void MeldLeesfout(const QString& wat, const Fout& fout);
    [[nodiscard]] bool InCompetities() const { return Option2->isChecked(); }
    [[nodiscard]] const Zwevende* GekozenZwevende() const;
    [[nodiscard]] const Koppelspeler* GekozenSpeler() const;

    // Searching
    void ZoekNamen();
    void VulZwevenden();
    void ToonGevonden(const Zoekuitslag& uitslag);

    // Linking
    void StartKoppelen();
    void MeldKoppeling(const Koppelopdracht& opdracht, const Koppeluitslag& uitslag);
    void MeldAfgebroken(const Koppeluitslag& uitslag);

    Administratie& administratie_;
    std::vector<Sessiemap> sessies_;    ///< of the lines of cmbC
    std::vector<Zwevende> zwevenden_;   ///< of the lines of lstSpelers
    std::vector<Koppelspeler> spelers_; ///< of the lines of lstRVDsp
    QString resultaat_;                 ///< shown unless the chosen name needs a warning

    QRadioButton* Option2 = nullptr;
    QLabel* Label4 = nullptr;
    QComboBox* cmbC = nullptr;
    QPushButton* cmdZoekNamen = nullptr;
    QLabel* Label11 = nullptr;
    Regellijst* lstSpelers = nullptr;
    QLineEdit* txtSpeler = nullptr;
    std::array<QLabel*, 4> koppen_{}; ///< above the columns of lstRVDsp, from the left
    Regellijst* lstRVDsp = nullptr;
    QLineEdit* txtRVDspeler = nullptr;
    QPushButton* cmdStartKoppelen = nullptr;
    QLabel* lblResultaat = nullptr;
};

} // namespace plexoran
