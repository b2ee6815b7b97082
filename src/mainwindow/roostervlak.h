// The rows of the grid, `P1`: paints the lines and columns that are exposed, shows the selected
// line between two guide lines, and turns mouse and keys into line numbers.
#pragma once

#include <QFrame>

#include "mainwindow/roostermaten.h"
#include "mainwindow/weergave.h"
#include "platform/scherm/tabelvlak.h"

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

    /// The text of a cell as the grid shows it, by its line: a column without a name shows nothing.
    [[nodiscard]] Tekstblik Cel(int regel, std::size_t kolom) const
    {
        const int rij = weergave[static_cast<std::size_t>(regel - 1)];
        return rij > tabel->Rijen() || kolomnamen[kolom].empty()
                   ? Tekstblik()
                   : tabel->Cel(rij, static_cast<Kolom>(kolom + 1));
    }
};

class Roostervlak : public Tabelvlak {
    Q_OBJECT

  public:
    Roostervlak(const Roosterinhoud& inhoud, double pixelsPerMm, const Schuifkader& kader,
                QWidget* ouder);

    [[nodiscard]] int Regels() const override { return inhoud_.Regels(); }
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

} // namespace plexoran
