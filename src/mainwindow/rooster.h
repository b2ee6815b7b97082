// The grid of the main window: `picP0`, a frame with header buttons and both scroll bars around the
// rows, `P1`.
#pragma once

#include <QFrame>
#include <QPushButton>

#include "mainwindow/roostermaten.h"
#include "mainwindow/weergave.h"
#include "platform/scherm/tabelvlak.h"

namespace plexoran {

class Maten;

/// What the grid shows. `tabel` is borrowed; a line whose row it no longer has is drawn empty.
struct Roosterinhoud {
    const Spelertabel* tabel = nullptr;
    Weergave weergave;
    std::array<Tekstblik, AantalKolommen> kolomnamen = Kolomnamen;
    Kolomranden randen{};
    Tekstmeter meter;

    /// The text of a cell as the grid shows it, by its line: a column without a name shows nothing.
    [[nodiscard]] Tekstblik Cel(int regel, std::size_t kolom) const
    {
        const int rij = weergave[static_cast<std::size_t>(regel - 1)];
        return rij > tabel->Rijen() || kolomnamen[kolom].empty()
                   ? Tekstblik()
                   : tabel->Cel(rij, static_cast<Kolom>(kolom + 1));
    }
};

/// Paints the lines and columns that are exposed, shows the selected line between two guide lines,
/// and turns mouse and keys into line numbers.
class Roostervlak : public Tabelvlak {
    Q_OBJECT

  public:
    Roostervlak(const Roosterinhoud& inhoud, double pixelsPerMm, const Schuifkader& kader,
                QWidget* ouder);

    [[nodiscard]] int Regels() const override { return static_cast<int>(inhoud_.weergave.size()); }
    /// The table row on each line.
    [[nodiscard]] const Weergave& Rijen() const { return inhoud_.weergave; }
    [[nodiscard]] int Kolommen() const override { return AantalKolommen; }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override;
    [[nodiscard]] double Boven(int regel) const override { return Y(BovenkantVan(regel)); }
    [[nodiscard]] double Links(int kolom) const override
    {
        return X(inhoud_.randen[static_cast<std::size_t>(kolom)]);
    }
    [[nodiscard]] double Koponder() const override { return rooster::Bovenmarge * pixelsPerMm_; }
    void KiesRegel(int regel) override;

    /// Hides the guide lines; the selection stays.
    void VerbergLijnen();
    /// Puts the guide lines where the selected line is now.
    void PlaatsLijnen();
    /// Of all lines and columns.
    [[nodiscard]] QSize Vlakmaat() const;

  signals:
    void wijzigGevraagd();
    void verwijderGevraagd();

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void mouseDoubleClickEvent(QMouseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

  private:
    [[nodiscard]] double X(double mm) const
    {
        return mm * pixelsPerMm_ - Kader().Liggend().value();
    }
    [[nodiscard]] double Y(double mm) const { return mm * pixelsPerMm_ - Kader().Staand().value(); }
    void TekenRasters(QPainter& schilder, int eerste, int laatste) const;
    void TekenTeksten(QPainter& schilder, int regel, double links, double rechts) const;

    const Roosterinhoud& inhoud_;
    double pixelsPerMm_;
    bool lijnenZichtbaar_ = false;
    QFrame* Line1;
    QFrame* Line2;
};

class Rooster : public Schuifkader {
    Q_OBJECT

  public:
    Rooster(const Maten& maten, QWidget* ouder);

    /// Shows these rows of the table, which must outlive their display; clears the selection. The
    /// scroll bars keep their place as far as the rows reach.
    void Toon(const Spelertabel& tabel, Weergave weergave,
              const std::array<Tekstblik, AantalKolommen>& kolomnamen);
    void ZetBreedteregel(Breedteregel regel);
    void NaarBoven() { Staand().setValue(0); }
    /// Has the keys of the grid.
    [[nodiscard]] Roostervlak* Vlak() const { return P1; }

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    void BouwHeader(const QFont& letter);
    void PlaatsKolommen();
    void StelSchuifbalkenIn();

    double pixelsPerMm_;
    Breedteregel breedteregel_ = Breedteregel::VolgensHeader;
    Kolommaten celmaten_{};
    Kolommaten headermaten_{};
    Roosterinhoud inhoud_;
    Roostervlak* P1;
    QWidget* P9; ///< clips the header
    QWidget* P2; ///< carries the header buttons
    std::array<QPushButton*, AantalKolommen> cmd{};
};

} // namespace plexoran
