#include "dialogs/diaKopieer.h"

#include "dialogs/groepsproef.h"
#include "hulp/groei.h"

using namespace plexoran;

namespace {

using Plaatsen = std::vector<int>;

const QString ClubNaam = u"Gr01-Clubleden & co"_s;
const QString OK = u"OK"_s;

class diaKopieerTest : public Groepsproef<diaKopieer> {
  protected:
    void KiesWaarde(int plaats) const { Kies("cmbNBBgr", plaats); }
    void KiesBron(int nummer) const { Kies("cmbUitGroep", nummer - 1); }
    [[nodiscard]] QCheckBox* Vink(const char* naam) const { return Deel<QCheckBox>(naam); }

    static Bericht Kopieervraag(const QString& bron, const QString& doel, const QString& antwoord)
    {
        return {.tekst =
                    u"U gaat spelers kopiëren van groep '"_s + bron + u"' naar groep '"_s + doel +
                    u"'.\r\n\r\nPas op: Reeds bestaande spelers in '"_s + doel +
                    u"' zullen er daarna 2 keer in staan en zult u handmatig moeten verwijderen!"_s,
                .antwoord = antwoord,
                .knoppen = {u"OK"_s, u"Annuleren"_s}};
    }
    void KopieerNaar(int nummer, int aantal, const QString& bron = ClubNaam)
    {
        Keus("cmbGrnamen")->setCurrentIndex(nummer - 1);
        wachter.Verwacht(Kopieervraag(bron, Keus("cmbGrnamen")->currentText(), OK));
        wachter.Informatie(u"Er zijn %1 spelers gekopieerd."_s.arg(aantal));
        Opdracht("cmdOK");
    }
};

} // namespace

TEST_F(diaKopieerTest, DeTeksten)
{
    VerwachtTeksten("Kopieer speler(s) naar een andere groep",
                    {{"Label1", "Selecteer de spelers(s) "},
                     {"Label2", "Kopieer hen naar groep:"},
                     {"Label4", "Uit spelergroep:"}},
                    {{"cmdSelAll", "Selecteer alles"},
                     {"cmdSelNone", "Selecteer niets"},
                     {"cmdOK", "Kopieer"},
                     {"cmdAnnuleren", "Annuleren"}},
                    {{"Frame1", "Spelers kopiëren"}});
    VerwachtAlleGroepen("cmbGrnamen");
    VerwachtAlleGroepen("cmbUitGroep");
    VerwachtDezelfdeBreedteBijLangeNamen({"cmbGrnamen", "cmbUitGroep", "cmbNBBgr"});
}

TEST_F(diaKopieerTest, DeOpschriftenHangenVanDeBronAf)
{
    for (const int groep : {1, 5, 2}) {
        KiesBron(groep);
        const bool import = groep == 5;
        EXPECT_EQ(import ? "NBBgroep ook kopieren" : "Subgroeptekst ook mee kopieren",
                  Opschrift(Vink("chkNBBgrOok")));
        EXPECT_EQ(import ? "Selecteer de spelers van 'NBBgroep':"
                         : "Selecteer de spelers van 'Subgroep':",
                  Label("Label3"));
        EXPECT_EQ(import, Vink("chkNBBnrOok")->isVisible());
        EXPECT_EQ("NBBnummer ook kopieren", Opschrift(Vink("chkNBBnrOok")));
        // Meant: the number is never copied through this screen.
        EXPECT_FALSE(Vink("chkNBBnrOok")->isEnabled());
        EXPECT_FALSE(Vink("chkNBBnrOok")->isChecked());
        EXPECT_TRUE(Vink("chkNBBgrOok")->isEnabled());
        EXPECT_TRUE(Vink("chkNBBgrOok")->isChecked());
    }
}

TEST_F(diaKopieerTest, DeEersteRegelIsGekozenEnDeRestNiet)
{
    EXPECT_EQ((Teksten_t{"Gr01-\tBos   An   (A-lijn)" + spaties60 + "100001",
                         "Gr01-\tEik   Dirk (geen)" + spaties60 + "100004",
                         "Gr01-\tFuik   Els   (A-lijn)" + spaties60 + "100005"}),
              Regels());
    EXPECT_EQ((Teksten_t{"A-lijn", "geen"}), Teksten("cmbNBBgr"));
    EXPECT_EQ(0, Keus("cmbNBBgr")->currentIndex());
    EXPECT_EQ(Plaatsen({0}), Lijst()->GekozenPlaatsen());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    EXPECT_EQ(0, Lijst()->currentIndex().row());
    KiesBron(5);
    EXPECT_EQ(0, Lijst()->currentIndex().row());
    EXPECT_EQ((Teksten_t{"Gr05-\tCock   Bea de  (DINSDAG)" + spaties60 + "100002",
                         "Gr05-\tGans   Fred   (MAANDAG)" + spaties60 + "100006"}),
              Regels());
    EXPECT_EQ((Teksten_t{"DINSDAG", "MAANDAG"}), Teksten("cmbNBBgr"));
    EXPECT_EQ(Plaatsen({0}), Lijst()->GekozenPlaatsen());
    Klik(Knop("cmdSelAll"));
    KiesBron(5); // the group that is shown already begins anew
    EXPECT_EQ(Plaatsen({0}), Lijst()->GekozenPlaatsen());
}

TEST_F(diaKopieerTest, EenWaardeKiezenVoegtToeEnLaatNietsLos)
{
    QTest::keyClick(Keus("cmbNBBgr"), Qt::Key_Down);
    EXPECT_EQ(Plaatsen({0, 1}), Lijst()->GekozenPlaatsen());
    Klik(Knop("cmdSelNone"));
    KiesWaarde(1); // the value that is shown already
    EXPECT_EQ(Plaatsen({1}), Lijst()->GekozenPlaatsen());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    KiesWaarde(0);
    EXPECT_EQ(Plaatsen({0, 1, 2}), Lijst()->GekozenPlaatsen());
    EXPECT_EQ(0, Lijst()->currentIndex().row());
}

/// Meant: the value is looked for in the whole line, names included, without regard to case.
TEST_F(diaKopieerTest, DeWaardeWordtInDeHeleRegelGezochtEnHoudtHaarSpaties)
{
    OpenMet({{"100001", "Gr01-", "An", "", "Bos", "", ""},
             {"100002", "Gr01-", "Bo", "", "van Geenen", "CAF\xC9", ""},
             {"100003", "Gr01-", "Cy", "", "caf\xE9houder", "x", ""},
             {"100004", "Gr01-", "Di", "", "Eos", "CAFE", ""}});
    EXPECT_EQ((Teksten_t{"geen", "CAFÉ", "x", "CAFE"}), Teksten("cmbNBBgr"));
    Klik(Knop("cmdSelNone"));
    KiesWaarde(0);
    EXPECT_EQ(Plaatsen({0, 1}), Lijst()->GekozenPlaatsen());
    Klik(Knop("cmdSelNone"));
    KiesWaarde(1);
    EXPECT_EQ(Plaatsen({1, 2}), Lijst()->GekozenPlaatsen());
    // Meant: values are not trimmed here, but one of blanks counts as "geen".
    OpenMet({{"100001", "Gr01-", "An", "", "Bos", " x", ""},
             {"100002", "Gr01-", "Bo", "", "Cos", "  ", ""},
             {"100003", "Gr01-", "Cy", "", "Dos", "x", ""},
             {"100004", "Gr01-", "Di", "", "Eos", "", ""}});
    EXPECT_EQ((Teksten_t{" x", "geen", "x"}), Teksten("cmbNBBgr"));
}

TEST_F(diaKopieerTest, AllesEnNietsWerkenDeKnopBijEnEenLegeGroepHeeftNiets)
{
    KlikRegel(2);
    Klik(Knop("cmdSelAll"));
    EXPECT_EQ(3U, Lijst()->GekozenPlaatsen().size());
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
    EXPECT_EQ(0, Lijst()->currentIndex().row());
    KlikRegel(2);
    Klik(Knop("cmdSelNone"));
    EXPECT_FALSE(Lijst()->IetsGekozen());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    EXPECT_EQ(0, Lijst()->currentIndex().row());
    KiesBron(9);
    EXPECT_EQ(0, Lijst()->Aantal());
    EXPECT_EQ(0, Keus("cmbNBBgr")->count());
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    Klik(Knop("cmdSelAll"));
    EXPECT_FALSE(Knop("cmdOK")->isEnabled());
    KiesBron(1);
    EXPECT_TRUE(Knop("cmdOK")->isEnabled());
}

TEST_F(diaKopieerTest, KopieertNaDeVraagEnMeldtHetAantal)
{
    auto moet = AlleRijen(administratie.spelers.tabel);
    for (const std::size_t bron : {std::size_t{0}, std::size_t{4}}) {
        moet.push_back(moet[bron]);
        moet.back()[1] = bron == 0 ? "100043" : "100044";
        moet.back()[2] = "Gr08-";
        moet.back()[17] = "";
    }
    KlikRegel(2);
    KopieerNaar(8, 2);
    EXPECT_FALSE(venster->isVisible());
    EXPECT_FALSE(venster->IngaveGeannuleerd());
    EXPECT_EQ(moet, AlleRijen(administratie.spelers.tabel));
    EXPECT_EQ(100044, administratie.spelers.HKEY);
}

/// Meant: a line whose key no player has gives an empty row, and counts as a player.
TEST_F(diaKopieerTest, EenRegelZonderSpelerTeltMee)
{
    OpenMet({{"100001", "Gr01-", "An", "", "Bos", "A-lijn", "1"},
             {"12", "Gr01-", "Bo", "", "Cos", "A-lijn", "2"},
             {"", "Gr01-", "Cy", "", "Dos", "A-lijn", "3"}});
    Klik(Knop("cmdSelAll"));
    KopieerNaar(8, 3);
    EXPECT_EQ("Bos", Cel(4, Kolom::Achternaam));
    for (const int rij : {5, 6})
        EXPECT_EQ((Rijvelden{"", std::to_string(100'039 + rij), "Gr08-"}),
                  administratie.spelers.tabel.Velden(rij));
    EXPECT_EQ(100'045, administratie.spelers.HKEY);
}

/// Meant: the number does not go along, not even out of the import group, where the box for it is
/// shown.
TEST_F(diaKopieerTest, MetOfZonderSubgroeptekstEnNooitHetNummer)
{
    Vink("chkNBBgrOok")->click();
    KopieerNaar(1, 1);
    EXPECT_EQ("Gr01-", Cel(7, Kolom::Groep));
    EXPECT_EQ("Bos", Cel(7, Kolom::Achternaam));
    EXPECT_EQ("", Cel(7, Kolom::NBBgr));
    EXPECT_EQ("A-lijn", Cel(1, Kolom::NBBgr));
    Open();
    KiesBron(5);
    Vink("chkNBBnrOok")->click();
    KopieerNaar(1, 1, u"Gr05-Bondsleden"_s);
    EXPECT_EQ("DINSDAG", Cel(8, Kolom::NBBgr));
    EXPECT_EQ("", Cel(8, Kolom::NBBnr));
}

TEST_F(diaKopieerTest, AnnulerenVanDeVraagLaatHetVensterOpen)
{
    const auto oud = AlleRijen(administratie.spelers.tabel);
    for (const QString& antwoord :
         {u"Annuleren"_s, Berichtwachter::Escape, Berichtwachter::Sluitvak}) {
        wachter.Verwacht(Kopieervraag(ClubNaam, ClubNaam, antwoord));
        Opdracht("cmdOK");
        EXPECT_TRUE(venster->isVisible());
        EXPECT_EQ(Plaatsen({0}), Lijst()->GekozenPlaatsen());
    }
    EXPECT_EQ(oud, AlleRijen(administratie.spelers.tabel));
    EXPECT_EQ(100042, administratie.spelers.HKEY);
}

TEST_F(diaKopieerTest, AnnulerenEscapeEnHetSluitvakVeranderenNiets)
{
    VerwachtDatSluitenNietsVerandert([this] { Klik(Knop("cmdSelAll")); });
}

TEST_F(diaKopieerTest, AlsDeSleutelsOpZijnBlijftHetVensterOpen)
{
    administratie.spelers.HKEY = std::numeric_limits<std::int32_t>::max();
    administratie.mappen.SPEMAP = "C:\\club";
    geheugen.Zet("C:\\club\\RVDspelers.txt", "HKEY=2147483647\r\n");
    wachter.Verwacht(Kopieervraag(ClubNaam, ClubNaam, OK));
    wachter.SleutelsOp(u"Er is niets gekopieerd"_s, "C:\\club\\RVDspelers.txt");
    Opdracht("cmdOK");
    EXPECT_TRUE(venster->isVisible());
    EXPECT_TRUE(venster->IngaveGeannuleerd());
    EXPECT_EQ(6, administratie.spelers.tabel.Rijen());
}

TEST_F(diaKopieerTest, HonderdduizendSpelersZonderWachten)
{
    EXPECT_TRUE(GroeitMee(100'000, [this](int aantal) {
        std::vector<Proefspeler> spelers(
            static_cast<std::size_t>(aantal),
            {"100001", "Gr01-", "An", "van der", "Boskamp", "A-lijn", "12345678"});
        for (std::size_t i = 0; i < spelers.size(); i += 2)
            spelers[i].nbbgr = "B-lijn";
        OpenMet(spelers);
        EXPECT_EQ(aantal, Lijst()->Aantal());
        EXPECT_EQ((Teksten_t{"B-lijn", "A-lijn"}), Teksten("cmbNBBgr"));
        KiesWaarde(1);
        EXPECT_EQ(spelers.size() / 2 + 1, Lijst()->GekozenPlaatsen().size());
        Klik(Knop("cmdSelAll"));
        EXPECT_EQ(spelers.size(), Lijst()->GekozenPlaatsen().size());
    }));
}
