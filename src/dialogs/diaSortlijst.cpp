#include "dialogs/diaSortlijst.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

constexpr int VensterHoog = 6930; // twips
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
        return u"Spelers gesorteerd op 'RVD-key'."_s;
    case Sorteersoort::NBBnr:
        return u"Spelers gesorteerd op 'NBB-nummer'."_s;
    case Sorteersoort::NBBgroep:
        break;
    }
    return u"Spelers gesorteerd op 'NBB-groep en Naam'."_s;
}

void ZetVet(QPainter& schilder, bool vet)
{
    QFont letter = schilder.font();
    letter.setBold(vet);
    schilder.setFont(letter);
}

} // namespace

Sorteervlak::Sorteervlak(const Sorteerbeeld& beeld, const Maten& maten, const Schuifkader& kader,
                         QWidget* ouder)
    : Tabelvlak(kader, u"Gesorteerde spelers"_s, ouder), beeld_(beeld),
      randen_(ZetKolommen(beeld.soort))
{
    setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    breedteA_ = fontMetrics().horizontalAdvance(u'A');
    regelhoogte_ = fontMetrics().height() + 4;
}

int Sorteervlak::X(float breedtenA) const
{
    return qRound(breedtenA * static_cast<float>(breedteA_)) - Kader().Liggend().value();
}

int Sorteervlak::Y(int regel) const
{
    return regel * regelhoogte_ + 2 - Kader().Staand().value();
}

QString Sorteervlak::Celtekst(int regel, int kolom) const
{
    const std::array<QString, AantalSorteervelden> titels{
        u"Key"_s,
        u"Voornaam"_s,
        u"Tus"_s,
        u"Achternaam"_s,
        beeld_.importgroep ? u"NBBgroep"_s : u"Subgroep"_s,
        beeld_.importgroep ? u"NBBnr"_s : u"-----"_s};
    return regel == 0 ? titels[static_cast<std::size_t>(kolom)]
                      : NaarQString(beeld_.regel(regel - 1)).section(u',', kolom, kolom);
}

QSize Sorteervlak::Vlakmaat() const
{
    const int breed = qRound(randen_.back() * static_cast<float>(breedteA_)) + breedteA_;
    return {breed, (beeld_.regels + 1) * regelhoogte_ + 4};
}

void Sorteervlak::resizeEvent(QResizeEvent* gebeurtenis)
{
    Tabelvlak::resizeEvent(gebeurtenis);
    Schuifkader::Stel(Kader().Staand(), Vlakmaat().height(), height(), height() - regelhoogte_,
                      regelhoogte_);
    Schuifkader::Stel(Kader().Liggend(), Vlakmaat().width(), width(), width(), regelhoogte_);
    Kader().Liggend().setVisible(Vlakmaat().width() > width());
}

void Sorteervlak::paintEvent(QPaintEvent* gebeurtenis)
{
    QPainter schilder(this);
    schilder.setPen(palette().color(QPalette::Text));
    TekenKop(schilder);
    if (beeld_.regels == 0)
        return;
    const auto [eerste, laatste] = RegelsIn(gebeurtenis->rect());
    TekenLijnen(schilder, eerste, laatste);
    for (int regel = eerste; regel <= laatste; ++regel)
        TekenRegel(schilder, regel);
    TekenKeus(schilder, 1);
}

void Sorteervlak::TekenKop(QPainter& schilder) const
{
    ZetVet(schilder, true);
    const int basislijn = Y(0) + fontMetrics().ascent();
    for (int kolom = 0; kolom < AantalSorteervelden; ++kolom)
        schilder.drawText(X(randen_[static_cast<std::size_t>(kolom)]), basislijn,
                          Celtekst(0, kolom));
    ZetVet(schilder, false);
}

void Sorteervlak::TekenLijnen(QPainter& schilder, int eerste, int laatste) const
{
    const QPen tekstpen = schilder.pen();
    schilder.setPen(lijnkleur);
    const auto y = [this](int regel) { return Y(regel) - 1; };
    for (int regel = eerste; regel <= laatste + 1; ++regel)
        schilder.drawLine(X(randen_.front()), y(regel), X(randen_.back()), y(regel));
    for (const float rand : randen_)
        schilder.drawLine(X(rand), y(eerste), X(rand), y(laatste + 1));
    schilder.setPen(tekstpen);
}

void Sorteervlak::TekenRegel(QPainter& schilder, int regel) const
{
    Tekstblik rest = beeld_.regel(regel - 1);
    const int boven = Y(regel);
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
    const int begin = X(rand + Inspringing);
    // A long text must not run into its neighbour.
    const bool isNummer = veld == NBBnrVeld;
    const int eind = isNummer ? X(rand + NummerBreed) : X(randen_[static_cast<std::size_t>(veld)]);
    const QFontMetrics maten(schilder.font());
    const QString kort = Ingekort(maten, tekst, eind - begin);
    schilder.drawText(isNummer ? eind - maten.horizontalAdvance(kort) : begin, basislijn, kort);
}

diaSortlijst::diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster)
    : QDialog(hoofdvenster), beeld_(std::move(beeld)),
      Frame2(new Schuifkader(u"Frame2"_s, maten_, this)), P0(new QWidget(Frame2)),
      P1(new Sorteervlak(beeld_, maten_, *Frame2, P0))
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
    setObjectName(u"diaSortlijst"_s);
    setWindowTitle(u"Gesorteerde spelerlijst"_s);
    Noem(P0, u"P0"_s);
    auto* binnen = new QVBoxLayout(P0);
    binnen->setContentsMargins({});
    binnen->addWidget(P1);
    Frame2->Bevat(P0);
    cmdOK = MaakKnop(u"cmdOK"_s, u"Terug"_s, u'T', this);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* lagen = new QVBoxLayout(this);
    QMargins marges = lagen->contentsMargins();
    marges.setLeft(maten_.Twips(Zijmarge));
    marges.setRight(maten_.Twips(Zijmarge));
    lagen->setContentsMargins(marges);
    lagen->addWidget(MaakLabel(u"Label1"_s, Titel(beeld_.soort), this));
    lagen->addWidget(Frame2, 1);
    lagen->addLayout(Knoppenrij({cmdOK}));
    const int breed = P1->Vlakmaat().width() + Frame2->Staand().width() + 2 * Frame2->frameWidth() +
                      marges.left() + marges.right();
    PasInScherm(this, {breed, maten_.Twips(VensterHoog)});
    P1->KiesRegel(beeld_.regels > 0 ? 1 : 0);
    P1->setFocus();
}

void diaSortlijst::keyPressEvent(QKeyEvent* gebeurtenis)
{
    if (!P1->LeesMet(gebeurtenis->key()))
        QDialog::keyPressEvent(gebeurtenis);
}

} // namespace plexoran
