#include "federation/diaControleNBB.h"

#include <algorithm>
#include <cmath>

#include "federation/leesfoutmelding.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/kopieren.h"
#include "platform/scherm/printer.h"
#include "platform/scherm/tabelvlak.h"

namespace plexoran {
namespace {

constexpr int TekensBijOpenen = 62;
constexpr int RijenBijOpenen = 24;
constexpr double Rand = 2; // millimetres of white around the list

} // namespace

/// The surface `P1`: the heading, and the rows from one on as far as they are seen. A unit of the
/// standing bar is a row.
class Controlevlak : public Tabelvlak {
    Q_OBJECT

  public:
    Controlevlak(const Letterkast& kast, const Maten& maten, const Schuifkader& kader,
                 QWidget* ouder)
        : Tabelvlak(kader, u"Leden van de gekozen ledenbestanden"_s, ouder,
                    controle::Regelhoogte * maten.PixelsPerMm()),
          kast_(kast), pixelsPerMm_(maten.PixelsPerMm())
    {}

    [[nodiscard]] int Regels() const override { return static_cast<int>(rijen_.Aantal()); }
    [[nodiscard]] int Kolommen() const override { return AantalControlekolommen; }
    [[nodiscard]] QString Celtekst(int regel, int kolom) const override
    {
        const std::array koppen{u"NBBnr"_s, u"M/V"_s, u"NBBgroep"_s, u"Naam"_s};
        const auto index = static_cast<std::size_t>(kolom);
        return regel == 0 ? koppen[index]
                          : NaarQString(rijen_.Cel(static_cast<std::size_t>(regel - 1), index));
    }
    [[nodiscard]] double Boven(int regel) const override
    {
        return Koponder() +
               (regel - 1 - Kader().Staand().value()) * controle::Regelhoogte * pixelsPerMm_;
    }
    [[nodiscard]] double Links(int kolom) const override
    {
        constexpr double wit = 1; // millimetres before the text
        if (kolom == Kolommen())
            return width() - wit * pixelsPerMm_;
        const auto begin = MaakControleregel({}, {}).begin[static_cast<std::size_t>(kolom)];
        return (Rand - wit + kast_.Breedte(controle::Schrift, Tekst(begin, ' '))) * pixelsPerMm_;
    }
    [[nodiscard]] double Koponder() const override
    {
        return (Rand + controle::Kophoogte) * pixelsPerMm_;
    }

    void Toon(Controlerijen rijen)
    {
        rijen_ = std::move(rijen);
        const int zichtbaar = ZichtbareRijen();
        Schuifkader::Stel(Kader().Staand(), Regels(), zichtbaar, zichtbaar - 1, 1);
        if (Regel() == 0 || Regel() > Regels())
            KiesRegel(std::min(1, Regels()));
        update();
        MeldAndereRegels();
    }
    /// How many characters are seen beside each other.
    [[nodiscard]] std::size_t Breedte() const
    {
        return TekensNaastElkaar(kast_, width() / pixelsPerMm_ - 2 * Rand);
    }
    /// The size at which so many characters and rows are seen.
    [[nodiscard]] QSize Maat(int tekens, int rijen) const
    {
        const double breed = kast_.Breedte(controle::Schrift, "0") * (tekens + 0.5) + 2 * Rand;
        const double hoog = Rand + controle::Kophoogte + rijen * controle::Regelhoogte;
        return {static_cast<int>(std::ceil(breed * pixelsPerMm_)),
                static_cast<int>(std::ceil(hoog * pixelsPerMm_))};
    }

  signals:
    /// Other rows may fit.
    void geschaald();

  protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override
    {
        Tabelvlak::resizeEvent(gebeurtenis);
        emit geschaald();
    }
    void paintEvent(QPaintEvent* /*gebeurtenis*/) override
    {
        QPainter schilder(this);
        Schildervlak vlak(schilder, kast_, pixelsPerMm_, Schildervlak::Doel::Scherm,
                          palette().color(QPalette::Text));
        TekenControlelijst(vlak, Rand, Rand, ControlekopScherm, rijen_,
                           static_cast<std::size_t>(Kader().Staand().value()),
                           static_cast<std::size_t>(ZichtbareRijen()) + 1);
        TekenKeus(schilder, 0);
    }

  private:
    /// How many rows are seen below each other whole.
    [[nodiscard]] int ZichtbareRijen() const
    {
        const double ruimte = height() / pixelsPerMm_ - Rand - controle::Kophoogte;
        return std::max(1, static_cast<int>(std::floor(ruimte / controle::Regelhoogte)));
    }

    const Letterkast& kast_;
    double pixelsPerMm_;
    Controlerijen rijen_;
};

diaControleNBB::diaControleNBB(Administratie& administratie, const Ledenopdracht& opdracht,
                               const std::vector<Tekst>& namen, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    Lees(opdracht, namen);
    Teken();
    P1->setFocus();
}

void diaControleNBB::Bouw()
{
    setObjectName(u"diaControleNBB"_s);
    setWindowTitle(u"Controle NBB-spelers op ontbrekende NBBnrs en M/V"_s);
    setSizeGripEnabled(true);
    auto* Frame2 = new Schuifkader(u"Frame2"_s, maten_, this);
    P1 = new Controlevlak(kast_, maten_, *Frame2, Frame2);
    LaatKopieren(P1);
    Frame2->Bevat(P1);
    Frame2->Liggend().hide(); // what is too wide goes on below
    lblAantal = MaakLabel(u"lblAantal"_s, QString(), this);
    chkSort = MaakVink(u"chkSort"_s, u"Sorteer op naam"_s, u'S', this);
    cmdPrint = MaakKnop(u"cmdPrint"_s, u"Print"_s, u'P', this, &diaControleNBB::Print);
    auto* cmdTerug = MaakKnop(u"cmdTerug"_s, u"Terug"_s, u'T', this, &QDialog::accept);
    cmdTerug->setDefault(true);

    auto* onder = Naastelkaar(
        {chkSort, Wit{maten_.Twips(300)}, lblAantal, {Knoppenrij({cmdPrint, cmdTerug}), 1}});
    auto* lagen = Onderelkaar({{Frame2, 1}, onder}, this);
    const QMargins marges = lagen->contentsMargins();
    const QSize lijst = P1->Maat(TekensBijOpenen, RijenBijOpenen);
    const int rand = 2 * Frame2->frameWidth();
    const int balk = Frame2->Staand().width();
    PasInScherm(this, {lijst.width() + balk + rand + marges.left() + marges.right(),
                       lijst.height() + rand + marges.top() + marges.bottom() + lagen->spacing() +
                           cmdPrint->sizeHint().height()});
    Frame2->setMinimumSize(balk + maten_.Twips(1500), maten_.Twips(1500));
    ZetTabvolgorde({P1, chkSort, cmdPrint, cmdTerug});

    connect(P1, &Controlevlak::geschaald, this, &diaControleNBB::Teken);
    connect(chkSort, &QCheckBox::clicked, this, [this, Frame2] {
        Frame2->Staand().setValue(0);
        Teken();
        P1->KiesRegel(std::min(1, P1->Regels()));
    });
}

void diaControleNBB::Lees(const Ledenopdracht& opdracht, const std::vector<Tekst>& namen)
{
    QStringList opmerkingen;
    {
        frmVoortgang voortgang(QString(), u"&Stoppen"_s, parentWidget());
        std::size_t gelezen = 0;
        while (gelezen < namen.size() && !voortgang.Gestopt()) {
            const std::size_t i = gelezen++; // is read to its end, also when the user stops
            voortgang.setLabelText(u"Ledenbestand wordt gelezen: %1"_s.arg(NaarQString(namen[i])));
            const auto melder = [&](std::size_t gedaan, std::size_t geheel) {
                // Each file is one step, of which this is the part that is done.
                const std::size_t deel = geheel == 0 ? 0 : 100 * std::min(gedaan, geheel) / geheel;
                return voortgang.Meld(100 * i + deel, 100 * namen.size());
            };
            (void)melder(0, 0);
            const auto lezing = LeesLedenbestand(administratie_.schijf, opdracht, namen[i], melder);
            if (lezing) {
                Voeg(*lezing, namen[i], opmerkingen);
            } else {
                voortgang.hide();
                Meld(parentWidget(), QMessageBox::Warning,
                     Leesfouttekst(opdracht.bron, namen[i], lezing.error(), Leesdoel::Overzicht));
                // All entries are in the same database, which would fail again for each.
                if (opdracht.bron == Ledenbron::Database)
                    break;
            }
        }
        if (voortgang.Gestopt() && gelezen < namen.size())
            opmerkingen << u"Het lezen is gestopt: de lijst is niet volledig."_s;
    }
    if (!opmerkingen.isEmpty())
        MeldLijst(
            parentWidget(), QMessageBox::Information,
            u"Bij het lezen van de ledenbestanden viel dit op; er is niets veranderd. Verhelp het "
            "zo nodig en open dit overzicht opnieuw.\r\n\r\n"_s +
                opmerkingen.join(u"\r\n"_s));
}

void diaControleNBB::Voeg(const Ledenlezing& lezing, Tekstblik naam, QStringList& opmerkingen)
{
    const Tekst groep(ZonderSpaties(SubgroepUitNaam(naam)));
    for (const Tekstblik regel : lezing.lstN1)
        lstN9.push_back(MaakControleregel(regel, groep));
    const auto noem = [&](const QString& wat) {
        opmerkingen << u"'%1': "_s.arg(NaarQString(naam)) + wat;
    };
    if (lezing.nietGeladen)
        noem(u"geen leden, want %1."_s.arg(Leesfoutreden(*lezing.nietGeladen)));
    if (lezing.anderNummer)
        noem(u"dit zijn de leden van het ledenbestand met nummer %1, want van het nummer tellen "
             "alleen de laatste drie tekens."_s.arg(*lezing.anderNummer));
    if (lezing.inUtf8)
        noem(u"opgeslagen in UTF-8, dus letters met een accent komen verkeerd over."_s);
    if (lezing.teKorteRegel > 0)
        noem(u"gelezen tot regel %1, want die regel heeft te weinig kolommen."_s.arg(
            lezing.teKorteRegel));
    if (!lezing.metIsTeken.empty())
        noem(u"%1 overgeslagen, omdat er een '=' in staat, zoals in een kopregel."_s.arg(
            Aantal(lezing.metIsTeken.size(), u"regel"_s, u"regels"_s)));
    if (lezing.vervangenTekens > 0)
        noem(u"aantal tekens dat het spelerbestand niet kent en dat is vervangen door een teken "
             "dat erop lijkt, of is weggelaten: %1."_s.arg(lezing.vervangenTekens));
}

Controlerijen diaControleNBB::Rijen(std::size_t breedte) const
{
    return {chkSort->isChecked() ? opNaam_ : lstN9, breedte};
}

void diaControleNBB::Teken()
{
    if (chkSort->isChecked() && opNaam_.size() != lstN9.size())
        opNaam_ = OpNaam(lstN9);
    P1->Toon(Rijen(P1->Breedte()));
    lblAantal->setText(u"Aantal leden: %1"_s.arg(lstN9.size()));
    cmdPrint->setEnabled(!lstN9.empty());
}

void diaControleNBB::keyPressEvent(QKeyEvent* gebeurtenis)
{
    if (!P1->LeesMet(gebeurtenis->key()))
        QDialog::keyPressEvent(gebeurtenis);
}

void diaControleNBB::Print()
{
    const Controlerijen rijen =
        Rijen(TekensNaastElkaar(kast_, controleblad::Breed - 2 * controleblad::Marge));
    const int bladen = ControlebladenVoor(rijen.Aantal());
    PrintBladen(
        administratie_.schijf,
        {.titel = u"Controle NBB-spelers"_s,
         .stand = Papierstand::Staand,
         .bezig = u"De lijst wordt geprint"_s,
         .bladen = bladen},
        [&](Tekenvlak& vlak, int blad) { TekenControleblad(vlak, rijen, blad, bladen); }, this);
    Teken();
}

} // namespace plexoran

#include "diaControleNBB.moc"
