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

/// Saving without a grid, on a copy of the sample suite.
class OpslagTest : public testing::Test, protected Suitestand {
  protected:
    void SetUp() override
    {
        venster.setWindowTitle(u"[*]"_s);
        LeesRegister();
        oud = suite.Spelers();
        nieuw = oud + "149,100172,Gr01-,,,Nieuweling,,,,,,,,,,,,\r\n";
        ZetSleutel("100172");
    }
    ~OpslagTest() override { wachter.Klaar(); }

    /// As the highest one of the new file.
    void ZetSleutel(const std::string& sleutel) { nieuw.replace(5, sleutel.size(), sleutel); }

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

    void VoegToe(const Tekst& achternaam = "Nieuweling")
    {
        Rijvelden velden;
        velden[Index(Kolom::Achternaam)] = achternaam;
        ASSERT_TRUE(VoegSpelerToe(administratie.spelers, "Gr01-", velden));
        afloop = opslag.SlaOp();
        wachter.Klaar();
    }
    /// Leaves the program with a player that the file lacks.
    void VoegToeZonderOpslag()
    {
        schijf.FaalVanaf(1);
        VerwachtMislukt(Doorgaan);
        VoegToe();
        schijf.FaalNiet();
    }
    [[nodiscard]] bool MagEindigen()
    {
        const bool mag = opslag.MagEindigen();
        wachter.Klaar();
        return mag;
    }
    void VerwachtStand(const std::string& bestand, int rijen, bool gewijzigd)
    {
        EXPECT_TRUE(bestand == suite.Spelers()) << suite.Spelers();
        EXPECT_EQ(rijen, administratie.spelers.tabel.Rijen());
        EXPECT_EQ(gewijzigd, venster.isWindowModified());
        EXPECT_EQ(gewijzigd, afloop == Opslag::Mislukt);
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

    std::string oud;
    std::string nieuw;
    std::string vreemd;
    Berichtwachter wachter;
    QWidget venster;
    int getoond = 0;
    Opslag afloop = Opslag::Gelukt;
    Spelersopslag opslag{administratie, &venster, [this] { ++getoond; }};
};

} // namespace

TEST_F(OpslagTest, OpnieuwProberenSlaatAlsnogOp)
{
    schijf.FaalBij(1);
    VerwachtMislukt(Opnieuw);
    VoegToe();
    VerwachtStand(nieuw, 149, false);
}

TEST_F(OpslagTest, OpnieuwProberenMagVakerMislukken)
{
    schijf.FaalVanaf(1);
    VerwachtMislukt(Opnieuw);
    VerwachtMislukt(Opnieuw);
    VerwachtMislukt(Berichtwachter::Escape);
    VoegToe();
    VerwachtStand(oud, 149, true);
    EXPECT_EQ(3, getoond) << "achter elk bericht";
}

TEST_F(OpslagTest, DeVolgendeWijzigingSlaatOokDeVorigeOp)
{
    VoegToeZonderOpslag();
    VerwachtStand(oud, 149, true);
    VoegToe("Tweede");
    nieuw += "150,100173,Gr01-,,,Tweede,,,,,,,,,,,,\r\n";
    ZetSleutel("100173");
    VerwachtStand(nieuw, 150, false);
}

// ---- The end of the program -------------------------------------------------------------------

TEST_F(OpslagTest, ZonderWijzigingEindigtHetZonderVraagEnZonderSchrijven)
{
    EXPECT_TRUE(MagEindigen());
    EXPECT_EQ(0, schijf.Aantal());
}

TEST_F(OpslagTest, HetEindeVraagtWatErMetDeWijzigingMoet)
{
    VoegToeZonderOpslag();
    for (const QString& antwoord :
         {Annuleren, Berichtwachter::Escape, Berichtwachter::Sluitvak, NietOpslaan, Opslaan}) {
        SCOPED_TRACE(antwoord.toStdString());
        VerwachtStand(oud, 149, true);
        VerwachtSluitvraag(antwoord);
        EXPECT_EQ(antwoord == NietOpslaan || antwoord == Opslaan, MagEindigen());
    }
    EXPECT_EQ(nieuw, suite.Spelers());
}

TEST_F(OpslagTest, OpslaanDatMisluktEindigtNiet)
{
    VoegToeZonderOpslag();
    schijf.FaalVanaf(1);
    VerwachtSluitvraag(Opslaan);
    VerwachtMislukt(Doorgaan);
    EXPECT_FALSE(MagEindigen());
}

// ---- Changed from outside ---------------------------------------------------------------------

TEST_F(OpslagTest, VanBuitenGewijzigdOpslaanMaaktEerstEenKopie)
{
    WijzigVanBuiten();
    VerwachtGewijzigd(Opslaan);
    VoegToe();
    VerwachtStand(nieuw, 149, false);
    EXPECT_EQ(std::vector<std::string>{vreemd}, Kopieen());
}

TEST_F(OpslagTest, VanBuitenGewijzigdOpnieuwInlezenLaatDeWijzigingVervallen)
{
    WijzigVanBuiten();
    VerwachtGewijzigd(LeesIn);
    VoegToe();
    EXPECT_EQ(Opslag::Mislukt, afloop);
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
    EXPECT_EQ(100300, administratie.spelers.HKEY);
    EXPECT_EQ(std::vector<std::string>{}, Kopieen());
    EXPECT_FALSE(venster.isWindowModified());
}

TEST_F(OpslagTest, VanBuitenGewijzigdLaterBeslissenHoudtBeide)
{
    WijzigVanBuiten();
    VerwachtGewijzigd(Later);
    VoegToe();
    VerwachtStand(vreemd, 149, true);
    // Escape is the harmless answer.
    VerwachtSluitvraag(Opslaan);
    VerwachtGewijzigd(Berichtwachter::Escape);
    EXPECT_FALSE(MagEindigen());
    EXPECT_EQ(vreemd, suite.Spelers());
}

TEST_F(OpslagTest, EenBestandDatNooitIsIngelezenWordtGenoemd)
{
    administratie.spelers.gelezen.reset();
    wachter.Begin(u"Het spelerbestand op de schijf is hier niet ingelezen.\n\n"
                  "Opslaan: uw gegevens vervangen dat bestand;"_s,
                  QMessageBox::Warning, Later);
    VoegToe();
    VerwachtStand(oud, 149, true);
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
    VoegToe();
    EXPECT_EQ(0, getoond);
    gedaan = 0;
    schijf.Vooraf([&](const Pad&) { return ++gedaan != laatste; });
    nieuw += "150,100173,Gr01-,,,Tweede,,,,,,,,,,,,\r\n";
    ZetSleutel("100173");
    wachter.Waarschuwing(isLeeg);
    wachter.Informatie(
        u"Uw wijziging is opgeslagen, maar het spelerbestand kan daarna niet worden geopend. In "
        "dit programma staan dezelfde spelers als in dat bestand. Verhelp de oorzaak voordat u "
        "verder gaat.\n\n"_s +
        Bestandsregel() + u"\nMelding van het systeem: geen toegang"_s);
    VoegToe("Tweede");
    VerwachtStand(nieuw, 150, false);
    EXPECT_EQ(1, getoond) << "achter het bericht";
    // The file is still the one that was saved: the next save asks nothing.
    schijf.Vooraf([](const Pad&) { return true; });
    VoegToe("Derde");
    EXPECT_NE(std::string::npos, suite.Spelers().find(",,Derde,"));
    EXPECT_EQ(std::vector<std::string>{}, Kopieen());
}

TEST_F(OpslagTest, OpnieuwInlezenDatNietLuktHoudtDeWijziging)
{
    WijzigVanBuiten();
    QStringList berichten;
    wachter.LaatBeslissen([&](const QMessageBox& bericht) {
        berichten << bericht.text();
        if (berichten.size() > 1)
            return u"OK"_s;
        schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("RVDspelers.txt"); });
        return LeesIn;
    });
    VoegToe();
    EXPECT_EQ(
        QStringList({isLeeg, u"Het spelerbestand kan niet worden geopend; er is niets aan "
                             "veranderd. In dit programma staan de spelers van zonet, met "
                             "uw laatste wijziging. Verhelp de oorzaak voordat u verder "
                             "gaat.\n\n"_s +
                                 Bestandsregel() + u"\nMelding van het systeem: geen toegang"_s}),
        berichten.mid(1));
    VerwachtStand(vreemd, 149, true);
}

TEST_F(OpslagTest, NaEenOpslagZijnDeSpelersZonderAchternaamGenoemdEnIsDeWijzigingOpgeslagen)
{
    administratie.spelers.tabel.ZetCel(1, Kolom::Achternaam, "");
    wachter.Informatie(
        u"1 speler zonder achternaam is niet ingelezen (regel 2 van het spelerbestand). Vul die "
        "achternaam daar in als u de speler wilt houden.\n\nUw wijziging is opgeslagen; voordat "
        "dit programma het bestand weer vervangt, komt er een kopie van in de map Reservekopie."_s);
    VoegToe();
}

// ---- The link file of the special add ----------------------------------------------------------

namespace {

const std::string Verslagbestand = "Zittingen/Zomerdrive 2024_Rev/Koppelverslag.txt";
const QString NietInHetBestand =
    u"De nieuwe spelers staan niet in het spelerbestand. Daarom is 'Koppelverslag.txt' van hun "
    "zitting weer zoals het was."_s;
const QString KomtNog =
    NietInHetBestand + u" Het wordt opnieuw geschreven zodra ze zijn opgeslagen."_s;
const std::string NoemtNieuwe = "N01 100172 - 0\r\n";

class VerslagTest : public OpslagTest {
  protected:
    void SetUp() override
    {
        OpslagTest::SetUp();
        suite.Zet(Verslagbestand, "van vroeger");
    }
    /// A player of the session; `dan` comes between the link file and the save.
    void VoegSessieToe(const std::function<void()>& dan)
    {
        Koppelverslag verslag(schijf, administratie.mappen, "Zomerdrive 2024_Rev", NoemtNieuwe);
        ASSERT_TRUE(verslag.Schrijf());
        opslag.Bewaak(std::move(verslag));
        dan();
        VoegToe();
    }
    void VoegSessieToeZonderOpslag()
    {
        VerwachtMislukt(Doorgaan);
        wachter.Informatie(KomtNog);
        VoegSessieToe([this] { schijf.FaalBij(1); });
        ASSERT_TRUE(oud == suite.Spelers());
        ASSERT_EQ("van vroeger", Verslag());
    }
    [[nodiscard]] std::string Verslag() const { return suite.Inhoud(Verslagbestand); }
};

} // namespace

TEST_F(VerslagTest, BijElkeStapDieMisluktNoemtHetAlleenSleutelsDieZijnOpgeslagen)
{
    VoegSessieToe([this] { schijf.FaalNiet(); });
    const int stappen = schijf.Aantal();
    ASSERT_EQ(NoemtNieuwe, Verslag());
    ASSERT_GE(stappen, 5);
    for (int stap = 1; stap <= stappen; ++stap) {
        SCOPED_TRACE(stap);
        suite.Zet("Spelers/RVDspelers.txt", oud);
        suite.Zet(Verslagbestand, "van vroeger");
        LeesRegister();
        // Only when the folder could not be synced the new register is there all the same.
        const bool staat = stap == stappen;
        if (staat)
            wachter.Waarschuwing(
                u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf. Het systeem "
                "kon alleen niet bevestigen dat dit na een stroomstoring nog zo is. Kijk of de "
                "schijf in orde is en sla later nog eens op.\n\n"_s +
                Bestandsregel() + u"\nMelding van het systeem: schijf vol"_s);
        else {
            VerwachtMislukt(Doorgaan);
            wachter.Informatie(KomtNog);
        }
        VoegSessieToe([&] { schijf.FaalBij(stap); });
        VerwachtStand(staat ? nieuw : oud, 149, !staat);
        EXPECT_EQ(staat ? NoemtNieuwe : "van vroeger", Verslag());
        schijf.FaalNiet();
        if (!staat)
            VerwachtSluitvraag(NietOpslaan);
        EXPECT_TRUE(MagEindigen());
        EXPECT_EQ(staat ? NoemtNieuwe : "van vroeger", Verslag());
    }
}

TEST_F(VerslagTest, WieNietOpslaatHoudtHetVorige)
{
    suite.Verwijder(Verslagbestand);
    VerwachtGewijzigd(Later);
    wachter.Informatie(KomtNog);
    VoegSessieToe([this] { WijzigVanBuiten(); });
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
    VerwachtSluitvraag(NietOpslaan);
    EXPECT_TRUE(MagEindigen());
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
}

TEST_F(VerslagTest, OpnieuwInlezenNeemtHetTerug)
{
    VerwachtGewijzigd(LeesIn);
    wachter.Informatie(NietInHetBestand + u" Voeg ze zo nodig opnieuw toe."_s);
    VoegSessieToe([this] { WijzigVanBuiten(); });
    EXPECT_EQ(vreemd, suite.Spelers());
    EXPECT_EQ("van vroeger", Verslag());
    // What was taken back has nothing to do with the next save.
    VoegToe();
    EXPECT_EQ("van vroeger", Verslag());
}

TEST_F(VerslagTest, DeVolgendeOpslagSchrijftHetAlsnog)
{
    VoegSessieToeZonderOpslag();
    VoegToe("Tweede");
    EXPECT_TRUE(suite.Spelers().starts_with("HKEY=100173\r\n"));
    EXPECT_EQ(NoemtNieuwe, Verslag());
}

TEST_F(VerslagTest, AlsnogSchrijvenDatMisluktWordtGemeld)
{
    VoegSessieToeZonderOpslag();
    suite.Verwijder(Verslagbestand);
    std::filesystem::create_directory(suite.Weg() / Verslagbestand);
    for (const QString& antwoord : {Opnieuw, Doorgaan})
        wachter.Verwacht(
            {.tekst =
                 u"De spelers zijn opgeslagen, maar 'Koppelverslag.txt' van hun zitting kon niet "
                 "worden geschreven. Zonder dat bestand zijn ze niet aan die zitting te "
                 "koppelen. Verhelp de oorzaak en probeer het opnieuw; met Doorgaan komt dat "
                 "bestand er niet.\n\nBestand: "_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Critical,
             .knoppen = {Opnieuw, Doorgaan},
             .alleenBegin = true});
    VoegToe("Tweede");
    EXPECT_TRUE(suite.Spelers().starts_with("HKEY=100173\r\n"));
}

TEST_F(VerslagTest, TerugzettenDatMisluktWordtGemeldEnKomtBijDeVolgendeOpslagTerug)
{
    VerwachtMislukt(Doorgaan);
    wachter.Begin(u"Fout bij het terugzetten van 'Koppelverslag.txt': "_s);
    VoegSessieToe([this] { schijf.FaalVanaf(1); });
    ASSERT_EQ(NoemtNieuwe, Verslag());
    schijf.FaalBij(1);
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
    EXPECT_TRUE(MagEindigen());
    EXPECT_TRUE(oud == suite.Spelers());
    EXPECT_EQ("van vroeger", Verslag());
}

// ---- In the main window ------------------------------------------------------------------------

namespace {

class OpslagInHetVenster : public HoofdvensterTest {
  protected:
    void VerwachtGroepsnaam()
    {
        wachter.Bedien([](QDialog& namen) {
            Schrijf(namen, "txt1_11", u"Nieuw"_s);
            Druk(namen, "cmdOK");
        });
    }
    [[nodiscard]] std::string Groepsnaam() const
    {
        return Keus("cmbGr")->itemText(10).toStdString();
    }
};

const QString nietOpgeslagen = u"De spelers konden niet worden opgeslagen."_s;

} // namespace

TEST_F(OpslagInHetVenster, WatNietIsOpgeslagenStaatErWelEnHoudtHetSluitenOp)
{
    const std::string oud = suite.Spelers();
    schijf.FaalVanaf(1);
    VerwachtIngave(u"Nieuweling"_s);
    wachter.LaatBeslissen([this](const QMessageBox& bericht) {
        EXPECT_TRUE(bericht.text().startsWith(nietOpgeslagen));
        EXPECT_EQ("Aantal regels: 51", Aantal()) << "achter het bericht";
        return Doorgaan;
    });
    Opdracht("cmdAanm");
    EXPECT_TRUE(venster->isWindowModified());
    EXPECT_EQ(oud, suite.Spelers());
    for (const QString& antwoord : {Annuleren, NietOpslaan}) {
        wachter.LaatBeslissen([=](const QMessageBox&) { return antwoord; });
        EXPECT_EQ(antwoord == NietOpslaan, venster->close());
    }
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(OpslagInHetVenster, WatNietIsOpgeslagenHeetNietVerwijderdOfVerplaatst)
{
    const std::string oud = suite.Spelers();
    KiesRegel(1);
    schijf.FaalVanaf(1);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
    Opdracht("cmdVerwijder"); // and not: De regel is verwijderd.
    EXPECT_EQ("Aantal regels: 49", Aantal());
    wachter.Bedien([](QDialog& dialoog) {
        QTest::keyClick(Vind<QWidget>(dialoog, "lstKeus"), Qt::Key_Space);
        Vind<QComboBox>(dialoog, "cmbGrnamen")->setCurrentIndex(3);
        Druk(dialoog, "cmdOK");
    });
    wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
    Opdracht("cmdVerplaats"); // and not: De spelers(s) zijn verplaatst.
    EXPECT_EQ("Aantal regels: 48", Aantal());
    EXPECT_EQ(oud, suite.Spelers());
    schijf.FaalNiet();
    wachter.LaatBeslissen([](const QMessageBox&) { return Opslaan; });
    EXPECT_TRUE(venster->close());
    EXPECT_EQ(148U, RegelsVan(suite.Spelers()).size());
}

TEST_F(OpslagInHetVenster, HetKoppelverslagVanSessiespelersVolgtHunOpslag)
{
    suite.Zet(Verslagbestand, "van vroeger");
    wachter.Bedien([this](QDialog& dialoog) {
        QApplication::processEvents();
        Druk(dialoog, "cmdStart");
        EXPECT_NE("van vroeger", suite.Inhoud(Verslagbestand));
        schijf.FaalBij(1);
        Druk(dialoog, "OKButton");
    });
    wachter.Informatie(u"De spelers zijn toegevoegd."_s);
    wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
    wachter.Informatie(KomtNog);
    Opdracht("cmdSpToevoegen");
    EXPECT_EQ("van vroeger", suite.Inhoud(Verslagbestand));
}

TEST_F(OpslagInHetVenster, GroepsnamenDieNietTeBewarenZijnWordenTeruggenomen)
{
    const std::string groepen = suite.Groepen();
    KiesGroep(6);
    schijf.FaalVanaf(1);
    VerwachtGroepsnaam();
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
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ(groepen, suite.Groepen());
    EXPECT_EQ("", administratie.groepen.Naam(11));
    EXPECT_EQ("Gr11-", Groepsnaam());
    EXPECT_EQ(6, GetoondeGroep());
    schijf.FaalBij(1);
    VerwachtGroepsnaam();
    wachter.Begin(u"De groepsnamen konden niet worden opgeslagen."_s, QMessageBox::Critical,
                  Opnieuw);
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ("Gr11-Nieuw", RegelsVan(suite.Groepen()).at(10));
    EXPECT_EQ("Gr11-Nieuw", Groepsnaam());
}

TEST_F(OpslagInHetVenster, GroepsnamenDieErStaanMaarNietVastBlijvenOokOpHetScherm)
{
    schijf.FaalBij(7); // make, rights, write, sync, close, rename, and then the folder
    VerwachtGroepsnaam();
    wachter.Begin(u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf."_s);
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ("Gr11-Nieuw", RegelsVan(suite.Groepen()).at(10));
    EXPECT_EQ("Gr11-Nieuw", Groepsnaam());
    EXPECT_EQ("Nieuw", administratie.groepen.Naam(11));
}

TEST_F(OpslagInHetVenster, InstellingenDieMislukkenWordenEenKeerGemeldEnGaanLaterGewoonGoed)
{
    schijf.FaalVanaf(1);
    wachter.Begin(
        u"De instellingen van het programma kunnen niet worden opgeslagen. De gegevens van de "
        "spelers zijn niet in gevaar: alleen de groep die u het laatst zag en het terugkeerveld "
        "worden niet onthouden. Kijk of u in die map mag schrijven.\n\nBestand: "_s +
        QString::fromStdString((suite.Weg() / "Admin" / "Plexo.ini").string()));
    KiesGroep(2);
    KiesGroep(3);
    wachter.Klaar();
    EXPECT_EQ("OPTIND=4\r\nLOSTGR=0\r\n", suite.Instellingen());
    schijf.FaalNiet();
    KiesGroep(6);
    EXPECT_EQ("OPTIND=4\r\nLOSTGR=5\r\n", suite.Instellingen());
}
