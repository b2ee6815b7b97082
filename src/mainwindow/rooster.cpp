#include "mainwindow/rooster.h"

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/maten.h"
#include "platform/scherm/schildervlak.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int VrijNaastVlakTwips = 220;
constexpr double Letterpunten = 9.0;
constexpr int KleinsteAantalRegels = 4; // that stay in sight however small the window

} // namespace

Rooster::Rooster(const Maten& maten, QWidget* ouder)
    : Schuifkader(u"picP0"_s, maten, ouder), pixelsPerMm_(maten.PixelsPerMm()),
      P1(new Roostervlak(inhoud_, pixelsPerMm_, *this, this)), P9(new QWidget(this)),
      P2(new QWidget(P9))
{
    const QFont letter = Roosterletter(maten.Letter(Letterpunten).pixelSize());
    inhoud_.meter = Roostermeter(letter.pixelSize(), pixelsPerMm_);
    P1->setFont(letter);
    BouwHeader(letter);
    const int naast = maten.Twips(VrijNaastVlakTwips) - 2 * frameWidth();
    Bevat(P1, naast / 2, naast - naast / 2);
    setMinimumHeight(qRound(OnderkantVan(KleinsteAantalRegels) * pixelsPerMm_) +
                     Liggend().height());
    connect(&Liggend(), &QScrollBar::valueChanged, P2, [this](int links) { P2->move(-links, 0); });
    connect(P1, &Roostervlak::wijzigGevraagd, this, &Rooster::wijzigGevraagd);
    connect(P1, &Roostervlak::verwijderGevraagd, this, &Rooster::verwijderGevraagd);
}

void Rooster::BouwHeader(const QFont& letter)
{
    Noem(P9, u"P9"_s);
    Noem(P2, u"P2"_s);
    P9->setAutoFillBackground(true);
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        cmd[i] = new Kortknop(P2);
        Noem(cmd[i], u"cmd_%1"_s.arg(i + 1));
        cmd[i]->setFont(letter);
        cmd[i]->setFocusPolicy(Qt::NoFocus);
        connect(cmd[i], &QPushButton::clicked, P1, &Roostervlak::VerbergLijnen);
    }
}

void Rooster::Toon(const Spelertabel& tabel, Weergave weergave, const Kolommaten& celmaten,
                   const std::array<Tekstblik, AantalKolommen>& kolomnamen)
{
    inhoud_.tabel = &tabel;
    inhoud_.weergave = std::move(weergave);
    inhoud_.kolomnamen = kolomnamen;
    for (std::size_t i = 0; i < kolomnamen.size(); ++i)
        inhoud_.headermaten[i] = inhoud_.meter.Breedte(kolomnamen[i]);
    P1->KiesRegel(0);
    const bool eersteKeer = inhoud_.randen.back() == 0;
    if (inhoud_.Regels() > 0 || eersteKeer) { // an empty group leaves the widths alone
        inhoud_.celmaten = celmaten;
        for (std::size_t i = 0; i < kolomnamen.size(); ++i) {
            if (kolomnamen[i].empty())
                inhoud_.celmaten[i] = 0;
        }
        BerekenKolommen();
    }
    PlaatsKolommen();
    P1->MeldAndereRegels();
}

void Rooster::ZetBreedteregel(Breedteregel regel)
{
    breedteregel_ = regel;
    BerekenKolommen();
    PlaatsKolommen();
}

void Rooster::BerekenKolommen()
{
    inhoud_.randen = MaakKolommen(inhoud_.celmaten, inhoud_.headermaten, breedteregel_);
}

void Rooster::PlaatsKolommen()
{
    const int hoogte = P9->height();
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const QString naam = NaarQString(inhoud_.kolomnamen[i]);
        const int links = qRound(inhoud_.randen[i] * pixelsPerMm_);
        const int rechts = qRound(inhoud_.randen[i + 1] * pixelsPerMm_);
        cmd[i]->setText(naam);
        cmd[i]->setToolTip(naam);
        cmd[i]->setAccessibleName(naam.isEmpty() ? u"Kolom %1"_s.arg(i + 1) : naam);
        cmd[i]->setGeometry(links, 0, rechts - links, hoogte);
    }
    P2->resize(P1->Vlakmaat().width(), hoogte);
    StelSchuifbalkenIn();
    P1->PlaatsLijnen();
    P1->update();
}

void Rooster::resizeEvent(QResizeEvent* gebeurtenis)
{
    Schuifkader::resizeEvent(gebeurtenis);
    P9->setGeometry(P1->x(), P1->y(), P1->width(), qRound(rooster::Bovenmarge * pixelsPerMm_));
    P9->raise();
    PlaatsKolommen();
}

void Rooster::StelSchuifbalkenIn()
{
    const QSize vlak = P1->Vlakmaat();
    Stel(Liggend(), vlak.width(), P1->width(), P1->width(),
         qRound(rooster::SmalsteKolom * pixelsPerMm_));
    Stel(Staand(), vlak.height(), P1->height(), P1->height() - P9->height(),
         qRound(rooster::Regelhoogte * pixelsPerMm_));
}

} // namespace plexoran
