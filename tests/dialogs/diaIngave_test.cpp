// The entry dialog as it opens: its controls, their places, colours and texts, and the return
// field.

#include "dialogs/ingaveproef.h"

using namespace plexoran;

namespace {

/// Twips to pixels at the standard font.
int Tw(int twips)
{
    return qRound(twips / 15.0);
}

class diaIngaveTest : public Ingaveproef {};

QColor Kleur(const QWidget* deel, QPalette::ColorRole rol)
{
    return deel->palette().color(deel->isEnabled() ? QPalette::Active : QPalette::Disabled, rol);
}

} // namespace

TEST_F(diaIngaveTest, HetVensterZelfEnZijnPlaats)
{
    hoofd.setWindowIcon(QPixmap(16, 16));
    Open();
    VerwachtTeksten("Ingeven persoonsgegevens",
                    {{"Label1", "Regelnummer 37"}, {"Label2", "Rood = verplichte ingave"}},
                    {{"cmdOK", "OK"}, {"cmdAnnuleren", "Annuleren"}});
    EXPECT_EQ(QSize(Tw(5500), Tw(7650)), venster->size());
    EXPECT_EQ(hoofd.windowIcon().cacheKey(), venster->windowIcon().cacheKey());
    Open("Gr05-", true, "Aanmaken");
    EXPECT_EQ("Aanmaken nieuwe regel", Deel<QLabel>("Label1")->text().toStdString());
    Open();
    const int scherm = venster->screen()->availableGeometry().height();
    const QRect kader = hoofd.frameGeometry();
    EXPECT_EQ(kader.x() + kader.width() - Tw(5500) - Tw(100), venster->x());
    EXPECT_NEAR((scherm - Tw(7650)) / 2, venster->y(), 1);
}

TEST_F(diaIngaveTest, DePlaatsenVanDeVelden)
{
    Open();
    for (int veld = 1; veld <= 18; ++veld) {
        SCOPED_TRACE(veld);
        const int boven = Tw(500 + (veld - 1) * 300);
        EXPECT_EQ(QPoint(Tw(1500), boven), Vak(veld)->pos());
        EXPECT_EQ(Tw(veld == 13 ? 500 : 2500), Vak(veld)->width());
        EXPECT_EQ(boven, Label(veld)->y());
        if (Label(veld)->sizeHint().width() <= Tw(1100)) {
            EXPECT_EQ(Tw(300), Label(veld)->x());
            EXPECT_EQ(Tw(1100), Label(veld)->width());
        }
        EXPECT_GE(Label(veld)->x(), 0);
        EXPECT_LE(Label(veld)->geometry().right(), Vak(veld)->x());
        EXPECT_GE(Label(veld)->width(), Label(veld)->sizeHint().width()) << "past niet";
        EXPECT_TRUE(Vak(veld)->isVisible());
        if (veld > 3) {
            EXPECT_EQ(Tw(1500) + Tw(2500) + Tw(100), Keus(veld)->x());
            EXPECT_EQ(boven, Keus(veld)->y());
            EXPECT_TRUE(Keus(veld)->isVisible());
            EXPECT_EQ("Kies hier het terugkeerveld tbv snelle ingave",
                      Keus(veld)->toolTip().toStdString());
        }
    }
}

TEST_F(diaIngaveTest, DePlaatsenOnderaanEnNaastDeVelden)
{
    Open();
    const auto* ok = Deel<QPushButton>("cmdOK");
    const auto* annuleren = Deel<QPushButton>("cmdAnnuleren");
    EXPECT_EQ(0, Deel<QLabel>("Label1")->x());
    EXPECT_EQ(venster->width(), Deel<QLabel>("Label1")->width());
    EXPECT_EQ(QPoint(venster->width() - ok->width() - Tw(100),
                     venster->height() - ok->height() - Tw(100)),
              ok->pos());
    EXPECT_EQ(QPoint(ok->x() - annuleren->width() - Tw(300), ok->y()), annuleren->pos());
    EXPECT_EQ(QPoint(Tw(100), ok->y() - Tw(250)), Deel<QLabel>("Label2")->pos());
    // The sex and the help stand beside their fields.
    const auto* kader = Deel<QWidget>("Frame1");
    EXPECT_EQ(Vak(13)->y(), kader->y());
    EXPECT_GT(kader->x(), Vak(13)->geometry().right());
    EXPECT_LT(kader->geometry().right(), Keus(13)->x());
    EXPECT_EQ(QPoint(Keus(16)->x() + Tw(300), Vak(16)->y()), Deel<QPushButton>("cmdH_1")->pos());
    EXPECT_TRUE(Deel<QPushButton>("cmdH_1")->isVisible());
    EXPECT_LE(Deel<QPushButton>("cmdH_1")->geometry().right(), venster->width());
}

TEST_F(diaIngaveTest, DeOpschriftenInDeImportgroep)
{
    Open();
    const std::array<const char*, 18> namen{
        "Nr:",    "Key:",   "Groep:", "Voornaam:", "Tusv:",   "Achternaam:",
        "Telef:", "Email:", "Adres:", "Postc:",    "Plaats:", "Land:",
        "",       "Div1:",  "Div2:",  "Status:",   "NBBgr:",  "NBBnr:"};
    for (int veld = 1; veld <= 18; ++veld)
        EXPECT_EQ(namen[static_cast<std::size_t>(veld - 1)], Label(veld)->text().toStdString());
    EXPECT_EQ("Man", Opschrift(Deel<QRadioButton>("optMan")));
    EXPECT_EQ("Vrouw", Opschrift(Deel<QRadioButton>("optVrouw")));
}

TEST_F(diaIngaveTest, BuitenDeImportgroepEenSubgroepEnGeenNummer)
{
    for (const bool importgroep : {false, true}) {
        Open("Gr02-Avond", importgroep);
        EXPECT_EQ(importgroep ? "NBBgr:" : "Subgroep", Label(17)->text().toStdString());
        EXPECT_EQ(importgroep ? "NBBnr:" : "-----", Label(18)->text().toStdString());
        EXPECT_TRUE(Vak(17)->isVisible());
        for (const QWidget* deel : std::initializer_list<QWidget*>{Label(18), Vak(18), Keus(18)})
            EXPECT_EQ(importgroep, deel->isVisible()) << deel->objectName().toStdString();
    }
}

TEST_F(diaIngaveTest, AlleenDeAchternaamIsRoodEnVetEnDeEersteDrieZijnNietTeTypen)
{
    Open();
    for (int veld = 1; veld <= 18; ++veld) {
        SCOPED_TRACE(veld);
        EXPECT_EQ(veld == 6, Label(veld)->font().bold());
        EXPECT_EQ(veld == 6 ? QColor(255, 0, 0) : QColor(Qt::black),
                  Kleur(Label(veld), QPalette::WindowText));
        EXPECT_EQ(veld > 3, Vak(veld)->isEnabled());
        EXPECT_EQ(veld <= 3, Vak(veld)->isReadOnly());
        if (veld < 3) {
            EXPECT_EQ(venster->palette().color(QPalette::Button), Kleur(Vak(veld), QPalette::Base));
        }
    }
    EXPECT_EQ(nullptr, venster->findChild<QWidget*>(u"opt1_3"_s));
}

TEST_F(diaIngaveTest, DeGroepStaatVetRoodOpGeelInHetMidden)
{
    Open("Gr05-Bonds & leden", true);
    EXPECT_EQ("Gr05-Bonds & leden", Tekst_(3));
    EXPECT_TRUE(Vak(3)->font().bold());
    EXPECT_EQ(qRound(10 * 96 / 72.0), QFontInfo(Vak(3)->font()).pixelSize());
    EXPECT_EQ(QColor(255, 0, 0), Kleur(Vak(3), QPalette::Text));
    EXPECT_EQ(QColor(255, 255, 0), Kleur(Vak(3), QPalette::Base));
    EXPECT_TRUE(Vak(3)->alignment() & Qt::AlignHCenter);
    const QImage beeld = Vak(3)->grab().toImage();
    EXPECT_EQ(QColor(255, 255, 0), beeld.pixelColor(4, beeld.height() / 2));
    int rood = 0;
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            rood += beeld.pixelColor(x, y) == QColor(255, 0, 0);
    EXPECT_GT(rood, 20);
}

TEST_F(diaIngaveTest, ElkVeldToontZijnTekst)
{
    velden[16] = "b-lijn \xE9";
    Open();
    EXPECT_EQ("Gr05-Bondsleden", Tekst_(3));
    for (const int veld : {1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16})
        EXPECT_EQ("veld" + std::to_string(veld), Tekst_(veld));
    EXPECT_EQ("B-LIJN É", Tekst_(17));
    EXPECT_EQ("1234567", Tekst_(18));
}

TEST_F(diaIngaveTest, HetGeslachtBijHetOpenenEnNaEenKeuze)
{
    for (const auto& [tekst, wordt, man, vrouw] :
         {std::tuple("M", "M", true, false), std::tuple("V", "V", false, true),
          std::tuple("", "M", true, false), std::tuple("X", "X", false, false),
          std::tuple("m", "m", false, false)}) {
        velden[12] = tekst;
        Open();
        EXPECT_EQ(wordt, Tekst_(13));
        EXPECT_EQ(man, Deel<QRadioButton>("optMan")->isChecked()) << tekst;
        EXPECT_EQ(vrouw, Deel<QRadioButton>("optVrouw")->isChecked()) << tekst;
        KlikOK();
        EXPECT_EQ(wordt, ingave.IngaveVelden[12]);
    }
    velden[12] = "X";
    Open();
    for (const auto& [knop, letter] :
         {std::pair("optVrouw", "V"), std::pair("optMan", "M"), std::pair("optVrouw", "V")}) {
        Klik(Deel<QRadioButton>(knop), {6, 8});
        EXPECT_EQ(letter, Tekst_(13));
    }
    KlikOK();
    EXPECT_EQ("V", ingave.IngaveVelden[12]);
}

TEST_F(diaIngaveTest, DeHulpVoorStatus)
{
    Open();
    wachter.Verwacht(
        {.tekst =
             u"Status: type 'overl' of 'overleden'. (is overleden)\r\n\r\nDeze speler wordt niet "
             "meer getoond bij 'Zittingindelen'.\r\n\r\n\r\nTekst mag in hoofdletters of kleine "
             "letters."_s,
         .titel = u"Hulp voor Status"_s,
         .knoppen = {u"OK"_s}});
    Klik(Deel<QPushButton>("cmdH_1"));
    wachter.Klaar();
    EXPECT_TRUE(IsOpen());
}

// ---- The return field -------------------------------------------------------------------------

TEST_F(diaIngaveTest, HetTerugkeerveldHeeftDeFocusMetDeCursorAchterDeTekst)
{
    for (const int veld : {4, 6, 12, 14, 18}) {
        terugkeer = static_cast<std::int16_t>(veld);
        Open();
        EXPECT_TRUE(Vak(veld)->hasFocus()) << veld;
        EXPECT_TRUE(Keus(veld)->isChecked()) << veld;
        EXPECT_EQ(Vak(veld)->text().size(), Vak(veld)->cursorPosition());
        EXPECT_FALSE(Vak(veld)->hasSelectedText());
    }
    EXPECT_EQ(0, bewaard) << "openen kiest niet";
    // Meant: the caret goes to position 50, which is behind a text only as long as that is shorter.
    velden[3] = Tekst(60, 'x');
    terugkeer = 4;
    Open();
    EXPECT_EQ(50, Vak(4)->cursorPosition());
}

TEST_F(diaIngaveTest, ZonderZichtbaarTerugkeerveldBlijftDeFocusWaarZeWas)
{
    for (const int veld : {13, 3, 1, 0, -5, 19, 99}) {
        terugkeer = static_cast<std::int16_t>(veld);
        Open();
        EXPECT_TRUE(Vak(4)->hasFocus()) // the first field that takes it
            << veld << " " << venster->focusWidget()->objectName().toStdString();
        for (int i = 4; i <= 18; ++i)
            EXPECT_FALSE(Keus(i)->isChecked()) << veld << " " << i;
        EXPECT_EQ(veld, terugkeer);
    }
    terugkeer = 18;
    OpenGewoneGroep();
    EXPECT_FALSE(Vak(18)->hasFocus());
    KlikOK();
    EXPECT_TRUE(Geaccepteerd());
    EXPECT_EQ(18, terugkeer);
}

TEST_F(diaIngaveTest, HetKiezenVanEenTerugkeerveldBewaartMeteenEnGaatErheen)
{
    Open();
    Klik(Keus(8));
    EXPECT_EQ(8, terugkeer);
    EXPECT_EQ(1, bewaard);
    EXPECT_TRUE(Vak(8)->hasFocus());
    EXPECT_EQ(5, Vak(8)->cursorPosition());
    Klik(Keus(11));
    EXPECT_EQ(11, terugkeer);
    EXPECT_EQ(2, bewaard);
    EXPECT_FALSE(Keus(8)->isChecked());
    EXPECT_TRUE(Deel<QRadioButton>("optMan")->isChecked()) << "een andere groep van knoppen";
    // The sex too is remembered, but does not get the focus.
    Klik(Keus(13));
    EXPECT_EQ(13, terugkeer);
    EXPECT_EQ(3, bewaard);
    EXPECT_FALSE(Vak(13)->hasFocus());
    Klik(Keus(11));
    Klik(Deel<QPushButton>("cmdAnnuleren"));
    EXPECT_EQ(11, terugkeer) << "ook na annuleren";
}

TEST_F(diaIngaveTest, TabGaatVanBovenNaarBeneden)
{
    terugkeer = 4;
    Open();
    for (const int veld : {5, 6, 7, 8, 9, 10, 11, 12, 13}) {
        Tab();
        EXPECT_TRUE(Vak(veld)->hasFocus()) << veld;
    }
    Tab();
    EXPECT_TRUE(Deel<QRadioButton>("optMan")->hasFocus());
    Vak(16)->setFocus();
    for (const char* naam : {"cmdH_1", "txt1_17", "txt1_18", "opt1_4"}) {
        Tab();
        EXPECT_STREQ(naam, venster->focusWidget()->objectName().toUtf8().constData());
    }
}

TEST_F(diaIngaveTest, NietsIsAfgekniptOokMetGrotereLetters)
{
    const QFont oud = QApplication::font();
    for (const double punten : {9.0, 13.5, 18.0}) {
        SCOPED_TRACE(punten);
        QFont groot = oud;
        groot.setPointSizeF(punten);
        QApplication::setFont(groot);
        Open();
        for (const auto* label : venster->findChildren<QLabel*>()) {
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
            EXPECT_LE(QFontMetrics(label->font()).height(), label->height());
            EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
        }
        for (const auto* knop : venster->findChildren<QRadioButton*>())
            EXPECT_LE(knop->sizeHint().width(), knop->width()) << knop->objectName().toStdString();
        for (const auto* vak : venster->findChildren<QLineEdit*>())
            EXPECT_LE(QFontMetrics(vak->font()).height(), vak->height())
                << vak->objectName().toStdString();
    }
    venster.reset();
    QApplication::setFont(oud);
}
