#include "printing/bladbeeld.h"

#include <QAccessibleWidget>
#include <QWheelEvent>

#include <algorithm>
#include <array>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr double BladPlaats = 3; // millimetres from the top left corner of the frame
constexpr int RadPerStap = 120;  // of a wheel
constexpr std::array Zoomstappen{25,  33,  50,  67,  75,  80,  90,  100,
                                 110, 125, 150, 175, 200, 250, 300, 400};

QAccessibleInterface* MaakSpreker(const QString& /*soort*/, QObject* object)
{
    auto* beeld = qobject_cast<Bladbeeld*>(object);
    return beeld == nullptr ? nullptr : new QAccessibleWidget(beeld, QAccessible::Graphic);
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

Bladvlak::Bladvlak(const Bladreeks& reeks, const Letterkast& kast, QWidget* ouder)
    : QWidget(ouder), reeks_(reeks), kast_(kast)
{
    Noem(this, u"picP1"_s, u"Blad"_s);
    QPalette palet = palette();
    palet.setColor(QPalette::Window, Qt::white);
    setPalette(palet);
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
}

void Bladvlak::Toon(int blad)
{
    blad_ = blad;
    setAccessibleDescription(u"Blad %1 van %2"_s.arg(blad).arg(reeks_.totaal));
    update();
}

void Bladvlak::ZetSchaal(double pixelsPerMm)
{
    const Papier& papier = reeks_.papier;
    pixelsPerMm_ = pixelsPerMm;
    resize(qRound(papier.breed * pixelsPerMm), qRound(papier.hoog * pixelsPerMm));
    update();
}

void Bladvlak::paintEvent(QPaintEvent* /*gebeurtenis*/)
{
    QPainter schilder(this);
    Schildervlak vlak(schilder, kast_, pixelsPerMm_, Schildervlak::Doel::Scherm);
    reeks_.teken(vlak, blad_);
    schilder.setPen(Qt::gray);
    schilder.drawRect(rect().adjusted(0, 0, -1, -1));
}

// ---------------------------------------------------------------- its frame

Bladbeeld::Bladbeeld(const Bladreeks& reeks, const Letterkast& kast, QWidget* ouder)
    : Schuifkader(u"picP0"_s, Maten(), ouder), pixelsPerMm_(logicalDpiX() / MmPerInch),
      P9(new QWidget(this)), picP1(new Bladvlak(reeks, kast, P9))
{
    QAccessible::installFactory(MaakSpreker); // which Qt does once
    setAccessibleName(u"Afdrukvoorbeeld"_s);
    setFocusPolicy(Qt::StrongFocus);
    Noem(P9, u"P9"_s);
    P9->setBackgroundRole(QPalette::Mid);
    P9->setAutoFillBackground(true);
    Bevat(P9);
    for (QScrollBar* balk : {&Staand(), &Liggend()})
        connect(balk, &QScrollBar::valueChanged, this, &Bladbeeld::PlaatsBlad);
    picP1->ZetSchaal(pixelsPerMm_);
}

void Bladbeeld::ZetZoom(int procent)
{
    const double staand = Midden(Staand());
    const double liggend = Midden(Liggend());
    zoom_ = std::clamp(procent, Zoomstappen.front(), Zoomstappen.back());
    picP1->ZetSchaal(pixelsPerMm_ * zoom_ / 100);
    StelBalken();
    ZetMidden(Staand(), staand);
    ZetMidden(Liggend(), liggend);
    emit zoomVeranderd(zoom_);
}

void Bladbeeld::Zoom(int stappen)
{
    const auto nu = std::lower_bound(Zoomstappen.begin(), Zoomstappen.end(), zoom_);
    const auto plaats = static_cast<int>(nu - Zoomstappen.begin()) + stappen;
    ZetZoom(Zoomstappen.at(
        static_cast<std::size_t>(std::clamp(plaats, 0, static_cast<int>(Zoomstappen.size()) - 1))));
}

void Bladbeeld::resizeEvent(QResizeEvent* gebeurtenis)
{
    Schuifkader::resizeEvent(gebeurtenis);
    StelBalken();
}

void Bladbeeld::StelBalken()
{
    const int rand = qRound(2 * BladPlaats * pixelsPerMm_);
    const auto stel = [&](QScrollBar& balk, int blad, int zichtbaar) {
        Stel(balk, blad + rand, zichtbaar, zichtbaar, zichtbaar / 10);
    };
    stel(Liggend(), picP1->width(), P9->width());
    stel(Staand(), picP1->height(), P9->height());
    PlaatsBlad();
}

void Bladbeeld::PlaatsBlad()
{
    const int rand = qRound(BladPlaats * pixelsPerMm_);
    picP1->move(rand - Liggend().value(), rand - Staand().value());
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
    Schuifkader::wheelEvent(gebeurtenis);
}

} // namespace plexoran
