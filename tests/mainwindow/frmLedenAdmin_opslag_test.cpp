// Saving that fails, and a file that someone else changed.
#include <algorithm>

#include <QEventLoop>
#include <QRadioButton>
#include <QTimer>

#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

const QString Opnieuw = u"Opnieuw proberen"_s;
const QString Doorgaan = u"Doorgaan"_s;
const QString Opslaan = u"Opslaan"_s;
const QString NietOpslaan = u"Niet opslaan"_s;
const QString Annuleren = u"Annuleren"_s;
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
        opslag.Reserve().VoorWijziging(); // what fails below is the save
        schijf.FaalNiet();
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

    /// Another program left what cannot be read to its end.
    void VerwachtSchade(const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"Een ander programma heeft het spelerbestand gewijzigd, en wat er nu in staat "
                 u"kan "
                 "niet helemaal worden ingelezen.\n\nOpnieuw proberen: als dat programma nog bezig "
                 "was, is het daarna goed.\nOpslaan: de spelers van hier vervangen dat bestand; er "
                 "komt eerst een kopie van in de map Reservekopie.\nLater beslissen: er verandert "
                 "nu niets; bij de volgende wijziging en bij het afsluiten komt deze keus "
                 "terug.\n\n"_s +
                 Bestandsregel(),
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {Opnieuw, Opslaan, Later}});
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
    void WijzigVanBuiten(const std::string& was, const std::string& wordt)
    {
        vreemd = suite.Spelers();
        const auto plek = vreemd.find(was);
        ASSERT_NE(std::string::npos, plek) << was;
        suite.Zet("Spelers/RVDspelers.txt", vreemd.replace(plek, was.size(), wordt));
    }
    /// The second player's line ends in the middle.
    void BeschadigVanBuiten() { WijzigVanBuiten(",Ineke,van der,Horst-Blaauw,06-00000103", ""); }
    [[nodiscard]] std::vector<std::string> Kopieen() const
    {
        std::vector<std::string> inhouden;
        for (const auto& naam : suite.Namen("Spelers/Reservekopie")) {
            if (!naam.ends_with(".zip"))
                inhouden.push_back(
                    suite.Inhoud(std::filesystem::path("Spelers") / "Reservekopie" / naam));
        }
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

TEST_F(OpslagTest, WatEenAnderVeranderdeKomtErbij)
{
    WijzigVanBuiten("Willem,van der,Horst,06-00000103", "Willem,van der,Horst,06-9");
    wachter.Informatie(u"1 speler van een ander programma overgenomen: Willem van der Horst."_s);
    VoegToe();
    const auto plek = nieuw.find("06-00000103");
    VerwachtStand(nieuw.replace(plek, 11, "06-9"), 149, false);
    EXPECT_EQ(std::vector<std::string>{}, Kopieen());
    VoegToe("Tweede"); // told once
}

TEST_F(OpslagTest, EenSleutelDieOokEenAnderUitgafKomtNietTweeKeer)
{
    WijzigVanBuiten("HKEY=100171", "HKEY=100172");
    suite.Zet("Spelers/RVDspelers.txt", vreemd += "149,100172,Gr01-,An,,Buiten,,,,,,,V,,,,,\r\n");
    wachter.Informatie(u"1 speler van een ander programma overgenomen: An Buiten.\n\n1 nieuwe "
                       "speler van hier heeft een andere sleutel gekregen, omdat het andere "
                       "programma de sleutel ook had uitgegeven: 100173 in plaats van 100172."_s);
    VoegToe();
    vreemd.replace(5, 6, "100173");
    VerwachtStand(vreemd + "150,100173,Gr01-,,,Nieuweling,,,,,,,,,,,,\r\n", 150, false);
}

TEST_F(OpslagTest, WaarBeideIetsAndersVanMaaktenKiestDeGebruiker)
{
    const auto zet = [&](const std::string& telef) { return "Willem,van der,Horst," + telef; };
    for (const int keus : {0, 1, 2}) { // here, the other, neither
        SCOPED_TRACE(keus);
        suite.Zet("Spelers/RVDspelers.txt", oud);
        LeesRegister();
        WijzigVanBuiten(zet("06-00000103"), zet("06-9"));
        administratie.spelers.tabel.ZetCel(1, Kolom::Telef, "06-8");
        wachter.Bedien([&](QDialog& keuze) {
            EXPECT_EQ("frmVergelijk", keuze.objectName().toStdString());
            EXPECT_EQ(u"Ook door een ander programma gewijzigd"_s, keuze.windowTitle());
            if (keus == 2) {
                QTest::keyClick(&keuze, Qt::Key_Escape);
                return;
            }
            Klik(Vind<QPushButton>(keuze, keus == 0 ? "cmdLinks" : "cmdRechts"));
            Klik(Vind<QPushButton>(keuze, "cmdOK"));
        });
        if (keus == 2)
            wachter.Begin(u"Waar u niets koos, staat in het spelerbestand wat het andere programma "
                          "ervan maakte. Zoals het hier was, staat het in de kopie:\n"_s,
                          QMessageBox::Information);
        VoegToe();
        EXPECT_NE(std::string::npos, suite.Spelers().find(zet(keus == 0 ? "06-8" : "06-9")));
        EXPECT_NE(std::string::npos, suite.Spelers().find("Nieuweling"));
        const auto kopieen = Kopieen();
        ASSERT_EQ(keus == 2 ? 1U : 0U, kopieen.size());
        for (const std::string& kopie : kopieen)
            EXPECT_NE(std::string::npos, kopie.find(zet("06-8")));
    }
}

TEST_F(OpslagTest, HetzelfdeBestandNogEensGeschrevenVraagtNiets)
{
    suite.Verwijder("Spelers/RVDspelers.txt");
    suite.Zet("Spelers/RVDspelers.txt", oud);
    VoegToe();
    VerwachtStand(nieuw, 149, false);
}

TEST_F(OpslagTest, EenWijzigingVanDezelfdeLengteMetDeOudeTijdWordtGezien)
{
    const auto pad = suite.Weg() / "Spelers" / "RVDspelers.txt";
    const auto tijd = std::filesystem::last_write_time(pad);
    WijzigVanBuiten("06-00000103", "06-00000104");
    std::filesystem::last_write_time(pad, tijd);
    wachter.Informatie(u"1 speler van een ander programma overgenomen: Willem van der Horst."_s);
    VoegToe();
    EXPECT_NE(std::string::npos, suite.Spelers().find("06-00000104"));
}

TEST_F(OpslagTest, NaSchadeVanBuitenOpslaanMaaktEerstEenKopie)
{
    BeschadigVanBuiten();
    VerwachtSchade(Opslaan);
    VoegToe();
    VerwachtStand(nieuw, 149, false);
    EXPECT_EQ(std::vector<std::string>{vreemd}, Kopieen());
}

TEST_F(OpslagTest, SchadeVanBuitenDieOverIsIsNaOpnieuwProberenWeg)
{
    BeschadigVanBuiten();
    wachter.LaatBeslissen([&](const QMessageBox& bericht) {
        EXPECT_TRUE(bericht.text().startsWith(u"Een ander programma heeft"_s));
        suite.Zet("Spelers/RVDspelers.txt", oud);
        return Opnieuw;
    });
    VoegToe();
    VerwachtStand(nieuw, 149, false);
}

TEST_F(OpslagTest, NaSchadeVanBuitenLaterBeslissenHoudtBeide)
{
    BeschadigVanBuiten();
    VerwachtSchade(Later);
    VoegToe();
    VerwachtStand(vreemd, 149, true);
    // Escape is the harmless answer.
    VerwachtSluitvraag(Opslaan);
    VerwachtSchade(Berichtwachter::Escape);
    EXPECT_FALSE(MagEindigen());
    EXPECT_EQ(vreemd, suite.Spelers());
}

/// Not as if all of them had been deleted there.
TEST_F(OpslagTest, EenLeeggemaaktBestandGeldtAlsSchade)
{
    vreemd = "HKEY=100171\r\n";
    suite.Zet("Spelers/RVDspelers.txt", vreemd);
    VerwachtSchade(Opslaan);
    VoegToe();
    VerwachtStand(nieuw, 149, false);
    EXPECT_EQ(std::vector<std::string>{vreemd}, Kopieen());
}

TEST_F(OpslagTest, EenBestandDatNooitIsIngelezenWordtSamengevoegd)
{
    administratie.spelers = {};
    administratie.spelers.HKEY = 100000;
    wachter.LaatBeslissen([&](const QMessageBox& bericht) {
        EXPECT_TRUE(bericht.text().startsWith(u"148 spelers van een ander programma overgenomen: "
                                              "Willem van der Horst, "_s))
            << bericht.text().toStdString();
        EXPECT_TRUE(bericht.text().contains(u" en nog 143."_s));
        return u"OK"_s;
    });
    VoegToe();
    VerwachtStand(nieuw, 149, false);
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
const QString KomtNog =
    u"De nieuwe spelers staan niet in het spelerbestand. Daarom is 'Koppelverslag.txt' van hun "
    "zitting weer zoals het was. Het wordt opnieuw geschreven zodra ze zijn opgeslagen."_s;
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
        // Only when the lock could not be made at once, or not be removed, or the folder not be
        // synced the new register is there all the same.
        const bool staat = stap == stappen - 3 || stap >= stappen - 1;
        suite.Verwijder("Spelers/RVDspelers.txt.~plexoran0");
        if (stap == stappen)
            wachter.Waarschuwing(
                u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf. Het systeem "
                "kon alleen niet bevestigen dat dit na een stroomstoring nog zo is. Kijk of de "
                "schijf in orde is en sla later nog eens op.\n\n"_s +
                Bestandsregel() + u"\nMelding van het systeem: schijf vol"_s);
        else if (!staat) {
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
    VerwachtSchade(Later);
    wachter.Informatie(KomtNog);
    VoegSessieToe([this] { BeschadigVanBuiten(); });
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
    VerwachtSluitvraag(NietOpslaan);
    EXPECT_TRUE(MagEindigen());
    EXPECT_FALSE(suite.Bestaat(Verslagbestand));
}

TEST_F(VerslagTest, NieuweSleutelsStaanErOokIn)
{
    wachter.Begin(u"1 speler van een ander programma overgenomen: An Buiten."_s,
                  QMessageBox::Information);
    VoegSessieToe([this] {
        WijzigVanBuiten("HKEY=100171", "HKEY=100172");
        suite.Zet("Spelers/RVDspelers.txt",
                  vreemd += "149,100172,Gr01-,An,,Buiten,,,,,,,V,,,,,\r\n");
    });
    EXPECT_EQ("N01 100173 - 0\r\n", Verslag());
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
    /// Saves nothing, after the backup before the first change: what fails below is the save.
    void LaatEenReserveMaken()
    {
        wachter.Bedien([](QDialog& namen) { Druk(namen, "cmdOK"); });
        Opdracht("cmdMaakGrNamen");
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
    LaatEenReserveMaken();
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
    LaatEenReserveMaken();
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

TEST_F(OpslagInHetVenster, GroepsnamenVanEenAnderProgrammaWordenOvergenomenEnGemeld)
{
    std::string daar = suite.Groepen();
    daar.replace(daar.find("Gr12-"), 5, "Gr12-Daar");
    wachter.Bedien([&](QDialog& dialoog) {
        suite.Zet("Spelers/RVDGroepen.txt", daar);
        Schrijf(dialoog, "txt1_11", u"Nieuw"_s);
        Druk(dialoog, "cmdOK");
    });
    wachter.Informatie(u"1 groepsnaam van een ander programma overgenomen: Gr12-Daar."_s);
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ("Gr11-Nieuw", RegelsVan(suite.Groepen()).at(10));
    EXPECT_EQ("Gr12-Daar", RegelsVan(suite.Groepen()).at(11));
    EXPECT_EQ("Gr12-Daar", Keus("cmbGr")->itemText(11).toStdString());
}

TEST_F(OpslagInHetVenster, VanEenGroepsnaamDieBeideGavenHeetDeKopie)
{
    std::string daar = suite.Groepen();
    daar.replace(daar.find("Gr11-"), 5, "Gr11-Daar");
    wachter.Bedien([&](QDialog& dialoog) {
        suite.Zet("Spelers/RVDGroepen.txt", daar);
        Schrijf(dialoog, "txt1_11", u"Nieuw"_s);
        Druk(dialoog, "cmdOK");
    });
    wachter.Begin(
        u"1 groepsnaam zowel hier als door een ander programma gewijzigd: Gr11-Nieuw. In het "
        "bestand staat wat het andere programma ervan maakte. Zoals het hier was, staat het in de "
        "kopie:\n"_s,
        QMessageBox::Information);
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ(daar, suite.Groepen());
    EXPECT_EQ("Gr11-Daar", Keus("cmbGr")->itemText(10).toStdString());
    const auto namen = suite.Namen("Spelers/Reservekopie");
    EXPECT_EQ(1, std::ranges::count_if(
                     namen, [](const auto& naam) { return naam.starts_with("RVDGroepen "); }));
}

TEST_F(OpslagInHetVenster, GroepsnamenDieErStaanMaarNietVastBlijvenOokOpHetScherm)
{
    LaatEenReserveMaken();
    // Make, rights, write, sync, close and lock; six for the history; rename, unlock, the folder.
    schijf.FaalBij(15);
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

// ---- Noticed while nothing is unsaved -----------------------------------------------------------

namespace {

class Volgen : public OpslagInHetVenster {
  protected:
    /// As another program would do; returns when the window has had two seconds.
    template <class Klaar> void Zet(const char* bestand, const std::string& inhoud, Klaar klaar)
    {
        suite.Zet(bestand, inhoud);
        EXPECT_TRUE(QTest::qWaitFor(klaar, 2000)) << bestand;
    }
    /// A player before all others.
    [[nodiscard]] std::string MetEenErvoor() const
    {
        std::string tekst = suite.Spelers();
        return tekst.insert(tekst.find("1,100001"), "0,100300,Gr01-,An,,Buiten,,,,,,,V,,,,,\r\n");
    }
};

} // namespace

TEST_F(Volgen, NieuweSpelersKomenErMeteenBijEnDeKeusEnDePlaatsBlijven)
{
    KiesGroep(1);
    Balk("VScroll1")->setValue(40);
    KiesRegel(9);
    const std::string key = GekozenSleutel();
    const int hoogte = Balk("VScroll1")->value();
    const int regels = Label("Label3")->text().section(u' ', -1).toInt();
    Zet("Spelers/RVDspelers.txt", MetEenErvoor(),
        [&] { return Aantal() == "Aantal regels: " + std::to_string(regels + 1); });
    EXPECT_EQ(10, GekozenRegel());
    EXPECT_EQ(key, GekozenSleutel());
    EXPECT_EQ(hoogte, Balk("VScroll1")->value());
}

TEST_F(Volgen, WieGekozenWasEnWegIsIsNietMeerGekozen)
{
    KiesGroep(1);
    KiesRegel(1);
    std::string tekst = suite.Spelers();
    const auto begin = tekst.find("1,100001");
    tekst.erase(begin, tekst.find('\n', begin) + 1 - begin);
    Zet("Spelers/RVDspelers.txt", tekst, [&] { return GekozenRegel() == 0; });
}

TEST_F(Volgen, WieTerugkomtInHetVensterZietHetMeteen)
{
    KiesGroep(1);
    const std::string was = Aantal();
    suite.Zet("Spelers/RVDspelers.txt", MetEenErvoor());
    QEvent terug(QEvent::ActivationChange);
    QApplication::sendEvent(venster.get(), &terug);
    EXPECT_NE(was, Aantal());
}

TEST_F(Volgen, AndereGroepsnamenStaanInDeKeuslijst)
{
    KiesGroep(3);
    std::string tekst = suite.Groepen();
    tekst.replace(0, tekst.find('\r'), "Gr01-Anders");
    Zet("Spelers/RVDGroepen.txt", tekst,
        [&] { return Keus("cmbGr")->itemText(0) == u"Gr01-Anders"; });
    EXPECT_EQ(3, GetoondeGroep());
}

TEST_F(Volgen, HalveGroepsnamenVeranderenNiets)
{
    const QString was = Keus("cmbGr")->itemText(1);
    suite.Zet("Spelers/RVDGroepen.txt", "Gr01-Anders\r\n");
    QTest::qWait(1500);
    EXPECT_NE(u"Gr01-Anders"_s, Keus("cmbGr")->itemText(0));
    EXPECT_EQ(was, Keus("cmbGr")->itemText(1));
}

TEST_F(Volgen, HetTerugkeerveldVanEenAnderProgrammaGeldtBijHetInvoeren)
{
    suite.Zet("Admin/Plexo.ini", "OPTIND=7\r\nLOSTGR=0\r\n");
    wachter.Bedien([](QDialog& ingave) {
        EXPECT_TRUE(ingave.findChild<QRadioButton*>(u"opt1_7"_s)->isChecked());
        Druk(ingave, "cmdAnnuleren");
    });
    Opdracht("cmdAanm");
    EXPECT_EQ("OPTIND=7\r\nLOSTGR=0\r\n", suite.Instellingen());
}

TEST_F(Volgen, WatHierNogNietIsOpgeslagenGaatVoor)
{
    schijf.FaalVanaf(1);
    VerwachtIngave(u"Nieuweling"_s);
    wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
    Opdracht("cmdAanm");
    schijf.FaalNiet();
    const std::string was = Aantal();
    suite.Zet("Spelers/RVDspelers.txt", MetEenErvoor());
    QTest::qWait(1500);
    EXPECT_EQ(was, Aantal());
    VerwachtIngave(u"Tweede"_s);
    wachter.Informatie(u"1 speler van een ander programma overgenomen: An Buiten."_s);
    Opdracht("cmdAanm");
    EXPECT_NE(std::string::npos, suite.Spelers().find(",An,,Buiten,"));
    EXPECT_NE(std::string::npos, suite.Spelers().find("Nieuweling"));
}

TEST_F(Volgen, EenHalfGeschrevenBestandVerandertNiets)
{
    const std::string heel = suite.Spelers();
    const std::string was = Aantal();
    suite.Zet("Spelers/RVDspelers.txt", heel.substr(0, heel.size() / 2));
    QTest::qWait(1500);
    EXPECT_EQ(was, Aantal());
}

TEST_F(Volgen, WatEvenNietTeLezenIsKomtErBijDeVolgendeBlikBij)
{
    const std::string was = Aantal();
    const auto kijk = [this] {
        QTimerEvent tik(0);
        QApplication::sendEvent(venster->findChild<Bestandswacht*>(), &tik);
    };
    int keer = 0;
    schijf.Vooraf([&](const Pad& pad) { // only the reading fails, which comes after the stamp
        return !pad.ends_with("RVDspelers.txt") || ++keer != 2;
    });
    suite.Zet("Spelers/RVDspelers.txt", MetEenErvoor());
    kijk();
    EXPECT_EQ(was, Aantal());
    kijk();
    EXPECT_NE(was, Aantal());
    schijf.Vooraf({});
}

TEST_F(Volgen, GroepsnamenDieEvenNietTeLezenZijnKomenBijDeVolgendeBlik)
{
    const auto kijk = [this] {
        QTimerEvent tik(0);
        QApplication::sendEvent(venster->findChild<Bestandswacht*>(), &tik);
    };
    int keer = 0;
    schijf.Vooraf([&](const Pad& pad) { return !pad.ends_with("RVDGroepen.txt") || ++keer != 2; });
    const std::string namen = suite.Groepen();
    suite.Zet("Spelers/RVDGroepen.txt", "Gr01-Anders" + namen.substr(namen.find("\r\n")));
    kijk();
    EXPECT_NE(u"Gr01-Anders"_s, Keus("cmbGr")->itemText(0));
    kijk();
    EXPECT_EQ(u"Gr01-Anders"_s, Keus("cmbGr")->itemText(0));
    schijf.Vooraf({});
}

TEST_F(Volgen, WatErBijKomtTerwijlEenVensterSluitVerandertGeenAndereSpeler)
{
    KiesGroep(1);
    KiesRegel(9);
    const std::string key = GekozenSleutel();
    wachter.Bedien([this](QDialog& ingave) {
        Schrijf(ingave, "txt1_7", u"06-9"_s);
        suite.Zet("Spelers/RVDspelers.txt", MetEenErvoor());
        QObject::connect(&ingave, &QDialog::finished, venster.get(), [this] {
            QTimerEvent tik(0);
            QApplication::sendEvent(venster->findChild<Bestandswacht*>(), &tik);
        });
        Druk(ingave, "cmdOK");
    });
    wachter.Informatie(u"1 speler van een ander programma overgenomen: An Buiten."_s);
    QEventLoop programma;
    QTimer::singleShot(0, venster.get(), [&] {
        Opdracht("cmdWijzig");
        programma.quit();
    });
    programma.exec();
    const std::string tekst = suite.Spelers();
    const auto plek = tekst.find(key);
    EXPECT_NE(std::string::npos, tekst.substr(plek, tekst.find('\r', plek) - plek).find("06-9"));
}

TEST_F(Volgen, ParenEnZittingenKrijgenGeenSpelersDieNietZijnOpgeslagen)
{
    KiesGroep(5);
    LaatEenReserveMaken();
    schijf.FaalVanaf(1);
    VerwachtIngave(u"Nieuweling"_s);
    wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
    Opdracht("cmdAanm");
    for (const char* knop : {"cmdParenOnderhoud", "cmdKoppel"}) {
        wachter.Begin(nietOpgeslagen, QMessageBox::Critical, Doorgaan);
        Opdracht(knop); // and no window
    }
    schijf.FaalNiet();
    Opdracht("cmdKoppel", [this](QDialog& koppelen) {
        EXPECT_NE(std::string::npos, suite.Spelers().find("Nieuweling"));
        koppelen.reject();
    });
}
