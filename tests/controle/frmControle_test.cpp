#include "controle/frmControle.h"

#include <QFileDialog>

#include "hulp/dialoogproef.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"

using namespace plexoran;

namespace {

class frmControleTest : public Dialoogproef<frmControle, Clubstand> {
  protected:
    frmControleTest()
    {
        administratie.mappen.DFIMPG = "Gr05-";
        map.Zet("RVDspelers.txt",
                "HKEY=100900\r\n" + Bos + "2,100002,Gr02-,Bea,,Eik,,,,,,,,,,,,\r\n");
    }

    void Open()
    {
        (void)LeesSpelers(echteSchijf, administratie.mappen, administratie.spelers);
        Toon(administratie);
    }
    /// A key that is there twice, one above the highest, and a name.
    void OpenMetVondsten()
    {
        map.Zet("RVDspelers.txt",
                "HKEY=100002\r\n" + Bos + Bos + "3,100007,Gr02-,Bea,,Eik,,,,,,,,,,,,\r\n");
        ZetZitting("Een", "N01 Jan Tol - 100001\r\n");
        Open();
    }
    [[nodiscard]] QTreeWidget* Lijst() const { return Deel<QTreeWidget>("lstVondsten"); }
    [[nodiscard]] std::string Raad() const
    {
        return Deel<QPlainTextEdit>("txtRaad")->toPlainText().toStdString();
    }
    /// Every line, a finding indented.
    [[nodiscard]] std::string Lijsttekst() const
    {
        std::string uit;
        for (QTreeWidgetItemIterator plek(Lijst()); *plek != nullptr; ++plek)
            uit += ((*plek)->parent() != nullptr
                        ? u"  %1: %2\n"_s.arg((*plek)->text(0), (*plek)->text(1))
                        : (*plek)->text(0) + u'\n')
                       .toStdString();
        return uit;
    }
    /// The file dialog, in which this name is typed.
    void VerwachtOpslaan(const std::filesystem::path& pad)
    {
        wachter.Bedien([pad](QDialog& dialoog) {
            auto& keuze = dynamic_cast<QFileDialog&>(dialoog);
            EXPECT_EQ("CommonDialog1", keuze.objectName());
            EXPECT_EQ("Lijst opslaan", keuze.windowTitle());
            EXPECT_EQ("Controle van de administratie.txt",
                      Vind<QLineEdit>(keuze, "fileNameEdit")->text());
            Vind<QLineEdit>(keuze, "fileNameEdit")->setText(QString::fromStdString(pad.string()));
            QMetaObject::invokeMethod(&keuze, "accept");
        });
    }

    const std::string Bos = "1,100001,Gr01-,An,,Bos,,,,,,,,,,,,\r\n";
    const std::string alles =
        "Sleutels die meer dan eens voorkomen (1)\n"
        "  100001 An Bos (Gr01-): heeft dezelfde sleutel als 100001 An Bos (Gr01-)\n"
        "Sleutels boven de hoogste uitgegeven sleutel (HKEY=) (1)\n"
        "  100007 Bea Eik (Gr02-): ligt boven HKEY=\n"
        "Zwevende spelers: namen die nog geen sleutel hebben (1)\n"
        "  Zitting Een: N01: Jan Tol\n";
    const std::string geteld =
        "Gecontroleerd: 3 spelers in 2 groepen, 0 parenbestanden en 1 zitting; samen 2 bestanden.";
};

} // namespace

TEST_F(frmControleTest, NietsGevonden)
{
    Open();
    VerwachtTeksten("Controle van de administratie",
                    {{"lblUitslag", "Er is niets gevonden dat aandacht vraagt.\nGecontroleerd: 2 "
                                    "spelers in 2 groepen, 0 parenbestanden en 0 zittingen; samen "
                                    "1 bestand."}},
                    {{"cmdHerstel", "HKEY= verhogen"},
                     {"cmdPrint", "Print"},
                     {"cmdOpslaan", "Lijst opslaan ..."},
                     {"cmdEinde", "Terug"}});
    EXPECT_EQ("", Lijsttekst());
    EXPECT_EQ("", Raad());
    EXPECT_FALSE(Knop("cmdHerstel")->isEnabled());
    EXPECT_FALSE(venster->IetsGewijzigd());
}

TEST_F(frmControleTest, WatGevondenIsMetWaarEnWatTeDoen)
{
    OpenMetVondsten();
    EXPECT_EQ("3 punten vragen aandacht.\n" + geteld, Label("lblUitslag"));
    EXPECT_EQ(alles, Lijsttekst());
    EXPECT_TRUE(Raad().starts_with("Wat te doen: Zittingen en paren kunnen deze spelers niet"));
    QTest::keyClick(Lijst(), Qt::Key_Down);
    EXPECT_TRUE(Raad().starts_with("100001 An Bos (Gr01-)\n"
                                   "heeft dezelfde sleutel als 100001 An Bos (Gr01-)\n\n"
                                   "Wat te doen: Zittingen en paren"));
    const auto* zwever = Lijst()->topLevelItem(2)->child(0);
    Klik(Lijst()->viewport(), Lijst()->visualItemRect(zwever).center());
    EXPECT_TRUE(Raad().starts_with("Zitting Een: N01\nJan Tol\n\nWat te doen: Kies in de groep"));
}

TEST_F(frmControleTest, VerhogenEnWeerNiet)
{
    OpenMetVondsten();
    EXPECT_TRUE(Knop("cmdHerstel")->isEnabled());
    Klik(Knop("cmdHerstel"));
    EXPECT_TRUE(venster->IetsGewijzigd());
    EXPECT_EQ(100007, administratie.spelers.HKEY);
    EXPECT_EQ("HKEY= niet verhogen", Opschrift(Knop("cmdHerstel")));
    EXPECT_EQ("2 punten vragen aandacht.\n" + geteld +
                  "\nHKEY= is verhoogd tot 100007. Dat wordt opgeslagen als u dit venster sluit.",
              Label("lblUitslag"));
    EXPECT_EQ(std::string::npos, Lijsttekst().find("HKEY"));

    QTest::keyClick(venster.get(), Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !venster->IetsGewijzigd(); }));
    EXPECT_EQ(100002, administratie.spelers.HKEY);
    EXPECT_EQ(alles, Lijsttekst());
}

/// A save would drop the line without a surname.
TEST_F(frmControleTest, NietVerhogenAlsOpslaanIetsKwijtraakt)
{
    map.Zet("RVDspelers.txt", "HKEY=100000\r\n" + Bos + "2,100002,Gr02-,Bea,,,,,,,,,,,,,,\r\n");
    Open();
    EXPECT_NE(std::string::npos, Lijsttekst().find("boven de hoogste"));
    EXPECT_FALSE(Knop("cmdHerstel")->isEnabled());
}

TEST_F(frmControleTest, DeLijstWordtOpgeslagen)
{
    OpenMetVondsten();
    VerwachtOpslaan(map.Weg() / "lijst.txt");
    Opdracht("cmdOpslaan");
    const std::string tekst = map.Inhoud("lijst.txt");
    EXPECT_TRUE(tekst.starts_with("Controle van de administratie, " +
                                  Tijdtekst("dd-MM-yyyy HH:").substr(0, 14)))
        << tekst;
    EXPECT_NE(std::string::npos, tekst.find("\r\n\r\n3 punten vragen aandacht.\r\n" + geteld +
                                            "\r\n\r\nSleutels die meer dan eens voorkomen (1)\r\n"
                                            "Wat te doen: Zittingen en paren kunnen"));
    EXPECT_NE(std::string::npos, tekst.find("\r\n - 100007 Bea Eik (Gr02-): ligt boven HKEY=\r\n"));
    EXPECT_TRUE(tekst.ends_with("\r\n - Zitting Een: N01: Jan Tol\r\n"));
    EXPECT_EQ("3 punten vragen aandacht.\n" + geteld +
                  "\nDe lijst is opgeslagen: " + (map.Weg() / "lijst.txt").string(),
              Label("lblUitslag"));
    Opdracht("cmdHerstel");
    EXPECT_EQ(std::string::npos, Label("lblUitslag").find("opgeslagen:")) << "now it is another";
}

TEST_F(frmControleTest, OpslaanKanMislukkenOfWordenAfgezegd)
{
    OpenMetVondsten();
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Opdracht("cmdOpslaan");
    schijf.FaalVanaf(1);
    VerwachtOpslaan(map.Weg() / "lijst.txt");
    wachter.Begin(u"De lijst kon niet worden opgeslagen. Er is niets veranderd. Kies een andere "
                  "map of een andere naam."_s);
    Opdracht("cmdOpslaan");
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.txt"));
}

TEST_F(frmControleTest, DeLijstWordtGeprint)
{
    OpenMetVondsten();
    VerwachtPdf(wachter, map.Weg() / "lijst.pdf");
    Opdracht("cmdPrint");
    const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
    ASSERT_EQ(1U, bladen.size());
    EXPECT_NE(std::string::npos, bladen.front().Tekst().find("100007 Bea Eik (Gr02-): ligt boven"));
}

TEST_F(frmControleTest, DeControleKanWordenGestopt)
{
    for (int i = 0; i < 30; ++i)
        ZetZitting("Zitting " + std::to_string(i), "N01 Jan Tol - 100001\r\n");
    const Voortgangstopper stopper(2);
    Open();
    EXPECT_NE(std::string::npos,
              Label("lblUitslag").find("\nDe controle is gestopt: de lijst is niet volledig."));
}

#ifndef _WIN32

/// A name that no path of the suite can say is not read, so it is told.
TEST_F(frmControleTest, EenMapDieNietGelezenKanWordenWordtGemeld)
{
    ZetZitting("Een\\Twee", "N01 Jan Tol - 100001\r\n");
    wachter.Begin(u"Overgeslagen in de map hieronder: 1 naam"_s);
    Open();
    EXPECT_EQ("", Lijsttekst());
}

#endif

TEST_F(frmControleTest, MetHetToetsenbordAlleen)
{
    OpenMetVondsten();
    EXPECT_TRUE(Lijst()->hasFocus());
    EXPECT_EQ("txtRaad cmdHerstel cmdPrint cmdOpslaan cmdEinde ", MetTab(5));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(frmControleTest, SluitenOpDrieManieren)
{
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        Sluit(weg, "cmdEinde");
    }
}
