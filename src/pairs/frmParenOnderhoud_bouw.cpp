// Building the pairs window: its controls, their captions and places. They are made in the order in
// which the eye reads them, which is that of the Tab key.
#include <QGridLayout>
#include <QScreen>
#include <QShortcut>

#include "pairs/frmParenOnderhoud.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

Regellijst* frmParenOnderhoud::Lijst(const QString& naam, const QString& gesproken)
{
    auto* lijst = new Regellijst(QListView::SingleSelection, naam, gesproken, this);
    lijst->setFont(Roosterletter(maten_.Letter(9).pixelSize()));
    lijst->ZetNaamVanaf(7); // behind the key and a blank
    connect(lijst, &Regellijst::keuzeVeranderd, this, [this, lijst] { KeuzeIn(lijst); });
    return lijst;
}

void frmParenOnderhoud::Bouw()
{
    setObjectName(u"frmParenOnderhoud"_s);
    setWindowTitle(u"Paren samenstellen"_s);
    const QString eerst =
        u"Alvorens om te schakelen naar een andere groep eerst de wijzigingen opslaan!"_s;
    Onderelkaar({BouwKeuze(),
                 MaakLabel(u"Label10"_s, eerst, this),
                 {BouwSamenstelling(), 1},
                 BouwCSVKader(),
                 BouwOnderkant()},
                this);
    ZetOpSchuifblad(this);
    // A little lower than the screen
    PasInScherm(this, {maten_.Twips(15000), screen()->size().height() - maten_.Twips(1000)});
    cmbNBBledengr->setFocus();
    new QShortcut(Qt::Key_F1, this, this, &frmParenOnderhoud::ToonUitleg);
}

QLayout* frmParenOnderhoud::BouwKeuze()
{
    auto* lblRVDledengr = MaakLabel(u"lblRVDledengr"_s, NaarQString(code_), this);
    MaakVet(lblRVDledengr);
    auto* Label2 = MaakLabel(u"Label2"_s, u"Groep-Subgroep:"_s, this);
    cmbNBBledengr = MaakKeus(u"cmbNBBledengr"_s, Label2, this);
    cmbNBBledengr->setMinimumContentsLength(8);
    // Also when the group-subgroup that is shown is picked again.
    connect(cmbNBBledengr, &QComboBox::activated, this, &frmParenOnderhoud::LaadSubgroep);
    auto* cmdUitleg = MaakKnop(u"cmdUitleg"_s, u"Klik hier voor uitleg"_s, u'u', this,
                               &frmParenOnderhoud::ToonUitleg);
    const Wit wit{maten_.Twips(300)};
    return Naastelkaar({MaakLabel(u"Label9"_s, u"RVD-ledengroep:"_s, this),
                        lblRVDledengr,
                        wit,
                        Label2,
                        {cmbNBBledengr, 1},
                        wit,
                        MaakLabel(u"Label1"_s, u"Waarom paren samenstellen?"_s, this),
                        cmdUitleg});
}

QGroupBox* frmParenOnderhoud::BouwSamenstelling()
{
    auto* Frame1 =
        MaakKader(u"Frame1"_s, u"Samenstelling of ontbinden van paren tbv RVD en Ranking"_s, this);
    auto* vakken = new QGridLayout(Frame1);
    const auto label = [&](const QString& naam, const QString& tekst, int rij, int kolom,
                           int kolommen = 1) {
        auto* nieuw = MaakLabel(naam, tekst, Frame1);
        nieuw->setWordWrap(true);
        vakken->addWidget(nieuw, rij, kolom, 1, kolommen);
        return nieuw;
    };
    vakken->addWidget(L1 = Lijst(u"L1"_s, u"Eerste speler"_s), 1, 0);
    vakken->addWidget(L2 = Lijst(u"L2"_s, u"Tweede speler"_s), 1, 1);
    vakken->addLayout(BouwMidden(), 1, 2);
    vakken->addWidget(L3 = Lijst(u"L3"_s, u"Reeds gevormde paren"_s), 1, 3);
    label(u"Label3"_s, u"Selecteer in beide kolommen een speler en klik op 'OKE'"_s, 0, 0, 2)
        ->setBuddy(L1);
    label(u"Label4"_s, u"Reeds gevormde paren"_s, 0, 3)->setBuddy(L3);
    Label7 = label(u"Label7"_s, u"Aantal spelers:"_s, 2, 0);
    Label8 = label(u"Label8"_s, u"Aantal paren:"_s, 2, 3);
    for (Regellijst* lijst : {L1, L2}) {
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
            new QShortcut(enter, lijst, cmdOKE, &QPushButton::click, Qt::WidgetShortcut);
    }
    connect(L2, &Regellijst::doubleClicked, cmdOKE, &QPushButton::click);
    new QShortcut(Qt::Key_Delete, L3, cmdOntbindt, &QPushButton::click, Qt::WidgetShortcut);
    vakken->setRowStretch(1, 1);
    vakken->setColumnStretch(0, 3);
    vakken->setColumnStretch(1, 3);
    vakken->setColumnStretch(3, 6);
    return Frame1;
}

QLayout* frmParenOnderhoud::BouwMidden()
{
    cmdOKE = MaakKnop(u"cmdOKE"_s, u"OKE >>>"_s, u'O', this, &frmParenOnderhoud::MaakPaar);
    cmdOKE->setAccessibleName(u"Maak een paar"_s);
    cmdOntbindt =
        MaakKnop(u"cmdOntbindt"_s, u" OKE <<<"_s, u'K', this, &frmParenOnderhoud::Ontbind);
    cmdOntbindt->setAccessibleName(u"Ontbindt dit paar"_s);
    auto* cmdSortL3 =
        MaakKnop(u"cmdSortL3"_s, u"Sort  L9"_s, u'S', this, &frmParenOnderhoud::SorteerParen);
    cmdSortL3->setToolTip(u"Zet de paren op volgorde van de eerste speler"_s);
    auto* Label6 = MaakLabel(u"Label6"_s, u"Maak  een paar"_s, this);
    auto* Label5 = MaakLabel(u"Label5"_s, u"Ontbindt dit paar"_s, this);
    auto* midden =
        Onderelkaar({1, Label6, cmdOKE, Wit{maten_.Twips(450)}, Label5, cmdOntbindt, 2, cmdSortL3});
    for (QLabel* label : {Label6, Label5}) {
        label->setWordWrap(true);
        midden->setAlignment(label, Qt::AlignHCenter);
    }
    return midden;
}

QGroupBox* frmParenOnderhoud::BouwCSVKader()
{
    auto* Frame2 = MaakKader(u"Frame2"_s, u"Paren opslaan als CSV-bestand"_s, this);
    auto* vakken = new QGridLayout(Frame2);
    vakken->addWidget(MaakKnop(u"cmdPrintVast"_s, u"Als paar in 1 kolom"_s, u'1', this,
                               [this] { SchrijfCSV(ParenCSV::EenKolom); }),
                      0, 0);
    vakken->addWidget(MaakLabel(u"lblPrintVast"_s, u"Tuprufo - Leo Jansen "_s, Frame2), 0, 1);
    vakken->addWidget(MaakKnop(u"cmdPrintLos"_s, u"Als paar in    2 kolommen"_s, u'2', this,
                               [this] { SchrijfCSV(ParenCSV::TweeKolommen); }),
                      1, 0);
    vakken->addWidget(
        MaakLabel(u"lblPrintLos"_s, u"Tuprufo        Leo Jansen  (aparte kolom)"_s, Frame2), 1, 1);
    vakken->addWidget(MaakLabel(u"lblExcel"_s, u"Kan in Excel worden ingelezen. "_s, Frame2), 0, 3);
    vakken->setColumnStretch(2, 1);
    return Frame2;
}

QLayout* frmParenOnderhoud::BouwOnderkant()
{
    return Naastelkaar(
        {MaakKnop(u"cmdVerwParenbest"_s, u"Verwijder dit parenbestand"_s, u'V', this,
                  &frmParenOnderhoud::VerwijderBestand),
         0, MaakKnop(u"cmdEinde"_s, u"Opslaan en Einde"_s, u'E', this, &frmParenOnderhoud::Einde),
         MaakKnop(u"cmdAnnu"_s, u"Annuleren"_s, u'A', this, &QDialog::reject)});
}

} // namespace plexoran
