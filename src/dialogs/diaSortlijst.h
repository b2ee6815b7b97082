// Shows a sorted list of players. It sorts nothing itself and paints only the lines that are seen.
#pragma once

#include <QDialog>
#include <QPushButton>

#include <functional>

#include "dialogs/sorteerkolommen.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/tabelvlak.h"
#include "platform/tekst/tekst.h"

namespace plexoran {

/// What the viewer shows.
struct Sorteerbeeld {
    Sorteersoort soort = Sorteersoort::Key;
    bool importgroep = false; ///< of the group that the main window shows
    int regels = 0;
    std::function<Tekstblik(int)> regel; ///< six fields joined by ","; counted from 0
};

/// The surface `P1`: header and lines. The header scrolls along.
class Sorteervlak : public Tabelvlak {
    Q_OBJECT

  public:
    Sorteervlak(const Sorteerbeeld& beeld, const Maten& maten, const Schuifkader& kader,
                QWidget* ouder);

    [[nodiscard]] int Regels() const override { return beeld_.regels; }
    [[nodiscard]] int Kolommen() const override { return AantalSorteervelden; }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override;
    [[nodiscard]] double Boven(int regel) const override { return Y(regel); }
    [[nodiscard]] double Links(int kolom) const override
    {
        return X(randen_[static_cast<std::size_t>(kolom)]);
    }
    [[nodiscard]] double Koponder() const override { return Y(1); }

    /// Of the whole list, in pixels.
    [[nodiscard]] QSize Vlakmaat() const;

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    /// Where a place on the list is in the surface, and the top of a line.
    [[nodiscard]] int X(float breedtenA) const;
    [[nodiscard]] int Y(int regel) const;
    void TekenKop(QPainter& schilder) const;
    void TekenLijnen(QPainter& schilder, int eerste, int laatste) const;
    void TekenRegel(QPainter& schilder, int regel) const;
    void TekenVeld(QPainter& schilder, int veld, int boven, const QString& tekst) const;

    const Sorteerbeeld& beeld_;
    Sorteerranden randen_;
    int breedteA_;
    int regelhoogte_;
};

class diaSortlijst : public QDialog {
    Q_OBJECT

  public:
    diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster);

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Bouw();
    void ZetBij(const QWidget& hoofdvenster);

    Sorteerbeeld beeld_;
    Maten maten_;
    Schuifkader* Frame2; ///< its lying bar is there when the window is narrower than the list
    QWidget* P0;
    Sorteervlak* P1;
    QPushButton* cmdOK;
};

} // namespace plexoran
