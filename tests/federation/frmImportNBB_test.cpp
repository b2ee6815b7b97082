// The import window itself: its texts, its sources and its help.
#include <QDir>
#include <QFileIconProvider>
#include <QGroupBox>

#include "federation/importproef.h"
#include "hulp/accessgegevens.h"

using namespace plexoran;

namespace {

using Namen = std::vector<std::string>;

class frmImportNBBTest : public Importproef {
  protected:
    /// Starts with both programs installed, each with its data folder, and this answer to the
    /// question which of them is meant.
    void StartMetBeide(const char* nbbr, const char* bridgeIt, const char* keus)
    {
        winkel.Zet("NBB-Rekenprogramma", "DataRoot", (suite.Weg() / nbbr).string());
        VerwachtKeus(keus);
        StartMetDatabase("Bridge-It", bridgeIt);
    }
    /// The question which program is meant; without an option it is closed.
    void VerwachtKeus(const char* optie)
    {
        wachter.Bedien([optie](QDialog& keuze) {
            EXPECT_EQ("diaRekProgkeus", keuze.objectName());
            if (optie == nullptr)
                return keuze.reject();
            KiesOptie(keuze, optie);
            Druk(keuze, "cmdOK");
        });
    }
    /// The captions name Bridge-It, and a database is read.
    void OpentMetBridgeIt()
    {
        Verwacht([](QDialog& dia) {
            EXPECT_EQ("direct uit Bridge-It", Opschrift(Vind<QRadioButton>(dia, "Option1")));
            KiesOptie(dia, "Option1");
            EXPECT_EQ("Ledenbestanden direct uit BridgeIt:", Labeltekst(dia, "lblExportMap"));
            EXPECT_EQ(3, Lijst(dia)->Aantal());
        });
        Importeer();
    }
};

} // namespace

TEST_F(frmImportNBBTest, DeTeksten)
{
    InVenster([](QDialog& dia) {
        EXPECT_EQ("Importeer een NBB-ledenbestand", dia.windowTitle());
        EXPECT_EQ("Hieronder kunt u spelergegevens uit het NBB-Rekenprogramma importeren in "
                  "Ravendeck (RVD).\n"
                  "Om RVD en NBB4 naadloos met elkaar te kunnen laten werken is het van het "
                  "grootste belang dat de gegevens van de spelers in beide programma's gelijk "
                  "zijn.\n"
                  "Werkt ook met Bridge-It als daar bij 'NBB-nummer' een uniek fictief nummer "
                  "wordt ingevuld lager dan 9999.\n"
                  "De spelers in de gekozen bestanden gaan standaard naar de RVD-verzamelgroep "
                  "'Gr05-' ,van daaruit kunt u ze eventueel kopieren naar andere groepen.",
                  Labeltekst(dia, "lblOpening"));
        for (const auto& [naam, tekst] :
             {std::pair{"Option1", "direct uit NBBR 2.8"},
              {"Option2", "uit een geexporteerd CSV-ledenbestand"},
              {"Option3", "uit een geexporteerd XML-ledenbestand"},
              {"Option4", "uit een geexporteerd XML-ledenbestand"},
              {"chkNAW", "NAW-gegevens\nStraat+huisnr, Postcode, Plaats, Land"},
              {"chkTel", "Telefoonnr"},
              {"chkEmail", "Emailadres"},
              {"chkMV", "M/V"},
              {"chkVoornaam", "Voornaam"},
              {"chkTus", "Tussenvoegsel"},
              {"chkAchternaam", "Achternaam"},
              {"chkNBBnr", "NBBnummer"},
              {"cmdImporteer", "Importeer"},
              {"cmdAnnuleren", "Terug"},
              {"cmdControleNBBnrs", "Overzicht NBBnrs van geselecteerde groepen"},
              {"cmdHint", "Hint voor toekennen van fictieve NBB-nummers"},
              {"cmdHelpImport28", "Hoe exporteer je een ledenbestand uit NBBR-2.8?"},
              {"cmdHelpImport31", "Hoe exporteer je een ledenbestand uit  NBBR-3.1?"},
              {"cmdHelpImport4", "Hoe exporteer je een XML-ledenbestand uit  NBBR-4?"},
              {"cmbHelpCSV", "Hoe exporteer je een CSV-ledenbestand uit  NBBR-4?"}})
            EXPECT_EQ(tekst, Opschrift(Vind<QAbstractButton>(dia, naam)));
        for (const auto& [naam, tekst] :
             {std::pair{"Label3", "Ledenbestanden:"},
              {"Label10", "(dit is mogelijk met NBBR-2.8 en NBBR-3)"},
              {"Label13", "(uit NBBR-3)"},
              {"Label9", "Uit NBB-4:"},
              {"Label2", "Kies eventueel 'CSV-ledenbestand' i.p.v. 'XML'"},
              {"Label7", "Let op: alleen spelers met een ingevuld (eventueel fictief) NBB-nummer "
                         "worden geimporteerd."},
              {"Label6", "Bestaande spelers worden overschreven (ververst) nieuwe spelers worden "
                         "toegevoegd. "}})
            EXPECT_EQ(tekst, Labeltekst(dia, naam));
        for (const auto& [naam, titel] : {std::pair{"Frame3", "Haal de spelers op:"},
                                          {"Frame1", "Spelergegevens importeren"},
                                          {"Frame2", "Naar keus inclusief:"}})
            EXPECT_EQ(titel, Vind<QGroupBox>(dia, naam)->title().toStdString());
    });
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmImportNBBTest, DeVinkjesEnKnoppenBijHetOpenen)
{
    InVenster([](QDialog& dia) {
        for (const char* naam : {"chkNAW", "chkTel", "chkEmail", "chkMV"}) {
            EXPECT_TRUE(Vind<QCheckBox>(dia, naam)->isChecked()) << naam;
            EXPECT_TRUE(Vind<QCheckBox>(dia, naam)->isEnabled()) << naam;
        }
        for (const char* naam : {"chkVoornaam", "chkTus", "chkAchternaam", "chkNBBnr"}) {
            auto* vink = Vind<QCheckBox>(dia, naam);
            Klik(vink);
            EXPECT_TRUE(vink->isChecked()) << naam;
            EXPECT_FALSE(vink->isEnabled()) << naam;
        }
        EXPECT_FALSE(Vind<QRadioButton>(dia, "Option1")->isVisible());
        for (const char* naam : {"Option2", "Option3", "Option4"})
            EXPECT_FALSE(Vind<QRadioButton>(dia, naam)->isChecked());
        for (const char* naam : {"cmdImporteer", "cmdControleNBBnrs", "cmdKiesExportMap"})
            EXPECT_FALSE(Vind<QPushButton>(dia, naam)->isEnabled()) << naam;
        QTest::keyClick(&dia, Qt::Key_Escape);
    });
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmImportNBBTest, TabGaatVanBovenNaarBenedenEnLinksVoor)
{
    InVenster([](QDialog& dia) {
        QStringList volgorde;
        for (QWidget* deel = dia.nextInFocusChain(); deel != &dia; deel = deel->nextInFocusChain())
            if ((deel->focusPolicy() & Qt::ClickFocus) != 0 &&
                !deel->objectName().startsWith(u"qt_"_s))
                volgorde << deel->objectName();
        EXPECT_EQ("Option1 Option2 Option3 Option4 chkNAW chkTel chkEmail chkMV chkVoornaam chkTus "
                  "chkAchternaam chkNBBnr cmdKiesExportMap lstNBBbest cmdControleNBBnrs "
                  "cmdHelpImport28 cmdHelpImport31 cmbHelpCSV cmdHelpImport4 cmdHint cmdAnnuleren "
                  "cmdBekijk "
                  "cmdImporteer",
                  volgorde.join(u' ').toStdString());
    });
}

TEST_F(frmImportNBBTest, ElkeBronHaaltZijnEigenBestandenUitDeMapVanDeBond)
{
    KopieerExports();
    ZetExport("AVOND.CSV", "");
    InVenster([this](QDialog& dia) {
        const std::string map =
            "Ledenbestanden in de gekozen map: " + suite.Toonpad("Bestanden/NBB4-Leden");
        KiesOptie(dia, "Option2");
        EXPECT_EQ("Kies een map en selecteer een 'CSV'-bestand",
                  Opschrift(Vind<QPushButton>(dia, "cmdKiesExportMap")));
        EXPECT_EQ("CSV-Leden&bestanden: 3", Vind<QLabel>(dia, "Label3")->text().toStdString());
        EXPECT_EQ(Lijst(dia), Vind<QLabel>(dia, "Label3")->buddy());
        EXPECT_EQ(map, Labeltekst(dia, "lblExportMap"));
        EXPECT_EQ((Namen{"AVOND.CSV", "Dinsdag 20260901.csv", "Maandag 20260901.csv"}),
                  Bestanden(dia));
        EXPECT_FALSE(Lijst(dia)->IetsGekozen());
        KiesOptie(dia, "Option3");
        EXPECT_EQ("Kies een map en selecteer 'n 'XML'-bestand",
                  Opschrift(Vind<QPushButton>(dia, "cmdKiesExportMap")));
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-3: 1", Labeltekst(dia, "Label3"));
        EXPECT_EQ((Namen{"Donderdag 20260901.xml"}), Bestanden(dia));
        EXPECT_TRUE(Lijst(dia)->Gekozen() == 0);
        KiesOptie(dia, "Option4");
        EXPECT_EQ("Kies een map en wijs een XML-bestand aan",
                  Opschrift(Vind<QPushButton>(dia, "cmdKiesExportMap")));
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: 2", Labeltekst(dia, "Label3"));
        EXPECT_EQ((Namen{"Cursus 20260901.xml", "Zomer 20260901.xml"}), Bestanden(dia));
        EXPECT_EQ((std::vector<int>{0}), Lijst(dia)->GekozenPlaatsen());
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdControleNBBnrs")->isEnabled());
    });
}

/// The folder is remembered per source for as long as the program runs.
TEST_F(frmImportNBBTest, DeBestandskeuzeEnWatDaarvanOnthoudenWordt)
{
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        EXPECT_EQ("CSV-Ledenbestanden: geen", Labeltekst(dia, "Label3"));
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ((Namen{"Dinsdag 20260901.csv", "Maandag 20260901.csv"}), Bestanden(dia));
        // The file that was pointed at is the one chosen.
        EXPECT_EQ((std::vector<int>{1}), Lijst(dia)->GekozenPlaatsen());
        KiesOptie(dia, "Option4");
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: geen", Labeltekst(dia, "Label3"));
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ((std::vector<int>{1}), Lijst(dia)->GekozenPlaatsen());
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: 2", Labeltekst(dia, "Label3"));
    });
    VerwachtBestandskeuze(u"CSV-bestanden (*.csv)"_s, "Ledenbestanden/Maandag 20260901.csv");
    VerwachtBestandskeuze(u"XML-bestanden (*.xml)"_s, "Ledenbestanden/Zomer 20260901.xml");
    wachter.Bedien([](QDialog& keuze) {
        EXPECT_EQ("Map", QFileIconProvider().type(QFileInfo(QDir::tempPath())));
        keuze.reject();
    });
    Importeer();
    InVenster([](QDialog& dia) {
        EXPECT_TRUE(Vind<QRadioButton>(dia, "Option4")->isChecked());
        EXPECT_EQ("Option4", dia.focusWidget()->objectName().toStdString());
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: 2", Labeltekst(dia, "Label3"));
        KiesOptie(dia, "Option2");
        EXPECT_EQ("CSV-Ledenbestanden: 2", Labeltekst(dia, "Label3"));
    });
}

/// Or another file would silently stand chosen for it.
TEST_F(frmImportNBBTest, EenBestandVanEenAndereSoortWordtGenoemd)
{
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option3");
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ((Namen{"Donderdag 20260901.xml"}), Bestanden(dia));
        EXPECT_EQ((std::vector<int>{0}), Lijst(dia)->GekozenPlaatsen());
        EXPECT_EQ(Lijst(dia), dia.focusWidget());
    });
    VerwachtBestandskeuze(u"XML-bestanden (*.xml)"_s, "Ledenbestanden/Zomer 20260901.xml");
    wachter.Informatie(
        u"'Zomer 20260901.xml' is geen XML-ledenbestand uit NBBR-3 en staat dus niet in de lijst. "
        "Er is niets geïmporteerd. Kies een ander bestand, of kies eerst links waar dit bestand "
        "vandaan komt."_s);
    Importeer();
}

/// The folder that is looked in first: nothing can be done with the source until another is chosen.
TEST_F(frmImportNBBTest, EenMapZonderRechten)
{
    ZetExport("Dinsdag.csv", "");
    schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("NBB4-Leden"); });
    const QString bericht =
        u"De bestanden in de gekozen map kunnen niet worden opgezocht. Er is niets geïmporteerd. "
        "Kies een andere map.\n\nBestand: %1\nMelding van het systeem: geen toegang"_s.arg(
            QString::fromStdString(suite.Toonpad("Bestanden/NBB4-Leden")));
    Verwacht([](QDialog& dia) {
        for (const char* optie : {"Option2", "Option3", "Option4"}) {
            KiesOptie(dia, optie);
            EXPECT_EQ("Er is nog geen map gekozen.", Labeltekst(dia, "lblExportMap"));
            EXPECT_EQ(0, Lijst(dia)->Aantal());
            EXPECT_FALSE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
            EXPECT_FALSE(Vind<QPushButton>(dia, "cmdControleNBBnrs")->isEnabled());
            EXPECT_TRUE(Vind<QPushButton>(dia, "cmdKiesExportMap")->isEnabled());
            EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
        }
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ((Namen{"Cursus 20260901.xml", "Zomer 20260901.xml"}), Bestanden(dia));
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
    });
    for (int i = 0; i < 3; ++i)
        wachter.Waarschuwing(bericht);
    VerwachtBestandskeuze(u"XML-bestanden (*.xml)"_s, "Ledenbestanden/Zomer 20260901.xml");
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

/// One that is chosen: the folder before it and its list stay.
TEST_F(frmImportNBBTest, EenGekozenMapZonderRechten)
{
    KopieerExports();
    schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("Ledenbestanden"); });
    Verwacht([this](QDialog& dia) {
        KiesOptie(dia, "Option2");
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ("Ledenbestanden in de gekozen map: " + suite.Toonpad("Bestanden/NBB4-Leden"),
                  Labeltekst(dia, "lblExportMap"));
        EXPECT_EQ((Namen{"Dinsdag 20260901.csv", "Maandag 20260901.csv"}), Bestanden(dia));
    });
    VerwachtBestandskeuze(u"CSV-bestanden (*.csv)"_s, "Ledenbestanden/Maandag 20260901.csv");
    wachter.Begin(u"De bestanden in de gekozen map kunnen niet worden opgezocht. Er is niets "
                  "geïmporteerd. Kies een andere map.\n\nBestand: "_s);
    Importeer();
}

/// Telling XML files apart takes reading them: on a slow disk the window says how far it is, and
/// lets itself be stopped.
TEST_F(frmImportNBBTest, EenMapMetVeelXmlBestandenOpEenTrageSchijf)
{
    const std::string export4 = suite.Inhoud("Ledenbestanden/Zomer 20260901.xml");
    for (int i = 0; i < 40; ++i)
        ZetExport("Club " + std::to_string(100 + i) + ".xml", export4);
    schijf.Vooraf([](const Pad& pad) {
        if (pad.ends_with(".xml"))
            QTest::qSleep(15);
        return true;
    });
    bool stop = false;
    int keren = 0;
    QTimer kijker;
    QObject::connect(&kijker, &QTimer::timeout, &kijker, [&] {
        auto* voortgang = QApplication::activeModalWidget();
        if (voortgang == nullptr || voortgang->objectName() != u"frmVoortgang"_s)
            return;
        if (++keren == 1) {
            EXPECT_EQ("De XML-bestanden in de gekozen map worden bekeken",
                      Vind<QLabel>(*voortgang, "lblTekst")->text().toStdString());
            if (stop)
                QTest::keyClick(voortgang, Qt::Key_Escape);
        }
    });
    InVenster([&](QDialog& dia) {
        kijker.start(0);
        KiesOptie(dia, "Option4");
        EXPECT_GT(keren, 3);
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: 40", Labeltekst(dia, "Label3"));
        EXPECT_TRUE(Lijst(dia)->Gekozen() == 0);
        stop = true;
        keren = 0;
        KiesOptie(dia, "Option4");
        EXPECT_GE(keren, 1);
        EXPECT_GT(Lijst(dia)->Aantal(), 0);
        EXPECT_LT(Lijst(dia)->Aantal(), 40);
        EXPECT_FALSE(Lijst(dia)->IetsGekozen());
        EXPECT_EQ("XML-Ledenbestanden uit NBBR-4: " + std::to_string(Lijst(dia)->Aantal()) +
                      " (niet alle bestanden zijn bekeken)",
                  Labeltekst(dia, "Label3"));
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
        kijker.stop();
    });
}

/// A screen of 1920 by 1080 at 200 % has this room.
TEST_F(frmImportNBBTest, OpEenLaagSchermBlijvenDeKnoppenInBeeld)
{
    InVenster([](QDialog& dia) {
        dia.resize(840, 500);
        QApplication::processEvents();
        EXPECT_LE(dia.height(), 500);
        const auto inBeeld = [&dia](const char* knop) {
            auto* deel = Vind<QPushButton>(dia, knop);
            return deel->visibleRegion().boundingRect() == deel->rect();
        };
        EXPECT_TRUE(inBeeld("cmdImporteer"));
        EXPECT_TRUE(inBeeld("cmdAnnuleren"));
        EXPECT_FALSE(inBeeld("cmdHint"));
        Vind<QPushButton>(dia, "cmdHint")->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_TRUE(inBeeld("cmdHint"));
        EXPECT_TRUE(inBeeld("cmdImporteer"));
    });
}

/// The number check looks at the chosen member files and changes nothing.
TEST_F(frmImportNBBTest, HetOverzichtVanDeNummers)
{
    KopieerExports();
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option4");
        Druk(dia, "cmdControleNBBnrs");
        Lijst(dia)->clearSelection();
        Druk(dia, "cmdControleNBBnrs");
        Druk(dia, "cmdImporteer");
        EXPECT_TRUE(dia.isVisible());
    });
    wachter.Bedien([](QDialog& overzicht) {
        EXPECT_EQ("diaControleNBB", overzicht.objectName());
        Druk(overzicht, "cmdTerug");
    });
    for (int i = 0; i < 2; ++i)
        wachter.Waarschuwing(u"U moet nog ledenbestand(en) selecteren!"_s);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmImportNBBTest, DeDatabaseVanHetRekenprogramma)
{
    for (const auto& [toepassing, optie, opschrift] :
         {std::tuple{"NBB-Rekenprogramma", "direct uit NBBR 2.8",
                     "Ledenbestanden direct uit NBBR-2.8:"},
          std::tuple{"Bridge-It", "direct uit Bridge-It", "Ledenbestanden direct uit BridgeIt:"}}) {
        winkel = {};
        StartMetDatabase(toepassing);
        InVenster([&, optie = optie, opschrift = opschrift](QDialog& dia) {
            EXPECT_TRUE(Vind<QRadioButton>(dia, "Option1")->isVisible());
            EXPECT_EQ(optie, Opschrift(Vind<QRadioButton>(dia, "Option1")));
            KiesOptie(dia, "Option1");
            EXPECT_EQ(opschrift, Labeltekst(dia, "lblExportMap"));
            EXPECT_EQ("Ledenbestanden:", Labeltekst(dia, "Label3"));
            EXPECT_EQ((Namen{"Club 007", "Cursus 012", "Jeugd 105"}), Bestanden(dia));
            EXPECT_FALSE(Vind<QPushButton>(dia, "cmdKiesExportMap")->isEnabled());
            EXPECT_TRUE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
            EXPECT_TRUE(Vind<QPushButton>(dia, "cmdControleNBBnrs")->isEnabled());
            KiesOptie(dia, "Option2");
            EXPECT_TRUE(Bestanden(dia).empty());
            EXPECT_TRUE(Vind<QPushButton>(dia, "cmdKiesExportMap")->isEnabled());
        });
    }
}

TEST_F(frmImportNBBTest, EenOntbrekendeDatabaseNoemtDeGeprobeerdePlaats)
{
    KopieerExports();
    StartMetDatabase("Bridge-It", "weg");
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        EXPECT_EQ(2, Lijst(dia)->Aantal());
        KiesOptie(dia, "Option1");
        EXPECT_EQ(0, Lijst(dia)->Aantal()); // nothing of the folder is left
        EXPECT_EQ("", Vind<QLabel>(dia, "lblExportMap")->toolTip());
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdImporteer")->isEnabled());
        EXPECT_TRUE(Vind<QPushButton>(dia, "cmdControleNBBnrs")->isEnabled());
    });
    wachter.Begin(
        u"Fout bij het lezen van de ledenbestanden!\r\nDe database met de ledenbestanden is "
        "niet gevonden; er is niets geïmporteerd. Kies zo nodig een geëxporteerd "
        "ledenbestand.\n\nBestand: "_s +
        QString::fromStdString(suite.Toonpad("weg/data/Members.mdb")));
    Importeer();
}

/// Both programs there: asked at the start and again at opening. The second answer changes the
/// captions; the database stays the one of the start.
TEST_F(frmImportNBBTest, BeideRekenprogrammas)
{
    StartMetBeide("Rekenprogramma", "weg", "Option1");
    VerwachtKeus("Option2");
    OpentMetBridgeIt();
    // Closed without a choice the second time: the caption stays that of the program whose database
    // is read.
    StartMetBeide("weg", "Rekenprogramma", "Option2");
    VerwachtKeus(nullptr);
    OpentMetBridgeIt();
}

TEST_F(frmImportNBBTest, GeenKeusTussenBeideWordtUitgelegd)
{
    StartMetBeide("Rekenprogramma", "weg", nullptr);
    administratie.DataMap.clear();
    VerwachtKeus(nullptr);
    Verwacht([](QDialog& dia) {
        EXPECT_TRUE(Vind<QRadioButton>(dia, "Option1")->isVisible());
        KiesOptie(dia, "Option1");
    });
    wachter.Waarschuwing(
        u"Fout bij het lezen van de ledenbestanden!\r\nBij de start van Plexoran was niet bekend "
        "waar de database van het rekenprogramma staat; er is niets geïmporteerd. Start Plexoran "
        "opnieuw en kies dan het rekenprogramma, of kies een geëxporteerd ledenbestand."_s);
    Importeer();
}

TEST_F(frmImportNBBTest, DeHint)
{
    Verwacht([](QDialog& dia) { Druk(dia, "cmdHint"); });
    wachter.Verwacht(
        {.tekst =
             u"Als u fictieve 'NBB-nrs' moet toekennen aan spelers die nog geen nummer hebben, "
             "bijv gasten, dan begint u gewoon te nummeren bij bijv 100.\r\nBlijf altijd onder "
             "9999 om niet in conflict te komen met de echte NBB-nummers.\r\nOp een gegeven "
             "moment weet u niet meer welke nummers al geweest zijn.\r\nOm snel te weten wat het "
             "laatst toegekende nummer was kunt u het volgende doen:\r\n - Druk (rechtsonder) op "
             "de knop 'Sorteerlijst op' >> 'NBB-nr'.\r\n - Of: In het NBB-programma: klik in de "
             "ledenlijst op de titel 'Bondsnummer', er verschijnt dan een 'warrige' "
             "sorteerlijst."_s,
         .titel = u"Hint"_s});
    Importeer();
}

TEST_F(frmImportNBBTest, ElkStappenplanEindigtMetDeNaamVanHetLedenbestand)
{
    const std::string einde =
        "Let op: Als u de naam van een ledenbestand zou willen wijzigen moet u de "
        "ledenbestandsnaam voorop laten staan gevolgd door een spatie.\r\n"
        "Voorbeeld: 'Club 20170125' mag u wijzigen in 'Club Nijmegen'.";
    InVenster([&](QDialog& dia) {
        for (const auto& [knop, begin, map] :
             {std::tuple{"cmdHelpImport28",
                         "Zo exporteert u een ledenbestand uit NBBR-2.8:", false},
              std::tuple{"cmdHelpImport31", "Zo exporteert u een ledenbestand uit NBBR-3.1:", true},
              std::tuple{"cmdHelpImport4",
                         "Zo exporteert u een XML-ledenbestand uit NBBR-4:", true},
              std::tuple{"cmbHelpCSV", "Zo exporteert u een CSV-ledenbestand uit NBBR-4:", true}}) {
            std::string tekst;
            QTimer::singleShot(0, &dia, [&] {
                auto* bericht = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (bericht != nullptr)
                    tekst = bericht->text().toStdString();
            });
            wachter.Verwacht({.tekst = QString::fromLatin1(begin), .alleenBegin = true});
            Druk(dia, knop);
            EXPECT_TRUE(tekst.ends_with(einde)) << tekst;
            if (map) {
                EXPECT_NE(std::string::npos, tekst.find("...Documenten\\NBB4-Leden")) << knop;
            }
        }
    });
}

TEST_F(frmImportNBBTest, ZonderVerzamelgroepGaatHetVensterNietOpen)
{
    administratie.mappen.DFIMPG = "Gr51-";
    wachter.Waarschuwing(
        u"Er kunnen geen bondsleden worden geïmporteerd: in 'Mappen.ini' staat achter DFIMPG= "
        "niet in welke groep ze komen, zoals Gr05-. Er is niets veranderd. Vul die groep in en "
        "start Plexoran opnieuw."_s);
    Importeer();
}

TEST_F(frmImportNBBTest, EenDatabaseZonderLedenbestandenZegtDat)
{
    std::filesystem::create_directories(suite.Weg() / "Rekenprogramma/data");
    suite.Zet("Rekenprogramma/data/Members.mdb",
              LeesAlsBytes(Accessbestand("bad/both-tables-empty.mdb")));
    StartMetDatabase("Bridge-It");
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option1");
        EXPECT_EQ(0, Lijst(dia)->Aantal());
    });
    wachter.Informatie(
        u"In de database van het rekenprogramma staat geen enkel ledenbestand. Er is niets "
        "gewijzigd. Maak in het rekenprogramma een ledenbestand, of kies een geëxporteerd "
        "ledenbestand."_s);
    Importeer();
}

#ifndef _WIN32

TEST_F(frmImportNBBTest, EenBestandMetEenNaamDieNaarEldersWijst)
{
    KopieerExports();
    suite.Zet("Bestanden/elders.csv", "");
    suite.Zet("Bestanden/NBB4-Leden/..\\elders.csv", "");
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        EXPECT_EQ(2, Lijst(dia)->Aantal());
        Druk(dia, "cmdKiesExportMap");
        EXPECT_EQ(2, Lijst(dia)->Aantal());
    });
    wachter.Waarschuwing(
        u"Overgeslagen in de map hieronder: 1 naam, omdat er een teken in staat dat een naam in "
        "Ravendeck niet kan hebben, zoals '\\'. Er is niets gewijzigd. Geef wat u ervan nodig "
        "hebt, een andere naam.\n\nMap: %1\n..\\elders.csv"_s.arg(
            QString::fromStdString(suite.Toonpad("Bestanden/NBB4-Leden"))));
    const std::filesystem::path aangewezen = "Bestanden/NBB4-Leden/..\\elders.csv";
    VerwachtBestandskeuze(u"CSV-bestanden (*.csv)"_s, aangewezen);
    wachter.Waarschuwing(
        u"Dit bestand kan niet worden gelezen: in zijn naam of die van zijn map mag geen '\\' "
        "staan. Er is niets gewijzigd. Geef het bestand of de map een andere naam.\n\nBestand: "_s +
        QString::fromStdString((suite.Weg() / aangewezen).string()));
    Importeer();
}

#endif
