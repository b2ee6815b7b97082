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

  protected:
    void showEvent(QShowEvent* gebeurtenis) override;

  private:
    // Building (frmKoppelNBBnr_bouw.cpp)
    void Bouw();
    QGroupBox* BouwKeuze();
    QGroupBox* BouwUitleg();
    QGroupBox* BouwZwevenden();
    QGroupBox* BouwRegister();
    QWidget* BouwKolomkoppen();
    QLayout* BouwOnderkant();
    void StelTabvolgordeIn();

    // Choosing (frmKoppelNBBnr.cpp)
    void Verbind();
    void Laad();
    void KiesSoort();
    void VulSessies();
    void VergeetGevonden();
    void LeesRegister();
    void PlaatsKoppen();
    void KiesUitRegister();
    void ToonZwevende();
    void ToonSpeler();
    void ToonKnoppen();
    void MeldLeesfout(const QString& wat, const Fout& fout);
    void ToonResultaat(const QStringList& regels);
    [[nodiscard]] bool InCompetities() const { return Option2->isChecked(); }
    [[nodiscard]] const Zwevende* GekozenZwevende() const;
    [[nodiscard]] const Koppelspeler* GekozenSpeler() const;

    // Searching (frmKoppelNBBnr_zoeken.cpp)
    void ZoekNamen();
    void VulZwevenden();
    void ToonGevonden(const Zoekuitslag& uitslag);
    [[nodiscard]] Uitkomst<std::vector<Zittingplaats>> TeDoorzoeken() const;

    // Linking (frmKoppelNBBnr_koppelen.cpp)
    void StartKoppelen();
    void MeldKoppeling(const Koppelopdracht& opdracht, const Koppeluitslag& uitslag);
    void MeldAfgebroken(const Koppeluitslag& uitslag);
    void VergeetGekoppelde(const Koppelopdracht& opdracht);

    Administratie& administratie_;
    std::vector<Sessiemap> sessies_;
    std::vector<Zwevende> zwevenden_;   ///< of the lines of lstSpelers
    std::vector<Koppelspeler> spelers_; ///< of the lines of lstRVDsp
    std::size_t naambreedte_ = 0;       ///< of the name column, in characters
    QString resultaat_;                 ///< shown unless the chosen name needs a warning
    bool gezochtInCompetitie_ = false;
    bool geladen_ = false;

    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QLabel* Label4 = nullptr;
    QComboBox* cmbC = nullptr;
    QPushButton* cmdZoekNamen = nullptr;
    QLabel* Label11 = nullptr;
    Regellijst* lstSpelers = nullptr;
    QLineEdit* txtSpeler = nullptr;
    QPushButton* cmdKiesRVDspeler = nullptr;
    QWidget* kolomkoppen_ = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QLabel* lblNaam = nullptr;
    Regellijst* lstRVDsp = nullptr;
    QLineEdit* txtRVDspeler = nullptr;
    QPushButton* cmdStartKoppelen = nullptr;
    QLabel* lblResultaat = nullptr;
    QPushButton* cmdEinde = nullptr;
};

} // namespace plexoran
