// The grid in its frame, `picP0`: header buttons, rows and both scroll bars.
#pragma once

#include <QPushButton>

#include <memory>

#include "mainwindow/roostervlak.h"

namespace plexoran {

class Maten;

class Rooster : public Schuifkader {
    Q_OBJECT

  public:
    Rooster(const Maten& maten, QWidget* ouder);

    /// Shows these rows of the table, which must outlive their display; clears the selection. The
    /// scroll bars keep their place as far as the rows reach.
    void Toon(const Spelertabel& tabel, Weergave weergave, const Kolommaten& celmaten,
              const std::array<Tekstblik, AantalKolommen>& kolomnamen);
    void ZetBreedteregel(Breedteregel regel);
    void NaarBoven() { Staand().setValue(0); }
    void BrengInBeeld(int regel) { P1->BrengInBeeld(regel); }

    /// The widths in the font of the grid.
    [[nodiscard]] const Tekstmeter& Meter() const { return inhoud_.meter; }
    [[nodiscard]] int Regel() const { return P1->Regel(); }
    void KiesRegel(int regel) { P1->KiesRegel(regel); }
    [[nodiscard]] int Regels() const { return inhoud_.Regels(); }
    [[nodiscard]] const Weergave& GetoondeRijen() const { return inhoud_.weergave; }
    /// The widget that has the keys of the grid.
    [[nodiscard]] QWidget* Toetsenvlak() const { return P1; }

  signals:
    void wijzigGevraagd();
    void verwijderGevraagd();

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

  private:
    void BouwHeader(const QFont& letter);
    void BerekenKolommen();
    void PlaatsKolommen();
    void StelSchuifbalkenIn();

    double pixelsPerMm_;
    Breedteregel breedteregel_ = Breedteregel::VolgensHeader;
    Roosterinhoud inhoud_;
    Roostervlak* P1;
    QWidget* P9; ///< clips the header
    QWidget* P2; ///< carries the header buttons
    std::array<QPushButton*, AantalKolommen> cmd{};
};

} // namespace plexoran
