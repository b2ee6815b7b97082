// Saving that fails, and a file that someone else changed.
#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

const QString Opnieuw = u"Opnieuw proberen"_s;
const QString Doorgaan = u"Doorgaan"_s;
const QString Opslaan = u"Opslaan"_s;
const QString NietOpslaan = u"Niet opslaan"_s;
const QString Annuleren = u"Annuleren"_s;
const QString LeesIn = u"Opnieuw inlezen"_s;
const QString isLeeg = u"Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"_s;
const QString Later = u"Later beslissen"_s;

class OpslagTest : public Hoofdvensterproef {
  protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(Start());
        oud = suite.Spelers();
        nieuw = oud + "149,100172,Gr01-,,,Nieuweling,,,,,,,M,,,,,\r\n";
        nieuw.replace(nieuw.find("HKEY=100171"), 11, "HKEY=100172");
    }

    [[nodiscard]] QString Bestandsregel() const
    {
        const auto pad = suite.Weg() / "Spelers" / "RVDspelers.txt";
        return u"Bestand: "_s + QString::fromStdString(pad.string());
    }

    void VerwachtMislukt(const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"De spelers konden niet worden opgeslagen. Het spelerbestand op de schijf is "
                 "heel gebleven, en uw laatste wijziging staat nog in dit programma. Verhelp de "
                 "oorzaak en probeer het opnieuw, of ga door: bij de volgende wijziging en bij "
                 "het afsluiten komt deze keus terug.\n\n"_s +
                 Bestandsregel(),
             .antwoord = antwoord,
             .icoon = QMessageBox::Critical,
             .knoppen = {Opnieuw, Doorgaan},
             .alleenBegin = true});
    }

    /// Only the last step failed: the new file is in place.
    void VerwachtNietVast(const std::string& bestand = "RVDspelers.txt")
    {
        wachter.Verwacht(
            {.tekst =
                 u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf. Het "
                 "systeem kon alleen niet bevestigen dat dit na een stroomstoring nog zo is. Kijk "
                 "of de schijf in orde is en sla later nog eens op.\n\nBestand: "_s +
                 QString::fromStdString((suite.Weg() / "Spelers" / bestand).string()) +
                 u"\nMelding van het systeem: schijf vol"_s,
             .icoon = QMessageBox::Warning});
    }

    void VerwachtGewijzigd(const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"Het spelerbestand is door een ander programma gewijzigd nadat het hier is "
                 "ingelezen.\n\nOpslaan: uw gegevens vervangen dat bestand; er komt eerst een "
                 "kopie van in de map Reservekopie.\nOpnieuw inlezen: dat bestand blijft zoals het "
                 "is; uw wijzigingen die nog niet zijn opgeslagen, vervallen.\nLater beslissen: er "
                 "verandert nu niets; bij de volgende wijziging en bij het afsluiten komt deze "
                 "keus terug.\n\n"_s +
                 Bestandsregel(),
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {Opslaan, LeesIn, Later}});
    }

    void VerwachtSluitvraag(const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"De laatste wijzigingen staan nog niet in het spelerbestand. Met 'Niet opslaan' "
                 "gaan ze verloren. Met 'Annuleren' blijft Plexoran open."_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {Opslaan, NietOpslaan, Annuleren}});
    }

    void VerwachtIngave(const QString& achternaam = u"Nieuweling"_s)
    {
        wachter.Bedien([achternaam](QDialog& ingave) {
            Schrijf(ingave, "txt1_6", achternaam);
            Klik(Vind<QPushButton>(ingave, "cmdOK"));
        });
    }
    void VoegToe()
    {
        Klik(Knop("cmdAanm"));
        wachter.Klaar();
    }
    /// Leaves the program with a player that the file lacks.
    void VoegToeZonderOpslag()
    {
        schijf.FaalVanaf(1);
        VerwachtIngave();
        VerwachtMislukt(Doorgaan);
        VoegToe();
        schijf.FaalNiet();
    }
    /// As another program of the suite would do.
    void WijzigVanBuiten()
    {
        vreemd = "HKEY=100300\r\n1,100250,Gr01-,An,,Buiten,,,,,,,V,,,,,\r\n";
        suite.Zet("Spelers/RVDspelers.txt", vreemd);
    }
    [[nodiscard]] std::vector<std::string> Kopieen() const
    {
        std::vector<std::string> inhouden;
        for (const auto& naam : suite.Namen("Spelers/Reservekopie"))
            inhouden.push_back(
                suite.Inhoud(std::filesystem::path("Spelers") / "Reservekopie" / naam));
        return inhouden;
    }
    [[nodiscard]] std::string Aantal() const { return Label("Label3")->text().toStdString(); }

    std::string oud;
    std::string nieuw;
    std::string vreemd;
};

} // namespace

TEST_F(OpslagTest, FaalbijElkeStapLaatEenHeelBestandEnDeSpelerInDeTabel)
{
    // How many steps a save has, is measured first, on a change that leaves the bytes as they are.
    KiesRegel(1);
    schijf.FaalNiet();
    wachter.Bedien([](QDialog& ingave) { Klik(Vind<QPushButton>(ingave, "cmdOK")); });
    Klik(Knop("cmdWijzig"));
    const int stappen = schijf.Aantal();
    ASSERT_EQ(oud, suite.Spelers());
    ASSERT_GE(stappen, 5);

    for (int stap = 1; stap <= stappen; ++stap) {
        SCOPED_TRACE(stap);
        suite.Zet("Spelers/RVDspelers.txt", oud);
        ASSERT_NO_FATAL_FAILURE(Herstart());
        const bool staatEr = stap == stappen;
        schijf.FaalVanaf(stap);
        VerwachtIngave();
        if (staatEr)
            VerwachtNietVast();
        else
            VerwachtMislukt(Doorgaan);
        VoegToe();
        EXPECT_EQ(staatEr ? nieuw : oud, suite.Spelers());
        EXPECT_EQ("Aantal regels: 51", Aantal());
        EXPECT_EQ(!staatEr, venster->isWindowModified());
        // What the failure left is put right by the next save.
        schijf.FaalNiet();
        if (!staatEr)
            VerwachtSluitvraag(Opslaan);
        ASSERT_TRUE(venster->close());
        wachter.Klaar();
        EXPECT_EQ(nieuw, suite.Spelers());
        EXPECT_EQ(std::vector<std::string>{}, Kopieen());
    }
}

TEST_F(OpslagTest, OpnieuwProberenSlaatAlsnogOp)
{
    schijf.FaalBij(1);
    VerwachtIngave();
    VerwachtMislukt(Opnieuw);
    VoegToe();
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_FALSE(venster->isWindowModified());
    EXPECT_EQ("Aantal regels: 51", Aantal());
}

TEST_F(OpslagTest, OpnieuwProberenMagVakerMislukken)
{
    schijf.FaalVanaf(1);
    VerwachtIngave();
    VerwachtMislukt(Opnieuw);
    VerwachtMislukt(Opnieuw);
    VerwachtMislukt(Berichtwachter::Escape);
    VoegToe();
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_TRUE(venster->isWindowModified());
    schijf.FaalNiet();
}

TEST_F(OpslagTest, DeVolgendeWijzigingSlaatOokDeVorigeOp)
{
    VoegToeZonderOpslag();
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("Aantal regels: 51", Aantal());
    VerwachtIngave(u"Tweede"_s);
    VoegToe();
    std::string beide = nieuw + "150,100173,Gr01-,,,Tweede,,,,,,,M,,,,,\r\n";
    beide.replace(beide.find("HKEY=100172"), 11, "HKEY=100173");
    EXPECT_EQ(beide, suite.Spelers());
    EXPECT_FALSE(venster->isWindowModified());
}

TEST_F(OpslagTest, EenMislukteVerwijderingHeetNietVerwijderd)
{
    KiesRegel(1);
    schijf.FaalVanaf(1);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    VerwachtMislukt(Doorgaan);
    Klik(Knop("cmdVerwijder"));
    wachter.Klaar(); // and not: De regel is verwijderd.
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_EQ("Aantal regels: 49", Aantal());
    EXPECT_TRUE(venster->isWindowModified());
    schijf.FaalNiet();
}

TEST_F(OpslagTest, SluitenMetOpslaan)
{
    VoegToeZonderOpslag();
    VerwachtSluitvraag(Opslaan);
    EXPECT_TRUE(venster->close());
    wachter.Klaar();
    EXPECT_EQ(nieuw, suite.Spelers());
}

TEST_F(OpslagTest, SluitenZonderOpslaan)
{
    VoegToeZonderOpslag();
    VerwachtSluitvraag(NietOpslaan);
    EXPECT_TRUE(venster->close());
    wachter.Klaar();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(OpslagTest, SluitenMetAnnulerenOfEscapeBlijftOpen)
{
    VoegToeZonderOpslag();
    for (const QString& antwoord : {Annuleren, Berichtwachter::Escape, Berichtwachter::Sluitvak}) {
        VerwachtSluitvraag(antwoord);
        EXPECT_FALSE(venster->close());
        wachter.Klaar();
        EXPECT_TRUE(venster->isVisible());
    }
    EXPECT_EQ(oud, suite.Spelers());
    EXPECT_TRUE(venster->isWindowModified());
}

TEST_F(OpslagTest, SluitenMetOpslaanDatMisluktBlijftOpen)
{
    VoegToeZonderOpslag();
    schijf.FaalVanaf(1);
    VerwachtSluitvraag(Opslaan);
    VerwachtMislukt(Doorgaan);
    EXPECT_FALSE(venster->close());
    wachter.Klaar();
    EXPECT_TRUE(venster->isVisible());
    schijf.FaalNiet();
}

TEST_F(OpslagTest, VanBuitenGewijzigdOpslaanMaaktEerstEenKopie)
{
    WijzigVanBuiten();
    VerwachtIngave();
    VerwachtGewijzigd(Opslaan);
    VoegToe();
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_EQ(std::vector<std::string>{vreemd}, Kopieen());
    const auto namen = suite.Namen("Spelers/Reservekopie");
    ASSERT_EQ(1U, namen.size());
    EXPECT_TRUE(namen.front().starts_with("RVDspelers 2")) << namen.front();
    EXPECT_FALSE(venster->isWindowModified());
}

TEST_F(OpslagTest, VanBuitenGewijzigdOpnieuwInlezenLaatDeWijzigingVervallen)
{
    WijzigVanBuiten();
    VerwachtIngave();
    VerwachtGewijzigd(LeesIn);
    VoegToe();
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ("Aantal regels: 1", Aantal());
    EXPECT_EQ(100300, administratie.spelers.HKEY);
    EXPECT_EQ(std::vector<std::string>{}, Kopieen());
    EXPECT_FALSE(venster->isWindowModified());
}

TEST_F(OpslagTest, VanBuitenGewijzigdLaterBeslissenHoudtBeide)
{
    WijzigVanBuiten();
    VerwachtIngave();
    VerwachtGewijzigd(Later);
    VoegToe();
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ("Aantal regels: 51", Aantal());
    EXPECT_TRUE(venster->isWindowModified());
    // Escape is the harmless answer.
    VerwachtSluitvraag(Opslaan);
    VerwachtGewijzigd(Berichtwachter::Escape);
    EXPECT_FALSE(venster->close());
    wachter.Klaar();
    EXPECT_EQ(vreemd, suite.Spelers());
}

TEST_F(OpslagTest, VanBuitenVerwijderdWordtWeerGeschreven)
{
    suite.Verwijder("Spelers/RVDspelers.txt");
    VerwachtIngave();
    VoegToe();
    EXPECT_EQ(nieuw, suite.Spelers());
}

// ---- Reading back -----------------------------------------------------------------------------

TEST_F(OpslagTest, NaEenGoedeOpslagDieNietTerugTeLezenIsStaatDatErBij)
{
    int gedaan = 0;
    int laatste = 0; // the place of the last touch of the file: the reading back
    schijf.Vooraf([&](const Pad& pad) {
        ++gedaan;
        if (pad.ends_with("RVDspelers.txt"))
            laatste = gedaan;
        return true;
    });
    VerwachtIngave();
    VoegToe();
    gedaan = 0;
    schijf.Vooraf([&](const Pad&) { return ++gedaan != laatste; });
    nieuw += "150,100173,Gr01-,,,Tweede,,,,,,,M,,,,,\r\n";
    nieuw.replace(nieuw.find("HKEY=100172"), 11, "HKEY=100173");
    VerwachtIngave(u"Tweede"_s);
    wachter.Waarschuwing(isLeeg);
    wachter.Informatie(
        u"Uw wijziging is opgeslagen, maar het spelerbestand kan daarna niet worden geopend. In "
        "dit programma staan dezelfde spelers als in dat bestand. Verhelp de oorzaak voordat u "
        "verder gaat.\n\n"_s +
        Bestandsregel() + u"\nMelding van het systeem: geen toegang"_s);
    VoegToe();
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_EQ("Aantal regels: 52", Aantal());
    EXPECT_FALSE(venster->isWindowModified());
    // The file is still the one that was saved: the next save asks nothing.
    schijf.Vooraf([](const Pad&) { return true; });
    VerwachtIngave(u"Derde"_s);
    VoegToe();
    EXPECT_NE(std::string::npos, suite.Spelers().find(",,Derde,"));
    EXPECT_EQ(std::vector<std::string>{}, Kopieen());
}

TEST_F(OpslagTest, OpnieuwInlezenDatNietLuktHoudtDeWijziging)
{
    WijzigVanBuiten();
    VerwachtIngave();
    bool gevraagd = false;
    wachter.LaatBeslissen([&](const QMessageBox& bericht) {
        const QString tekst = bericht.text();
        if (tekst.startsWith(u"Het spelerbestand is door een ander"_s)) {
            schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("RVDspelers.txt"); });
            return LeesIn;
        }
        if (tekst != isLeeg) {
            gevraagd = true;
            EXPECT_EQ(
                tekst,
                u"Het spelerbestand kan niet worden geopend; er is niets aan veranderd. In dit "
                "programma staan de spelers van zonet, met uw laatste wijziging. Verhelp de "
                "oorzaak voordat u verder gaat.\n\n"_s +
                    Bestandsregel() + u"\nMelding van het systeem: geen toegang"_s);
        }
        return u"OK"_s;
    });
    VoegToe();
    EXPECT_TRUE(gevraagd);
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ("Aantal regels: 51", Aantal());
    EXPECT_TRUE(venster->isWindowModified());
    schijf.Vooraf([](const Pad&) { return true; });
    venster.reset();
}

TEST_F(OpslagTest, NaEenOpslagZijnDeSpelersZonderAchternaamGenoemdEnIsDeWijzigingOpgeslagen)
{
    administratie.spelers.tabel.ZetCel(1, Kolom::Achternaam, "");
    VerwachtIngave();
    wachter.Informatie(
        u"1 speler zonder achternaam is niet ingelezen (regel 2 van het spelerbestand). Vul die "
        "achternaam daar in als u de speler wilt houden.\n\nUw wijziging is opgeslagen; voordat "
        "dit programma het bestand weer vervangt, komt er een kopie van in de map Reservekopie."_s);
    VoegToe();
}

TEST_F(OpslagTest, DezelfdeInhoudVanBuitenGeldtNietAlsHetEigenBestand)
{
    suite.Verwijder("Spelers/RVDspelers.txt");
    suite.Zet("Spelers/RVDspelers.txt", oud);
    VerwachtIngave();
    VerwachtGewijzigd(Opslaan);
    VoegToe();
    EXPECT_EQ(nieuw, suite.Spelers());
    EXPECT_EQ(std::vector<std::string>{oud}, Kopieen());
}

// ---- The link file of the special add ----------------------------------------------------------

namespace {

const std::string Verslagbestand = "Zittingen/Zomerdrive 2024_Rev/Koppelverslag.txt";
const QString NietInHetBestand =
    u"De nieuwe spelers staan niet in het spelerbestand. Daarom is 'Koppelverslag.txt' van hun "
    "zitting weer zoals het was."_s;
const QString Vervallen = NietInHetBestand + u" Voeg ze zo nodig opnieuw toe."_s;
const QString KomtNog =
    NietInHetBestand + u" Het wordt opnieuw geschreven zodra ze zijn opgeslagen."_s;

class VerslagTest : public OpslagTest {
  protected:
    void SetUp() override
    {
        OpslagTest::SetUp();
        suite.Zet(Verslagbestand, "van vroeger");
    }
    /// Nine players of the session; `dan` comes between their adding and the save, and the boxes
    /// that `verwacht` awaits after it.
    void VoegSessieToe(const std::function<void()>& dan, const std::function<void()>& verwacht)
    {
        wachter.Bedien([dan](QDialog& dialoog) {
            QApplication::processEvents();
            Klik(Vind<QPushButton>(dialoog, "cmdStart"));
            dan();
            Klik(Vind<QPushButton>(dialoog, "OKButton"));
        });
        wachter.Informatie(u"De spelers zijn toegevoegd."_s);
        verwacht();
        Klik(Knop("cmdSpToevoegen"));
        wachter.Klaar();
    }
    void VoegSessieToeZonderOpslag()
    {
        VoegSessieToe([this] { schijf.FaalBij(1); },
                      [this] {
                          VerwachtMislukt(Doorgaan);
                          wachter.Informatie(KomtNog);
                      });
        ASSERT_TRUE(oud == suite.Spelers());
        ASSERT_EQ("van vroeger", Verslag());
    }
    [[nodiscard]] std::string Verslag() const { return suite.Inhoud(Verslagbestand); }
    [[nodiscard]] bool NoemtNieuwe() const
    {
        return Verslag().starts_with("N01 100172 - 100173\r\n");
    }
};

} // namespace

TEST_F(VerslagTest, BijElkeStapDieMisluktNoemtHetAlleenSleutelsDieZijnOpgeslagen)
{
    VoegSessieToe([this] { schijf.FaalNiet(); }, [] {});
    const int stappen = schijf.Aantal();
    const std::string metNieuwe = suite.Spelers();
    ASSERT_TRUE(NoemtNieuwe());
    ASSERT_GE(stappen, 5);
    for (int stap = 1; stap <= stappen; ++stap) {
        SCOPED_TRACE(stap);
        suite.Zet("Spelers/RVDspelers.txt", oud);
        suite.Zet(Verslagbestand, "van vroeger");
        ASSERT_NO_FATAL_FAILURE(Herstart());
        // Only when the folder could not be synced the new register is there all the same.
        const bool staat = stap == stappen;
        VoegSessieToe([&] { schijf.FaalBij(stap); },
                      [&] {
                          if (staat) {
                              VerwachtNietVast();
                              return;
                          }
                          VerwachtMislukt(Doorgaan);
                          wachter.Informatie(KomtNog);
                      });
        EXPECT_TRUE((staat ? metNieuwe : oud) == suite.Spelers());
        EXPECT_EQ(staat, NoemtNieuwe()) << Verslag();
        schijf.FaalNiet();
        if (!staat)
            VerwachtSluitvraag(NietOpslaan);
        ASSERT_TRUE(venster->close());
        wachter.Klaar();
        EXPECT_EQ(staat, Verslag() != "van vroeger");
    }
}

TEST_F(VerslagTest, WieNietOpslaatHoudtHetVorige)
{
    suite.Verwijder(Verslagbestand);
    VoegSessieToe([this] { WijzigVanBuiten(); },
                  [this] {
                      VerwachtGewijzigd(Later);
                      wachter.Informatie(KomtNog);
                  });
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
    VerwachtSluitvraag(NietOpslaan);
    ASSERT_TRUE(venster->close());
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
}

TEST_F(VerslagTest, OpnieuwInlezenNeemtHetTerug)
{
    VoegSessieToe([this] { WijzigVanBuiten(); },
                  [this] {
                      VerwachtGewijzigd(LeesIn);
                      wachter.Informatie(Vervallen);
                  });
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ("van vroeger", Verslag());
    // What was taken back has nothing to do with the next save.
    VerwachtIngave();
    VoegToe();
    EXPECT_EQ("van vroeger", Verslag());
}

TEST_F(VerslagTest, DeVolgendeOpslagSchrijftHetAlsnog)
{
    VoegSessieToeZonderOpslag();
    VerwachtIngave();
    VoegToe();
    EXPECT_EQ("HKEY=100181", RegelsVan(suite.Spelers()).front());
    EXPECT_TRUE(NoemtNieuwe()) << Verslag();
}

TEST_F(VerslagTest, AlsnogSchrijvenDatMisluktWordtGemeld)
{
    VoegSessieToeZonderOpslag();
    suite.Verwijder(Verslagbestand);
    std::filesystem::create_directory(suite.Weg() / Verslagbestand);
    VerwachtIngave();
    for (const QString& antwoord : {Opnieuw, Doorgaan})
        wachter.Verwacht(
            {.tekst =
                 u"De spelers zijn opgeslagen, maar 'Koppelverslag.txt' van hun zitting kon niet "
                 "worden geschreven. Zonder dat bestand zijn ze niet aan die zitting te koppelen. "
                 "Verhelp de oorzaak en probeer het opnieuw; met Doorgaan komt dat bestand er "
                 "niet.\n\nBestand: "_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Critical,
             .knoppen = {Opnieuw, Doorgaan},
             .alleenBegin = true});
    VoegToe();
    EXPECT_EQ("HKEY=100181", RegelsVan(suite.Spelers()).front());
}

TEST_F(VerslagTest, TerugzettenDatMisluktWordtGemeldEnKomtBijDeVolgendeOpslagTerug)
{
    VoegSessieToe(
        [this] { schijf.FaalVanaf(1); },
        [this] {
            VerwachtMislukt(Doorgaan);
            wachter.Verwacht(
                {.tekst =
                     u"Fout bij het terugzetten van 'Koppelverslag.txt': de sleutels die erin "
                     "staan, zijn niet uitgegeven. Het spelerbestand is niet veranderd. Verwijder "
                     "'Koppelverslag.txt'.\n\nBestand: "_s,
                 .icoon = QMessageBox::Warning,
                 .alleenBegin = true});
        });
    ASSERT_TRUE(NoemtNieuwe());
    schijf.FaalBij(1);
    VerwachtIngave();
    VerwachtMislukt(Doorgaan);
    wachter.Informatie(KomtNog);
    VoegToe();
    EXPECT_EQ("van vroeger", Verslag());
}

/// A register without players is not saved, and so are no keys.
TEST_F(VerslagTest, ZonderSpelersBlijftHetVorige)
{
    VoegSessieToeZonderOpslag();
    administratie.spelers.tabel = {};
    VerwachtSluitvraag(Opslaan);
    ASSERT_TRUE(venster->close());
    EXPECT_TRUE(oud == suite.Spelers());
    EXPECT_EQ("van vroeger", Verslag());
}

// ---- Group names and settings -----------------------------------------------------------------

TEST_F(OpslagTest, GroepsnamenDieNietTeBewarenZijnWordenTeruggenomen)
{
    const std::string groepen = suite.Groepen();
    KiesGroep(6);
    schijf.FaalVanaf(1);
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Klik(Vind<QPushButton>(namen, "cmdOK"));
    });
    for (const QString& antwoord : {Opnieuw, Annuleren})
        wachter.Verwacht(
            {.tekst =
                 u"De groepsnamen konden niet worden opgeslagen. Het bestand is gebleven zoals "
                 "het was. Probeer het opnieuw, of kies Annuleren om de oude namen te houden.\n"
                 "\nBestand: "_s +
                 QString::fromStdString((suite.Weg() / "Spelers" / "RVDGroepen.txt").string()),
             .antwoord = antwoord,
             .icoon = QMessageBox::Critical,
             .knoppen = {Opnieuw, Annuleren},
             .alleenBegin = true});
    Klik(Knop("cmdMaakGrNamen"));
    wachter.Klaar();
    schijf.FaalNiet();
    EXPECT_EQ(groepen, suite.Groepen());
    EXPECT_EQ("", administratie.groepen.Naam(11));
    EXPECT_EQ("Gr11-", Keus("cmbGr")->itemText(10).toStdString());
    EXPECT_EQ(6, GetoondeGroep());
}

TEST_F(OpslagTest, GroepsnamenDieErStaanMaarNietVastBlijvenOokOpHetScherm)
{
    schijf.FaalBij(7); // make, rights, write, sync, close, rename, and then the folder
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Klik(Vind<QPushButton>(namen, "cmdOK"));
    });
    VerwachtNietVast("RVDGroepen.txt");
    Klik(Knop("cmdMaakGrNamen"));
    wachter.Klaar();
    EXPECT_EQ("Gr11-Nieuw", RegelsVan(suite.Groepen()).at(10));
    EXPECT_EQ("Gr11-Nieuw", Keus("cmbGr")->itemText(10).toStdString());
    EXPECT_EQ("Nieuw", administratie.groepen.Naam(11));
}

TEST_F(OpslagTest, GroepsnamenOpnieuwProberen)
{
    schijf.FaalBij(1);
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Klik(Vind<QPushButton>(namen, "cmdOK"));
    });
    wachter.Verwacht({.tekst = u"De groepsnamen konden niet worden opgeslagen."_s,
                      .antwoord = Opnieuw,
                      .icoon = QMessageBox::Critical,
                      .alleenBegin = true});
    Klik(Knop("cmdMaakGrNamen"));
    wachter.Klaar();
    EXPECT_EQ("Gr11-Nieuw", RegelsVan(suite.Groepen()).at(10));
    EXPECT_EQ("Gr11-Nieuw", Keus("cmbGr")->itemText(10).toStdString());
}

TEST_F(OpslagTest, InstellingenDieMislukkenWordenEenKeerGemeldEnGaanLaterGewoonGoed)
{
    schijf.FaalVanaf(1);
    wachter.Verwacht(
        {.tekst = u"De instellingen van het programma kunnen niet worden opgeslagen."_s,
         .icoon = QMessageBox::Warning,
         .alleenBegin = true});
    KiesGroep(2);
    KiesGroep(3);
    wachter.Klaar();
    EXPECT_EQ("OPTIND=4\r\nLOSTGR=0\r\n", suite.Instellingen());
    schijf.FaalNiet();
    KiesGroep(6);
    EXPECT_EQ("OPTIND=4\r\nLOSTGR=5\r\n", suite.Instellingen());
}
