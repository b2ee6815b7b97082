// Backups before changes, and putting one back, in the main window.
#include <QAction>
#include <QTreeWidget>

#include "mainwindow/opstartproef.h"
#include "register/reservezip.h"
#include "register/tweedeplaats.h"

using namespace plexoran;

namespace {

const QString Mislukt_ =
    u"Er kon geen reservekopie worden gemaakt. De gegevens van de spelers zijn "
    "niet in gevaar en u kunt doorwerken."_s;

class Reserveproef : public HoofdvensterTest {
  protected:
    /// The reasons of the backups, the oldest first, and how many players each holds.
    [[nodiscard]] std::vector<std::string> Redenen()
    {
        std::vector<std::string> uit;
        const auto reserves = Reserves(echteSchijf, administratie.mappen).value();
        for (auto plek = reserves.rbegin(); plek != reserves.rend(); ++plek) {
            if (plek->kopie.IsZip())
                uit.push_back(plek->kopie.reden + " " + std::to_string(plek->spelers.value_or(-1)));
        }
        return uit;
    }
    void Terugzetten(std::function<void(QDialog&)> stappen)
    {
        wachter.Bedien(std::move(stappen));
        venster->findChild<QAction*>(u"actTerugzetten"_s)->trigger();
        wachter.Klaar();
    }
};

/// All players of the newest backup come back.
void AllesTerug(QDialog& dialoog)
{
    Druk(dialoog, "cmdAlles");
    Druk(dialoog, "cmdTerugzetten");
}

using Teksten = std::vector<std::string>;

} // namespace

TEST_F(Reserveproef, VoorDeEersteWijzigingEnDaarnaNietMeer)
{
    EXPECT_EQ(Redenen(), Teksten());
    VoegToe(u"Een"_s);
    EXPECT_EQ(Redenen(), Teksten{"voor eerste wijziging 148"}) << "as it was before";
    VoegToe(u"Twee"_s);
    EXPECT_EQ(Redenen().size(), 1U);
    Herstart();
    EXPECT_EQ(Redenen().size(), 1U) << "a start changes nothing";
    VoegToe(u"Drie"_s);
    EXPECT_EQ(Redenen(), (Teksten{"voor eerste wijziging 148", "voor eerste wijziging 150"}));
}

TEST_F(Reserveproef, OokVoorGroepsnamenEnParen)
{
    const std::string groepen = suite.Groepen();
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Druk(namen, "cmdOK");
    });
    Opdracht("cmdMaakGrNamen");
    EXPECT_EQ(Redenen(), Teksten{"voor eerste wijziging 148"});
    const auto reserves = Reserves(echteSchijf, administratie.mappen).value();
    const auto delen = LeesReserve(echteSchijf, administratie.mappen, reserves[0].kopie).value();
    EXPECT_EQ(delen.at(1), (Zipdeel{"RVDGroepen.txt", groepen}));
    Herstart();
    Opdracht("cmdParenOnderhoud", [](QDialog& paren) { paren.reject(); });
    EXPECT_EQ(Redenen().size(), 2U);
}

TEST_F(Reserveproef, VoorHetVerwijderenVanMeerDanEen)
{
    VoegToe(u"Een"_s);
    KiesRegel(1);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Informatie(u"De regel is verwijderd."_s);
    Opdracht("cmdVerwijder");
    EXPECT_EQ(Redenen().size(), 1U) << "one player";
    Keus("cmbVerwTot")->setCurrentIndex(2);
    wachter.Verwacht({.tekst = u"\t\tLET OP!"_s, .titel = u"Verwijderen"_s, .alleenBegin = true});
    wachter.Informatie(u"De regels zijn verwijderd."_s);
    Opdracht("cmdVerwijderVT");
    EXPECT_EQ(Redenen(), (Teksten{"voor eerste wijziging 148", "voor verwijderen 148"}));
}

TEST_F(Reserveproef, VoorHetVerwijderenVanEenSubgroep)
{
    KiesGroep(3);
    wachter.Bedien([](QDialog& dialoog) {
        KiesUit(Vind<QComboBox>(dialoog, "cmbRVDgr"), 2);
        Druk(dialoog, "cmdVerwijder");
        Druk(dialoog, "cmdEinde");
    });
    wachter.Verwacht({.tekst = u"U gaat alle spelers van Subgroep 'BEGINNERS'"_s,
                      .titel = u"Verwijderen?"_s,
                      .alleenBegin = true});
    wachter.Informatie(u"Klaar! \r\nEr zijn 4 speler(s) verwijderd."_s);
    Opdracht("cmdVerwGroep");
    EXPECT_EQ(Redenen(), Teksten{"voor verwijderen 148"});
}

TEST_F(Reserveproef, VoorHetKoppelenMaarNietVoorEenBlik)
{
    KiesGroep(5);
    const auto zoek = [](QDialog& dialoog) {
        Vind<QComboBox>(dialoog, "cmbC")->setCurrentText(u"Dinsdagavond 2024-09-10"_s);
        Druk(dialoog, "cmdZoekNamen");
        KlikRegel(dialoog, "lstSpelers", std::string("als O02    J"));
        KlikRegel(dialoog, "lstRVDsp", std::string("100084"));
    };
    Opdracht("cmdKoppel", [&](QDialog& dialoog) {
        zoek(dialoog);
        dialoog.reject();
    });
    EXPECT_EQ(Redenen(), Teksten());
    wachter.Bedien([&](QDialog& dialoog) {
        zoek(dialoog);
        Druk(dialoog, "cmdStartKoppelen");
        dialoog.reject();
    });
    wachter.Begin(u"De zwevende speler krijgt nu zijn RVD-nummer"_s, QMessageBox::Information);
    wachter.Begin(u"Speler J"_s, QMessageBox::Information);
    Opdracht("cmdKoppel");
    EXPECT_EQ(Redenen(), Teksten{"voor koppelen 148"});
}

TEST_F(Reserveproef, TerugzettenIsEenWijzigingDieWordtOpgeslagen)
{
    const std::string oud = suite.Spelers();
    VoegToe(u"Een"_s);
    const std::string nieuw = suite.Spelers();
    EXPECT_EQ("Aantal regels: 51", Aantal());
    Terugzetten(AllesTerug);
    EXPECT_EQ("Aantal regels: 50", Aantal());
    EXPECT_EQ("Reservekopie teruggezet", Label("lblMelding")->text().toStdString());
    EXPECT_EQ(Redenen(), (Teksten{"voor eerste wijziging 148", "voor terugzetten 149"}));
    EXPECT_EQ(RegelsVan(suite.Spelers()).size(), RegelsVan(oud).size());
    EXPECT_EQ(RegelsVan(suite.Spelers()).at(0), RegelsVan(nieuw).at(0)) << "HKEY= stays up";
    Terugzetten(AllesTerug); // and back again from the backup that was made before
    EXPECT_EQ(suite.Spelers(), nieuw);
    EXPECT_EQ(51, GekozenRegel()) << "who came back is chosen";
}

TEST_F(Reserveproef, TerugzettenIsInEensOngedaanTeMaken)
{
    VoegToe(u"Een"_s);
    VoegToe(u"Twee"_s);
    const std::string nieuw = suite.Spelers();
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Druk(namen, "cmdOK");
    });
    Opdracht("cmdMaakGrNamen");
    const std::string groepen = suite.Groepen();
    Terugzetten([](QDialog& dialoog) {
        Vind<QCheckBox>(dialoog, "chkOokGroepen")->click();
        AllesTerug(dialoog);
    });
    EXPECT_NE(suite.Spelers(), nieuw);
    EXPECT_NE(suite.Groepen(), groepen);
    venster->findChild<QAction*>(u"actOngedaan"_s)->trigger();
    wachter.Klaar();
    EXPECT_EQ(suite.Spelers(), nieuw);
    EXPECT_EQ(suite.Groepen(), groepen);
}

TEST_F(Reserveproef, ZonderKeuzeVerandertErNiets)
{
    VoegToe(u"Een"_s);
    const std::string nieuw = suite.Spelers();
    Terugzetten([](QDialog& dialoog) {
        Druk(dialoog, "cmdAlles");
        Druk(dialoog, "cmdSluiten");
    });
    EXPECT_EQ(suite.Spelers(), nieuw);
    EXPECT_EQ(Redenen().size(), 1U);
}

TEST_F(Reserveproef, OokGroepsnamenEnParenNaEenKopie)
{
    const std::string paren = suite.Inhoud("Spelers/Parenmap/Gr02-.txt");
    ASSERT_TRUE(MaakReservezip(echteSchijf, administratie.mappen, "voor import"));
    const Tekst groepen = suite.Groepen();
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Druk(namen, "cmdOK");
    });
    Opdracht("cmdMaakGrNamen");
    suite.Zet("Spelers/Parenmap/Gr02-.txt", "anders");
    Terugzetten([](QDialog& dialoog) {
        auto* lijst = Vind<QTreeWidget>(dialoog, "lstReserves");
        lijst->setCurrentItem(lijst->topLevelItem(lijst->topLevelItemCount() - 1));
        Vind<QCheckBox>(dialoog, "chkOokGroepen")->click();
        Druk(dialoog, "cmdTerugzetten");
    });
    EXPECT_EQ(suite.Groepen(), groepen);
    EXPECT_EQ(suite.Inhoud("Spelers/Parenmap/Gr02-.txt"), paren);
    EXPECT_EQ("Gr11-", Keus("cmbGr")->itemText(10).toStdString()) << "on the screen too";
    int kopieen = 0;
    for (const std::string& naam : suite.Namen("Spelers/Reservekopie"))
        kopieen += naam.starts_with("RVDGroepen ") || naam.starts_with("Gr02- ") ? 1 : 0;
    EXPECT_EQ(kopieen, 2);
}

TEST_F(Reserveproef, GroepsnamenDieNietTerugKunnenWordenGemeld)
{
    ASSERT_TRUE(MaakReservezip(echteSchijf, administratie.mappen, "voor import"));
    wachter.Bedien([](QDialog& namen) {
        Schrijf(namen, "txt1_11", u"Nieuw"_s);
        Druk(namen, "cmdOK");
    });
    Opdracht("cmdMaakGrNamen");
    const std::string nieuw = suite.Groepen();
    wachter.Bedien([this](QDialog& dialoog) {
        auto* lijst = Vind<QTreeWidget>(dialoog, "lstReserves");
        lijst->setCurrentItem(lijst->topLevelItem(lijst->topLevelItemCount() - 1));
        Vind<QCheckBox>(dialoog, "chkOokGroepen")->click();
        schijf.Vooraf([](const Pad& pad) { return pad.find("RVDGroepen") == Pad::npos; });
        Druk(dialoog, "cmdTerugzetten");
    });
    wachter.Begin(
        u"De groepsnamen en paren zijn niet allemaal teruggezet: bij het bestand hieronder "
        "ging het mis."_s);
    venster->findChild<QAction*>(u"actTerugzetten"_s)->trigger();
    wachter.Klaar();
    schijf.Vooraf({});
    EXPECT_EQ(suite.Groepen(), nieuw);
}

TEST_F(Reserveproef, BijElkeStapVanTerugzettenDieMisluktKomenDeSpelersTerug)
{
    const std::string groepen = suite.Groepen();
    const std::size_t regels = RegelsVan(suite.Spelers()).size();
    int gemeld = 0;
    for (int stap = 1; stap <= 40; ++stap) {
        SCOPED_TRACE(stap);
        suite.Verwijder("Spelers/Reservekopie");
        ASSERT_TRUE(MaakReservezip(echteSchijf, administratie.mappen, "voor import"));
        VoegToe(u"Een"_s);
        const std::string anders = RegelsVan(groepen).at(0) + " en meer\r\n";
        suite.Zet("Spelers/RVDGroepen.txt", anders);
        wachter.LaatBeslissen([&](const QMessageBox& bericht) {
            ++gemeld;
            const bool opslag = bericht.text().startsWith(u"De spelers konden niet"_s);
            return opslag ? u"Opnieuw proberen"_s : u"OK"_s;
        });
        Terugzetten([&](QDialog& dialoog) {
            auto* lijst = Vind<QTreeWidget>(dialoog, "lstReserves");
            lijst->setCurrentItem(lijst->topLevelItem(lijst->topLevelItemCount() - 1));
            Vind<QCheckBox>(dialoog, "chkOokGroepen")->click();
            Druk(dialoog, "cmdAlles");
            schijf.FaalBij(stap);
            Druk(dialoog, "cmdTerugzetten");
        });
        schijf.FaalNiet();
        EXPECT_EQ(RegelsVan(suite.Spelers()).size(), regels);
        EXPECT_TRUE(suite.Groepen() == groepen || suite.Groepen() == anders) << suite.Groepen();
        EXPECT_FALSE(venster->isWindowModified());
        suite.Zet("Spelers/RVDGroepen.txt", groepen);
        wachter.LaatBeslissen({});
    }
    EXPECT_GE(gemeld, 10);
}

TEST_F(Reserveproef, EenMislukteReserveHoudtNietsOpEnWordtEenKeerGemeld)
{
    schijf.Vooraf([](const Pad& pad) { return pad.find(".zip") == Pad::npos; });
    VerwachtIngave(u"Een"_s);
    wachter.Begin(Mislukt_);
    Opdracht("cmdAanm");
    VoegToe(u"Twee"_s);
    EXPECT_EQ(Redenen(), Teksten());
    EXPECT_EQ("Aantal regels: 52", Aantal());
    EXPECT_EQ(RegelsVan(suite.Spelers()).size(), 151U);
    schijf.Vooraf({});
    VoegToe(u"Drie"_s);
    EXPECT_EQ(Redenen(), Teksten{"voor eerste wijziging 150"}) << "tried again, quietly";
}

TEST_F(Reserveproef, BijElkeStapDieMisluktWordtErOpgeslagen)
{
    for (int stap = 1; stap <= 30; ++stap) {
        SCOPED_TRACE(stap);
        Herstart();
        const std::size_t regels = RegelsVan(suite.Spelers()).size();
        schijf.FaalBij(stap);
        // Whatever fails, it is the backup, the save with its choice, or a remark after it.
        wachter.LaatBeslissen([](const QMessageBox& bericht) {
            return bericht.text().startsWith(u"De spelers konden niet"_s) ? u"Opnieuw proberen"_s
                                                                          : u"OK"_s;
        });
        VoegToe(u"Een"_s);
        wachter.LaatBeslissen({});
        schijf.FaalNiet();
        EXPECT_EQ(RegelsVan(suite.Spelers()).size(), regels + 1);
        EXPECT_FALSE(venster->isWindowModified());
    }
}

TEST_F(Reserveproef, DeTweedePlaatsKrijgtDeNieuwsteEnEenRegelZegtDatHijWegIs)
{
    const TijdelijkeMap elders;
    administratie.tweedeplaatsIni = Samen(elders.AlsPad(), "reservekopie.ini");
    const Pad stick = Samen(elders.AlsPad(), "stick");
    ASSERT_TRUE(
        BewaarTweedeplaats(echteSchijf, administratie.tweedeplaatsIni, {stick, "2020-01-01"}));
    VoegToe(u"Een"_s);
    Herstart();
    EXPECT_EQ(Label("lblTweedePlaats")->text().left(37),
              u"De tweede plaats voor reservekopieën "_s);
    ASSERT_TRUE(echteSchijf.MaakMap(stick));
    VoegToe(u"Twee"_s);
    EXPECT_EQ(echteSchijf.Bestanden(stick).value().size(), 1U);
    Herstart();
    EXPECT_EQ(venster->findChild<QLabel*>(u"lblTweedePlaats"_s), nullptr);
}

// ---- Offered at the start -----------------------------------------------------------------------

namespace {

const QString erZijnReserves =
    u"Er zijn reservekopieën met spelers. Wilt u kijken of u er een terugzet? Er verandert niets "
    "voordat u daarin op Terugzetten drukt."_s;
const std::string goed = "HKEY=100002\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n" +
                         Speler("2", "100002", "Gr01-", "Cock") + "\r\n";

class Aanbod : public Opstartproef {
  protected:
    void ZetReserve(const std::string& spelers = goed, const std::string& telling = "spelers=2")
    {
        geheugen.Zet(
            "C:\\RVD\\Spelers\\Reservekopie\\2026-11-21 142233 voor import.zip",
            ZipVan({{"RVDspelers.txt", spelers}, {"RVDGroepen.txt", "Gr01-Toen\r\n"}}, telling)
                .value());
    }
    void VerwachtVraag(const QString& antwoord)
    {
        wachter.Verwacht({.tekst = erZijnReserves,
                          .antwoord = antwoord,
                          .icoon = QMessageBox::Question,
                          .knoppen = {u"Reservekopieën bekijken"_s, u"Zo verdergaan"_s}});
    }
    /// Somebody else has the register open.
    void ZetAndere()
    {
        geheugen.Zet("C:\\RVD\\Spelers\\Aanwezig Kamer wil.txt",
                     "Kamer 2\r\nwil\r\n02-11-2026 19:04\r\n");
    }
    void VerwachtAndere(const QString& antwoord)
    {
        wachter.Begin(u"Er werkt al iemand met deze administratie:"_s, QMessageBox::Warning,
                      antwoord);
    }
};

} // namespace

TEST_F(Aanbod, EenVerdwenenRegisterKomtTerugInPlaatsVanEenLeegRooster)
{
    ZetReserve();
    VerwachtVraag(u"Reservekopieën bekijken"_s);
    wachter.Bedien(AllesTerug);
    Start();
    EXPECT_EQ("Aantal regels: 2", Aantal());
    EXPECT_EQ(Spelers(), goed);
}

TEST_F(Aanbod, EenBeschadigdRegisterKomtTerugNaEenKopie)
{
    ZetReserve();
    ZetSpelers("HKEY=100002\r\n1,100001,Gr0");
    wachter.Waarschuwing(isNogLeeg);
    wachter.Begin(u"Het spelerbestand is niet tot het einde gelezen"_s, QMessageBox::Information);
    VerwachtVraag(u"Reservekopieën bekijken"_s);
    wachter.Bedien([](QDialog& dialoog) {
        Vind<QCheckBox>(dialoog, "chkOokGroepen")->click();
        AllesTerug(dialoog);
    });
    Start();
    EXPECT_EQ("Aantal regels: 2", Aantal());
    EXPECT_EQ(Spelers(), goed);
    EXPECT_EQ("Gr01-Toen", Keus("cmbGr")->itemText(0).toStdString());
    EXPECT_EQ(Kopieen("RVDspelers"), std::vector<Tekst>{"HKEY=100002\r\n1,100001,Gr0"});
}

TEST_F(Aanbod, WieZoVerdergaatHoudtWatErIs)
{
    ZetReserve();
    ZetSpelers("HKEY=100002\r\n");
    VerwachtVraag(u"Zo verdergaan"_s);
    Start();
    EXPECT_EQ("Aantal regels: 0", Aantal());
    EXPECT_EQ(Spelers(), "HKEY=100002\r\n");
}

TEST_F(Aanbod, GeenVraagZonderBruikbareReserveOfMetEenGoedRegister)
{
    ZetReserve("HKEY=100002\r\n", "spelers=0");
    Lees();
    BeginOpnieuw();
    ZetReserve();
    ZetSpelers(goed);
    Lees();
}

TEST_F(Aanbod, WieSamenwerktWeetEerstWieErIs)
{
    ZetReserve();
    ZetAndere();
    VerwachtAndere(u"Samenwerken"_s);
    VerwachtVraag(u"Zo verdergaan"_s);
    Start();
}

TEST_F(Aanbod, WieStoptKrijgtGeenVraagMeer)
{
    ZetReserve();
    ZetAndere();
    VerwachtAndere(u"Stoppen"_s);
    EXPECT_EQ(0, Laad());
    EXPECT_EQ(Spelers(), std::nullopt);
}

TEST_F(Aanbod, WieAlleenKijktKrijgtGeenVraagEnMaaktNiets)
{
    const std::string kapot =
        "HKEY=100001\r\n1,100002,Gr01-,,,Bos,,,,,,,V,,,,,\r\n1,100001,G,,,Cock";
    ZetReserve();
    ZetAndere();
    ZetSpelers(kapot);
    ZetGroepen("   \r\nGr01-Clubleden\r\n");
    const std::size_t bestanden = geheugen.AlleBestanden().size();
    VerwachtAndere(u"Alleen kijken"_s);
    wachter.Begin(u"Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn"_s,
                  QMessageBox::Information);
    VerwachtNietTotHetEinde(1, 6, 3);
    Start();
    EXPECT_EQ("Aantal regels: 1", Aantal());
    EXPECT_EQ(Spelers(), kapot);
    EXPECT_EQ(Groepen(), "   \r\nGr01-Clubleden\r\n");
    EXPECT_EQ(geheugen.AlleBestanden().size(), bestanden);
}
