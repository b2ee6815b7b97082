// How the user sees his players: the edges of the header, hidden columns, the order of the lines,
// the buttons folded away, and all of it remembered.
#include <QAction>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QScreen>
#include <QToolTip>

#include <fstream>

#include "mainwindow/venstergeheugen.h"
#include "mainwindow/vensterproef.h"
#include "platform/scherm/schildervlak.h"
#include "platform/schijf/systeempad.h"

using namespace plexoran;

namespace {

class BeeldTest : public Hoofdvensterproef {
  protected:
    BeeldTest()
    {
        administratie.vensterIni = PadVan(Ini());
        Start();
    }
    [[nodiscard]] std::filesystem::path Ini() const
    {
        return suite.Weg() / "eigen" / "venster.ini";
    }
    [[nodiscard]] QAction* Actie(const char* naam) const
    {
        auto* actie = venster->findChild<QAction*>(QString::fromLatin1(naam));
        if (actie == nullptr)
            throw std::runtime_error(naam);
        return actie;
    }
    /// On the right edge of a header.
    [[nodiscard]] QPoint Rand(int kolom, int erbij = -1) const
    {
        return {Header(kolom)->width() + erbij, 5};
    }
    void Sleep(int kolom, int pixels) const
    {
        QPushButton* kop = Header(kolom);
        QTest::mousePress(kop, Qt::LeftButton, {}, Rand(kolom, 0));
        QTest::mouseMove(kop, Rand(kolom, pixels / 2));
        QTest::mouseMove(kop, Rand(kolom, pixels - pixels / 2));
        QTest::mouseRelease(kop, Qt::LeftButton, {}, Rand(kolom, 0));
        QApplication::processEvents();
    }
    [[nodiscard]] std::vector<int> Breedten() const
    {
        std::vector<int> uit;
        for (int i = 1; i <= 18; ++i)
            uit.push_back(Header(i)->isHidden() ? 0 : Header(i)->width());
        return uit;
    }
    /// Another start of the program for the same user.
    void NieuwVenster()
    {
        EXPECT_TRUE(venster->close());
        venster.reset();
        Start();
    }
    [[nodiscard]] std::string Cel(int regel, int kolom) const
    {
        return dynamic_cast<Roostervlak&>(*Vlak()).Celtekst(regel, kolom - 1).toStdString();
    }
};

} // namespace

TEST_F(BeeldTest, EenRandIsTeVerslepenEnAndereKolommenHoudenHunBreedte)
{
    const auto voor = Breedten();
    KiesRegel(2);
    Sleep(6, 40);
    auto moet = voor;
    moet[5] += 40;
    for (std::size_t i = 0; i < moet.size(); ++i)
        EXPECT_NEAR(moet[i], Breedten()[i], 1) << i;
    EXPECT_TRUE(Deel("Line1")->isVisible()) << "slepen is geen klik";
    const auto na = Breedten();
    NieuwVenster();
    EXPECT_EQ(na, Breedten());
    Vink("chkKolBr")->click(); // the rule has the last word again
    Vink("chkKolBr")->click();
    EXPECT_EQ(voor, Breedten());
}

TEST_F(BeeldTest, EenKolomWordtNietSmallerDanHetMinste)
{
    Sleep(6, -500);
    EXPECT_NEAR(4 * Maten().PixelsPerMm(), Header(6)->width(), 1);
}

/// At each width at which a name may or may not fit.
TEST_F(BeeldTest, WatIsIngekortHeeftEenWenkEnWatErHeelStaatNiet)
{
    auto& vlak = dynamic_cast<Roostervlak&>(*Vlak());
    const Tekstmeter meter = Roostermeter(vlak.font().pixelSize(), Maten().PixelsPerMm());
    const std::string naam = Cel(3, 6);
    int ingekort = 0;
    constexpr int breedten = 60;
    Kolomkeuzes keuzes{};
    for (int i = breedten; i > 0; --i) { // a tool tip that goes stays for a moment
        keuzes[5].breedte = 9 + 0.25 * i;
        Vind<Rooster>(*venster, "picP0")->Kies(keuzes);
        const QPoint plek = vlak.Plek(3, 5).center();
        QHelpEvent vraag(QEvent::ToolTip, plek, vlak.mapToGlobal(plek));
        qApp->notify(&vlak, &vraag);
        const bool heel = PasTekst(naam, keuzes[5].breedte, meter) == naam;
        EXPECT_EQ(heel ? "" : naam, QToolTip::text().toStdString()) << keuzes[5].breedte;
        ingekort += heel ? 0 : 1;
    }
    EXPECT_GT(ingekort, 5);
    EXPECT_LT(ingekort, breedten - 5);
}

TEST_F(BeeldTest, EenKlikOpDeRandZonderSlepenVerbergtDeLijnen)
{
    KiesRegel(2);
    Klik(Header(6), Rand(6));
    EXPECT_FALSE(Deel("Line1")->isVisible());
    EXPECT_EQ(2, GekozenRegel());
}

TEST_F(BeeldTest, OpDeRandVerandertDeMuis)
{
    QTest::mouseMove(Header(6), Rand(6, -20));
    QApplication::processEvents();
    EXPECT_EQ(Qt::ArrowCursor, Header(6)->cursor().shape());
    for (const int vanaf : {-4, -1}) {
        QTest::mouseMove(Header(6), Rand(6, vanaf));
        QApplication::processEvents();
        EXPECT_EQ(Qt::SplitHCursor, Header(6)->cursor().shape()) << vanaf;
    }
    QTest::mouseMove(Header(7), {3, 5}); // the other side of the same edge
    QApplication::processEvents();
    EXPECT_EQ(Qt::SplitHCursor, Header(7)->cursor().shape());
}

TEST_F(BeeldTest, DubbelklikkenOpEenRandMaaktDeKolomPassend)
{
    const int was = Header(8)->width();
    QTest::mouseDClick(Header(8), Qt::LeftButton, {}, Rand(8));
    QApplication::processEvents();
    const double moet = dynamic_cast<Roostervlak&>(*Vlak()).Passend(7) * Maten().PixelsPerMm();
    EXPECT_GT(Header(8)->width(), was);
    EXPECT_NEAR(moet, Header(8)->width(), 1);
    NieuwVenster();
    EXPECT_NEAR(moet, Header(8)->width(), 1);
}

TEST_F(BeeldTest, KolommenPassendVultHetKaderZonderTeSchuiven)
{
    Vink("chkKolBr")->click();
    ASSERT_GT(Balk("HScroll1")->maximum(), 0);
    Actie("actPassend")->trigger();
    EXPECT_EQ(0, Balk("HScroll1")->maximum());
    EXPECT_NEAR(Vlak()->width(), Header(18)->geometry().right(), 3);
    Actie("actHerstel")->trigger();
    EXPECT_TRUE(Vink("chkKolBr")->isChecked());
}

TEST_F(BeeldTest, EenVerborgenKolomIsWegTotHijTerugkomt)
{
    const auto voor = Breedten();
    Actie("actKolom_2")->trigger();
    EXPECT_EQ(0, Breedten()[1]);
    KiesRegel(1);
    EXPECT_TRUE(Vlak()->accessibleDescription().startsWith(u"Regel 1, Nr 1, Groep Gr01-"_s))
        << Vlak()->accessibleDescription().toStdString();
    NieuwVenster();
    EXPECT_EQ(0, Breedten()[1]);
    EXPECT_FALSE(Actie("actKolom_2")->isChecked());
    Actie("actKolom_2")->trigger();
    EXPECT_EQ(voor, Breedten());
}

TEST_F(BeeldTest, DeLaatsteKolomBlijftStaan)
{
    KiesGroep(5);
    for (int kolom = 1; kolom <= 18; ++kolom)
        Actie(("actKolom_" + std::to_string(kolom)).c_str())->trigger();
    EXPECT_FALSE(Header(18)->isHidden());
    EXPECT_TRUE(Actie("actKolom_18")->isChecked());
}

TEST_F(BeeldTest, SorterenVerandertDeRegelsEnNietHetBestand)
{
    const std::string bestand = suite.Spelers();
    KiesRegel(1);
    const std::string sleutel = GekozenSleutel();
    const std::string laatste = Cel(50, 1);
    Actie("actVolgorde_6")->trigger();
    EXPECT_EQ(sleutel, GekozenSleutel()) << "wie gekozen was, blijft het";
    EXPECT_TRUE(Header(6)->font().bold());
    std::vector<Tekst> namen;
    for (int regel = 1; regel <= 50; ++regel)
        namen.push_back(Sorteersleutel(NaarTekst(QString::fromStdString(Cel(regel, 6)))));
    EXPECT_TRUE(std::is_sorted(namen.begin(), namen.end()));
    EXPECT_EQ(bestand, suite.Spelers());
    Actie("actVolgorde_0")->trigger();
    EXPECT_FALSE(Header(6)->font().bold());
    EXPECT_EQ("1", Cel(1, 1));
    EXPECT_EQ(laatste, Cel(50, 1));
}

TEST_F(BeeldTest, DeVolgordeGeldtOokDeVolgendeKeer)
{
    Actie("actVolgorde_6")->trigger();
    const std::string eerste = Cel(1, 6);
    NieuwVenster();
    EXPECT_EQ(eerste, Cel(1, 6));
    EXPECT_NE("1", Cel(1, 1));
    EXPECT_TRUE(Actie("actVolgorde_6")->isChecked());
    KiesGroep(5);
    Actie("actVolgorde_18")->trigger();
    NieuwVenster();
    KiesGroep(1);
    EXPECT_EQ("1", Cel(1, 1)) << "zonder naam geen kolom";
    KiesGroep(5);
    EXPECT_TRUE(Header(18)->font().bold());
    Actie("actVolgorde_0")->trigger();
    NieuwVenster();
    EXPECT_FALSE(Header(18)->font().bold());
}

TEST_F(BeeldTest, NaSorterenVerwijdertRegelDrieWieDaarStaat)
{
    Actie("actVolgorde_6")->trigger();
    const std::string weg = Cel(3, 2);
    const std::string blijft = Cel(4, 2);
    ASSERT_NE("3", Cel(3, 1));
    for (const char* keus : {"cmbVerwVan", "cmbVerwTot"})
        Keus(keus)->setCurrentIndex(2);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ(std::string::npos, suite.Spelers().find("," + weg + ","));
    EXPECT_EQ(blijft, Cel(3, 2)) << "de volgorde blijft";
    KiesRegel(3);
    Opdracht("cmdWijzig", [&](QDialog& ingave) {
        EXPECT_EQ(blijft, Vind<QLineEdit>(ingave, "txt1_2")->text().toStdString());
        Druk(ingave, "cmdAnnuleren");
    });
}

TEST_F(BeeldTest, EenNieuweSpelerKomtInBeeldOokWaarDeVolgordeHemZet)
{
    Actie("actVolgorde_6")->trigger();
    Balk("VScroll1")->setValue(Balk("VScroll1")->maximum());
    VoegToe(u"!Aa"_s);
    EXPECT_EQ("!Aa", Cel(1, 6));
    EXPECT_EQ(0, Balk("VScroll1")->value());
}

TEST_F(BeeldTest, RechtsklikkenOpEenHeaderGeeftHetMenuVanDieKolom)
{
    QContextMenuEvent rechts(QContextMenuEvent::Mouse, {5, 5},
                             Header(6)->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Header(6), &rechts);
    auto* menu = Vind<QMenu>(*venster, "mnuKop");
    EXPECT_TRUE(menu->isVisible());
    QStringList teksten;
    for (const QAction* actie : menu->actions())
        teksten << actie->text();
    EXPECT_EQ("Op &Achternaam; Kolom &Achternaam; &Tabelvolgorde; Kolommen &passend; Kolommen "
              "&herstellen; &Kolommen tonen",
              teksten.join(u"; "_s).toStdString());
    menu->close();
}

TEST_F(BeeldTest, F9VouwtDeKnoppenWegEnDatBlijftZo)
{
    const int hoog = Deel("picP0")->height();
    Knop("cmdAanm")->setFocus();
    QTest::keyClick(Knop("cmdAanm"), Qt::Key_F9);
    QApplication::processEvents();
    EXPECT_FALSE(Knop("cmdAanm")->isVisible());
    EXPECT_TRUE(Vlak()->hasFocus());
    EXPECT_GT(Deel("picP0")->height(), hoog + 100);
    EXPECT_TRUE(Actie("actNieuw")->isEnabled());
    NieuwVenster();
    EXPECT_FALSE(Knop("cmdAanm")->isVisible());
    Toets(Qt::Key_F9);
    EXPECT_TRUE(Knop("cmdAanm")->isVisible());
    NieuwVenster();
    EXPECT_TRUE(Knop("cmdAanm")->isVisible());
}

TEST_F(BeeldTest, HetVensterKomtTerugWaarHetStond)
{
    const auto heropen = [this] {
        EXPECT_TRUE(venster->close());
        venster = std::make_unique<frmLedenAdmin>(administratie);
    };
    venster->setGeometry(60, 70, 777, 555);
    QApplication::processEvents();
    heropen();
    EXPECT_EQ(QRect(60, 70, 777, 555), venster->geometry());
    // With other screens it has no place yet; a place that is on no screen is not used.
    venster->show();
    venster->move(9000, 9000);
    QApplication::processEvents();
    heropen();
    EXPECT_TRUE(venster->screen()->geometry().contains(venster->geometry().topLeft()));
}

TEST_F(BeeldTest, MetAndereSchermenKomtHetVensterWaarHetDaarmeeStond)
{
    QString schermen = u"Plaats/een"_s;
    Venstergeheugen geheugen(administratie.vensterIni, [&] { return schermen; });
    QWidget raam;
    raam.resize(300, 200);
    geheugen.Volg(raam);
    raam.show();
    constexpr int rust = 800;
    const auto zet = [&](const QRect& plek) {
        raam.setGeometry(plek);
        QTest::qWait(rust);
    };
    const auto wissel = [&](const QString& naar, auto meld) {
        schermen = naar;
        meld();
        QTest::qWait(rust);
    };
    QScreen* scherm = QGuiApplication::primaryScreen();
    zet({60, 70, 320, 210});
    wissel(u"Plaats/twee"_s, [&] {
        raam.move(5, 5); // by the system, with the screen that went
        emit qGuiApp->screenRemoved(scherm);
    });
    EXPECT_TRUE(scherm->geometry().contains(raam.geometry()));
    zet({90, 20, 400, 250});
    wissel(u"Plaats/een"_s, [&] { emit qGuiApp->screenAdded(scherm); });
    EXPECT_EQ(QRect(60, 70, 320, 210), raam.geometry());
    wissel(u"Plaats/twee"_s, [&] { emit qGuiApp->primaryScreenChanged(scherm); });
    EXPECT_EQ(QRect(90, 20, 400, 250), raam.geometry());
    raam.move(9000, 9000); // with screens that are new here it is brought back
    wissel(u"Plaats/drie"_s, [&] { emit qGuiApp->screenRemoved(scherm); });
    EXPECT_TRUE(scherm->geometry().contains(raam.geometry().topLeft()));
}

TEST_F(BeeldTest, EenKapotOfOnbereikbaarBestandDoetGeenKwaad)
{
    const auto voor = Breedten();
    EXPECT_TRUE(venster->close());
    venster.reset();
    std::filesystem::create_directories(Ini().parent_path());
    std::string alle = "[Verborgen]\n";
    for (const Tekstblik naam : Kolomnamen)
        alle += Vervang(naam, '/', '_') + "=true\n";
    for (const std::string& inhoud :
         {std::string("\0\xFF[[[=;\n=\n[Breedte]\nKey=veel\nNr=-3\nPlaats=1e99\n", 46),
          std::string("[Breedte]\nKey=nan\nEmail=inf\n"), std::string("[Plaats]\n800x600.0.0=x\n"),
          std::string(100'000, 'x')}) {
        std::ofstream(Ini(), std::ios::binary) << inhoud;
        Start();
        EXPECT_EQ(voor, Breedten());
        EXPECT_TRUE(venster->close());
        venster.reset();
    }
    std::filesystem::remove(Ini());
    std::filesystem::create_directories(Ini()); // a folder in its place
    Start();
    Sleep(6, 10);
    EXPECT_TRUE(venster->close());
}
