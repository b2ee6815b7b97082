#include "help/frmToelichting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScreen>
#include <QScrollBar>

#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/proefstand.h"
#include "platform/scherm/maten.h"

using namespace plexoran;

namespace {

class frmToelichtingTest : public Dialoogproef<frmToelichting, Mapstand> {
  protected:
    frmToelichtingTest() { hoofd.setGeometry(20, 30, 900, 700); }

    void Open(frmToelichting::Printerkeus printer)
    {
        venster = std::make_unique<frmToelichting>(&hoofd, std::move(printer));
        ToonHet();
    }
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(Open([this] { return Uitkomst<Printer>(Printer(schijf, Pdf())); }));
    }
    [[nodiscard]] Pad Pdf() const { return Samen(map.AlsPad(), "toelichting.pdf"); }
    [[nodiscard]] QPlainTextEdit* Tekst() const { return Deel<QPlainTextEdit>("Text1"); }
};

const std::string toelichting =
    "\tGebruik van Plexoran.\n"
    "\n"
    " In dit programma moeten de namen van spelers worden vastgelegd en bewaard voor eventuele "
    "volgende zittingen.\n"
    " Bij het indelen van een zitting moet gekozen worden uit deze namen.\n"
    " Het opzetten en afhandelen van zittingen kan echter ook zonder spelernamen "
    "(testdoeleinden), alleen een competitieoverzicht is niet mogelijk.\n"
    "\n"
    " - Van een speler moet minimaal de Achternaam worden ingevuld, overige gegevens zijn ter uw "
    "beoordeling.\n"
    " - Spelers kunnen worden ingedeeld in GROEPEN ter onderscheiding. (max 50, Gr01 t/m GR50). "
    "\n"
    "    Bij het indelen van de zitting worden de spelers per groep getoond, zo kunt u ze "
    "eenvoudiger terugvinden.\n"
    "    Het is aan u om te bepalen of u hier gebruik van maakt, experimenteer hiermee.\n"
    " - Om een groep beter herkenbaar te maken voor u zelf kunt u de Groepsnaam aanvullen met "
    "eigen tekst.\n"
    " - De kolom 'NBBgr' kan gebruikt worden voor een onderverdeling binnen een groep.\n"
    " - Printen: Per groep, rubrieken naar keuze.\n"
    "    Indien te breed dan wordt automatisch overgegaan naar A4-liggend.\n"
    "    U kunt ook de tekst in grootte verschalen om een en ander passend te maken.\n"
    "\n"
    " Attentie!\n"
    " Groep 'Gr05-' is gereserveerd voor spelers die uit NBBR zijn geimporteerd.\n"
    " De kolom 'NBBgr' is de ledengroep-onderverdeling volgens NBBR\n"
    " Zorg dat deze spelers gelijk lopen met NBBR, want bij het maken van een BWS-zitting worden "
    "deze gebruikt.\n"
    " De basis voor deze lijst is het NBB-nummer dat slechts eenmaal kan voorkomen, spelers "
    "zonder NBB-nummer worden niet geimporteerd.\n"
    " Met NBB-nummers in andere groepen dan 'Gr05-' wordt niets gedaan.";

} // namespace

TEST_F(frmToelichtingTest, DeTekst)
{
    VerwachtTeksten("Toelichting", {}, {{"cmdPrintToel", "Print"}, {"cmdEinde", "Terug"}});
    EXPECT_EQ(toelichting, Tekst()->toPlainText().toStdString());
    EXPECT_TRUE(Tekst()->isReadOnly());
    EXPECT_EQ("Arial", Tekst()->font().family().toStdString());
}

TEST_F(frmToelichtingTest, DePlaatsVanDeDelen)
{
    const QPushButton* terug = Knop("cmdEinde");
    const QPushButton* print = Knop("cmdPrintToel");
    EXPECT_EQ(Maten().Twips(6500), venster->height());
    for (const QSize maat : {venster->size(), QSize(900, 300), QSize(500, 600)}) {
        venster->resize(maat);
        QApplication::processEvents();
        EXPECT_EQ(terug->y(), print->y());
        EXPECT_LT(print->geometry().right(), terug->x());
        EXPECT_LT(maat.width() - terug->geometry().right(), 20);
        EXPECT_LT(maat.height() - terug->geometry().bottom(), 20);
        EXPECT_LT(Tekst()->geometry().bottom(), terug->y());
        EXPECT_GE(Tekst()->width(), maat.width() - 30);
    }
}

/// 400 twips below and right of the corner of the main window.
TEST_F(frmToelichtingTest, StaatBijHetHoofdvenster)
{
    const int in = Maten().Twips(400);
    const QRect vrij = hoofd.screen()->availableGeometry();
    for (const QPoint plek : {QPoint(3, 11), QPoint(9, 5)}) { // of the window, with room beside it
        hoofd.move(vrij.topLeft() + plek - QPoint(in, in));
        ASSERT_NO_FATAL_FAILURE(Open(StandaardPrinter));
        EXPECT_EQ(vrij.topLeft() + plek, venster->pos());
    }
}

TEST_F(frmToelichtingTest, SchuivenKopierenEnSluiten)
{
    venster->resize(400, 200);
    QApplication::processEvents();
    QScrollBar* balk = Tekst()->verticalScrollBar();
    ASSERT_GT(balk->maximum(), 0);
    QTest::keyClick(Tekst(), Qt::Key_PageDown);
    EXPECT_GT(balk->value(), 0);
    QTest::keyClick(Tekst(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(Tekst(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Tekst()->toPlainText(), QGuiApplication::clipboard()->text());
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        venster->show();
        Sluit(weg, "cmdEinde");
    }
}

TEST_F(frmToelichtingTest, HetBladHeeftAlleWoorden)
{
    Klik(Knop("cmdPrintToel"));
    EXPECT_TRUE(venster->isVisible());
    const auto bladen = LeesPdf(map.Weg() / "toelichting.pdf");
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ(QString::fromStdString(toelichting).simplified().toStdString(), bladen[0].Tekst());
    EXPECT_NEAR(210, bladen[0].breed, 0.5);
    for (const Pdfwoord& woord : bladen[0].woorden) {
        EXPECT_GE(woord.links, 14.9) << woord.tekst;
        EXPECT_LE(woord.rechts, 195.1) << woord.tekst;
    }
    // The line goes on below where it did not fit; the next one begins at the margin again.
    EXPECT_GT(bladen[0].Woord("mogelijk.").boven, bladen[0].Woord("opzetten").boven + 3);
    EXPECT_LT(bladen[0].Woord("mogelijk.").links, 40);
}

TEST_F(frmToelichtingTest, EenPrinterDieWeigertOfErNietIsLaatHetVensterOpen)
{
    const QString gelukt = u"Het printen is niet gelukt."_s;
    const QString geen =
        u"Er is niets geprint: op deze computer is geen printer geïnstalleerd of geen "
        "standaardprinter gekozen. De gegevens van de spelers zijn niet veranderd. Kies een "
        "standaardprinter in de instellingen van uw computer."_s;
    for (const bool weigert : {true, false}) {
        if (weigert)
            schijf.FaalVanaf(1);
        else
            Open([] {
                return Uitkomst<Printer>(tl::unexpected(Fout{Foutsoort::Ontbreekt, {}, 0, {}}));
            });
        wachter.Verwacht({.tekst = weigert ? gelukt : geen,
                          .icoon = QMessageBox::Critical,
                          .alleenBegin = weigert});
        Opdracht("cmdPrintToel");
        EXPECT_TRUE(venster->isVisible());
        EXPECT_FALSE(std::filesystem::exists(map.Weg() / "toelichting.pdf"));
    }
}

/// The default printer of this machine; where there is none, its error.
TEST_F(frmToelichtingTest, UitZichzelfVraagtHijDeStandaardprinter)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "hier zou echt worden geprint";
    venster = std::make_unique<frmToelichting>(&hoofd);
    venster->show();
    wachter.Begin(u"Er is niets geprint: op deze computer is geen printer"_s,
                  QMessageBox::Critical);
    Opdracht("cmdPrintToel");
    EXPECT_TRUE(venster->isVisible());
}

// ---------------------------------------------------------------- the other explanation

/// It fills the window and can be copied.
TEST(frmUitleg, DeTekst)
{
    frmUitleg venster(nullptr);
    EXPECT_EQ("Uitleg paren samenstellen", venster.windowTitle().toStdString());
    auto* Text1 = Vind<QPlainTextEdit>(venster, "Text1");
    EXPECT_EQ(
        "\tHet vormen van paren in RVD is nodig om de volgende redenen:\n"
        " 1. Bij het Ranking-voorstel voor zittingindeling op Ranking-punten moeten de paren "
        "bekend zijn.\n"
        " 2. Bij het handmatig zittingindelen kunnen beide spelers tegelijk worden geplaatst, "
        "werkt sneller.\n"
        "\n"
        " Uitleg PAREN, GROEPEN en SUBGROEPEN: \n"
        " In RVD kunt u de spelers indelen in (max 50) groepen: Gr01-, Gr02-, enz.\n"
        " Daarnaast kunt u per groep nog een SUBGROEP gebruiken voor verdere "
        "onderverdeling.\n"
        " Als u een paar samenstelt doet u dat altijd met spelers uit dezelfde "
        "groep(-subgroep).\n"
        "\n"
        " Voorbeeld:\n"
        " In RVD is groep 'Gr05-' vastgelegd voor het importeren van NBB-spelers.\n"
        " Deze NBB-spelers zijn onderverdeeld in SUBGROEPEN, de zgn NBB-ledenbestanden.\n"
        " Het gebruik van subgroepen is naar eigen wens.\n"
        " Als u een paar samenstelt zit dat altijd GEBONDEN aan de Groep (Gr..-) EN zijn "
        "Subgroep.",
        Text1->toPlainText().toStdString());
    EXPECT_TRUE(Text1->isReadOnly());
    EXPECT_EQ("Arial", Text1->font().family().toStdString());
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    for (const QSize maat : {QSize(700, 300), QSize(500, 600)}) {
        venster.resize(maat);
        QApplication::processEvents();
        EXPECT_GE(Text1->width(), maat.width() - 30);
        EXPECT_GE(Text1->height(), maat.height() - 30);
    }
    QTest::keyClick(Text1, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(Text1, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Text1->toPlainText(), QGuiApplication::clipboard()->text());
    QTest::keyClick(Text1, Qt::Key_Escape);
    EXPECT_FALSE(venster.isVisible());
}
