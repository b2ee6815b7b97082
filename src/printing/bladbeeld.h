// A page in its frame, `picP0`: scrolled by both bars, zoomed by Ctrl with the wheel or with plus
// and minus. At 100 % a millimetre of the page is one of the screen.
#pragma once

#include "platform/scherm/maten.h"
#include "platform/scherm/schildervlak.h"
#include "platform/scherm/schuifblad.h"
#include "printing/printblad.h"

namespace plexoran {

/// The page itself, `picP1`.
class Bladvlak : public QWidget {
  public:
    Bladvlak(const Printlijst& lijst, const Letterkast& kast, QWidget* ouder);

    void Toon(int blad);
    void ZetSchaal(double pixelsPerMm);

  protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;

  private:
    const Printlijst& lijst_;
    const Letterkast& kast_;
    int blad_ = 1;
    double pixelsPerMm_ = 1;
};

class Bladbeeld : public Schuifkader {
    Q_OBJECT

  public:
    /// Borrows the list and the case of letters.
    Bladbeeld(const Printlijst& lijst, const Letterkast& kast, QWidget* ouder);

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
