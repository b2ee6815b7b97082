// Linking floating players and the special add, from the main window on the sample suite.
#include <QListView>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

class ZittingenTest : public Hoofdvensterproef {
  protected:
    void SetUp() override { ASSERT_NO_FATAL_FAILURE(Start()); }
};

} // namespace

TEST_F(ZittingenTest, KoppelenVerandertAlleenDeZitting)
{
    KiesGroep(5);
    const std::string spelers = suite.Spelers();
    wachter.Bedien([&](QDialog& dialoog) {
        EXPECT_EQ("frmKoppelNBBnr", dialoog.objectName().toStdString());
        QApplication::processEvents();
        Druk(dialoog, "cmdZoekNamen");
        auto* lijst = Vind<QListView>(dialoog, "lstSpelers");
        lijst->setCurrentIndex(lijst->model()->index(0, 0));
        Druk(dialoog, "cmdKiesRVDspeler");
        Druk(dialoog, "cmdStartKoppelen");
        Druk(dialoog, "cmdEinde");
    });
    wachter.Verwacht(
        {.tekst = u"De zwevende speler krijgt nu zijn RVD-nummer toegewezen in de betreffende "
                  "zittingbestanden.\r\n\r\nKies OK of Annuleer."_s});
    wachter.Informatie(u"Speler Marleen Hijmanse is gekoppeld."_s);
    Opdracht("cmdKoppel");
    EXPECT_EQ(spelers, suite.Spelers());
    const std::string zitting = suite.Inhoud("Zittingen/Dinsdagavond 2024-09-10/Spelers.txt");
    EXPECT_NE(std::string::npos, zitting.find("\r\nN02 100086 - 100090\r\n")) << zitting;
}

TEST_F(ZittingenTest, NaHetToevoegenWordtErOpgeslagenEnGetoond)
{
    KiesGroep(8);
    EXPECT_EQ("Aantal regels: 10", Aantal());
    wachter.Bedien([](QDialog& dialoog) {
        EXPECT_EQ("diaToevoegen", dialoog.objectName().toStdString());
        QApplication::processEvents();
        Druk(dialoog, "cmdStart");
        Druk(dialoog, "OKButton");
    });
    wachter.Informatie(u"De spelers zijn toegevoegd."_s);
    Opdracht("cmdSpToevoegen");
    EXPECT_EQ("Aantal regels: 19", Aantal());
    const auto regels = RegelsVan(suite.Spelers());
    EXPECT_EQ("HKEY=100180", regels.front());
    EXPECT_EQ("157,100180,Gr08-,Edsel,,Marchena\xF1"
              "ez,,,,,,,,,,,,",
              regels.back());
    EXPECT_TRUE(suite.Bestaat("Zittingen/Zomerdrive 2024_Rev/Koppelverslag.txt"));
}

TEST_F(ZittingenTest, NaAnnulerenBlijftHetBestandMetRust)
{
    KiesGroep(8);
    const std::string spelers = suite.Spelers();
    wachter.Bedien([](QDialog& dialoog) {
        QApplication::processEvents();
        Druk(dialoog, "cmdStart");
        Druk(dialoog, "cmdAnnuleren");
    });
    wachter.Informatie(u"De spelers zijn toegevoegd."_s);
    wachter.Informatie(u"Er worden geen spelers toegevoegd."_s);
    schijf.FaalNiet();
    Opdracht("cmdSpToevoegen");
    EXPECT_EQ(spelers, suite.Spelers());
    EXPECT_EQ("Aantal regels: 10", Aantal());
    EXPECT_FALSE(suite.Bestaat("Zittingen/Zomerdrive 2024_Rev/Koppelverslag.txt"));
    EXPECT_EQ(100171, administratie.spelers.HKEY);
}
