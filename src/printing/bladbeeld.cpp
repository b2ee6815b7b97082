#include "printing/bladbeeld.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

constexpr int BalkdikteTwips = 280;
constexpr double BladPlaats = 3; // millimetres from the top left corner of the frame
constexpr int RadPerStap = 120;  // of a wheel
constexpr std::array Zoomstappen{25,  33,  50,  67,  75,  80,  90,  100,
                                 110, 125, 150, 175, 200, 250, 300, 400};

QScrollBar* MaakBalk(Qt::Orientation richting, const QString& naam, const QString& gesproken,
                     QWidget* ouder)
{
    auto* balk = new QScrollBar(richting, ouder);
    Noem(balk, naam, gesproken);
    balk->setAttribute(Qt::WA_NoMousePropagation); // a wheel at its end must not come back
    balk->setFocusPolicy(Qt::NoFocus);
    return balk;
}

/// Where the middle of what is in view lies, as a part of the whole; the top or the left where the
/// view stands against it.
double Midden(const QScrollBar& balk)
{
    if (balk.value() == 0)
        return 0;
    const double geheel = balk.maximum() + balk.pageStep();
    return (balk.value() + balk.pageStep() / 2.0) / geheel;
}

void ZetMidden(QScrollBar& balk, double midden)
{
    const double geheel = balk.maximum() + balk.pageStep();
    balk.setValue(qRound(midden * geheel - balk.pageStep() / 2.0));
}

} // namespace

// ---------------------------------------------------------------- the page

Bladvlak::Bladvlak(const Printlijst& lijst, const Letterkast& kast, QWidget* ouder)
    : QWidget(ouder), lijst_(lijst), kast_(kast)
{
    Noem(this, QStringLiteral("picP1"), QStringLiteral("Blad"));
    QPalette palet = palette();
    palet.setColor(QPalette::Window, Qt::white);
    setPalette(palet);
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
}

void Bladvlak::Toon(int blad)
{
    blad_ = blad;
    setAccessibleDescription(
        QStringLiteral("Blad %1 van %2").arg(blad).arg(lijst_.indeling.bladen));
    update();
}

void Bladvlak::ZetSchaal(double pixelsPerMm)
{
    const Papier& papier = lijst_.indeling.papier;
    pixelsPerMm_ = pixelsPerMm;
    resize(qRound(papier.breed * pixelsPerMm), qRound(papier.hoog * pixelsPerMm));
    update();
}

void Bladvlak::paintEvent(QPaintEvent* /*gebeurtenis*/)
{
    QPainter schilder(this);
    Schildervlak vlak(schilder, kast_, pixelsPerMm_, Schildervlak::Doel::Scherm);
    TekenBlad(vlak, lijst_, blad_);
    schilder.setPen(Qt::gray);
    schilder.drawRect(rect().adjusted(0, 0, -1, -1));
}

// ---------------------------------------------------------------- its frame

Bladbeeld::Bladbeeld(const Printlijst& lijst, const Letterkast& kast, const Maten& maten,
                     QWidget* ouder)
    : QFrame(ouder), lijst_(lijst), balkdikte_(maten.Twips(BalkdikteTwips)),
      pixelsPerMm_(SchermPixelsPerMm(*this)), P9(new QWidget(this)),
      picP1(new Bladvlak(lijst, kast, P9)),
      HScroll1(MaakBalk(Qt::Horizontal, QStringLiteral("HScroll1"),
                        QStringLiteral("Blad opzij verschuiven"), this)),
      VScroll1(MaakBalk(Qt::Vertical, QStringLiteral("VScroll1"),
                        QStringLiteral("Blad op en neer verschuiven"), this))
{
    Noem(this, QStringLiteral("picP0"), QStringLiteral("Afdrukvoorbeeld"));
    Noem(P9, QStringLiteral("P9"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
    P9->setBackgroundRole(QPalette::Mid);
    P9->setAutoFillBackground(true);
    for (QScrollBar* balk : {HScroll1, VScroll1})
        connect(balk, &QScrollBar::valueChanged, this, &Bladbeeld::PlaatsBlad);
    picP1->ZetSchaal(pixelsPerMm_);
}

void Bladbeeld::Toon(int blad)
{
    picP1->Toon(blad);
}

void Bladbeeld::ZetZoom(int procent)
{
    const double staand = Midden(*VScroll1);
    const double liggend = Midden(*HScroll1);
    zoom_ = std::clamp(procent, Zoomstappen.front(), Zoomstappen.back());
    picP1->ZetSchaal(pixelsPerMm_ * zoom_ / 100);
    PlaatsDelen();
    ZetMidden(*VScroll1, staand);
    ZetMidden(*HScroll1, liggend);
    emit zoomVeranderd(zoom_);
}

void Bladbeeld::Zoom(int stappen)
{
    const auto nu = std::lower_bound(Zoomstappen.begin(), Zoomstappen.end(), zoom_);
    const auto plaats = static_cast<int>(nu - Zoomstappen.begin()) + stappen;
    ZetZoom(Zoomstappen.at(
        static_cast<std::size_t>(std::clamp(plaats, 0, static_cast<int>(Zoomstappen.size()) - 1))));
}

void Bladbeeld::paintEvent(QPaintEvent* gebeurtenis)
{
    QFrame::paintEvent(gebeurtenis);
    if (!hasFocus())
        return;
    QPainter schilder(this);
    schilder.setPen(palette().color(QPalette::Highlight));
    schilder.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Bladbeeld::resizeEvent(QResizeEvent* gebeurtenis)
{
    QFrame::resizeEvent(gebeurtenis);
    PlaatsDelen();
}

void Bladbeeld::PlaatsDelen()
{
    const QRect binnen = contentsRect();
    const QRect vlak = binnen.adjusted(0, 0, -balkdikte_, -balkdikte_);
    P9->setGeometry(vlak);
    VScroll1->setGeometry(vlak.right() + 1, vlak.top(), balkdikte_, vlak.height());
    HScroll1->setGeometry(vlak.left(), vlak.bottom() + 1, vlak.width(), balkdikte_);
    const int rand = qRound(2 * BladPlaats * pixelsPerMm_);
    const auto stel = [&](QScrollBar* balk, int blad, int zichtbaar) {
        balk->setRange(0, std::max(0, blad + rand - zichtbaar));
        balk->setPageStep(std::max(1, zichtbaar));
        balk->setSingleStep(std::max(1, zichtbaar / 10));
        balk->setEnabled(balk->maximum() > 0);
    };
    stel(HScroll1, picP1->width(), vlak.width());
    stel(VScroll1, picP1->height(), vlak.height());
    PlaatsBlad();
}

void Bladbeeld::PlaatsBlad()
{
    const int rand = qRound(BladPlaats * pixelsPerMm_);
    picP1->move(rand - HScroll1->value(), rand - VScroll1->value());
}

void Bladbeeld::wheelEvent(QWheelEvent* gebeurtenis)
{
    if (gebeurtenis->modifiers().testFlag(Qt::ControlModifier)) {
        // Fine wheels turn in parts of a step.
        draai_ += gebeurtenis->angleDelta().y();
        if (const int stappen = draai_ / RadPerStap; stappen != 0) {
            draai_ -= stappen * RadPerStap;
            Zoom(stappen);
        }
        gebeurtenis->accept();
        return;
    }
    const QPoint hoek = gebeurtenis->angleDelta();
    const bool opzij = std::abs(hoek.x()) > std::abs(hoek.y());
    QApplication::sendEvent(opzij ? HScroll1 : VScroll1, gebeurtenis);
}

} // namespace plexoran
