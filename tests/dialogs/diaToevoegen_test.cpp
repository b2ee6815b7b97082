#include "dialogs/diaToevoegen.h"

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<std::string>;

const std::string Zomer = "Zittingen/Zomerdrive 2024_Rev";
const std::string Zondag = "Zittingen/Zondagdrive 2024_Rev";
const QString OudeKeys =
    u"De spelernamen hebben al een RVD-key, maar dit kan een oude zijn, wordt verwijderd."_s;

/// The real dialog on a copy of the sample suite.
class diaToevoegenTest : public Dialoogproef<diaToevoegen, Suitestand> {
  protected:
    diaToevoegenTest() { LeesRegister(); }

    void Open() { ToonEnLees(administratie); }

    [[nodiscard]] QComboBox* Keus() const { return Vind<QComboBox>(*venster, "Combo1"); }
    [[nodiscard]] Teksten Namen() const { return Regels("lstN2"); }
    [[nodiscard]] const Spelertabel& Tabel() const { return administratie.spelers.tabel; }
    void VoegToe()
    {
        wachter.Informatie(u"De spelers zijn toegevoegd."_s);
        Opdracht("cmdStart");
    }
    /// Which of the three can be pressed.
    void VerwachtKnoppen(bool lees, bool start, bool ok) const
    {
        EXPECT_EQ(lees, Knop("cmdLeesSpelers")->isEnabled());
        EXPECT_EQ(start, Knop("cmdStart")->isEnabled());
        EXPECT_EQ(ok, Knop("OKButton")->isEnabled());
    }
    [[nodiscard]] std::string Koppeltekst() const
    {
        return suite.Inhoud(Zomer + "/Koppelverslag.txt");
    }
    void VerwachtNietVast()
    {
        schijf.FaalBij(9); // make, rights, write, sync, close, lock, rename, unlock, the folder
        wachter.Begin(u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf."_s);
    }
    void VerwachtAfscheid() { wachter.Informatie(u"Er worden geen spelers toegevoegd."_s); }
};

const std::string Verslag = "N01 100172 - 100173\r\nN02 100174 - 100175\r\nN03 100176 - 0\r\n"
                            "N04 0 - 0\r\nO01 100177 - 100178\r\nO02 100179 - 100180\r\n";

} // namespace

TEST_F(diaToevoegenTest, DeTeksten)
{
    Open();
    VerwachtTeksten("Spelers toevoegen (speciaal)",
                    {{"Label1", "Kies een zitting:"},
                     {"Label2", "Alleen gebruiken door deskundigen van de materie."},
                     {"Label3", "(eindigend op '_Rev')"},
                     {"Label5", "(u riskeert een corrupt ledenbestand)"},
                     {"Label6", "Spelers worden toegevoegd aan spelergroep 'Gr08-'"},
                     {"Label7", "U kunt ze daar later weer uit verwijderen."}},
                    {{"cmdLeesSpelers", "Spelers ophalen uit deze zitting"},
                     {"cmdStart", "Deze spelers toevoegen aan het ledenbestand"},
                     {"OKButton", "Klaar en opslaan"},
                     {"cmdAnnuleren", "Annuleren"}});
}

TEST_F(diaToevoegenTest, DeEersteZittingMetDeLijstUitDeZustermap)
{
    Open();
    EXPECT_EQ((Teksten{"Zomerdrive 2024_Rev", "Zondagdrive 2024_Rev"}), Keuzes(Keus()));
    EXPECT_EQ(0, Keus()->currentIndex());
    EXPECT_EQ(suite.Inhoud("Puntenboek/De Ruitenzeven_Zomerdrive 2024_Rev/Spelers.txt"),
              suite.Inhoud(Zomer + "/Spelers.txt"));
    EXPECT_EQ((Teksten{"Ria,,Hupsekee,N01", "Gijs,,Hupsekee,N01", "Günther,,Vößmann,N02",
                       "Heidelinde,von der,Weiß,N02", "Bram,,Loeff,N03", ",,Afwezig,N03",
                       "STIL,,ZIT,N04", "STIL,,ZIT,N04", "Lieve,Van,Kerckenberghe,O01",
                       "Núria,Señorans i,Puig,O01", ",,Partner,O02", "Edsel,,Marchenañez,O02"}),
              Namen());
    EXPECT_EQ("Aantal toe te voegen spelers: 12", Label("Label4"));
    VerwachtKnoppen(false, true, false);
}

TEST_F(diaToevoegenTest, ToevoegenEnOpslaan)
{
    const int oud = Tabel().Rijen();
    const std::string bestand = suite.Spelers();
    Open();
    VoegToe();
    ASSERT_EQ(oud + 9, Tabel().Rijen());
    EXPECT_EQ(100180, administratie.spelers.HKEY);
    EXPECT_EQ(
        (Rijvelden{std::to_string(oud + 4), "100175", "Gr08-", "Heidelinde", "von der", "Wei\xDF"}),
        Tabel().Velden(oud + 4));
    EXPECT_EQ(Verslag, Koppeltekst());
    EXPECT_FALSE(Keus()->isEnabled());
    VerwachtKnoppen(false, false, true);
    EXPECT_EQ(QDialog::Rejected, venster->result());
    Klik(Knop("OKButton"));
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(QDialog::Accepted, venster->result());
    EXPECT_EQ(oud + 9, Tabel().Rijen());
    EXPECT_EQ(bestand, suite.Spelers()); // saving is the main window's
}

TEST_F(diaToevoegenTest, AnnulerenEscapeEnHetSluitvakMakenAllesOngedaan)
{
    const auto rijen = AlleRijen(Tabel());
    for (const bool vroeger : {false, true}) {
        if (vroeger)
            suite.Zet(Zomer + "/Koppelverslag.txt", "van vroeger");
        for (int weg = 0; weg < Sluitwegen; ++weg) {
            for (const bool toegevoegd : {false, true}) {
                Open();
                if (toegevoegd) {
                    VoegToe();
                    EXPECT_EQ(Verslag, Koppeltekst());
                }
                VerwachtAfscheid();
                Sluit(weg, "cmdAnnuleren");
                wachter.Klaar();
                EXPECT_EQ(QDialog::Rejected, venster->result());
                EXPECT_EQ(rijen, AlleRijen(Tabel()));
                EXPECT_EQ(100171, administratie.spelers.HKEY);
                EXPECT_EQ(vroeger, suite.Bestaat(Zomer + "/Koppelverslag.txt"));
                EXPECT_EQ(vroeger ? "van vroeger" : "", Koppeltekst());
            }
        }
    }
}

/// Only syncing the folder fails: the old link file is in its place, and need not be removed.
TEST_F(diaToevoegenTest, EenVerslagDatTerugStaatMaarNietVastIsTeruggezet)
{
    suite.Zet(Zomer + "/Koppelverslag.txt", "van vroeger");
    Open();
    VoegToe();
    VerwachtNietVast();
    VerwachtAfscheid();
    Opdracht("cmdAnnuleren");
    EXPECT_EQ("van vroeger", Koppeltekst());
}

TEST_F(diaToevoegenTest, OudeKeysWordenGemeldEnVervallen)
{
    Open();
    wachter.Informatie(OudeKeys);
    Keus()->setFocus();
    QTest::keyClick(Keus(), Qt::Key_Down);
    wachter.Klaar();
    EXPECT_EQ((Teksten{"Wim,de,Leeuwerik,N01", "Toon,van den,Oever,N01", "Joke,,Tureluur,N02",
                       ",,,N02", ",,AFW,O01", "Piet,in 't,Zand,O01"}),
              Namen());
    EXPECT_EQ("Aantal toe te voegen spelers: 6", Label("Label4"));
    // Picked by hand, the session can be read again.
    ASSERT_TRUE(Knop("cmdLeesSpelers")->isEnabled());
    suite.Zet(Zondag + "/Spelers.txt", "");
    Klik(Knop("cmdLeesSpelers"));
    EXPECT_EQ(Teksten{}, Namen());
    EXPECT_EQ("Aantal toe te voegen spelers: 0", Label("Label4"));
    EXPECT_FALSE(Knop("cmdStart")->isEnabled());
    suite.Zet(Zondag + "/Spelers.txt", "N02 Joke Tureluur - AFW\r\n");
    Klik(Knop("cmdLeesSpelers"));
    EXPECT_TRUE(Knop("cmdStart")->isEnabled());
    VoegToe();
    EXPECT_EQ("N02 100172 - 0\r\n", suite.Inhoud(Zondag + "/Koppelverslag.txt"));
    EXPECT_FALSE(suite.Bestaat(Zomer + "/Koppelverslag.txt"));
}

TEST_F(diaToevoegenTest, ZonderClubnaamDeEigenLijstEnZonderRevMapNiets)
{
    suite.Zet("Puntenboek/Rev_Clubnaam.txt", "  \r\n");
    Open();
    EXPECT_EQ("Aantal toe te voegen spelers: 6", Label("Label4"));
    EXPECT_EQ(",,AFW,N03", Namen().back());
    suite.Verwijder("Zittingen");
    Open();
    EXPECT_EQ(0, Keus()->count());
    EXPECT_EQ("...", Label("Label4"));
    VerwachtKnoppen(false, false, false);
}

TEST_F(diaToevoegenTest, EenKopieDieMisluktOfNietVastStaat)
{
    schijf.FaalBij(1);
    wachter.Begin(u"Fout bij het ophalen van 'Spelers.txt' uit de map Puntenboek. De spelers en de "
                  "zitting zijn niet veranderd. Verhelp de oorzaak en open dit venster "
                  "opnieuw.\n\nBestand: "_s);
    Open();
    EXPECT_EQ("Aantal toe te voegen spelers: 6", Label("Label4"));
    // When only syncing the folder fails, the copy is there and is read.
    VerwachtNietVast();
    Open();
    EXPECT_EQ("Aantal toe te voegen spelers: 12", Label("Label4")); // not the 6 of its own list
}

TEST_F(diaToevoegenTest, EenVerslagDatNietTeSchrijvenIs)
{
    Open();
    const auto rijen = AlleRijen(Tabel());
    // The last step, syncing the folder, fails when the new file is in place already.
    // The fifth is the lock, which is asked for again.
    for (const int stap : {1, 2, 3, 4, 6}) {
        schijf.FaalBij(stap);
        wachter.Begin(
            u"Fout bij het schrijven van 'Koppelverslag.txt'. Er is niets toegevoegd: "
            "zonder dat bestand zijn de nieuwe spelers niet aan deze zitting te koppelen. "
            "Verhelp de oorzaak en probeer het opnieuw.\n\nBestand: "_s);
        Opdracht("cmdStart");
        EXPECT_EQ(rijen, AlleRijen(Tabel()));
        EXPECT_EQ(100171, administratie.spelers.HKEY);
        EXPECT_FALSE(suite.Bestaat(Zomer + "/Koppelverslag.txt")) << stap;
        EXPECT_FALSE(Knop("OKButton")->isEnabled());
        EXPECT_TRUE(Knop("cmdStart")->isEnabled());
    }
    schijf.FaalNiet();
    VoegToe();
    EXPECT_EQ(Verslag, Koppeltekst());
}

TEST_F(diaToevoegenTest, AlsDeSleutelsOpZijn)
{
    administratie.spelers.HKEY = std::numeric_limits<std::int32_t>::max() - 3;
    Open();
    wachter.SleutelsOp(u"Er is niets toegevoegd"_s, suite.Toonpad("Spelers/RVDspelers.txt"));
    const int oud = Tabel().Rijen();
    Klik(Knop("cmdStart"));
    EXPECT_EQ(oud, Tabel().Rijen());
    EXPECT_FALSE(suite.Bestaat(Zomer + "/Koppelverslag.txt"));
}

TEST_F(diaToevoegenTest, MetHetToetsenbord)
{
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    Keus()->setFocus();
    EXPECT_EQ("lstN2 cmdStart cmdAnnuleren ", MetTab(3));
    wachter.Informatie(u"De spelers zijn toegevoegd."_s);
    QTest::keyClick(venster.get(), Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return Knop("OKButton")->isEnabled(); }));
    wachter.Klaar();
    EXPECT_EQ(Knop("OKButton"), venster->focusWidget());
    QTest::keyClick(venster.get(), Qt::Key_Return);
    EXPECT_EQ(QDialog::Accepted, venster->result());
}

/// Two sessions are read, but the one club name is told of once.
TEST_F(diaToevoegenTest, EenClubnaamMetEenStreepWordtEenKeerGemeld)
{
    suite.Zet("Puntenboek/Rev_Clubnaam.txt", "Noord/Zuid\r\n");
    wachter.Waarschuwing(
        u"Fout bij het ophalen van 'Spelers.txt' uit de map Puntenboek. De spelers en de zitting "
        "zijn niet veranderd. Verhelp de oorzaak en open dit venster opnieuw.\n\nBestand: "_s +
        QString::fromStdString(suite.Toonpad("Puntenboek/Rev_Clubnaam.txt")) +
        u"\nOorzaak: 'Noord/Zuid' kan niet de naam van een bestand of map zijn: daarin mogen geen "
        "'/', '\\', 'C:' of '..' staan"_s);
    Open();
    wachter.Klaar();
    ASSERT_EQ(2, Keus()->count());
    wachter.Informatie(OudeKeys);
    for (int i = Keus()->count() - 1; i >= 0; --i)
        Keus()->setCurrentIndex(i);
}
