// The pairs window on a small register and a disk in memory.
#include "pairs/frmParenOnderhoud.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<std::string>;

const Pad dinsdag = "C:\\club\\Spelers\\Parenmap\\Gr03-Dinsdag.txt";

class frmParenOnderhoudTest : public Dialoogproef<frmParenOnderhoud, Geheugenstand> {
  protected:
    frmParenOnderhoudTest()
    {
        geheugen.ZetMap("C:\\club");
        geheugen.ZetMap("C:\\club\\Spelers");
        administratie.mappen.RVDMAP = "C:\\club";
        administratie.mappen.SPEMAP = "C:\\club\\Spelers";
        administratie.spelers.tabel =
            MaakTabel({{"100001", "Gr03-", "An", "", "Bos", "Dinsdag", ""},
                       {"100002", "Gr03-", "Bea", "de", "Cock", "Dinsdag", ""},
                       {"100003", "Gr02-", "Cor", "van der", "Dam", "Woensdag", ""},
                       {"100004", "Gr03-", "Dirk", "", "Eik", "DINSDAG", ""},
                       {"100005", "Gr03-", "\xC9ls", "", "\xC4rp", "Dinsdag", ""},
                       {"100006", "Gr03-", "Fred", "", "Gans", "", ""},
                       {"100007", "Gr03-", "Gijs", "", "Haan", "A/B", ""},
                       {"100008", "Gr03-", "Han", "", "Iep", "A/B", ""}});
    }

    void Open(Tekstblik groep = "Gr03-Clubleden") { Toon(administratie, groep); }
    void SetUp() override { ASSERT_NO_FATAL_FAILURE(Open()); }

    void VerwachtNietVast(const Pad& bestand)
    {
        wachter.Begin(
            u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf. Het "
            "systeem kon alleen niet bevestigen dat dit na een stroomstoring nog zo is. Kijk "
            "of de schijf in orde is en sla later nog eens op.\n\nBestand: "_s +
            QString::fromStdString(geheugen.Toonpad(bestand)));
    }

    [[nodiscard]] Regellijst* Lijst(const char* naam) const { return Deel<Regellijst>(naam); }
    /// As a user who picks it in the drop-down.
    void Kies(const char* keuze) const
    {
        auto* cmb = Deel<QComboBox>("cmbNBBledengr");
        const int plaats = cmb->findText(QString::fromUtf8(keuze));
        ASSERT_GE(plaats, 0) << keuze;
        cmb->setCurrentIndex(plaats);
        emit cmb->activated(plaats);
    }
    /// The group-subgroup of most tests, with these pairs in its file.
    void KiesDinsdag(const Tekst& paren)
    {
        geheugen.Zet(dinsdag, paren);
        Kies("Gr03-Dinsdag");
    }
    void DubbelklikRegel(const char* lijst, int regel) const
    {
        Regellijst* l = Lijst(lijst);
        KlikRegel(lijst, regel);
        QTest::mouseDClick(l->viewport(), Qt::LeftButton, {},
                           l->visualRect(l->currentIndex()).center());
        QApplication::processEvents();
    }
    void MaakPaar(int links, int rechts) const
    {
        KlikRegel("L1", links);
        KlikRegel("L2", rechts);
        Klik(Knop("cmdOKE"));
    }
    void Ontbind(int paar) const
    {
        KlikRegel("L3", paar);
        Klik(Knop("cmdOntbindt"));
    }
    /// Whether a button can be pressed; only then it has the colour that is its own.
    [[nodiscard]] bool Kan(const char* knop) const
    {
        const QColor gewoon = QApplication::palette().color(QPalette::Button);
        const bool kan = Knop(knop)->isEnabled();
        EXPECT_EQ(kan, Knop(knop)->palette().color(QPalette::Button) != gewoon) << knop;
        return kan;
    }
    [[nodiscard]] int Gekozen(const char* lijst) const { return Lijst(lijst)->Gekozen(); }
};

const Teksten vier{"100005 Ärp Éls", "100001 Bos An", "100002 Cock Bea de", "100004 Eik Dirk"};

} // namespace

// ---- Opening -----------------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, DeTeksten)
{
    VerwachtTeksten(
        "Paren samenstellen",
        {{"lblRVDledengr", "Gr03-"},
         {"Label9", "RVD-ledengroep:"},
         {"Label2", "Groep-Subgroep:"},
         {"Label6", "Maak  een paar"},
         {"Label5", "Ontbindt dit paar"},
         {"Label1", "Waarom paren samenstellen?"},
         {"Label7", "Aantal spelers:"},
         {"Label8", "Aantal paren:"},
         {"Label3", "Selecteer in beide kolommen een speler en klik op 'OKE'"},
         {"Label10",
          "Alvorens om te schakelen naar een andere groep eerst de wijzigingen opslaan!"},
         {"Label4", "Reeds gevormde paren"},
         {"lblPrintVast", "Tuprufo - Leo Jansen "},
         {"lblPrintLos", "Tuprufo        Leo Jansen  (aparte kolom)"},
         {"lblExcel", "Kan in Excel worden ingelezen. "}},
        {{"cmdOKE", "OKE >>>"},
         {"cmdOntbindt", " OKE <<<"},
         {"cmdSortL3", "Sort  L9"},
         {"cmdVerwParenbest", "Verwijder dit parenbestand"},
         {"cmdUitleg", "Klik hier voor uitleg"},
         {"cmdPrintVast", "Als paar in 1 kolom"},
         {"cmdPrintLos", "Als paar in    2 kolommen"},
         {"cmdEinde", "Opslaan en Einde"},
         {"cmdAnnu", "Annuleren"}},
        {{"Frame1", "Samenstelling of ontbinden van paren tbv RVD en Ranking"},
         {"Frame2", "Paren opslaan als CSV-bestand"}});
}

TEST_F(frmParenOnderhoudTest, HetBegin)
{
    EXPECT_EQ(Padsoort::Map, schijf.Soort("C:\\club\\Spelers\\Parenmap"));
    const auto* cmb = Deel<QComboBox>("cmbNBBledengr");
    EXPECT_EQ(-1, cmb->currentIndex());
    EXPECT_EQ((Teksten{"Gr03-Dinsdag", "Gr03-DINSDAG", "Gr03-", "Gr03-A/B"}), Keuzes(cmb));
    for (const char* lijst : {"L1", "L2", "L3"}) {
        EXPECT_EQ(Teksten(), Regels(lijst));
        EXPECT_EQ("Arial", Lijst(lijst)->font().family().toStdString());
        EXPECT_EQ(Maten().Letter(9).pixelSize(), Lijst(lijst)->font().pixelSize());
    }
    EXPECT_FALSE(Kan("cmdOKE"));
    EXPECT_FALSE(Kan("cmdOntbindt"));
    EXPECT_EQ(venster->screen()->size().height() - Maten().Twips(1000), venster->height());
}

/// A screen that is 800 pixels wide, less what stands around a window.
TEST_F(frmParenOnderhoudTest, PastOp800Pixels)
{
    venster->resize(784, 600);
    QApplication::processEvents();
    EXPECT_EQ(784, venster->width());
    for (const char* deel : {"cmdUitleg", "L3", "cmdAnnu"})
        EXPECT_TRUE(StaatHeelIn(*venster, *Deel<QWidget>(deel))) << deel;
    Kies("Gr03-Dinsdag");
    for (const char* lijst : {"L1", "L2"})
        EXPECT_EQ(0, Lijst(lijst)->horizontalScrollBar()->maximum()) << "namen passen";
}

TEST_F(frmParenOnderhoudTest, EenAndereGroepEnEenGroepZonderSpelers)
{
    ASSERT_NO_FATAL_FAILURE(Open("Gr02-"));
    EXPECT_EQ("Gr02-", Label("lblRVDledengr"));
    Kies("Gr02-Woensdag");
    EXPECT_EQ(Teksten{"100003 Dam Cor van der"}, Regels("L1"));
    ASSERT_NO_FATAL_FAILURE(Open("Gr09-Leeg"));
    EXPECT_EQ(0, Deel<QComboBox>("cmbNBBledengr")->count());
    Klik(Knop("cmdEinde"));
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(frmParenOnderhoudTest, EenMapDieNietGemaaktKanWorden)
{
    administratie.mappen.SPEMAP = "C:\\club\\Anders";
    wachter.Begin(
        u"De map voor de parenbestanden (Parenmap) kon niet worden gemaakt, dus paren kunnen "
        "nu niet worden opgeslagen. De gegevens van de spelers zijn niet veranderd. Kijk of "
        "u in de map van de spelers mag schrijven.\n\n"_s);
    ASSERT_NO_FATAL_FAILURE(Open());
    wachter.Klaar();
    Kies("Gr03-Dinsdag");
    EXPECT_EQ(vier, Regels("L1"));
}

// ---- Choosing a group-subgroup -----------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, ZonderEnMetParen)
{
    Kies("Gr03-Dinsdag");
    EXPECT_EQ(vier, Regels("L1"));
    EXPECT_EQ(vier, Regels("L2"));
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_EQ("Aantal spelers: 4", Label("Label7"));
    EXPECT_EQ("", Label("Label8"));

    KiesDinsdag("100004-100005#\r\n");
    EXPECT_EQ((Teksten{"100001 Bos An", "100002 Cock Bea de"}), Regels("L1"));
    EXPECT_EQ(Teksten{"100004 Eik Dirk          +100005 Ärp Éls"}, Regels("L3"));
    EXPECT_EQ("Aantal spelers: 2", Label("Label7"));
    EXPECT_EQ("Aantal paren: 1", Label("Label8"));
    Kies("Gr03-");
    EXPECT_EQ(Teksten{"100006 Gans Fred"}, Regels("L2"));
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_EQ("Aantal spelers: 1", Label("Label7"));
    EXPECT_EQ("", Label("Label8"));
}

TEST_F(frmParenOnderhoudTest, LosseSpelersWordenGemeld)
{
    geheugen.Zet(dinsdag, "100001-100099#100004-100005#100098-100097#\r\n");
    wachter.Verwacht(
        {.tekst =
             u"De volgende spelers zijn losse spelers: \r\n\r\n100001 Bos An - 100099 ??????\r\n"
             "100098 ?????? - 100097 ??????\r\n\r\n"_s,
         .icoon = QMessageBox::Warning,
         .knoppen = {u"OK"_s}});
    Kies("Gr03-Dinsdag");
    wachter.Klaar();
    EXPECT_EQ(
        (Teksten{"100098 ??????          +100097 ??????", "100001 Bos An          +100099 ??????",
                 "100004 Eik Dirk          +100005 Ärp Éls"}),
        Regels("L3"));
    EXPECT_EQ("Aantal paren: 3", Label("Label8"));
    // Saved as they are shown: the pair that misses a player is kept.
    Klik(Knop("cmdEinde"));
    EXPECT_EQ("100098-100097#100001-100099#100004-100005#\r\n", geheugen.Inhoud(dinsdag));
}

/// Too long for a box: in a window in which it scrolls.
TEST_F(frmParenOnderhoudTest, VeelLosseSpelersInEenVensterDatSchuift)
{
    Tekst bestand;
    for (int i = 0; i < 60; ++i)
        bestand += std::to_string(200000 + i) + "-" + std::to_string(300000 + i) + "#";
    geheugen.Zet(dinsdag, bestand);
    wachter.Bedien([&](QDialog& dialoog) {
        EXPECT_EQ("frmBericht", dialoog.objectName().toStdString());
        const QString tekst = Vind<QPlainTextEdit>(dialoog, "txtBericht")->toPlainText();
        EXPECT_TRUE(tekst.startsWith(
            u"De volgende spelers zijn losse spelers: \n\n200000 ?????? - 300000 ??????\n"_s));
        EXPECT_EQ(60, tekst.count(u" - "_s));
        dialoog.accept();
    });
    Kies("Gr03-Dinsdag");
    wachter.Klaar();
}

TEST_F(frmParenOnderhoudTest, EenBestandDatNietGelezenKanWorden)
{
    geheugen.Zet(dinsdag, "100004-100005#\r\n");
    schijf.FaalVanaf(1);
    wachter.Begin(
        u"Het parenbestand 'Gr03-Dinsdag' kan niet worden gelezen; u ziet daarom geen paren. "
        "Voordat het wordt vervangen, komt er een kopie van in de map Reservekopie. Sluit "
        "met Annuleren als u eerst de oorzaak wilt verhelpen.\n\n"_s);
    Kies("Gr03-Dinsdag");
    wachter.Klaar();
    schijf.FaalNiet();
    EXPECT_EQ(vier, Regels("L1"));
    MaakPaar(0, 1);
    Klik(Knop("cmdEinde"));
    EXPECT_EQ("100005-100001#\r\n", geheugen.Inhoud(dinsdag));
    EXPECT_EQ(2U, geheugen.AlleBestanden().size()); // and the copy
}

/// Meant: what was not saved is gone after a switch.
TEST_F(frmParenOnderhoudTest, OmschakelenVergeetWatNietIsOpgeslagen)
{
    Kies("Gr03-Dinsdag");
    MaakPaar(0, 1);
    Kies("Gr03-");
    Kies("Gr03-Dinsdag");
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_EQ(vier, Regels("L1"));
    EXPECT_EQ(std::nullopt, geheugen.Inhoud(dinsdag));
}

// ---- Selecting ---------------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, OKEVraagtTweeVerschillendeSpelersOokNaTypen)
{
    Kies("Gr03-Dinsdag");
    for (const auto& [lijst, regel, kan] :
         {std::tuple("L1", 1, false), {"L2", 1, false}, {"L2", 2, true}, {"L1", 2, false}}) {
        KlikRegel(lijst, regel);
        EXPECT_EQ(kan, Kan("cmdOKE")) << lijst << regel;
    }
    Kies("Gr03-Dinsdag");
    Lijst("L1")->setFocus();
    QTest::keyClicks(Lijst("L1"), u"co"_s);
    EXPECT_EQ(2, Gekozen("L1"));
    QTest::keyClicks(Lijst("L2"), u"ar"_s); // Ärp
    EXPECT_EQ(0, Gekozen("L2"));
    EXPECT_TRUE(Kan("cmdOKE"));
}

TEST_F(frmParenOnderhoudTest, EenKeuzeInDeParenLaatDeSpelersLosEnAndersom)
{
    KiesDinsdag("100004-100005#\r\n");
    KlikRegel("L1", 0);
    KlikRegel("L2", 1);
    EXPECT_FALSE(Kan("cmdOntbindt"));
    KlikRegel("L3", 0);
    EXPECT_EQ(-1, Gekozen("L1"));
    EXPECT_EQ(-1, Gekozen("L2"));
    EXPECT_FALSE(Kan("cmdOKE"));
    EXPECT_TRUE(Kan("cmdOntbindt"));
    KlikRegel("L2", 0);
    EXPECT_EQ(-1, Gekozen("L3"));
    EXPECT_FALSE(Kan("cmdOntbindt"));
    KlikRegel("L3", 0);
    KlikRegel("L1", 0);
    EXPECT_EQ(-1, Gekozen("L3"));
}

// ---- Forming -----------------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, EenPaarMetDeKnopEnMetEenDubbelklikRechts)
{
    Kies("Gr03-Dinsdag");
    MaakPaar(3, 1);
    EXPECT_EQ(Teksten{"100004 Eik Dirk          +100001 Bos An"}, Regels("L3"));
    EXPECT_EQ((Teksten{"100005 Ärp Éls", "100002 Cock Bea de"}), Regels("L1"));
    EXPECT_EQ(Regels("L1"), Regels("L2"));
    EXPECT_EQ("Aantal spelers: 2", Label("Label7"));
    EXPECT_EQ("Aantal paren: 1", Label("Label8"));
    EXPECT_EQ(-1, Gekozen("L1"));
    EXPECT_FALSE(Kan("cmdOKE"));
    Kies("Gr03-Dinsdag");
    DubbelklikRegel("L2", 1);
    EXPECT_EQ(Teksten(), Regels("L3")); // no player at the left yet
    KlikRegel("L1", 0);
    DubbelklikRegel("L2", 2);
    EXPECT_EQ(Teksten{"100005 Ärp Éls          +100002 Cock Bea de"}, Regels("L3"));
    KlikRegel("L2", 1);
    DubbelklikRegel("L1", 0); // only the right list
    EXPECT_EQ(1U, Regels("L3").size());
}

TEST_F(frmParenOnderhoudTest, EenPaarMetEnter)
{
    Kies("Gr03-Dinsdag");
    Lijst("L1")->setFocus();
    QTest::keyClick(Lijst("L1"), Qt::Key_Return);
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_TRUE(venster->isVisible());
    QTest::keyClick(Lijst("L1"), Qt::Key_Down);
    QTest::keyClick(Lijst("L1"), Qt::Key_Tab);
    ASSERT_TRUE(Lijst("L2")->hasFocus());
    QTest::keyClick(Lijst("L2"), Qt::Key_End);
    QTest::keyClick(Lijst("L2"), Qt::Key_Return);
    EXPECT_EQ(Teksten{"100001 Bos An          +100004 Eik Dirk"}, Regels("L3"));
    EXPECT_TRUE(Lijst("L1")->hasFocus()); // for the next pair
    QTest::keyClick(Lijst("L1"), Qt::Key_Home);
    KlikRegel("L2", 1);
    QTest::keyClick(Lijst("L1"), Qt::Key_Enter);
    EXPECT_EQ(2U, Regels("L3").size());
}

// ---- Dissolving and sorting --------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, OntbindenMetDeKnopEnMetDelete)
{
    KiesDinsdag("100004-100005#100002-100001#\r\n");
    Ontbind(1);
    EXPECT_EQ((Teksten{"100005 Ärp Éls", "100004 Eik Dirk"}), Regels("L1"));
    EXPECT_EQ(Regels("L1"), Regels("L2"));
    EXPECT_EQ("Aantal spelers: 2", Label("Label7"));
    EXPECT_EQ("Aantal paren: 1", Label("Label8"));
    EXPECT_FALSE(Kan("cmdOntbindt"));
    QTest::keyClick(Lijst("L3"), Qt::Key_Delete);
    EXPECT_EQ(1U, Regels("L3").size()); // nothing is selected any more
    KlikRegel("L3", 0);
    QTest::keyClick(Lijst("L3"), Qt::Key_Delete);
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_EQ(vier, Regels("L2"));
    EXPECT_EQ("Aantal paren: 0", Label("Label8"));
    QTest::keyClick(Lijst("L1"), Qt::Key_Delete);
    EXPECT_EQ(vier, Regels("L1"));
}

TEST_F(frmParenOnderhoudTest, Sorteren)
{
    KiesDinsdag("100004-100005#100002-100001#\r\n");
    const Teksten gesorteerd{"100002 Cock Bea de          +100001 Bos An",
                             "100004 Eik Dirk          +100005 Ärp Éls"};
    EXPECT_EQ(gesorteerd, Regels("L3"));
    KlikRegel("L3", 1);
    Klik(Knop("cmdSortL3"));
    EXPECT_EQ(gesorteerd, Regels("L3"));
    EXPECT_EQ(-1, Gekozen("L3")); // emptied and filled anew
    EXPECT_FALSE(Kan("cmdOntbindt"));
    EXPECT_EQ("Aantal paren: 2", Label("Label8"));
}

// ---- Scrolling ---------------------------------------------------------------------------------

namespace {

class GroteGroep : public frmParenOnderhoudTest {
  protected:
    GroteGroep()
    {
        std::vector<Proefspeler> spelers;
        for (int i = 0; i < 400; ++i)
            spelers.push_back({.key = std::to_string(100001 + i),
                               .groep = "Gr03-",
                               .achternaam = "Naam" + MetNullen(i, 4)});
        administratie.spelers.tabel = MaakTabel(spelers);
    }
};

} // namespace

TEST_F(GroteGroep, DeLijstenHoudenHunSchuifplaats)
{
    Kies("Gr03-");
    auto* balk1 = Lijst("L1")->verticalScrollBar();
    auto* balk2 = Lijst("L2")->verticalScrollBar();
    balk1->setValue(200);
    balk2->setValue(300);
    MaakPaar(205, 303);
    ASSERT_EQ(Teksten{"100206 Naam0205          +100304 Naam0303"}, Regels("L3"));
    EXPECT_EQ(std::pair(200, 300), std::pair(balk1->value(), balk2->value()));
    Ontbind(0);
    EXPECT_EQ(400U, Regels("L1").size());
    EXPECT_EQ(std::pair(200, 300), std::pair(balk1->value(), balk2->value()));
    Kies("Gr03-");
    EXPECT_EQ(0, balk1->value());
}

/// It is the one that can be dissolved at once, and from which the arrow keys go on.
TEST_F(GroteGroep, HetNieuwePaarIsGekozenEnInBeeld)
{
    Tekst paren;
    for (int i = 0; i < 150; ++i)
        paren += std::to_string(100002 + i) + "-" + std::to_string(100400 - i) + "#";
    geheugen.Zet("C:\\club\\Spelers\\Parenmap\\Gr03-.txt", paren);
    Kies("Gr03-");
    ASSERT_EQ(150U, Regels("L3").size());
    Lijst("L3")->verticalScrollBar()->setValue(60);
    for (const char* lijst : {"L1", "L2"})
        Lijst(lijst)->verticalScrollBar()->setValue(50);
    MaakPaar(60, 61); // the last in the list of pairs
    ASSERT_EQ(151U, Regels("L3").size());
    EXPECT_EQ(150, Gekozen("L3"));
    EXPECT_EQ(150, Lijst("L3")->currentIndex().row());
    EXPECT_TRUE(Lijst("L3")->viewport()->rect().intersects(
        Lijst("L3")->visualRect(Lijst("L3")->currentIndex())));
    EXPECT_TRUE(Kan("cmdOntbindt"));
    for (const char* lijst : {"L1", "L2"}) {
        EXPECT_EQ(50, Lijst(lijst)->verticalScrollBar()->value());
        EXPECT_EQ(-1, Gekozen(lijst));
    }
    Klik(Knop("cmdOntbindt"));
    EXPECT_EQ(150U, Regels("L3").size());
}

// ---- Saving and closing ------------------------------------------------------------------------

/// Meant: only the delete command empties a file.
TEST_F(frmParenOnderhoudTest, ZonderParenBlijftHetOudeBestand)
{
    KiesDinsdag("100004-100005#\r\n");
    Ontbind(0);
    Klik(Knop("cmdEinde"));
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ("100004-100005#\r\n", geheugen.Inhoud(dinsdag));
}

TEST_F(frmParenOnderhoudTest, AnnulerenEscapeEnHetSluitvakBewarenNiets)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        ASSERT_NO_FATAL_FAILURE(Open());
        Kies("Gr03-Dinsdag");
        MaakPaar(3, 1);
        Sluit(weg, "cmdAnnu");
        EXPECT_EQ(std::nullopt, geheugen.Inhoud(dinsdag));
    }
}

TEST_F(frmParenOnderhoudTest, EenFoutBijHetOpslaanZetDeParenOpHetKlembord)
{
    KiesDinsdag("100004-100005#\r\n");
    MaakPaar(0, 1);
    geheugen.ZetAlleenLezen("C:\\club\\Spelers\\Parenmap");
    wachter.Waarschuwing(
        u"Fout bij het opslaan van Paren\nDe paren zijn niet verloren: ze staan nu op het "
        "klembord. Plak ze in een tekstbestand, verhelp de oorzaak en sla dat op onder de naam "
        "hieronder.\n\nBestand: C:\\club\\Spelers\\Parenmap\\Gr03-Dinsdag.txt\nMelding van het "
        "systeem: u hebt daar geen rechten voor"_s);
    Opdracht("cmdEinde");
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ("100001-100002#100004-100005#", QGuiApplication::clipboard()->text().toStdString());
    EXPECT_EQ("100004-100005#\r\n", geheugen.Inhoud(dinsdag));
}

/// Only syncing the folder, the last step, fails: the pairs are in their file.
TEST_F(frmParenOnderhoudTest, ParenDieErStaanMaarNietVastGaanNietNaarHetKlembord)
{
    KiesDinsdag("100004-100005#\r\n");
    MaakPaar(0, 1);
    QGuiApplication::clipboard()->setText(u"van mij"_s);
    schijf.FaalBij(16);
    VerwachtNietVast(dinsdag);
    Opdracht("cmdEinde");
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ("van mij", QGuiApplication::clipboard()->text().toStdString());
    EXPECT_EQ("100001-100002#100004-100005#\r\n", geheugen.Inhoud(dinsdag));
}

TEST_F(frmParenOnderhoudTest, WatEenAnderProgrammaDeedWordtOvergenomenEnGemeld)
{
    KiesDinsdag("100004-100005#\r\n");
    MaakPaar(0, 1);
    geheugen.Zet(dinsdag, "100006-100099#\r\n");
    wachter.Informatie(
        u"2 paren van een ander programma overgenomen: Fred Gans - 100099, Dirk Eik - \u00C9ls "
        "\u00C4rp."_s);
    Opdracht("cmdEinde");
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ("100006-100099#100001-100002#\r\n", geheugen.Inhoud(dinsdag));
}

TEST_F(frmParenOnderhoudTest, VanEenPaarDatBotstHeetDeKopie)
{
    KiesDinsdag("");
    MaakPaar(1, 2);
    geheugen.Zet(dinsdag, "100001-100004#\r\n");
    wachter.Begin(
        u"1 paar van een ander programma overgenomen: An Bos - Dirk Eik.\n\n1 paar zowel hier als "
        "door een ander programma gewijzigd: An Bos - Bea de Cock. In het bestand staat wat het "
        "andere programma ervan maakte. Zoals het hier was, staat het in de "
        "kopie:\nC:\\club\\Spelers\\Reservekopie\\Gr03-Dinsdag "_s,
        QMessageBox::Information);
    Opdracht("cmdEinde");
    EXPECT_EQ("100001-100004#\r\n", geheugen.Inhoud(dinsdag));
}

TEST_F(frmParenOnderhoudTest, WatNietSamenKanHeetDeKopieVanDeAnder)
{
    KiesDinsdag("");
    MaakPaar(1, 2);
    geheugen.Zet(dinsdag, "kapot");
    wachter.Begin(
        u"Een ander programma heeft dit bestand intussen gewijzigd, en dat is niet samen te voegen "
        "met wat hier staat. In het bestand staat nu wat hier staat; wat het andere programma "
        "schreef, staat in de kopie:\nC:\\club\\Spelers\\Reservekopie\\Gr03-Dinsdag "_s,
        QMessageBox::Information);
    Opdracht("cmdEinde");
    EXPECT_EQ("100001-100002#\r\n", geheugen.Inhoud(dinsdag));
}

TEST_F(frmParenOnderhoudTest, EenNaamDieGeenBestandKanZijn)
{
    Kies("Gr03-A/B");
    MaakPaar(0, 1);
    wachter.Waarschuwing(
        u"De paren van 'Gr03-A/B' kunnen niet worden opgeslagen, want / kan niet in de naam van "
        "een bestand staan. De paren staan nog op het scherm. Geef de spelers een andere "
        "subgroep, of kies Annuleren om niets op te slaan."_s);
    Opdracht("cmdEinde");
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(Teksten{"100007 Haan Gijs          +100008 Iep Han"}, Regels("L3"));
    EXPECT_EQ(std::vector<Pad>(), geheugen.AlleBestanden());
    Ontbind(0);
    Klik(Knop("cmdEinde")); // nothing to save
    EXPECT_FALSE(venster->isVisible());
}

// ---- Deleting the file -------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, EenBestandDatErNietIs)
{
    for (const char* keuze : {"Gr03-Dinsdag", "Gr03-A/B"}) {
        Kies(keuze);
        MaakPaar(0, 1);
        wachter.Waarschuwing(u"Parenbestand '%1' bestaat nog niet!"_s.arg(QLatin1String(keuze)));
        Opdracht("cmdVerwParenbest");
        EXPECT_EQ(1U, Regels("L3").size());
    }
}

TEST_F(frmParenOnderhoudTest, HetBestandVerwijderen)
{
    KiesDinsdag("100004-100005#\r\n");
    const auto verwijder = [&](const QString& antwoord) {
        wachter.Verwacht(
            {.tekst =
                 u"U gaat Parenbestand Gr03-Dinsdag volledig verwijderen!\r\nWeet u het zeker?"_s,
             .antwoord = antwoord,
             .knoppen = {u"OK"_s, u"Annuleren"_s}});
        Opdracht("cmdVerwParenbest");
    };
    verwijder(u"Annuleren"_s);
    EXPECT_EQ("100004-100005#\r\n", geheugen.Inhoud(dinsdag));
    EXPECT_EQ(1U, Regels("L3").size());
    verwijder(u"OK"_s);
    EXPECT_EQ(std::nullopt, geheugen.Inhoud(dinsdag));
    EXPECT_EQ(Teksten(), Regels("L3"));
    EXPECT_EQ("Aantal paren: 0", Label("Label8"));
    // The players come back when the group-subgroup is picked again.
    EXPECT_EQ((Teksten{"100001 Bos An", "100002 Cock Bea de"}), Regels("L1"));
    Kies("Gr03-Dinsdag");
    EXPECT_EQ(vier, Regels("L1"));
}

TEST_F(frmParenOnderhoudTest, VanWatEenAnderIntussenSchreefKomtBijHetVerwijderenEenKopie)
{
    KiesDinsdag("100004-100005#\r\n");
    geheugen.Zet(dinsdag, "100001-100002#\r\n");
    wachter.Begin(u"U gaat Parenbestand Gr03-Dinsdag"_s, QMessageBox::Information);
    wachter.Begin(u"Een ander programma had dit parenbestand intussen gewijzigd. Wat erin stond, "
                  "staat in de kopie:\nC:\\club\\Spelers\\Reservekopie\\Gr03-Dinsdag "_s,
                  QMessageBox::Information);
    Opdracht("cmdVerwParenbest");
    const auto over = geheugen.AlleBestanden();
    ASSERT_EQ(1U, over.size());
    EXPECT_EQ("100001-100002#\r\n", geheugen.Inhoud(over.front()));
    EXPECT_EQ(Teksten(), Regels("L3"));
}

TEST_F(frmParenOnderhoudTest, EenBestandDatNietVerwijderdKanWorden)
{
    KiesDinsdag("100004-100005#\r\n");
    geheugen.ZetAlleenLezen("C:\\club\\Spelers\\Parenmap");
    wachter.Begin(u"U gaat Parenbestand Gr03-Dinsdag"_s, QMessageBox::Information);
    wachter.Begin(u"Het parenbestand kon niet worden verwijderd; het is gebleven zoals het was. "
                  "Verhelp de oorzaak en probeer het opnieuw.\n\n"_s);
    Opdracht("cmdVerwParenbest");
    EXPECT_EQ(1U, Regels("L3").size());
    EXPECT_EQ("100004-100005#\r\n", geheugen.Inhoud(dinsdag));
}

// ---- CSV ---------------------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, DeCSVBestanden)
{
    KiesDinsdag("100004-100005#100002-100001#\r\n");
    const auto opslaan = [&](const char* knop, const Tekst& naam, const Tekst& inhoud) {
        const Pad map = "C:\\club\\DiverseUitvoer";
        wachter.Informatie(u"Het parenbestand '%1' is opgeslagen in de map: \r\n\r\n%2"_s.arg(
            NaarQString(naam), QString::fromStdString(schijf.Toonpad(map))));
        Opdracht(knop);
        EXPECT_EQ(inhoud, geheugen.Inhoud(Samen(map, naam)));
    };
    opslaan("cmdPrintVast", "RVDparenCSV1.csv",
            "1;Bea de Cock - An Bos\r\n2;Dirk Eik - \xC9ls \xC4rp\r\n");
    opslaan("cmdPrintLos", "RVDparenCSV2.csv",
            "1;Bea de Cock;An Bos\r\n2;Dirk Eik;\xC9ls \xC4rp\r\n");
    Kies("Gr03-");
    opslaan("cmdPrintLos", "RVDparenCSV2.csv", "");
}

TEST_F(frmParenOnderhoudTest, EenCSVDieErStaatMaarNietVastIsOpgeslagen)
{
    Kies("Gr03-Dinsdag");
    MaakPaar(0, 1);
    schijf.FaalBij(9);
    VerwachtNietVast("C:\\club\\DiverseUitvoer\\RVDparenCSV2.csv");
    wachter.Begin(u"Het parenbestand 'RVDparenCSV2.csv' is opgeslagen in de map: \r\n\r\n"_s,
                  QMessageBox::Information);
    Opdracht("cmdPrintLos");
    EXPECT_EQ("1;\xC9ls \xC4rp;An Bos\r\n",
              geheugen.Inhoud("C:\\club\\DiverseUitvoer\\RVDparenCSV2.csv"));
}

TEST_F(frmParenOnderhoudTest, EenCSVDieNietLukt)
{
    geheugen.ZetAlleenLezen("C:\\club");
    wachter.Begin(
        u"Het parenbestand 'RVDparenCSV1.csv' is niet opgeslagen. De paren in dit venster "
        "zijn niet veranderd. Sluit het bestand als het nog open is in een ander programma, "
        "en probeer het opnieuw.\n\n"_s);
    Klik(Knop("cmdPrintVast"));
    administratie.mappen.RVDMAP.clear();
    wachter.Waarschuwing(
        u"Het parenbestand 'RVDparenCSV2.csv' is niet opgeslagen: er staat geen map achter "
        "RVDMAP= in 'Mappen.ini'. De paren in dit venster zijn niet veranderd. Vul die map in en "
        "start Plexoran opnieuw."_s);
    Klik(Knop("cmdPrintLos"));
}

// ---- Explanation -------------------------------------------------------------------------------

TEST_F(frmParenOnderhoudTest, DeUitlegMetDeKnopEnMetF1)
{
    Kies("Gr03-Dinsdag");
    MaakPaar(0, 1);
    for (int hoe = 0; hoe < 2; ++hoe) {
        wachter.Bedien([](QDialog& dialoog) {
            EXPECT_EQ("frmUitleg", dialoog.objectName().toStdString());
            QTest::keyClick(&dialoog, Qt::Key_Escape);
        });
        if (hoe == 0)
            Klik(Knop("cmdUitleg"));
        else {
            venster->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
            QTest::keyClick(Lijst("L1"), Qt::Key_F1);
        }
        wachter.Klaar();
    }
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(1U, Regels("L3").size());
}
