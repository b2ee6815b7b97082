// The rows of the grid, `P1`: paints the lines and columns that are exposed, shows the selected
// line between two guide lines, and turns mouse and keys into line numbers.
#pragma once

#include <QFrame>

#include "mainwindow/roostermaten.h"
#include "mainwindow/weergave.h"

namespace plexoran {

/// What the grid shows. `tabel` is borrowed; a line whose row it no longer has is drawn empty.
struct Roosterinhoud {
    const Spelertabel* tabel = nullptr;
    Weergave weergave;
    std::array<Tekstblik, AantalKolommen> kolomnamen = Kolomnamen;
    Kolommaten celmaten{};
    Kolommaten headermaten{};
    Kolomranden randen{};
    Tekstmeter meter;

    [[nodiscard]] int Regels() const { return static_cast<int>(weergave.size()); }

    /// The text of a cell as the grid shows it: a column without a name shows nothing.
    [[nodiscard]] Tekstblik Cel(int rij, std::size_t kolom) const
    {
        return kolomnamen[kolom].empty() ? Tekstblik()
                                         : tabel->Cel(rij, static_cast<Kolom>(kolom + 1));
    }
};

class Roostervlak : public QWidget {
    Q_OBJECT

  public:
    Roostervlak(const Roosterinhoud& inhoud, double pixelsPerMm, QWidget* ouder);

    /// Where the visible part begins on the surface, in pixels.
    void Schuif(QPoint begin);
    /// The selected line, 0 for none.
    [[nodiscard]] int Regel() const { return regel_; }
    void KiesRegel(int regel);
    /// Hides the guide lines; the selection stays.
    void VerbergLijnen();

    [[nodiscard]] QSize Vlakmaat() const;

  signals:
    void regelGekozen(int regel);
    void wijzigGevraagd();
    void verwijderGevraagd();
    /// Left and right: -1 or 1 step sideways.
    void opzij(int stappen);

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void mouseDoubleClickEvent(QMouseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;
    void focusInEvent(QFocusEvent* gebeurtenis) override;
    void focusOutEvent(QFocusEvent* gebeurtenis) override;

  private:
    [[nodiscard]] double X(double mm) const { return mm * pixelsPerMm_ - begin_.x(); }
    [[nodiscard]] double Y(double mm) const { return mm * pixelsPerMm_ - begin_.y(); }
    [[nodiscard]] int RegelOnder(QPointF plek) const;
    [[nodiscard]] int RegelsPerBladzij() const;
    [[nodiscard]] int Doelregel(int toets) const;
    void TekenRasters(QPainter& schilder, int eerste, int laatste) const;
    void TekenTeksten(QPainter& schilder, int regel, double links, double rechts) const;
    void PlaatsLijnen();
    void SpreekRegel();

    const Roosterinhoud& inhoud_;
    double pixelsPerMm_;
    QPoint begin_;
    int regel_ = 0;
    int laatsteRegel_ = 0; ///< where the arrows go on after a redisplay
    bool lijnenZichtbaar_ = false;
    QFrame* Line1;
    QFrame* Line2;
};

} // namespace plexoran
