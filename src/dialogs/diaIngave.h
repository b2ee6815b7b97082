// Entering or changing one player. It shows the 18 texts of a row and hands them back; adding,
// replacing and saving are the main window's.
#pragma once

#include <QButtonGroup>
#include <QDialog>

#include <functional>

#include "dialogs/ingave.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/tekstvak.h"

class QGridLayout;

namespace plexoran {

class diaIngave : public QDialog {
    Q_OBJECT

  public:
    /// `Terugkeerveld` is read when the dialog opens and written when another one is picked, after
    /// which `bewaar` is called.
    diaIngave(Ingave& ingave, std::int16_t& Terugkeerveld, std::function<void()> bewaar,
              QWidget* hoofdvenster);

  protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;
    void changeEvent(QEvent* gebeurtenis) override;

  private:
    [[nodiscard]] QWidget* BouwVelden();
    void BouwVeld(int veld, QGridLayout* rooster);
    [[nodiscard]] QWidget* BouwGeslacht(QWidget* velden);
    void BouwHulp(QGridLayout* rooster, int rij);
    void BouwTerugkeerkeuzen(QGridLayout* rooster);
    [[nodiscard]] QLayout* BouwVoet();
    void ToonGroep();
    void KleurVelden();
    [[nodiscard]] QString Opschrift(Kolom kolom) const;

    void Verlaat(int veld);
    void MeldReparaties();
    void KiesTerugkeerveld(int veld);
    void GaNaar(int veld);
    /// True when everything was handed back; false, which it told, when there is no surname.
    [[nodiscard]] bool IngaveControle();

    [[nodiscard]] Tekstvak* Vak(int veld) const { return txt1[veld - 1]; }
    [[nodiscard]] Tekstvak* Vak(Kolom veld) const { return Vak(static_cast<int>(veld)); }

    Ingave& ingave_;
    std::int16_t& Terugkeerveld;
    std::function<void()> bewaar_;
    Maten maten_;
    std::vector<Reparatie> teMelden_;

    QList<Tekstvak*> txt1; ///< of the columns in their order
    QButtonGroup* opt1;    ///< by column number
};

} // namespace plexoran
