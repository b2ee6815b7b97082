// The number check: who of the members of the chosen member files lacks a federation number or a
// sex, before anything is imported.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "federation/controlelijst.h"
#include "federation/ledenbestand.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/schildervlak.h"
#include "platform/scherm/tabelvlak.h"
#include "register/administratie.h"

namespace plexoran {

/// The surface `P1`: the heading, and the rows from one on as far as they are seen. A unit of the
/// standing bar is a row.
class Controlevlak : public Tabelvlak {
    Q_OBJECT

  public:
    Controlevlak(const Letterkast& kast, const Maten& maten, const Schuifkader& kader,
                 QWidget* ouder);

    [[nodiscard]] int Regels() const override { return static_cast<int>(rijen_.Aantal()); }
    [[nodiscard]] int Kolommen() const override { return AantalControlekolommen; }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override;
    [[nodiscard]] double Boven(int regel) const override;
    [[nodiscard]] double Links(int kolom) const override;
    [[nodiscard]] double Koponder() const override;

    void Toon(Controlerijen rijen);
    /// How many characters are seen beside each other.
    [[nodiscard]] std::size_t Breedte() const;
    /// The size at which so many characters and rows are seen.
    [[nodiscard]] QSize Maat(int tekens, int rijen) const;

  signals:
    /// Other rows may fit.
    void geschaald();

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    /// How many rows are seen below each other whole.
    [[nodiscard]] int ZichtbareRijen() const;

    const Letterkast& kast_;
    double pixelsPerMm_;
    Controlerijen rijen_;
};

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
