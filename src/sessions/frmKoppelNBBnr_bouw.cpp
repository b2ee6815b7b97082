// Building the linking window: its controls, their texts and places. They are made in the order in
// which the eye reads them, which is that of the Tab key.
#include <QFontDatabase>
#include <QGridLayout>
#include <QScrollArea>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"
#include "sessions/frmKoppelNBBnr.h"

namespace plexoran {
namespace {

QLabel* MaakTekst(const QString& naam, const QString& tekst, QWidget* ouder)
{
    QLabel* label = MaakLabel(naam, tekst, ouder);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QLineEdit* MaakToonvak(const QString& naam, const QString& gesproken, QWidget* ouder)
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
    Onderelkaar({{vakken, 1}, Onderelkaar({BouwKnoppen(), BouwResultaat()})}, this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(15000, 10200));
}

QGroupBox* frmKoppelNBBnr::BouwKeuze()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Wijziging van een NBBnr"_s, this);
    auto* Option1 = MaakOptie(u"Option1"_s, u"In losse Zittingen"_s, u't', Frame1);
    Option1->setChecked(true);
    Option2 = MaakOptie(u"Option2"_s, u"In Competities"_s, u'C', Frame1);
    Label4 = MaakLabel(u"Label4"_s, QString(), Frame1);
    cmbC = MaakKeus(u"cmbC"_s, Label4, Frame1);
    cmdZoekNamen = MaakKnop(u"cmdZoekNamen"_s, u"Zoek de zwevende spelers in RVD"_s, u'Z', this,
                            &frmKoppelNBBnr::ZoekNamen);
    Onderelkaar({Option1, Option2, Label4, cmbC, cmdZoekNamen}, Frame1)->addStretch();
    // Of the two that change together only one is listened to.
    connect(Option2, &QRadioButton::toggled, this, &frmKoppelNBBnr::KiesSoort);
    connect(cmbC, &QComboBox::currentIndexChanged, this, &frmKoppelNBBnr::VergeetGevonden);
    return Frame1;
}

QGroupBox* frmKoppelNBBnr::BouwUitleg()
{
    auto* Frame3 = MaakKader(u"Frame3"_s, u"Waarom dit programmadeel?"_s, this);
    // A small screen scrolls the texts; it does not cut them.
    auto* vlak = new Tekstvlak(12, 6, Frame3);
    Noem(vlak, u"vlakUitleg"_s, u"Waarom dit programmadeel?"_s);
    vlak->setFrameShape(QFrame::NoFrame);
    vlak->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* blad = new QWidget(vlak);
    auto* lagen = new QVBoxLayout(blad);
    const auto alinea = [&](const QString& naam, const QString& tekst) {
        lagen->addWidget(MaakTekst(naam, tekst, blad));
    };
    alinea(u"Label1"_s,
           u"Als er in geimporteerde NBB-zittingen (o.a. BWS-zittingen) spelers voorkomen die "
           "(ten tijde van het importeren!) nog niet in het RVD-ledenbestand bekend waren (zgn "
           "zwevende spelers), dan kunt u hiermee alsnog die spelers koppelen."_s);
    alinea(u"Label2"_s,
           u"Dit hoeft niet persé, maar als u gebruik wilt maken van de speciale RVD-opties en "
           "zeker in de geimporteeerde competitiezittingen dan moet u dit doen. Denk bijv aan "
           "berekenen Clubkampioenschap."_s);
    alinea(u"Label3"_s,
           u"Vóór dit koppelen moeten de spelergegevens vooraf van NBB naar RVD geimporteerd "
           "zijn."_s);
    alinea(u"Label5"_s,
           u" Als in NBB een (evt fictief) NBBnr wordt gewijzigd, bijv een cursist wordt NBB-lid, "
           "dan kan men volstaan met het handmatig wijzigen van het NBBnr in beide, NBB en RVD "
           "(groep Gr05)."_s);
    lagen->addStretch();
    lagen->setContentsMargins(0, 0, 0, 0);
    vlak->setWidget(blad);
    vlak->setWidgetResizable(true);
    vlak->viewport()->setAutoFillBackground(false);
    blad->setAutoFillBackground(false);
    (new QVBoxLayout(Frame3))->addWidget(vlak);
    return Frame3;
}

QGroupBox* frmKoppelNBBnr::BouwZwevenden()
{
    auto* Frame2 = MaakKader(u"Frame2"_s, QString(), this, u"Zwevende spelers"_s);
    Label11 = MaakLabel(u"Label11"_s, QString(), Frame2);
    lstSpelers = new Regellijst(QListView::SingleSelection, u"lstSpelers"_s,
                                u"Gevonden zwevende spelers"_s, Frame2);
    Label11->setBuddy(lstSpelers);
    auto* Label12 = MaakLabel(u"Label12"_s, u"Selecteer hierboven 1 speler"_s, Frame2);
    txtSpeler = MaakToonvak(u"txtSpeler"_s, u"Gekozen zwevende speler"_s, Frame2);
    Label12->setBuddy(txtSpeler);
    Onderelkaar({Label11, lstSpelers, Label12, txtSpeler}, Frame2)->setStretch(1, 1);
    connect(lstSpelers, &Regellijst::keuzeVeranderd, this, &frmKoppelNBBnr::ToonZwevende);
    connect(lstSpelers, &Regellijst::activated, this, [this](const QModelIndex& regel) {
        lstSpelers->setCurrentIndex(regel);
        KiesUitRegister();
    });
    return Frame2;
}

QGroupBox* frmKoppelNBBnr::BouwRegister()
{
    auto* Frame4 = MaakKader(u"Frame4"_s, QString(), this, u"Spelers uit RVD"_s);
    auto* lagen = new QVBoxLayout(Frame4);
    const QString groep = NaarQString(administratie_.mappen.DFIMPG);
    const auto wenk = [&](const QString& naam, const QString& tekst) {
        QLabel* label = MaakTekst(naam, tekst, Frame4);
        label->setMinimumHeight(2 * fontMetrics().lineSpacing());
        lagen->addWidget(label);
        return label;
    };
    wenk(u"Label9"_s,
         u"Een speler moet vooraf in RVD (groep %1) bekend zijn anders kan hij hieronder niet "
         "gekozen worden."_s.arg(groep));
    auto* Label10 = wenk(
        u"Label10"_s,
        u"Kies hier de RVD-speler (uit %1) wiens identiteit hetzelfde is als de linker speler."_s
            .arg(groep));
    auto* cmdKiesRVDspeler = MaakKnop(u"cmdKiesRVDspeler"_s, u"Kies speler uit RVD (Gr05)"_s, u'K',
                                      this, &frmKoppelNBBnr::KiesUitRegister);
    lagen->addWidget(cmdKiesRVDspeler);
    lagen->addWidget(BouwKolomkoppen());
    lstRVDsp =
        new Regellijst(QListView::SingleSelection, u"lstRVDsp"_s, u"Spelers uit RVD"_s, Frame4);
    lstRVDsp->ZetNaamVanaf(8); // behind the key and two blanks
    QFont vast = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    vast.setPixelSize(QFontInfo(font()).pixelSize());
    lstRVDsp->setFont(vast);
    lagen->addWidget(lstRVDsp, 1);
    txtRVDspeler = MaakToonvak(u"txtRVDspeler"_s, u"Gekozen speler uit RVD"_s, Frame4);
    Label10->setBuddy(txtRVDspeler);
    lagen->addWidget(txtRVDspeler);
    connect(lstRVDsp, &Regellijst::keuzeVeranderd, this, &frmKoppelNBBnr::ToonSpeler);
    connect(lstRVDsp, &Regellijst::activated, this, [this](const QModelIndex& regel) {
        lstRVDsp->setCurrentIndex(regel);
        cmdStartKoppelen->setFocus();
    });
    connect(lstRVDsp->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &frmKoppelNBBnr::PlaatsKoppen);
    return Frame4;
}

/// Placed over the columns of the list when its lines are known.
QWidget* frmKoppelNBBnr::BouwKolomkoppen()
{
    auto* rij = new QWidget(this);
    koppen_ = {MaakLabel(u"Label7"_s, u"RVDnr"_s, rij), MaakLabel(u"lblNaam"_s, u"Naam"_s, rij),
               MaakLabel(u"Label6"_s, u"NBBnr"_s, rij),
               MaakLabel(u"Label8"_s, u"NBBledengroep"_s, rij)};
    for (QLabel* kop : koppen_)
        kop->adjustSize();
    rij->setFixedHeight(koppen_.front()->height());
    return rij;
}

QLayout* frmKoppelNBBnr::BouwKnoppen()
{
    auto* Label13 =
        MaakTekst(u"Label13"_s, u"Elke speler moeten afzonderlijk verwerkt worden!"_s, this);
    cmdStartKoppelen = MaakKnop(u"cmdStartKoppelen"_s, u"OK als dit identieke spelers zijn ..."_s,
                                u'O', this, &frmKoppelNBBnr::StartKoppelen);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Einde"_s, u'E', this, &QDialog::close);
    return Naastelkaar({{Label13, 1}, cmdStartKoppelen, cmdEinde});
}

QWidget* frmKoppelNBBnr::BouwResultaat()
{
    lblResultaat = MaakLabel(u"lblResultaat"_s, QString(), this);
    lblResultaat->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lblResultaat->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblResultaat->setMargin(4);
    auto* vlak = new Tekstvlak(4, 2, this);
    Noem(vlak, u"vlakResultaat"_s, u"Resultaat"_s);
    vlak->setWidget(lblResultaat);
    vlak->setWidgetResizable(true);
    vlak->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    return vlak;
}

} // namespace plexoran
