#include "mainwindow/rooster.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

constexpr int VrijNaastVlakTwips = 220;
constexpr double Letterpunten = 9.0;
constexpr int KleinsteAantalRegels = 4; // that stay in sight however small the window

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

void Rooster::Toon(const Spelertabel& tabel, Weergave weergave,
                   const std::array<Tekstblik, AantalKolommen>& kolomnamen)
{
    inhoud_.tabel = &tabel;
    inhoud_.weergave = std::move(weergave);
    inhoud_.kolomnamen = kolomnamen;
    std::transform(kolomnamen.begin(), kolomnamen.end(), headermaten_.begin(),
                   [this](Tekstblik naam) { return inhoud_.meter.Breedte(naam); });
    P1->KiesRegel(0);
    const bool eersteKeer = inhoud_.randen.back() == 0;
    if (P1->Regels() > 0 || eersteKeer) { // an empty group leaves the widths alone
        celmaten_ = MeetCellen(tabel, inhoud_.weergave, inhoud_.meter);
        for (std::size_t i = 0; i < kolomnamen.size(); ++i) {
            if (kolomnamen[i].empty())
                celmaten_[i] = 0;
        }
        inhoud_.randen = MaakKolommen(celmaten_, headermaten_, breedteregel_);
    }
    PlaatsKolommen();
    P1->MeldAndereRegels();
}

void Rooster::ZetBreedteregel(Breedteregel regel)
{
    breedteregel_ = regel;
    inhoud_.randen = MaakKolommen(celmaten_, headermaten_, breedteregel_);
    PlaatsKolommen();
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

Roostervlak::Roostervlak(const Roosterinhoud& inhoud, double pixelsPerMm, const Schuifkader& kader,
                         QWidget* ouder)
    : Tabelvlak(kader, u"Spelers van de groep"_s, ouder), inhoud_(inhoud),
      pixelsPerMm_(pixelsPerMm), Line1(MaakLijn(u"Line1"_s, this)),
      Line2(MaakLijn(u"Line2"_s, this))
{
    for (const QScrollBar* balk : {&kader.Staand(), &kader.Liggend()})
        connect(balk, &QScrollBar::valueChanged, this, &Roostervlak::PlaatsLijnen);
}

QString Roostervlak::Celtekst(int regel, int kolom) const
{
    const auto plaats = static_cast<std::size_t>(kolom);
    return NaarQString(regel == 0 ? inhoud_.kolomnamen[plaats] : inhoud_.Cel(regel, plaats));
}

void Roostervlak::KiesRegel(int regel)
{
    Tabelvlak::KiesRegel(regel);
    lijnenZichtbaar_ = regel > 0;
    PlaatsLijnen();
}

void Roostervlak::VerbergLijnen()
{
    lijnenZichtbaar_ = false;
    PlaatsLijnen();
}

QSize Roostervlak::Vlakmaat() const
{
    return {static_cast<int>(std::ceil(inhoud_.randen.back() * pixelsPerMm_)) + 1,
            static_cast<int>(std::ceil(Vlakhoogte(Regels()) * pixelsPerMm_)) + 1};
}

void Roostervlak::paintEvent(QPaintEvent* gebeurtenis)
{
    QPainter schilder(this);
    if (Regels() > 0) {
        const QRect deel = gebeurtenis->rect();
        const auto [eerste, laatste] = RegelsIn(deel);
        TekenRasters(schilder, eerste, laatste);
        schilder.setFont(font());
        for (int regel = eerste; regel <= laatste; ++regel)
            TekenTeksten(schilder, regel, deel.left(), deel.right());
    }
    TekenFocus(schilder);
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
    const QFontMetricsF letter(font());
    const double midden = (Y(BovenkantVan(regel)) + Y(OnderkantVan(regel))) / 2;
    const double basislijn = midden + (letter.ascent() - letter.descent()) / 2;
    for (std::size_t i = 0; i < AantalKolommen; ++i) {
        const double begin = inhoud_.randen[i];
        const double eind = inhoud_.randen[i + 1];
        if (X(eind) < links || X(begin) > rechts)
            continue;
        const Tekstblik cel = inhoud_.Cel(regel, i);
        // The band is light in dark themes too.
        schilder.setPen(i < KolommenInBand ? Qt::black : palette().color(QPalette::Text));
        if (!cel.empty())
            schilder.drawText(QPointF(X(begin + rooster::Celmarge), qRound(basislijn)),
                              NaarQString(PasTekst(cel, eind - begin, inhoud_.meter)));
    }
}

void Roostervlak::mouseDoubleClickEvent(QMouseEvent* gebeurtenis)
{
    if (gebeurtenis->button() == Qt::LeftButton)
        emit wijzigGevraagd();
}

void Roostervlak::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const int toets = gebeurtenis->key();
    if (toets == Qt::Key_Return || toets == Qt::Key_Enter || toets == Qt::Key_F2)
        emit wijzigGevraagd();
    else if (toets == Qt::Key_Delete)
        emit verwijderGevraagd();
    else if (!KiesMet(toets))
        QWidget::keyPressEvent(gebeurtenis);
}

void Roostervlak::PlaatsLijnen()
{
    const bool tonen = lijnenZichtbaar_ && Regel() > 0;
    if (tonen) {
        const int breedte = qRound(inhoud_.randen.back() * pixelsPerMm_);
        const auto plaats = [&](QFrame* lijn, double y) {
            lijn->setGeometry(qRound(X(0)), qRound(Y(y)) - Lijndikte / 2, breedte, Lijndikte);
        };
        plaats(Line1, BovenkantVan(Regel()));
        plaats(Line2, OnderkantVan(Regel()));
    }
    Line1->setVisible(tonen);
    Line2->setVisible(tonen);
}

} // namespace plexoran
