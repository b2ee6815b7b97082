#include "printing/frmAfdrukken.h"

#include <QCheckBox>
#include <QScreen>

#include "hulp/dialoogproef.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "hulp/vlakvanger.h"
#include "hulp/voortgangstopper.h"
#include "printing/printproef.h"

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
    void Toets(Qt::Key toets, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::keyClick(Deel<QWidget>("picP0"), toets, bij);
    }
    void Wiel(int hoek, Qt::KeyboardModifiers bij) const
    {
        DraaiWiel(Deel<QWidget>("picP1"), {0, hoek}, bij);
    }

    [[nodiscard]] Pdfblad BladInBeeld() const
    {
        return plexoran::BladInBeeld(*Deel<QWidget>("picP1"), map.Weg() / "beeld.pdf");
    }
    /// Prints to a PDF file, what the print dialog proposes or what `stappen` choose; then comes
    /// the message, if there is one.
    std::vector<Pdfblad> Print(
        const std::function<void(QDialog&)>& stappen = [](QDialog&) {},
        const std::optional<Bericht>& melding = {})
    {
        std::filesystem::remove(bestand); // else the dialog asks first
        VerwachtPdf(wachter, bestand, stappen);
        if (melding)
            wachter.Verwacht(*melding);
        Opdracht("cmdPrinten");
        EXPECT_TRUE(venster->isVisible());
        return std::filesystem::exists(bestand) ? LeesPdf(bestand) : std::vector<Pdfblad>();
    }
    /// The last line of each page: "Blad 1 van 4".
    static std::vector<std::string> Voeten(const std::vector<Pdfblad>& bladen)
    {
        std::vector<std::string> voeten;
        for (const Pdfblad& blad : bladen)
            voeten.push_back(blad.Regel(blad.hoog - 15 + 3).substr(25));
        return voeten;
    }
    void WaarschuwtTeBreed()
    {
        wachter.Waarschuwing(
            u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    }
    void WaarschuwtTeVeel()
    {
        wachter.Waarschuwing(u"\r\nEr worden niet meer dan 30 pagina's tegelijk geprint!\r\n"_s);
    }
    /// Where the last ink stands that the printed page has at this height: the middle of a line, in
    /// millimetres.
    [[nodiscard]] double RechterLijn(double y) const
    {
        constexpr int punten = 20; // to the millimetre
        const QImage beeld = Pdfbeeld(bestand, punten);
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
    const std::filesystem::path bestand = map.Weg() / "lijst.pdf";
};

const Bericht PrintMislukt{
    .tekst = u"Het printen is niet gelukt."_s, .icoon = QMessageBox::Critical, .alleenBegin = true};

} // namespace

TEST_F(frmAfdrukkenTest, DeOpschriftenEnDeTabvolgorde)
{
    OpenRijen(56);
    VerwachtTeksten("Toon/print ....",
                    {{"Label1", "Print blad 1"}, {"Label2", "Printformaat: A4-staand"}}, {});
    EXPECT_EQ("1", Vak("txtBlad"));
    EXPECT_EQ("(Totaal 2)", Vak("txtAantPages"));
    EXPECT_FALSE(Deel<QLabel>("lblReden")->isVisible());
    EXPECT_EQ(Qt::ClickFocus, Deel<QLineEdit>("txtAantPages")->focusPolicy()); // no tab stop
    EXPECT_TRUE(Deel<QWidget>("picP0")->hasFocus());
    EXPECT_EQ("Bladscroll txtBlad cmdPrinten cmdAnnuleren picP0 ", MetTab(5));
}

/// As far as the screen allows; its frame grows with the window.
TEST_F(frmAfdrukkenTest, HetVensterIsZoHoogAlsHetScherm)
{
    OpenRijen(1);
    EXPECT_EQ(QSize(Maten().Twips(12700), venster->screen()->availableSize().height()),
              venster->property(Standaardmaat).toSize());
    const int kader = Deel<QWidget>("picP0")->height();
    venster->resize(venster->width(), venster->height() - 100);
    QApplication::processEvents();
    EXPECT_EQ(kader - 100, Deel<QWidget>("picP0")->height());
}

TEST_F(frmAfdrukkenTest, DeBalkLooptLangsAlleBladen)
{
    for (const auto& [rijen, bladen] : {std::pair(54, 1), {55, 2}, {29 * 55, 30}}) {
        OpenRijen(rijen); // without a warning
        EXPECT_EQ(1, Balk()->minimum());
        EXPECT_EQ(bladen, Balk()->maximum());
        EXPECT_EQ(1, Balk()->value());
        EXPECT_EQ(1, Balk()->singleStep());
        EXPECT_EQ(1, Balk()->pageStep());
        EXPECT_EQ("(Totaal " + std::to_string(bladen) + ")", Vak("txtAantPages"));
    }
}

/// More pages are neither printed nor proposed.
TEST_F(frmAfdrukkenTest, MeerDanDertigBladen)
{
    WaarschuwtTeVeel();
    OpenRijen(2000);
    EXPECT_EQ(30, Balk()->maximum());
    EXPECT_EQ("(Totaal 37)", Vak("txtAantPages"));
    EXPECT_EQ(30U, Print().size());
    const auto voeten = Voeten(Print(KiesAlles));
    EXPECT_EQ(30U, voeten.size());
    EXPECT_EQ("Blad 30 van 37", voeten.back());
}

TEST_F(frmAfdrukkenTest, EenBredeLijstGaatLiggen)
{
    Open(MaakPrintspelers(1, Tekst(130, 'x')), {Kolom::Achternaam});
    EXPECT_EQ("Printformaat: A4-liggend", Label("Label2"));
    EXPECT_TRUE(Deel<QLabel>("lblReden")->isVisible());
    EXPECT_EQ("Liggend omdat de kolommen samen 244 mm breed zijn; staand is er 210 mm.",
              Label("lblReden"));
    const QSize vlak = Deel<QWidget>("picP1")->size();
    EXPECT_NEAR(297.0 / 210, static_cast<double>(vlak.width()) / vlak.height(), 0.01);
}

TEST_F(frmAfdrukkenTest, EenTeBredeLijstWaarschuwtEnNoemtWatOntbreekt)
{
    WaarschuwtTeBreed();
    Open(MaakPrintspelers(1, Tekst(200, 'x')), {Kolom::Voornaam, Kolom::Achternaam, Kolom::Telef});
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
    Open(spelers, {Kolom::Achternaam, Kolom::NBBnr}, 1, namen);
    const Pdfblad blad = Print().at(0);
    EXPECT_EQ("RegNr Achternaam", blad.Regel(blad.Woord("RegNr").boven));
    EXPECT_EQ("1 Bos 12345", blad.Regel(blad.Woord("12345").boven));

    WaarschuwtTeBreed();
    Open(MaakPrintspelers(1, Tekst(200, 'x')), {Kolom::Achternaam, Kolom::NBBnr}, 1, namen);
    EXPECT_TRUE(Label("lblReden").ends_with("Niet op het blad: Achternaam, (kolom 18)"));
}

TEST_F(frmAfdrukkenTest, EenBladKiezenMetDeBalk)
{
    OpenRijen(120);
    EXPECT_EQ("v1", BladInBeeld().Woord("v1").tekst);
    Balk()->setValue(2);
    EXPECT_EQ("Print blad 2", Label("Label1"));
    EXPECT_EQ("2", Vak("txtBlad"));
    EXPECT_EQ("v56", BladInBeeld().Woord("v56").tekst);
    EXPECT_THROW((void)BladInBeeld().Woord("v1"), std::runtime_error);
}

TEST_F(frmAfdrukkenTest, EenBladKiezenMetToetsenOfEenNummer)
{
    OpenRijen(200);
    using Stap = std::tuple<const char*, Qt::Key, int>;
    for (const auto& [deel, toets, blad] :
         {Stap("picP0", Qt::Key_PageDown, 2), Stap("picP0", Qt::Key_End, 4),
          Stap("picP0", Qt::Key_PageDown, 4), Stap("picP0", Qt::Key_PageUp, 3),
          Stap("picP0", Qt::Key_Home, 1), Stap("Bladscroll", Qt::Key_Right, 2),
          Stap("Bladscroll", Qt::Key_Right, 3), Stap("Bladscroll", Qt::Key_Left, 2),
          Stap("Bladscroll", Qt::Key_Down, 3), Stap("Bladscroll", Qt::Key_Up, 2),
          Stap("Bladscroll", Qt::Key_PageDown, 3), Stap("Bladscroll", Qt::Key_PageUp, 2),
          Stap("Bladscroll", Qt::Key_End, 4), Stap("Bladscroll", Qt::Key_Home, 1)}) {
        Deel<QWidget>(deel)->setFocus();
        QTest::keyClick(Deel<QWidget>(deel), toets);
        EXPECT_EQ(blad, Balk()->value()) << deel << toets;
    }
    Schrijf(*venster, "txtBlad", u"4"_s);
    QTest::keyClick(Deel<QLineEdit>("txtBlad"), Qt::Key_Return); // opens no print dialog
    EXPECT_EQ(4, Balk()->value());
    EXPECT_EQ("Print blad 4", Label("Label1"));
}

/// The keys that turn the page and zoom work from every part of the window.
TEST_F(frmAfdrukkenTest, DeToetsenWerkenOokInHetVakEnOpDeKnoppen)
{
    OpenRijen(200);
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
    OpenRijen(200);
    Schrijf(*venster, "txtBlad", u"3"_s);
    VerwachtPdf(wachter, bestand, KiesHuidig);
    QTest::keyClick(Deel<QLineEdit>("txtBlad"), Qt::Key_P, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(bestand); }));
    EXPECT_EQ(std::vector<std::string>{"Blad 3 van 4"}, Voeten(LeesPdf(bestand)));
}

TEST_F(frmAfdrukkenTest, HetBladMetDeAandachtHeeftEenRand)
{
    OpenRijen(2);
    auto* kader = Deel<QWidget>("picP0");
    const QColor rand = kader->palette().color(QPalette::Highlight);
    const auto hoek = [&] {
        QApplication::processEvents();
        const QPoint plek = kader->mapTo(venster.get(), QPoint(0, kader->height() / 2));
        return venster->grab().toImage().pixelColor(plek);
    };
    kader->setFocus();
    EXPECT_EQ(rand, hoek());
    Knop("cmdPrinten")->setFocus();
    EXPECT_NE(rand, hoek());
}

/// A number that is no page cannot be typed or goes when the box is left.
TEST_F(frmAfdrukkenTest, EenNummerDatGeenBladIs)
{
    OpenRijen(200);
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
    OpenRijen(10);
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
    OpenRijen(10);
    QApplication::setFont(oud);
    EXPECT_EQ("100 %", Label("lblZoom"));
    EXPECT_EQ(qRound(210 * PixelsPerMm), Deel<QWidget>("picP1")->width());
    EXPECT_EQ(qRound(297 * PixelsPerMm), Deel<QWidget>("picP1")->height());
}

/// What is in the middle of the view stays there; a page that stands at its top stays at its top.
TEST_F(frmAfdrukkenTest, ZoomenHoudtDePlekInBeeld)
{
    OpenRijen(55);
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
    OpenRijen(10);
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

/// Portrait at each scale, landscape, and a list too wide to stand beside the margin: the printed
/// words stand where the layout puts them with the letters of the paper.
TEST_F(frmAfdrukkenTest, DePdfHeeftElkeTekstOpZijnTiendeMillimeter)
{
    for (const auto& [schaal, letters] : {std::pair<float, std::size_t>(1.0F, 3),
                                          {0.7F, 3},
                                          {1.3F, 3},
                                          {1.0F, 130},
                                          {0.8F, 170},
                                          {1.0F, 146}}) {
        const Tekst lang(letters, 'x');
        Open(MaakPrintspelers(3, lang), {Kolom::Voornaam, Kolom::Achternaam}, schaal);
        const auto bladen = Print();
        ASSERT_EQ(1U, bladen.size());
        const Pdfblad& blad = bladen[0];
        const bool ligt = letters > 3;
        EXPECT_NEAR(ligt ? 297 : 210, blad.breed, Tiende);
        EXPECT_NEAR(ligt ? 210 : 297, blad.hoog, Tiende);

        const Letterkast kast;
        Printtabel print = MaakPrinttabel(
            tabel, {.groepscode = "Gr01-", .kolommen = {Kolom::Voornaam, Kolom::Achternaam}});
        const Bladindeling indeling = BerekenKolommen(print, schaal, kast);
        Vlakvanger vlak(kast);
        TekenBlad(vlak, {std::move(print), indeling, {}, {}, {}, {}}, 1);
        for (const char* woord :
             {"Spelerinformatie", "RegNr", "Voornaam", "Achternaam", "v1", "v2", "v3"}) {
            const auto deel = vlak.Deel(woord);
            EXPECT_NEAR(deel.x, blad.Woord(woord).links, Tiende) << woord;
            EXPECT_NEAR(deel.y, blad.Woord(woord).boven, Tiende) << woord;
            EXPECT_NEAR(deel.x + kast.Breedte(deel.letter, woord), blad.Woord(woord).rechts, Tiende)
                << woord;
        }
        EXPECT_NEAR(vlak.Deel(lang).x, blad.Woord(lang).links, Tiende);
        const auto breed = static_cast<double>(indeling.Printbreedte());
        const double links = letters == 146 ? (297 - breed) / 2 : 15;
        EXPECT_LT(links, 15.1);
        EXPECT_NEAR(links, blad.Woord("Spelerinformatie").links, Tiende);
        EXPECT_NEAR(ligt ? 10 : 15, blad.Woord("Spelerinformatie").boven, Tiende);
        EXPECT_NEAR(links + breed, RechterLijn(blad.Woord("v1").boven), Tiende);
    }
}

/// The preview puts them at the same places, but for the dots of the screen.
TEST_F(frmAfdrukkenTest, HetVoorbeeldIsHetBladDatErUitKomt)
{
    constexpr double punt = 25.4 / 96;
    OpenRijen(56);
    const Pdfblad beeld = BladInBeeld();
    const auto papier = Print().at(0);
    ASSERT_EQ(papier.Tekst(), beeld.Tekst());
    for (std::size_t i = 0; i < papier.woorden.size(); ++i) {
        EXPECT_NEAR(papier.woorden[i].links, beeld.woorden[i].links, punt);
        EXPECT_NEAR(papier.woorden[i].boven, beeld.woorden[i].boven, punt);
        EXPECT_NEAR(papier.woorden[i].rechts, beeld.woorden[i].rechts, punt);
    }
}

/// So that Enter prints the whole list.
TEST_F(frmAfdrukkenTest, HetVoorstelIsDeHeleLijst)
{
    OpenRijen(200);
    Balk()->setValue(3);
    wachter.Bedien([&](QDialog& dialoog) {
        KiesPdf(dialoog, bestand);
        QTest::keyClick(&dialoog, Qt::Key_Return);
    });
    Opdracht("cmdPrinten");
    const auto bladen = LeesPdf(bestand);
    ASSERT_EQ(4U, bladen.size());
    EXPECT_EQ("v1", bladen[0].Woord("v1").tekst);
    EXPECT_EQ("v200", bladen[3].Woord("v200").tekst);
}

/// The page in view, a range, and that last page first or in copies, which the print dialog offers
/// for a PDF file too.
TEST_F(frmAfdrukkenTest, DeBladenDieGekozenZijn)
{
    const std::string twee = "Blad 2 van 4";
    const std::string drie = "Blad 3 van 4";
    using Voettekst = std::vector<std::string>;
    OpenRijen(200);
    Balk()->setValue(3);
    EXPECT_EQ((Voettekst{drie}), Voeten(Print(KiesHuidig)));
    const auto bladen = Print([](QDialog& dialoog) { KiesReeks(dialoog, 2, 3); });
    EXPECT_EQ((Voettekst{twee, drie}), Voeten(bladen));
    EXPECT_EQ("v56", bladen[0].Woord("v56").tekst);
    EXPECT_EQ("v165", bladen[1].Woord("v165").tekst);
    EXPECT_EQ(3, Balk()->value());
    for (const bool perExemplaar : {true, false})
        EXPECT_EQ(perExemplaar ? (Voettekst{drie, twee, drie, twee})
                               : (Voettekst{drie, drie, twee, twee}),
                  Voeten(Print([&](QDialog& dialoog) {
                      KiesReeks(dialoog, 2, 3);
                      Vind<QCheckBox>(dialoog, "reverse")->setChecked(true);
                      Vind<QSpinBox>(dialoog, "copies")->setValue(2);
                      Vind<QCheckBox>(dialoog, "collate")->setChecked(perExemplaar);
                  })));
}

/// What was drawn before the stop comes out, as a whole file, and the user knows how much it is.
TEST_F(frmAfdrukkenTest, StoppenNaHetBladDatWordtGetekend)
{
    OpenRijen(500); // ten pages
    for (const int na : {1, 4}) {
        const QString melding =
            u"Het printen is gestopt na %1 van de 9 bladen. De gegevens van de spelers zijn niet "
            "veranderd. De overige bladen kunt u later printen."_s.arg(na);
        const Voortgangstopper stopper(na);
        const auto bladen = Print([](QDialog& dialoog) { KiesReeks(dialoog, 2, 10); },
                                  Bericht{.tekst = melding, .knoppen = {u"OK"_s}});
        EXPECT_EQ(na, stopper.Stappen());
        ASSERT_EQ(static_cast<std::size_t>(na), bladen.size());
        EXPECT_EQ("Blad 2 van 10", Voeten(bladen).front());
        EXPECT_EQ("Blad " + std::to_string(na + 1) + " van 10", Voeten(bladen).back());
        EXPECT_NO_THROW((void)bladen.back().Woord("v" + std::to_string(55 * (na + 1))));
        EXPECT_EQ("Print blad 1", Label("Label1"));
    }
    EXPECT_EQ(10U, Print(KiesAlles).size()); // the window is as it was
}

/// A click that comes with the last page has nothing left to stop.
TEST_F(frmAfdrukkenTest, StoppenBijHetLaatsteBladIsKlaar)
{
    OpenRijen(120);
    const Voortgangstopper stopper(3);
    EXPECT_EQ(3U, Print(KiesAlles).size());
    EXPECT_EQ(3, stopper.Stappen());
}

TEST_F(frmAfdrukkenTest, EenVolleSchijfWordtGemeldEnLaatGeenHalfBestand)
{
    OpenRijen(500);
    schijf.FaalVanaf(2);
    EXPECT_TRUE(Print(KiesAlles, PrintMislukt).empty());
    const Voortgangstopper stopper(2); // nor is it told then that printing was stopped
    EXPECT_TRUE(Print(KiesAlles, PrintMislukt).empty());
}

TEST_F(frmAfdrukkenTest, AnnulerenPrintNiets)
{
    OpenRijen(3);
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Klik(Knop("cmdPrinten"));
    EXPECT_FALSE(std::filesystem::exists(bestand));
    EXPECT_TRUE(venster->isVisible());
}

/// Only syncing the folder, the last step, fails.
TEST_F(frmAfdrukkenTest, EenBestandDatErStaatMaarNietVastIsGeprint)
{
    OpenRijen(3);
    schijf.FaalBij(6); // make, write, sync, close, rename, and then the folder
    const Bericht staatEr{
        .tekst = u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf."_s,
        .icoon = QMessageBox::Warning,
        .alleenBegin = true};
    EXPECT_EQ(1U, Print(KiesAlles, staatEr).size());
}

TEST_F(frmAfdrukkenTest, TerugEnEscapeSluiten)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        OpenRijen(3);
        Sluit(weg, "cmdAnnuleren");
    }
}
