// "Dubbele spelers..." from the main window: saved, in the history, and remembered.
#include <QMenu>
#include <QRadioButton>
#include <QTreeWidget>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

class DubbelenTest : public HoofdvensterTest {
  protected:
    void Zoek(std::function<void(QDialog&)> stappen)
    {
        wachter.Bedien(std::move(stappen));
        venster->findChild<QAction*>(u"actDubbelen"_s)->trigger();
        wachter.Klaar();
    }
    /// Jan Bos and J. Bos, who stand in pairs, a session and a competition.
    void ZetDubbelen()
    {
        suite.Zet("Spelers/Parenmap/Gr01-A-LIJN.txt", "100001-100003#100002-100004#");
        suite.Zet("Spelers/RVDparen.txt", "100003-100001#\n");
        suite.Zet("Zittingen/Nog te spelen/Spelers.txt", "N01 100003  -100004\nO02 Jan-Bos\r");
        suite.Verwijder("Competities/Laddercompetitie/Ronde-1/Zitting-1/Spelers.txt");
        suite.Zet("Competities/Laddercompetitie/Ronde-1/Zitting-1/PercZit-1.txt",
                  "1,\"A\",\"N1\",\"100003-100004\",50,0,\"\"");
        suite.Zet("Zittingen/Nog te spelen/Zitdata.txt", "");
        HerstartMet("HKEY=100009\r\n"
                    "1,100001,Gr01-,Jan,,Bos,,,,,,,M,,,,A-LIJN,\r\n"
                    "2,100002,Gr01-,Els,,Tol,,,,,,,V,,,,A-LIJN,\r\n"
                    "3,100003,Gr01-,J.,,Bos,06-1,,,,,,M,,,,A-LIJN,\r\n"
                    "4,100004,Gr02-,Wim,,Dam,,,,,,,M,,,,,\r\n");
    }
    [[nodiscard]] std::vector<std::string> Bestanden() const
    {
        return {suite.Spelers(), suite.Inhoud("Spelers/Parenmap/Gr01-A-LIJN.txt"),
                suite.Inhoud("Spelers/RVDparen.txt"),
                suite.Inhoud("Zittingen/Nog te spelen/Spelers.txt"),
                suite.Inhoud("Competities/Laddercompetitie/Ronde-1/Zitting-1/PercZit-1.txt")};
    }
    [[nodiscard]] std::size_t Reserves(const std::string& reden) const
    {
        const auto namen = suite.Namen("Spelers/Reservekopie");
        return static_cast<std::size_t>(std::ranges::count_if(
            namen, [&](const std::string& naam) { return naam.ends_with(reden + ".zip"); }));
    }
    void VerwachtVraag()
    {
        wachter.Verwacht({.tekst = u"Jan Bos (100001) blijft en J. Bos (100003) vervalt."_s,
                          .titel = u"Samenvoegen?"_s,
                          .alleenBegin = true});
    }
    void Samenvoegen(QDialog& dubbelen)
    {
        VerwachtVraag();
        auto* links = Vind<QRadioButton>(dubbelen, "optLinks");
        links->click();
        Druk(dubbelen, "cmdSamenvoegen");
        EXPECT_EQ(0, Vind<QTreeWidget>(dubbelen, "lstDubbelen")->topLevelItemCount());
        EXPECT_EQ("Jan Bos (100001) samengevoegd met J. Bos (100003). Klaar: alle mogelijke "
                  "dubbelen zijn behandeld.",
                  Vind<QLabel>(dubbelen, "lblUitslag")->text().toStdString());
        Druk(dubbelen, "cmdSluiten");
    }
};

} // namespace

TEST_F(DubbelenTest, SamengevoegdInEenHandelingEnTotOpDeByteTerug)
{
    ZetDubbelen();
    const auto oud = Bestanden();
    Zoek([this](QDialog& dubbelen) { Samenvoegen(dubbelen); });
    const std::vector<std::string> nieuw{"HKEY=100009\r\n"
                                         "1,100001,Gr01-,J.,,Bos,06-1,,,,,,M,,,,A-LIJN,\r\n"
                                         "2,100002,Gr01-,Els,,Tol,,,,,,,V,,,,A-LIJN,\r\n"
                                         "3,100004,Gr02-,Wim,,Dam,,,,,,,M,,,,,\r\n",
                                         "100001-100003#100002-100004#", "100003-100001#\n",
                                         "N01 100001  -100004\nO02 Jan-Bos\r",
                                         "1,\"A\",\"N1\",\"100001-100004\",50,0,\"\""};
    EXPECT_EQ(nieuw, Bestanden()) << "a pair of both stays as it is";
    EXPECT_EQ("Aantal regels: 2", Aantal());
    EXPECT_EQ(1U, Reserves("voor samenvoegen"));
    emit Vind<QMenu>(*venster, "mnuBewerken")->aboutToShow();
    EXPECT_EQ("Ongedaan maken: Jan Bos (100001) samengevoegd met J. Bos (100003)",
              venster->findChild<QAction*>(u"actOngedaan"_s)->text().toStdString());
    DrukMetCtrl(Qt::Key_Z);
    EXPECT_EQ(oud, Bestanden());
    DrukMetCtrl(Qt::Key_Y);
    EXPECT_EQ(nieuw, Bestanden());
    Herstart();
    DrukMetCtrl(Qt::Key_Z);
    EXPECT_EQ(oud, Bestanden());
}

TEST_F(DubbelenTest, GeenDubbelenBlijftNaEenHerstartEnIsOngedaanTeMaken)
{
    ZetDubbelen();
    Zoek([](QDialog& dubbelen) {
        Druk(dubbelen, "cmdGeenDubbelen");
        Druk(dubbelen, "cmdSluiten");
    });
    Herstart();
    Zoek([](QDialog& dubbelen) {
        EXPECT_EQ(0, Vind<QTreeWidget>(dubbelen, "lstDubbelen")->topLevelItemCount());
        Druk(dubbelen, "cmdSluiten");
    });
    emit Vind<QMenu>(*venster, "mnuBewerken")->aboutToShow();
    EXPECT_EQ("Ongedaan maken: Geen dubbelen: Jan Bos (100001) en J. Bos (100003)",
              venster->findChild<QAction*>(u"actOngedaan"_s)->text().toStdString());
    DrukMetCtrl(Qt::Key_Z);
    EXPECT_FALSE(suite.Bestaat("Spelers/GeenDubbelen.txt"));
    Zoek([](QDialog& dubbelen) {
        EXPECT_EQ(1, Vind<QTreeWidget>(dubbelen, "lstDubbelen")->topLevelItemCount());
        Druk(dubbelen, "cmdSluiten");
    });
}

/// Both keys are in the files until the register can be saved.
TEST_F(DubbelenTest, WatNietOpgeslagenKanWordenKomtLater)
{
    ZetDubbelen();
    Zoek([this](QDialog& dubbelen) {
        schijf.Vooraf([](const Pad& pad) { return pad.find("RVDspelers.txt.~") == Pad::npos; });
        VerwachtVraag();
        wachter.Begin(u"De spelers konden niet worden opgeslagen."_s, QMessageBox::Critical,
                      u"Doorgaan"_s);
        wachter.Begin(u"De spelers zijn samengevoegd, maar dat is nog niet opgeslagen."_s,
                      QMessageBox::Warning, u"OK"_s);
        Vind<QRadioButton>(dubbelen, "optLinks")->click();
        Druk(dubbelen, "cmdSamenvoegen");
        EXPECT_FALSE(dubbelen.isVisible()) << "no more before this is saved";
        schijf.Vooraf({});
    });
    EXPECT_EQ("N01 100001  -100004\nO02 Jan-Bos\r", Bestanden()[3]);
    EXPECT_NE(std::string::npos, suite.Spelers().find(",100003,"));
    EXPECT_TRUE(venster->isWindowModified());
    Zoek([](QDialog& dubbelen) { Druk(dubbelen, "cmdSluiten"); });
    EXPECT_EQ(std::string::npos, suite.Spelers().find(",100003,"));
}

TEST_F(DubbelenTest, EenTweedePogingIsDezelfdeHandeling)
{
    ZetDubbelen();
    const auto oud = Bestanden();
    for (const bool alsnog : {true, false}) {
        Zoek([this, alsnog](QDialog& dubbelen) {
            schijf.Vooraf([](const Pad& pad) { return pad.find("PercZit-1.txt.~") == Pad::npos; });
            VerwachtVraag();
            wachter.Begin(
                u"De spelers zijn niet samengevoegd: een bestand kon niet worden gewijzigd."_s);
            Vind<QRadioButton>(dubbelen, "optLinks")->click();
            Druk(dubbelen, "cmdSamenvoegen");
            schijf.Vooraf({});
            if (alsnog)
                Samenvoegen(dubbelen);
            else
                Druk(dubbelen, "cmdSluiten");
        });
        EXPECT_NE(oud, Bestanden());
        emit Vind<QMenu>(*venster, "mnuBewerken")->aboutToShow();
        EXPECT_EQ(alsnog ? "Ongedaan maken: Jan Bos (100001) samengevoegd met J. Bos (100003)"
                         : "Ongedaan maken: Niet samengevoegd: Jan Bos (100001) en J. Bos (100003)",
                  venster->findChild<QAction*>(u"actOngedaan"_s)->text().toStdString());
        DrukMetCtrl(Qt::Key_Z);
        EXPECT_EQ(oud, Bestanden());
    }
}

TEST_F(DubbelenTest, WieAlleenKijktVoegtNietsSamen)
{
    EXPECT_TRUE(venster->findChild<QAction*>(u"actDubbelen"_s)->isEnabled());
    EXPECT_TRUE(venster->close());
    venster.reset();
    suite.Zet("Spelers/Aanwezig Kamer wil.txt", "Kamer 2\r\nwil\r\n2-11-2026 19:04\r\n");
    wachter.Begin(u"Er werkt al iemand met deze administratie:"_s, QMessageBox::Warning,
                  u"Alleen kijken"_s);
    Start();
    EXPECT_FALSE(venster->findChild<QAction*>(u"actDubbelen"_s)->isEnabled());
}
