#include "platform/scherm/tabelvlak.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <climits>
#include <cmath>
#include <numeric>

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
    anker_ = regel;
    Kies(regel, std::vector<int>(regel > 0 ? 1 : 0, regel));
}

void Tabelvlak::Kies(int regel, std::vector<int> gekozen)
{
    regel_ = regel;
    gekozen_ = std::move(gekozen);
    if (regel > 0) {
        laatsteRegel_ = regel;
        BrengInBeeld(regel);
    }
    update();
    Beschrijf();
    MeldKeus();
    emit keuzeVeranderd();
}

void Tabelvlak::KiesTot(int regel)
{
    if (anker_ == 0)
        anker_ = regel_ > 0 ? regel_ : regel;
    const auto [van, tot] = std::minmax(anker_, regel);
    std::vector<int> reeks(static_cast<std::size_t>(tot - van + 1));
    std::iota(reeks.begin(), reeks.end(), van);
    Kies(regel, std::move(reeks));
}

/// Chooses a line besides the others, or lets it go.
void Tabelvlak::Wissel(int regel)
{
    std::vector<int> gekozen = gekozen_;
    const auto plek = std::lower_bound(gekozen.begin(), gekozen.end(), regel);
    if (IsGekozen(regel))
        gekozen.erase(plek);
    else
        gekozen.insert(plek, regel);
    anker_ = regel;
    Kies(regel, std::move(gekozen));
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

/// With Ctrl the current line moves and the choice stays; Ctrl+Space changes that.
bool Tabelvlak::KiesMet(int toets, Qt::KeyboardModifiers bij)
{
    const bool ctrl = meerkeus_ && bij.testFlag(Qt::ControlModifier);
    if (ctrl && regel_ > 0 && toets == Qt::Key_Space) {
        Wissel(regel_);
        return true;
    }
    if (ctrl && Regels() > 0 && toets == Qt::Key_A) {
        std::vector<int> alle(static_cast<std::size_t>(Regels()));
        std::iota(alle.begin(), alle.end(), 1);
        Kies(std::max(regel_, 1), std::move(alle));
        return true;
    }
    const int doel = Doelregel(toets);
    if (doel == INT_MIN)
        return VerschuifOpzij(kader_.Liggend(), toets);
    if (Regels() == 0)
        return true;
    const int regel = std::clamp(doel, 1, Regels());
    if (meerkeus_ && bij.testFlag(Qt::ShiftModifier))
        KiesTot(regel);
    else if (ctrl)
        Kies(regel, gekozen_);
    else
        KiesRegel(regel);
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

/// One more letter: texts begin behind the edge.
bool Tabelvlak::IsIngekort(int regel, int kolom) const
{
    return fontMetrics().horizontalAdvance(Celtekst(regel, kolom) + u'A') >
           Plek(regel, kolom).width();
}

/// The whole text of the cell there when its column is too narrow for it, else nothing.
QString Tabelvlak::TeLangeTekst(QPoint plek) const
{
    const int regel = RegelOp(plek.y());
    for (int kolom = 0; regel > 0 && kolom < Kolommen(); ++kolom) {
        if (Plek(regel, kolom).contains(plek) && IsIngekort(regel, kolom))
            return Celtekst(regel, kolom);
    }
    return {};
}

void Tabelvlak::mousePressEvent(QMouseEvent* gebeurtenis)
{
    if (gebeurtenis->button() != Qt::LeftButton)
        return;
    const int regel = RegelOp(gebeurtenis->position().y());
    const auto bij = [&](Qt::KeyboardModifier toets) {
        return meerkeus_ && regel > 0 && gebeurtenis->modifiers().testFlag(toets);
    };
    if (bij(Qt::ShiftModifier))
        KiesTot(regel);
    else if (bij(Qt::ControlModifier))
        Wissel(regel);
    else
        KiesRegel(regel);
}

void Tabelvlak::TekenKeus(QPainter& schilder, int lijn) const
{
    if (regel_ == 0)
        return;
    const QRect plek = Plek(regel_, 0).united(Plek(regel_, Kolommen() - 1));
    schilder.setPen(palette().color(QPalette::Highlight));
    schilder.drawRect(plek.adjusted(lijn, 0, -1, -1 - lijn));
}

/// Screen readers read the description of the surface: the current line, column by column.
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
    if (IsMeer())
        tekst += u", gekozen regels: %1"_s.arg(gekozen_.size());
    setAccessibleDescription(tekst);
}

} // namespace plexoran
