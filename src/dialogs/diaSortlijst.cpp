#include "dialogs/diaSortlijst.h"

#include <QPainter>

#include <utility>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"
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

/// Header and lines. The header scrolls along.
class Sorteervlak : public Tabelvlak {
    // Without it Qt keeps the accessible interface that the bare table got while it was made.
    Q_OBJECT

  public:
    Sorteervlak(const Sorteerbeeld& beeld, const Maten& maten, const Schuifkader& kader,
                QWidget* ouder)
        : Tabelvlak(kader, u"Gesorteerde spelers"_s, ouder), beeld_(beeld),
          randen_(ZetKolommen(beeld.soort))
    {
        setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
        breedteA_ = fontMetrics().horizontalAdvance(u'A');
        regelhoogte_ = fontMetrics().height() + 4;
    }

    [[nodiscard]] int Regels() const override { return beeld_.regels; }
    [[nodiscard]] int Kolommen() const override { return AantalSorteervelden; }
    [[nodiscard]] double Boven(int regel) const override { return Y(regel); }
    [[nodiscard]] double Links(int kolom) const override { return X(Rand(kolom)); }
    [[nodiscard]] double Koponder() const override { return Y(1); }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override
    {
        if (regel > 0)
            return NaarQString(beeld_.regel(regel - 1)).section(u',', kolom, kolom);
        const QStringList titels{u"Key"_s,
                                 u"Voornaam"_s,
                                 u"Tus"_s,
                                 u"Achternaam"_s,
                                 beeld_.importgroep ? u"NBBgroep"_s : u"Subgroep"_s,
                                 beeld_.importgroep ? u"NBBnr"_s : u"-----"_s};
        return titels[kolom];
    }

    /// As if every column were bold: rather a tip too many.
    [[nodiscard]] bool IsIngekort(int regel, int kolom) const override
    {
        QFont vet = font();
        vet.setBold(true);
        return QFontMetrics(vet).horizontalAdvance(Celtekst(regel, kolom) + u'A') >
               Plek(regel, kolom).width();
    }

    /// Of the whole list, in pixels.
    [[nodiscard]] QSize Vlakmaat() const
    {
        const int breed = qRound(randen_.back() * static_cast<float>(breedteA_)) + breedteA_;
        return {breed, (beeld_.regels + 1) * regelhoogte_ + 4};
    }

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override
    {
        Tabelvlak::resizeEvent(gebeurtenis);
        Schuifkader::Stel(Kader().Staand(), Vlakmaat().height(), height(), height() - regelhoogte_,
                          regelhoogte_);
        Schuifkader::Stel(Kader().Liggend(), Vlakmaat().width(), width(), width(), regelhoogte_);
        Kader().Liggend().setVisible(Vlakmaat().width() > width());
    }

    void paintEvent(QPaintEvent* gebeurtenis) override
    {
        QPainter schilder(this);
        schilder.setPen(palette().color(QPalette::Text));
        ZetVet(schilder, true);
        for (int kolom = 0; kolom < Kolommen(); ++kolom)
            schilder.drawText(X(Rand(kolom)), Y(0) + fontMetrics().ascent(), Celtekst(0, kolom));
        if (beeld_.regels == 0)
            return;
        const auto [eerste, laatste] = RegelsIn(gebeurtenis->rect());
        TekenLijnen(schilder, eerste, laatste);
        for (int regel = eerste; regel <= laatste; ++regel)
            TekenRegel(schilder, regel);
        TekenKeus(schilder, 1);
    }

  private:
    [[nodiscard]] float Rand(int kolom) const { return randen_[static_cast<std::size_t>(kolom)]; }
    /// Where a place on the list is in the surface, and the top of a line.
    [[nodiscard]] int X(float breedtenA) const
    {
        return qRound(breedtenA * static_cast<float>(breedteA_)) - Kader().Liggend().value();
    }
    [[nodiscard]] int Y(int regel) const
    {
        return regel * regelhoogte_ + 2 - Kader().Staand().value();
    }

    void TekenLijnen(QPainter& schilder, int eerste, int laatste) const
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

    void TekenRegel(QPainter& schilder, int regel) const
    {
        for (int kolom = 0; kolom < Kolommen(); ++kolom) {
            ZetVet(schilder, kolom + 1 == VetVeld(beeld_.soort));
            const QFontMetrics maten(schilder.font());
            const bool isNummer = kolom + 1 == NBBnrVeld;
            const int begin = X(Rand(kolom) + Inspringing);
            const int eind = X(isNummer ? Rand(kolom) + NummerBreed : Rand(kolom + 1));
            // A long text must not run into its neighbour.
            const QString tekst = Ingekort(maten, Celtekst(regel, kolom), eind - begin);
            schilder.drawText(isNummer ? eind - maten.horizontalAdvance(tekst) : begin,
                              Y(regel) + fontMetrics().ascent() + 1, tekst);
        }
    }

    static void ZetVet(QPainter& schilder, bool vet)
    {
        QFont letter = schilder.font();
        letter.setBold(vet);
        schilder.setFont(letter);
    }

    const Sorteerbeeld& beeld_;
    Sorteerranden randen_;
    int breedteA_;
    int regelhoogte_;
};

} // namespace

diaSortlijst::diaSortlijst(Sorteerbeeld beeld, QWidget* hoofdvenster)
    : QDialog(hoofdvenster), beeld_(std::move(beeld))
{
    setObjectName(u"diaSortlijst"_s);
    setWindowTitle(u"Gesorteerde spelerlijst"_s);
    const Maten maten;
    auto* Frame2 = new Schuifkader(u"Frame2"_s, maten, this);
    auto* P0 = new QWidget(Frame2);
    Noem(P0, u"P0"_s);
    auto* vlak = new Sorteervlak(beeld_, maten, *Frame2, P0);
    P1 = vlak;
    LaatKopieren(P1);
    Onderelkaar({P1}, P0)->setContentsMargins({});
    Frame2->Bevat(P0);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"Terug"_s, u'T', this, &QDialog::accept);
    cmdOK->setDefault(true);

    const QStringList titels{u"Spelers gesorteerd op 'RVD-key'."_s,
                             u"Spelers gesorteerd op 'NBB-nummer'."_s,
                             u"Spelers gesorteerd op 'NBB-groep en Naam'."_s};
    auto* Label1 = MaakLabel(u"Label1"_s, titels[static_cast<int>(beeld_.soort) - 1], this);
    auto* lagen = Onderelkaar({Label1, {Frame2, 1}, Knoppenrij({cmdOK})}, this);
    QMargins marges = lagen->contentsMargins();
    marges.setLeft(maten.Twips(Zijmarge));
    marges.setRight(maten.Twips(Zijmarge));
    lagen->setContentsMargins(marges);
    const int breed = vlak->Vlakmaat().width() + Frame2->Staand().width() +
                      2 * Frame2->frameWidth() + marges.left() + marges.right();
    PasInScherm(this, {breed, maten.Twips(VensterHoog)});
    P1->KiesRegel(beeld_.regels > 0 ? 1 : 0);
    P1->setFocus();
    // Below the top of the main window and in its middle
    const QRect hoofd = hoofdvenster->frameGeometry();
    const int links = hoofd.left() + (hoofd.width() - width()) / 2;
    ZetInScherm(this, {links, hoofd.top() + maten.Twips(600)}, *hoofdvenster);
}

void diaSortlijst::keyPressEvent(QKeyEvent* gebeurtenis)
{
    if (!P1->LeesMet(gebeurtenis->key()))
        QDialog::keyPressEvent(gebeurtenis);
}

} // namespace plexoran

#include "diaSortlijst.moc"
