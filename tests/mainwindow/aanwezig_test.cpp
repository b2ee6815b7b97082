#include <QAction>
#include <QTimer>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

/// Somebody else has the register open.
class AanwezigTest : public Hoofdvensterproef {
  protected:
    AanwezigTest()
    {
        suite.Zet("Spelers/Aanwezig Kamer wil.txt", "Kamer 2\r\nwil\r\n02-11-2026 19:04\r\n");
    }
    void VerwachtVraag(const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"Er werkt al iemand met deze administratie:\nwil op Kamer 2, sinds 02-11-2026 "
                 "19:04\n\nSamenwerken: wat de ander opslaat, ziet u meteen; wat u beiden "
                 "wijzigt, wordt samengevoegd.\nAlleen kijken: u kunt niets "
                 "wijzigen.\nStoppen: Plexoran sluit."_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {u"Samenwerken"_s, u"Alleen kijken"_s, u"Stoppen"_s}});
    }
    [[nodiscard]] int Aanwezigen() const
    {
        const auto namen = suite.Namen("Spelers");
        return static_cast<int>(
            std::count_if(namen.begin(), namen.end(),
                          [](const std::string& naam) { return naam.starts_with("Aanwezig "); }));
    }
    /// What happens every half minute, happens now.
    void LaatTijdVoorbijGaan() const
    {
        for (auto* klok : venster->findChildren<QTimer*>()) {
            if (klok->isActive() && klok->interval() == 30'000)
                klok->start(1);
        }
        QTest::qWait(50);
    }
};

} // namespace

TEST_F(AanwezigTest, WieStoptLaatNietsAchter)
{
    VerwachtVraag(u"Stoppen"_s);
    venster = std::make_unique<frmLedenAdmin>(administratie);
    EXPECT_EQ(0, venster->Laad(suite.MappenIni(), [] { return true; }));
    wachter.Klaar();
    venster.reset();
    EXPECT_EQ(1, Aanwezigen());
}

TEST_F(AanwezigTest, WieSamenwerktIsZelfAanwezigTotHetEinde)
{
    VerwachtVraag(u"Samenwerken"_s);
    Start();
    EXPECT_EQ(2, Aanwezigen());
    for (const std::string& naam : suite.Namen("Spelers")) {
        if (naam.starts_with("Aanwezig "))
            std::filesystem::remove(suite.Weg() / "Spelers" / naam);
    }
    LaatTijdVoorbijGaan();
    EXPECT_EQ(1, Aanwezigen());
    VoegToe(u"Nieuweling"_s);
    EXPECT_NE(std::string::npos, suite.Spelers().find("Nieuweling"));
    EXPECT_TRUE(venster->close());
    venster.reset();
    EXPECT_EQ(0, Aanwezigen());
}

/// At the first question nothing was read yet, at the second one the players were.
TEST_F(AanwezigTest, WatDeAnderTijdensEenVraagOpslaatStaatErDaarna)
{
    wachter.LaatBeslissen([this](const QMessageBox& vraag) {
        const bool eerste = vraag.text().startsWith(u"Er werkt al iemand"_s);
        std::string tekst = suite.Spelers();
        suite.Zet(
            "Spelers/RVDspelers.txt",
            tekst.insert(tekst.find("1,100001"), std::string(eerste ? "0,100300" : "0,100301") +
                                                     ",Gr01-,,,Ander,,,,,,,V,,,,,\r\n"));
        return eerste ? u"Samenwerken"_s : u"Niet verhogen"_s;
    });
    Start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Aantal() == "Aantal regels: 52"; }, 2000));
}

TEST_F(AanwezigTest, WieAlleenKijktKanNietsWijzigen)
{
    VerwachtVraag(u"Alleen kijken"_s);
    Start();
    EXPECT_EQ("Onderhoud Plexoran (alleen kijken)[*]", venster->windowTitle().toStdString());
    EXPECT_EQ(1, Aanwezigen());
    const std::string spelers = suite.Spelers();
    const std::string instellingen = suite.Instellingen();
    KiesGroep(5);
    KiesGroep(1);
    KiesRegel(1);
    for (const char* naam : {"cmdAanm", "cmdWijzig", "cmdVerplaats", "cmdKopieer", "cmdVerwijder",
                             "cmdVerwijderVT", "cmdVerwGroep", "cmdMaakGrNamen", "cmdHaalNBBnamen",
                             "cmdKoppel", "cmdSpToevoegen", "cmdParenOnderhoud"})
        EXPECT_FALSE(Knop(naam)->isEnabled()) << naam;
    for (const char* naam : {"actOngedaan", "actOpnieuw", "actTerugzetten"})
        EXPECT_FALSE(venster->findChild<QAction*>(QString::fromLatin1(naam))->isEnabled()) << naam;
    for (const char* naam : {"cmdPrint", "cmdSortlijst1", "cmdZoekDubbeleNamen"})
        EXPECT_TRUE(Knop(naam)->isEnabled()) << naam;
    const QString kijkt = u"U kijkt alleen: er kan niets worden gewijzigd. Start Plexoran opnieuw "
                          "om samen te werken."_s;
    wachter.Informatie(kijkt);
    DubbelklikRegel(1);
    wachter.Informatie(kijkt);
    Toets(Qt::Key_Delete);
    wachter.Informatie(kijkt);
    DrukMetCtrl(Qt::Key_N);
    wachter.Klaar();
    LaatTijdVoorbijGaan();
    EXPECT_EQ(1, Aanwezigen());
    EXPECT_EQ(spelers, suite.Spelers());
    EXPECT_EQ(instellingen, suite.Instellingen());
}
