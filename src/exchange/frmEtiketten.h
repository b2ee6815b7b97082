// Labels and badges of players: what stands on them and on which sheets, with the first of these.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "exchange/etiketvel.h"
#include "platform/scherm/regellijst.h"
#include "platform/scherm/tekstvak.h"
#include "printing/bladbeeld.h"
#include "register/administratie.h"

namespace plexoran {

class frmEtiketten : public QDialog {
    Q_OBJECT

  public:
    /// For these players. May tell, in a box of `ouder`, that the own sheet cannot be read.
    frmEtiketten(Administratie& administratie, std::vector<int> rijen, QWidget* ouder);

    /// Keeps the own sheet, if it was changed and is one.
    void done(int uitslag) override;

  private:
    void Bouw();
    [[nodiscard]] QLayout* BouwKeuzes();
    [[nodiscard]] QGroupBox* BouwMaten();
    void LeesEigen(QWidget* ouder);
    void KiesVel();
    void MaakEtiketten();
    void PasToe();
    void ToonAandacht();
    void Print();

    Administratie& administratie_;
    std::vector<int> rijen_;
    Letterkast kast_;
    Etiketmaat gelezen_{}; ///< the own sheet as the file has it
    Etiketmaat eigen_{};
    Etiketwerk werk_{};
    std::vector<int> zonderAdres_;
    Bladreeks reeks_; ///< as it is shown beside the choices

    QComboBox* cmbSoort = nullptr;
    QCheckBox* chkFamilie = nullptr;
    QLabel* lblOnderschrift = nullptr;
    Tekstvak* txtOnderschrift = nullptr;
    QComboBox* cmbVolgorde = nullptr;
    QComboBox* cmbVel = nullptr;
    std::array<QDoubleSpinBox*, Etiketmaten.size()> maten_{};
    QDoubleSpinBox* spnEerste = nullptr;
    QCheckBox* chkKader = nullptr;
    QLabel* lblAantal = nullptr;
    Regellijst* lstAandacht = nullptr;
    Bladbeeld* picP0 = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace plexoran
