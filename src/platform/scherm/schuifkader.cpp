#include "platform/scherm/schuifkader.h"

#include <QApplication>
#include <QGridLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "platform/scherm/maten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int BalkdikteTwips = 280;

} // namespace

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
