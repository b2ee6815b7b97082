// Players who probably stand in the register twice: each pair side by side, with a choice per
// field, to be made one or marked as no doubles.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include <functional>

#include "controle/vindplaatsen.h"
#include "register/administratie.h"
#include "register/dubbelen.h"

namespace plexoran {

class frmDubbelen : public QDialog {
    Q_OBJECT

  public:
    /// Searches first, which may take a while and can be stopped. `slaOp` saves the register, or
    /// says false.
    frmDubbelen(Administratie& administratie, std::function<bool()> slaOp, QWidget* ouder);
    ~frmDubbelen() override { GeefOp(); }

  signals:
    void begint(); ///< two players are about to become one

  private:
    enum { KolomVeld, KolomLinks, KolomRechts };

    // What it shows (frmDubbelen_beeld.cpp)
    void Bouw();
    void VulDubbelen(int regel);
    void VulVelden();
    void VulPlaatsen();
    static void Kies(QTreeWidgetItem* veld, int kolom);
    [[nodiscard]] QString Samenvatting() const;

    // What it does
    void Zoek();
    void LeesPlaatsen();
    void VoegSamen();
    void GeenDubbelen();
    [[nodiscard]] bool StaatGoed();
    [[nodiscard]] bool IsGewild();
    void GeefOp();
    void ToonGedaan(const Tekst& gedaan, bool zoek);
    [[nodiscard]] bool IsAangevinkt(std::size_t plaats) const;
    [[nodiscard]] const Dubbelpaar* Paar() const;
    [[nodiscard]] int Blijft() const;
    [[nodiscard]] int Weg() const { return Paar()->rij + Paar()->latere - Blijft(); }
    [[nodiscard]] Tekst Key(int rij) const;
    [[nodiscard]] bool IsBondslid(int rij) const;
    [[nodiscard]] Tekst Naam(int rij) const;
    [[nodiscard]] std::vector<Vindplaats> Plaatsen() const;
    [[nodiscard]] Rijvelden Gekozen() const;

    Administratie& administratie_;
    std::function<bool()> slaOp_;
    Sleutelparen geen_;
    Dubbeluitslag uitslag_;
    Vindplaatsen vindplaatsen_;
    std::vector<Vindplaats> plaatsen_; ///< those in the list
    QString gedaan_;                   ///< what was done last
    std::unique_ptr<Noteer> noteer_;   ///< of merging that failed, for another try
    Tekst poging_;                     ///< who those are

    QLabel* lblUitslag = nullptr;
    QTreeWidget* lstDubbelen = nullptr;
    QRadioButton* optLinks = nullptr;
    QRadioButton* optRechts = nullptr;
    QTreeWidget* lstVelden = nullptr;
    QTreeWidget* lstPlaatsen = nullptr;
    QPushButton* cmdSamenvoegen = nullptr;
    QPushButton* cmdGeenDubbelen = nullptr;
};

} // namespace plexoran
