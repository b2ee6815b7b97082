#include "mainwindow/roostervlak.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr QColor bandkleur(235, 235, 235);
constexpr QColor lijnkleur(200, 200, 200);
constexpr int KolommenInBand = 3; // Nr, Key and Groep: what the user never types
constexpr int Lijndikte = 2;

QFrame* MaakLijn(const QString& naam, QWidget* ouder)
{
    auto* lijn = new QFrame(ouder);
    Noem(lijn, naam);
    lijn->setAutoFillBackground(true);
    lijn->setBackgroundRole(QPalette::Highlight);
    lijn->setAttribute(Qt::WA_TransparentForMouseEvents);
    lijn->hide();
    return lijn;
}

} // namespace

Roostervlak::Roostervlak(const Roosterinhoud& inhoud, double pixelsPerMm, QWidget* ouder)
    : QWidget(ouder), inhoud_(inhoud), pixelsPerMm_(pixelsPerMm),
      Line1(MaakLijn(QStringLiteral("Line1"), this)), Line2(MaakLijn(QStringLiteral("Line2"), this))
{
    Noem(this, QStringLiteral("P1"), QStringLiteral("Spelers van de groep"));
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void Roostervlak::Schuif(QPoint begin)
{
    begin_ = begin;
    PlaatsLijnen();
    update();
}

void Roostervlak::KiesRegel(int regel)
{
    regel_ = regel;
    if (regel > 0)
        laatsteRegel_ = regel;
    lijnenZichtbaar_ = regel > 0;
    PlaatsLijnen();
    SpreekRegel();
    emit regelGekozen(regel);
}

void Roostervlak::VerbergLijnen()
{
    lijnenZichtbaar_ = false;
    PlaatsLijnen();
}

QSize Roostervlak::Vlakmaat() const
{
    return {static_cast<int>(std::ceil(inhoud_.randen.back() * pixelsPerMm_)) + 1,
            static_cast<int>(std::ceil(Vlakhoogte(inhoud_.Regels()) * pixelsPerMm_)) + 1};
}

void Roostervlak::paintEvent(QPaintEvent* gebeurtenis)
{
    const int regels = inhoud_.Regels();
    QPainter schilder(this);
    if (regels > 0) {
        const QRectF deel = gebeurtenis->rect();
        const auto regelBij = [&](double y) {
            return static_cast<int>(
                       std::floor(((y + begin_.y()) / pixelsPerMm_ - rooster::Bovenmarge) /
                                  rooster::Regelhoogte)) +
                   1;
        };
        const int eerste = std::clamp(regelBij(deel.top()), 1, regels);
        const int laatste = std::clamp(regelBij(deel.bottom()), 1, regels);
        TekenRasters(schilder, eerste, laatste);
        schilder.setFont(font());
        for (int regel = eerste; regel <= laatste; ++regel)
            TekenTeksten(schilder, regel, deel.left(), deel.right());
    }
    if (hasFocus()) {
        schilder.setPen(palette().color(QPalette::Highlight));
        schilder.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Roostervlak::TekenRasters(QPainter& schilder, int eerste, int laatste) const
{
    const double boven = Y(BovenkantVan(eerste));
    const double onder = Y(OnderkantVan(laatste));
    const Kolomranden& randen = inhoud_.randen;
    schilder.fillRect(QRectF(QPointF(X(0), boven), QPointF(X(randen[KolommenInBand]), onder)),
                      bandkleur);
    schilder.setPen(lijnkleur);
    for (const double rand : randen)
        schilder.drawLine(QLineF(qRound(X(rand)), boven, qRound(X(rand)), onder));
    for (int regel = eerste; regel <= laatste + 1; ++regel) {
        const int y = qRound(Y(BovenkantVan(regel)));
        schilder.drawLine(QLineF(X(0), y, X(randen.back()), y));
    }
}

void Roostervlak::TekenTeksten(QPainter& schilder, int regel, double links, double rechts) const
{
    const int rij = inhoud_.weergave[static_cast<std::size_t>(regel - 1)];
    if (rij > inhoud_.tabel->Rijen())
        return;
    const QFontMetricsF letter(font());
    const double midden = (Y(BovenkantVan(regel)) + Y(OnderkantVan(regel))) / 2;
    const double basislijn = midden + (letter.ascent() - letter.descent()) / 2;
    for (std::size_t i = 0; i < AantalKolommen; ++i) {
        const double begin = inhoud_.randen[i];
        const double eind = inhoud_.randen[i + 1];
        if (X(eind) < links || X(begin) > rechts)
            continue;
        const Tekstblik cel = inhoud_.Cel(rij, i);
        // The band is light in dark themes too.
        schilder.setPen(i < KolommenInBand ? Qt::black : palette().color(QPalette::Text));
        if (!cel.empty())
            schilder.drawText(QPointF(X(begin + rooster::Celmarge), qRound(basislijn)),
                              NaarQString(PasTekst(cel, eind - begin, inhoud_.meter)));
    }
}

int Roostervlak::RegelOnder(QPointF plek) const
{
    return RegelOp((plek.y() + begin_.y()) / pixelsPerMm_, inhoud_.Regels());
}

void Roostervlak::mousePressEvent(QMouseEvent* gebeurtenis)
{
    if (gebeurtenis->button() == Qt::LeftButton)
        KiesRegel(RegelOnder(gebeurtenis->position()));
}

void Roostervlak::mouseDoubleClickEvent(QMouseEvent* gebeurtenis)
{
    if (gebeurtenis->button() == Qt::LeftButton)
        emit wijzigGevraagd();
}

int Roostervlak::RegelsPerBladzij() const
{
    const double zichtbaar = height() / pixelsPerMm_ - rooster::Bovenmarge;
    return std::max(1, static_cast<int>(zichtbaar / rooster::Regelhoogte) - 1);
}

/// The line that a key leads to; 0 for a key that moves nothing.
int Roostervlak::Doelregel(int toets) const
{
    const int nu = regel_ > 0 ? regel_ : std::min(laatsteRegel_, inhoud_.Regels());
    switch (toets) {
    case Qt::Key_Up:
        return regel_ > 0 ? nu - 1 : std::max(nu, 1);
    case Qt::Key_Down:
        return regel_ > 0 ? nu + 1 : std::max(nu, 1);
    case Qt::Key_PageUp:
        return nu - RegelsPerBladzij();
    case Qt::Key_PageDown:
        return nu + RegelsPerBladzij();
    case Qt::Key_Home:
        return 1;
    case Qt::Key_End:
        return inhoud_.Regels();
    default:
        return INT_MIN;
    }
}

void Roostervlak::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const int toets = gebeurtenis->key();
    const int doel = Doelregel(toets);
    if (doel != INT_MIN) {
        if (inhoud_.Regels() > 0)
            KiesRegel(std::clamp(doel, 1, inhoud_.Regels()));
    } else if (toets == Qt::Key_Return || toets == Qt::Key_Enter || toets == Qt::Key_F2) {
        emit wijzigGevraagd();
    } else if (toets == Qt::Key_Left || toets == Qt::Key_Right) {
        emit opzij(toets == Qt::Key_Left ? -1 : 1);
    } else if (toets == Qt::Key_Delete) {
        emit verwijderGevraagd();
    } else {
        QWidget::keyPressEvent(gebeurtenis);
    }
}

void Roostervlak::focusInEvent(QFocusEvent* gebeurtenis)
{
    QWidget::focusInEvent(gebeurtenis);
    update();
}

void Roostervlak::focusOutEvent(QFocusEvent* gebeurtenis)
{
    QWidget::focusOutEvent(gebeurtenis);
    update();
}

void Roostervlak::PlaatsLijnen()
{
    const bool tonen = lijnenZichtbaar_ && regel_ > 0;
    if (tonen) {
        const int breedte = qRound(inhoud_.randen.back() * pixelsPerMm_);
        const auto plaats = [&](QFrame* lijn, double y) {
            lijn->setGeometry(-begin_.x(), qRound(Y(y)) - Lijndikte / 2, breedte, Lijndikte);
        };
        plaats(Line1, BovenkantVan(regel_));
        plaats(Line2, OnderkantVan(regel_));
    }
    Line1->setVisible(tonen);
    Line2->setVisible(tonen);
}

/// Screen readers read the description of the surface: the selected line, column by column.
void Roostervlak::SpreekRegel()
{
    QString tekst = QStringLiteral("Geen regel geselecteerd");
    if (regel_ > 0) {
        const int rij = inhoud_.weergave[static_cast<std::size_t>(regel_ - 1)];
        tekst = QStringLiteral("Regel %1").arg(regel_);
        for (std::size_t i = 0; i < AantalKolommen; ++i) {
            const Tekstblik cel = inhoud_.Cel(rij, i);
            if (!cel.empty())
                tekst += QStringLiteral(", %1 %2").arg(NaarQString(inhoud_.kolomnamen[i]),
                                                       NaarQString(cel));
        }
    }
    setAccessibleDescription(tekst);
    QAccessibleEvent gebeurtenis(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&gebeurtenis);
}

} // namespace plexoran
