// Building the pairs window: its controls, their captions and places.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include "pairs/frmParenOnderhoud.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/letterkast.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

constexpr int VensterBreed = 15000;  // twips
constexpr int OnderScherm = 1000;    // the window is so much lower than the screen
constexpr double Lijstletter = 9;    // points
constexpr std::size_t NaamVanaf = 7; // in every line, behind the key and a blank

} // namespace

void frmParenOnderhoud::MaakDelen()
{
    const auto knop = [this](const char16_t* naam, const char16_t* tekst, char16_t letter) {
        return MaakKnop(QString::fromUtf16(naam), QString::fromUtf16(tekst), letter, this);
    };
    cmdOKE = knop(u"cmdOKE", u"OKE >>>", u'O');
    cmdOntbindt = knop(u"cmdOntbindt", u" OKE <<<", u'K');
    cmdSortL3 = knop(u"cmdSortL3", u"Sort  L9", u'S');
    cmdVerwParenbest = knop(u"cmdVerwParenbest", u"Verwijder dit parenbestand", u'V');
    cmdUitleg = knop(u"cmdUitleg", u"Klik hier voor uitleg", u'u');
    cmdPrintVast = knop(u"cmdPrintVast", u"Als paar in 1 kolom", u'1');
    cmdPrintLos = knop(u"cmdPrintLos", u"Als paar in    2 kolommen", u'2');
    cmdEinde = knop(u"cmdEinde", u"Opslaan en Einde", u'E');
    cmdAnnu = knop(u"cmdAnnu", u"Annuleren", u'A');
    cmdOKE->setAccessibleName(u"Maak een paar"_s);
    cmdOntbindt->setAccessibleName(u"Ontbindt dit paar"_s);
    cmdSortL3->setToolTip(u"Zet de paren op volgorde van de eerste speler"_s);

    const QFont letter = Roosterletter(maten_.Letter(Lijstletter).pixelSize());
    const auto lijst = [&](const QString& naam, const QString& gesproken) {
        auto* nieuw = new Regellijst(QListView::SingleSelection, this);
        Noem(nieuw, naam, gesproken);
        nieuw->setFont(letter);
        nieuw->ZetNaamVanaf(NaamVanaf);
        return nieuw;
    };
    L1 = lijst(u"L1"_s, u"Eerste speler"_s);
    L2 = lijst(u"L2"_s, u"Tweede speler"_s);
    L3 = lijst(u"L3"_s, u"Reeds gevormde paren"_s);
}

void frmParenOnderhoud::Bouw()
{
    setObjectName(u"frmParenOnderhoud"_s);
    setWindowTitle(u"Paren samenstellen"_s);
    MaakDelen();
    auto* Frame1 =
        new QGroupBox(u"Samenstelling of ontbinden van paren tbv RVD en Ranking"_s, this);
    Noem(Frame1, u"Frame1"_s);
    BouwSamenstelling(Frame1);
    auto* Frame2 = new QGroupBox(u"Paren opslaan als CSV-bestand"_s, this);
    Noem(Frame2, u"Frame2"_s);
    BouwCSVKader(Frame2);
    Label10 = MaakLabel(
        u"Label10"_s,
        u"Alvorens om te schakelen naar een andere groep eerst de wijzigingen opslaan!"_s, this);

    auto* onder = new QHBoxLayout;
    onder->addWidget(cmdVerwParenbest);
    onder->addStretch();
    onder->addWidget(cmdEinde);
    onder->addWidget(cmdAnnu);
    auto* lagen = new QVBoxLayout(this);
    lagen->addLayout(BouwKeuze());
    lagen->addWidget(Label10);
    lagen->addWidget(Frame1, 1);
    lagen->addWidget(Frame2);
    lagen->addLayout(onder);
    ZetOpSchuifblad(this);
    PasInScherm(
        this, {maten_.Twips(VensterBreed), screen()->size().height() - maten_.Twips(OnderScherm)});
    // As the eye reads.
    ZetTabvolgorde({cmbNBBledengr, cmdUitleg, L1, L2, cmdOKE, cmdOntbindt, cmdSortL3, L3,
                    cmdPrintVast, cmdPrintLos, cmdVerwParenbest, cmdEinde, cmdAnnu});
    cmbNBBledengr->setFocus();
}

QHBoxLayout* frmParenOnderhoud::BouwKeuze()
{
    const auto label = [this](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, this);
    };
    lblRVDledengr = label(u"lblRVDledengr"_s, NaarQString(code_));
    QFont vet = lblRVDledengr->font();
    vet.setBold(true);
    lblRVDledengr->setFont(vet);
    auto* Label2 = label(u"Label2"_s, u"Groep-Subgroep:"_s);
    cmbNBBledengr = MaakKeus(u"cmbNBBledengr"_s, Label2, this);
    cmbNBBledengr->setMinimumContentsLength(8);
    auto* rij = new QHBoxLayout;
    rij->addWidget(label(u"Label9"_s, u"RVD-ledengroep:"_s));
    rij->addWidget(lblRVDledengr);
    rij->addSpacing(maten_.Twips(300));
    rij->addWidget(Label2);
    rij->addWidget(cmbNBBledengr, 1);
    rij->addSpacing(maten_.Twips(300));
    rij->addWidget(label(u"Label1"_s, u"Waarom paren samenstellen?"_s));
    rij->addWidget(cmdUitleg);
    return rij;
}

void frmParenOnderhoud::BouwSamenstelling(QGroupBox* kader)
{
    const auto label = [&](const QString& naam, const QString& tekst) {
        auto* nieuw = MaakLabel(naam, tekst, kader);
        nieuw->setWordWrap(true);
        return nieuw;
    };
    Label7 = label(u"Label7"_s, u"Aantal spelers:"_s);
    Label8 = label(u"Label8"_s, u"Aantal paren:"_s);
    auto* midden = new QVBoxLayout;
    midden->addStretch(1);
    midden->addWidget(label(u"Label6"_s, u"Maak  een paar"_s), 0, Qt::AlignHCenter);
    midden->addWidget(cmdOKE);
    midden->addSpacing(maten_.Twips(450));
    midden->addWidget(label(u"Label5"_s, u"Ontbindt dit paar"_s), 0, Qt::AlignHCenter);
    midden->addWidget(cmdOntbindt);
    midden->addStretch(2);
    midden->addWidget(cmdSortL3);
    auto* vakken = new QGridLayout(kader);
    auto* Label3 = label(u"Label3"_s, u"Selecteer in beide kolommen een speler en klik op 'OKE'"_s);
    auto* Label4 = label(u"Label4"_s, u"Reeds gevormde paren"_s);
    Label3->setBuddy(L1);
    Label4->setBuddy(L3);
    vakken->addWidget(Label3, 0, 0, 1, 2);
    vakken->addWidget(Label4, 0, 3);
    vakken->addWidget(L1, 1, 0);
    vakken->addWidget(L2, 1, 1);
    vakken->addLayout(midden, 1, 2);
    vakken->addWidget(L3, 1, 3);
    vakken->addWidget(Label7, 2, 0);
    vakken->addWidget(Label8, 2, 3);
    vakken->setRowStretch(1, 1);
    vakken->setColumnStretch(0, 3);
    vakken->setColumnStretch(1, 3);
    vakken->setColumnStretch(3, 6);
}

void frmParenOnderhoud::BouwCSVKader(QGroupBox* kader)
{
    const auto label = [&](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, kader);
    };
    auto* vakken = new QGridLayout(kader);
    vakken->addWidget(cmdPrintVast, 0, 0);
    vakken->addWidget(label(u"lblPrintVast"_s, u"Tuprufo - Leo Jansen "_s), 0, 1);
    vakken->addWidget(cmdPrintLos, 1, 0);
    vakken->addWidget(label(u"lblPrintLos"_s, u"Tuprufo        Leo Jansen  (aparte kolom)"_s), 1,
                      1);
    vakken->addWidget(label(u"lblExcel"_s, u"Kan in Excel worden ingelezen. "_s), 0, 3);
    vakken->setColumnStretch(2, 1);
}

void frmParenOnderhoud::Verbind()
{
    // Also when the group-subgroup that is shown is picked again.
    connect(cmbNBBledengr, &QComboBox::activated, this, &frmParenOnderhoud::KiesSubgroep);
    for (Regellijst* lijst : {L1, L2}) {
        connect(lijst, &Regellijst::keuzeVeranderd, this, [this, lijst] { SpelerGekozen(lijst); });
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
            new QShortcut(enter, lijst, cmdOKE, &QPushButton::click, Qt::WidgetShortcut);
    }
    connect(L2, &Regellijst::doubleClicked, cmdOKE, &QPushButton::click);
    connect(L3, &Regellijst::keuzeVeranderd, this, &frmParenOnderhoud::PaarGekozen);
    new QShortcut(Qt::Key_Delete, L3, cmdOntbindt, &QPushButton::click, Qt::WidgetShortcut);
    connect(cmdOKE, &QPushButton::clicked, this, &frmParenOnderhoud::MaakPaar);
    connect(cmdOntbindt, &QPushButton::clicked, this, &frmParenOnderhoud::Ontbind);
    connect(cmdSortL3, &QPushButton::clicked, this, &frmParenOnderhoud::SorteerParen);
    connect(cmdVerwParenbest, &QPushButton::clicked, this, &frmParenOnderhoud::VerwijderBestand);
    connect(cmdUitleg, &QPushButton::clicked, this, &frmParenOnderhoud::ToonUitleg);
    connect(cmdPrintVast, &QPushButton::clicked, this, [this] { SchrijfCSV(ParenCSV::EenKolom); });
    connect(cmdPrintLos, &QPushButton::clicked, this,
            [this] { SchrijfCSV(ParenCSV::TweeKolommen); });
    connect(cmdEinde, &QPushButton::clicked, this, &frmParenOnderhoud::Einde);
    connect(cmdAnnu, &QPushButton::clicked, this, &QDialog::reject);
    new QShortcut(Qt::Key_F1, this, this, &frmParenOnderhoud::ToonUitleg);
}

} // namespace plexoran
