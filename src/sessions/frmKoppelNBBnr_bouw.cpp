// Building the linking window: its controls, their texts and places.
#include <QFontDatabase>
#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"
#include "sessions/frmKoppelNBBnr.h"

namespace plexoran {
namespace {

QLabel* MaakTekst(const char16_t* naam, const QString& tekst, QWidget* ouder)
{
    QLabel* label = MaakLabel(QString::fromUtf16(naam), tekst, ouder);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QLineEdit* MaakLeesvak(const QString& naam, const QString& gesproken, QWidget* ouder)
{
    auto* vak = new QLineEdit(ouder);
    Noem(vak, naam, gesproken);
    vak->setReadOnly(true);
    return vak;
}

/// Asks room for its usual number of lines and scrolls in less where the window would otherwise be
/// higher than the screen.
class Tekstvlak : public QScrollArea {
  public:
    Tekstvlak(int regels, int minstens, QWidget* ouder)
        : QScrollArea(ouder), regels_(regels), minstens_(minstens)
    {}

    [[nodiscard]] QSize sizeHint() const override { return Hoog(regels_); }
    [[nodiscard]] QSize minimumSizeHint() const override { return Hoog(minstens_); }

  private:
    [[nodiscard]] QSize Hoog(int regels) const
    {
        constexpr int omheen = 12;
        return {QScrollArea::minimumSizeHint().width(),
                regels * fontMetrics().lineSpacing() + omheen};
    }

    int regels_;
    int minstens_;
};

Regellijst* MaakLijst(const QString& naam, const QString& gesproken, QWidget* ouder)
{
    auto* lijst = new Regellijst(QListView::SingleSelection, ouder);
    Noem(lijst, naam, gesproken);
    lijst->setTabKeyNavigation(false);
    return lijst;
}

} // namespace

void frmKoppelNBBnr::Bouw()
{
    setObjectName(u"frmKoppelNBBnr"_s);
    setWindowTitle(u"Koppelen van zwevende NBB-spelers  aan RVD-ledenbestand"_s);
    auto* vakken = new QGridLayout;
    vakken->addWidget(BouwKeuze(), 0, 0);
    vakken->addWidget(BouwUitleg(), 0, 1);
    vakken->addWidget(BouwZwevenden(), 1, 0);
    vakken->addWidget(BouwRegister(), 1, 1);
    vakken->setColumnStretch(0, 4);
    vakken->setColumnStretch(1, 6);
    vakken->setRowStretch(1, 1);
    auto* lagen = new QVBoxLayout(this);
    lagen->addLayout(vakken, 1);
    lagen->addLayout(BouwOnderkant());
    ZetOpSchuifblad(this);
    const Maten maten;
    PasInScherm(this, {maten.Twips(15000), maten.Twips(10200)});
    StelTabvolgordeIn();
}

QGroupBox* frmKoppelNBBnr::BouwKeuze()
{
    auto* Frame1 = new QGroupBox(u"Wijziging van een NBBnr"_s, this);
    Noem(Frame1, u"Frame1"_s);
    Option1 = MaakOptie(u"Option1"_s, u"In losse Zittingen"_s, u't', Frame1);
    Option2 = MaakOptie(u"Option2"_s, u"In Competities"_s, u'C', Frame1);
    Label4 = MaakLabel(u"Label4"_s, QString(), Frame1);
    cmbC = MaakKeus(u"cmbC"_s, Label4, Frame1);
    cmdZoekNamen = MaakKnop(u"cmdZoekNamen"_s, u"Zoek de zwevende spelers in RVD"_s, u'Z', Frame1);
    auto* lagen = new QVBoxLayout(Frame1);
    lagen->addWidget(Option1);
    lagen->addWidget(Option2);
    lagen->addWidget(Label4);
    lagen->addWidget(cmbC);
    lagen->addWidget(cmdZoekNamen);
    lagen->addStretch();
    return Frame1;
}

QGroupBox* frmKoppelNBBnr::BouwUitleg()
{
    auto* Frame3 = new QGroupBox(u"Waarom dit programmadeel?"_s, this);
    Noem(Frame3, u"Frame3"_s);
    // A small screen scrolls the texts; it does not cut them.
    auto* vlak = new Tekstvlak(12, 6, Frame3);
    Noem(vlak, u"vlakUitleg"_s, u"Waarom dit programmadeel?"_s);
    vlak->setFrameShape(QFrame::NoFrame);
    vlak->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* blad = new QWidget(vlak);
    auto* lagen = new QVBoxLayout(blad);
    lagen->addWidget(MaakTekst(
        u"Label1",
        u"Als er in geimporteerde NBB-zittingen (o.a. BWS-zittingen) spelers voorkomen die (ten "
        "tijde van het importeren!) nog niet in het RVD-ledenbestand bekend waren (zgn zwevende "
        "spelers), dan kunt u hiermee alsnog die spelers koppelen."_s,
        blad));
    lagen->addWidget(MaakTekst(
        u"Label2",
        u"Dit hoeft niet persé, maar als u gebruik wilt maken van de speciale RVD-opties en zeker "
        "in de geimporteeerde competitiezittingen dan moet u dit doen. Denk bijv aan berekenen "
        "Clubkampioenschap."_s,
        blad));
    lagen->addWidget(MaakTekst(
        u"Label3",
        u"Vóór dit koppelen moeten de spelergegevens vooraf van NBB naar RVD geimporteerd zijn."_s,
        blad));
    lagen->addWidget(MaakTekst(
        u"Label5",
        u" Als in NBB een (evt fictief) NBBnr wordt gewijzigd, bijv een cursist wordt NBB-lid, "
        "dan kan men volstaan met het handmatig wijzigen van het NBBnr in beide, NBB en RVD "
        "(groep Gr05)."_s,
        blad));
    lagen->addStretch();
    lagen->setContentsMargins(0, 0, 0, 0);
    vlak->setWidget(blad);
    vlak->setWidgetResizable(true);
    vlak->viewport()->setAutoFillBackground(false);
    blad->setAutoFillBackground(false);
    auto* rand = new QVBoxLayout(Frame3);
    rand->addWidget(vlak);
    return Frame3;
}

QGroupBox* frmKoppelNBBnr::BouwZwevenden()
{
    auto* Frame2 = new QGroupBox(this);
    Noem(Frame2, u"Frame2"_s, u"Zwevende spelers"_s);
    Label11 = MaakLabel(u"Label11"_s, QString(), Frame2);
    lstSpelers = MaakLijst(u"lstSpelers"_s, u"Gevonden zwevende spelers"_s, Frame2);
    Label11->setBuddy(lstSpelers);
    txtSpeler = MaakLeesvak(u"txtSpeler"_s, u"Gekozen zwevende speler"_s, Frame2);
    auto* lagen = new QVBoxLayout(Frame2);
    lagen->addWidget(Label11);
    lagen->addWidget(lstSpelers, 1);
    auto* Label12 = MaakLabel(u"Label12"_s, u"Selecteer hierboven 1 speler"_s, Frame2);
    Label12->setBuddy(txtSpeler);
    lagen->addWidget(Label12);
    lagen->addWidget(txtSpeler);
    return Frame2;
}

QGroupBox* frmKoppelNBBnr::BouwRegister()
{
    auto* Frame4 = new QGroupBox(this);
    Noem(Frame4, u"Frame4"_s, u"Spelers uit RVD"_s);
    const QString groep = NaarQString(administratie_.mappen.DFIMPG);
    cmdKiesRVDspeler =
        MaakKnop(u"cmdKiesRVDspeler"_s, u"Kies speler uit RVD (Gr05)"_s, u'K', Frame4);
    lstRVDsp = MaakLijst(u"lstRVDsp"_s, u"Spelers uit RVD"_s, Frame4);
    lstRVDsp->ZetNaamVanaf(8); // behind the key and two blanks
    QFont vast = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    vast.setPixelSize(QFontInfo(font()).pixelSize());
    lstRVDsp->setFont(vast);
    txtRVDspeler = MaakLeesvak(u"txtRVDspeler"_s, u"Gekozen speler uit RVD"_s, Frame4);
    auto* lagen = new QVBoxLayout(Frame4);
    const auto wenk = [&](const char16_t* naam, const QString& tekst) {
        QLabel* label = MaakTekst(naam, tekst, Frame4);
        label->setMinimumHeight(2 * fontMetrics().lineSpacing());
        lagen->addWidget(label);
        return label;
    };
    wenk(u"Label9",
         u"Een speler moet vooraf in RVD (groep %1) bekend zijn anders kan hij hieronder niet "
         "gekozen worden."_s.arg(groep));
    wenk(u"Label10",
         u"Kies hier de RVD-speler (uit %1) wiens identiteit hetzelfde is als de linker speler."_s
             .arg(groep))
        ->setBuddy(txtRVDspeler);
    lagen->addWidget(cmdKiesRVDspeler);
    lagen->addWidget(BouwKolomkoppen());
    lagen->addWidget(lstRVDsp, 1);
    lagen->addWidget(txtRVDspeler);
    return Frame4;
}

/// Placed over the columns of the list when its lines are known.
QWidget* frmKoppelNBBnr::BouwKolomkoppen()
{
    kolomkoppen_ = new QWidget(this);
    Label7 = MaakLabel(u"Label7"_s, u"RVDnr"_s, kolomkoppen_);
    lblNaam = MaakLabel(u"lblNaam"_s, u"Naam"_s, kolomkoppen_);
    Label6 = MaakLabel(u"Label6"_s, u"NBBnr"_s, kolomkoppen_);
    Label8 = MaakLabel(u"Label8"_s, u"NBBledengroep"_s, kolomkoppen_);
    for (QLabel* kop : {Label7, lblNaam, Label6, Label8})
        kop->adjustSize();
    kolomkoppen_->setFixedHeight(Label7->height());
    return kolomkoppen_;
}

QLayout* frmKoppelNBBnr::BouwOnderkant()
{
    cmdStartKoppelen =
        MaakKnop(u"cmdStartKoppelen"_s, u"OK als dit identieke spelers zijn ..."_s, u'O', this);
    cmdEinde = MaakKnop(u"cmdEinde"_s, u"Einde"_s, u'E', this);
    auto* vlak = new Tekstvlak(4, 2, this);
    Noem(vlak, u"vlakResultaat"_s, u"Resultaat"_s);
    lblResultaat = MaakLabel(u"lblResultaat"_s, QString(), vlak);
    lblResultaat->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lblResultaat->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblResultaat->setMargin(4);
    vlak->setWidget(lblResultaat);
    vlak->setWidgetResizable(true);
    vlak->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);

    auto* knoppen = new QHBoxLayout;
    knoppen->addWidget(
        MaakTekst(u"Label13", u"Elke speler moeten afzonderlijk verwerkt worden!"_s, this), 1);
    knoppen->addWidget(cmdStartKoppelen);
    knoppen->addWidget(cmdEinde);
    auto* lagen = new QVBoxLayout;
    lagen->addLayout(knoppen);
    lagen->addWidget(vlak);
    return lagen;
}

/// As the eye reads: what to search, what was found, the register, then the link.
void frmKoppelNBBnr::StelTabvolgordeIn()
{
    auto* vlakUitleg = findChild<QWidget*>(u"vlakUitleg"_s);
    ZetTabvolgorde({Option1, Option2, cmbC, cmdZoekNamen, vlakUitleg, lstSpelers, txtSpeler,
                    cmdKiesRVDspeler, lstRVDsp, txtRVDspeler, cmdStartKoppelen, cmdEinde,
                    lblResultaat});
}

} // namespace plexoran
