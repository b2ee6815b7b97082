// The groups and the commands of the main window on the sample suite.
#include <QGroupBox>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "mainwindow/vensterproef.h"

using namespace plexoran;

// ---- Groups -----------------------------------------------------------------------------------

TEST_F(HoofdvensterTest, EenGroepHeeftHaarEigenTekstenEnKnoppen)
{
    struct Geval {
        int nummer;
        const char *regels, *naam, *kolom17, *kolom18, *sorteerknop;
        bool importgroep;
    };
    for (const Geval& geval :
         {Geval{2, "25", "Gr02-Donderdagmiddag", "Subgr", "", "Subgroep", false},
          Geval{5, "36", "Gr05-Bondsleden", "NBBgr", "NBBnr", "NBBgroep", true},
          Geval{9, "0", "Gr09-Wintercompetitie Café 't Anker", "Subgr", "", "Subgroep", false}}) {
        SCOPED_TRACE(geval.naam);
        KiesGroep(geval.nummer);
        EXPECT_EQ(std::string("Aantal regels: ") + geval.regels, Aantal());
        EXPECT_EQ(std::string("Print deze groep: ") + geval.naam + " ...",
                  Opschrift(Knop("cmdPrint")));
        EXPECT_EQ(geval.kolom17, Header(17)->text().toStdString());
        EXPECT_EQ(geval.kolom18, Header(18)->text().toStdString());
        EXPECT_EQ(geval.sorteerknop, Opschrift(Knop("cmdSortlijst3")));
        EXPECT_EQ(" NBB-nr", Opschrift(Knop("cmdSortlijst2")));
        for (const char* knop : {"cmdSortlijst2", "cmdHaalNBBnamen", "cmdKoppel"})
            EXPECT_EQ(geval.importgroep, Knop(knop)->isVisible()) << knop;
        EXPECT_EQ("OPTIND=4\r\nLOSTGR=" + std::to_string(geval.nummer - 1) + "\r\n",
                  suite.Instellingen());
    }
}

TEST_F(HoofdvensterTest, EenLegeGroepTekentNietsEnDaarnaKomenKnoppenEnRegelnummersTerug)
{
    KiesGroep(4);
    EXPECT_EQ("Aantal regels: 0", Aantal());
    EXPECT_EQ(0, Keus("cmbVerwVan")->count());
    EXPECT_EQ(0, Keus("cmbVerwTot")->count());
    EXPECT_EQ("", Keus("cmbVerwVan")->currentText().toStdString());
    for (const char* knop : {"cmdWijzig", "cmdVerwijder", "cmdVerwijderVT"})
        EXPECT_FALSE(Knop(knop)->isEnabled()) << knop;
    EXPECT_TRUE(Knop("cmdAanm")->isEnabled());
    Knop("cmdAanm")->setFocus(); // without the frame of the focus
    const QImage beeld = Vlak()->grab().toImage();
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            ASSERT_EQ(QColor(Qt::white), beeld.pixelColor(x, y)) << x << "," << y;
    KiesGroep(3);
    for (const char* knop : {"cmdWijzig", "cmdVerwijder", "cmdVerwijderVT"})
        EXPECT_TRUE(Knop(knop)->isEnabled()) << knop;
    for (const char* naam : {"cmbVerwVan", "cmbVerwTot"}) {
        const QComboBox* keus = Keus(naam);
        ASSERT_EQ(9, keus->count());
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(QString::number(i + 1), keus->itemText(i));
    }
}

TEST_F(HoofdvensterTest, HetKiezenVanEenGroepWistDeGekozenRegel)
{
    KiesRegel(3);
    ASSERT_EQ(3, GekozenRegel());
    KiesGroep(2);
    EXPECT_EQ(0, GekozenRegel());
    EXPECT_FALSE(Deel("Line1")->isVisible());
    EXPECT_FALSE(Deel("Line2")->isVisible());
}

TEST_F(HoofdvensterTest, DeOpschriftenEnWenkenVanDeOpdrachten)
{
    const std::vector<std::pair<const char*, const char*>> opschriften{
        {"cmdAanm", "Nieuwe Speler toevoegen"},
        {"cmdWijzig", "Geselecteerde Speler wijzigen"},
        {"cmdVerplaats", "Verplaats speler(s) naar andere groep"},
        {"cmdKopieer", "Kopieer speler(s) naar andere groep"},
        {"cmdVerwGroep", "Verwijder een hele subgroep ..."},
        {"cmdVerwijder", "Geselecteerde regel verwijderen..."},
        {"cmdVerwijderVT", "Verwijder ..."},
        {"cmdSortlijst1", " Key"},
        {"cmdSortlijst2", " NBB-nr"},
        {"cmdZoekDubbeleNamen", "Zoek dubbele namen"},
        {"cmdSpToevoegen", "Toevoegen (_Rev)"},
        {"cmdHaalNBBnamen", "Importeer NBB-spelers"},
        {"cmdKoppel", "Koppel zwevende NBB-speler"},
        {"cmdParenOnderhoud", "Paren-onderhoud"},
        {"cmdToelichting", "Toelichting"},
        {"cmdMaakGrNamen", "Spelergroepsnaam aanvullen"},
        {"cmdToonGatenlijst", "Toon vrije NBB-nummers"},
        {"cmdMaakScripts", "MaakScripts ..."},
        {"cmdEinde", "Einde"}};
    for (const auto& [naam, tekst] : opschriften)
        EXPECT_EQ(tekst, Opschrift(Knop(naam))) << naam;
    EXPECT_EQ("Selecteer een regel", Knop("cmdVerwijder")->toolTip().toStdString());
    EXPECT_EQ("U kunt ook dubbelklikken op een regel", Knop("cmdWijzig")->toolTip().toStdString());
    EXPECT_EQ("Voor als u zoekt naar een vrij NBBnummer lager dan 9999 ",
              Knop("cmdToonGatenlijst")->toolTip().toStdString());
    EXPECT_EQ("Voor de duidelijkheid kunt u tekst toevoegen. Bijv: Gro2-Clubleden",
              Knop("cmdMaakGrNamen")->toolTip().toStdString());
    EXPECT_EQ("Verwijder regels van/tot", Vind<QGroupBox>(*venster, "Frame2")->title());
    const QWidget* sorteerkader = Knop("cmdSortlijst1")->parentWidget();
    EXPECT_EQ("Sorteerlijst op:", dynamic_cast<const QGroupBox&>(*sorteerkader).title());
    for (const char* naam : {"cmdSortlijst2", "cmdSortlijst3", "chkToonAlle"})
        EXPECT_EQ(sorteerkader, Deel(naam)->parentWidget()) << naam;
    EXPECT_EQ("Kolombreedte volgens header",
              Opschrift(Vind<QAbstractButton>(*venster, "chkKolBr")));
    EXPECT_EQ("Alle groepen", Opschrift(Vind<QAbstractButton>(*venster, "chkToonAlle")));
    QStringList teksten;
    for (const QLabel* label : Deel("Frame2")->findChildren<QLabel*>())
        teksten << label->text();
    EXPECT_TRUE(teksten.contains(u"Van regel:"_s));
    EXPECT_TRUE(teksten.contains(u"T/m regel:"_s));
}

TEST_F(HoofdvensterTest, ElkeOpdrachtHeeftEenEigenLetter)
{
    KiesGroep(5); // shows every button
    std::map<QChar, QString> letters;
    for (const QAbstractButton* knop : venster->findChildren<QAbstractButton*>()) {
        const auto en = knop->text().replace(u"&&"_s, QString()).indexOf(u'&');
        if (knop->objectName().startsWith(u"cmd_"_s) ||
            !(knop->objectName().startsWith(u"cmd"_s) || knop->objectName().startsWith(u"chk"_s)))
            continue;
        ASSERT_GE(en, 0) << knop->objectName().toStdString();
        const QChar letter = knop->text().at(en + 1).toUpper();
        EXPECT_FALSE(letters.contains(letter))
            << knop->objectName().toStdString() << " en " << letters[letter].toStdString();
        letters[letter] = knop->objectName();
    }
    EXPECT_EQ(23U, letters.size());
}

/// Meant: this button has no handler.
TEST_F(HoofdvensterTest, MaakScriptsDoetNiets)
{
    const std::string spelers = suite.Spelers();
    ASSERT_TRUE(Knop("cmdMaakScripts")->isEnabled());
    Opdracht("cmdMaakScripts");
    EXPECT_EQ(spelers, suite.Spelers());
    EXPECT_TRUE(venster->isVisible());
}

// ---- Adding and changing ----------------------------------------------------------------------

TEST_F(HoofdvensterTest, EenNieuweSpelerKomtAchteraanMetDeVolgendeSleutel)
{
    const std::string oud = suite.Spelers();
    KiesGroep(2);
    Opdracht("cmdAanm", [](QDialog& ingave) {
        EXPECT_EQ("diaIngave", ingave.objectName().toStdString());
        EXPECT_EQ("Aanmaken nieuwe regel", Vind<QLabel>(ingave, "Label1")->text().toStdString());
        EXPECT_EQ("Gr02-Donderdagmiddag", Vind<QLineEdit>(ingave, "txt1_3")->text().toStdString());
        Schrijf(ingave, "txt1_4", u"  Zoë "_s);
        Schrijf(ingave, "txt1_5", u"van 't"_s);
        Schrijf(ingave, "txt1_6", u"IJssel"_s);
        Druk(ingave, "cmdOK");
    });
    std::string nieuw = oud + "149,100172,Gr02-,Zo\xEB,van 't,IJssel,,,,,,,M,,,,,\r\n";
    nieuw.replace(nieuw.find("HKEY=100171"), 11, "HKEY=100172");
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_EQ("Aantal regels: 26", Aantal());
    EXPECT_EQ(0, GekozenRegel());
}

TEST_F(HoofdvensterTest, HetAnnulerenVanEenNieuweSpelerVerbruiktGeenSleutel)
{
    const std::string oud = suite.Spelers();
    Opdracht("cmdAanm", [](QDialog& ingave) {
        Schrijf(ingave, "txt1_6", u"Toch niet"_s);
        Druk(ingave, "cmdAnnuleren");
    });
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ(100171, administratie.spelers.HKEY);
    EXPECT_EQ("Aantal regels: 50", Aantal());
}

TEST_F(HoofdvensterTest, DeNieuweSpelerIsInBeeld)
{
    VoegToe(u"Laatste"_s);
    EXPECT_EQ(Balk("VScroll1")->maximum(), Balk("VScroll1")->value());
    EXPECT_GT(Balk("VScroll1")->maximum(), 0);
}

TEST_F(HoofdvensterTest, HetWijzigenVerandertAlleenDieRegel)
{
    std::string nieuw = suite.Spelers();
    KiesGroep(2);
    KiesRegel(3);
    const std::string sleutel = GekozenSleutel();
    Opdracht("cmdWijzig", [](QDialog& ingave) {
        Schrijf(ingave, "txt1_11", u" Nieuw-Oord "_s);
        Druk(ingave, "cmdOK");
    });
    // A changed player is stored as it was handed back, outer spaces included.
    const auto begin = nieuw.find("," + sleutel + ",");
    auto plaats = begin;
    for (int komma = 0; komma < 9; ++komma)
        plaats = nieuw.find(',', plaats + 1);
    nieuw.replace(plaats + 1, nieuw.find(',', plaats + 1) - plaats - 1, " Nieuw-Oord ");
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_EQ(0, GekozenRegel());
    EXPECT_EQ(100171, administratie.spelers.HKEY);
}

TEST_F(HoofdvensterTest, OpenenEnAccepterenLaatHetBestandZoalsHetIs)
{
    const std::string oud = suite.Spelers();
    for (const int groep : {1, 5}) {
        KiesGroep(groep);
        for (const int regel : {1, 4, 9}) {
            KiesRegel(regel);
            wachter.Bedien([](QDialog& ingave) { Druk(ingave, "cmdOK"); });
            Toets(Qt::Key_Return);
            wachter.Klaar();
        }
    }
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(HoofdvensterTest, ZonderGekozenRegelIsErNietsTeWijzigenOfTeVerwijderen)
{
    schijf.FaalNiet();
    for (const std::function<void()>& weg : std::initializer_list<std::function<void()>>{
             [this] { Klik(Knop("cmdWijzig")); }, [this] { Klik(Knop("cmdVerwijder")); },
             [this] { Toets(Qt::Key_F2); }, [this] { Toets(Qt::Key_Delete); },
             [this] {
                 QTest::mouseDClick(Vlak(), Qt::LeftButton, {}, {40, static_cast<int>(Y(4))});
             }}) {
        wachter.Waarschuwing(u"Er is geen regel geselecteerd!"_s);
        weg();
        wachter.Klaar();
    }
    EXPECT_EQ(0, schijf.Aantal());
}

TEST_F(HoofdvensterTest, ToetsenEnDubbelklikOpenenDeIngave)
{
    KiesGroep(2);
    const std::vector<std::function<void()>> wegen{
        [this] { Toets(Qt::Key_Return); }, [this] { Toets(Qt::Key_Enter); },
        [this] { Toets(Qt::Key_F2); }, [this] { DubbelklikRegel(3); },
        [this] { Opdracht("cmdWijzig"); }};
    for (const auto& weg : wegen) {
        KiesRegel(3);
        wachter.Bedien([](QDialog& ingave) {
            EXPECT_EQ("Regelnummer 44", Vind<QLabel>(ingave, "Label1")->text().toStdString());
            Druk(ingave, "cmdAnnuleren");
        });
        weg();
        wachter.Klaar();
    }
}

TEST_F(HoofdvensterTest, CtrlNVoegtToeVanafElkDeel)
{
    for (const char* deel : {"P1", "cmbGr", "cmdEinde"}) {
        venster->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
        Deel(deel)->setFocus();
        wachter.Bedien([](QDialog& ingave) {
            EXPECT_EQ("Aanmaken nieuwe regel",
                      Vind<QLabel>(ingave, "Label1")->text().toStdString());
            QTest::keyClick(&ingave, Qt::Key_Escape);
        });
        QTest::keyClick(Deel(deel), Qt::Key_N, Qt::ControlModifier);
        wachter.Klaar();
    }
}

// ---- The companion program --------------------------------------------------------------------

TEST_F(HoofdvensterTest, ZonderGatenlijstEenBericht)
{
    wachter.Waarschuwing(u"Het programma 'Gatenlijst.exe' is niet te vinden."_s);
    Opdracht("cmdToonGatenlijst");
}

#ifndef _WIN32
TEST_F(HoofdvensterTest, DeGatenlijstWordtGestart)
{
    suite.Zet("Gatenlijst.exe", "#!/bin/sh\npwd > gestart.tmp && mv gestart.tmp gestart.txt\n");
    ASSERT_EQ(0, ::chmod((suite.Weg() / "Gatenlijst.exe").c_str(), 0755));
    Opdracht("cmdToonGatenlijst");
    EXPECT_TRUE(QTest::qWaitFor([this] { return suite.Bestaat("gestart.txt"); }));
    EXPECT_EQ(std::filesystem::canonical(suite.Weg()).string() + "\n", suite.Inhoud("gestart.txt"));
}

TEST_F(HoofdvensterTest, EenGatenlijstDieNietStartGeeftEenBericht)
{
    suite.Zet("Gatenlijst.exe", "dit is geen programma");
    wachter.Begin(u"Het programma 'Gatenlijst.exe' kon niet worden gestart. Er is niets veranderd. "
                  "Kijk of u dat programma mag starten.\n\nBestand: "_s +
                  QString::fromStdString((suite.Weg() / "Gatenlijst.exe").string()));
    Opdracht("cmdToonGatenlijst");
}
#endif

// ---- Group names ------------------------------------------------------------------------------

TEST_F(HoofdvensterTest, GroepsnamenKomenInHetBestandEnDeEersteGroepWordtGetoond)
{
    std::string nieuw = suite.Groepen();
    nieuw.replace(nieuw.find("Gr11-"), 5, "Gr11-Na de zomer");
    KiesGroep(6);
    Opdracht("cmdMaakGrNamen", [](QDialog& namen) {
        EXPECT_EQ("diaGrNamen", namen.objectName().toStdString());
        Schrijf(namen, "txt1_11", u"  Na de zomer "_s);
        Druk(namen, "cmdOK");
    });
    EXPECT_EQ(nieuw, suite.Groepen());
    EXPECT_EQ(1, GetoondeGroep());
    EXPECT_EQ("Aantal regels: 50", Aantal());
    EXPECT_EQ("Gr11-Na de zomer", Keus("cmbGr")->itemText(10).toStdString());
    EXPECT_EQ(50, Keus("cmbGr")->count());
    EXPECT_EQ("OPTIND=4\r\nLOSTGR=0\r\n", suite.Instellingen());
}

TEST_F(HoofdvensterTest, HetAnnulerenVanDeGroepsnamenLaatAllesStaan)
{
    const std::string oud = suite.Groepen();
    KiesGroep(6);
    Opdracht("cmdMaakGrNamen", [](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Toch niet"_s);
        Druk(namen, "cmdAnnuleren");
    });
    EXPECT_EQ(oud, suite.Groepen());
    EXPECT_EQ(6, GetoondeGroep());
    EXPECT_EQ("Gr11-", Keus("cmbGr")->itemText(10).toStdString());
    EXPECT_EQ("", administratie.groepen.Naam(11));
}

// ---- The other windows -------------------------------------------------------------------------

/// With Enter on its button. Closed without an answer it changes, saves and tells nothing.
TEST_F(HoofdvensterTest, ElkeOpdrachtOpentZijnVenster)
{
    KiesGroep(5); // shows every button
    schijf.FaalNiet();
    for (const auto& [knop, naam] :
         {std::pair("cmdVerplaats", "diaVerplaats"), std::pair("cmdKopieer", "diaKopieer"),
          std::pair("cmdVerwGroep", "frmVerwSubgroep"), std::pair("cmdSortlijst1", "diaSortlijst"),
          std::pair("cmdKoppel", "frmKoppelNBBnr"), std::pair("cmdMaakGrNamen", "diaGrNamen"),
          std::pair("cmdPrint", "frmPrintIni"), std::pair("cmdToelichting", "frmToelichting")}) {
        for (const bool sluitvak : {false, true}) {
            std::string geopend;
            wachter.Bedien([&](QDialog& dialoog) {
                geopend = dialoog.objectName().toStdString();
                if (sluitvak)
                    dialoog.close();
                else
                    QTest::keyClick(&dialoog, Qt::Key_Escape);
            });
            Knop(knop)->setFocus();
            QTest::keyClick(Knop(knop), Qt::Key_Return);
            wachter.Klaar();
            EXPECT_EQ(naam, geopend);
        }
    }
    EXPECT_EQ(0, schijf.Aantal());
    EXPECT_FALSE(venster->isWindowModified());
}

TEST_F(HoofdvensterTest, DeGetoondeGroepPrinten)
{
    const std::string spelers = suite.Spelers();
    const auto bestand = suite.Weg() / "lijst.pdf";
    const Tekst vandaag = Tijdtekst("dd-MM-yyyy");
    wachter.Bedien([](QDialog& keuze) {
        auto* kolommen = Vind<Regellijst>(keuze, "lstKeus");
        EXPECT_EQ("(kolom 18)", kolommen->Regel(14));
        Druk(keuze, "cmdSelNone");
        kolommen->Kies({2, 3});
        auto* subgroepen = Vind<Regellijst>(keuze, "lstNBBgr");
        for (const int plaats : {2, 0})
            subgroepen->Kies({plaats});
        Druk(keuze, "cmdOK");
        Druk(keuze, "cmdAnnuleren");
    });
    wachter.Bedien([](QDialog& blad) {
        Druk(blad, "cmdPrinten");
        Druk(blad, "cmdAnnuleren");
    });
    VerwachtPdf(wachter, bestand, [](QDialog& dialoog) {
        Vind<QRadioButton>(dialoog, "printAll")->setChecked(true);
    });
    Opdracht("cmdPrint");
    const auto bladen = LeesPdf(bestand);
    ASSERT_FALSE(bladen.empty());
    const std::string tekst = bladen[0].Tekst();
    for (const std::string& deel :
         {"Spelerinformatie Groep: " + Keus("cmbGr")->currentText().toStdString(),
          std::string("Subgroep(en): A-LIJN + C-LIJN RegNr Achternaam Telef"),
          std::string("Wolthuizen"), std::string("Eikelenboom"), std::string("Ravendeck.exe")})
        EXPECT_NE(std::string::npos, tekst.find(deel)) << deel;
    EXPECT_EQ(std::string::npos, tekst.find("Stoffelsen")); // of B-LIJN
    EXPECT_TRUE(tekst.find(vandaag) != std::string::npos ||
                tekst.find(Tijdtekst("dd-MM-yyyy")) != std::string::npos);
    EXPECT_EQ(spelers, suite.Spelers());
}

TEST_F(HoofdvensterTest, SessiespelersToevoegenSlaatOpEnToontZe)
{
    KiesGroep(8);
    for (const bool annuleer : {true, false}) {
        EXPECT_EQ("Aantal regels: 10", Aantal());
        EXPECT_EQ(100171, administratie.spelers.HKEY);
        schijf.FaalNiet();
        wachter.Bedien([=](QDialog& dialoog) {
            EXPECT_EQ("diaToevoegen", dialoog.objectName().toStdString());
            QApplication::processEvents();
            Druk(dialoog, "cmdStart");
            Druk(dialoog, annuleer ? "cmdAnnuleren" : "OKButton");
        });
        wachter.Informatie(u"De spelers zijn toegevoegd."_s);
        if (annuleer)
            wachter.Informatie(u"Er worden geen spelers toegevoegd."_s);
        const std::string oud = suite.Spelers();
        Opdracht("cmdSpToevoegen");
        EXPECT_EQ(annuleer, oud == suite.Spelers());
        EXPECT_NE(annuleer, suite.Bestaat("Zittingen/Zomerdrive 2024_Rev/Koppelverslag.txt"));
    }
    EXPECT_EQ("Aantal regels: 19", Aantal());
    const auto regels = RegelsVan(suite.Spelers());
    EXPECT_EQ("HKEY=100180", regels.front());
    EXPECT_EQ("157,100180,Gr08-,Edsel,,Marchena\xF1"
              "ez,,,,,,,,,,,,",
              regels.back());
}

// ---- The end ----------------------------------------------------------------------------------

TEST_F(HoofdvensterTest, HetEindeSchrijftNietsEnZetDeWerkmapOpDeSuite)
{
    schijf.FaalNiet();
    Opdracht("cmdEinde");
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(0, schijf.Aantal());
    EXPECT_EQ(std::filesystem::canonical(suite.Weg()), std::filesystem::current_path());
}

// ---- The explanation --------------------------------------------------------------------------

TEST_F(HoofdvensterTest, F1OpentDeToelichting)
{
    wachter.Bedien([](QDialog& dialoog) {
        EXPECT_EQ("frmToelichting", dialoog.objectName().toStdString());
        EXPECT_TRUE(dialoog.isModal());
        Druk(dialoog, "cmdEinde");
    });
    Toets(Qt::Key_F1);
    wachter.Klaar();
    EXPECT_TRUE(venster->isVisible());
}
