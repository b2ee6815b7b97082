#include "printing/frmAfdrukken.h"

#include <QCheckBox>
#include <QPainter>
#include <QPdfWriter>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include <gtest/gtest.h>

#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"
#include "printing/printproef.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr double Tiende = 0.1;              // millimetre
constexpr double PixelsPerMm = 96.0 / 25.4; // of the screen of the tests

/// The page shows the cells of the table.
struct Afdrukstand : Mapstand {
    Spelertabel tabel;
};

class frmAfdrukkenTest : public Dialoogproef<frmAfdrukken, Afdrukstand> {
  protected:
    frmAfdrukkenTest() { administratie.mappen.APPEXE = "Ravendeck.exe"; }

    void Open(Spelertabel nieuw, std::vector<Kolom> kolommen, float schaal = 1,
              const std::array<Tekstblik, AantalKolommen>& namen = Kolomnamen)
    {
        venster.reset();
        tabel = std::move(nieuw);
        Toon(administratie, Afdruk{.tabel = MaakPrinttabel(tabel, {.groepscode = "Gr01-",
                                                                   .kolommen = std::move(kolommen),
                                                                   .kolomnamen = namen}),
                                   .groeptekst = "Gr01-Clubleden",
                                   .subgroepkop = "Subgroep(en): A + B",
                                   .schaal = schaal});
    }
    void OpenRijen(int aantal, float schaal = 1)
    {
        Open(MaakPrintspelers(aantal), {Kolom::Voornaam, Kolom::Achternaam}, schaal);
    }

    [[nodiscard]] QScrollBar* Balk(const char* naam = "Bladscroll") const
    {
        return Deel<QScrollBar>(naam);
    }
    [[nodiscard]] std::string Vak(const char* naam) const
    {
        return Deel<QLineEdit>(naam)->text().toStdString();
    }
    void Toets(Qt::Key toets, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::keyClick(Deel<QWidget>("picP0"), toets, bij);
    }
    void Wiel(int hoek, Qt::KeyboardModifiers bij) const
    {
        auto* vlak = Deel<QWidget>("picP1");
        QWheelEvent wiel({20, 20}, vlak->mapToGlobal(QPointF(20, 20)), {}, {0, hoek}, Qt::NoButton,
                         bij, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wiel);
        qApp->notify(vlak, &wiel);
    }

    /// The page in view at 100 %, drawn on paper of its size and read back.
    [[nodiscard]] Pdfblad BladInBeeld() const
    {
        auto* vlak = Deel<QWidget>("picP1");
        const auto pad = map.Weg() / "beeld.pdf";
        {
            QPdfWriter pdf(QString::fromStdString(pad.string()));
            pdf.setResolution(96);
            pdf.setPageSize(QPageSize(QSizeF(vlak->size()) * 72.0 / 96.0, QPageSize::Point));
            pdf.setPageMargins({});
            QPainter schilder(&pdf);
            vlak->render(&schilder, {}, {}, QWidget::RenderFlags());
        }
        return LeesPdf(pad).at(0);
    }
    /// Prints to a PDF file, what the print dialog proposes or what `stappen` choose.
    std::vector<Pdfblad> Print(const std::function<void(QDialog&)>& stappen = [](QDialog&) {})
    {
        std::filesystem::remove(map.Weg() / "lijst.pdf"); // else the dialog asks first
        VerwachtPdf(wachter, map.Weg() / "lijst.pdf", stappen);
        Klik(Deel<QPushButton>("cmdPrinten"));
        wachter.Klaar();
        return LeesPdf(map.Weg() / "lijst.pdf");
    }
    /// Where the last ink stands that the printed page has at this height: the middle of a line, in
    /// millimetres.
    [[nodiscard]] double RechterLijn(double y) const
    {
        constexpr int punten = 20; // to the millimetre
        const QImage beeld = Pdfbeeld(map.Weg() / "lijst.pdf", punten);
        const auto inkt = [&](int x) {
            return qGray(beeld.pixel(x, static_cast<int>(y * punten))) < 200;
        };
        int rechts = beeld.width() - 1;
        while (rechts > 0 && !inkt(rechts))
            --rechts;
        int links = rechts;
        while (links > 0 && inkt(links - 1))
            --links;
        return (links + rechts + 1) / 2.0 / punten;
    }
    static void KiesAlles(QDialog& dialoog)
    {
        Vind<QRadioButton>(dialoog, "printAll")->setChecked(true);
    }
    static void KiesHuidig(QDialog& dialoog)
    {
        Vind<QRadioButton>(dialoog, "printCurrentPage")->setChecked(true);
    }
    static void KiesReeks(QDialog& dialoog, int van, int tot)
    {
        Vind<QRadioButton>(dialoog, "printRange")->setChecked(true);
        Vind<QSpinBox>(dialoog, "from")->setValue(van);
        Vind<QSpinBox>(dialoog, "to")->setValue(tot);
    }
};

} // namespace

TEST_F(frmAfdrukkenTest, DeOpschriften)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(56));
    EXPECT_EQ("Toon/print ....", venster->windowTitle().toStdString());
    EXPECT_EQ("Printformaat: A4-staand", Label("Label2"));
    EXPECT_EQ("Print blad 1", Label("Label1"));
    EXPECT_EQ("1", Vak("txtBlad"));
    EXPECT_EQ("(Totaal 2)", Vak("txtAantPages"));
    EXPECT_FALSE(Deel<QLabel>("lblReden")->isVisible());
    EXPECT_EQ(Qt::ClickFocus, Deel<QLineEdit>("txtAantPages")->focusPolicy()); // no tab stop
}

TEST_F(frmAfdrukkenTest, DeTabtoetsSlaatHetAantalBladenOver)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(56));
    std::vector<std::string> volgorde;
    for (int keer = 0; keer < 6; ++keer) {
        volgorde.push_back(QApplication::focusWidget()->objectName().toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ((std::vector<std::string>{"picP0", "Bladscroll", "txtBlad", "cmdPrinten",
                                        "cmdAnnuleren", "picP0"}),
              volgorde);
}

/// As far as the screen allows; its frame grows with the window.
TEST_F(frmAfdrukkenTest, HetVensterIsZoHoogAlsHetScherm)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(1));
    EXPECT_EQ(QSize(Maten().Twips(12700), venster->screen()->availableSize().height()),
              venster->property(Standaardmaat).toSize());
    const int kader = Deel<QWidget>("picP0")->height();
    venster->resize(venster->width(), venster->height() - 100);
    QApplication::processEvents();
    EXPECT_EQ(kader - 100, Deel<QWidget>("picP0")->height());
}

TEST_F(frmAfdrukkenTest, VijfenvijftigRijenGevenTweeBladen)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(54));
    EXPECT_EQ(1, Balk()->maximum());
    ASSERT_NO_FATAL_FAILURE(OpenRijen(55));
    EXPECT_EQ(1, Balk()->minimum());
    EXPECT_EQ(2, Balk()->maximum());
    EXPECT_EQ(1, Balk()->value());
    EXPECT_EQ(1, Balk()->singleStep());
    EXPECT_EQ(1, Balk()->pageStep());
    EXPECT_EQ("(Totaal 2)", Vak("txtAantPages"));
}

TEST_F(frmAfdrukkenTest, MeerDanDertigBladen)
{
    wachter.Waarschuwing(u"\r\nEr worden niet meer dan 30 pagina's tegelijk geprint!\r\n"_s);
    ASSERT_NO_FATAL_FAILURE(OpenRijen(2000));
    EXPECT_EQ(30, Balk()->maximum());
    EXPECT_EQ("(Totaal 37)", Vak("txtAantPages"));
    const auto bladen = Print(KiesAlles);
    EXPECT_EQ(30U, bladen.size());
    EXPECT_EQ("Blad 30 van 37", bladen.back().Regel(297 - 15 + 3).substr(25));
}

TEST_F(frmAfdrukkenTest, TeBreedEnTeVeelBladenGeeftBeideWaarschuwingen)
{
    wachter.Waarschuwing(
        u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    wachter.Waarschuwing(u"\r\nEr worden niet meer dan 30 pagina's tegelijk geprint!\r\n"_s);
    ASSERT_NO_FATAL_FAILURE(
        Open(MaakPrintspelers(2000, Tekst(250, 'x')), {Kolom::Voornaam, Kolom::Achternaam}));
    EXPECT_EQ(30, Balk()->maximum());
    EXPECT_EQ("Printformaat: A4-liggend", Label("Label2"));
}

TEST_F(frmAfdrukkenTest, PreciesDertigBladenGeeftGeenWaarschuwing)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(29 * 55));
    EXPECT_EQ(30, Balk()->maximum());
    EXPECT_EQ("(Totaal 30)", Vak("txtAantPages"));
}

TEST_F(frmAfdrukkenTest, EenBredeLijstGaatLiggen)
{
    ASSERT_NO_FATAL_FAILURE(Open(MaakPrintspelers(1, Tekst(130, 'x')), {Kolom::Achternaam}));
    EXPECT_EQ("Printformaat: A4-liggend", Label("Label2"));
    EXPECT_TRUE(Deel<QLabel>("lblReden")->isVisible());
    EXPECT_EQ("Liggend omdat de kolommen samen 244 mm breed zijn; staand is er 210 mm.",
              Label("lblReden"));
    const QSize vlak = Deel<QWidget>("picP1")->size();
    EXPECT_NEAR(297.0 / 210, static_cast<double>(vlak.width()) / vlak.height(), 0.01);
}

TEST_F(frmAfdrukkenTest, EenTeBredeLijstWaarschuwtEnNoemtWatOntbreekt)
{
    wachter.Waarschuwing(
        u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    ASSERT_NO_FATAL_FAILURE(Open(MaakPrintspelers(1, Tekst(200, 'x')),
                                 {Kolom::Voornaam, Kolom::Achternaam, Kolom::Telef}));
    EXPECT_EQ("Printformaat: A4-liggend", Label("Label2"));
    EXPECT_TRUE(Deel<QLabel>("lblReden")->isVisible());
    EXPECT_EQ("De kolommen zijn samen 396 mm breed; liggend is er 297 mm. "
              "Niet op het blad: Achternaam, Telef",
              Label("lblReden"));
    const auto bladen = Print();
    EXPECT_EQ("RegNr Voornaam", bladen.at(0).Regel(bladen.at(0).Woord("RegNr").boven));
}

/// Outside the import group the last column has no name: none on paper, one in the window.
TEST_F(frmAfdrukkenTest, DeLaatsteKolomZonderNaam)
{
    auto namen = Kolomnamen;
    namen[Index(Kolom::NBBnr)] = "";
    Spelertabel spelers = MaakPrintspelers(1);
    spelers.ZetCel(1, Kolom::NBBnr, "12345");
    ASSERT_NO_FATAL_FAILURE(Open(spelers, {Kolom::Achternaam, Kolom::NBBnr}, 1, namen));
    const Pdfblad blad = Print().at(0);
    EXPECT_EQ("RegNr Achternaam", blad.Regel(blad.Woord("RegNr").boven));
    EXPECT_EQ("1 Bos 12345", blad.Regel(blad.Woord("12345").boven));

    wachter.Waarschuwing(
        u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    ASSERT_NO_FATAL_FAILURE(
        Open(MaakPrintspelers(1, Tekst(200, 'x')), {Kolom::Achternaam, Kolom::NBBnr}, 1, namen));
    EXPECT_TRUE(Label("lblReden").ends_with("Niet op het blad: Achternaam, (kolom 18)"));
}

TEST_F(frmAfdrukkenTest, EenBladKiezenMetDeBalk)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(120));
    EXPECT_EQ("v1", BladInBeeld().Woord("v1").tekst);
    Balk()->setValue(2);
    EXPECT_EQ("Print blad 2", Label("Label1"));
    EXPECT_EQ("2", Vak("txtBlad"));
    EXPECT_EQ("v56", BladInBeeld().Woord("v56").tekst);
    EXPECT_THROW((void)BladInBeeld().Woord("v1"), std::runtime_error);
}

TEST_F(frmAfdrukkenTest, EenBladKiezenMetToetsenOfEenNummer)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(2, Balk()->value());
    Toets(Qt::Key_End);
    EXPECT_EQ(4, Balk()->value());
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(4, Balk()->value());
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(3, Balk()->value());
    Toets(Qt::Key_Home);
    EXPECT_EQ(1, Balk()->value());
    Schrijf(*venster, "txtBlad", u"4"_s);
    QTest::keyClick(Deel<QLineEdit>("txtBlad"), Qt::Key_Return); // opens no print dialog
    EXPECT_EQ(4, Balk()->value());
    EXPECT_EQ("Print blad 4", Label("Label1"));
}

TEST_F(frmAfdrukkenTest, DePijltjesOpDeBladbalk)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Balk()->setFocus();
    using Stap = std::pair<Qt::Key, int>;
    for (const auto& [toets, blad] :
         {Stap(Qt::Key_Right, 2), Stap(Qt::Key_Right, 3), Stap(Qt::Key_Left, 2),
          Stap(Qt::Key_Down, 3), Stap(Qt::Key_Up, 2), Stap(Qt::Key_PageDown, 3),
          Stap(Qt::Key_PageUp, 2), Stap(Qt::Key_End, 4), Stap(Qt::Key_Home, 1)}) {
        QTest::keyClick(Balk(), toets);
        EXPECT_EQ(blad, Balk()->value()) << toets;
    }
}

/// The keys that turn the page and zoom work from every part of the window.
TEST_F(frmAfdrukkenTest, DeToetsenWerkenOokInHetVakEnOpDeKnoppen)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    int blad = 1;
    for (const char* naam : {"txtBlad", "cmdPrinten", "cmdAnnuleren"}) {
        auto* deel = Deel<QWidget>(naam);
        deel->setFocus();
        QTest::keyClick(deel, Qt::Key_PageDown);
        EXPECT_EQ(++blad, Balk()->value()) << naam;
        QTest::keyClick(deel, Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_EQ("110 %", Label("lblZoom")) << naam;
        QTest::keyClick(deel, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ("100 %", Label("lblZoom")) << naam;
    }
    QTest::keyClick(Deel<QWidget>("txtBlad"), Qt::Key_PageUp);
    EXPECT_EQ(3, Balk()->value());
}

/// It is the page in view that Alt+P prints, also when its number was only just typed.
TEST_F(frmAfdrukkenTest, EenGetyptNummerTeltVoorHetPrintenMetAltP)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Schrijf(*venster, "txtBlad", u"3"_s);
    VerwachtPdf(wachter, map.Weg() / "lijst.pdf", KiesHuidig);
    QTest::keyClick(Deel<QLineEdit>("txtBlad"), Qt::Key_P, Qt::AltModifier);
    const auto bestand = map.Weg() / "lijst.pdf";
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(bestand); }));
    const auto bladen = LeesPdf(bestand);
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("v111", bladen[0].Woord("v111").tekst);
}

TEST_F(frmAfdrukkenTest, HetBladMetDeAandachtHeeftEenRand)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(2));
    auto* kader = Deel<QWidget>("picP0");
    const QColor rand = kader->palette().color(QPalette::Highlight);
    const auto hoek = [&] { return kader->grab().toImage().pixelColor(0, kader->height() / 2); };
    kader->setFocus();
    EXPECT_EQ(rand, hoek());
    Deel<QPushButton>("cmdPrinten")->setFocus();
    EXPECT_NE(rand, hoek());
}

/// A number that is no page cannot be typed or goes when the box is left.
TEST_F(frmAfdrukkenTest, EenNummerDatGeenBladIs)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Balk()->setValue(3);
    for (const char* getypt : {"", "0", "00", "9", "x", "-1"}) {
        Schrijf(*venster, "txtBlad", QString::fromLatin1(getypt));
        QTest::keyClick(Deel<QLineEdit>("txtBlad"), Qt::Key_Return);
        const std::string verwacht = getypt == std::string("-1") ? "1" : "3"; // without its sign
        EXPECT_EQ(verwacht, Vak("txtBlad")) << getypt;
        EXPECT_EQ("Print blad " + verwacht, Label("Label1")) << getypt;
    }
    Balk()->setValue(3);
    Schrijf(*venster, "txtBlad", u"0"_s);
    Deel<QWidget>("picP0")->setFocus();
    EXPECT_EQ("3", Vak("txtBlad"));
}

TEST_F(frmAfdrukkenTest, ZoomenMetWielEnToetsen)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(10));
    const auto breed = [this] { return Deel<QWidget>("picP1")->width(); };
    const double mm = PixelsPerMm;
    EXPECT_NEAR(210 * mm, breed(), 1); // at 100 %
    EXPECT_EQ("100 %", Label("lblZoom"));
    Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ("110 %", Label("lblZoom"));
    EXPECT_NEAR(1.1 * 210 * mm, breed(), 1);
    Toets(Qt::Key_Minus, Qt::ControlModifier);
    Toets(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ("90 %", Label("lblZoom"));
    Toets(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ("100 %", Label("lblZoom"));
    Wiel(120, Qt::ControlModifier);
    Wiel(120, Qt::ControlModifier);
    EXPECT_EQ("125 %", Label("lblZoom"));
    Wiel(-60, Qt::ControlModifier); // half a step of a fine wheel
    EXPECT_EQ("125 %", Label("lblZoom"));
    Wiel(-60, Qt::ControlModifier);
    EXPECT_EQ("110 %", Label("lblZoom"));
    for (int keer = 0; keer < 30; ++keer)
        Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ("400 %", Label("lblZoom"));
    for (int keer = 0; keer < 30; ++keer)
        Wiel(-120, Qt::ControlModifier);
    EXPECT_EQ("25 %", Label("lblZoom"));
    EXPECT_FALSE(Balk("HScroll1")->isEnabled());
    EXPECT_EQ("1", Vak("txtBlad"));
}

/// Larger letters in the windows do not make the paper larger.
TEST_F(frmAfdrukkenTest, EenMillimeterBlijftEenMillimeterBijGroteLetters)
{
    const QFont oud = QApplication::font();
    QFont groot = oud;
    groot.setPixelSize(24);
    QApplication::setFont(groot);
    ASSERT_NO_FATAL_FAILURE(OpenRijen(10));
    QApplication::setFont(oud);
    EXPECT_EQ("100 %", Label("lblZoom"));
    EXPECT_EQ(qRound(210 * PixelsPerMm), Deel<QWidget>("picP1")->width());
    EXPECT_EQ(qRound(297 * PixelsPerMm), Deel<QWidget>("picP1")->height());
}

/// What is in the middle of the view stays there; a page that stands at its top stays at its top.
TEST_F(frmAfdrukkenTest, ZoomenHoudtDePlekInBeeld)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(55));
    venster->resize(500, 500);
    QApplication::processEvents();
    const auto* kader = Deel<QWidget>("P9");
    const auto* blad = Deel<QWidget>("picP1");
    const auto midden = [&](double mm) {
        return (kader->height() / 2.0 - blad->y()) / (mm * PixelsPerMm);
    };
    for (int keer = 0; keer < 3; ++keer)
        Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(qRound(3 * PixelsPerMm), blad->y()); // at 150 %
    Balk("VScroll1")->setValue(Balk("VScroll1")->maximum() / 2);
    const double bij150 = midden(1.5);
    Toets(Qt::Key_Plus, Qt::ControlModifier);
    Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ("200 %", Label("lblZoom"));
    EXPECT_NEAR(bij150, midden(2), 2); // millimetres of the page
    Balk("VScroll1")->setValue(Balk("VScroll1")->maximum());
    Toets(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GT(midden(1.75), 200);
}

TEST_F(frmAfdrukkenTest, HetBladVerschuiftInZijnKader)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(10));
    venster->resize(500, 500);
    QApplication::processEvents();
    auto* blad = Deel<QWidget>("picP1");
    const int rand = qRound(3 * PixelsPerMm);
    EXPECT_EQ(QPoint(rand, rand), blad->pos());
    Wiel(-120, {});
    EXPECT_LT(blad->y(), rand);
    Toets(Qt::Key_Right);
    EXPECT_LT(blad->x(), rand);
    Balk("VScroll1")->setValue(Balk("VScroll1")->maximum());
    Balk("HScroll1")->setValue(Balk("HScroll1")->maximum());
    const QWidget* kader = Deel<QWidget>("P9");
    EXPECT_NEAR(kader->height() - rand, blad->geometry().bottom() + 1, 1);
    EXPECT_NEAR(kader->width() - rand, blad->geometry().right() + 1, 1);
}

/// Three players with first name and surname, read back from a PDF: `links` and `boven` are where
/// the list begins on the sheet.
struct Lijstplaatsen {
    double s;
    double links;
    double boven;
    Letterkast kast{};
    Letter vet{.punten = 10 * s, .vet = true};
    Letter gewoon{.punten = 10 * s};
    double p = 0.8 * s;
    double x1 = 2 * p + kast.Breedte(vet, "RegNr");
    double x2 = x1 + 2 * p + kast.Breedte(vet, "Voornaam");

    void VergelijkMet(const Pdfblad& blad) const
    {
        EXPECT_NEAR(links, blad.Woord("Spelerinformatie").links, Tiende);
        EXPECT_NEAR(boven, blad.Woord("Spelerinformatie").boven, Tiende);
        EXPECT_NEAR(links + p, blad.Woord("RegNr").links, Tiende);
        EXPECT_NEAR(links + p + x1, blad.Woord("Voornaam").links, Tiende);
        EXPECT_NEAR(links + p + x2, blad.Woord("Achternaam").links, Tiende);
        const double titel = boven + 15 * s + (4.5 * s - kast.Hoogte(vet)) / 2;
        EXPECT_NEAR(titel, blad.Woord("RegNr").boven, Tiende);
        for (int rij = 1; rij <= 3; ++rij) {
            const auto& naam = blad.Woord("v" + std::to_string(rij));
            EXPECT_NEAR(links + p + x1, naam.links, Tiende);
            EXPECT_NEAR(boven + 19.5 * s + (rij - 1) * 4.5 * s +
                            (4.5 * s - kast.Hoogte(gewoon)) / 2,
                        naam.boven, Tiende);
        }
    }
};

TEST_F(frmAfdrukkenTest, DePdfHeeftElkeTekstOpZijnTiendeMillimeter)
{
    for (const float schaal : {1.0F, 0.7F, 1.3F}) {
        ASSERT_NO_FATAL_FAILURE(OpenRijen(3, schaal));
        const auto bladen = Print();
        ASSERT_EQ(1U, bladen.size());
        const Pdfblad& blad = bladen[0];
        EXPECT_NEAR(210, blad.breed, Tiende);
        EXPECT_NEAR(297, blad.hoog, Tiende);
        const Lijstplaatsen plaatsen{.s = static_cast<double>(schaal), .links = 15, .boven = 15};
        plaatsen.VergelijkMet(blad);
        EXPECT_NEAR(15 + plaatsen.kast.Breedte({.punten = 14 * plaatsen.s}, "Spelerinformatie"),
                    blad.Woord("Spelerinformatie").rechts, Tiende);
        EXPECT_NEAR(15 + plaatsen.p + plaatsen.x2 + plaatsen.kast.Breedte(plaatsen.gewoon, "Bos"),
                    blad.Woord("Bos").rechts, Tiende);
    }
}

/// A list between the margins, and one that is too wide for them and stands in the middle.
TEST_F(frmAfdrukkenTest, OokLiggendHeeftElkeTekstZijnTiendeMillimeter)
{
    for (const auto& [schaal, letters] :
         {std::pair<float, std::size_t>(1.0F, 130), {0.8F, 170}, {1.0F, 146}}) {
        const Tekst lang(letters, 'x');
        ASSERT_NO_FATAL_FAILURE(
            Open(MaakPrintspelers(3, lang), {Kolom::Voornaam, Kolom::Achternaam}, schaal));
        const auto bladen = Print();
        ASSERT_EQ(1U, bladen.size());
        const Pdfblad& blad = bladen[0];
        EXPECT_NEAR(297, blad.breed, Tiende);
        EXPECT_NEAR(210, blad.hoog, Tiende);
        Lijstplaatsen plaatsen{.s = static_cast<double>(schaal), .links = 15, .boven = 10};
        const double p = plaatsen.p;
        const double x2 = plaatsen.x2;
        const double x3 = x2 + 2 * p + plaatsen.kast.Breedte(plaatsen.gewoon, lang);
        if (letters == 146)
            plaatsen.links = (297 - x3) / 2;
        const double links = plaatsen.links;
        EXPECT_LT(links, 15.1);
        plaatsen.VergelijkMet(blad);
        EXPECT_NEAR(links + p + x2, blad.Woord(lang).links, Tiende);
        EXPECT_NEAR(links + x3 - p, blad.Woord(lang).rechts, Tiende);
        EXPECT_NEAR(links + x3, RechterLijn(10 + 19.5 * plaatsen.s + 1), Tiende);
    }
}

/// The preview puts them at the same places, but for the dots of the screen.
TEST_F(frmAfdrukkenTest, HetVoorbeeldIsHetBladDatErUitKomt)
{
    constexpr double punt = 25.4 / 96;
    ASSERT_NO_FATAL_FAILURE(OpenRijen(56));
    const Pdfblad beeld = BladInBeeld();
    const auto papier = Print().at(0);
    ASSERT_EQ(papier.Tekst(), beeld.Tekst());
    for (std::size_t i = 0; i < papier.woorden.size(); ++i) {
        EXPECT_NEAR(papier.woorden[i].links, beeld.woorden[i].links, punt);
        EXPECT_NEAR(papier.woorden[i].boven, beeld.woorden[i].boven, punt);
        EXPECT_NEAR(papier.woorden[i].rechts, beeld.woorden[i].rechts, punt);
    }
}

TEST_F(frmAfdrukkenTest, LiggendPapierLigt)
{
    ASSERT_NO_FATAL_FAILURE(Open(MaakPrintspelers(38, Tekst(130, 'x')), {Kolom::Achternaam}));
    const auto bladen = Print([](QDialog& dialoog) { KiesReeks(dialoog, 1, 2); });
    ASSERT_EQ(2U, bladen.size());
    EXPECT_NEAR(297, bladen[1].breed, Tiende);
    EXPECT_NEAR(210, bladen[1].hoog, Tiende);
    EXPECT_NEAR(10, bladen[1].Woord("Spelerinformatie").boven, Tiende);
    EXPECT_EQ("38", bladen[1].Woord("38").tekst); // 37 rows on the first
}

/// So that Enter prints the whole list.
TEST_F(frmAfdrukkenTest, HetVoorstelIsDeHeleLijst)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Balk()->setValue(3);
    std::filesystem::remove(map.Weg() / "lijst.pdf");
    wachter.Bedien([&](QDialog& dialoog) {
        KiesPdf(dialoog, map.Weg() / "lijst.pdf");
        QTest::keyClick(&dialoog, Qt::Key_Return);
    });
    Klik(Deel<QPushButton>("cmdPrinten"));
    wachter.Klaar();
    const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
    ASSERT_EQ(4U, bladen.size());
    EXPECT_EQ("v1", bladen[0].Woord("v1").tekst);
    EXPECT_EQ("v200", bladen[3].Woord("v200").tekst);
}

/// More pages than can be printed are not proposed either.
TEST_F(frmAfdrukkenTest, HetVoorstelBlijftBinnenDeGrens)
{
    wachter.Waarschuwing(u"\r\nEr worden niet meer dan 30 pagina's tegelijk geprint!\r\n"_s);
    ASSERT_NO_FATAL_FAILURE(OpenRijen(2000));
    EXPECT_EQ(30U, Print().size());
}

/// Without a range the page in view comes out.
TEST_F(frmAfdrukkenTest, HetBladInBeeldIsDeReeks)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    Balk()->setValue(3);
    const auto bladen = Print(KiesHuidig);
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("v111", bladen[0].Woord("v111").tekst);
}

TEST_F(frmAfdrukkenTest, EenReeksBladen)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    const auto bladen = Print([](QDialog& dialoog) { KiesReeks(dialoog, 2, 3); });
    ASSERT_EQ(2U, bladen.size());
    EXPECT_EQ("v56", bladen[0].Woord("v56").tekst);
    EXPECT_EQ("v165", bladen[1].Woord("v165").tekst);
    EXPECT_EQ(1, Balk()->value());
}

/// What was drawn before the stop comes out, as a whole file, and the user knows how much it is.
TEST_F(frmAfdrukkenTest, StoppenNaHetBladDatWordtGetekend)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(500)); // ten pages
    for (const auto& [na, melding] :
         {std::pair<int, QString>(
              1,
              u"Het printen is gestopt na 1 van de 9 bladen. De gegevens van de spelers zijn niet "
              "veranderd. De overige bladen kunt u later printen."_s),
          {4, u"Het printen is gestopt na 4 van de 9 bladen. De gegevens van de spelers zijn niet "
              "veranderd. De overige bladen kunt u later printen."_s}}) {
        std::filesystem::remove(map.Weg() / "lijst.pdf"); // else the dialog asks first
        const Voortgangstopper stopper(na);
        VerwachtPdf(wachter, map.Weg() / "lijst.pdf",
                    [](QDialog& dialoog) { KiesReeks(dialoog, 2, 10); });
        wachter.Informatie(melding);
        Klik(Deel<QPushButton>("cmdPrinten"));
        wachter.Klaar();
        EXPECT_EQ(na, stopper.Stappen());
        const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
        ASSERT_EQ(static_cast<std::size_t>(na), bladen.size());
        EXPECT_EQ("Blad 2 van 10", bladen.front().Regel(297 - 15 + 3).substr(25));
        EXPECT_EQ("Blad " + std::to_string(na + 1) + " van 10",
                  bladen.back().Regel(297 - 15 + 3).substr(25));
        EXPECT_EQ("v" + std::to_string(55 * (na + 1)),
                  bladen.back().Woord("v" + std::to_string(55 * (na + 1))).tekst);
        EXPECT_TRUE(venster->isVisible());
        EXPECT_EQ("Print blad 1", Label("Label1"));
    }
    EXPECT_EQ(10U, Print(KiesAlles).size()); // the window is as it was
}

/// A click that comes with the last page has nothing left to stop.
TEST_F(frmAfdrukkenTest, StoppenBijHetLaatsteBladIsKlaar)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(120));
    const Voortgangstopper stopper(3);
    EXPECT_EQ(3U, Print(KiesAlles).size());
    EXPECT_EQ(3, stopper.Stappen());
}

TEST_F(frmAfdrukkenTest, EenVolleSchijfNaHetStoppenIsDeMelding)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(500));
    schijf.FaalVanaf(2);
    const Voortgangstopper stopper(2);
    VerwachtPdf(wachter, map.Weg() / "lijst.pdf", KiesAlles);
    wachter.Verwacht({.tekst = u"Het printen is niet gelukt."_s,
                      .icoon = QMessageBox::Critical,
                      .alleenBegin = true});
    Klik(Deel<QPushButton>("cmdPrinten"));
    wachter.Klaar();
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.pdf"));
}

/// The print dialog offers both for a PDF file too.
TEST_F(frmAfdrukkenTest, OmgekeerdEnMeerExemplaren)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(200));
    for (const bool perExemplaar : {true, false}) {
        const auto bladen = Print([&](QDialog& dialoog) {
            KiesReeks(dialoog, 2, 3);
            Vind<QCheckBox>(dialoog, "reverse")->setChecked(true);
            Vind<QSpinBox>(dialoog, "copies")->setValue(2);
            Vind<QCheckBox>(dialoog, "collate")->setChecked(perExemplaar);
        });
        std::vector<std::string> voeten;
        voeten.reserve(bladen.size());
        for (const Pdfblad& blad : bladen)
            voeten.push_back(blad.Regel(297 - 15 + 3).substr(25));
        const std::string twee = "Blad 2 van 4";
        const std::string drie = "Blad 3 van 4";
        EXPECT_EQ(perExemplaar ? (std::vector<std::string>{drie, twee, drie, twee})
                               : (std::vector<std::string>{drie, drie, twee, twee}),
                  voeten);
    }
}

TEST_F(frmAfdrukkenTest, AnnulerenPrintNiets)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(3));
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Klik(Deel<QPushButton>("cmdPrinten"));
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.pdf"));
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(frmAfdrukkenTest, EenVolleSchijfWordtGemeldEnLaatGeenHalfBestand)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(3));
    schijf.FaalVanaf(2);
    VerwachtPdf(wachter, map.Weg() / "lijst.pdf");
    wachter.Verwacht({.tekst = u"Het printen is niet gelukt."_s,
                      .icoon = QMessageBox::Critical,
                      .alleenBegin = true});
    Klik(Deel<QPushButton>("cmdPrinten"));
    wachter.Klaar();
    EXPECT_TRUE(venster->isVisible());
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.pdf"));
}

/// Only syncing the folder, the last step, fails.
TEST_F(frmAfdrukkenTest, EenBestandDatErStaatMaarNietVastIsGeprint)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(3));
    schijf.FaalBij(6); // make, write, sync, close, rename, and then the folder
    VerwachtPdf(wachter, map.Weg() / "lijst.pdf");
    wachter.Verwacht(
        {.tekst = u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf."_s,
         .icoon = QMessageBox::Warning,
         .alleenBegin = true});
    Klik(Deel<QPushButton>("cmdPrinten"));
    wachter.Klaar();
    EXPECT_EQ(1U, LeesPdf(map.Weg() / "lijst.pdf").size());
}

TEST_F(frmAfdrukkenTest, TerugEnEscapeSluiten)
{
    ASSERT_NO_FATAL_FAILURE(OpenRijen(3));
    Klik(Deel<QPushButton>("cmdAnnuleren"));
    EXPECT_FALSE(venster->isVisible());
    ASSERT_NO_FATAL_FAILURE(OpenRijen(3));
    Toets(Qt::Key_Escape);
    EXPECT_FALSE(venster->isVisible());
}
