#include "dialogs/diaVerplaats.h"

#include "dialogs/groepsproef.h"

using namespace plexoran;

namespace {

class diaVerplaatsTest : public Groepsproef<diaVerplaats> {};

} // namespace

TEST_F(diaVerplaatsTest, DeTeksten)
{
    VerwachtTeksten("Verplaats speler(s) naar een andere groep",
                    {{"Label1", "Selecteer de spelers(s) "},
                     {"Label2", "Verplaats hen naar de volgende groep:"},
                     {"Label3", "Spelers van 'Gr05-' kunnen niet worden verplaatst. "},
                     {"Label4", "Spelers mogen wel naar groep 'Gr05-' worden verplaatst."}},
                    {{"cmdSelAll", "Selecteer alles"},
                     {"cmdSelNone", "Selecteer niets"},
                     {"cmdOK", "Verplaats"},
                     {"cmdAnnuleren", "Annuleren"}});
    VerwachtAlleGroepen("cmbGrnamen");
    VerwachtDezelfdeBreedteBijLangeNamen({"cmbGrnamen"});
}

/// Meant: the labels name "Gr05-" whatever the import group is called.
TEST_F(diaVerplaatsTest, DeImportgroepStaatNietInDeLijst)
{
    EXPECT_EQ((Teksten_t{"Gr01-\tBos   An " + spaties60 + "100001",
                         "Gr02-\tDam   Cor van der" + spaties60 + "100003",
                         "Gr01-\tEik   Dirk " + spaties60 + "100004",
                         "Gr01-\tFuik   Els " + spaties60 + "100005"}),
              Regels());
    administratie.mappen.DFIMPG = "Gr01-";
    Open();
    EXPECT_EQ(3, Lijst()->Aantal());
    EXPECT_EQ("Spelers van 'Gr05-' kunnen niet worden verplaatst. ", Label("Label3"));
}

TEST_F(diaVerplaatsTest, ZonderKeuzeKanErNietVerplaatstWorden)
{
    EXPECT_FALSE(Lijst()->IetsGekozen());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    KlikRegel(1);
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    KlikRegel(1);
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    Klik(Knop("cmdSelAll"));
    EXPECT_EQ(4U, Lijst()->GekozenPlaatsen().size());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    Klik(Knop("cmdSelNone"));
    EXPECT_FALSE(Lijst()->IetsGekozen());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
}

TEST_F(diaVerplaatsTest, VerplaatstDeGekozenSpelers)
{
    auto moet = AlleRijen(administratie.spelers.tabel);
    moet[0][2] = moet[3][2] = "Gr05-"; // of which there is no way back
    KlikRegel(0);
    KlikRegel(2);
    Keus("cmbGrnamen")->setCurrentIndex(4);
    EXPECT_TRUE(venster->IngaveGeannuleerd());
    Klik(Knop("cmdOK"));
    EXPECT_FALSE(venster->isVisible());
    EXPECT_FALSE(venster->IngaveGeannuleerd());
    EXPECT_EQ(moet, AlleRijen(administratie.spelers.tabel));
    Open();
    EXPECT_EQ(2, Lijst()->Aantal());
}

TEST_F(diaVerplaatsTest, AnnulerenEscapeEnHetSluitvakVeranderenNiets)
{
    VerwachtDatSluitenNietsVerandert([this] {
        Klik(Knop("cmdSelAll"));
        Keus("cmbGrnamen")->setCurrentIndex(7);
    });
}

TEST_F(diaVerplaatsTest, MetHetToetsenbordAlleen)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(std::vector{0}, Lijst()->GekozenPlaatsen());
    QTest::keyClick(venster.get(), Qt::Key_V, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !venster->isVisible(); }));
    EXPECT_FALSE(venster->IngaveGeannuleerd());
}

/// Enter presses the button that has the focus, not the one that moves the players.
TEST_F(diaVerplaatsTest, EnterDruktOpDeKnopMetDeFocus)
{
    const auto oud = AlleRijen(administratie.spelers.tabel);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        Open();
        Keus("cmbGrnamen")->setCurrentIndex(7);
        QTest::keyClick(Knop("cmdSelAll"), enter);
        EXPECT_EQ(4U, Lijst()->GekozenPlaatsen().size());
        QTest::keyClick(Knop("cmdSelNone"), enter);
        EXPECT_FALSE(Lijst()->IetsGekozen());
        KlikRegel(0);
        EXPECT_TRUE(venster->isVisible());
        QTest::keyClick(Knop("cmdAnnuleren"), enter);
        EXPECT_FALSE(venster->isVisible());
        EXPECT_TRUE(venster->IngaveGeannuleerd());
    }
    EXPECT_EQ(oud, AlleRijen(administratie.spelers.tabel));
    Open();
    KlikRegel(0);
    QTest::keyClick(Lijst(), Qt::Key_Return);
    EXPECT_FALSE(venster->IngaveGeannuleerd());
}

TEST_F(diaVerplaatsTest, AlleenSpelersVanDeImportgroepGeeftEenLegeLijst)
{
    OpenMet({{"100002", "Gr05-", "Bea", "", "Cock", "", ""}});
    EXPECT_EQ(0, Lijst()->Aantal());
    Klik(Knop("cmdSelAll"));
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
}
