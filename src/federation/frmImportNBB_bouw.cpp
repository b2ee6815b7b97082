// Building the import window: its controls, their captions and places.
#include <QGridLayout>
#include <QVBoxLayout>

#include "federation/frmImportNBB.h"
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

QVBoxLayout* Onderelkaar(std::initializer_list<QWidget*> delen)
{
    auto* lagen = new QVBoxLayout;
    for (QWidget* deel : delen)
        lagen->addWidget(deel);
    return lagen;
}

/// A label that says more of the control above it, a little to the right.
QHBoxLayout* Ingesprongen(QLabel* label)
{
    auto* rij = new QHBoxLayout;
    rij->setContentsMargins(24, 0, 0, 4);
    rij->addWidget(label);
    return rij;
}

} // namespace

void frmImportNBB::MaakDelen()
{
    const auto keus = [this](const QString& naam, const QString& tekst, char16_t letter,
                             const QString& gesproken) {
        auto* optie = new QRadioButton(MetSneltoets(tekst, letter), this);
        Noem(optie, naam, gesproken);
        return optie;
    };
    // Two options bear the same caption: only their labels, and their spoken names, differ.
    const QString xml = u"uit een geexporteerd XML-ledenbestand"_s;
    Option1 = keus(u"Option1"_s,
                   administratie_.rekenprogramma.ProgrammaCode == "BRIT" ? u"direct uit Bridge-It"_s
                                                                         : u"direct uit NBBR 2.8"_s,
                   u'd', {});
    Option2 = keus(u"Option2"_s, u"uit een geexporteerd CSV-ledenbestand"_s, u'C', {});
    Option3 = keus(u"Option3"_s, xml, u'X', xml + u" uit NBBR-3"_s);
    Option4 = keus(u"Option4"_s, xml, u'L', xml + u" uit NBB-4"_s);

    const auto vink = [this](const QString& naam, const QString& tekst, char16_t letter) {
        auto* vakje = new QCheckBox(MetSneltoets(tekst, letter), this);
        Noem(vakje, naam);
        vakje->setChecked(true);
        return vakje;
    };
    chkVoornaam = vink(u"chkVoornaam"_s, u"Voornaam"_s, 0);
    chkTus = vink(u"chkTus"_s, u"Tussenvoegsel"_s, 0);
    chkAchternaam = vink(u"chkAchternaam"_s, u"Achternaam"_s, 0);
    chkNBBnr = vink(u"chkNBBnr"_s, u"NBBnummer"_s, 0);
    for (QCheckBox* altijd : {chkVoornaam, chkTus, chkAchternaam, chkNBBnr}) {
        altijd->setEnabled(false);
        altijd->setToolTip(u"Wordt altijd geïmporteerd"_s);
    }
    chkNAW = vink(u"chkNAW"_s, u"NAW-gegevens\nStraat+huisnr, Postcode, Plaats, Land"_s, u'N');
    chkTel = vink(u"chkTel"_s, u"Telefoonnr"_s, u'f');
    chkEmail = vink(u"chkEmail"_s, u"Emailadres"_s, u'E');
    chkMV = vink(u"chkMV"_s, u"M/V"_s, u'M');
    for (QCheckBox* naarKeus : {chkNAW, chkTel, chkEmail, chkMV})
        naarKeus->setToolTip(
            u"Zonder vinkje wordt dit gegeven ook leeggemaakt bij spelers die er al staan"_s);
    MaakHulpknoppen();
}

void frmImportNBB::MaakHulpknoppen()
{
    const auto knop = [this](const char16_t* naam, const char16_t* tekst, char16_t letter) {
        return MaakKnop(QString::fromUtf16(naam), QString::fromUtf16(tekst), letter, this);
    };
    cmdKiesExportMap = knop(u"cmdKiesExportMap", u"Kies een map", u'K');
    cmdControleNBBnrs =
        knop(u"cmdControleNBBnrs", u"Overzicht NBBnrs van geselecteerde groepen", u'O');
    cmdHint = knop(u"cmdHint", u"Hint voor toekennen van fictieve NBB-nummers", u'H');
    cmdHelpImport28 =
        knop(u"cmdHelpImport28", u"Hoe exporteer je een ledenbestand uit NBBR-2.8?", u'2');
    cmdHelpImport31 =
        knop(u"cmdHelpImport31", u"Hoe exporteer je een ledenbestand uit  NBBR-3.1?", u'3');
    cmdHelpImport4 =
        knop(u"cmdHelpImport4", u"Hoe exporteer je een XML-ledenbestand uit  NBBR-4?", u'4');
    cmbHelpCSV = knop(u"cmbHelpCSV", u"Hoe exporteer je een CSV-ledenbestand uit  NBBR-4?", u'V');
    cmdAnnuleren = knop(u"cmdAnnuleren", u"Terug", u'T');
    cmdImporteer = knop(u"cmdImporteer", u"Importeer", u'I');
    cmdImporteer->setDefault(true);
}

void frmImportNBB::Bouw()
{
    setObjectName(u"frmImportNBB"_s);
    setWindowTitle(u"Importeer een NBB-ledenbestand"_s);
    MaakDelen();
    auto* inhoud = new QWidget(this);
    lblOpening =
        MaakLopendeTekst(u"lblOpening"_s, Openingstekst(administratie_.mappen.DFIMPG), inhoud);

    auto* links = new QVBoxLayout;
    links->addWidget(BouwBronnen());
    links->addWidget(BouwGegevens());
    links->addStretch();
    auto* kolommen = new QHBoxLayout;
    kolommen->addLayout(links);
    kolommen->addWidget(BouwKeuze(), 1);

    auto* lagen = new QVBoxLayout(inhoud);
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->addWidget(lblOpening);
    lagen->addLayout(kolommen, 1);
    lagen->addWidget(BouwHulp());
    auto* geheel = new QVBoxLayout(this);
    geheel->addWidget(new Schuifblad(inhoud, this), 1);
    geheel->addLayout(Knoppenrij({cmdAnnuleren, cmdImporteer}));
    StelTabvolgordeIn();
    const Maten maten;
    PasInScherm(this, {maten.Twips(12600), maten.Twips(9900)});
}

QGroupBox* frmImportNBB::BouwBronnen()
{
    auto* Frame3 = new QGroupBox(u"Haal de spelers op:"_s, this);
    Noem(Frame3, u"Frame3"_s);
    const auto label = [&](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, Frame3);
    };
    auto* lagen = new QVBoxLayout(Frame3);
    lagen->setSpacing(2);
    lagen->addWidget(Option1);
    lagen->addWidget(Option2);
    lagen->addLayout(
        Ingesprongen(label(u"Label10"_s, u"(dit is mogelijk met NBBR-2.8 en NBBR-3)"_s)));
    lagen->addWidget(Option3);
    lagen->addLayout(Ingesprongen(label(u"Label13"_s, u"(uit NBBR-3)"_s)));
    lagen->addWidget(label(u"Label9"_s, u"Uit NBB-4:"_s));
    lagen->addWidget(Option4);
    lagen->addLayout(
        Ingesprongen(label(u"Label2"_s, u"Kies eventueel 'CSV-ledenbestand' i.p.v. 'XML'"_s)));
    return Frame3;
}

QGroupBox* frmImportNBB::BouwGegevens()
{
    auto* Frame1 = new QGroupBox(u"Spelergegevens importeren"_s, this);
    Noem(Frame1, u"Frame1"_s);
    auto* Frame2 = new QGroupBox(u"Naar keus inclusief:"_s, Frame1);
    Noem(Frame2, u"Frame2"_s);
    Frame2->setLayout(Onderelkaar({chkNAW, chkTel, chkEmail, chkMV}));
    auto* vast = Onderelkaar({chkVoornaam, chkTus, chkAchternaam, chkNBBnr});
    vast->addStretch();
    auto* delen = new QHBoxLayout(Frame1);
    delen->addLayout(vast);
    delen->addWidget(Frame2);
    return Frame1;
}

QWidget* frmImportNBB::BouwKeuze()
{
    auto* keuze = new QWidget(this);
    lblExportMap = MaakLopendeTekst(u"lblExportMap"_s, QString(), keuze);
    lstNBBbest = new Regellijst(QListView::MultiSelection, keuze);
    Label3 = MaakLabel(u"Label3"_s, QString(), keuze);
    Label3->setBuddy(lstNBBbest);
    ToonLijsttekst(u"Ledenbestanden:"_s);
    Noem(lstNBBbest, u"lstNBBbest"_s, u"Ledenbestanden"_s);
    lstNBBbest->setToolTip(
        u"Een klik of de spatiebalk kiest een ledenbestand of laat het los; Ctrl+A kiest alle"_s);
    auto* Label7 = MaakLopendeTekst(
        u"Label7"_s,
        u"Let op: alleen spelers met een ingevuld (eventueel fictief) NBB-nummer worden "
        "geimporteerd."_s,
        keuze);
    auto* Label6 = MaakLopendeTekst(
        u"Label6"_s,
        u"Bestaande spelers worden overschreven (ververst) nieuwe spelers worden toegevoegd. "_s,
        keuze);
    auto* lagen = Onderelkaar(
        {cmdKiesExportMap, lblExportMap, Label3, lstNBBbest, cmdControleNBBnrs, Label7, Label6});
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->setStretch(3, 1);
    keuze->setLayout(lagen);
    return keuze;
}

QWidget* frmImportNBB::BouwHulp()
{
    auto* hulp = new QWidget(this);
    auto* vakken = new QGridLayout(hulp);
    vakken->setContentsMargins(0, 0, 0, 0);
    vakken->addWidget(cmdHelpImport28, 0, 0);
    vakken->addWidget(cmdHelpImport31, 0, 1);
    vakken->addWidget(cmbHelpCSV, 1, 0);
    vakken->addWidget(cmdHelpImport4, 1, 1);
    vakken->addWidget(cmdHint, 2, 0, 1, 2);
    return hulp;
}

void frmImportNBB::StelTabvolgordeIn()
{
    ZetTabvolgorde({Option1, Option2, Option3, Option4, chkNAW, chkTel, chkEmail, chkMV,
                    cmdKiesExportMap, lstNBBbest, cmdControleNBBnrs, cmdHelpImport28,
                    cmdHelpImport31, cmbHelpCSV, cmdHelpImport4, cmdHint, cmdAnnuleren,
                    cmdImporteer});
}

void frmImportNBB::Verbind()
{
    for (const auto& [optie, bron] :
         {std::pair{Option1, Ledenbron::Database}, std::pair{Option2, Ledenbron::Csv},
          std::pair{Option3, Ledenbron::XmlNbb3}, std::pair{Option4, Ledenbron::XmlNbb4}})
        connect(optie, &QRadioButton::clicked, this, [this, bron = bron] { KiesBron(bron); });
    connect(cmdKiesExportMap, &QPushButton::clicked, this, &frmImportNBB::KiesExportMap);
    connect(cmdControleNBBnrs, &QPushButton::clicked, this, &frmImportNBB::ControleerNBBnrs);
    connect(cmdImporteer, &QPushButton::clicked, this, &frmImportNBB::ImporteerLedenbestanden);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &QDialog::close);
}

} // namespace plexoran
