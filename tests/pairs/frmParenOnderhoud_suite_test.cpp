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
};

} // namespace

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
                  Lijstregels(dialoog, "L1"));
        KlikRegel(dialoog, "L1", "100115");
        KlikRegel(dialoog, "L2", "100118");
        Druk(dialoog, "cmdOKE");
        KlikRegel(dialoog, "L1", "100117");
        KlikRegel(dialoog, "L2", "100116");
        Druk(dialoog, "cmdOKE");
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_EQ("100117-100116#100115-100118#\r\n", suite.Inhoud(parenmap / "Gr03-GEVORDERDEN.txt"));
    MetParen([&](QDialog& dialoog) {
        Kies(dialoog, "Gr03-GEVORDERDEN");
        EXPECT_EQ(Teksten(), Lijstregels(dialoog, "L1"));
        EXPECT_EQ((Teksten{"100117 Drieskens Mees de          +100116 Broekhoven Ilse ten",
                           "100115 Nijboersma Jesse          +100118 Amranouï Aïcha el"}),
                  Lijstregels(dialoog, "L3"));
        KlikRegel(dialoog, "L3", "100117");
        Druk(dialoog, "cmdOntbindt");
        EXPECT_EQ((Teksten{"100116 Broekhoven Ilse ten", "100117 Drieskens Mees de"}),
                  Lijstregels(dialoog, "L2"));
        Druk(dialoog, "cmdEinde");
    });
    EXPECT_EQ("100115-100118#\r\n", suite.Inhoud(parenmap / "Gr03-GEVORDERDEN.txt"));
    EXPECT_EQ(spelers, suite.Spelers());
}

TEST_F(ParenSuiteTest, EenTweedeExemplaarEindigtHetProgramma)
{
    venster = std::make_unique<frmLedenAdmin>(administratie);
    bool eerste = true;
    ASSERT_EQ(std::nullopt, venster->Laad(suite.MappenIni(), [&eerste] { return eerste; }));
    ASSERT_NO_FATAL_FAILURE(Toon());
    KiesGroep(6);
    MetParen([](QDialog& dialoog) {
        EXPECT_EQ("Gr06-", Vind<QLabel>(dialoog, "lblRVDledengr")->text().toStdString());
        Druk(dialoog, "cmdAnnu");
    });
    EXPECT_TRUE(venster->isVisible());
    eerste = false;
    wachter.Informatie(u"Het programma is al gestart!..."_s);
    Klik(Knop("cmdParenOnderhoud"));
    wachter.Klaar();
    EXPECT_FALSE(venster->isVisible());
}
