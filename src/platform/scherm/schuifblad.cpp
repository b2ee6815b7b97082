#include "platform/scherm/schuifblad.h"

#include <QApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int BalkdikteTwips = 280;

/// Asks the height that its parts need, not the one that they would like: they would scroll where
/// they could do with less.
class Inhoud : public QWidget {
  public:
    using QWidget::QWidget;
    [[nodiscard]] int heightForWidth(int breed) const override
    {
        return layout()->hasHeightForWidth() ? layout()->totalMinimumHeightForWidth(breed) : -1;
    }
};

} // namespace

Schuifblad::Schuifblad(QWidget* inhoud, QWidget* ouder) : QScrollArea(ouder)
{
    setObjectName(u"schuifblad"_s);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(inhoud);
    // Keys bring what they lead to into sight. Not the mouse: what is pressed must stay where it
    // is.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*was*/, QWidget* nu) {
        if (!widget()->isAncestorOf(nu) || QGuiApplication::mouseButtons() != Qt::NoButton)
            return;
        // Of what is larger than this area its beginning, wherever that stands now.
        QSize half = nu->size() / 2;
        if (nu->width() > viewport()->width())
            half.setWidth(viewport()->width() / 4);
        if (nu->height() > viewport()->height())
            half.setHeight(viewport()->height() / 4);
        const QPoint midden = nu->mapTo(widget(), QPoint()) + QPoint(half.width(), half.height());
        ensureVisible(midden.x(), midden.y(), half.width(), half.height());
    });
}

/// The focus still moves while the last of a window goes.
Schuifblad::~Schuifblad()
{
    disconnect(qApp, nullptr, this, nullptr);
}

QSize Schuifblad::sizeHint() const
{
    return widget()->sizeHint();
}

/// Half a screen leaves room for what stands beside it and around the window.
QSize Schuifblad::minimumSizeHint() const
{
    return widget()->minimumSizeHint().boundedTo(screen()->availableSize() / 2);
}

bool Schuifblad::eventFilter(QObject* object, QEvent* gebeurtenis)
{
    if (object == widget() && gebeurtenis->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, gebeurtenis);
}

void ZetOpSchuifblad(QWidget* venster)
{
    auto* lagen = venster->layout();
    QLayoutItem* laatste = lagen->itemAt(lagen->count() - 1);
    QLayout* knoppen = laatste->layout();
    const QMargins marges = lagen->contentsMargins();
    if (knoppen != nullptr)
        lagen->removeItem(knoppen);
    lagen->setContentsMargins(0, 0, 0, 0);

    auto* inhoud = new Inhoud(venster);
    auto* blad = new Schuifblad(inhoud, venster);
    inhoud->setLayout(lagen);
    auto* geheel = new QVBoxLayout(venster);
    geheel->setContentsMargins(marges);
    geheel->addWidget(blad, 1);
    if (knoppen != nullptr)
        geheel->addLayout(knoppen);
}

// ---------------------------------------------------------------- Schuifkader

Schuifkader::Schuifkader(const QString& naam, const Maten& maten, QWidget* ouder)
    : QFrame(ouder), HScroll1(new QScrollBar(Qt::Horizontal, this)),
      VScroll1(new QScrollBar(Qt::Vertical, this))
{
    Noem(this, naam);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    Noem(HScroll1, u"HScroll1"_s, u"Opzij verschuiven"_s);
    Noem(VScroll1, u"VScroll1"_s, u"Op en neer verschuiven"_s);
    HScroll1->setFixedHeight(maten.Twips(BalkdikteTwips));
    VScroll1->setFixedWidth(maten.Twips(BalkdikteTwips));
    for (QScrollBar* balk : {HScroll1, VScroll1})
        balk->setAttribute(Qt::WA_NoMousePropagation); // a wheel at its end must not come back here
}

void Schuifkader::Bevat(QWidget* vlak, int links, int rechts)
{
    auto* vakken = new QGridLayout(this);
    vakken->setSpacing(0);
    vakken->setContentsMargins(links, 0, rechts, 0);
    vakken->addWidget(vlak, 0, 0);
    vakken->addWidget(VScroll1, 0, 1);
    vakken->addWidget(HScroll1, 1, 0);
    vakken->setRowStretch(0, 1);
    vakken->setColumnStretch(0, 1);
}

void Schuifkader::Stel(QScrollBar& balk, int geheel, int zichtbaar, int bladzij, int stap)
{
    const int over = std::max(0, geheel - zichtbaar);
    balk.setRange(0, over);
    balk.setPageStep(std::max(1, bladzij));
    balk.setSingleStep(std::max(1, stap));
    balk.setEnabled(over > 0);
}

void Schuifkader::wheelEvent(QWheelEvent* gebeurtenis)
{
    const QPoint slag = gebeurtenis->angleDelta();
    const bool opzij = std::abs(slag.x()) > std::abs(slag.y());
    QApplication::sendEvent(opzij ? HScroll1 : VScroll1, gebeurtenis);
}

} // namespace plexoran
