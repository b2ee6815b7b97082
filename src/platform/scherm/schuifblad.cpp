#include "platform/scherm/schuifblad.h"

#include <QApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

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

} // namespace plexoran
