// The pairs window from the main window, on a copy of the sample suite.
#include "pairs/frmParenOnderhoud.h"

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<std::string>;

const std::filesystem::path parenmap = "Spelers/Parenmap";

class ParenSuiteTest : public Hoofdvensterproef {
  protected:
    void SetUp() override { ASSERT_NO_FATAL_FAILURE(Start()); }

    /// Presses the button and hands the window to the steps, which must close it.
    void MetParen(const std::function<void(QDialog&)>& stappen)
    {
        wachter.Bedien([&](QDialog& dialoog) {
            ASSERT_EQ("frmParenOnderhoud", dialoog.objectName().toStdString());
            stappen(dialoog);
        });
        Klik(Knop("cmdParenOnderhoud"));
        wachter.Klaar();
    }

    static void Kies(const QDialog& dialoog, const char* keuze)
    {
        auto* cmb = Vind<QComboBox>(dialoog, "cmbNBBledengr");
        cmb->setCurrentIndex(cmb->findText(QString::fromUtf8(keuze)));
        ASSERT_GE(cmb->currentIndex(), 0) << keuze;
        emit cmb->activated(cmb->currentIndex());
    }
    static Teksten Regels(const QDialog& dialoog, const char* lijst)
    {
        Teksten regels;
        const auto* model = Vind<Regellijst>(dialoog, lijst)->model();
        for (int rij = 0; rij < model->rowCount(); ++rij)
            regels.push_back(model->index(rij, 0).data().toString().toStdString());
        return regels;
    }
    static void KiesRegel(const QDialog& dialoog, const char* lijst, const char* begin)
    {
        auto* l = Vind<Regellijst>(dialoog, lijst);
        const auto gevonden = l->model()->match(l->model()->index(0, 0), Qt::DisplayRole,
                                                QString::fromUtf8(begin), 1, Qt::MatchStartsWith);
        ASSERT_EQ(1, gevonden.size()) << begin;
        l->setCurrentIndex(gevonden.first());
    }
    static void Druk(const QDialog& dialoog, const char* knop)
    {
        Klik(Vind<QPushButton>(dialoog, knop));
    }
};

} // namespace

TEST_F(ParenSuiteTest, DeKnopIsErEnWerkt)
{
    EXPECT_TRUE(Knop("cmdParenOnderhoud")->isVisible());
    EXPECT_TRUE(Knop("cmdParenOnderhoud")->isEnabled());
    KiesGroep(6);
    MetParen([&](QDialog& dialoog) {
        EXPECT_EQ("Gr06-", Vind<QLabel>(dialoog, "lblRVDledengr")->text().toStdString());
        Druk(dialoog, "cmdAnnu");
    });
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(ParenSuiteTest, AlleenMetNEWPAGREen)
{
    for (const char* waarde : {"0", "2", "1"}) {
        venster.reset();
        std::string ini = suite.Inhoud("Mappen.ini");
        const auto plek = ini.find("NEWPAGR=") + 8;
        ini.replace(plek, 1, waarde);
        suite.Zet("Mappen.ini", ini);
        ASSERT_NO_FATAL_FAILURE(Start());
        EXPECT_EQ(std::string("1") == waarde, Knop("cmdParenOnderhoud")->isVisible()) << waarde;
    }
}

TEST_F(ParenSuiteTest, ParenMakenOntbindenOpslaanEnHeropenen)
{
    const std::string spelers = suite.Spelers();
    KiesGroep(3);
    MetParen([&](QDialog& dialoog) {
        Kies(dialoog, "Gr03-GEVORDERDEN");
        EXPECT_EQ((Teksten{"100118 Amranouï Aïcha el", "100116 Broekhoven Ilse ten",
                           "100117 Drieskens Mees de", "100115 Nijboersma Jesse"}),
                  Regels(dialoog, "L1"));
        KiesRegel(dialoog, "L1", "100115");
        KiesRegel(dialoog, "L2", "100118");
        Druk(dialoog, "cmdOKE");
        KiesRegel(dialoog, "L1", "100117");
        KiesRegel(dialoog, "L2", "100116");
        Druk(dialoog, "cmdOKE");
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_EQ("100117-100116#100115-100118#\r\n", suite.Inhoud(parenmap / "Gr03-GEVORDERDEN.txt"));
    MetParen([&](QDialog& dialoog) {
        Kies(dialoog, "Gr03-GEVORDERDEN");
        EXPECT_EQ(Teksten(), Regels(dialoog, "L1"));
        EXPECT_EQ((Teksten{"100117 Drieskens Mees de          +100116 Broekhoven Ilse ten",
                           "100115 Nijboersma Jesse          +100118 Amranouï Aïcha el"}),
                  Regels(dialoog, "L3"));
        KiesRegel(dialoog, "L3", "100117");
        Druk(dialoog, "cmdOntbindt");
        EXPECT_EQ((Teksten{"100116 Broekhoven Ilse ten", "100117 Drieskens Mees de"}),
                  Regels(dialoog, "L2"));
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_EQ("100115-100118#\r\n", suite.Inhoud(parenmap / "Gr03-GEVORDERDEN.txt"));
    EXPECT_EQ(spelers, suite.Spelers());
}

TEST_F(ParenSuiteTest, DeLosseSpelersVanDeVoorbeeldsuite)
{
    KiesGroep(1);
    const auto los = [&](const char* regel) {
        wachter.Verwacht(
            {.tekst = u"De volgende spelers zijn losse spelers: \r\n\r\n%1\r\n\r\n"_s.arg(
                 QString::fromUtf8(regel)),
             .icoon = QMessageBox::Warning});
    };
    wachter.Bedien([&](QDialog& dialoog) {
        Kies(dialoog, "Gr01-A-LIJN");
        EXPECT_EQ(
            (Teksten{"100005 Broekhoven Gerrit Jan ten          +100016 ??????",
                     "100021 Çelik Aylin          +100022 Håkansson Lars",
                     "100001 Horst Willem van der          +100002 Horst-Blaauw Ineke van der",
                     "100043 Œderlin Désirée          +100044 Œderlin Jacques",
                     "100036 Oudewortel Theo          +100037 Oudewortel-Quist Mieke"}),
            Regels(dialoog, "L3"));
        Kies(dialoog, "Gr01-B-LIJN");
        EXPECT_EQ("Aantal paren: 3", Vind<QLabel>(dialoog, "Label8")->text().toStdString());
        Druk(dialoog, "cmdEinde");
    });
    los("100005 Broekhoven Gerrit Jan ten - 100016 ??????");
    los("100007 Bruÿn Corrie de - 100008 ??????");
    Klik(Knop("cmdParenOnderhoud"));
    wachter.Klaar();
    // Saved as they were shown: the pair that misses a player is kept.
    EXPECT_EQ("100023-100145#100007-100008#100017-100018#\r\n",
              suite.Inhoud(parenmap / "Gr01-B-LIJN.txt"));
}

TEST_F(ParenSuiteTest, DeCSVBestanden)
{
    KiesGroep(5);
    const QString map = QString::fromStdString((suite.Weg() / "DiverseUitvoer").string());
    wachter.Bedien([&](QDialog& dialoog) {
        Kies(dialoog, "Gr05-DINSDAG");
        Druk(dialoog, "cmdPrintVast");
        Druk(dialoog, "cmdPrintLos");
        Druk(dialoog, "cmdAnnu");
    });
    for (const char* naam : {"RVDparenCSV1.csv", "RVDparenCSV2.csv"})
        wachter.Informatie(u"Het parenbestand '%1' is opgeslagen in de map: \r\n\r\n%2"_s.arg(
            QString::fromLatin1(naam), map));
    Klik(Knop("cmdParenOnderhoud"));
    wachter.Klaar();
    EXPECT_EQ("1;Kees Aardappelaer - Lot Aardappelaer-Vink\r\n"
              "2;Reinier van Cro\xFF"
              "donck - Ulrich Gro\xDFkreuz\r\n"
              "3;Tonny Quartelaer - Ben Quartelaer\r\n"
              "4;Odette Vandermoesen - Luc Vandermoesen\r\n",
              suite.Inhoud("DiverseUitvoer/RVDparenCSV1.csv"));
    EXPECT_EQ("1;Kees Aardappelaer;Lot Aardappelaer-Vink\r\n"
              "2;Reinier van Cro\xFF"
              "donck;Ulrich Gro\xDFkreuz\r\n"
              "3;Tonny Quartelaer;Ben Quartelaer\r\n"
              "4;Odette Vandermoesen;Luc Vandermoesen\r\n",
              suite.Inhoud("DiverseUitvoer/RVDparenCSV2.csv"));
}

TEST_F(ParenSuiteTest, HetBestandVerwijderen)
{
    KiesGroep(2);
    wachter.Bedien([&](QDialog& dialoog) {
        Kies(dialoog, "Gr02-");
        EXPECT_EQ(Teksten{"100056 Wit Hendrika          +100066 Partner_van_Jan"},
                  Regels(dialoog, "L3"));
        Druk(dialoog, "cmdVerwParenbest");
        Druk(dialoog, "cmdEinde");
    });
    wachter.Verwacht(
        {.tekst = u"U gaat Parenbestand Gr02- volledig verwijderen!\r\nWeet u het zeker?"_s});
    Klik(Knop("cmdParenOnderhoud"));
    wachter.Klaar();
    EXPECT_FALSE(suite.Bestaat(parenmap / "Gr02-.txt"));
}

TEST_F(ParenSuiteTest, DeParenmapWordtGemaakt)
{
    suite.Verwijder(parenmap);
    MetParen([](QDialog& dialoog) { Druk(dialoog, "cmdAnnu"); });
    EXPECT_TRUE(suite.Bestaat(parenmap));
}

TEST_F(ParenSuiteTest, EenTweedeExemplaarEindigtHetProgramma)
{
    venster = std::make_unique<frmLedenAdmin>(administratie);
    bool eerste = true;
    ASSERT_EQ(std::nullopt, venster->Laad({.mappenIni = suite.MappenIni(),
                                           .eersteExemplaar = [&eerste] { return eerste; }}));
    ASSERT_NO_FATAL_FAILURE(Toon());
    MetParen([](QDialog& dialoog) { Druk(dialoog, "cmdAnnu"); });
    EXPECT_TRUE(venster->isVisible());
    eerste = false;
    wachter.Informatie(u"Het programma is al gestart!..."_s);
    Klik(Knop("cmdParenOnderhoud"));
    wachter.Klaar();
    EXPECT_FALSE(venster->isVisible());
}
