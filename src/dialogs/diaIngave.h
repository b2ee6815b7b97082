// Entering or changing one player. It shows the 18 texts of a row and hands them back; adding,
// replacing and saving are the main window's.
#pragma once

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <functional>

#include "dialogs/ingave.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/schuifblad.h"
#include "platform/scherm/tekstvak.h"

namespace plexoran {

class diaIngave : public QDialog {
    Q_OBJECT

  public:
    /// `Terugkeerveld` is read when the dialog opens and written when another one is picked, after
    /// which `bewaar` is called.
    diaIngave(Ingave& ingave, std::int16_t& Terugkeerveld, std::function<void()> bewaar,
              QWidget* hoofdvenster);

    void reject() override;

  protected:
    void showEvent(QShowEvent* gebeurtenis) override;
    void closeEvent(QCloseEvent* gebeurtenis) override;
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    void Bouw();
    void BouwVelden();
    void BouwVeld(int veld);
    void BouwGeslacht();
    void BouwHulp();
    void PasVeldenAanGroepAan();
    [[nodiscard]] QFont Groepsletter(const QString& tekst) const;
    void StelTabvolgordeIn();
    void PlaatsDelen();
    void PlaatsVelden();
    void PlaatsNaastHoofdvenster();
    void Activeer();

    void Verlaat(int veld);
    void MeldReparaties();
    void KiesTerugkeerveld(int veld);
    void GaNaar(int veld);
    void KiesGeslacht(const QString& letter);
    void ToonHulp();
    /// True when the dialog may close: cancelled, or with a surname and everything handed back.
    [[nodiscard]] bool IngaveControle();

    [[nodiscard]] Tekstvak* Vak(int veld) const { return txt1[static_cast<std::size_t>(veld)]; }
    [[nodiscard]] Tekstvak* Vak(Kolom veld) const { return Vak(static_cast<int>(veld)); }

    template <class T> using PerVeld = std::array<T*, AantalKolommen + 1>; // element 0 is unused

    Ingave& ingave_;
    std::int16_t& Terugkeerveld;
    std::function<void()> bewaar_;
    QWidget* hoofdvenster_;
    QWidget* velden_ = nullptr; ///< what scrolls on a low screen
    Maten maten_;
    bool geactiveerd_ = false;
    std::vector<Reparatie> teMelden_;

    PerVeld<QLabel> lbl1{};
    PerVeld<Tekstvak> txt1{};
    PerVeld<QRadioButton> opt1{};
    QWidget* Frame1 = nullptr;
    QRadioButton* optMan = nullptr;
    QRadioButton* optVrouw = nullptr;
    QPushButton* cmdH = nullptr;
    Schuifblad* blad_ = nullptr;
    QPushButton* cmdOK;
    QPushButton* cmdAnnuleren;
    QLabel* Label1;
    QLabel* Label2;
};

} // namespace plexoran
