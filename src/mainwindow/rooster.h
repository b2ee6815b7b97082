// The grid of the main window: `picP0`, a frame with header buttons and both scroll bars around the
// rows, `P1`.
#pragma once

#include <QFrame>
#include <QPushButton>

#include "mainwindow/weergave.h"
#include "platform/scherm/tabelvlak.h"

namespace plexoran {

class Maten;

inline constexpr int Greep = 4; ///< pixels beside an edge of the header by which it is held

/// Paints the lines and columns that are exposed, shows the selected line between two guide lines,
/// and turns mouse and keys into line numbers.
class Roostervlak : public Tabelvlak {
    Q_OBJECT

  public:
    Roostervlak(const Maten& maten, const Schuifkader& kader, QWidget* ouder);

    /// Shows these rows of the table, which must outlive their display; clears the selection.
    void Toon(const Spelertabel& tabel, Weergave weergave, const Namenrij& kolomnamen);
    void ZetBreedteregel(Breedteregel regel);
    void ZetKeuzes(const Kolomkeuzes& keuzes);
    [[nodiscard]] const Kolomkeuzes& Keuzes() const { return keuzes_; }
    /// The choices with which the least is cut, in the width that there is.
    [[nodiscard]] Kolomkeuzes Verdeeld() const;
    /// In which all of a column stands whole.
    [[nodiscard]] double Passend(std::size_t kolom) const;

    [[nodiscard]] int Regels() const override { return static_cast<int>(weergave_.size()); }
    /// The table row on each line.
    [[nodiscard]] const Weergave& Rijen() const { return weergave_; }
    [[nodiscard]] const Kolomranden& Randen() const { return randen_; }
    [[nodiscard]] int Kolommen() const override { return AantalKolommen; }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override;
    [[nodiscard]] double Boven(int regel) const override { return Y(BovenkantVan(regel)); }
    [[nodiscard]] double Links(int kolom) const override
    {
        return X(randen_[static_cast<std::size_t>(kolom)]);
    }
    [[nodiscard]] double Koponder() const override { return rooster::Bovenmarge * pixelsPerMm_; }
    void Kies(int regel, std::vector<int> gekozen) override;

    /// Hides the guide lines; the selection stays.
    void VerbergLijnen();
    /// Puts the guide lines where the selected line is now.
    void PlaatsLijnen();
    /// Of all lines and columns.
    [[nodiscard]] QSize Vlakmaat() const;

  signals:
    void wijzigGevraagd();
    void verwijderGevraagd();
    void menuGevraagd(QPoint plek); ///< on the screen

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void mouseDoubleClickEvent(QMouseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;
    void contextMenuEvent(QContextMenuEvent* gebeurtenis) override;
    [[nodiscard]] bool IsIngekort(int regel, int kolom) const override;

  private:
    [[nodiscard]] double X(double mm) const
    {
        return mm * pixelsPerMm_ - Kader().Liggend().value();
    }
    [[nodiscard]] double Y(double mm) const { return mm * pixelsPerMm_ - Kader().Staand().value(); }
    /// The text of a cell as the grid shows it: a row that the table no longer has and a column
    /// without a name show nothing.
    [[nodiscard]] Tekstblik Cel(int regel, std::size_t kolom) const;
    void TekenRasters(QPainter& schilder, int eerste, int laatste) const;
    void TekenTeksten(QPainter& schilder, int regel, double links, double rechts) const;

    double pixelsPerMm_;
    Tekstmeter meter_;
    const Spelertabel* tabel_ = nullptr;
    Weergave weergave_;
    Namenrij kolomnamen_ = Kolomnamen;
    Breedteregel breedteregel_ = Breedteregel::VolgensHeader;
    Kolommaten celmaten_{};
    Kolommaten headermaten_{};
    Kolomkeuzes keuzes_{};
    Kolomranden randen_{};
    bool lijnenZichtbaar_ = false;
    QFrame* Line1;
    QFrame* Line2;
};

class Rooster : public Schuifkader {
    Q_OBJECT

  public:
    Rooster(const Maten& maten, QWidget* ouder);

    /// The scroll bars keep their place as far as the rows reach.
    void Toon(const Spelertabel& tabel, Weergave weergave, const Namenrij& kolomnamen);
    void ZetBreedteregel(Breedteregel regel);
    void Kies(const Kolomkeuzes& keuzes);
    /// Shows by which column the lines are sorted; nothing for none.
    void MerkVolgorde(std::optional<Kolom> kolom);
    void NaarBoven() { Staand().setValue(0); }
    /// Has the keys of the grid.
    [[nodiscard]] Roostervlak* Vlak() const { return P1; }
    /// The edges of the header can be dragged; a double click on one fits its column.
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

  signals:
    void gekozen(const Kolomkeuzes& keuzes);
    /// The menu of a column, 0 for none, is asked for there on the screen.
    void kopmenuGevraagd(int kolom, QPoint plek);

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    void PlaatsKolommen();
    // The edges of the header (rooster_kop.cpp)
    [[nodiscard]] int RandBij(double x) const;
    void Versleep(double x);
    void LaatLos();
    void Pas(int kolom);

    double pixelsPerMm_;
    Roostervlak* P1;
    QWidget* P9; ///< clips the header
    QWidget* P2; ///< carries the header buttons
    std::array<QPushButton*, AantalKolommen> cmd{};
    int sleept_ = 0; ///< the column whose right edge is held
    bool versleept_ = false;
};

} // namespace plexoran
