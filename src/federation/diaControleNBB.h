// The number check: the members of the chosen member files with their federation number and sex,
// before anything is imported.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "federation/controlelijst.h"
#include "federation/ledenbestand.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/schildervlak.h"
#include "register/administratie.h"

namespace plexoran {

class Controlevlak;

class diaControleNBB : public QDialog {
    Q_OBJECT

  public:
    /// Reads the member files, which may take a while and may show boxes of errors.
    diaControleNBB(Administratie& administratie, const Ledenopdracht& opdracht,
                   const std::vector<Tekst>& namen, QWidget* ouder);

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Bouw();
    void Lees(const Ledenopdracht& opdracht, const std::vector<Tekst>& namen);
    void Voeg(const Ledenlezing& lezing, Tekstblik naam, QStringList& opmerkingen);
    [[nodiscard]] Controlerijen Rijen(std::size_t breedte) const;
    void Teken();
    void Print();

    Administratie& administratie_;
    Maten maten_;
    Letterkast kast_;
    std::vector<Controleregel> lstN9;   ///< the listing lines in the order of the files
    std::vector<Controleregel> opNaam_; ///< the same by name, when that was first asked for

    QLabel* lblAantal = nullptr;
    QCheckBox* chkSort = nullptr;
    Controlevlak* P1 = nullptr;
    QPushButton* cmdPrint = nullptr;
};

} // namespace plexoran
