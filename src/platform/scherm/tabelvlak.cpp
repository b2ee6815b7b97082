#include "platform/scherm/tabelvlak.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <climits>
#include <cmath>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

Tabelvlak::Tabelvlak(const Schuifkader& kader, const QString& gesproken, QWidget* ouder,
                     double pixelsPerStand)
    : QWidget(ouder), kader_(kader), pixelsPerStand_(pixelsPerStand)
{
    Noem(this, u"P1"_s, gesproken);
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    for (const QScrollBar* balk : {&kader.Staand(), &kader.Liggend()})
        connect(balk, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
    LaatSpreken();
}

QRect Tabelvlak::Plek(int regel, int kolom) const
{
    const double boven = regel == 0 ? Koponder() - Regelhoogte() : Boven(regel);
    return QRectF(QPointF(Links(kolom), boven), QPointF(Links(kolom + 1), boven + Regelhoogte()))
        .toRect();
}

int Tabelvlak::RegelOp(double y) const
{
    const double regel = std::floor((y - Boven(1)) / Regelhoogte()) + 1;
    return regel < 1 || regel > Regels() ? 0 : static_cast<int>(regel);
}

std::pair<int, int> Tabelvlak::RegelsIn(const QRect& deel) const
{
    const auto bij = [this](int y) {
        const double regel = std::floor((y - Boven(1)) / Regelhoogte()) + 1;
        return static_cast<int>(std::clamp<double>(regel, 1, Regels()));
    };
    return {bij(deel.top()), bij(deel.bottom())};
}

void Tabelvlak::KiesRegel(int regel)
{
    regel_ = regel;
    if (regel > 0) {
        laatsteRegel_ = regel;
        BrengInBeeld(regel);
    }
    update();
    Beschrijf();
    MeldKeus();
    emit keuzeVeranderd();
}

void Tabelvlak::BrengInBeeld(int regel)
{
    if (regel < 1 || !isVisible()) // before that it has no size
        return;
    QScrollBar& balk = kader_.Staand();
    const double boven = std::max(0.0, Koponder()) - Boven(regel);
    const double onder = Boven(regel + 1) + 1 - height();
    if (boven > 0)
        balk.setValue(balk.value() - static_cast<int>(std::ceil(boven / pixelsPerStand_)));
    else if (onder > 0)
        balk.setValue(balk.value() + static_cast<int>(std::ceil(onder / pixelsPerStand_)));
}

/// The line that a key leads to; `INT_MIN` for a key that moves nothing.
int Tabelvlak::Doelregel(int toets) const
{
    const int nu = regel_ > 0 ? regel_ : std::min(laatsteRegel_, Regels());
    const int bladzij =
        std::max(1, static_cast<int>((height() - std::max(0.0, Koponder())) / Regelhoogte()) - 1);
    switch (toets) {
    case Qt::Key_Up:
        return regel_ > 0 ? nu - 1 : std::max(nu, 1);
    case Qt::Key_Down:
        return regel_ > 0 ? nu + 1 : std::max(nu, 1);
    case Qt::Key_PageUp:
        return nu - bladzij;
    case Qt::Key_PageDown:
        return nu + bladzij;
    case Qt::Key_Home:
        return 1;
    case Qt::Key_End:
        return Regels();
    default:
        return INT_MIN;
    }
}

bool Tabelvlak::KiesMet(int toets)
{
    const int doel = Doelregel(toets);
    if (doel == INT_MIN)
        return VerschuifOpzij(kader_.Liggend(), toets);
    if (Regels() > 0)
        KiesRegel(std::clamp(doel, 1, Regels()));
    return true;
}

bool Tabelvlak::LeesMet(int toets)
{
    Verschuif(kader_.Staand(), toets);
    return KiesMet(toets);
}

bool Tabelvlak::event(QEvent* gebeurtenis)
{
    if (gebeurtenis->type() != QEvent::ToolTip)
        return QWidget::event(gebeurtenis);
    const auto* vraag = static_cast<QHelpEvent*>(gebeurtenis);
    QToolTip::showText(vraag->globalPos(), Wenk(TeLangeTekst(vraag->pos())), this);
    return true;
}

/// The whole text of the cell there when its column is too narrow for it, else nothing.
QString Tabelvlak::TeLangeTekst(QPoint plek) const
{
    const int regel = RegelOp(plek.y());
    for (int kolom = 0; regel > 0 && kolom < Kolommen(); ++kolom) {
        const QRect cel = Plek(regel, kolom);
        // One more letter: texts begin behind the edge.
        const QString tekst = Celtekst(regel, kolom);
        if (cel.contains(plek) && fontMetrics().horizontalAdvance(tekst + u'A') > cel.width())
            return tekst;
    }
    return {};
}

void Tabelvlak::mousePressEvent(QMouseEvent* gebeurtenis)
{
    if (gebeurtenis->button() == Qt::LeftButton)
        KiesRegel(RegelOp(gebeurtenis->position().y()));
}

void Tabelvlak::TekenKeus(QPainter& schilder, int lijn) const
{
    if (regel_ == 0)
        return;
    const QRect plek = Plek(regel_, 0).united(Plek(regel_, Kolommen() - 1));
    schilder.setPen(palette().color(QPalette::Highlight));
    schilder.drawRect(plek.adjusted(lijn, 0, -1, -1 - lijn));
}

void Tabelvlak::TekenFocus(QPainter& schilder) const
{
    if (!hasFocus())
        return;
    schilder.setPen(palette().color(QPalette::Highlight));
    schilder.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// Screen readers read the description of the surface: the chosen line, column by column.
void Tabelvlak::Beschrijf()
{
    QString tekst = u"Geen regel gekozen"_s;
    if (regel_ > 0) {
        tekst = u"Regel %1"_s.arg(regel_);
        for (int kolom = 0; kolom < Kolommen(); ++kolom) {
            const QString cel = Celtekst(regel_, kolom);
            if (!cel.isEmpty() && Links(kolom) < Links(kolom + 1))
                tekst += u", %1 %2"_s.arg(Celtekst(0, kolom), cel);
        }
    }
    setAccessibleDescription(tekst);
}

} // namespace plexoran
