// The number check: who of the members of the chosen member files lacks a federation number or a
// sex, before anything is imported.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "federation/controlelijst.h"
#include "federation/ledenbestand.h"
#include "platform/scherm/letterkast.h"
#include "platform/scherm/maten.h"
#include "register/administratie.h"

namespace plexoran {

/// The surface `P1`: the heading, and the rows from one on as far as they are seen.
class Controlevlak : public QWidget {
  public:
    Controlevlak(const Letterkast& kast, const Maten& maten, QWidget* ouder);

    /// Borrows the rows, until others come.
    void Toon(const Controlerijen* rijen);
    /// The row on top, counted from 0.
    void Schuif(int rij);
    /// How many characters are seen beside each other, and how many rows below each other whole.
    [[nodiscard]] std::size_t Breedte() const;
    [[nodiscard]] int ZichtbareRijen() const;
    /// The size at which so many characters and rows are seen.
    [[nodiscard]] QSize Maat(int tekens, int rijen) const;

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;

  private:
    const Letterkast& kast_;
    double pixelsPerMm_;
    const Controlerijen* rijen_ = nullptr;
    int eerste_ = 0;
};

class diaControleNBB : public QDialog {
    Q_OBJECT

  public:
    /// Reads the member files, which may take a while and may show boxes of errors.
    diaControleNBB(Administratie& administratie, const Ledenopdracht& opdracht,
                   const std::vector<Tekst>& namen, QWidget* ouder);

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void wheelEvent(QWheelEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Bouw();
    void Verbind();
    void Lees(const Ledenopdracht& opdracht, const std::vector<Tekst>& namen);
    void Voeg(const Ledenlezing& lezing, Tekstblik naam, QStringList& opmerkingen);
    void MeldOpmerkingen(const QStringList& opmerkingen);
    [[nodiscard]] Controlerijen Rijen(std::size_t breedte) const;
    void Teken();
    void Print();
    void ZetSchuifbalk();

    Administratie& administratie_;
    Maten maten_;
    Letterkast kast_;
    std::vector<Controleregel> lstN9; ///< the listing lines in the order of the files
    std::vector<std::size_t> opNaam_; ///< made when it is first asked for
    std::unique_ptr<Controlerijen> rijen_;

    QFrame* Frame2 = nullptr;
    QLabel* lblAantal = nullptr;
    QCheckBox* chkSort = nullptr;
    Controlevlak* P1 = nullptr;
    QScrollBar* VScroll1 = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdTerug = nullptr;
};

} // namespace plexoran
