#include "platform/scherm/printer.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QSpinBox>

#include <numeric>

#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefsuite.h"
#include "platform/scherm/schildervlak.h"
#include "platform/schijf/echteSchijf.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

constexpr double Tiende = 0.1; // millimetre
constexpr double MmPerPunt = 25.4 / 72.0;

std::vector<int> Alle(int aantal)
{
    std::vector<int> bladen(static_cast<std::size_t>(aantal));
    std::iota(bladen.begin(), bladen.end(), 1);
    return bladen;
}

class PrinterTest : public testing::Test {
  protected:
    [[nodiscard]] Pad Bestand() const { return Samen(map.AlsPad(), "lijst.pdf"); }
    [[nodiscard]] std::vector<Pdfblad> Lees() const { return LeesPdf(map.Weg() / "lijst.pdf"); }

    /// A job of this many pages, each with its number on it.
    static Uitkomst<void> Print(const Printer& printer, int bladen,
                                Papierstand stand = Papierstand::Staand)
    {
        return printer.Druk({.titel = u"Proef"_s, .stand = stand}, Alle(bladen),
                            [](Tekenvlak& vlak, int blad) {
                                vlak.Schrijf(20, 30, {}, "Blad" + std::to_string(blad));
                            });
    }

    /// The pages, of nine, one of them in view, that the print dialog gives after these steps.
    std::vector<int> Keus(const std::function<void(QDialog&)>& stappen,
                          const std::function<int()>& bladInBeeld = {})
    {
        VerwachtPdf(wachter, map.Weg() / "lijst.pdf", stappen);
        hoofd.show();
        gekozen = KiesPrinter(schijf,
                              {.titel = u"Proef"_s,
                               .stand = Papierstand::Staand,
                               .bladen = 9,
                               .bladInBeeld = bladInBeeld},
                              &hoofd);
        wachter.Klaar();
        return gekozen ? gekozen->bladen : std::vector<int>();
    }
    static void Vink(QDialog& dialoog, const char* naam)
    {
        Vind<QRadioButton>(dialoog, naam)->setChecked(true);
    }
    static QSpinBox* Getal(QDialog& dialoog, const char* naam)
    {
        return Vind<QSpinBox>(dialoog, naam);
    }

    TijdelijkeMap map;
    EchteSchijf schijf;
    QWidget hoofd;
    Berichtwachter wachter;
    std::optional<Printkeus> gekozen;
};

} // namespace

TEST_F(PrinterTest, PdfHeeftDeTekstenOpHunTiendeMillimeter)
{
    const Letterkast kast;
    const Letter titel{.type = Lettertype::Arial, .punten = 14, .vet = true};
    const Letter gewoon{.type = Lettertype::Arial, .punten = 7};
    const Letter vast{.type = Lettertype::CourierNew, .punten = 9};
    ASSERT_TRUE(Printer(schijf, Bestand()).Druk({}, {1}, [&](Tekenvlak& vlak, int) {
        vlak.Schrijf(15, 15, titel, "AVAWATiTo\xEB");
        vlak.Schrijf(123.4, 280.5, gewoon, "office \x80");
        vlak.Schrijf(33.3, 100, vast, "0123456789");
        vlak.Lijn(0, 0, 210, 297, {100, 100, 100}, 0.1);
    }));

    const auto bladen = Lees();
    ASSERT_EQ(1U, bladen.size());
    EXPECT_NEAR(210, bladen[0].breed, Tiende);
    EXPECT_NEAR(297, bladen[0].hoog, Tiende);
    const Pdfwoord& kop = bladen[0].Woord("AVAWATiToë");
    EXPECT_NEAR(15, kop.links, Tiende);
    EXPECT_NEAR(15, kop.boven, Tiende);
    EXPECT_NEAR(15 + kast.Breedte(titel, "AVAWATiTo\xEB"), kop.rechts, Tiende);
    const Pdfwoord& euro = bladen[0].Woord("€");
    EXPECT_NEAR(123.4 + kast.Breedte(gewoon, "office "), euro.links, Tiende);
    EXPECT_NEAR(280.5, euro.boven, Tiende);
    const Pdfwoord& cijfers = bladen[0].Woord("0123456789");
    EXPECT_NEAR(33.3, cijfers.links, Tiende);
    EXPECT_NEAR(33.3 + 10 * 1229.0 / 2048 * 9 * MmPerPunt, cijfers.rechts, Tiende);
}

TEST_F(PrinterTest, PdfLiggendMetMeerBladen)
{
    ASSERT_TRUE(Print(Printer(schijf, Bestand()), 3, Papierstand::Liggend));
    const auto bladen = Lees();
    ASSERT_EQ(3U, bladen.size());
    for (std::size_t i = 0; i < bladen.size(); ++i) {
        EXPECT_NEAR(297, bladen[i].breed, Tiende);
        EXPECT_NEAR(210, bladen[i].hoog, Tiende);
        EXPECT_EQ("Blad" + std::to_string(i + 1), bladen[i].Tekst());
        EXPECT_NEAR(20, bladen[i].woorden[0].links, Tiende);
        EXPECT_NEAR(30, bladen[i].woorden[0].boven, Tiende);
    }
}

/// A file that stood there stays whole until all pages are drawn.
TEST_F(PrinterTest, HetBestandKomtAlsAlleBladenGetekendZijn)
{
    map.Zet("lijst.pdf", "van gisteren");
    ASSERT_TRUE(Printer(schijf, Bestand()).Druk({}, {1, 2}, [&](Tekenvlak& vlak, int) {
        vlak.Schrijf(10, 10, {}, "half");
        EXPECT_EQ("van gisteren", map.Inhoud("lijst.pdf"));
    }));
    EXPECT_EQ(2U, Lees().size());
}

/// Whatever step of the saving fails: an error comes back and the old file is whole.
TEST_F(PrinterTest, EenVolleSchijfIsEenFoutEnLaatHetOudeBestand)
{
    int mislukt = 0;
    for (int stap = 1;; ++stap) {
        GeheugenSchijf geheugen;
        geheugen.Zet("C:\\Uit\\lijst.pdf", "van gisteren");
        FalendeSchijf falend(geheugen, FalendeSchijf::Telt::AlleenSchrijven);
        falend.FaalBij(stap);
        const auto uitkomst = Print(Printer(falend, "C:\\Uit\\lijst.pdf"), 2);
        if (uitkomst)
            break;
        ++mislukt;
        const auto inhoud = geheugen.LeesBestand("C:\\Uit\\lijst.pdf");
        ASSERT_TRUE(inhoud);
        const bool staatEr = uitkomst.error().soort == Foutsoort::NietVast;
        EXPECT_TRUE(staatEr ? inhoud->starts_with("%PDF-") : *inhoud == "van gisteren") << stap;
    }
    EXPECT_GT(mislukt, 3);
}

TEST_F(PrinterTest, WatEenAfgebrokenPdfLietWordtOpgeruimd)
{
    const Pad rest = "C:\\Uit\\andere lijst.pdf.~plexoran110001";
    GeheugenSchijf geheugen;
    geheugen.Zet(rest, "%PDF-1.4");
    geheugen.ZetTijd(rest, 1);
    ASSERT_TRUE(Print(Printer(geheugen, "C:\\Uit\\lijst.pdf"), 1));
    EXPECT_EQ(std::vector<Pad>{"C:\\Uit\\lijst.pdf"}, geheugen.AlleBestanden());
}

TEST_F(PrinterTest, EenMapDieErNietIsWordtGeweigerd)
{
    const auto uitkomst = Print(Printer(schijf, Samen(map.AlsPad(), "weg\\lijst.pdf")), 1);
    ASSERT_FALSE(uitkomst);
    EXPECT_NE(std::string::npos, uitkomst.error().bestand.find("lijst.pdf"));
}

TEST_F(PrinterTest, DeDialoogGeeftEenPdfbestandMetEenReeksBladen)
{
    EXPECT_EQ((std::vector<int>{3, 4, 5}), Keus([](QDialog& dialoog) {
                  Vink(dialoog, "printRange");
                  EXPECT_EQ(9, Getal(dialoog, "to")->maximum());
                  Getal(dialoog, "from")->setValue(3);
                  Getal(dialoog, "to")->setValue(5);
              }));
    ASSERT_TRUE(Print(gekozen->printer, 2));
    EXPECT_EQ(2U, Lees().size());
}

/// They would not work, or print other pages than those asked for.
TEST_F(PrinterTest, LosseEnEvenBladenWordenNietAangeboden)
{
    EXPECT_EQ(Alle(9), Keus([](QDialog& dialoog) {
                  VouwUit(dialoog);
                  EXPECT_FALSE(Vind<QWidget>(dialoog, "from")->visibleRegion().isEmpty());
                  for (const char* naam :
                       {"pagesRadioButton", "pagesLineEdit", "pageSetLabel", "pageSetCombo"}) {
                      const auto* deel = Vind<QWidget>(dialoog, naam);
                      EXPECT_TRUE(deel->visibleRegion().isEmpty()) << naam;
                      EXPECT_EQ(Qt::NoFocus, deel->focusPolicy()) << naam;
                  }
              }));
}

/// The whole list is the proposal, as a range; the page in view is one to choose where there is
/// one.
TEST_F(PrinterTest, HetVoorstelIsVanHetEersteTotHetLaatsteBlad)
{
    const std::function<int()> zeven = [] { return 7; };
    for (const auto& inBeeld : {std::function<int()>(), zeven}) {
        const auto bladen = Keus(
            [&](QDialog& dialoog) {
                EXPECT_TRUE(Vind<QRadioButton>(dialoog, "printRange")->isChecked());
                EXPECT_EQ(1, Getal(dialoog, "from")->value());
                EXPECT_EQ(9, Getal(dialoog, "to")->value());
                const auto* huidig = Vind<QRadioButton>(dialoog, "printCurrentPage");
                EXPECT_EQ(static_cast<bool>(inBeeld), huidig->isVisibleTo(huidig->parentWidget()));
            },
            inBeeld);
        EXPECT_EQ(Alle(9), bladen);
    }
    EXPECT_EQ((std::vector<int>{7}),
              Keus([](QDialog& dialoog) { Vink(dialoog, "printCurrentPage"); }, zeven));
    EXPECT_EQ(Alle(9), Keus([](QDialog& dialoog) { Vink(dialoog, "printAll"); }, zeven));
}

/// On a system whose own print dialog has no PDF file.
class ZonderPdfTest : public PrinterTest {
  protected:
    std::optional<Printkeus> Kies(const QStringList& printers)
    {
        hoofd.show();
        auto keus = KiesPrinter(
            schijf, {.titel = u"Ledenlijst Gr01"_s, .stand = Papierstand::Staand, .bladen = 9},
            &hoofd, {.printers = printers});
        wachter.Klaar();
        return keus;
    }
    void VerwachtVraag(const QString& antwoord)
    {
        wachter.Verwacht({.tekst = u"Wilt u de bladen printen of opslaan als PDF-bestand?"_s,
                          .antwoord = antwoord,
                          .icoon = QMessageBox::Question,
                          .knoppen = {u"Printen..."_s, u"PDF-bestand..."_s, u"Annuleren"_s}});
    }
    void VerwachtBestand(const char* naam)
    {
        const QString pad = QString::fromStdString((map.Weg() / naam).string());
        wachter.Bedien([pad](QDialog& dialoog) {
            auto& kiezer = dynamic_cast<QFileDialog&>(dialoog);
            EXPECT_EQ("Opslaan als PDF-bestand", kiezer.windowTitle().toStdString());
            auto* vak = Vind<QLineEdit>(kiezer, "fileNameEdit");
            EXPECT_EQ("Ledenlijst Gr01.pdf", vak->text().toStdString());
            vak->setText(pad);
            QMetaObject::invokeMethod(&kiezer, "accept");
        });
    }
    void VerwachtSysteem()
    {
        wachter.Bedien([](QDialog& dialoog) {
            EXPECT_NE(nullptr, qobject_cast<QPrintDialog*>(&dialoog));
            DrukPrintdialoog(dialoog, QDialogButtonBox::RejectRole);
        });
    }
};

TEST_F(ZonderPdfTest, HetBestandKrijgtAlleBladenEnZijnAchtervoegsel)
{
    VerwachtVraag(u"PDF-bestand..."_s);
    VerwachtBestand("lijst");
    const auto keus = Kies({u"Kantoor"_s});
    ASSERT_TRUE(keus);
    EXPECT_EQ(Alle(9), keus->bladen);
    ASSERT_TRUE(Print(keus->printer, 2));
    EXPECT_EQ(2U, Lees().size());
}

TEST_F(ZonderPdfTest, ZonderPrinterVolgtMeteenHetBestand)
{
    VerwachtBestand("lijst.pdf");
    EXPECT_TRUE(Kies({}));
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    EXPECT_FALSE(Kies({}));
    EXPECT_TRUE(std::filesystem::is_empty(map.Weg()));
}

TEST_F(ZonderPdfTest, VoorEenPrinterVolgtHetVensterVanHetSysteemEnDieZelfPdfMaaktVraagtNiets)
{
    VerwachtVraag(u"Printen..."_s);
    VerwachtSysteem();
    EXPECT_FALSE(Kies({u"Kantoor"_s}));
    VerwachtVraag(Berichtwachter::Escape);
    EXPECT_FALSE(Kies({u"Kantoor"_s}));
    VerwachtSysteem();
    EXPECT_FALSE(Kies({u"Kantoor"_s, u"Microsoft Print to PDF"_s}));
}

TEST_F(PrinterTest, AnnulerenGeeftGeenPrinter)
{
    wachter.Bedien([this](QDialog& dialoog) {
        KiesPdf(dialoog, map.Weg() / "lijst.pdf");
        DrukPrintdialoog(dialoog, QDialogButtonBox::RejectRole);
    });
    EXPECT_FALSE(KiesPrinter(schijf, {.titel = u"Proef"_s, .stand = Papierstand::Staand}, &hoofd));
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.pdf"));
}

class GekozenBladenTest : public testing::Test {
  protected:
    GekozenBladenTest() { printer.setOutputFileName(u"lijst.pdf"_s); }

    std::vector<int> Reeks(int van, int tot)
    {
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(van, tot);
        return GekozenBladen(printer, 5, 2);
    }

    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(GekozenBladenTest, EenReeksEnOmgekeerdEnMeerExemplaren)
{
    using Nummers = std::vector<int>;
    EXPECT_EQ((Nummers{2}), Reeks(0, 0));
    EXPECT_EQ((Nummers{2}), Reeks(0, 3));
    EXPECT_EQ((Nummers{1}), Reeks(1, 1));
    EXPECT_EQ((Nummers{4, 5}), Reeks(4, 99));
    EXPECT_EQ((Nummers{}), Reeks(6, 9));
    printer.setPageOrder(QPrinter::LastPageFirst);
    EXPECT_EQ((Nummers{4, 3, 2}), Reeks(2, 4));
    EXPECT_EQ((Nummers{5, 4}), Reeks(4, 6)); // there are no more than five
    printer.setCopyCount(2);
    printer.setCollateCopies(true);
    EXPECT_EQ((Nummers{4, 3, 2, 4, 3, 2}), Reeks(2, 4));
    printer.setCollateCopies(false);
    EXPECT_EQ((Nummers{4, 4, 3, 3, 2, 2}), Reeks(2, 4));
    printer.setPageOrder(QPrinter::FirstPageFirst);
    printer.setPrintRange(QPrinter::CurrentPage);
    EXPECT_EQ((Nummers{5, 5}), GekozenBladen(printer, 9, 5));
    printer.setPrintRange(QPrinter::AllPages);
    EXPECT_EQ((Nummers{1, 1, 2, 2}), GekozenBladen(printer, 2, 2));
    printer.setOutputFileName({}); // a printer makes its copies itself
    EXPECT_EQ((Nummers{1, 2}), GekozenBladen(printer, 2, 2));
}

/// Where the machine has a printer there is nothing to see here.
TEST(StandaardPrinterTest, ZonderPrinterIsHetEenFout)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "op deze computer is een standaardprinter";
    const auto printer = StandaardPrinter();
    ASSERT_FALSE(printer);
    EXPECT_EQ(Foutsoort::Ontbreekt, printer.error().soort);
}

TEST(MeldPrintfoutTest, ZegtWatErMisIs)
{
    Berichtwachter wachter;
    wachter.Verwacht(
        {.tekst =
             u"Er is niets geprint: op deze computer is geen printer geïnstalleerd of geen "
             "standaardprinter gekozen. De gegevens van de spelers zijn niet veranderd. Kies een "
             "standaardprinter in de instellingen van uw computer."_s,
         .icoon = QMessageBox::Critical});
    MeldPrintfout(nullptr, {Foutsoort::Ontbreekt, {}, 0, {}});
    wachter.Verwacht(
        {.tekst =
             u"Het printen is niet gelukt. De gegevens van de spelers zijn niet veranderd. Kijk "
             "of de printer aan staat of, bij een PDF-bestand, of u op die plaats mag schrijven "
             "en of er nog ruimte is.\n\nBestand: /uit/lijst.pdf\nMelding van het systeem: schijf "
             "vol"_s,
         .icoon = QMessageBox::Critical});
    MeldPrintfout(nullptr, {Foutsoort::Geweigerd, "/uit/lijst.pdf", 0, "schijf vol"});
}
