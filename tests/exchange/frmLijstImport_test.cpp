// Players from a list, from the main window on.
#include "exchange/frmLijstImport.h"

#include <QFileDialog>
#include <QTreeView>

#include "hulp/voortgangstopper.h"
#include "mainwindow/vensterproef.h"

using namespace plexoran;

namespace {

class frmLijstImportTest : public HoofdvensterTest {
  protected:
    using Stappen = std::function<void(frmLijstImport&)>;

    frmLijstImportTest()
    {
        administratie.vensterIni = Samen(suite.AlsPad(), "venster.ini");
        KiesGroep(2);
    }
    /// Opens the window; what it shows besides is announced before.
    void InVenster(Stappen stappen)
    {
        wachter.Bedien([stappen = std::move(stappen)](QDialog& dia) {
            stappen(dynamic_cast<frmLijstImport&>(dia));
            if (dia.isVisible())
                Druk(dia, "cmdAnnuleren");
        });
    }
    void Open()
    {
        Vind<QAction>(*venster, "actLijstImport")->trigger();
        wachter.Klaar();
    }
    [[nodiscard]] Pad Lijst(const std::string& inhoud) const
    {
        suite.Zet("leden.csv", inhoud);
        return Samen(suite.AlsPad(), "leden.csv");
    }
    static void Kies(const QDialog& dia, const char* keus, const QString& tekst)
    {
        auto* lijst = Vind<QComboBox>(dia, keus);
        lijst->setCurrentIndex(lijst->findText(tekst));
        ASSERT_GE(lijst->currentIndex(), 0) << tekst.toStdString();
        emit lijst->activated(lijst->currentIndex());
    }
    static std::string Gekozen(const QDialog& dia, const char* keus)
    {
        return Vind<QComboBox>(dia, keus)->currentText().toStdString();
    }
    static std::string Melding(const QDialog& dia)
    {
        return Vind<QLabel>(dia, "lblMelding")->text().toStdString();
    }
    static std::vector<std::string> Kolommen(const QDialog& dia)
    {
        std::vector<std::string> uit;
        auto* lijst = Vind<QTreeWidget>(dia, "lstKolommen");
        for (int i = 0; i < lijst->topLevelItemCount(); ++i) {
            QStringList cellen;
            for (int kolom = 0; kolom < lijst->columnCount(); ++kolom)
                cellen << lijst->topLevelItem(i)->text(kolom);
            uit.push_back(cellen.join(u'|').toStdString());
        }
        return uit;
    }
    /// What the preview shows and what is done in it.
    void InVoorbeeld(std::function<void(QDialog&)> stappen) { wachter.Bedien(std::move(stappen)); }
    [[nodiscard]] std::string Laatste() const { return RegelsVan(suite.Spelers()).back(); }
};

const std::string Leden = "Naam;E-mail;Postcode;Bijzonderheden\r\n"
                          "Berg, Jan van der;jan@club.example;1234 AB;=1\r\n"
                          "Eva Zoekniet;;;\r\n";

} // namespace

TEST_F(frmLijstImportTest, ImporteertWatErVoorafGetoondIs)
{
    const std::string oud = suite.Spelers();
    InVenster([&](frmLijstImport& dia) {
        EXPECT_EQ("Er is nog geen lijst gekozen.", Melding(dia));
        EXPECT_FALSE(Vind<QPushButton>(dia, "cmdBekijk")->isEnabled());
        dia.Open(Lijst(Leden));
        EXPECT_EQ("2 regels gelezen.", Melding(dia));
        EXPECT_EQ(
            (std::vector<std::string>{"Naam|Naam (in één kolom)|Berg, Jan van der|Eva Zoekniet|",
                                      "E-mail|Email|jan@club.example||", "Postcode|Postc|1234 AB||",
                                      "Bijzonderheden|(niet gebruiken)|=1||"}),
            Kolommen(dia));
        auto* kolommen = Vind<QTreeWidget>(dia, "lstKolommen");
        kolommen->setCurrentItem(kolommen->topLevelItem(3));
        Kies(dia, "cmbVeld", u"Div1"_s);
        Schrijf(dia, "txtSubgroep", u"c-lijn"_s);
        Druk(dia, "cmdBekijk");
    });
    InVoorbeeld([&](QDialog& dia) {
        EXPECT_EQ("frmVoorbeeld", dia.objectName().toStdString());
        EXPECT_EQ("2 regels gelezen: 2 nieuw, 0 gewijzigd, 0 ongewijzigd, 0 geweigerd. Daarvan 0 "
                  "twijfelachtig.",
                  Vind<QLabel>(dia, "lblTotalen")->text().toStdString());
        EXPECT_EQ(6, Vind<QComboBox>(dia, "cmbSoort")->count());
        EXPECT_EQ(oud, suite.Spelers());
        Druk(dia, "cmdImporteerDeze");
    });
    Open();
    const auto regels = RegelsVan(suite.Spelers());
    EXPECT_EQ("HKEY=100171", RegelsVan(oud).front());
    EXPECT_EQ("HKEY=100173", regels.front());
    EXPECT_EQ("149,100172,Gr02-,Jan,van der,Berg,,jan@club.example,,1234 AB,,,,=1,,,C-LIJN,",
              regels[regels.size() - 2]);
    EXPECT_EQ("150,100173,Gr02-,Eva,,Zoekniet,,,,,,,,,,,C-LIJN,", regels.back());
    EXPECT_EQ(2, GetoondeGroep());
    EXPECT_EQ("leden.csv geïmporteerd: 2 nieuw, 0 gewijzigd",
              Label("lblMelding")->text().toStdString());
    bool kopie = false;
    for (const auto& naam : suite.Namen("Spelers/Reservekopie"))
        kopie = kopie || naam.find("voor import") != std::string::npos;
    EXPECT_TRUE(kopie);

    Vind<QAction>(*venster, "actOngedaan")->trigger();
    wachter.Klaar();
    EXPECT_EQ(RegelsVan(oud).back(), Laatste());
}

TEST_F(frmLijstImportTest, OnthoudtDeVeldenPerKopregel)
{
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Lijst(Leden));
        auto* kolommen = Vind<QTreeWidget>(dia, "lstKolommen");
        kolommen->setCurrentItem(kolommen->topLevelItem(3));
        Kies(dia, "cmbVeld", u"Email"_s);
        EXPECT_EQ("E-mail|(niet gebruiken)|jan@club.example||", Kolommen(dia)[1]);
        Druk(dia, "cmdBekijk");
    });
    InVoorbeeld([](QDialog& dia) { dia.reject(); });
    Open();
    std::string onthouden = suite.Inhoud("venster.ini");
    std::erase(onthouden, '\r'); // of Windows
    EXPECT_EQ("[Lijsten]\nNAAM-EMAIL-POSTCODE-BIJZONDERHEDEN=\"naam;Naam;;Postc;Email\"\n",
              onthouden);
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Lijst(Leden));
        EXPECT_EQ("Bijzonderheden|Email|=1||", Kolommen(dia)[3]);
        dia.Open(Lijst("Naam;E-mail\r\nJan Bos;jan@club.example\r\n"));
        EXPECT_EQ("E-mail|Email|jan@club.example||", Kolommen(dia)[1]);
    });
    Open();
}

TEST_F(frmLijstImportTest, ToontWatErGevondenIsEnLaatHetAnders)
{
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Lijst("Ren\xC3\xA9,Bos\nZo\xC3\xAB,Fuik\n"));
        EXPECT_EQ("UTF-8", Gekozen(dia, "cmbTekenset"));
        EXPECT_EQ("komma", Gekozen(dia, "cmbScheiding"));
        EXPECT_EQ("dubbel \"", Gekozen(dia, "cmbAanhaling"));
        EXPECT_EQ("LF", Gekozen(dia, "cmbRegeleinde"));
        EXPECT_FALSE(Vind<QCheckBox>(dia, "chkKop")->isChecked());
        EXPECT_EQ("kolom 1|(niet gebruiken)|René|Zoë|", Kolommen(dia)[0]);
        EXPECT_EQ("Kies eerst in welke kolom de naam of de achternaam staat.", Melding(dia));
        Kies(dia, "cmbTekenset", u"Windows"_s);
        EXPECT_EQ("kolom 1|(niet gebruiken)|RenÃ©|ZoÃ«|", Kolommen(dia)[0]);
        Kies(dia, "cmbScheiding", u"puntkomma"_s);
        EXPECT_EQ("kolom 1|(niet gebruiken)|RenÃ©,Bos|ZoÃ«,Fuik|", Kolommen(dia)[0]);
        Vind<QCheckBox>(dia, "chkKop")->click();
        EXPECT_EQ("RenÃ©,Bos|(niet gebruiken)|ZoÃ«,Fuik||", Kolommen(dia)[0]);
        Kies(dia, "cmbHerken", u"zijn sleutel, in alle groepen"_s);
        EXPECT_EQ("Kies eerst in welke kolom de sleutel (Key) staat.", Melding(dia));
        Kies(dia, "cmbHerken", u"zijn NBB-nummer, in die groep"_s);
        EXPECT_EQ("Kies eerst in welke kolom het NBB-nummer staat.", Melding(dia));
    });
    Open();
}

TEST_F(frmLijstImportTest, ZegtWatErMisIs)
{
    InVenster([&](frmLijstImport& dia) {
        const auto meldt = [&](const std::string& inhoud, const std::string& melding) {
            dia.Open(Lijst(inhoud));
            EXPECT_EQ(melding, Melding(dia));
            EXPECT_FALSE(Vind<QPushButton>(dia, "cmdBekijk")->isEnabled());
            EXPECT_TRUE(Kolommen(dia).empty() || melding == "Er staan geen spelers in deze lijst.");
        };
        meldt("", "Er staan geen spelers in deze lijst.");
        meldt("Naam;Plaats\r\n", "Er staan geen spelers in deze lijst.");
        meldt(std::string("PK\0\0", 4),
              "Dit is geen lijst: er staan tekens in die in geen tekst voorkomen.");
        meldt("\xEF\xBB\xBFNaam\nRen\xE9\n", "Regel 2 is niet in deze tekenset geschreven. Kies "
                                             "een andere, of sla de lijst opnieuw op.");
        meldt("Naam\n\"Jan\n",
              "Op regel 2 begint een aanhaling die nergens eindigt. Verbeter die regel, "
              "of kies bij Aanhaling: geen.");
        meldt(std::string(10'000, ';') + "x", "Regel 1 heeft meer dan 200 kolommen. Kies een ander "
                                              "scheidingsteken of een andere lijst.");
        dia.Open(Lijst("Zo\xEB;x\n"));
        EXPECT_EQ("Windows", Gekozen(dia, "cmbTekenset"));
        dia.Open(Lijst("\xEF\xBB\xBFNaam;Plaats\nRen\xE9 Bos;Ede\n"));
        EXPECT_EQ("UTF-8", Gekozen(dia, "cmbTekenset"));
        Kies(dia, "cmbTekenset", u"Windows"_s);
        EXPECT_EQ("puntkomma", Gekozen(dia, "cmbScheiding"));
        EXPECT_EQ("1 regel gelezen.", Melding(dia));
        dia.Open(Lijst("Naam\nErd\xC5\x91s\n\xE6\x9D\x8E Bos\n"));
        EXPECT_EQ("2 regels gelezen. 2 tekens die het spelerbestand niet kent: op regel 2 staat in "
                  "plaats van 'ő' nu 'o'.",
                  Melding(dia));
    });
    Open();
}

TEST_F(frmLijstImportTest, WeigertEenBestandDatErNietIsOfTeGrootIs)
{
    std::filesystem::resize_file((suite.Zet("groot.csv", "x"), suite.Weg() / "groot.csv"),
                                 300ULL << 20U);
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Samen(suite.AlsPad(), "weg.csv"));
        dia.Open(Samen(suite.AlsPad(), "groot.csv"));
        EXPECT_EQ("Er is nog geen lijst gekozen.", Melding(dia));
    });
    for (int i = 0; i < 2; ++i)
        wachter.Begin(
            u"Deze lijst kan niet worden gelezen. Er is niets veranderd. Kies een andere lijst."_s);
    Open();
}

TEST_F(frmLijstImportTest, DeGroepVanDeBondIsGeenDoel)
{
    KiesGroep(5);
    InVenster([&](frmLijstImport& dia) {
        EXPECT_EQ(49, Vind<QComboBox>(dia, "cmbGroep")->count());
        EXPECT_EQ(-1, Vind<QComboBox>(dia, "cmbGroep")->findText(u"Gr05-"_s, Qt::MatchStartsWith));
        EXPECT_EQ("Gr01-", Gekozen(dia, "cmbGroep").substr(0, 5));
    });
    Open();
    KiesGroep(7);
    InVenster(
        [&](frmLijstImport& dia) { EXPECT_EQ("Gr07-", Gekozen(dia, "cmbGroep").substr(0, 5)); });
    Open();
}

TEST_F(frmLijstImportTest, VerandertErNietsDanBlijftAllesStaan)
{
    const std::string oud = suite.Spelers();
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Lijst("Key\r\n100001\r\n"));
        Druk(dia, "cmdBekijk");
        EXPECT_TRUE(dia.isVisible());
    });
    InVoorbeeld([](QDialog& dia) { Druk(dia, "cmdImporteerDeze"); });
    wachter.Informatie(
        u"Er verandert niets: niemand komt erbij, en bij wie er al staat, blijft elk "
        "gegeven zoals het is."_s);
    Open();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmLijstImportTest, StoppenLaatAllesZoalsHetWas)
{
    std::string lang = "Naam\r\n";
    for (int i = 0; i < 30'000; ++i)
        lang += "Jan Bos\r\n";
    const std::string oud = suite.Spelers();
    InVenster([&](frmLijstImport& dia) {
        dia.Open(Lijst(lang));
        const Voortgangstopper stopper(1);
        Druk(dia, "cmdBekijk");
        EXPECT_GT(stopper.Stappen(), 0);
        EXPECT_TRUE(dia.isVisible());
    });
    Open();
    EXPECT_EQ(oud, suite.Spelers());
}

TEST_F(frmLijstImportTest, KiestEenBestandInDeDialoogVanHetSysteem)
{
    const QString pad = QString::fromStdString((suite.Weg() / "leden.csv").string());
    (void)Lijst(Leden);
    InVenster([&](frmLijstImport& dia) {
        Druk(dia, "cmdBestand");
        EXPECT_EQ("2 regels gelezen.", Melding(dia));
    });
    wachter.Bedien([pad](QDialog& dialoog) {
        auto& keuze = dynamic_cast<QFileDialog&>(dialoog);
        EXPECT_EQ("CommonDialog1", keuze.objectName());
        Vind<QLineEdit>(keuze, "fileNameEdit")->setText(pad);
        QMetaObject::invokeMethod(&keuze, "accept");
    });
    Open();
}
