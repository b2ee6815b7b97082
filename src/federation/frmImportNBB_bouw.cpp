// Building the import window, and its help: how members leave the scoring programs.
#include <QGridLayout>

#include "federation/frmImportNBB.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

QLabel* MaakLopendeTekst(const QString& naam, const QString& tekst, QWidget* ouder)
{
    QLabel* label = MaakLabel(naam, tekst, ouder);
    label->setWordWrap(true);
    // A label that breaks its lines may be as narrow as the window likes.
    label->setMinimumWidth(1);
    return label;
}

QString Openingstekst(const Tekst& importgroep)
{
    return u"Hieronder kunt u spelergegevens uit het NBB-Rekenprogramma importeren in Ravendeck "
           "(RVD).\nOm RVD en NBB4 naadloos met elkaar te kunnen laten werken is het van het "
           "grootste belang dat de gegevens van de spelers in beide programma's gelijk zijn.\n"
           "Werkt ook met Bridge-It als daar bij 'NBB-nummer' een uniek fictief nummer wordt "
           "ingevuld lager dan 9999.\nDe spelers in de gekozen bestanden gaan standaard naar de "
           "RVD-verzamelgroep '%1' ,van daaruit kunt u ze eventueel kopieren naar andere groepen."_s
               .arg(NaarQString(importgroep));
}

const QString Hint =
    u"Als u fictieve 'NBB-nrs' moet toekennen aan spelers die nog geen nummer hebben, bijv "
    "gasten, dan begint u gewoon te nummeren bij bijv 100.\r\n"
    "Blijf altijd onder 9999 om niet in conflict te komen met de echte NBB-nummers.\r\n"
    "Op een gegeven moment weet u niet meer welke nummers al geweest zijn.\r\n"
    "Om snel te weten wat het laatst toegekende nummer was kunt u het volgende doen:\r\n"
    " - Druk (rechtsonder) op de knop 'Sorteerlijst op' >> 'NBB-nr'.\r\n"
    " - Of: In het NBB-programma: klik in de ledenlijst op de titel 'Bondsnummer', er "
    "verschijnt dan een 'warrige' sorteerlijst."_s;

/// How an export is made: what all programs ask, and from the fourth step on what differs.
QString Stappenplan(const QString& programma, const QString& soort, const QString& wat,
                    const QString& vervolg)
{
    return u"Zo exporteert u een %1 uit %2:\r\n\r\n"
           "1. Start %2 en open de ledenlijst.\r\n"
           "2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'.\r\n"
           "3. Kies voor exporteren, en als soort een %3-bestand.\r\n"
           "%4\r\n\r\n"
           "Let op: Als u de naam van een ledenbestand zou willen wijzigen moet u de "
           "ledenbestandsnaam voorop laten staan gevolgd door een spatie.\r\n"
           "Voorbeeld: 'Club 20170125' mag u wijzigen in 'Club Nijmegen'."_s.arg(wat, programma,
                                                                                 soort, vervolg);
}

const QString VervolgNBBR28 =
    u"4. Sla het bestand op in een map die u kunt terugvinden en onthoud die map. De naam die "
    "NBBR voorstelt, is goed.\r\n"
    "5. Herhaal dit voor elk ledenbestand dat u nodig hebt.\r\n"
    "6. Kies hier 'uit een geexporteerd CSV-ledenbestand', druk op de knop om een map te kiezen "
    "en kies in die map het bestand.\r\n\r\n"
    "Staat NBBR-2.8 op deze computer en is 'direct uit NBBR 2.8' te kiezen, dan hoeft u niets te "
    "exporteren."_s;
const QString VervolgNBBR31 =
    u"4. Sla het bestand op in een map die u kunt terugvinden, bijvoorbeeld "
    "'...Documenten\\NBB4-Leden', en onthoud die map.\r\n"
    "5. Kies hier 'uit een geexporteerd XML-ledenbestand' met '(uit NBBR-3)' erbij, druk op de "
    "knop om een map te kiezen en kies in die map het bestand."_s;

QString VervolgNBBR4(const QString& optie)
{
    return u"4. Sla het bestand op in de map '...Documenten\\NBB4-Leden'. Daar wordt hier het "
           "eerst gekeken.\r\n5. Kies hier %1, druk zo nodig op de knop om een andere map te "
           "kiezen en klik het bestand aan in de lijst."_s.arg(optie);
}

QCheckBox* MaakKeuzevink(const QString& naam, const QString& tekst, char16_t letter, QWidget* ouder)
{
    auto* vakje = MaakVink(naam, tekst, letter, ouder);
    vakje->setChecked(true);
    vakje->setEnabled(letter != 0); // the others always travel along
    vakje->setToolTip(
        letter == 0
            ? u"Wordt altijd geïmporteerd"_s
            : u"Zonder vinkje wordt dit gegeven ook leeggemaakt bij spelers die er al staan"_s);
    return vakje;
}

} // namespace

/// The controls are made in the order in which Tab goes through them.
void frmImportNBB::Bouw()
{
    setObjectName(u"frmImportNBB"_s);
    setWindowTitle(u"Importeer een NBB-ledenbestand"_s);
    auto* kolommen =
        Naastelkaar({Onderelkaar({BouwBronnen(), BouwGegevens(), 0}), {BouwKeuze(), 1}});

    const QString opening = Openingstekst(administratie_.mappen.DFIMPG);
    auto* lagen = Onderelkaar(
        {MaakLopendeTekst(u"lblOpening"_s, opening, this), {kolommen, 1}, BouwHulp()}, this);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this, &QDialog::close);
    cmdBekijk = MaakKnop(u"cmdBekijk"_s, u"Bekijk vooraf..."_s, u'a', this,
                         &frmImportNBB::BekijkLedenbestanden);
    cmdImporteer = MaakKnop(u"cmdImporteer"_s, u"Importeer"_s, u'I', this,
                            &frmImportNBB::ImporteerLedenbestanden);
    cmdImporteer->setDefault(true);
    lagen->addLayout(Knoppenrij({cmdAnnuleren, cmdBekijk, cmdImporteer}));
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(12600, 9900));
}

QWidget* frmImportNBB::BouwBronnen()
{
    auto* Frame3 = MaakKader(u"Frame3"_s, u"Haal de spelers op:"_s, this);
    auto* lagen = new QVBoxLayout(Frame3);
    lagen->setSpacing(2);
    const auto keus = [&](Ledenbron bron, const QString& naam, const QString& tekst,
                          char16_t letter) {
        QRadioButton* optie = MaakOptie(naam, tekst, letter, Frame3);
        connect(optie, &QRadioButton::clicked, this, [this, bron] { KiesBron(bron); });
        lagen->addWidget(optie);
        opties_ << optie;
        return optie;
    };
    // A label that says more of the option above it, a little to the right.
    const auto toelichting = [&](const QString& naam, const QString& tekst) {
        QLabel* label = MaakLabel(naam, tekst, Frame3);
        label->setContentsMargins(24, 0, 0, 4);
        lagen->addWidget(label);
    };
    // Two options bear the same caption: only their labels, and their spoken names, differ.
    const QString xml = u"uit een geexporteerd XML-ledenbestand"_s;
    const Rekenprogramma& gevonden = administratie_.rekenprogramma;
    auto* Option1 = keus(Ledenbron::Database, u"Option1"_s,
                         gevonden.ProgrammaCode == "BRIT" ? u"direct uit Bridge-It"_s
                                                          : u"direct uit NBBR 2.8"_s,
                         u'd');
    Option1->setVisible(gevonden.NBBRaanwezig || gevonden.BRITaanwezig);
    keus(Ledenbron::Csv, u"Option2"_s, u"uit een geexporteerd CSV-ledenbestand"_s, u'C');
    toelichting(u"Label10"_s, u"(dit is mogelijk met NBBR-2.8 en NBBR-3)"_s);
    keus(Ledenbron::XmlNbb3, u"Option3"_s, xml, u'X')->setAccessibleName(xml + u" uit NBBR-3"_s);
    toelichting(u"Label13"_s, u"(uit NBBR-3)"_s);
    lagen->addWidget(MaakLabel(u"Label9"_s, u"Uit NBB-4:"_s, Frame3));
    keus(Ledenbron::XmlNbb4, u"Option4"_s, xml, u'L')->setAccessibleName(xml + u" uit NBB-4"_s);
    toelichting(u"Label2"_s, u"Kies eventueel 'CSV-ledenbestand' i.p.v. 'XML'"_s);
    return Frame3;
}

QWidget* frmImportNBB::BouwGegevens()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Spelergegevens importeren"_s, this);
    auto* Frame2 = MaakKader(u"Frame2"_s, u"Naar keus inclusief:"_s, Frame1);
    chkNAW = MaakKeuzevink(u"chkNAW"_s, u"NAW-gegevens\nStraat+huisnr, Postcode, Plaats, Land"_s,
                           u'N', Frame2);
    chkTel = MaakKeuzevink(u"chkTel"_s, u"Telefoonnr"_s, u'f', Frame2);
    chkEmail = MaakKeuzevink(u"chkEmail"_s, u"Emailadres"_s, u'E', Frame2);
    chkMV = MaakKeuzevink(u"chkMV"_s, u"M/V"_s, u'M', Frame2);
    Frame2->setLayout(Onderelkaar({chkNAW, chkTel, chkEmail, chkMV}));
    auto* vast = Onderelkaar({MaakKeuzevink(u"chkVoornaam"_s, u"Voornaam"_s, 0, Frame1),
                              MaakKeuzevink(u"chkTus"_s, u"Tussenvoegsel"_s, 0, Frame1),
                              MaakKeuzevink(u"chkAchternaam"_s, u"Achternaam"_s, 0, Frame1),
                              MaakKeuzevink(u"chkNBBnr"_s, u"NBBnummer"_s, 0, Frame1), 0});
    Naastelkaar({vast, Frame2}, Frame1);
    return Frame1;
}

QLayout* frmImportNBB::BouwKeuze()
{
    cmdKiesExportMap = MaakKnop(u"cmdKiesExportMap"_s, u"Kies een map"_s, u'K', this,
                                &frmImportNBB::KiesExportMap);
    cmdKiesExportMap->setEnabled(false);
    lblExportMap = MaakLopendeTekst(u"lblExportMap"_s,
                                    u"Kies links eerst waar de spelers vandaan komen."_s, this);
    lstNBBbest =
        new Regellijst(QListView::MultiSelection, u"lstNBBbest"_s, u"Ledenbestanden"_s, this);
    lstNBBbest->setToolTip(
        u"Een klik of de spatiebalk kiest een ledenbestand of laat het los; Ctrl+A kiest alle"_s);
    Label3 = MaakLabel(u"Label3"_s, MetSneltoets(u"Ledenbestanden:"_s, u'b'), this);
    Label3->setBuddy(lstNBBbest);
    cmdControleNBBnrs =
        MaakKnop(u"cmdControleNBBnrs"_s, u"Overzicht NBBnrs van geselecteerde groepen"_s, u'O',
                 this, &frmImportNBB::ControleerNBBnrs);
    auto* Label7 = MaakLopendeTekst(
        u"Label7"_s,
        u"Let op: alleen spelers met een ingevuld (eventueel fictief) NBB-nummer worden "
        "geimporteerd."_s,
        this);
    auto* Label6 = MaakLopendeTekst(
        u"Label6"_s,
        u"Bestaande spelers worden overschreven (ververst) nieuwe spelers worden toegevoegd. "_s,
        this);
    return Onderelkaar({cmdKiesExportMap,
                        lblExportMap,
                        Label3,
                        {lstNBBbest, 1},
                        cmdControleNBBnrs,
                        Label7,
                        Label6});
}

QLayout* frmImportNBB::BouwHulp()
{
    auto* vakken = new QGridLayout;
    const auto zetKnop = [&](int rij, int kolom, const QString& naam, const QString& opschrift,
                             char16_t letter, const QString& uitleg,
                             const QString& titel = Programmatitel) {
        auto* knop = MaakKnop(naam, opschrift, letter, this);
        connect(knop, &QPushButton::clicked, this,
                [this, uitleg, titel] { Meld(this, QMessageBox::Information, uitleg, titel); });
        vakken->addWidget(knop, rij, kolom, 1, rij == 2 ? 2 : 1); // the last one stands alone
    };
    zetKnop(0, 0, u"cmdHelpImport28"_s, u"Hoe exporteer je een ledenbestand uit NBBR-2.8?"_s, u'2',
            Stappenplan(u"NBBR-2.8"_s, u"CSV"_s, u"ledenbestand"_s, VervolgNBBR28));
    zetKnop(0, 1, u"cmdHelpImport31"_s, u"Hoe exporteer je een ledenbestand uit  NBBR-3.1?"_s, u'3',
            Stappenplan(u"NBBR-3.1"_s, u"XML"_s, u"ledenbestand"_s, VervolgNBBR31));
    zetKnop(1, 0, u"cmbHelpCSV"_s, u"Hoe exporteer je een CSV-ledenbestand uit  NBBR-4?"_s, u'V',
            Stappenplan(u"NBBR-4"_s, u"CSV"_s, u"CSV-ledenbestand"_s,
                        VervolgNBBR4(u"'uit een geexporteerd CSV-ledenbestand'"_s)));
    zetKnop(
        1, 1, u"cmdHelpImport4"_s, u"Hoe exporteer je een XML-ledenbestand uit  NBBR-4?"_s, u'4',
        Stappenplan(u"NBBR-4"_s, u"XML"_s, u"XML-ledenbestand"_s,
                    VervolgNBBR4(
                        u"onder 'Uit NBB-4:' de optie 'uit een geexporteerd XML-ledenbestand'"_s)));
    zetKnop(2, 0, u"cmdHint"_s, u"Hint voor toekennen van fictieve NBB-nummers"_s, u'H', Hint,
            u"Hint"_s);
    return vakken;
}

} // namespace plexoran
