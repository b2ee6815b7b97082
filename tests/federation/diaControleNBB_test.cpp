#include "federation/diaControleNBB.h"

#include <QAccessible>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>

#include "hulp/accessgegevens.h"
#include "hulp/dialoogproef.h"
#include "hulp/groei.h"
#include "hulp/pdfteksten.h"
#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"

using namespace plexoran;

namespace {

/// A line of an exported CSV file: number, sex, first name, initials, particle, surname, the rest.
std::string Csv(const std::string& nummer, const std::string& mv, const std::string& voornaam,
                const std::string& tusv, const std::string& achternaam)
{
    return nummer + ";" + mv + ";" + voornaam + ";X.;" + tusv + ";" + achternaam +
           ";Dorp 1;1234 AB;Ede;06-1;a@b.nl;NL\r\n";
}

class diaControleNBBTest : public Dialoogproef<diaControleNBB, Mapstand> {
  protected:
    diaControleNBBTest()
    {
        map.Zet("Club 30.csv", Csv("101", "V", "Zus", "van", "Zee") + Csv("", "", "An", "", "Bos") +
                                   Csv("103", "M", "Cor", "", "Dam"));
        map.Zet("Dinsdagavondclub.csv", Csv("104", "V", "Bea", "de", "Aap"));
    }

    void Open(std::vector<Tekst> namen) { Toon(administratie, opdracht, std::move(namen)); }
    void OpenBeide() { Open({"Club 30.csv", "Dinsdagavondclub.csv"}); }
    void OpenVeel(int aantal)
    {
        std::string inhoud;
        for (int i = 0; i < aantal; ++i)
            inhoud += Csv(std::to_string(100000 + i), "V", "An", "van der", "Naam");
        map.Zet("Veel.csv", inhoud);
        Open({"Veel.csv"});
    }

    [[nodiscard]] QCheckBox* chkSort() const { return Deel<QCheckBox>("chkSort"); }
    [[nodiscard]] QWidget* P1() const { return Vind<QWidget>(*venster, "P1"); }
    [[nodiscard]] QScrollBar* Balk() const { return Vind<QScrollBar>(*venster, "VScroll1"); }
    /// What the surface shows, drawn on a page and read back.
    [[nodiscard]] std::string Geschilderd() const
    {
        const auto pad = map.Weg() / "scherm.pdf";
        {
            QPdfWriter pdf(QString::fromStdString(pad.string()));
            pdf.setResolution(96);
            pdf.setPageSize(QPageSize(QSizeF(P1()->size()) * 72.0 / 96.0, QPageSize::Point));
            pdf.setPageMargins({});
            QPainter schilder(&pdf);
            P1()->render(&schilder, {}, {}, QWidget::RenderFlags());
        }
        return LeesPdf(pad).at(0).Tekst();
    }
    void VerwachtOpmerkingen(const QString& opmerkingen)
    {
        wachter.Informatie(
            u"Bij het lezen van de ledenbestanden viel dit op; er is niets veranderd. Verhelp het "
            "zo nodig en open dit overzicht opnieuw.\r\n\r\n"_s +
            opmerkingen);
    }
    void PrintNaarPdf()
    {
        VerwachtPdf(wachter, map.Weg() / "lijst.pdf");
        Klik(Knop("cmdPrint"));
    }

    Ledenopdracht opdracht{
        .bron = Ledenbron::Csv, .map = map.AlsPad(), .programmamap = map.AlsPad()};
};

} // namespace

TEST_F(diaControleNBBTest, DeOpschriftenEnElkLidVanElkBestandInHunVolgorde)
{
    OpenBeide();
    EXPECT_EQ("Controle NBB-spelers op ontbrekende NBBnrs en M/V",
              venster->windowTitle().toStdString());
    EXPECT_EQ("Sorteer op naam", Opschrift(chkSort()));
    EXPECT_EQ("Print", Opschrift(Knop("cmdPrint")));
    EXPECT_EQ("Terug", Opschrift(Knop("cmdTerug")));
    EXPECT_FALSE(chkSort()->isChecked());
    EXPECT_NE(nullptr, Vind<QFrame>(*venster, "Frame2"));
    EXPECT_EQ("NBBnr M/V NBBgroep Naam 101 V Club Zee, Zus van Club Bos, An 103 M Club Dam, Cor "
              "104 V Dinsdagavo Aap, Bea de",
              Geschilderd());
    EXPECT_EQ("Aantal leden: 4", Label("lblAantal"));
}

TEST_F(diaControleNBBTest, IsEenTabelVoorWieNietKijkt)
{
    OpenBeide();
    QAccessibleInterface* vlak = QAccessible::queryAccessibleInterface(P1());
    ASSERT_EQ(QAccessible::Table, vlak->role());
    QAccessibleTableInterface* tabel = vlak->tableInterface();
    ASSERT_EQ(4, tabel->rowCount());
    ASSERT_EQ(4, tabel->columnCount());
    const auto rij = [&](int nummer) {
        QStringList cellen;
        for (int kolom = 0; kolom < 4; ++kolom)
            cellen << tabel->cellAt(nummer, kolom)->text(QAccessible::Name);
        return cellen.join(u'|').toStdString();
    };
    EXPECT_EQ("101|V|Club|Zee, Zus van", rij(0));
    EXPECT_EQ("||Club|Bos, An", rij(1));
    EXPECT_EQ("104|V|Dinsdagavo|Aap, Bea de", rij(3));
    EXPECT_EQ("NBBgroep", tabel->columnDescription(2).toStdString());
    EXPECT_EQ("Regel 1, NBBnr 101, M/V V, NBBgroep Club, Naam Zee, Zus van",
              P1()->accessibleDescription().toStdString());
    QTest::keyClick(P1(), Qt::Key_Down);
    EXPECT_EQ(QList<int>{1}, tabel->selectedRows());
    // The second line, in the column of the names
    const QRect naam = tabel->cellAt(1, 3)->rect();
    EXPECT_EQ(tabel->cellAt(1, 3), vlak->childAt(naam.center().x(), naam.center().y()));
    Klik(chkSort(), {8, 8});
    EXPECT_EQ("104|V|Dinsdagavo|Aap, Bea de", rij(0));
    EXPECT_EQ(QList<int>{0}, tabel->selectedRows());
}

/// On paper too.
TEST_F(diaControleNBBTest, GesorteerdOpNaamEnWeerTerug)
{
    OpenBeide();
    const std::string eerst = Geschilderd();
    Klik(chkSort(), {8, 8});
    EXPECT_EQ("NBBnr M/V NBBgroep Naam 104 V Dinsdagavo Aap, Bea de Club Bos, An 103 M Club Dam, "
              "Cor 101 V Club Zee, Zus van",
              Geschilderd());
    PrintNaarPdf();
    const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
    ASSERT_EQ(1U, bladen.size());
    EXPECT_EQ("104 V Dinsdagavo Aap, Bea de", bladen[0].Regel(21));
    EXPECT_EQ("Club Bos, An", bladen[0].Regel(21 + 4.4));
    Klik(chkSort(), {8, 8});
    EXPECT_EQ(eerst, Geschilderd());
}

/// The options of the import window hold here too.
TEST_F(diaControleNBBTest, GeslachtAlleenAlsHetIsAangevinkt)
{
    opdracht.keuzes.mv = false;
    Open({"Dinsdagavondclub.csv"});
    EXPECT_EQ("NBBnr M/V NBBgroep Naam 104 Dinsdagavo Aap, Bea de", Geschilderd());
}

TEST_F(diaControleNBBTest, NaEenBestandDatNietGelezenWerdGaatDeLijstVerder)
{
    wachter.Begin(
        u"Fout bij het lezen van 'Weg.csv' CSV-bestand\r\nHet bestand is er niet (meer); de leden "
        "ervan staan niet in het overzicht. "_s);
    Open({"Weg.csv", "Dinsdagavondclub.csv"});
    EXPECT_EQ("NBBnr M/V NBBgroep Naam 104 V Dinsdagavo Aap, Bea de", Geschilderd());
}

TEST_F(diaControleNBBTest, WatErNietInStaatWordtGemeld)
{
    map.Zet("Kop.csv", "VERSIE=2.8\r\n" + Csv("1", "V", "An", "", "Bos") +
                           Csv("2", "V", "Bea", "", "D=m") + Csv("3", "V", "Zo\xC3\xAB", "", "Ek"));
    map.Zet("Kort.csv",
            Csv("1", "V", "An", "", "Bos") + "2;V;Bea\r\n" + Csv("3", "V", "Cor", "", "Dam"));
    VerwachtOpmerkingen(
        u"'Kop.csv': opgeslagen in UTF-8, dus letters met een accent komen verkeerd over.\r\n"
        "'Kop.csv': 2 regels overgeslagen, omdat er een '=' in staat, zoals in een kopregel.\r\n"
        "'Kort.csv': gelezen tot regel 2, want die regel heeft te weinig kolommen."_s);
    Open({"Kop.csv", "Kort.csv"});
    EXPECT_EQ("Aantal leden: 3", Label("lblAantal"));
    EXPECT_TRUE(Geschilderd().ends_with(" 1 V Kort Bos, An"));
}

TEST_F(diaControleNBBTest, EenNbb4BestandDatNietKonWordenGeladenEnVervangenLetters)
{
    opdracht.bron = Ledenbron::XmlNbb4;
    map.Zet("Stuk.xml", "<lijst><lid>");
    map.Zet("Heel.xml", "<ReportableMembersList><Members><ReportableMember><LeagueId>7</LeagueId>"
                        "<Achternaam>Sz\xC5\x91</Achternaam></ReportableMember></Members>"
                        "</ReportableMembersList>");
    VerwachtOpmerkingen(
        u"'Stuk.xml': geen leden, want het bestand kon niet als XML worden gelezen; regel 1: een "
        "eindtag ontbreekt of hoort niet bij de begintag (teken 12 van die regel).\r\n"
        "'Weg.xml': geen leden, want het bestand is er niet (meer).\r\n'Heel.xml': aantal tekens "
        "dat het spelerbestand niet kent en dat is vervangen "
        "door een teken dat erop lijkt, of is weggelaten: 1."_s);
    Open({"Stuk.xml", "Weg.xml", "Heel.xml"});
    EXPECT_EQ("NBBnr M/V NBBgroep Naam 7 Heel Szo,", Geschilderd());
}

TEST_F(diaControleNBBTest, VanEenNummerVanVierCijfersWordtGezegdWelkeLedenHetZijn)
{
    map.Zet("Members.mdb", DatabaseMetJeugdnummer(1012));
    opdracht.bron = Ledenbron::Database;
    opdracht.LedenDatabase = Samen(map.AlsPad(), "Members.mdb");
    VerwachtOpmerkingen(
        u"'Jeugd 1012': dit zijn de leden van het ledenbestand met nummer 12, want van het nummer "
        "tellen alleen de laatste drie tekens.\r\n'Jeugd 1012': aantal tekens dat het "
        "spelerbestand niet kent en dat is "
        "vervangen door een teken dat erop lijkt, of is weggelaten: 1."_s);
    Open({"Jeugd 1012"});
    EXPECT_EQ("Aantal leden: 6", Label("lblAantal"));
}

/// The file that is being read is read to its end; those after it are not, if there are any.
TEST_F(diaControleNBBTest, StoppenLaatDeVolgendeBestandenWeg)
{
    {
        const Voortgangstopper stopper(1);
        Open({"Club 30.csv"});
        EXPECT_EQ("Aantal leden: 3", Label("lblAantal"));
        EXPECT_EQ(1, stopper.Stappen());
    }
    const Voortgangstopper stopper(1);
    VerwachtOpmerkingen(u"Het lezen is gestopt: de lijst is niet volledig."_s);
    OpenBeide();
    EXPECT_EQ("Aantal leden: 3", Label("lblAantal"));
}

TEST_F(diaControleNBBTest, EenLeesfoutWordtOokNaStoppenGemeld)
{
    map.Zet("Nul.csv", std::string("a\0b", 3));
    const Voortgangstopper stopper(1);
    wachter.Begin(u"Fout bij het lezen van 'Nul.csv' CSV-bestand\r\n"_s);
    Open({"Nul.csv"});
    EXPECT_EQ("Aantal leden: 0", Label("lblAantal"));
}

TEST_F(diaControleNBBTest, ZonderLedenIsErNietsTePrinten)
{
    map.Zet("Leeg.csv", "");
    Open({"Leeg.csv"});
    EXPECT_FALSE(Knop("cmdPrint")->isEnabled());
    EXPECT_FALSE(Balk()->isEnabled());
    EXPECT_EQ("NBBnr M/V NBBgroep Naam", Geschilderd());
}

TEST_F(diaControleNBBTest, SchuiftMetBalkToetsenEnWielMaarEenKorteLijstNiet)
{
    OpenVeel(200);
    const auto toets = [&](Qt::Key welke) { QTest::keyClick(P1(), welke); };
    toets(Qt::Key_Down);
    EXPECT_EQ(1, Balk()->value());
    toets(Qt::Key_Up);
    EXPECT_EQ(0, Balk()->value());
    toets(Qt::Key_PageDown);
    EXPECT_GT(Balk()->value(), 10);
    toets(Qt::Key_End);
    EXPECT_EQ(Balk()->maximum(), Balk()->value());
    EXPECT_NE(std::string::npos, Geschilderd().find("100199"));
    EXPECT_EQ(0U, Geschilderd().find("NBBnr M/V")); // the heading stays in sight
    toets(Qt::Key_Home);
    EXPECT_EQ(0, Balk()->value());
    DraaiWiel(P1(), {0, -120});
    EXPECT_GT(Balk()->value(), 0);
    OpenBeide();
    for (const Qt::Key schuif :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
        toets(schuif);
        EXPECT_EQ(0, Balk()->value());
    }
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(diaControleNBBTest, EenGroterVensterToontMeerEnEenSmalVerzwijgtNiets)
{
    OpenVeel(200);
    const int over = Balk()->maximum();
    const int breed = P1()->width();
    venster->resize(venster->width() + 200, venster->height() + 200);
    QApplication::processEvents();
    EXPECT_LT(Balk()->maximum(), over);
    EXPECT_EQ(breed + 200, P1()->width());
    EXPECT_EQ(Vind<QFrame>(*venster, "Frame2")->contentsRect().right(), Balk()->geometry().right());
    // A name that does not fit beside the others goes on below.
    map.Zet("Lang.csv", Csv("1", "V", "An", "", "Zeergrootenlangenaamendannogmeer"));
    Open({"Lang.csv"});
    venster->resize(500, 400);
    QApplication::processEvents();
    std::string aaneen = Geschilderd();
    std::erase(aaneen, ' ');
    EXPECT_NE(std::string::npos, aaneen.find("Zeergrootenlangenaamendannogmeer,An"));
}

TEST_F(diaControleNBBTest, HonderdduizendRegelsZijnErSnel)
{
    EXPECT_TRUE(GroeitMee(100'000, [this](int aantal) {
        OpenVeel(aantal);
        Klik(chkSort(), {8, 8});
        for (int stap = 0; stap <= 20; ++stap) {
            Balk()->setValue(Balk()->maximum() / 20 * stap);
            P1()->repaint();
        }
    }));
}

TEST_F(diaControleNBBTest, OpPapierKopEnNummerOpElkBlad)
{
    OpenVeel(130);
    PrintNaarPdf();
    const auto bladen = LeesPdf(map.Weg() / "lijst.pdf");
    ASSERT_EQ(3U, bladen.size());
    constexpr double tekenbreedte = 10 * 25.4 / 72 * 1229 / 2048;
    for (std::size_t i = 0; i < bladen.size(); ++i) {
        EXPECT_NEAR(210, bladen[i].breed, 0.1);
        EXPECT_NEAR(297, bladen[i].hoog, 0.1);
        EXPECT_EQ("NBBnr M/V NBBgroep Naam", bladen[i].Regel(15));
        // One blank fewer behind "NBBnr" than on the screen.
        EXPECT_NEAR(15 + 10 * tekenbreedte, bladen[i].Woord("M/V").links, 0.1);
        EXPECT_NEAR(15 + 30 * tekenbreedte - tekenbreedte, bladen[i].Woord("Naam").links, 0.1);
        EXPECT_EQ("Blad " + std::to_string(i + 1) + " van 3", bladen[i].Regel(297 - 15 + 2));
        EXPECT_NEAR(195, bladen[i].woorden.back().rechts, 0.1);
    }
    EXPECT_EQ("100000 V Veel Naam, An van der", bladen[0].Regel(21));
    EXPECT_EQ("100058 V Veel Naam, An van der", bladen[0].Regel(21 + 58 * 4.4));
    EXPECT_EQ("100059 V Veel Naam, An van der", bladen[1].Regel(21));
    EXPECT_EQ("100129 V Veel Naam, An van der", bladen[2].Regel(21 + 11 * 4.4));
    EXPECT_NEAR(15 + 12 * tekenbreedte, bladen[0].Woord("V").links, 0.1);
    EXPECT_NEAR(15 + 19 * tekenbreedte, bladen[0].Woord("Veel").links, 0.1);
    EXPECT_NEAR(15 + 31 * tekenbreedte, bladen[0].Woord("Naam,").links, 0.1);
}

TEST_F(diaControleNBBTest, AnnulerenPrintNiets)
{
    OpenBeide();
    wachter.Bedien([](QDialog& dialoog) { dialoog.reject(); });
    Klik(Knop("cmdPrint"));
    EXPECT_FALSE(std::filesystem::exists(map.Weg() / "lijst.pdf"));
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(diaControleNBBTest, TerugEnEscapeSluiten)
{
    OpenBeide();
    Klik(Knop("cmdTerug"));
    EXPECT_FALSE(venster->isVisible());
    OpenBeide();
    QTest::keyClick(P1(), Qt::Key_Escape);
    EXPECT_FALSE(venster->isVisible());
}
