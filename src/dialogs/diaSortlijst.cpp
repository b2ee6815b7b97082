#include "dialogs/diaSortlijst.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/meter.h"

namespace plexoran {
namespace {

constexpr int VensterHoog = 6930; // twips
constexpr int BalkBreed = 280;
constexpr int Zijmarge = 100;
constexpr double Letterpunten = 9.0;
constexpr QColor lijnkleur(160, 160, 160);
constexpr float Inspringing = 1;  // of a text behind its column's edge
constexpr float NummerBreed = 15; // a federation number ends so far behind its column's edge
constexpr int NBBnrVeld = 6;

QString Titel(Sorteersoort soort)
{
    switch (soort) {
    case Sorteersoort::Key:
        return QStringLiteral("Spelers gesorteerd op 'RVD-key'.");
    case Sorteersoort::NBBnr:
        return QStringLiteral("Spelers gesorteerd op 'NBB-nummer'.");
    case Sorteersoort::NBBgroep:
        break;
    }
    return QStringLiteral("Spelers gesorteerd op 'NBB-groep en Naam'.");
}

void ZetVet(QPainter& schilder, bool vet)
{
    QFont letter = schilder.font();
    letter.setBold(vet);
    schilder.setFont(letter);
}

} // namespace

Sorteervlak::Sorteervlak(const Sorteerbeeld& beeld, const Maten& maten, QWidget* ouder)
    : QWidget(ouder), beeld_(beeld), randen_(ZetKolommen(beeld.soort))
{
    Noem(this, QStringLiteral("P1"), QStringLiteral("Gesorteerde spelers"));
    setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    breedteA_ = fontMetrics().horizontalAdvance(QLatin1Char('A'));
    regelhoogte_ = fontMetrics().height() + 4;
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
}

int Sorteervlak::X(float breedtenA) const
{
    return qRound(breedtenA * static_cast<float>(breedteA_)) - links_;
}

int Sorteervlak::Koptekst() const
{
    return regelhoogte_ + 2;
}

QSize Sorteervlak::Vlakmaat() const
{
    return {X(randen_.back()) + links_ + breedteA_, Koptekst() + beeld_.regels * regelhoogte_ + 2};
}

void Sorteervlak::Schuif(int boven)
{
    boven_ = boven;
    update();
}

void Sorteervlak::SchuifOpzij(int links)
{
    links_ = links;
    update();
}

void Sorteervlak::paintEvent(QPaintEvent* gebeurtenis)
{
    QPainter schilder(this);
    schilder.setPen(palette().color(QPalette::Text));
    TekenKop(schilder);
    if (beeld_.regels == 0)
        return;
    const auto regelBij = [&](int y) { return (y + boven_ - Koptekst()) / regelhoogte_; };
    const int eerste = std::clamp(regelBij(gebeurtenis->rect().top()), 0, beeld_.regels - 1);
    const int laatste = std::clamp(regelBij(gebeurtenis->rect().bottom()), 0, beeld_.regels - 1);
    TekenLijnen(schilder, eerste, laatste);
    for (int regel = eerste; regel <= laatste; ++regel)
        TekenRegel(schilder, regel);
}

void Sorteervlak::TekenKop(QPainter& schilder) const
{
    const std::array<QString, AantalSorteervelden> titels{
        QStringLiteral("Key"),
        QStringLiteral("Voornaam"),
        QStringLiteral("Tus"),
        QStringLiteral("Achternaam"),
        beeld_.importgroep ? QStringLiteral("NBBgroep") : QStringLiteral("Subgroep"),
        beeld_.importgroep ? QStringLiteral("NBBnr") : QStringLiteral("-----")};
    ZetVet(schilder, true);
    const int basislijn = fontMetrics().ascent() + 2 - boven_;
    for (std::size_t i = 0; i < titels.size(); ++i)
        schilder.drawText(X(randen_[i]), basislijn, titels[i]);
    ZetVet(schilder, false);
}

void Sorteervlak::TekenLijnen(QPainter& schilder, int eerste, int laatste) const
{
    const QPen tekstpen = schilder.pen();
    schilder.setPen(lijnkleur);
    const auto y = [&](int regel) { return Koptekst() + regel * regelhoogte_ - boven_ - 1; };
    for (int regel = eerste; regel <= laatste + 1; ++regel)
        schilder.drawLine(X(randen_.front()), y(regel), X(randen_.back()), y(regel));
    for (const float rand : randen_)
        schilder.drawLine(X(rand), y(eerste), X(rand), y(laatste + 1));
    schilder.setPen(tekstpen);
}

void Sorteervlak::TekenRegel(QPainter& schilder, int regel) const
{
    Tekstblik rest = beeld_.regel(regel);
    const int boven = Koptekst() + regel * regelhoogte_ - boven_;
    for (int veld = 1; veld <= AantalSorteervelden; ++veld) {
        const auto komma = std::min(rest.find(','), rest.size());
        ZetVet(schilder, veld == VetVeld(beeld_.soort));
        TekenVeld(schilder, veld, boven, NaarQString(rest.substr(0, komma)));
        rest.remove_prefix(std::min(komma + 1, rest.size()));
    }
}

void Sorteervlak::TekenVeld(QPainter& schilder, int veld, int boven, const QString& tekst) const
{
    const float rand = randen_[static_cast<std::size_t>(veld - 1)];
    const int basislijn = boven + fontMetrics().ascent() + 1;
    int links = X(rand + Inspringing);
    if (veld == NBBnrVeld)
        links = X(rand + NummerBreed) - QFontMetrics(schilder.font()).horizontalAdvance(tekst);
    // A long text must not run into its neighbour.
    const int rechts = X(randen_[static_cast<std::size_t>(veld)]);
    schilder.setClipRect(QRect(X(rand) + 1, boven, rechts - X(rand) - 1, regelhoogte_));
    schilder.drawText(links, basislijn, tekst);
    schilder.setClipping(false);
}

diaSortlijst::diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster)
    : QDialog(hoofdvenster), beeld_(std::move(beeld)), Frame2(new QFrame(this)),
      P0(new QWidget(Frame2)), P1(new Sorteervlak(beeld_, maten_, P0)),
      VScroll1(new QScrollBar(Qt::Vertical, Frame2)),
      HScroll1(new QScrollBar(Qt::Horizontal, Frame2))
{
    Bouw();
    ZetBij(*hoofdvenster);
}

/// Below the top of the main window and in its middle, but not beyond the screen.
void diaSortlijst::ZetBij(const QWidget& hoofdvenster)
{
    const QRect hoofd = hoofdvenster.frameGeometry();
    const int links = hoofd.left() + (hoofd.width() - width()) / 2;
    ZetInScherm(this, {links, hoofd.top() + maten_.Twips(600)}, hoofdvenster);
}

void diaSortlijst::Bouw()
{
    setObjectName(QStringLiteral("diaSortlijst"));
    setWindowTitle(QStringLiteral("Gesorteerde spelerlijst"));
    Noem(Frame2, QStringLiteral("Frame2"));
    Frame2->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    Noem(P0, QStringLiteral("P0"));
    Noem(VScroll1, QStringLiteral("VScroll1"), QStringLiteral("Regels verschuiven"));
    VScroll1->setAttribute(Qt::WA_NoMousePropagation);
    Noem(HScroll1, QStringLiteral("HScroll1"), QStringLiteral("Kolommen verschuiven"));
    HScroll1->setAttribute(Qt::WA_NoMousePropagation);
    connect(HScroll1, &QScrollBar::valueChanged, P1,
            [this](int waarde) { P1->SchuifOpzij(waarde); });
    connect(VScroll1, &QScrollBar::valueChanged, P1, [this](int waarde) { P1->Schuif(waarde); });
    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("Terug"), u'T', this);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* lagen = new QVBoxLayout(this);
    QMargins marges = lagen->contentsMargins();
    marges.setLeft(maten_.Twips(Zijmarge));
    marges.setRight(maten_.Twips(Zijmarge));
    lagen->setContentsMargins(marges);
    lagen->addWidget(MaakLabel(QStringLiteral("Label1"), Titel(beeld_.soort), this));
    lagen->addWidget(Frame2, 1);
    lagen->addLayout(Knoppenrij({cmdOK}));
    const int breed = P1->Vlakmaat().width() + maten_.Twips(BalkBreed) + 2 * Frame2->frameWidth() +
                      marges.left() + marges.right();
    PasInScherm(this, {breed, maten_.Twips(VensterHoog)});
    P1->setFocus();
}

void diaSortlijst::resizeEvent(QResizeEvent* gebeurtenis)
{
    QDialog::resizeEvent(gebeurtenis);
    layout()->activate();
    ZetSchuifbalk();
}

void diaSortlijst::ZetSchuifbalk()
{
    const QRect binnen = Frame2->contentsRect();
    const int balk = maten_.Twips(BalkBreed);
    const QSize vlak = P1->Vlakmaat();
    const int opzij = std::max(0, vlak.width() - (binnen.width() - balk));
    P0->setGeometry(binnen.adjusted(0, 0, -balk, opzij > 0 ? -balk : 0));
    P1->setGeometry(P0->rect());
    HScroll1->setGeometry(binnen.left(), binnen.bottom() + 1 - balk, P0->width(), balk);
    HScroll1->setVisible(opzij > 0);
    HScroll1->setRange(0, opzij);
    HScroll1->setPageStep(std::max(1, P0->width()));
    HScroll1->setSingleStep(P1->Regelhoogte());
    VScroll1->setGeometry(binnen.right() + 1 - balk, binnen.top(), balk, P0->height());
    const int over = std::max(0, vlak.height() - P0->height());
    VScroll1->setRange(0, over);
    VScroll1->setPageStep(std::max(1, P0->height() - P1->Regelhoogte()));
    VScroll1->setSingleStep(P1->Regelhoogte());
    VScroll1->setEnabled(over > 0);
}

void diaSortlijst::wheelEvent(QWheelEvent* gebeurtenis)
{
    const QPoint slag = gebeurtenis->angleDelta();
    const bool opzij = std::abs(slag.x()) > std::abs(slag.y());
    QApplication::sendEvent(opzij ? HScroll1 : VScroll1, gebeurtenis);
}

void diaSortlijst::keyPressEvent(QKeyEvent* gebeurtenis)
{
    const int toets = gebeurtenis->key();
    if (!Verschuif(*VScroll1, toets) && !VerschuifOpzij(*HScroll1, toets))
        QDialog::keyPressEvent(gebeurtenis);
}

} // namespace plexoran
