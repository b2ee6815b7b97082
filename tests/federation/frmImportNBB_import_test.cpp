// The import run from the main window, from every source.
#include "federation/importproef.h"

#include <QPlainTextEdit>

#include "hulp/accessgegevens.h"
#include "hulp/voortgangstopper.h"
#include "platform/bronnen/zip.h"

using namespace plexoran;

namespace {

const QString Annuleren = u"Annuleren"_s;

const std::string Een = "771;V;Eva;;;Een;;;;;;\r\n";

/// So many members that reading and merging them tells how far it is.
constexpr int LangeExportLeden = 5000;

std::string LangeExport()
{
    std::string export_;
    for (int i = 0; i < LangeExportLeden; ++i)
        export_ += std::to_string(200'000 + i) + ";V;Eva;;;Een;;;;;;\r\n";
    return export_;
}

/// Where the user clicks, through the window system.
void KlikErachter(QDialog& dia, const char* knop)
{
    const auto* deel = Vind<QPushButton>(dia, knop);
    QTest::mouseClick(dia.windowHandle(), Qt::LeftButton, {},
                      deel->mapTo(&dia, deel->rect().center()));
}

class ImporterenTest : public Importproef {
  protected:
    /// Chooses a source and these lines of the list, and starts the run. The window closes, or
    /// stays when something went wrong.
    static Stappen Voer(const char* optie, const std::vector<int>& plaatsen, bool blijft = false)
    {
        return [optie, plaatsen, blijft](QDialog& dia) {
            KiesOptie(dia, optie);
            Lijst(dia)->clearSelection();
            for (const int plaats : plaatsen)
                Lijst(dia)->Kies({plaats});
            Druk(dia, "cmdImporteer");
            EXPECT_EQ(blijft, dia.isVisible());
            EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
        };
    }
    /// The same with a member file of these lines alone.
    void VoerClub(const std::string& leden, bool blijft = false)
    {
        ZetExport("Club.csv", leden);
        Verwacht(Voer("Option2", {0}, blijft));
    }
    /// A text that scrolls in a window of its own.
    void VerwachtLang(const QString& tekst)
    {
        wachter.Bedien([tekst](QDialog& bericht) {
            EXPECT_EQ("frmBericht", bericht.objectName());
            EXPECT_EQ(tekst, bericht.findChild<QPlainTextEdit*>()->toPlainText());
            Druk(bericht, "cmdOK");
        });
    }

    void VerwachtGestopt()
    {
        wachter.Informatie(
            u"Het importeren is gestopt. Uit 'B.csv' is niets geïmporteerd; wat eerder is "
            "geïmporteerd, blijft. Importeer 'B.csv' opnieuw als u die leden nog nodig hebt."_s);
    }
    void VerwachtLos(const QString& naam, const QString& rest)
    {
        wachter.Informatie(
            u"Niet alles uit '%1' is zo overgenomen als het er staat; de rest wel. "
            "Verander het zo nodig in het rekenprogramma en importeer opnieuw.\r\n\r\n"_s.arg(
                naam) +
            rest);
    }
};

} // namespace

TEST_F(ImporterenTest, UitCsv)
{
    KopieerExports();
    Verwacht(Voer("Option2", {0, 1}));
    VerwachtImport(u"Dinsdag"_s, 6, 4, 2);
    VerwachtVraag(u"Maandag"_s, 8);
    wachter.Waarschuwing(
        u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\nGonnie,,Gastvrouw,Brink 2,0411 "
        "JK,Wielerdam,06-00000607,,Nederland,V,\r\n"_s);
    VerwachtAantallen(5, 2);
    VerwachtLos(u"Maandag 20260901.csv"_s,
                u"1 regel overgeslagen, omdat er een '=' in staat, zoals in een kopregel:\r\n"
                "LEDENBESTAND=Maandag;VERSIE=2.8\r\n"_s);
    Importeer();
    EXPECT_EQ("HKEY=100175", Sleutelregel());
    EXPECT_EQ("Gr05-,Rob,van,Beukering,010-0000298,r.vanbeukering@thuispost.example,Graanstraat "
              "23,0437 BC,Oud-Merwolde,Nederland,M,,,,MAANDAG,91892044",
              Speler("100071"));
    EXPECT_EQ("Gr05-,Dirk Jan,,Overtoomse,010-0000604,,Achterom 31,0437 ML,Oud-Merwolde,Nederland,"
              "M,,,,MAANDAG,93380926",
              Speler("100175"));
    EXPECT_EQ(40, Label("Label3")->text().section(u' ', -1).toInt());
    EXPECT_FALSE(venster->isWindowModified());
    EXPECT_TRUE(suite.Namen("Programma").empty());

    // The second time everybody is refreshed.
    Verwacht(Voer("Option2", {0}));
    VerwachtImport(u"Dinsdag"_s, 6, 6, 0);
    Importeer();
}

TEST_F(ImporterenTest, UitXmlVanNbbr3)
{
    KopieerExports();
    Verwacht(Voer("Option3", {0}));
    VerwachtVraag(u"Donderdag"_s, 6);
    wachter.Begin(u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\n"_s);
    VerwachtAantallen(4, 1);
    Importeer();
    EXPECT_EQ("HKEY=100172", Sleutelregel());
    EXPECT_NE(std::string::npos, Speler("100172").find(",DONDERDAG,"));
    EXPECT_TRUE(suite.Namen("Programma").empty()); // the intermediate file is gone
}

TEST_F(ImporterenTest, UitXmlVanNbbr4MetVervangenLetters)
{
    KopieerExports();
    Verwacht(Voer("Option4", {0, 1}));
    VerwachtImport(u"Cursus"_s, 3, 1, 2);
    VerwachtVraag(u"Zomer"_s, 7);
    wachter.Begin(u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\n"_s);
    VerwachtAantallen(3, 3);
    VerwachtLos(
        u"Zomer 20260901.xml"_s,
        u"Aantal tekens dat het spelerbestand niet kent en dat is vervangen door een teken dat "
        "erop lijkt, of is weggelaten: 2\r\n"_s);
    Importeer();
    EXPECT_EQ("HKEY=100176", Sleutelregel());
    EXPECT_NE(std::string::npos, suite.Spelers().find("Gyongyi,,Dvor\xE1kova"));
    EXPECT_TRUE(suite.Namen("Programma").empty());
}

TEST_F(ImporterenTest, UitDeDatabase)
{
    StartMetDatabase();
    Verwacht(Voer("Option1", {1}));
    VerwachtVraag(u"Cursus"_s, 6);
    wachter.Waarschuwing(
        u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\n,,Partner van Jansen,,,,,,,,\r\n"_s);
    VerwachtAantallen(0, 5);
    VerwachtLos(
        u"Cursus 012"_s,
        u"Aantal tekens dat het spelerbestand niet kent en dat is vervangen door een teken dat "
        "erop lijkt, of is weggelaten: 1\r\n"_s);
    // One of them has a comma in a name, which shifts the fields: no surname is left.
    wachter.Verwacht(
        {.tekst =
             u"1 speler zonder achternaam is niet ingelezen (regel 150 van het spelerbestand)."_s,
         .alleenBegin = true});
    Importeer();
    EXPECT_EQ("HKEY=100176", Sleutelregel());
    EXPECT_NE(std::string::npos, Speler("100176").find(",CURSUS,"));
    // Of the database the intermediate file stays.
    EXPECT_EQ((std::vector<std::string>{"Cursus Temp-NBBXMLtoCSV.csv"}), suite.Namen("Programma"));
}

/// Only three digits of its number are read back, so the members of another file would come in
/// under this name.
TEST_F(ImporterenTest, EenNummerVanVierCijfersWordtVoorDeVraagGemeld)
{
    suite.Zet("Rekenprogramma/data/Members.mdb", DatabaseMetJeugdnummer(1007));
    StartMetDatabase();
    Verwacht(Voer("Option1", {2}));
    wachter.Waarschuwing(
        u"Van het nummer achter de naam 'Jeugd 1007' tellen alleen de laatste drie tekens: dit "
        "zijn de leden van het ledenbestand met nummer 7. Er is nog niets geïmporteerd. Kies bij "
        "de volgende vraag Annuleren als u een ander ledenbestand bedoelt."_s);
    VerwachtVraag(u"Jeugd"_s, 13, Annuleren);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(ImporterenTest, AnnulerenSlaatAlleenDatBestandOver)
{
    KopieerExports();
    Verwacht(Voer("Option2", {0, 1}));
    VerwachtVraag(u"Dinsdag"_s, 6, Berichtwachter::Escape);
    VerwachtVraag(u"Maandag"_s, 8, Annuleren);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(ImporterenTest, ZonderWijzigingWordtErNietGeschreven)
{
    ZetExport("Leeg.csv", "");
    schijf.FaalVanaf(1);
    Verwacht(Voer("Option2", {0}));
    VerwachtImport(u"Leeg"_s, 0, 0, 0);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(ImporterenTest, ZonderVinkjesWordenGegevensLeeggemaakt)
{
    ZetExport("Club.csv",
              "92076715;V;Agnes;A.;;Appelscha;Straat 1;0411 MK;Ede;06;a@b;Nederland\r\n");
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        for (const char* naam : {"chkNAW", "chkTel", "chkEmail", "chkMV"})
            Klik(Vind<QCheckBox>(dia, naam), {8, Vind<QCheckBox>(dia, naam)->height() / 2});
        Lijst(dia)->Kies({0});
        Druk(dia, "cmdImporteer");
    });
    VerwachtImport(u"Club"_s, 1, 1, 0);
    Importeer();
    EXPECT_EQ("Gr05-,Agnes,,Appelscha,,,,,,,,,,,CLUB,92076715", Speler("100070"));
}

TEST_F(ImporterenTest, WieStilWordtOvergeslagenWordtGenoemd)
{
    VoerClub("771;V;Eva;;;Een;;;;;;\r\n"
             "771;V;Eva;;;Twee;;;;;;\r\n"
             "092076715;V;Agnes;;;Appelscha;;;;;;\r\n");
    VerwachtImport(u"Club"_s, 3, 0, 1);
    VerwachtLos(
        u"Club.csv"_s,
        u"2 leden overgeslagen, omdat het NBB-nummer al voorkomt: eerder in dit bestand, of "
        "anders geschreven in groep 'Gr05-':\r\nEva,,Twee,,,,,,,V,771\r\n"
        "Agnes,,Appelscha,,,,,,,V,092076715\r\n"_s);
    Importeer();
    EXPECT_EQ("HKEY=100172", Sleutelregel());
}

TEST_F(ImporterenTest, EenRegelMetTeWeinigKolommen)
{
    VoerClub("771;V;Eva;;;Een;;;;;;\r\n772;V;Eva;;;Kort\r\n773;V;Eva;;;Na;;;;;;\r\n");
    wachter.Waarschuwing(
        u"Regel 2 van 'Club.csv' heeft minder kolommen dan nodig is voor de gegevens die u hebt "
        "aangevinkt. Er is nog niets geïmporteerd; dat kan alleen met wie ervoor staat (1 "
        "speler). Kies bij de volgende vraag Annuleren als u eerst het bestand wilt herstellen."_s);
    VerwachtImport(u"Club"_s, 1, 0, 1);
    Importeer();
}

TEST_F(ImporterenTest, EenLijstZonderEindHoudtOpEnZegtDat)
{
    std::string inhoud;
    for (int i = 0; i < 100'002; ++i)
        inhoud += "a=b\r\n";
    VoerClub(inhoud);
    VerwachtImport(u"Club"_s, 0, 0, 0);
    wachter.Bedien([](QDialog& bericht) {
        EXPECT_TRUE(Vind<QPlainTextEdit>(bericht, "txtBericht")
                        ->toPlainText()
                        .endsWith(u"\na=b\n... en nog 2\n"_s));
        Druk(bericht, "cmdOK");
    });
    Importeer();
}

/// A monstrous line is named, but not shown from end to end.
TEST_F(ImporterenTest, EenReusachtigeRegelHoudtHetProgrammaNietOp)
{
    const std::string lang(std::size_t{4} << 20U, 'x');
    VoerClub("a=" + lang + "\r\n;;Eva;;;" + lang + ";;;;;;\r\n");
    VerwachtVraag(u"Club"_s, 1);
    const QString kort(498, u'x');
    VerwachtLang(u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\nEva,,"_s + kort.left(495) +
                 u" ...\n"_s);
    VerwachtAantallen(0, 0);
    VerwachtLang(u"Niet alles uit 'Club.csv' is zo overgenomen als het er staat; de rest wel. "
                 "Verander het zo nodig in het rekenprogramma en importeer opnieuw.\n\n1 regel "
                 "overgeslagen, omdat er een '=' in staat, zoals in een kopregel:\na="_s +
                 kort + u" ...\n"_s);
    QElapsedTimer klok;
    klok.start();
    Importeer();
    EXPECT_LT(klok.elapsed(), 15000);
}

TEST_F(ImporterenTest, EenCsvInUtf8WordtVoorDeVraagGemeld)
{
    VoerClub("\xEF\xBB\xBF"
             "771;V;Zo\xC3\xAB;;;Een;;;;;;\r\n");
    wachter.Waarschuwing(
        u"'Club.csv' is opgeslagen in UTF-8: letters met een accent komen verkeerd over, en soms "
        "ook het eerste NBB-nummer. Er is nog niets geïmporteerd. Kies bij de volgende vraag "
        "liever Annuleren, en sla het bestand op als ANSI (Windows-1252) of exporteer een "
        "XML-bestand."_s);
    VerwachtVraag(u"Club"_s, 1, Annuleren);
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}

/// Few lines can still be too much for a box, which breaks them at blanks and nowhere else.
TEST_F(ImporterenTest, LangeRegelsZonderNummers)
{
    for (const std::string& deel : {std::string("nn "), std::string("nnn")}) {
        std::string naam;
        while (naam.size() < 400)
            naam += deel;
        std::string inhoud;
        for (int i = 0; i < 20; ++i)
            inhoud += ";V;Eva;;;" + naam + ";;;;;;\r\n";
        VoerClub(inhoud);
        VerwachtVraag(u"Club"_s, 20);
        wachter.Bedien([](QDialog& bericht) {
            EXPECT_EQ("frmBericht", bericht.objectName());
            Druk(bericht, "cmdOK");
        });
        VerwachtAantallen(0, 0);
        Importeer();
    }
}

/// Nothing moves and the cursor is not busy while the user has to answer.
TEST_F(ImporterenTest, TijdensDeVraagWachtHetProgramma)
{
    class Kijker : public QObject {
      public:
        int keren = 0;
        bool eventFilter(QObject* object, QEvent* gebeurtenis) override
        {
            const auto* vraag = qobject_cast<QMessageBox*>(object);
            if (vraag != nullptr && gebeurtenis->type() == QEvent::Show) {
                ++keren;
                EXPECT_EQ(Qt::ArrowCursor, QGuiApplication::overrideCursor()->shape());
                for (const QWidget* venster : QApplication::topLevelWidgets())
                    EXPECT_FALSE(venster->isVisible() && venster->inherits("QProgressDialog"));
            }
            return false;
        }
    } kijker;
    qApp->installEventFilter(&kijker);
    ZetExport("Club.csv", LangeExport());
    const Voortgangstopper teller(0);
    Verwacht(Voer("Option2", {0}));
    VerwachtVraag(u"Club"_s, LangeExportLeden, Annuleren);
    Importeer();
    EXPECT_GT(teller.Stappen(), 0);
    EXPECT_EQ(1, kijker.keren);
    EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
}

/// What was merged before the file that cannot be read stays, and is saved.
TEST_F(ImporterenTest, EenLeesfoutBreektAfEnHoudtWatErWas)
{
    ZetExport("A.xml", "<ReportableMembersList><Members><ReportableMember><a>Bos</a><b/><c/>"
                       "<d>771</d><e/><f/><g>MAN</g></ReportableMember></Members>"
                       "</ReportableMembersList>");
    ZetExport("B kapot.xml", "<ReportableMembersList><Members><ReportableMember><a>");
    ZetExport("C.xml", suite.Inhoud("Bestanden/NBB4-Leden/A.xml"));
    Verwacht(Voer("Option3", {0, 1, 2}, true));
    VerwachtImport(u"A"_s, 1, 0, 1);
    wachter.Begin(u"Fout bij het lezen van 'B kapot.xml' NBB3-XML-bestand\r\n"_s);
    Importeer();
    EXPECT_EQ("HKEY=100172", Sleutelregel());
    EXPECT_EQ("Gr05-,,,Bos,,,,,,,M,,,,A,771", Speler("100172"));
    EXPECT_TRUE(suite.Namen("Programma").empty());
}

/// The error of one run does not spoil the next in the same window.
TEST_F(ImporterenTest, NaEenLeesfoutKanHetMetEenAnderBestandOpnieuw)
{
    ZetExport("A.csv", Een);
    ZetExport("B.csv", "772;V;Eva;;;Twee;;;;;;\r\n");
    Verwacht([this](QDialog& dia) {
        KiesOptie(dia, "Option2");
        suite.Verwijder("Bestanden/NBB4-Leden/A.csv"); // gone while it is listed
        Lijst(dia)->Kies({0});
        Druk(dia, "cmdImporteer");
        Lijst(dia)->clearSelection();
        Lijst(dia)->Kies({1});
        Druk(dia, "cmdImporteer");
    });
    wachter.Begin(u"Fout bij het lezen van 'A.csv' CSV-bestand\r\n"_s);
    VerwachtImport(u"B"_s, 1, 0, 1);
    Importeer();
    EXPECT_EQ("Gr05-,Eva,,Twee,,,,,,,V,,,,B,772", Speler("100172"));
}

TEST_F(ImporterenTest, ZonderSleutelsGebeurtErNiets)
{
    administratie.spelers.HKEY = 2147483647;
    VoerClub(Een, true);
    VerwachtVraag(u"Club"_s, 1);
    wachter.SleutelsOp(u"Uit 'Club.csv' is niets geïmporteerd"_s,
                       suite.Toonpad("Spelers/RVDspelers.txt"));
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ(148, administratie.spelers.tabel.Rijen());
}

TEST_F(ImporterenTest, ErKomtEerstEenReservekopieVanHetOudeRegister)
{
    VoerClub(Een);
    VerwachtImport(u"Club"_s, 1, 0, 1);
    Importeer();
    EXPECT_NE(oud, suite.Spelers());
    const auto namen = suite.Namen("Spelers/Reservekopie");
    ASSERT_EQ(1U, namen.size());
    EXPECT_TRUE(namen[0].ends_with(" voor import.zip")) << namen[0];
    const auto delen = Uitgepakt(suite.Inhoud("Spelers/Reservekopie/" + namen[0])).value();
    EXPECT_EQ((Zipdeel{"RVDspelers.txt", oud}), delen.at(0));
}

TEST_F(ImporterenTest, MislukteOpslagHoudtDeLedenInHetProgramma)
{
    schijf.FaalVanaf(1);
    VoerClub(Een);
    VerwachtImport(u"Club"_s, 1, 0, 1);
    wachter.Verwacht({.tekst = u"De spelers konden niet worden opgeslagen."_s,
                      .antwoord = u"Doorgaan"_s,
                      .icoon = QMessageBox::Critical,
                      .alleenBegin = true});
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_TRUE(venster->isWindowModified());
    EXPECT_EQ(149, administratie.spelers.tabel.Rijen());
    schijf.FaalNiet();
    wachter.Verwacht({.tekst = u"De laatste wijzigingen staan nog niet in het spelerbestand."_s,
                      .antwoord = u"Opslaan"_s,
                      .icoon = QMessageBox::Warning,
                      .alleenBegin = true});
    EXPECT_TRUE(venster->close());
    wachter.Klaar();
    EXPECT_EQ("HKEY=100172", Sleutelregel());
}

/// While a run lasts nothing can be pressed twice and the window stays; stopping leaves out the
/// file that is being read and keeps those before it.
TEST_F(ImporterenTest, StoppenTijdensHetLezen)
{
    ZetExport("A.csv", Een);
    ZetExport("B.csv", LangeExport());
    ZetExport("C.csv", "772;V;Eva;;;Twee;;;;;;\r\n");
    const Voortgangstopper meteenInBeeld(0);
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        Lijst(dia)->selectAll();
        int keren = 0;
        QTimer kijker;
        QObject::connect(&kijker, &QTimer::timeout, &dia, [&] {
            auto* voortgang = qobject_cast<frmVoortgang*>(QApplication::activeModalWidget());
            if (voortgang == nullptr || ++keren > 1)
                return;
            const auto* tekst = Vind<QLabel>(*voortgang, "lblTekst");
            EXPECT_EQ("'B.csv' wordt gelezen ...", tekst->text());
            for (const char* knop : {"cmdImporteer", "cmdAnnuleren"})
                KlikErachter(dia, knop);
            ASSERT_NE(nullptr, QGuiApplication::overrideCursor());
            EXPECT_EQ(Qt::WaitCursor, QGuiApplication::overrideCursor()->shape());
            EXPECT_FALSE(dia.close());
            EXPECT_TRUE(dia.isVisible());
            Klik(Vind<QPushButton>(*voortgang, "cmdStop"));
            EXPECT_EQ("Het importeren wordt gestopt ...", tekst->text());
        });
        kijker.start(0);
        Druk(dia, "cmdImporteer");
        EXPECT_GE(keren, 1);
        EXPECT_TRUE(dia.isVisible());
        EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
    });
    VerwachtImport(u"A"_s, 1, 0, 1);
    VerwachtGestopt();
    Importeer();
    EXPECT_EQ("Gr05-,Eva,,Een,,,,,,,V,,,,A,771", Speler("100172"));
    EXPECT_EQ("HKEY=100172", Sleutelregel());
}

TEST_F(ImporterenTest, StoppenTijdensHetSamenvoegen)
{
    ZetExport("B.csv", LangeExport());
    ZetExport("C.csv", "772;V;Eva;;;Twee;;;;;;\r\n");
    const Voortgangstopper stopper(2); // the first step is of reading
    Verwacht([](QDialog& dia) {
        KiesOptie(dia, "Option2");
        Lijst(dia)->selectAll();
        Druk(dia, "cmdImporteer");
        EXPECT_TRUE(dia.isVisible());
    });
    VerwachtVraag(u"B"_s, LangeExportLeden);
    VerwachtGestopt();
    Importeer();
    EXPECT_EQ(oud, suite.Spelers());
}
