#include "dialogs/frmVerwSubgroep.h"

#include "dialogs/groepsproef.h"

using namespace plexoran;

namespace {

class frmVerwSubgroepTest : public Groepsproef<frmVerwSubgroep> {
  protected:
    void KiesGroep(int nummer) const { Kies("cmbRVDgr", nummer - 1); }

    static Bericht Vraag(const QString& subgroep, const QString& groep, const QString& antwoord,
                         const QString& spelers)
    {
        return {.tekst = u"U gaat alle spelers van Subgroep '"_s + subgroep +
                         u"'\r\nuit RVDgroep '"_s + groep +
                         u"' verwijderen!\r\n\r\nWeet u het zeker?"_s,
                .antwoord = antwoord,
                .titel = u"Verwijderen?"_s,
                .knoppen = {u"OK"_s, u"Annuleren"_s},
                .toelichting = spelers};
    }
    void VerwachtVerwijderen(const QString& subgroep, const QString& groep, const QString& spelers,
                             int aantal)
    {
        wachter.Verwacht(Vraag(subgroep, groep, u"OK"_s, spelers));
        wachter.Informatie(u"Klaar! \r\nEr zijn %1 speler(s) verwijderd."_s.arg(aantal));
    }
    void Verwijder(const QString& subgroep, const QString& groep, const QString& spelers,
                   int aantal)
    {
        VerwachtVerwijderen(subgroep, groep, spelers, aantal);
        Opdracht("cmdVerwijder");
    }
};

const QString ClubNaam = u"Gr01-Clubleden & co"_s;
const QString ALijn = u"2 spelers:\nAn Bos\nEls Fuik"_s;

} // namespace

TEST_F(frmVerwSubgroepTest, DeTeksten)
{
    VerwachtTeksten(
        "Verwijderen van een subgroep",
        {{"Label1", "Verwijder ALLE spelers "},
         {"Label2", "Verwijdert ALLE spelers van een geselecteerde Subgroep cq NBBgroep."},
         {"Label4", "uit deze Spelergroep:"}},
        {{"cmdVerwijder", "Verwijderen ..."}, {"cmdEinde", "Terug"}});
    VerwachtAlleGroepen("cmbRVDgr");
}

TEST_F(frmVerwSubgroepTest, DeSubgroepenVanDeGroep)
{
    EXPECT_EQ("met deze SUBgroep:", Label("Label3"));
    EXPECT_EQ((Teksten_t{"A-lijn", "geen"}), Teksten("cmbSubGr"));
    EXPECT_EQ(0, Keus("cmbSubGr")->currentIndex());
    EXPECT_TRUE(Knop("cmdVerwijder")->isEnabled());
    KiesGroep(5);
    EXPECT_EQ("met deze NBBgroep:", Label("Label3"));
    EXPECT_EQ((Teksten_t{"DINSDAG", "MAANDAG"}), Teksten("cmbSubGr"));
    KiesGroep(9);
    EXPECT_EQ("met deze SUBgroep:", Label("Label3"));
    EXPECT_EQ(0, Keus("cmbSubGr")->count());
    EXPECT_FALSE(Knop("cmdVerwijder")->isEnabled());
    KiesGroep(1);
    EXPECT_TRUE(Knop("cmdVerwijder")->isEnabled());
    Kies("cmbSubGr", 1);
    ASSERT_EQ(1, Keus("cmbSubGr")->currentIndex());
    KiesGroep(1); // the group that is shown already begins anew
    EXPECT_EQ(0, Keus("cmbSubGr")->currentIndex());
}

TEST_F(frmVerwSubgroepTest, VerwijdertNaDeVraagEnVultDeLijstOpnieuw)
{
    EXPECT_FALSE(venster->IetsVerwijderd());
    Verwijder(u"A-lijn"_s, ClubNaam, ALijn, 2);
    EXPECT_TRUE(venster->IetsVerwijderd());
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ((Teksten_t{"geen"}), Teksten("cmbSubGr"));
    ASSERT_EQ(4, administratie.spelers.tabel.Rijen());
    EXPECT_EQ("100004", Cel(3, Kolom::Key));
    EXPECT_EQ("3", Cel(3, Kolom::Nr));

    Verwijder(u"geen"_s, ClubNaam, u"1 speler:\nDirk Eik"_s, 1);
    EXPECT_EQ(0, Keus("cmbSubGr")->count());
    EXPECT_FALSE(Knop("cmdVerwijder")->isEnabled());
    EXPECT_EQ(3, administratie.spelers.tabel.Rijen());
    Klik(Knop("cmdEinde"));
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(frmVerwSubgroepTest, DeGekozenSubgroepVanDeGekozenGroep)
{
    KiesGroep(5);
    Keus("cmbSubGr")->setCurrentIndex(1);
    Verwijder(u"MAANDAG"_s, u"Gr05-Bondsleden"_s, u"1 speler:\nFred Gans"_s, 1);
    EXPECT_EQ(5, administratie.spelers.tabel.Rijen());
    EXPECT_EQ(4, Keus("cmbRVDgr")->currentIndex());
    EXPECT_EQ((Teksten_t{"DINSDAG"}), Teksten("cmbSubGr"));
}

/// Meant: a stored value with spaces around it is listed, but never matched.
TEST_F(frmVerwSubgroepTest, MetSpatiesEromheenWordtErNietsVerwijderd)
{
    OpenMet({{"100001", "Gr01-", "An", "", "Bos", " x ", ""}});
    EXPECT_EQ((Teksten_t{"x"}), Teksten("cmbSubGr"));
    Verwijder(u"x"_s, ClubNaam, u"0 spelers"_s, 0);
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
    EXPECT_FALSE(venster->IetsVerwijderd());
}

TEST_F(frmVerwSubgroepTest, AnnulerenEscapeEnHetSluitvakVerwijderenNiets)
{
    const auto oud = AlleRijen(administratie.spelers.tabel);
    for (const QString& antwoord :
         {u"Annuleren"_s, Berichtwachter::Escape, Berichtwachter::Sluitvak}) {
        wachter.Verwacht(Vraag(u"A-lijn"_s, ClubNaam, antwoord, ALijn));
        Opdracht("cmdVerwijder");
    }
    EXPECT_EQ(oud, AlleRijen(administratie.spelers.tabel));
    EXPECT_FALSE(venster->IetsVerwijderd());
}

TEST_F(frmVerwSubgroepTest, MetHetToetsenbordAlleen)
{
    const auto toets = [](Qt::Key welke) { QTest::keyClick(QApplication::focusWidget(), welke); };
    EXPECT_TRUE(Keus("cmbRVDgr")->hasFocus());
    toets(Qt::Key_Return); // in a drop-down Enter deletes nothing
    for (int i = 0; i < 4; ++i)
        toets(Qt::Key_Down);
    toets(Qt::Key_Tab);
    EXPECT_TRUE(Keus("cmbSubGr")->hasFocus());
    toets(Qt::Key_Return);
    toets(Qt::Key_Down);
    toets(Qt::Key_Tab);
    EXPECT_TRUE(Knop("cmdVerwijder")->hasFocus());
    VerwachtVerwijderen(u"MAANDAG"_s, u"Gr05-Bondsleden"_s, u"1 speler:\nFred Gans"_s, 1);
    toets(Qt::Key_Return);
    wachter.Klaar();
    EXPECT_EQ(5, administratie.spelers.tabel.Rijen());
    venster->activateWindow(); // no window manager does that here
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    toets(Qt::Key_Tab);
    EXPECT_TRUE(Knop("cmdEinde")->hasFocus());
    toets(Qt::Key_Return);
    EXPECT_FALSE(venster->isVisible());
}
