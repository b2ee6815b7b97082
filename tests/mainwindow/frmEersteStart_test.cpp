// The window of the first start, worked by mouse and by keys, and the start in which it comes.
#include <QFileDialog>
#include <QListWidget>
#include <QRadioButton>

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "mainwindow/frmEersteStart.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/schijf/systeempad.h"

using namespace plexoran;
namespace fs = std::filesystem;

namespace {

using Bestandenlijst = std::map<std::string, std::string>;

std::string Lees(const fs::path& pad)
{
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

/// Every file below a folder by its name in it.
Bestandenlijst Alles(const fs::path& map)
{
    Bestandenlijst uit;
    for (const auto& plek : fs::recursive_directory_iterator(map)) {
        if (plek.is_regular_file())
            uit[plek.path().lexically_relative(map).generic_string()] = Lees(plek.path());
    }
    return uit;
}

/// A home folder with documents in it.
struct Thuis : Mapstand {
    Thuis() { fs::create_directories(map.Weg() / "Documenten"); }

    [[nodiscard]] fs::path In(const std::string& naam) const
    {
        return map.Weg() / "Documenten" / naam;
    }
    [[nodiscard]] Pad Als(const std::string& naam) const { return PadVan(In(naam)); }
    void ZetSuite(const std::string& naam) const
    {
        for (const char* deel : {"Spelers", "Admin", "Bestanden"})
            fs::create_directories(In(naam) / deel);
        map.Zet(fs::path("Documenten") / naam / "Mappen.ini",
                NieuweMappenIni(Als(naam), Als(naam) + "\\Spelers"));
    }
    [[nodiscard]] Pad Onthouden()
    {
        const Pad pad = StartMappenIni(echteSchijf, programma, omgeving.ini);
        return pad == MappenIniPad(programma) ? Pad() : pad;
    }

    const Pad wortel = PadVan(map.Weg());
    const Pad programma = wortel + "\\bin";
    const Startomgeving omgeving{.ini = wortel + "\\.config\\plexoran\\suite.ini",
                                 .documenten = wortel + "\\Documenten",
                                 .zoekplaatsen = {{wortel + "\\Documenten", 2}}};
};

class frmEersteStartTest : public Dialoogproef<frmEersteStart, Thuis> {
  protected:
    void Open() { Toon(schijf, omgeving); }
    void Kies(const char* optie) const { Klik(Deel<QRadioButton>(optie), {8, 8}); }
    void VulClub(const QString& naam) const { Schrijf(*venster, "txtClub", naam); }
    void Enter() const { QTest::keyClick(venster->focusWidget(), Qt::Key_Return); }
    /// That it closed with this choice, which is remembered.
    void VerwachtKeus(const fs::path& mappenIni)
    {
        wachter.Klaar();
        EXPECT_EQ(QDialog::Accepted, venster->result());
        EXPECT_FALSE(venster->isVisible());
        EXPECT_EQ(schijf.Toonpad(Onthouden()), mappenIni.string());
        EXPECT_EQ(Onthouden(), venster->MappenIni());
    }
    void VerwachtNietsVeranderd(const Bestandenlijst& was)
    {
        wachter.Klaar();
        EXPECT_TRUE(venster->isVisible());
        EXPECT_EQ(was, Alles(map.Weg()));
        EXPECT_EQ("", Onthouden());
    }
    void VerwachtBestandskeus(const fs::path& pad, const QString& titel)
    {
        wachter.Bedien([pad, titel](QDialog& dialoog) {
            auto& keuze = dynamic_cast<QFileDialog&>(dialoog);
            EXPECT_EQ("CommonDialog1", keuze.objectName());
            EXPECT_EQ(titel, keuze.windowTitle());
            Vind<QLineEdit>(keuze, "fileNameEdit")->setText(QString::fromStdString(pad.string()));
            QMetaObject::invokeMethod(&keuze, "accept");
        });
    }
    void VerwachtVraag(const QString& wat, const QString& waar, const QString& antwoord)
    {
        wachter.Verwacht({.tekst = u"In deze map staat al %1. Dat wordt niet overschreven. Wilt u "
                                   "ermee verder?\n\nMap: %2"_s.arg(wat, waar),
                          .antwoord = antwoord,
                          .icoon = QMessageBox::Question,
                          .knoppen = {u"Ermee verder"_s, u"Annuleren"_s}});
    }
    [[nodiscard]] QString Toon_(const std::string& naam) const
    {
        return QString::fromStdString(In(naam).string());
    }
};

} // namespace

// ---- The three ways ---------------------------------------------------------------------------

TEST_F(frmEersteStartTest, NoemtDeDrieManieren)
{
    Open();
    VerwachtTeksten(
        "Administratie kiezen",
        {{"Label1", "Plexoran werkt met een administratie: een map met de spelers van uw club en "
                    "een bestand 'Mappen.ini'. Hoe wilt u beginnen?"},
         {"lblOefenen",
          "Met verzonnen spelers, in de map 'Plexoran oefenclub' bij uw documenten."}},
        {{"optBestaand", "Een bestaande suite kiezen"},
         {"cmdBladeren", "Bladeren..."},
         {"optNieuw", "Een nieuwe administratie maken"},
         {"cmdMap", "Andere map..."},
         {"optOefenen", "Eerst oefenen"},
         {"cmdVerder", "Verder"},
         {"cmdStoppen", "Stoppen"}});
    EXPECT_TRUE(Deel<QRadioButton>("optNieuw")->isChecked()) << "er is niets gevonden";
    EXPECT_FALSE(Deel<QListWidget>("lstSuites")->isEnabled());
}

TEST_F(frmEersteStartTest, NieuweAdministratieMetAlleenToetsen)
{
    Open();
    EXPECT_EQ("optNieuw", venster->focusWidget()->objectName().toStdString());
    EXPECT_EQ("txtClub txtPlaats cmdMap cmdVerder cmdStoppen optNieuw txtClub ", MetTab(7));
    Typ(venster->focusWidget(), u"  Café Zuid "_s);
    EXPECT_EQ(In("Café Zuid").string(), Vak("txtPlaats"));
    Enter();
    VerwachtKeus(In("Café Zuid") / "Mappen.ini");
    EXPECT_EQ("Caf\xE9 Zuid\r\n", Lees(In("Café Zuid") / "Puntenboek/Rev_Clubnaam.txt"));
    EXPECT_EQ(GroepenTekst(Groepen()), Lees(In("Café Zuid") / "Spelers/RVDGroepen.txt"));
    EXPECT_TRUE(LeesMappenIni(echteSchijf, venster->MappenIni()));
}

TEST_F(frmEersteStartTest, EenGevondenSuiteStaatKlaarVoorEnter)
{
    ZetSuite("Bridge");
    ZetSuite("Club/Oud");
    Open();
    EXPECT_TRUE(Deel<QRadioButton>("optBestaand")->isChecked());
    EXPECT_EQ((std::vector<std::string>{(In("Bridge") / "Mappen.ini").string(),
                                        (In("Club/Oud") / "Mappen.ini").string()}),
              Regels("lstSuites"));
    Deel<QListWidget>("lstSuites")->setFocus();
    QTest::keyClick(Deel<QListWidget>("lstSuites"), Qt::Key_Down);
    Enter();
    VerwachtKeus(In("Club/Oud") / "Mappen.ini");
    Open();
    KlikRegel("lstSuites", 0);
    Klik(Knop("cmdVerder"));
    VerwachtKeus(In("Bridge") / "Mappen.ini");
}

TEST_F(frmEersteStartTest, EenSuiteDieErgensAndersStaatWordtAangewezen)
{
    map.Zet("Mappen.ini", "SPEMAP=" + wortel + "\r\n");
    Open();
    Kies("optBestaand");
    wachter.Informatie(
        u"Kies een administratie uit de lijst, of zoek met Bladeren het bestand 'Mappen.ini'. Er is nog niets veranderd."_s);
    Klik(Knop("cmdVerder"));
    VerwachtBestandskeus(map.Weg() / "Mappen.ini",
                         u"Kies het bestand 'Mappen.ini' van de administratie"_s);
    Opdracht("cmdBladeren");
    Klik(Knop("cmdVerder"));
    VerwachtKeus(map.Weg() / "Mappen.ini");
}

TEST_F(frmEersteStartTest, EenAangewezenBestandDatGeenSpelersmapNoemtWordtGeweigerd)
{
    map.Zet("Mappen.ini", "RVDMAP=x\r\n");
    const auto was = Alles(map.Weg());
    Open();
    Kies("optBestaand");
    VerwachtBestandskeus(map.Weg() / "Mappen.ini",
                         u"Kies het bestand 'Mappen.ini' van de administratie"_s);
    Opdracht("cmdBladeren");
    wachter.Begin(u"Met dit bestand kan Plexoran niet beginnen: het is niet te lezen, of er staat "
                  "geen map achter SPEMAP=. Er is niets veranderd. Kies een ander.\n\n"_s);
    Klik(Knop("cmdVerder"));
    VerwachtNietsVeranderd(was);
}

TEST_F(frmEersteStartTest, DeOefenclubIsHetHeleVoorbeeld)
{
    Open();
    Kies("optOefenen");
    Klik(Knop("cmdVerder"));
    VerwachtKeus(In("Plexoran oefenclub") / "Mappen.ini");
    Bestandenlijst moet = Alles(VOORBEELD);
    ASSERT_EQ(2U, std::erase_if(
                      moet, [](const auto& deel) { return deel.first.ends_with(".sjabloon"); }));
    // That of the template, as the rules are tested.
    moet["Mappen.ini"] =
        NieuweMappenIni(Als("Plexoran oefenclub"), Als("Plexoran oefenclub") + "\\Spelers");
    EXPECT_EQ(moet, Alles(In("Plexoran oefenclub")));
    EXPECT_TRUE(fs::is_directory(In("Plexoran oefenclub") / "Indelingen"));
}

TEST_F(frmEersteStartTest, EenOefenclubDieErIsWordtAangebodenEnNooitOverschreven)
{
    const auto oefen = [&](const QString& antwoord) {
        Open();
        Kies("optOefenen");
        if (!antwoord.isEmpty())
            wachter.Verwacht(
                {.tekst = u"Er is al een oefenclub. Wilt u daarmee verder, of met een nieuwe "
                          "beginnen?\n\nMap: "_s +
                          Toon_("Plexoran oefenclub 2"),
                 .antwoord = antwoord,
                 .icoon = QMessageBox::Question,
                 .knoppen = {u"Verder oefenen"_s, u"Nieuwe oefenclub"_s, u"Annuleren"_s}});
        Klik(Knop("cmdVerder"));
        wachter.Klaar();
    };
    map.Zet("Documenten/Plexoran oefenclub", "van een ander");
    oefen({});
    VerwachtKeus(In("Plexoran oefenclub 2") / "Mappen.ini");
    map.Zet("Documenten/Plexoran oefenclub 2/Spelers/RVDspelers.txt", "geoefend");
    oefen(u"Annuleren"_s);
    EXPECT_TRUE(venster->isVisible());
    oefen(u"Verder oefenen"_s);
    VerwachtKeus(In("Plexoran oefenclub 2") / "Mappen.ini");
    EXPECT_EQ("geoefend", Lees(In("Plexoran oefenclub 2") / "Spelers/RVDspelers.txt"));
    oefen(u"Nieuwe oefenclub"_s);
    VerwachtKeus(In("Plexoran oefenclub 3") / "Mappen.ini");
    EXPECT_EQ("van een ander", Lees(In("Plexoran oefenclub")));
}

/// From the menu of a program that runs.
TEST_F(frmEersteStartTest, WatOpenIsStaatGekozenEnDeKnopHeetAnnuleren)
{
    ZetSuite("Bridge");
    ZetSuite("Zuid");
    for (const Pad& open : {Als("Bridge") + "\\Mappen.ini", wortel + "\\Elders\\Mappen.ini"}) {
        venster = std::make_unique<frmEersteStart>(schijf, omgeving, &hoofd, open);
        ToonHet();
        EXPECT_EQ("Annuleren", Opschrift(Knop("cmdStoppen")));
        EXPECT_EQ(schijf.Toonpad(open),
                  Deel<QListWidget>("lstSuites")->currentItem()->text().toStdString());
        EXPECT_TRUE(Deel<QRadioButton>("optBestaand")->isChecked());
    }
}

TEST_F(frmEersteStartTest, EenMapDieDeSuiteNietKanSchrijvenWordtNietVoorgesteld)
{
    const QString thuis = QString::fromStdString(map.Weg().string());
    EXPECT_EQ(Als("Clubs"), EersteBruikbare({thuis + u"/Жан/Documenten"_s,
                                             thuis + u"/Documenten/Clubs"_s, thuis}))
        << "it need not be there yet";
    fs::create_directory(In("Dicht"));
    fs::permissions(In("Dicht"), fs::perms::none);
    const Pad gevonden = EersteBruikbare({thuis + u"/Documenten/Dicht"_s, thuis});
    EXPECT_TRUE(gevonden == PadVan(map.Weg()) ||
                QFileInfo(thuis + u"/Documenten/Dicht"_s).isWritable());
    fs::permissions(In("Dicht"), fs::perms::owner_all);
    EXPECT_EQ(PadVan(map.Weg() / "Жан"), EersteBruikbare({thuis + u"/Жан"_s}));
}

// ---- What goes wrong --------------------------------------------------------------------------

TEST_F(frmEersteStartTest, WieStoptVerandertNiets)
{
    ZetSuite("Bridge");
    const auto was = Alles(map.Weg());
    for (int weg = 0; weg < Sluitwegen; ++weg) {
        Open();
        Sluit(weg, "cmdStoppen");
        EXPECT_EQ(QDialog::Rejected, venster->result());
        EXPECT_EQ(was, Alles(map.Weg()));
    }
}

TEST_F(frmEersteStartTest, EenNaamDieNietKanWordtGezegd)
{
    const auto was = Alles(map.Weg());
    Open();
    const auto weigert = [&](const QString& naam, const QString& bericht) {
        VulClub(naam);
        wachter.Begin(bericht);
        Enter();
        VerwachtNietsVeranderd(was);
    };
    Deel<QRadioButton>("optNieuw")->setFocus();
    wachter.Begin(u"Vul de naam van uw club in."_s);
    Klik(Knop("cmdVerder"));
    EXPECT_EQ("txtClub", venster->focusWidget()->objectName().toStdString());
    weigert({}, u"Vul de naam van uw club in. Er is nog niets gemaakt."_s);
    weigert(u"  "_s, u"Vul de naam van uw club in."_s);
    weigert(u"Zuid/Oost"_s,
            u"In de naam van uw club kan dit niet staan, want die krijgt ook de map: /\n\nKies een "
            "andere naam."_s);
    weigert(QString(200, u'x'), u"De naam van de map is te lang: "_s);
    for (int teken = 0; teken < 2; ++teken)
        wachter.Begin(u"Dit teken kan niet worden opgeslagen."_s);
    VulClub(u"Győr Ж"_s);
    EXPECT_EQ("Gyor ", Vak("txtClub")) << "wat de suite niet kent, komt er niet in";
}

TEST_F(frmEersteStartTest, EenMapMetTekensBuitenDeCodetabelWordtGeweigerd)
{
    fs::create_directory(In("Жан"));
    Open();
    VulClub(u"Zuid"_s);
    VerwachtBestandskeus(In("Жан"), u"Kies waar de map van de administratie komt"_s);
    wachter.Begin(u"In deze naam staan tekens die de programma's van de suite niet kennen"_s);
    Opdracht("cmdMap");
    EXPECT_EQ(In("Zuid").string(), Vak("txtPlaats"));
    fs::create_directory(In("Clubs"));
    VerwachtBestandskeus(In("Clubs"), u"Kies waar de map van de administratie komt"_s);
    Opdracht("cmdMap");
    EXPECT_EQ((In("Clubs") / "Zuid").string(), Vak("txtPlaats"));
    Klik(Knop("cmdVerder"));
    VerwachtKeus(In("Clubs") / "Zuid" / "Mappen.ini");
}

TEST_F(frmEersteStartTest, WatErAlStaatWordtNietOverschrevenMaarAangeboden)
{
    ZetSuite("Zuid");
    map.Zet("Documenten/Zuid/Mappen.ini", "SPEMAP=" + Als("Zuid") + "\r\nEIGEN=ja\r\n");
    fs::create_directories(In("Noord/Spelers"));
    map.Zet("Documenten/Noord/Spelers/RVDspelers.txt", "HKEY=100000\r\n");
    map.Zet("Documenten/Noord/Spelers/RVDGroepen.txt", "Gr01-Noord\r\n");
    const auto was = Alles(map.Weg());
    Open();
    Kies("optNieuw");
    for (const auto& [club, wat] :
         {std::pair{"Zuid", u"een administratie"_s}, std::pair{"Noord", u"een spelerbestand"_s}}) {
        VulClub(QString::fromLatin1(club));
        VerwachtVraag(wat, Toon_(club), u"Annuleren"_s);
        Enter();
        VerwachtNietsVeranderd(was);
    }
    VerwachtVraag(u"een spelerbestand"_s, Toon_("Noord"), u"Ermee verder"_s);
    Enter();
    VerwachtKeus(In("Noord") / "Mappen.ini");
    EXPECT_EQ("Gr01-Noord\r\n", Lees(In("Noord/Spelers/RVDGroepen.txt")));
    EXPECT_EQ("HKEY=100000\r\n", Lees(In("Noord/Spelers/RVDspelers.txt")));
    Open();
    Kies("optNieuw");
    VulClub(u"Zuid"_s);
    VerwachtVraag(u"een administratie"_s, Toon_("Zuid"), u"Ermee verder"_s);
    Enter();
    VerwachtKeus(In("Zuid") / "Mappen.ini");
    EXPECT_EQ("SPEMAP=" + Als("Zuid") + "\r\nEIGEN=ja\r\n", Lees(In("Zuid/Mappen.ini")));
}

TEST_F(frmEersteStartTest, InDeMapVanEenSuiteKomtGeenTweede)
{
    map.Zet("Documenten/RVDspelers.txt", "HKEY=100000\r\n");
    Open();
    VulClub(u"Zuid"_s);
    VerwachtVraag(u"een spelerbestand"_s,
                  QString::fromStdString((map.Weg() / "Documenten").string()), u"Ermee verder"_s);
    Enter();
    VerwachtKeus(In("Mappen.ini"));
    EXPECT_EQ(omgeving.documenten, LeesMappenIni(schijf, Onthouden())->SPEMAP);
    EXPECT_EQ("HKEY=100000\r\n", Lees(In("RVDspelers.txt")));
}

TEST_F(frmEersteStartTest, EenSchijfDieWeigertLaatNietsHalfGemaaktsStaan)
{
    const auto was = Alles(map.Weg());
    for (const char* optie : {"optNieuw", "optOefenen"}) {
        for (const int stap : {1, 2, 7, 12, 20}) {
            Open();
            Kies(optie);
            if (optie == std::string("optNieuw"))
                VulClub(u"Zuid"_s);
            schijf.FaalBij(stap);
            wachter.Begin(u"De administratie kon niet worden gemaakt. Er is niets van blijven "
                          "staan. Kijk of u in die map mag schrijven en of er nog ruimte is, of "
                          "kies een andere map.\n\n"_s,
                          QMessageBox::Critical);
            Klik(Knop("cmdVerder"));
            VerwachtNietsVeranderd(was);
            EXPECT_TRUE(fs::is_empty(map.Weg() / "Documenten")) << optie << stap;
        }
    }
    schijf.FaalVanaf(4);
    wachter.Begin(u"De administratie kon niet worden gemaakt. Wat hieronder staat, is gebleven en "
                  "kan weg. Kijk of u in die map mag schrijven en of er nog ruimte is, of kies een "
                  "andere map.\n\nGebleven: "_s,
                  QMessageBox::Critical);
    Klik(Knop("cmdVerder"));
    wachter.Klaar();
    schijf.FaalNiet();
    Klik(Knop("cmdVerder"));
    VerwachtKeus(In("Plexoran oefenclub 2") / "Mappen.ini");
}

TEST_F(frmEersteStartTest, EenKeuzeDieNietTeOnthoudenIsGeldtAlleenNu)
{
    ZetSuite("Bridge");
    Open();
    schijf.FaalVanaf(1);
    wachter.Begin(u"Welke administratie u koos, kan niet worden onthouden: de volgende keer vraagt "
                  "Plexoran het weer. U kunt gewoon verder."_s);
    Klik(Knop("cmdVerder"));
    wachter.Klaar();
    EXPECT_EQ(QDialog::Accepted, venster->result());
    EXPECT_EQ(Als("Bridge") + "\\Mappen.ini", venster->MappenIni());
    EXPECT_EQ("", Onthouden());
}

// ---- The start --------------------------------------------------------------------------------

namespace {

/// The start of the program as `main` does it, without `--mappen` unless it is given.
class Begin : public testing::Test, protected Thuis {
  protected:
    Begin()
    {
        fs::create_directories(map.Weg() / "bin");
        administratie.programmamap = programma;
    }
    ~Begin() override
    {
        venster.reset();
        fs::current_path(werkmap_);
    }

    std::optional<int> Start(const Pad& gegeven = {})
    {
        venster.reset();
        administratie.mappen = {};
        administratie.spelers = {};
        Pad mappenIni = gegeven;
        administratie.eersteStart.reset();
        if (gegeven.empty()) {
            administratie.eersteStart = omgeving;
            mappenIni = StartMappenIni(schijf, programma, omgeving.ini);
        }
        venster = std::make_unique<frmLedenAdmin>(administratie);
        const auto status = venster->Laad(mappenIni, [] { return true; });
        wachter.Klaar();
        return status;
    }
    void VerwachtNietTeLezen(const Pad& pad)
    {
        wachter.Begin(u"Het bestand 'Mappen.ini' kan niet worden gelezen. Uw gegevens zijn niet "
                      "veranderd, maar zonder dat bestand weet dit programma niet waar ze staan. "
                      "Zet het goede bestand op deze plaats, of start Plexoran met --mappen en de "
                      "naam van het bestand.\n\nBestand: "_s +
                          QString::fromStdString(schijf.Toonpad(pad)),
                      QMessageBox::Critical);
    }
    void VerwachtKeusvenster(const char* optie, const QString& club = {})
    {
        wachter.Bedien([optie, club](QDialog& dialoog) {
            EXPECT_EQ("frmEersteStart", dialoog.objectName());
            if (optie == nullptr) {
                QTest::keyClick(&dialoog, Qt::Key_Escape);
                return;
            }
            Klik(Vind<QRadioButton>(dialoog, optie), {8, 8});
            if (!club.isEmpty())
                Schrijf(dialoog, "txtClub", club);
            Druk(dialoog, "cmdVerder");
        });
    }
    /// What the command says where another start goes first.
    void VerwachtGeenAndere()
    {
        wachter.Informatie(
            u"U kunt hier geen andere administratie kiezen: er staat een "
            "'Mappen.ini' bij het programma, of Plexoran is gestart met --mappen. Er is niets veranderd. Wilt u kunnen kiezen, haal dat bestand dan weg of start Plexoran zonder --mappen."_s);
        venster->findChild<QAction*>(u"actAdministratie"_s)->trigger();
        wachter.Klaar();
    }

    Berichtwachter wachter;
    std::unique_ptr<frmLedenAdmin> venster;

  private:
    fs::path werkmap_ = fs::current_path();
};

} // namespace

TEST_F(Begin, VanNietsTotEenEersteSpeler)
{
    VerwachtNietTeLezen(MappenIniPad(programma));
    VerwachtKeusvenster("optNieuw", u"Zuid"_s);
    ASSERT_EQ(std::nullopt, Start());
    venster->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    wachter.Bedien([](QDialog& ingave) {
        Schrijf(ingave, "txt1_6", u"Bos"_s);
        Druk(ingave, "cmdOK");
    });
    Druk(*venster, "cmdAanm");
    wachter.Klaar();
    EXPECT_EQ("HKEY=100001\r\n1,100001,Gr01-,,,Bos,,,,,,,M,,,,,\r\n",
              Lees(In("Zuid/Spelers/RVDspelers.txt")));
    EXPECT_TRUE(fs::is_directory(In("Zuid/Bestanden/NBB4-Leden")));
    ASSERT_EQ(std::nullopt, Start()) << "de tweede keer zonder vragen";
    EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
}

TEST_F(Begin, WieEerstOefentHeeftMeteenSpelers)
{
    VerwachtNietTeLezen(MappenIniPad(programma));
    VerwachtKeusvenster("optOefenen");
    ASSERT_EQ(std::nullopt, Start());
    EXPECT_EQ(148, administratie.spelers.tabel.Rijen());
}

TEST_F(Begin, WieStoptEindigtMetStatusEen)
{
    VerwachtNietTeLezen(MappenIniPad(programma));
    VerwachtKeusvenster(nullptr);
    EXPECT_EQ(1, Start());
    EXPECT_EQ("", Onthouden());
}

TEST_F(Begin, DeOpdrachtregelGaatVoorHetBestandBijHetProgrammaEnDatVoorDeKeuze)
{
    for (const char* naam : {"Een", "Twee", "Drie"})
        ZetSuite(naam);
    ASSERT_TRUE(OnthoudMappenIni(schijf, omgeving.ini, Als("Drie") + "\\Mappen.ini"));
    const auto verwacht = [&](const char* naam, const Pad& gegeven = {}) {
        EXPECT_EQ(std::nullopt, Start(gegeven));
        EXPECT_EQ(Als(naam) + "\\Spelers", administratie.mappen.SPEMAP);
    };
    verwacht("Drie");
    map.Zet("bin/Mappen.ini", NieuweMappenIni(Als("Twee"), Als("Twee") + "\\Spelers"));
    verwacht("Twee");
    VerwachtGeenAndere();
    verwacht("Een", Als("Een") + "\\Mappen.ini");
    VerwachtGeenAndere();
    EXPECT_EQ("", Onthouden()) << "naast het programma gaat voor";
    EXPECT_EQ("MAPPEN=" + Als("Drie") + "\\Mappen.ini\r\n",
              Lees(map.Weg() / ".config/plexoran/suite.ini"));
}

TEST_F(Begin, EenOnthoudenBestandDatWegIsVraagtOpnieuw)
{
    const Pad weg = Als("Weg") + "\\Mappen.ini";
    ASSERT_TRUE(OnthoudMappenIni(schijf, omgeving.ini, weg));
    ZetSuite("Bridge");
    VerwachtNietTeLezen(weg);
    VerwachtKeusvenster("optBestaand");
    EXPECT_EQ(std::nullopt, Start());
    EXPECT_EQ(Als("Bridge") + "\\Spelers", administratie.mappen.SPEMAP);
    EXPECT_EQ(Als("Bridge") + "\\Mappen.ini", Onthouden());
}

TEST_F(Begin, WatDeOpdrachtregelOfHetProgrammaAanwijstWordtNietDoorEenVraagVervangen)
{
    VerwachtNietTeLezen(Als("Weg") + "\\Mappen.ini");
    EXPECT_EQ(1, Start(Als("Weg") + "\\Mappen.ini"));
    map.Zet("bin/Mappen.ini", "RVDMAP=x\r\n");
    wachter.Begin(u"Het bestand 'Mappen.ini' noemt de map van de spelers niet"_s,
                  QMessageBox::Critical);
    EXPECT_EQ(1, Start());
}

TEST_F(Begin, EenAndereAdministratieGeldtVanafDeVolgendeStart)
{
    for (const char* naam : {"Een", "Twee"})
        ZetSuite(naam);
    ASSERT_TRUE(OnthoudMappenIni(schijf, omgeving.ini, Als("Een") + "\\Mappen.ini"));
    ASSERT_EQ(std::nullopt, Start());
    for (const QString& antwoord : {u"Later"_s, u"Nu opnieuw starten"_s}) {
        wachter.Bedien([](QDialog& dialoog) {
            KlikRegel(dialoog, "lstSuites", 1);
            Druk(dialoog, "cmdVerder");
        });
        wachter.Verwacht(
            {.tekst = u"Plexoran begint voortaan met de administratie die u koos. Wat nu open is, "
                      "blijft dat tot u Plexoran opnieuw start."_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Question,
             .knoppen = {u"Nu opnieuw starten"_s, u"Later"_s}});
        venster->findChild<QAction*>(u"actAdministratie"_s)->trigger();
        wachter.Klaar();
        EXPECT_EQ(antwoord != u"Later"_s, venster->MoetOpnieuw());
    }
    EXPECT_EQ(Als("Een") + "\\Spelers", administratie.mappen.SPEMAP);
    ASSERT_EQ(std::nullopt, Start());
    EXPECT_EQ(Als("Twee") + "\\Spelers", administratie.mappen.SPEMAP);
}

TEST(HuidigeOmgeving, NoemtDePlaatsenVanDezeGebruiker)
{
    const Startomgeving omgeving = HuidigeOmgeving();
    EXPECT_TRUE(omgeving.ini.ends_with("\\plexoran\\suite.ini"));
    EXPECT_EQ(omgeving.documenten, omgeving.zoekplaatsen.at(2).map);
    EXPECT_EQ(Programmamap(), omgeving.zoekplaatsen.at(0).map);
    EXPECT_TRUE(Programmamap().starts_with(omgeving.zoekplaatsen.at(1).map + "\\"));
}
