#include "sessions/frmKoppelNBBnr.h"

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<std::string>;

const QString Dinsdag = u"Dinsdagavond 2024-09-10"_s;
const QString Maandag = u"Maandagmiddag 2024-10-07"_s;
const QString Najaar = u"Najaarscompetitie 2024"_s;

/// The real window on a copy of the sample suite, with production saving.
class Koppelvenster : public Dialoogproef<frmKoppelNBBnr, Suitestand> {
  protected:
    Koppelvenster() { LeesRegister(); }

    void Open() { ToonEnLees(administratie); }
    void SetUp() override { ASSERT_NO_FATAL_FAILURE(Open()); }

    [[nodiscard]] QComboBox* Keus() const { return Deel<QComboBox>("cmbC"); }
    [[nodiscard]] std::string Focus() const
    {
        return venster->focusWidget()->objectName().toStdString();
    }
    void KiesCompetities() const { Deel<QRadioButton>("Option2")->click(); }
    void Zoek(const QString& sessie) const
    {
        Keus()->setCurrentText(sessie);
        ASSERT_EQ(sessie, Keus()->currentText());
        Klik(Knop("cmdZoekNamen"));
    }
    void KiesZwevende(const char* begin) const { KlikRegel("lstSpelers", begin); }
    void KiesSpeler(const char* key) const { KlikRegel("lstRVDsp", key); }
    /// A floating player of a session and the one of the register who he is.
    void KiesPaar(const QString& sessie, const char* zwevende, const char* key) const
    {
        Zoek(sessie);
        KiesZwevende(zwevende);
        KiesSpeler(key);
    }
    [[nodiscard]] bool KanKoppelen() const { return Knop("cmdStartKoppelen")->isEnabled(); }
    void VerwachtVraag(const QString& antwoord = u"OK"_s)
    {
        wachter.Verwacht({.tekst = u"De zwevende speler krijgt nu zijn RVD-nummer toegewezen in de "
                                   "betreffende zittingbestanden.\r\n\r\nKies OK of Annuleer."_s,
                          .antwoord = antwoord,
                          .knoppen = {u"OK"_s, u"Annuleren"_s}});
    }
    void Koppel(const QString& melding)
    {
        VerwachtVraag();
        wachter.Informatie(melding);
        Opdracht("cmdStartKoppelen");
    }
    [[nodiscard]] static std::string Zit(const std::string& rest)
    {
        return "Zittingen/Dinsdagavond 2024-09-10/" + rest;
    }
    [[nodiscard]] static std::string Com(const std::string& rest)
    {
        return "Competities/Najaarscompetitie 2024/" + rest;
    }
};

/// Text with one piece replaced; the test fails when it is not there.
std::string Vervangen(std::string tekst, const std::string& van, const std::string& door)
{
    const auto plaats = tekst.find(van);
    EXPECT_NE(std::string::npos, plaats) << van;
    return plaats == std::string::npos ? tekst : tekst.replace(plaats, van.size(), door);
}

} // namespace

TEST_F(Koppelvenster, DeTeksten)
{
    const Opschriften labels{
        {"Label12", "Selecteer hierboven 1 speler"},
        {"Label13", "Elke speler moeten afzonderlijk verwerkt worden!"},
        {"Label6", "NBBnr"},
        {"Label7", "RVDnr"},
        {"Label8", "NBBledengroep"},
        {"Label1",
         "Als er in geimporteerde NBB-zittingen (o.a. BWS-zittingen) spelers voorkomen die (ten "
         "tijde van het importeren!) nog niet in het RVD-ledenbestand bekend waren (zgn zwevende "
         "spelers), dan kunt u hiermee alsnog die spelers koppelen."},
        {"Label2",
         "Dit hoeft niet persé, maar als u gebruik wilt maken van de speciale RVD-opties en zeker "
         "in de geimporteeerde competitiezittingen dan moet u dit doen. Denk bijv aan berekenen "
         "Clubkampioenschap."},
        {"Label3", "Vóór dit koppelen moeten de spelergegevens vooraf van NBB naar RVD "
                   "geimporteerd zijn."},
        {"Label5",
         " Als in NBB een (evt fictief) NBBnr wordt gewijzigd, bijv een cursist wordt NBB-lid, dan "
         "kan men volstaan met het handmatig wijzigen van het NBBnr in beide, NBB en RVD (groep "
         "Gr05)."},
        {"Label9", "Een speler moet vooraf in RVD (groep Gr05-) bekend zijn anders kan hij "
                   "hieronder niet gekozen worden."},
        {"Label10", "Kies hier de RVD-speler (uit Gr05-) wiens identiteit hetzelfde is als de "
                    "linker speler."}};
    VerwachtTeksten(
        "Koppelen van zwevende NBB-spelers  aan RVD-ledenbestand", labels,
        {{"Option1", "In losse Zittingen"},
         {"Option2", "In Competities"},
         {"cmdKiesRVDspeler", "Kies speler uit RVD (Gr05)"},
         {"cmdStartKoppelen", "OK als dit identieke spelers zijn ..."},
         {"cmdEinde", "Einde"}},
        {{"Frame1", "Wijziging van een NBBnr"}, {"Frame3", "Waarom dit programmadeel?"}});
}

TEST_F(Koppelvenster, DeZittingenEnDeCompetitiesMetHunDatum)
{
    EXPECT_TRUE(Deel<QRadioButton>("Option1")->isChecked());
    EXPECT_EQ("Kies een Zitting", Label("Label4"));
    EXPECT_EQ("Zoek de zwevende spelers in deze Zitting", Opschrift(Knop("cmdZoekNamen")));
    EXPECT_EQ((Teksten{"Dinsdagavond 2024-09-10", "Donderdagmiddag 2024-10-17",
                       "Maandagmiddag 2024-10-07", "Nog te spelen", "Zomerdrive 2024_Rev",
                       "Zondagdrive 2024_Rev"}),
              Keuzes(Keus()));
    std::filesystem::last_write_time(suite.Weg() / "Zittingen/Nog te spelen/Zitdata.txt",
                                     std::filesystem::file_time_type::clock::now() -
                                         std::chrono::hours(24 * 400));
    KiesCompetities();
    EXPECT_EQ("Kies een Competitie", Label("Label4"));
    EXPECT_EQ("Zoek de zwevende spelers in deze Competitie", Opschrift(Knop("cmdZoekNamen")));
    EXPECT_EQ((Teksten{"Laddercompetitie", "Najaarscompetitie 2024"}), Keuzes(Keus()));
    EXPECT_EQ(Tijdtekst("yyyy-MM-dd"),
              Keus()->itemData(0, Qt::ToolTipRole).toString().toStdString());
    Deel<QRadioButton>("Option1")->click();
    constexpr std::int64_t dag = 86'400'000'000'000;
    EXPECT_EQ(Tijdtekst("yyyy-MM-dd", Nu() - 400 * dag),
              Keus()->itemData(3, Qt::ToolTipRole).toString().toStdString());
    Keus()->setCurrentIndex(3);
    EXPECT_EQ(Tijdtekst("yyyy-MM-dd", Nu() - 400 * dag), Keus()->toolTip().toStdString());
}

TEST_F(Koppelvenster, ZonderZittingenEnCompetities)
{
    suite.Verwijder("Zittingen");
    suite.Verwijder("Competities");
    wachter.Informatie(
        u"Er zijn nog geen Zittingen voorhanden.\r\nU dient dus eerst een Zitting aan te maken."_s);
    ASSERT_NO_FATAL_FAILURE(Open());
    wachter.Klaar();
    EXPECT_FALSE(Knop("cmdZoekNamen")->isEnabled());
    wachter.Informatie(
        u"Er zijn nog geen competities voorhanden.\r\nU dient dus eerst een Competitie aan te "
        "maken."_s);
    KiesCompetities();
    EXPECT_EQ(Teksten{}, Keuzes(Keus()));
    EXPECT_FALSE(Knop("cmdZoekNamen")->isEnabled());
}

TEST_F(Koppelvenster, DeZwevendenVanEenZittingOfGeen)
{
    EXPECT_EQ("", Label("Label11"));
    ASSERT_NO_FATAL_FAILURE(Zoek(Dinsdag));
    EXPECT_EQ("Gevonden zwevende spelers in deze Zitting", Label("Label11"));
    EXPECT_EQ((Teksten{"als N02    Marleen Hijmanse", "als N03    Mieke Oudewortel-Quist",
                       "als O01    Sven Nijboersma", "als O02    Zoë Wolthuizen",
                       "als O02    Jørgen Sørensgaard", "als O04    Riekje ter Meulenbrink",
                       "als N2    Marleen Hijmanse", "als O1    Sven Nijboersma",
                       "als O2    Zoë Wolthuizen", "als O2    Jørgen Sørensgaard",
                       "als N3    Mieke Oudewortel-Quist", "als O4    Riekje ter Meulenbrink"}),
              Regels("lstSpelers"));
    // What was found belongs to this session only.
    Keus()->setCurrentIndex(1);
    EXPECT_EQ(Teksten{}, Regels("lstSpelers"));
    EXPECT_EQ("", Label("Label11"));
    for (const char* zitting : {"Donderdagmiddag 2024-10-17", "Nog te spelen"}) {
        ASSERT_NO_FATAL_FAILURE(Zoek(QString::fromLatin1(zitting)));
        EXPECT_EQ("Geen zwevende spelers gevonden", Label("Label11"));
        EXPECT_EQ(Teksten{}, Regels("lstSpelers"));
    }
}

TEST_F(Koppelvenster, DeSpelersVanDeImportgroepUitHetBestandOfDatErNietIs)
{
    // The table in memory is not asked: what is not saved has no key yet.
    administratie.spelers = {};
    ASSERT_NO_FATAL_FAILURE(Open());
    const Teksten regels = Regels("lstRVDsp");
    ASSERT_EQ(36U, regels.size());
    EXPECT_TRUE(regels[0].starts_with("100086  Kees Aardappelaer")) << regels[0];
    EXPECT_TRUE(regels[0].ends_with("  91959164  DINSDAG")) << regels[0];
    suite.Zet("Spelers/RVDspelers.txt",
              "HKEY=100002\r\n1,100002,Gr05-,An,de,Bos,,,,,,,V,,,,MA,123\r\n");
    Klik(Knop("cmdKiesRVDspeler"));
    EXPECT_EQ(Teksten{"100002  An de Bos  123       MA"}, Regels("lstRVDsp"));
    suite.Verwijder("Spelers/RVDspelers.txt");
    wachter.Begin(
        u"Fout bij het lezen van het spelerbestand; er is nu niemand om te koppelen. Er is "
        "niets veranderd. Verhelp de oorzaak en probeer het opnieuw.\n\n"_s);
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_EQ(Teksten{}, Regels("lstRVDsp"));
}

TEST_F(Koppelvenster, KoppelenInEenZitting)
{
    const std::string spelers = suite.Inhoud(Zit("Spelers.txt"));
    const std::string percentages = suite.Inhoud(Zit("PercZit.txt"));
    const std::string register_ = suite.Spelers();
    ASSERT_NO_FATAL_FAILURE(Zoek(Dinsdag));
    EXPECT_FALSE(KanKoppelen());
    KiesZwevende("als O02    J");
    EXPECT_EQ("als O02    Jørgen Sørensgaard", Vak("txtSpeler"));
    EXPECT_FALSE(KanKoppelen());
    KiesSpeler("100084");
    EXPECT_EQ("100084    Jørgen Sørensgaard", Vak("txtRVDspeler"));

    VerwachtVraag(u"Annuleren"_s);
    Opdracht("cmdStartKoppelen");
    EXPECT_EQ(spelers, suite.Inhoud(Zit("Spelers.txt")));
    EXPECT_EQ("als O02    Jørgen Sørensgaard", Vak("txtSpeler"));

    Koppel(u"Speler Jørgen Sørensgaard is gekoppeld."_s);
    EXPECT_EQ(Vervangen(spelers, "J\xF8rgen S\xF8rensgaard", "100084"),
              suite.Inhoud(Zit("Spelers.txt")));
    EXPECT_EQ(Vervangen(percentages, "Zo\xEB Wolthuizen-J\xF8rgen S\xF8rensgaard",
                        "Zo\xEB Wolthuizen - 100084"),
              suite.Inhoud(Zit("PercZit.txt")));
    EXPECT_EQ("Jørgen Sørensgaard - O02 aangepast in Spelerbestand.\n"
              "Jørgen Sørensgaard - O02 aangepast in Percentagebestand.",
              Label("lblResultaat"));
    EXPECT_EQ(register_, suite.Spelers());
    EXPECT_EQ((std::vector<std::string>{"PercZit.txt", "Spelers.txt", "Zitdata.txt"}),
              suite.Namen("Zittingen/Dinsdagavond 2024-09-10"));
    // Both his lines are gone; the next player is to be chosen anew.
    EXPECT_EQ(10U, Regels("lstSpelers").size());
    EXPECT_EQ("", Vak("txtSpeler"));
    EXPECT_EQ("", Vak("txtRVDspeler"));
    EXPECT_FALSE(KanKoppelen());
}

/// Whoever stands first in the register is not the one who is meant.
TEST_F(Koppelvenster, WieNietInHetRegisterStaatKrijgtNiemandVoorgesteld)
{
    ASSERT_NO_FATAL_FAILURE(Zoek(Maandag));
    KiesZwevende("als N02    Tol - Paul");
    Klik(Knop("cmdKiesRVDspeler"));
    EXPECT_EQ("lstRVDsp", Focus());
    EXPECT_EQ("", Vak("txtRVDspeler"));
    EXPECT_FALSE(KanKoppelen());
    // The first line can be chosen on purpose.
    QTest::keyClick(venster->focusWidget(), Qt::Key_Return);
    EXPECT_EQ("100086    Kees Aardappelaer", Vak("txtRVDspeler"));
    EXPECT_TRUE(KanKoppelen());
}

TEST_F(Koppelvenster, DeFocusAlleenKiestNiemand)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    Deel<QListView>("lstRVDsp")->setFocus();
    EXPECT_EQ("", Vak("txtRVDspeler"));
    ASSERT_NO_FATAL_FAILURE(Zoek(Dinsdag));
    EXPECT_EQ("als N02    Marleen Hijmanse", Vak("txtSpeler"));
    KiesSpeler("100090");
    Koppel(u"Speler Marleen Hijmanse is gekoppeld."_s);
    EXPECT_EQ("lstSpelers", Focus());
    EXPECT_EQ("", Vak("txtSpeler"));
    for (int tab = 0; tab < 4; ++tab)
        QTest::keyClick(venster->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ("txtRVDspeler", Focus());
    EXPECT_EQ("", Vak("txtSpeler"));
    EXPECT_EQ("", Vak("txtRVDspeler"));
    EXPECT_FALSE(KanKoppelen());
}

TEST_F(Koppelvenster, KoppelenInEenHeleCompetitie)
{
    const std::string laatste = suite.Inhoud(Com("Ronde-10/Zitting-4/PercZit-4.txt"));
    KiesCompetities();
    ASSERT_NO_FATAL_FAILURE(Zoek(Najaar));
    EXPECT_EQ("Gevonden zwevende spelers in deze Competitie", Label("Label11"));
    EXPECT_EQ("In R1 - Z1 als N01    Cornélie Vaandrager", Regels("lstSpelers").front());
    EXPECT_EQ("In R10 - Z4 als O1    Sven Nijboersma", Regels("lstSpelers").back());
    KiesZwevende("In R10 - Z4 als O01    Sven");
    KiesSpeler("100094");
    Koppel(u"Sven Nijboersma is in alle competitie-zittingen gekoppeld (6 keer)"_s);
    EXPECT_EQ(Vervangen(laatste, "Sven Nijboersma-100095", "100094 - 100095"),
              suite.Inhoud(Com("Ronde-10/Zitting-4/PercZit-4.txt")));
    EXPECT_TRUE(Label("lblResultaat")
                    .ends_with("Sven Nijboersma - O01 aangepast in Spelerbestand.\n"
                               "Sven Nijboersma - O01 aangepast in Percentagebestand."));
    for (const std::string& regel : Regels("lstSpelers"))
        EXPECT_EQ(std::string::npos, regel.find("Sven")) << regel;
}

TEST_F(Koppelvenster, EenMislukkingInHetMiddenNoemtDeBestanden)
{
    KiesCompetities();
    KiesPaar(Najaar, "In R1 - Z1 als O01    Rosa", "100097");
    const std::size_t regels = Regels("lstSpelers").size();
    const auto pad = [&](const std::string& rest) {
        return QString::fromStdString(suite.Toonpad(Com(rest)));
    };
    schijf.FaalBij(10); // the second file is being written
    VerwachtVraag();
    wachter.Begin(
        u"Fout bij het koppelen. Elk bestand is heel: het is helemaal aangepast of nog zoals "
        "het was. Verhelp de oorzaak en koppel deze speler opnieuw; dan wordt de rest "
        "aangepast.\n\nAangepast (1):\n- %1\n\nNiet aangepast (3):\n- %2\n- %3\n- %4\n\n"
        "Bestand: "_s.arg(
            pad("Ronde-1/Zitting-1/Spelers.txt"), pad("Ronde-1/Zitting-1/PercZit-1.txt"),
            pad("Ronde-2/Zitting-3/Spelers.txt"), pad("Ronde-2/Zitting-3/PercZit-3.txt")),
        QMessageBox::Critical);
    Opdracht("cmdStartKoppelen");
    EXPECT_EQ(regels, Regels("lstSpelers").size());
    EXPECT_TRUE(
        Label("lblResultaat")
            .starts_with("Rosa Zwaluwstaart - O01 aangepast in Spelerbestand.\nNiet aangepast: "))
        << Label("lblResultaat");

    schijf.FaalNiet();
    Koppel(u"Rosa Zwaluwstaart is in alle competitie-zittingen gekoppeld (4 keer)"_s);
    EXPECT_EQ("Rosa Zwaluwstaart - O01 aangepast in Percentagebestand.\n"
              "Rosa Zwaluwstaart - N02 aangepast in Spelerbestand.\n"
              "Rosa Zwaluwstaart - N02 aangepast in Percentagebestand.",
              Label("lblResultaat"));
}

TEST_F(Koppelvenster, WatIntussenVerdweenWordtNietGekoppeldGenoemd)
{
    KiesPaar(Dinsdag, "als N02    Marleen", "100090");
    suite.Verwijder(Zit("Spelers.txt"));
    suite.Zet(Zit("PercZit.txt"), "ruis\r\n");
    VerwachtVraag();
    wachter.Waarschuwing(
        u"Er is niets gewijzigd: 'Marleen Hijmanse' komt niet meer voor in de bestanden. "
        "Misschien heeft een ander programma ze intussen gewijzigd. Zoek de zwevende spelers "
        "opnieuw."_s);
    Klik(Knop("cmdStartKoppelen"));
    EXPECT_EQ("ruis\r\n", suite.Inhoud(Zit("PercZit.txt")));
}

TEST_F(Koppelvenster, EenVerdwenenMap)
{
    for (const auto& [map, sessie] :
         {std::pair("Zittingen", Dinsdag), {"Competities", u"Laddercompetitie"_s}}) {
        std::filesystem::remove_all(suite.Weg() / map / sessie.toStdString());
        wachter.Begin(
            u"Fout bij het zoeken van de zwevende spelers: deze map is er niet meer. Er is niets "
            "veranderd. Verhelp de oorzaak en probeer het opnieuw.\n\nBestand: "_s);
        ASSERT_NO_FATAL_FAILURE(Zoek(sessie));
        wachter.Klaar();
        KiesCompetities();
    }
}

TEST_F(Koppelvenster, OvergeslagenRegels)
{
    suite.Zet("Zittingen/Nog te spelen/PercZit.txt", "1,2\r\n\r\n1,2,3,4,5,6,7,8\r\n");
    ASSERT_NO_FATAL_FAILURE(Zoek(u"Nog te spelen"_s));
    EXPECT_EQ("Overgeslagen regels in de percentagebestanden, omdat ze geen 7 velden hebben: 2.",
              Label("lblResultaat"));
    ASSERT_NO_FATAL_FAILURE(Zoek(Maandag));
    EXPECT_EQ("", Label("lblResultaat"));
}

TEST_F(Koppelvenster, DeWaarschuwingVoorEenStreepjeGaatWegMetDeNaam)
{
    ASSERT_NO_FATAL_FAILURE(Zoek(Dinsdag));
    KiesZwevende("als N03    Mieke");
    EXPECT_TRUE(Label("lblResultaat").starts_with("Let op: in deze naam staat een streepje."));
    KiesZwevende("als O01    Sven");
    EXPECT_EQ("", Label("lblResultaat"));

    KiesSpeler("100094");
    Koppel(u"Speler Sven Nijboersma is gekoppeld."_s);
    const auto gedaan = Label("lblResultaat");
    EXPECT_TRUE(gedaan.starts_with("Sven Nijboersma - O01 aangepast in Spelerbestand."));
    KiesZwevende("als N03    Mieke");
    EXPECT_TRUE(Label("lblResultaat").starts_with("Let op: in deze naam staat een streepje."));
    KiesZwevende("als N02    Marleen");
    EXPECT_EQ(gedaan, Label("lblResultaat"));
}

/// A screen of 1920 by 1080 at 200 % has this room.
TEST_F(Koppelvenster, OpEenLaagSchermBlijftAllesInBeeld)
{
    venster->resize(940, 500);
    QApplication::processEvents();
    EXPECT_EQ(500, venster->height());
    EXPECT_LT(Deel<QWidget>("lstRVDsp")->geometry().bottom(),
              Deel<QWidget>("txtRVDspeler")->geometry().top());
    auto* hint = Deel<QLabel>("Label9");
    EXPECT_GE(hint->height(), hint->heightForWidth(hint->width()));
    for (const char* naam : {"cmdEinde", "cmdStartKoppelen", "vlakResultaat", "lstRVDsp"}) {
        auto* deel = Deel<QWidget>(naam);
        EXPECT_EQ(deel->rect(), deel->visibleRegion().boundingRect()) << naam;
    }
}

TEST_F(Koppelvenster, MetHetToetsenbord)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    Deel<QRadioButton>("Option1")->setFocus();
    EXPECT_EQ("cmbC cmdZoekNamen vlakUitleg lstSpelers txtSpeler cmdKiesRVDspeler lstRVDsp "
              "txtRVDspeler ",
              MetTab(8));
    QTest::keyClick(venster.get(), Qt::Key_Z, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Regels("lstSpelers").empty(); }));
    EXPECT_EQ("lstSpelers", Focus());
    QTest::keyClick(venster->focusWidget(), Qt::Key_Down);
    EXPECT_EQ("als N03    Mieke Oudewortel-Quist", Vak("txtSpeler"));
    QTest::keyClick(venster->focusWidget(), Qt::Key_Up);
    EXPECT_EQ("als N02    Marleen Hijmanse", Vak("txtSpeler"));
    // Enter goes on to the register, at the player who bears the same name.
    QTest::keyClick(venster->focusWidget(), Qt::Key_Return);
    EXPECT_EQ("lstRVDsp", Focus());
    EXPECT_EQ("100090    Marleen Hijmanse", Vak("txtRVDspeler"));
    QTest::keyClick(venster->focusWidget(), Qt::Key_Return);
    EXPECT_EQ("cmdStartKoppelen", Focus());
    VerwachtVraag();
    wachter.Informatie(u"Speler Marleen Hijmanse is gekoppeld."_s);
    QTest::keyClick(venster->focusWidget(), Qt::Key_Space);
    QApplication::processEvents();
    wachter.Klaar();
    QTest::keyClick(venster.get(), Qt::Key_Escape);
    EXPECT_FALSE(venster->isVisible());
}

/// Files are not searched twice at a time, nor without the window.
TEST_F(Koppelvenster, ZoekenToontVoortgangEnIsTeStoppen)
{
    KiesCompetities();
    std::string gezien;
    const Voortgangstopper stopper(1, [&](frmVoortgang& voortgang) {
        gezien = Vind<QLabel>(voortgang, "lblTekst")->text().toStdString();
        QTest::mouseClick(
            venster->windowHandle(), Qt::LeftButton, {},
            Knop("cmdEinde")->mapTo(venster.get(), Knop("cmdEinde")->rect().center()));
        EXPECT_TRUE(venster->isVisible());
        Druk(voortgang, "cmdStop");
    });
    ASSERT_NO_FATAL_FAILURE(Zoek(Najaar));
    EXPECT_EQ("De zwevende spelers worden gezocht ...", gezien);
    EXPECT_EQ("Het zoeken is gestopt: niet alle zittingen zijn doorzocht.", Label("lblResultaat"));
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    EXPECT_TRUE(Knop("cmdZoekNamen")->isEnabled());
    Klik(Knop("cmdEinde"));
    EXPECT_FALSE(venster->isVisible());
}

TEST_F(Koppelvenster, KoppelenToontVoortgangMaarStoptNiet)
{
    KiesPaar(Dinsdag, "als O02    J", "100084");
    std::string gezien;
    const Voortgangstopper kijker(1, [&](frmVoortgang& voortgang) {
        gezien = Vind<QLabel>(voortgang, "lblTekst")->text().toStdString();
        EXPECT_EQ(nullptr, voortgang.findChild<QPushButton*>());
        voortgang.close();
        EXPECT_TRUE(voortgang.isVisible());
    });
    Koppel(u"Speler Jørgen Sørensgaard is gekoppeld."_s);
    EXPECT_EQ("De speler wordt gekoppeld ...", gezien);
}

#ifndef _WIN32

/// A folder as a program for another system unpacks it.
TEST_F(Koppelvenster, EenMapDieNaarEldersWijstWordtEenKeerGemeld)
{
    const std::string elders = "Zittingen/..\\Competities";
    std::filesystem::create_directory(suite.Weg() / elders);
    suite.Zet(elders + "/Zitdata.txt", "");
    suite.Zet("Competities/Zitdata.txt", "");
    wachter.Waarschuwing(
        u"Overgeslagen in de map hieronder: 1 naam, omdat er een teken in staat dat een naam in "
        "Ravendeck niet kan hebben, zoals '\\'. Er is niets gewijzigd. Geef wat u ervan nodig "
        "hebt, een andere naam.\n\nMap: %1\n..\\Competities"_s.arg(
            QString::fromStdString(suite.Toonpad("Zittingen"))));
    ASSERT_NO_FATAL_FAILURE(Open());
    wachter.Klaar();
    for (const std::string& sessie : Keuzes(Keus()))
        EXPECT_EQ(std::string::npos, sessie.find("Competities"));
    KiesCompetities();
    Deel<QRadioButton>("Option1")->click();
}

#endif

TEST_F(Koppelvenster, EenLijstDieTeGrootIsWordtGeweigerd)
{
    const std::string lijst = Zit("Spelers.txt");
    std::filesystem::resize_file(suite.Weg() / lijst, std::uintmax_t{200} << 20U);
    wachter.Waarschuwing(
        u"Fout bij het lezen van de zittingbestanden: de spelers uit het bestand hieronder staan "
        "niet in de lijst. Er is niets veranderd. Verhelp de oorzaak en probeer het opnieuw.\n\n"
        "Bestand: "_s +
        QString::fromStdString(suite.Toonpad(lijst)) +
        u"\nOorzaak: het bestand is te groot: meer dan 64 MB"_s);
    ASSERT_NO_FATAL_FAILURE(Zoek(Dinsdag));
}
