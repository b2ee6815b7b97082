#include "mainwindow/rooster.h"

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
      P1(new Roostervlak(maten, *this, this)), P9(new QWidget(this)), P2(new QWidget(P9))
{
    Noem(P9, u"P9"_s);
    Noem(P2, u"P2"_s);
    P9->setAutoFillBackground(true);
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        cmd[i] = new Kortknop(P2);
        Noem(cmd[i], u"cmd_%1"_s.arg(i + 1));
        cmd[i]->setFont(P1->font());
        cmd[i]->setFocusPolicy(Qt::NoFocus);
        cmd[i]->setMouseTracking(true);
        cmd[i]->installEventFilter(this);
        connect(cmd[i], &QPushButton::clicked, P1, &Roostervlak::VerbergLijnen);
    }
    P2->setMouseTracking(true);
    P2->installEventFilter(this);
    const int naast = maten.Twips(VrijNaastVlakTwips) - 2 * frameWidth();
    Bevat(P1, naast / 2, naast - naast / 2);
    setMinimumHeight(qRound(BovenkantVan(KleinsteAantalRegels + 1) * pixelsPerMm_) +
                     Liggend().height());
    connect(&Liggend(), &QScrollBar::valueChanged, P2, [this](int links) { P2->move(-links, 0); });
}

void Rooster::Toon(const Spelertabel& tabel, Weergave weergave, const Namenrij& kolomnamen)
{
    P1->Toon(tabel, std::move(weergave), kolomnamen);
    PlaatsKolommen();
    P1->MeldAndereRegels();
}

void Rooster::Kies(const Kolomkeuzes& keuzes)
{
    P1->ZetKeuzes(keuzes);
    PlaatsKolommen();
}

void Rooster::MerkVolgorde(std::optional<Kolom> kolom)
{
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        QFont letter = P1->font();
        letter.setBold(kolom && Index(*kolom) == i);
        cmd[i]->setFont(letter);
    }
}

void Rooster::ZetBreedteregel(Breedteregel regel)
{
    P1->ZetBreedteregel(regel);
    PlaatsKolommen();
}

void Rooster::PlaatsKolommen()
{
    const int hoogte = P9->height();
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const QString naam = P1->Celtekst(0, static_cast<int>(i));
        const int links = qRound(P1->Randen()[i] * pixelsPerMm_);
        const int rechts = qRound(P1->Randen()[i + 1] * pixelsPerMm_);
        cmd[i]->setText(naam);
        cmd[i]->setToolTip(naam);
        cmd[i]->setAccessibleName(naam.isEmpty() ? u"Kolom %1"_s.arg(i + 1) : naam);
        cmd[i]->setGeometry(links, 0, rechts - links, hoogte);
        cmd[i]->setVisible(rechts > links);
    }
    const QSize vlak = P1->Vlakmaat();
    P2->resize(vlak.width() + Greep, hoogte);
    Stel(Liggend(), vlak.width(), P1->width(), P1->width(),
         qRound(rooster::SmalsteKolom * pixelsPerMm_));
    Stel(Staand(), vlak.height(), P1->height(), P1->height() - hoogte,
         qRound(rooster::Regelhoogte * pixelsPerMm_));
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

Roostervlak::Roostervlak(const Maten& maten, const Schuifkader& kader, QWidget* ouder)
    : Tabelvlak(kader, u"Spelers van de groep"_s, ouder), pixelsPerMm_(maten.PixelsPerMm()),
      Line1(MaakLijn(u"Line1"_s, this)), Line2(MaakLijn(u"Line2"_s, this))
{
    ZetMeerkeus();
    setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    meter_ = Roostermeter(font().pixelSize(), pixelsPerMm_);
    for (const QScrollBar* balk : {&kader.Staand(), &kader.Liggend()})
        connect(balk, &QScrollBar::valueChanged, this, &Roostervlak::PlaatsLijnen);
}

void Roostervlak::Toon(const Spelertabel& tabel, Weergave weergave, const Namenrij& kolomnamen)
{
    tabel_ = &tabel;
    weergave_ = std::move(weergave);
    kolomnamen_ = kolomnamen;
    KiesRegel(0);
    std::transform(kolomnamen.begin(), kolomnamen.end(), headermaten_.begin(),
                   [this](Tekstblik naam) { return meter_.Breedte(naam); });
    if (Regels() == 0 && randen_.back() > 0)
        return; // an empty group leaves the widths alone
    celmaten_ = MeetCellen(tabel, weergave_, meter_);
    for (std::size_t i = 0; i < kolomnamen.size(); ++i) {
        if (kolomnamen[i].empty())
            celmaten_[i] = 0;
    }
    ZetBreedteregel(breedteregel_);
}

void Roostervlak::ZetBreedteregel(Breedteregel regel)
{
    breedteregel_ = regel;
    randen_ = MetKeuzes(MaakKolommen(celmaten_, headermaten_, regel), keuzes_);
}

void Roostervlak::ZetKeuzes(const Kolomkeuzes& keuzes)
{
    keuzes_ = keuzes;
    ZetBreedteregel(breedteregel_);
}

Kolomkeuzes Roostervlak::Verdeeld() const
{
    // The last line takes a pixel too.
    return VerdeelRuimte((width() - 1) / pixelsPerMm_, *tabel_, weergave_, kolomnamen_, keuzes_,
                         meter_);
}

double Roostervlak::Passend(std::size_t kolom) const
{
    return PassendeBreedte(std::max(celmaten_[kolom], headermaten_[kolom]));
}

Tekstblik Roostervlak::Cel(int regel, std::size_t kolom) const
{
    const int rij = weergave_[static_cast<std::size_t>(regel - 1)];
    return rij > tabel_->Rijen() || kolomnamen_[kolom].empty()
               ? Tekstblik()
               : tabel_->Cel(rij, static_cast<Kolom>(kolom + 1));
}

QString Roostervlak::Celtekst(int regel, int kolom) const
{
    const auto plaats = static_cast<std::size_t>(kolom);
    return NaarQString(regel == 0 ? kolomnamen_[plaats] : Cel(regel, plaats));
}

bool Roostervlak::IsIngekort(int regel, int kolom) const
{
    const auto plek = static_cast<std::size_t>(kolom);
    const Tekstblik cel = Cel(regel, plek);
    return PasTekst(cel, randen_[plek + 1] - randen_[plek], meter_) != cel;
}

void Roostervlak::Kies(int regel, std::vector<int> gekozen)
{
    Tabelvlak::Kies(regel, std::move(gekozen));
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
    return {static_cast<int>(std::ceil(randen_.back() * pixelsPerMm_)) + 1,
            static_cast<int>(std::ceil(BovenkantVan(Regels() + 1) * pixelsPerMm_)) + 1};
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
}

void Roostervlak::TekenRasters(QPainter& schilder, int eerste, int laatste) const
{
    const double boven = Y(BovenkantVan(eerste));
    const double onder = Y(BovenkantVan(laatste + 1));
    schilder.fillRect(QRectF(QPointF(X(0), boven), QPointF(X(randen_[KolommenInBand]), onder)),
                      bandkleur);
    for (int regel = eerste; regel <= laatste; ++regel) {
        if (IsMeer() && IsGekozen(regel))
            schilder.fillRect(QRectF(QPointF(X(0), Y(BovenkantVan(regel))),
                                     QPointF(X(randen_.back()), Y(BovenkantVan(regel + 1)))),
                              palette().color(QPalette::Highlight));
    }
    schilder.setPen(lijnkleur);
    for (const double rand : randen_)
        schilder.drawLine(QLineF(qRound(X(rand)), boven, qRound(X(rand)), onder));
    for (int regel = eerste; regel <= laatste + 1; ++regel) {
        const int y = qRound(Y(BovenkantVan(regel)));
        schilder.drawLine(QLineF(X(0), y, X(randen_.back()), y));
    }
}

void Roostervlak::TekenTeksten(QPainter& schilder, int regel, double links, double rechts) const
{
    const QFontMetricsF letter(font());
    const double midden = (Y(BovenkantVan(regel)) + Y(BovenkantVan(regel + 1))) / 2;
    const double basislijn = midden + (letter.ascent() - letter.descent()) / 2;
    for (std::size_t i = 0; i < AantalKolommen; ++i) {
        const double begin = randen_[i];
        const double eind = randen_[i + 1];
        if (X(eind) < links || X(begin) > rechts || eind <= begin)
            continue;
        const Tekstblik cel = Cel(regel, i);
        // The band is light in dark themes too.
        if (IsMeer() && IsGekozen(regel))
            schilder.setPen(palette().color(QPalette::HighlightedText));
        else
            schilder.setPen(i < KolommenInBand ? Qt::black : palette().color(QPalette::Text));
        if (!cel.empty())
            schilder.drawText(QPointF(X(begin + rooster::Celmarge), qRound(basislijn)),
                              NaarQString(PasTekst(cel, eind - begin, meter_)));
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
    else if (toets == Qt::Key_Delete && gebeurtenis->modifiers() == Qt::NoModifier)
        emit verwijderGevraagd();
    else if (!KiesMet(toets, gebeurtenis->modifiers()))
        QWidget::keyPressEvent(gebeurtenis);
}

/// Of the line under the mouse, which is chosen by that; with the keys of the current one.
void Roostervlak::contextMenuEvent(QContextMenuEvent* gebeurtenis)
{
    if (gebeurtenis->reason() == QContextMenuEvent::Keyboard) {
        emit menuGevraagd(mapToGlobal(Plek(std::max(Regel(), 1), 0).bottomLeft()));
        return;
    }
    const int regel = RegelOp(gebeurtenis->y());
    if (!IsGekozen(regel))
        KiesRegel(regel);
    emit menuGevraagd(gebeurtenis->globalPos());
}

void Roostervlak::PlaatsLijnen()
{
    const bool tonen = lijnenZichtbaar_ && Regel() > 0;
    if (tonen) {
        const int breedte = qRound(randen_.back() * pixelsPerMm_);
        const auto plaats = [&](QFrame* lijn, double y) {
            lijn->setGeometry(qRound(X(0)), qRound(Y(y)) - Lijndikte / 2, breedte, Lijndikte);
        };
        plaats(Line1, BovenkantVan(Regel()));
        plaats(Line2, BovenkantVan(Regel() + 1));
    }
    Line1->setVisible(tonen);
    Line2->setVisible(tonen);
}

} // namespace plexoran
