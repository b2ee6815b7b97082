// Shows a sorted list of players. It sorts nothing itself and paints only the lines that are seen.
#pragma once

#include <QDialog>
#include <QFrame>
#include <QPushButton>
#include <QScrollBar>

#include <functional>

#include "dialogs/sorteerkolommen.h"
#include "platform/scherm/maten.h"
#include "platform/tekst.h"

namespace plexoran {

/// What the viewer shows.
struct Sorteerbeeld {
    Sorteersoort soort = Sorteersoort::Key;
    bool importgroep = false; ///< of the group that the main window shows
    int regels = 0;
    std::function<Tekstblik(int)> regel; ///< six fields joined by ","; counted from 0
};

/// The surface `P1`: header and lines.
class Sorteervlak : public QWidget {
  public:
    Sorteervlak(const Sorteerbeeld& beeld, const Maten& maten, QWidget* ouder);

    /// Of the whole list, in pixels.
    [[nodiscard]] QSize Vlakmaat() const;
    [[nodiscard]] int Regelhoogte() const { return regelhoogte_; }
    /// The line on top, in pixels from the top of the list.
    void Schuif(int boven);
    /// The same from its left edge.
    void SchuifOpzij(int links);

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;

  private:
    /// Where a place on the list is in the surface.
    [[nodiscard]] int X(float breedtenA) const;
    [[nodiscard]] int Koptekst() const;
    void TekenKop(QPainter& schilder) const;
    void TekenLijnen(QPainter& schilder, int eerste, int laatste) const;
    void TekenRegel(QPainter& schilder, int regel) const;
    void TekenVeld(QPainter& schilder, int veld, int boven, const QString& tekst) const;

    const Sorteerbeeld& beeld_;
    Sorteerranden randen_;
    int breedteA_;
    int regelhoogte_;
    int boven_ = 0;
    int links_ = 0;
};

class diaSortlijst : public QDialog {
    Q_OBJECT

  public:
    diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster);

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void wheelEvent(QWheelEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    void Bouw();
    void ZetBij(const QWidget& hoofdvenster);
    void ZetSchuifbalk();

    Sorteerbeeld beeld_;
    Maten maten_;
    QFrame* Frame2;
    QWidget* P0;
    Sorteervlak* P1;
    QScrollBar* VScroll1;
    QScrollBar* HScroll1; ///< only there when the window is narrower than the list
    QPushButton* cmdOK;
};

} // namespace plexoran
