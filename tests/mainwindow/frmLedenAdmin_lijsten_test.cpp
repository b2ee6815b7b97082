// Sorted lists, double names, moving, copying and deleting a subgroup, on the sample suite.
#include <QPlainTextEdit>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

const QString OK = u"OK"_s;

class LijstenTest : public HoofdvensterTest {
  protected:
    /// Opens a sorted list, looks whether its title is this one and returns all that it paints.
    std::vector<std::string> Lijst(const char* knop, const std::string& titel)
    {
        std::vector<std::string> teksten;
        wachter.Bedien([&](QDialog& lijst) {
            EXPECT_EQ("diaSortlijst", lijst.objectName().toStdString());
            EXPECT_EQ(titel, Vind<QLabel>(lijst, "Label1")->text().toStdString());
            auto* P1 = Vind<QWidget>(lijst, "P1");
            lijst.resize(lijst.width(), 6000); // every line is in sight
            QApplication::processEvents();
            Tekstvanger vanger(P1->size());
            P1->render(&vanger, {}, {}, QWidget::RenderFlags());
            for (const Getekend& deel : vanger.Teksten())
                teksten.push_back(deel.tekst);
            Druk(lijst, "cmdOK");
        });
        Opdracht(knop);
        return teksten;
    }
    /// The texts that are register keys.
    static std::vector<std::string> Keys(const std::vector<std::string>& teksten)
    {
        std::vector<std::string> keys;
        std::copy_if(
            teksten.begin(), teksten.end(), std::back_inserter(keys),
            [](const std::string& tekst) { return tekst.size() == 6 && tekst.starts_with("100"); });
        return keys;
    }

    void VerwachtVerslag(const QString& tekst, const QString& groep)
    {
        wachter.Verwacht({.tekst = tekst,
                          .icoon = QMessageBox::NoIcon,
                          .titel = u"DUBBELE NAMEN in deze groep: "_s + groep,
                          .knoppen = {OK}});
    }

    static void KiesRegels(QDialog& dialoog, const std::vector<int>& plaatsen)
    {
        auto* lstKeus = Vind<Regellijst>(dialoog, "lstKeus");
        for (const int plaats : plaatsen) {
            lstKeus->ZetHuidige(plaats);
            QTest::keyClick(lstKeus, Qt::Key_Space);
        }
    }
    void Verplaats(const std::vector<int>& plaatsen, int naarGroep)
    {
        wachter.Bedien([&](QDialog& dialoog) {
            KiesRegels(dialoog, plaatsen);
            Vind<QComboBox>(dialoog, "cmbGrnamen")->setCurrentIndex(naarGroep - 1);
            Druk(dialoog, "cmdOK");
        });
        wachter.Informatie(u"De spelers(s) zijn verplaatst."_s);
        Opdracht("cmdVerplaats");
    }
};

const QString kop = u"RVDkey\tNaam\t\t\tNBBgr\tNBBnr\r\n"
                    "-----------------------------------------------------------------------\r\n"_s;
const QString slot =
    u"\r\nGa na welke regel nog actueel is.\r\nVerwijder 1 van beide, deze zal dan niet meer "
    "worden getoond in de overzichten ed.\r\n"_s;

} // namespace

TEST_F(LijstenTest, OpKeyVanDeGroepOfVanAlleGroepen)
{
    KiesGroep(3);
    const auto teksten = Lijst("cmdSortlijst1", "Spelers gesorteerd op 'RVD-key'.");
    EXPECT_EQ((std::vector<std::string>{"Key", "Voornaam", "Tus", "Achternaam", "Subgroep", "-----",
                                        "100111", "Sem", "Kloosterziel", "BEGINNERS"}),
              std::vector<std::string>(teksten.begin(), teksten.begin() + 10));
    EXPECT_EQ((std::vector<std::string>{"100111", "100112", "100113", "100114", "100115", "100116",
                                        "100117", "100118", "100119"}),
              Keys(teksten));
    Vink("chkToonAlle")->setChecked(true);
    const auto alle = Keys(Lijst("cmdSortlijst1", "Spelers gesorteerd op 'RVD-key'."));
    EXPECT_EQ(148U, alle.size());
    EXPECT_TRUE(std::is_sorted(alle.begin(), alle.end()));
}

TEST_F(LijstenTest, OpNummerInDeImportgroep)
{
    HerstartMet("HKEY=100009\r\n1,100001,Gr05-,Jan,,Bos,,,,,,,M,,,,DI,100000\r\n"
                "2,100002,Gr05-,Piet,,Dam,,,,,,,M,,,,MA,12345\r\n"
                "3,100003,Gr05-,Klaas,,Eik,,,,,,,M,,,,MA,\r\n"
                "4,100004,Gr01-,Wim,,Fuik,,,,,,,M,,,,,7\r\n");
    KiesGroep(5);
    EXPECT_EQ((std::vector<std::string>{"Key", "Voornaam", "Tus", "Achternaam", "NBBgroep", "NBBnr",
                                        "100002", "Piet", "Dam", "MA", "12345", "100001", "Jan",
                                        "Bos", "DI", "100000"}),
              Lijst("cmdSortlijst2", "Spelers gesorteerd op 'NBB-nummer'."));
}

TEST_F(LijstenTest, OpGroepEnNaam)
{
    KiesGroep(3);
    const std::string titel = "Spelers gesorteerd op 'NBB-groep en Naam'.";
    EXPECT_EQ((std::vector<std::string>{"100119", "100114", "100112", "100111", "100113", "100118",
                                        "100116", "100117", "100115"}),
              Keys(Lijst("cmdSortlijst3", titel)));
    Vink("chkToonAlle")->setChecked(true);
    EXPECT_EQ(148U, Keys(Lijst("cmdSortlijst3", titel)).size());
}

TEST_F(LijstenTest, EenLegeLijstGeeftDeMeldingVanZijnSoort)
{
    KiesGroep(4);
    wachter.Informatie(u"Er zijn geen regels die voldoen aan het zoek-criterium."_s);
    Opdracht("cmdSortlijst1");
    wachter.Informatie(u"Er zijn geen regels die voldoen aan het zoek-criterium 'NBB-groep'."_s);
    Opdracht("cmdSortlijst3");
    HerstartMet("HKEY=100009\r\n1,100001,Gr05-,Jan,,Bos,,,,,,,M,,,,DI,  \r\n");
    KiesGroep(5);
    wachter.Informatie(u"Er zijn geen regels die voldoen aan het zoek-criterium 'NBB-nummer'."_s);
    Opdracht("cmdSortlijst2");
}

TEST_F(LijstenTest, WatGeenGetalIsWordtGenoemd)
{
    HerstartMet("HKEY=100009\r\n1,10A001,Gr05-,Jan,de,Bos,,,,,,,M,,,,DI,lid 1\r\n");
    KiesGroep(5);
    wachter.Waarschuwing(
        u"De lijst kan niet worden gemaakt: de sleutel van Jan de Bos (Gr05-) is geen getal: "
        "'10A001'. De gegevens zijn niet veranderd. Verbeter dat in het spelerbestand."_s);
    Opdracht("cmdSortlijst1");
    wachter.Waarschuwing(
        u"De lijst kan niet worden gemaakt: het NBB-nummer van Jan de Bos (Gr05-) is geen getal: "
        "'lid 1'. De gegevens zijn niet veranderd. Verbeter dat bij deze speler."_s);
    Opdracht("cmdSortlijst2");
}

TEST_F(LijstenTest, DubbeleNamenInDeGroep)
{
    KiesGroep(3);
    VerwachtVerslag(u"Géén dubbele namen gevonden!\r\n"_s, u"Gr03-"_s);
    Opdracht("cmdZoekDubbeleNamen");
    HerstartMet("HKEY=100009\r\n1,100001,Gr02-,Jan,,Bos,,,,,,,M,,,,,\r\n"
                "2,100002,Gr01-,Jan,,Bos,,,,,,,M,,,,A-lijn,7\r\n"
                "3,100003,Gr01-,Jan,de,Vries,,,,,,,M,,,,,\r\n"
                "4,100004,Gr05-,Jan,,Bos,,,,,,,M,,,,DI,12345\r\n"
                "5,100005,Gr01-,Jande,,Vries,,,,,,,M,,,,B,\r\n");
    KiesGroep(1);
    VerwachtVerslag(kop +
                        u"100002\tJan\t\tBos\tA-lijn\t7\r\n100004\tJan\t\tBos\tDI\t12345\r\n"
                        "100003\tJan\tde\tVries\t\t\r\n100005\tJande\t\tVries\tB\t\r\n"_s +
                        slot,
                    u"Gr01-"_s);
    Opdracht("cmdZoekDubbeleNamen");
    KiesGroep(5);
    VerwachtVerslag(u"Géén dubbele namen gevonden!\r\n"_s, u"Gr05-"_s);
    Opdracht("cmdZoekDubbeleNamen");
}

/// 448 namesakes make 100,128 pairs.
TEST_F(LijstenTest, EenLangVerslagSchuiftInZijnEigenVensterEnZegtDatHetOphoudt)
{
    std::string spelers = "HKEY=100999\r\n";
    for (int i = 1; i <= 448; ++i)
        spelers += std::to_string(i) + "," + std::to_string(100'000 + i) +
                   ",Gr01-,Jan,,Bos,,,,,,,M,,,,,\r\n";
    HerstartMet(spelers);
    wachter.Bedien([](QDialog& bericht) {
        EXPECT_EQ("frmBericht", bericht.objectName().toStdString());
        EXPECT_EQ("DUBBELE NAMEN in deze groep: Gr01-", bericht.windowTitle().toStdString());
        auto* tekst = Vind<QPlainTextEdit>(bericht, "txtBericht");
        // A text box knows line ends as one character.
        const auto regel = [](const QString& key) -> QString {
            return key + u"\tJan\t\tBos\t\t\n"_s;
        };
        EXPECT_TRUE(tekst->toPlainText().startsWith(QString(kop).remove(u'\r') +
                                                    regel(u"100001"_s) + regel(u"100002"_s) +
                                                    regel(u"100001"_s) + regel(u"100003"_s)));
        EXPECT_TRUE(tekst->toPlainText().endsWith(QString(slot).remove(u'\r')));
        EXPECT_TRUE(tekst->isReadOnly());
        EXPECT_TRUE(tekst->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
        EXPECT_EQ("OK", Opschrift(Vind<QPushButton>(bericht, "cmdOK")));
        Druk(bericht, "cmdOK");
    });
    wachter.Informatie(
        u"Er zijn meer dubbele namen dan dit verslag kan tonen: het houdt op na 100000 paren. Er "
        "is niets veranderd. Verwijder er eerst een aantal en zoek dan opnieuw."_s);
    Opdracht("cmdZoekDubbeleNamen");
    EXPECT_EQ(spelers, suite.Spelers());
}

TEST_F(LijstenTest, VerplaatsenSlaatOpMeldtHetEnHoudtHetRoosterOpZijnPlaats)
{
    KiesGroep(1);
    Balk("VScroll1")->setValue(50);
    ASSERT_EQ(50, Balk("VScroll1")->value());
    auto moet = RegelsVan(suite.Spelers());
    for (const std::size_t regel : {1U, 3U})
        moet[regel].replace(moet[regel].find("Gr01-"), 5, "Gr04-");
    Verplaats({0, 2}, 4);
    EXPECT_EQ(moet, RegelsVan(suite.Spelers()));
    EXPECT_EQ("Aantal regels: 48", Aantal());
    EXPECT_EQ(50, Balk("VScroll1")->value());
    KiesGroep(4);
    EXPECT_EQ("Aantal regels: 2", Aantal());
}

TEST_F(LijstenTest, KopierenSlaatOpEnToont)
{
    auto moet = RegelsVan(suite.Spelers());
    KiesGroep(7);
    wachter.Bedien([](QDialog& dialoog) {
        auto* bron = Vind<QComboBox>(dialoog, "cmbUitGroep");
        bron->setFocus();
        QTest::keyClick(bron, Qt::Key_Down);
        QTest::keyClick(bron, Qt::Key_Down);
        KiesRegels(dialoog, {1});
        Vind<QComboBox>(dialoog, "cmbGrnamen")->setCurrentIndex(6);
        Druk(dialoog, "cmdOK");
    });
    wachter.Begin(u"U gaat spelers kopiëren van groep 'Gr03-Jeugd' naar groep 'Gr07-Zomerdrive'."_s,
                  QMessageBox::Information);
    wachter.Informatie(u"Er zijn 2 spelers gekopieerd."_s);
    Opdracht("cmdKopieer");
    moet[0] = "HKEY=100173";
    moet.push_back("149,100172,Gr07-,Sem,,Kloosterziel,010-0000184,,Stationsweg 59,0411 JR,"
                   "Wielerdam,,M,,,,BEGINNERS,");
    moet.push_back("150,100173,Gr07-,Noor,van,Dorremolen,06-00000396,,Zuidereind 32,0423 TB,"
                   "Elzenmade,,V,,,,BEGINNERS,");
    EXPECT_EQ(moet, RegelsVan(suite.Spelers()));
    EXPECT_EQ("Aantal regels: 2", Aantal());
}

/// The window stays open after a deletion, and the grid behind it can be seen.
TEST_F(LijstenTest, EenSubgroepVerwijderenSlaatOpEnHetRoosterKloptMeteen)
{
    KiesGroep(3);
    wachter.Bedien([this](QDialog& dialoog) {
        KiesUit(Vind<QComboBox>(dialoog, "cmbRVDgr"), 2);
        Druk(dialoog, "cmdVerwijder");
        EXPECT_EQ("Aantal regels: 5", Aantal());
        KiesRegel(1);
        EXPECT_EQ("100115", GekozenSleutel());
        Druk(dialoog, "cmdEinde");
    });
    wachter.Verwacht({.tekst = u"U gaat alle spelers van Subgroep 'BEGINNERS'"_s,
                      .titel = u"Verwijderen?"_s,
                      .alleenBegin = true});
    wachter.Informatie(u"Klaar! \r\nEr zijn 4 speler(s) verwijderd."_s);
    Opdracht("cmdVerwGroep");
    EXPECT_EQ("Aantal regels: 5", Aantal());
    EXPECT_EQ(0, GekozenRegel());
    const auto regels = RegelsVan(suite.Spelers());
    ASSERT_EQ(145U, regels.size());
    for (std::size_t i = 1; i < regels.size(); ++i)
        EXPECT_TRUE(regels[i].starts_with(std::to_string(i) + ",")) << regels[i];
    for (const auto& [key, staatEr] : {std::pair(",100111,", false), std::pair(",100119,", true)})
        EXPECT_EQ(staatEr, suite.Spelers().find(key) != std::string::npos) << key;
}
