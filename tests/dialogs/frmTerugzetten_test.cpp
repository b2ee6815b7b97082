#include "dialogs/frmTerugzetten.h"

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "register/reservekopie.h"

using namespace plexoran;

namespace {

const Tekst toen = "HKEY=100004\r\n"
                   "1,100001,Gr01-,An,,Bos,06-1,,,,,,V,,,,,\r\n"
                   "2,100002,Gr01-,Bea,de,Cock,,,,,,,V,,,,,\r\n"
                   "3,100003,Gr02-,Cor,,Dam,,,,,,,M,,,,,\r\n";
const Tekst nu = "HKEY=100005\r\n"
                 "1,100001,Gr01-,An,,Bos,06-2,,,,Ede,,V,,,,,\r\n"
                 "2,100003,Gr02-,Cor,,Dam,,,,,,,M,,,,,\r\n"
                 "3,100005,Gr02-,Els,,Fuik,,,,,,,V,,,,A-LIJN,\r\n";
const Pad kopiemap = "C:\\club\\Spelers\\Reservekopie";
const Pad ini = "C:\\gebruiker\\plexoran\\reservekopie.ini";

class frmTerugzettenTest : public Dialoogproef<frmTerugzetten, Geheugenstand> {
  protected:
    frmTerugzettenTest()
    {
        administratie.mappen.SPEMAP = "C:\\club\\Spelers";
        administratie.tweedeplaatsIni = ini;
        geheugen.ZetMap("C:\\gebruiker");
        geheugen.ZetMap(kopiemap);
        geheugen.Zet("C:\\club\\Spelers\\RVDspelers.txt", nu);
        (void)LeesSpelers(schijf, administratie.mappen, administratie.spelers);
    }
    void ZetReserve(const Tekst& naam, const std::vector<Zipdeel>& delen)
    {
        geheugen.Zet(Samen(kopiemap, naam), ZipVan(delen, "spelers=3").value());
    }
    void ZetGewone()
    {
        ZetReserve("2026-11-21 142233 voor import.zip", {{"RVDspelers.txt", toen},
                                                         {"RVDGroepen.txt", "Gr01-Toen\r\n"},
                                                         {"Plexo.ini", "OPTIND=1\r\n"},
                                                         {"Parenmap\\Gr01-.txt", "100001-100002#"},
                                                         {"Parenmap\\dieper\\Gr01-.txt", "x"},
                                                         {"anders.txt", "x"}});
    }
    void ToonHetVenster() { Toon(administratie); }
    /// All lines of a list, fields indented, [x] for what is ticked.
    std::string Boom(const char* naam)
    {
        QStringList regels;
        for (QTreeWidgetItemIterator plek(Deel<QTreeWidget>(naam)); *plek != nullptr; ++plek) {
            QStringList cellen;
            for (int kolom = 0; kolom < 3; ++kolom)
                cellen << (*plek)->text(kolom);
            const bool aan = (*plek)->data(0, Qt::CheckStateRole) == Qt::Checked;
            regels << ((*plek)->parent() != nullptr ? u"  "_s : QString()) +
                          (aan ? u"[x] "_s : QString()) + cellen.join(u'|');
        }
        return regels.join(u'\n').toStdString();
    }
    void Spatie(int regel)
    {
        auto* lijst = Deel<QTreeWidget>("lstVerschillen");
        lijst->setCurrentItem(lijst->topLevelItem(regel), 0);
        QTest::keyClick(lijst, Qt::Key_Space);
    }
    std::vector<Tekst> Keys() const
    {
        const Menging uit = venster->Hersteld();
        std::vector<Tekst> keys;
        for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij)
            keys.push_back(Tekst(uit.tabel.Cel(rij, Kolom::Key)) + " " +
                           Tekst(uit.tabel.Cel(rij, Kolom::Telef)));
        return keys;
    }
};

} // namespace

TEST_F(frmTerugzettenTest, ToontDeReservekopieenEnWatErSindsdienVeranderde)
{
    ZetGewone();
    geheugen.Zet(Samen(kopiemap, "RVDspelers 2026-11-20 091500.txt"), nu);
    geheugen.Zet(Samen(kopiemap, "2026-11-19 080000 dagelijks.zip"), "kapot");
    ToonHetVenster();
    VerwachtTeksten("Reservekopie terugzetten", {{"Label2", "3 verschillen met nu:"}},
                    {{"chkOokGroepen", "Ook groepsnamen en paren"},
                     {"cmdTweedePlaats", "Tweede plaats..."},
                     {"cmdAlles", "Alles aanvinken"},
                     {"cmdTerugzetten", "Terugzetten"},
                     {"cmdSluiten", "Sluiten"}});
    EXPECT_EQ(Boom("lstReserves"), "21-11-2026 14:22|voor import|3\n"
                                   "20-11-2026 09:15|kopie bij een conflict of schade|3\n"
                                   "19-11-2026 08:00|dagelijks|onleesbaar");
    EXPECT_EQ(Boom("lstVerschillen"), "An Bos (100001)|Sindsdien gewijzigd|\n"
                                      "Els Fuik (100005)|Sindsdien gekomen|\n"
                                      "Bea de Cock (100002)|Sindsdien verdwenen|");
    Deel<QTreeWidget>("lstVerschillen")->expandAll();
    EXPECT_EQ(Boom("lstVerschillen"), "An Bos (100001)|Sindsdien gewijzigd|\n"
                                      "  Telef|06-2|06-1\n"
                                      "  Plaats|Ede|\n"
                                      "Els Fuik (100005)|Sindsdien gekomen|\n"
                                      "  Groep|Gr02-|\n"
                                      "  Voornaam|Els|\n"
                                      "  Achternaam|Fuik|\n"
                                      "  M/V|V|\n"
                                      "  Subgr|A-LIJN|\n"
                                      "Bea de Cock (100002)|Sindsdien verdwenen|\n"
                                      "  Groep||Gr01-\n"
                                      "  Voornaam||Bea\n"
                                      "  Tusv||de\n"
                                      "  Achternaam||Cock\n"
                                      "  M/V||V");
    QTest::keyClick(Deel<QTreeWidget>("lstReserves"), Qt::Key_Down);
    EXPECT_EQ(Label("Label2"), "De spelers zijn nu dezelfde.");
    EXPECT_EQ(Boom("lstVerschillen"), "");
    QTest::keyClick(Deel<QTreeWidget>("lstReserves"), Qt::Key_Down);
    EXPECT_EQ(Label("Label2").substr(0, 47), "Deze reservekopie kan niet worden gelezen; er i");
    EXPECT_FALSE(Knop("cmdTerugzetten")->isEnabled());
    EXPECT_FALSE(Knop("cmdAlles")->isEnabled());
}

TEST_F(frmTerugzettenTest, GekozenSpelersOfAlle)
{
    ZetGewone();
    ToonHetVenster();
    EXPECT_FALSE(Knop("cmdTerugzetten")->isEnabled());
    EXPECT_FALSE(venster->IetsGekozen());
    Spatie(2);
    EXPECT_TRUE(Knop("cmdTerugzetten")->isEnabled());
    EXPECT_EQ(Keys(), (std::vector<Tekst>{"100001 06-2", "100002 ", "100003 ", "100005 "}));
    Spatie(2);
    EXPECT_FALSE(Knop("cmdTerugzetten")->isEnabled());
    Klik(Knop("cmdAlles"));
    EXPECT_EQ(Keys(), (std::vector<Tekst>{"100001 06-1", "100002 ", "100003 "}));
    EXPECT_EQ(venster->Hersteld().HKEY, 100005);
    Spatie(1);
    EXPECT_EQ(Keys(), (std::vector<Tekst>{"100001 06-1", "100002 ", "100003 ", "100005 "}));
    Klik(Knop("cmdTerugzetten"));
    EXPECT_EQ(venster->result(), QDialog::Accepted);
    EXPECT_TRUE(venster->IetsGekozen());
    EXPECT_TRUE(venster->OokBestanden().empty());
}

TEST_F(frmTerugzettenTest, OokGroepsnamenEnParenMaarNooitIetsAnders)
{
    ZetGewone();
    ToonHetVenster();
    Deel<QCheckBox>("chkOokGroepen")->click();
    EXPECT_TRUE(Knop("cmdTerugzetten")->isEnabled());
    EXPECT_FALSE(venster->IetsGekozen());
    EXPECT_EQ(venster->OokBestanden(),
              (std::vector<Zipdeel>{{"RVDGroepen.txt", "Gr01-Toen\r\n"},
                                    {"Parenmap\\Gr01-.txt", "100001-100002#"}}));
    geheugen.Zet(Samen(kopiemap, "RVDspelers 2026-11-22 091500.txt"), toen);
    ToonHetVenster();
    Deel<QCheckBox>("chkOokGroepen")->click();
    EXPECT_FALSE(Knop("cmdTerugzetten")->isEnabled()) << "a copy of the register has none";
}

TEST_F(frmTerugzettenTest, WatNietHeelIsZegtHet)
{
    ZetReserve("2026-11-21 142233 voor import.zip",
               {{"RVDspelers.txt", toen + "4,100004,Gr01-,,,Eik\r\n"}});
    ZetReserve("2026-11-20 152233 voor import.zip", {{"RVDspelers.txt", "onzin"}});
    ZetReserve("2026-11-20 142233 voor import.zip", {{"RVDGroepen.txt", ""}});
    ToonHetVenster();
    EXPECT_EQ(Label("Label2"), "Let op: het spelerbestand in deze reservekopie is niet tot het "
                               "einde te lezen. 3 verschillen met nu:");
    QTest::keyClick(Deel<QTreeWidget>("lstReserves"), Qt::Key_Down);
    EXPECT_EQ(Label("Label2"), "In deze reservekopie staan geen spelers die te lezen zijn.");
    EXPECT_EQ(Boom("lstVerschillen"), "");
    QTest::keyClick(Deel<QTreeWidget>("lstReserves"), Qt::Key_Down);
    EXPECT_EQ(Label("Label2"), "In deze reservekopie staan geen spelers die te lezen zijn.");
}

TEST_F(frmTerugzettenTest, ZonderReservekopieOfZonderMap)
{
    ToonHetVenster();
    EXPECT_EQ(Label("Label2"), "Er zijn nog geen reservekopieën.");
    schijf.Vooraf([](const Pad& pad) { return pad != kopiemap; });
    ToonHetVenster();
    EXPECT_EQ(Label("Label2").substr(0, 44), "De map Reservekopie kan niet worden gelezen;");
    Klik(Knop("cmdSluiten"));
    EXPECT_EQ(venster->result(), QDialog::Rejected);
}

TEST_F(frmTerugzettenTest, EenGrootRegisterKomtInEensTerug)
{
    constexpr int spelers = 100'000;
    Tekst groot = "HKEY=200000\r\n";
    for (int i = 1; i <= spelers; ++i)
        groot += std::to_string(i) + "," + std::to_string(100'000 + i) +
                 ",Gr01-,An,,Bos,,,,,,,V,,,,,\r\n";
    ZetReserve("2026-11-21 142233 voor import.zip", {{"RVDspelers.txt", groot}});
    geheugen.Zet("C:\\club\\Spelers\\RVDspelers.txt", "HKEY=100000\r\n");
    (void)LeesSpelers(schijf, administratie.mappen, administratie.spelers);
    ToonHetVenster();
    Klik(Knop("cmdAlles"));
    EXPECT_EQ(venster->Hersteld().tabel.Rijen(), spelers);
}

TEST_F(frmTerugzettenTest, DeTweedePlaats)
{
    ZetGewone();
    ASSERT_TRUE(BewaarTweedeplaats(geheugen, ini, {"E:\\reserve", "2020-01-01"}));
    ToonHetVenster();
    EXPECT_TRUE(Label("lblTweedePlaats")
                    .starts_with("De tweede plaats voor reservekopieën (E:\\reserve) heeft al "));
    wachter.Verwacht({.tekst = u"De nieuwste reservekopie gaat ook naar:\n\nE:\\reserve"_s,
                      .antwoord = u"Annuleren"_s,
                      .icoon = QMessageBox::Question});
    Opdracht("cmdTweedePlaats");
    EXPECT_EQ(LeesTweedeplaats(geheugen, ini).map, "E:\\reserve");
    wachter.Begin(u"De nieuwste reservekopie gaat ook naar:"_s, QMessageBox::Question,
                  u"Geen tweede plaats"_s);
    Opdracht("cmdTweedePlaats");
    EXPECT_EQ(LeesTweedeplaats(geheugen, ini).map, "");
    EXPECT_EQ(Label("lblTweedePlaats"),
              "Er is geen tweede plaats gekozen, zoals een stick of een andere schijf.");
    wachter.Bedien([](QDialog& kiezer) { kiezer.reject(); });
    Opdracht("cmdTweedePlaats");
    EXPECT_EQ(LeesTweedeplaats(geheugen, ini).map, "");
}

TEST_F(frmTerugzettenTest, EenGekozenMapKrijgtMeteenDeNieuwste)
{
    ZetGewone();
    ToonHetVenster();
    const TijdelijkeMap stick;
    const Pad map = VolledigPad(stick.Weg().string());
    geheugen.ZetMap(map);
    wachter.Bedien([&](QDialog& kiezer) {
        Vind<QLineEdit>(kiezer, "fileNameEdit")
            ->setText(QString::fromStdString(stick.Weg().string()));
        QMetaObject::invokeMethod(&kiezer, "accept");
    });
    Opdracht("cmdTweedePlaats");
    EXPECT_EQ(LeesTweedeplaats(geheugen, ini).map, map);
    EXPECT_TRUE(geheugen.Inhoud(Samen(map, "2026-11-21 142233 voor import.zip")));
    EXPECT_EQ(Label("lblTweedePlaats"), "De nieuwste reservekopie gaat ook naar " + map + ".");
}

TEST_F(frmTerugzettenTest, EenTweedePlaatsDieNietTeOnthoudenIsWordtGemeld)
{
    ASSERT_TRUE(BewaarTweedeplaats(geheugen, ini, {"E:\\reserve", "2020-01-01"}));
    ToonHetVenster();
    schijf.FaalVanaf(2); // after the reading
    wachter.Begin(u"De nieuwste reservekopie gaat ook naar:"_s, QMessageBox::Question,
                  u"Geen tweede plaats"_s);
    wachter.Begin(u"De tweede plaats kan niet worden onthouden; er is niets veranderd."_s);
    Opdracht("cmdTweedePlaats");
    EXPECT_EQ(LeesTweedeplaats(geheugen, ini).map, "E:\\reserve");
}
