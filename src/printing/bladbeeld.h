// A page in its frame, `picP0`: scrolled by both bars, zoomed by Ctrl with the wheel or with plus
// and minus. At 100 % a millimetre of the page is one of the screen.
#pragma once

#include "platform/scherm/maten.h"
#include "platform/scherm/printer.h"
#include "platform/scherm/schildervlak.h"
#include "platform/scherm/schuifblad.h"
#include "printing/printblad.h"

namespace plexoran {

/// Pages to show and to print, whoever draws them.
struct Bladreeks {
    QString titel{}; ///< of the print job
    Papier papier{Papierstand::Staand};
    QString reden{}; ///< why it lies on its side, to be shown; empty for none
    int bladen = 1;  ///< that are shown and printed
    int totaal = 1;  ///< that there are
    Bladtekenaar teken{};
};

/// The page itself, `picP1`.
class Bladvlak : public QWidget {
  public:
    Bladvlak(const Bladreeks& reeks, const Letterkast& kast, QWidget* ouder);

    void Toon(int blad);
    void ZetSchaal(double pixelsPerMm);

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;

  private:
    const Bladreeks& reeks_;
    const Letterkast& kast_;
    int blad_ = 1;
    double pixelsPerMm_ = 1;
};

class Bladbeeld : public Schuifkader {
    Q_OBJECT

  public:
    /// Borrows the pages and the case of letters.
    Bladbeeld(const Bladreeks& reeks, const Letterkast& kast, QWidget* ouder);

    void Toon(int blad) { picP1->Toon(blad); }
    void ZetZoom(int procent);
    /// So many steps nearer or, below 0, farther.
    void Zoom(int stappen);

  signals:
    void zoomVeranderd(int procent);

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void wheelEvent(QWheelEvent* gebeurtenis) override;

  private:
    void StelBalken();
    void PlaatsBlad();

    double pixelsPerMm_; ///< at 100 %
    int zoom_ = 100;
    int draai_ = 0; ///< of the wheel with Ctrl, not yet a step
    QWidget* P9;    ///< clips the page
    Bladvlak* picP1;
};

} // namespace plexoran
