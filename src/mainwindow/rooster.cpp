#include "mainwindow/rooster.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "platform/scherm/maten.h"
#include "platform/scherm/meter.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int BalkdikteTwips = 280;
constexpr int VrijNaastVlakTwips = 220;
constexpr double Letterpunten = 9.0;
constexpr int KleinsteAantalRegels = 4; // that stay in sight however small the window

} // namespace

Rooster::Rooster(const Maten& maten, QWidget* ouder)
    : QFrame(ouder), balkdikte_(maten.Twips(BalkdikteTwips)),
      naastVlak_(maten.Twips(VrijNaastVlakTwips)), pixelsPerMm_(maten.PixelsPerMm()),
      P1(new Roostervlak(inhoud_, pixelsPerMm_, this)), P9(new QWidget(this)), P2(new QWidget(P9)),
      HScroll1(new QScrollBar(Qt::Horizontal, this)), VScroll1(new QScrollBar(Qt::Vertical, this))
{
    Noem(this, QStringLiteral("picP0"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    const QFont letter = Roosterletter(maten.Letter(Letterpunten).pixelSize());
    inhoud_.meter = MaakMeter(letter, pixelsPerMm_);
    P1->setFont(letter);
    BouwHeader(letter);
    BouwSchuifbalken();
    setMinimumHeight(qRound(OnderkantVan(KleinsteAantalRegels) * pixelsPerMm_) + balkdikte_);
    connect(P1, &Roostervlak::regelGekozen, this, &Rooster::BrengInBeeld);
    connect(P1, &Roostervlak::opzij, this, [this](int stappen) {
        HScroll1->setValue(HScroll1->value() + stappen * HScroll1->singleStep());
    });
    connect(P1, &Roostervlak::wijzigGevraagd, this, &Rooster::wijzigGevraagd);
    connect(P1, &Roostervlak::verwijderGevraagd, this, &Rooster::verwijderGevraagd);
}

void Rooster::BouwHeader(const QFont& letter)
{
    Noem(P9, QStringLiteral("P9"));
    Noem(P2, QStringLiteral("P2"));
    P9->setAutoFillBackground(true);
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        cmd[i] = new QPushButton(P2);
        Noem(cmd[i], QStringLiteral("cmd_%1").arg(i + 1));
        cmd[i]->setFont(letter);
        cmd[i]->setFocusPolicy(Qt::NoFocus);
        connect(cmd[i], &QPushButton::clicked, P1, &Roostervlak::VerbergLijnen);
    }
}

void Rooster::BouwSchuifbalken()
{
    Noem(HScroll1, QStringLiteral("HScroll1"), QStringLiteral("Kolommen verschuiven"));
    Noem(VScroll1, QStringLiteral("VScroll1"), QStringLiteral("Regels verschuiven"));
    for (QScrollBar* balk : {HScroll1, VScroll1})
        balk->setAttribute(Qt::WA_NoMousePropagation); // a wheel at its end must not come back here
    const auto schuif = [this] {
        P1->Schuif({HScroll1->value(), VScroll1->value()});
        P2->move(-HScroll1->value(), 0);
    };
    connect(HScroll1, &QScrollBar::valueChanged, this, schuif);
    connect(VScroll1, &QScrollBar::valueChanged, this, schuif);
}

void Rooster::Toon(const Spelertabel& tabel, Weergave weergave, const Kolommaten& celmaten,
                   const std::array<Tekstblik, AantalKolommen>& kolomnamen)
{
    inhoud_.tabel = &tabel;
    inhoud_.weergave = std::move(weergave);
    inhoud_.kolomnamen = kolomnamen;
    inhoud_.celmaten = celmaten;
    for (std::size_t i = 0; i < kolomnamen.size(); ++i) {
        inhoud_.headermaten[i] = inhoud_.meter.Breedte(kolomnamen[i]);
        if (kolomnamen[i].empty())
            inhoud_.celmaten[i] = 0;
    }
    P1->KiesRegel(0);
    PasKolommenAan();
}

void Rooster::ZetBreedteregel(Breedteregel regel)
{
    breedteregel_ = regel;
    PasKolommenAan();
}

void Rooster::PasKolommenAan()
{
    inhoud_.randen = MaakKolommen(inhoud_.celmaten, inhoud_.headermaten, breedteregel_);
    const int hoogte = P9->height();
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const QString naam = NaarQString(inhoud_.kolomnamen[i]);
        const int links = qRound(inhoud_.randen[i] * pixelsPerMm_);
        const int rechts = qRound(inhoud_.randen[i + 1] * pixelsPerMm_);
        cmd[i]->setText(naam);
        cmd[i]->setToolTip(naam);
        cmd[i]->setGeometry(links, 0, rechts - links, hoogte);
    }
    P2->resize(P1->Vlakmaat().width(), hoogte);
    StelSchuifbalkenIn();
    P1->Schuif({HScroll1->value(), VScroll1->value()});
}

void Rooster::NaarBoven()
{
    VScroll1->setValue(0);
}

void Rooster::BrengInBeeld(int regel)
{
    if (regel < 1)
        return;
    // The header covers the top of the surface for as high as the room above the first line.
    const int boven =
        static_cast<int>(std::floor((BovenkantVan(regel) - rooster::Bovenmarge) * pixelsPerMm_));
    const int onder = static_cast<int>(std::ceil(OnderkantVan(regel) * pixelsPerMm_)) + 1;
    if (boven < VScroll1->value())
        VScroll1->setValue(boven);
    else if (onder > VScroll1->value() + P1->height())
        VScroll1->setValue(onder - P1->height());
}

void Rooster::resizeEvent(QResizeEvent* gebeurtenis)
{
    QFrame::resizeEvent(gebeurtenis);
    PlaatsDelen();
}

void Rooster::PlaatsDelen()
{
    const int rand = frameWidth();
    const int breedte = width() - naastVlak_ - balkdikte_;
    const int links = naastVlak_ / 2;
    const int hoogte = height() - 2 * rand - balkdikte_;
    P1->setGeometry(links, rand, breedte, hoogte);
    P9->setGeometry(links, rand, breedte, qRound(rooster::Bovenmarge * pixelsPerMm_));
    P9->raise();
    VScroll1->setGeometry(links + breedte, rand, balkdikte_, hoogte);
    HScroll1->setGeometry(links, rand + hoogte, breedte, balkdikte_);
    PasKolommenAan();
}

void Rooster::StelSchuifbalkenIn()
{
    const QSize vlak = P1->Vlakmaat();
    const int header = P9->height();
    HScroll1->setRange(0, std::max(0, vlak.width() - P1->width()));
    HScroll1->setPageStep(std::max(1, P1->width()));
    HScroll1->setSingleStep(qRound(rooster::SmalsteKolom * pixelsPerMm_));
    VScroll1->setRange(0, std::max(0, vlak.height() - P1->height()));
    VScroll1->setPageStep(std::max(1, P1->height() - header));
    VScroll1->setSingleStep(qRound(rooster::Regelhoogte * pixelsPerMm_));
}

void Rooster::wheelEvent(QWheelEvent* gebeurtenis)
{
    const QPoint hoek = gebeurtenis->angleDelta();
    const bool opzij = std::abs(hoek.x()) > std::abs(hoek.y());
    QApplication::sendEvent(opzij ? HScroll1 : VScroll1, gebeurtenis);
}

} // namespace plexoran
