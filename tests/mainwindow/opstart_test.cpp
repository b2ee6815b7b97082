// The steps of the start-up and their order, seen from outside.

#include "mainwindow/opstartproef.h"

using namespace plexoran;
using namespace std::string_literals;

// ---- The steps --------------------------------------------------------------------------------

TEST_F(Opstartproef, TweedeExemplaarMeldtZichEnLeestOfSchrijftNiets)
{
    wachter.Informatie(u"Het programma is al gestart!..."_s);
    EXPECT_EQ(0, Laad(false));
    EXPECT_EQ(std::vector<std::string>{}, geheugen.log);
    EXPECT_EQ(std::vector<Pad>{"C:\\RVD\\Mappen.ini"}, geheugen.AlleBestanden());
}

TEST_F(Opstartproef, DeStappenKomenInHunVolgorde)
{
    ASSERT_EQ(std::nullopt, Laad());
    const std::vector<std::ptrdiff_t> stappen{Wanneer("lees C:\\RVD\\Mappen.ini"),
                                              Wanneer("map C:\\RVD\\Bestanden\\NBB4-Leden"),
                                              Wanneer("lees C:\\RVD\\Admin\\Plexo.ini"),
                                              Wanneer("rekenprogramma"),
                                              Wanneer("map C:\\RVD\\Spelers"),
                                              Wanneer("lees C:\\RVD\\Spelers\\RVDGroepen.txt"),
                                              Wanneer("schrijf C:\\RVD\\Spelers\\RVDGroepen.txt"),
                                              Wanneer("lees C:\\RVD\\Spelers\\RVDspelers.txt"),
                                              Wanneer("schrijf C:\\RVD\\Spelers\\RVDspelers.txt"),
                                              Wanneer("schrijf C:\\RVD\\Admin\\Plexo.ini")};
    EXPECT_TRUE(std::is_sorted(stappen.begin(), stappen.end()))
        << testing::PrintToString(geheugen.log);
    EXPECT_EQ(0, stappen.front());
    EXPECT_EQ(1, std::count(geheugen.log.begin(), geheugen.log.end(), "lees C:\\RVD\\Mappen.ini"));
}

TEST_F(Opstartproef, ZonderMappenIniNoemtHetBerichtHetHelePadEnIsDeStatusEen)
{
    static_cast<void>(geheugen.Verwijder("C:\\RVD\\Mappen.ini"));
    wachter.Verwacht({.tekst = u"Het bestand 'Mappen.ini' kan niet worden gelezen."_s +
                               mappenvraag +
                               u"Bestand: C:\\RVD\\Mappen.ini\nMelding van het systeem: "_s,
                      .icoon = QMessageBox::Critical,
                      .knoppen = {u"OK"_s},
                      .alleenBegin = true});
    EXPECT_EQ(1, Laad());
    EXPECT_EQ(std::vector<std::string>{"lees C:\\RVD\\Mappen.ini"}, geheugen.log);
    EXPECT_EQ(std::vector<Pad>{}, geheugen.AlleBestanden());
}

TEST_F(Opstartproef, EenMappenIniZonderSpelersmapEindigtMetStatusEen)
{
    for (const std::string& inhoud : {std::string(), std::string("RVDMAP=C:\\RVD\r\nSPEMAP=\r\n"),
                                      "\x00\xFF\x01\r\n,,=\xAB"s}) {
        geheugen.Zet("C:\\RVD\\Mappen.ini", inhoud);
        wachter.Verwacht(
            {.tekst =
                 u"Het bestand 'Mappen.ini' noemt de map van de spelers niet: er staat geen map "
                 "achter SPEMAP=."_s +
                 mappenvraag + u"Bestand: C:\\RVD\\Mappen.ini"_s +
                 (inhoud.find('\0') == std::string::npos ? QString()
                                                         : u"\nOorzaak: er staan NUL-tekens in"_s),
             .icoon = QMessageBox::Critical});
        Lees(false);
        EXPECT_EQ(std::vector<Pad>{"C:\\RVD\\Mappen.ini"}, geheugen.AlleBestanden());
    }
}

TEST_F(Opstartproef, ZonderLedenmapGaatDeStartDoor)
{
    geheugen.Zet("C:\\RVD\\Mappen.ini", "SPEMAP=C:\\RVD\\Spelers\r\nADMMAP=C:\\RVD\\Admin\r\n");
    wachter.Waarschuwing(
        u"De map voor de ledenbestanden van de bond (NBB4-Leden) kon niet worden gemaakt. Er "
        "staat geen map achter WINMAP= in 'Mappen.ini'; de gegevens van de spelers zijn niet in "
        "gevaar. Vul die map in en start Plexoran opnieuw."_s);
    Lees();
    EXPECT_EQ("HKEY=100000\r\n", Spelers());
    EXPECT_EQ(Padsoort::Niets, geheugen.Soort("\\NBB4-Leden").value());
    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "WINMAP=D:\\weg\r\n");
    wachter.Begin(
        u"De map voor de ledenbestanden van de bond (NBB4-Leden) kon niet worden gemaakt."_s +
        mapvraag + u"Bestand: D:\\weg\\NBB4-Leden\n"_s);
    Lees();
    EXPECT_EQ("HKEY=100000\r\n", Spelers());
}

TEST_F(Opstartproef, MaaktEenOntbrekendeLedenmapEnSpelersmap)
{
    Lees();
    EXPECT_EQ(Padsoort::Map, geheugen.Soort("C:\\RVD\\Bestanden\\NBB4-Leden").value());
    geheugen.Zet("C:\\RVD\\Bestanden\\NBB4-Leden\\Club.csv", "blijft");
    Lees();
    EXPECT_EQ("blijft", geheugen.Inhoud("C:\\RVD\\Bestanden\\NBB4-Leden\\Club.csv"));
    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "SPEMAP=C:\\RVD\\Nieuw\r\n");
    Lees();
    EXPECT_EQ(KaleGroepen(), geheugen.Inhoud("C:\\RVD\\Nieuw\\RVDGroepen.txt"));
    EXPECT_EQ("HKEY=100000\r\n", geheugen.Inhoud("C:\\RVD\\Nieuw\\RVDspelers.txt"));
}

TEST_F(Opstartproef, MaaktOntbrekendeBestandenTotOpDeByte)
{
    ASSERT_EQ(std::nullopt, Laad());
    EXPECT_EQ(KaleGroepen(), Groepen());
    EXPECT_EQ("HKEY=100000\r\n", Spelers());
    EXPECT_EQ("OPTIND=0\r\nLOSTGR=0\r\n", Plexo());
    EXPECT_EQ(5U, geheugen.AlleBestanden().size()) << "met Mappen.ini en wie er aanwezig is";
    EXPECT_EQ(100000, administratie.spelers.HKEY);
}

/// A drive that is away must not turn into an empty register.
TEST_F(Opstartproef, EenSpelersmapWaarvanOokDeMapErbovenOntbreektWordtGemeldEnNietGemaakt)
{
    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "SPEMAP=D:\\weg\\Spelers\r\n");
    wachter.Begin(u"De map van de spelers kon niet worden gemaakt."_s + mapvraag +
                  u"Bestand: D:\\weg\\Spelers\n"_s);
    wachter.Waarschuwing(isNogLeeg);
    wachter.Begin(nietGeopend +
                      u"Bestand: D:\\weg\\Spelers\\RVDspelers.txt\nMelding van het systeem: "_s,
                  QMessageBox::Information);
    Lees();
    EXPECT_EQ(Padsoort::Niets, geheugen.Soort("D:\\weg\\Spelers").value());
    EXPECT_EQ(Padsoort::Niets, geheugen.Soort("D:\\weg").value());
}

TEST_F(Opstartproef, DeGroepsnamenKunnenTerugZonderHetBlancoBegin)
{
    ZetGroepen("   \r\nGr01-Clubleden\r\nGr02-Avond\r\n");
    VerwachtTerugzetvraag(groepenwat, Terugzetten);
    Lees();
    EXPECT_EQ("Gr01-Clubleden\r\nGr02-Avond\r\n", Groepen());
    EXPECT_EQ("Gr02-Avond", administratie.groepen.Toontekst(2));
}

TEST_F(Opstartproef, EenBlancoEersteItemKostBeideBestandenMaarErKomtEenKopie)
{
    ZetGroepen(",Gr01-Clubleden\r\n");
    ZetSpelers(",100001,Gr01-,Jan,,Jansen,,,,,,,M,,,,,\r\n");
    VerwachtTerugzetvraag(groepenwat, LeegBeginnen);
    VerwachtTerugzetvraag(spelerwat, LeegBeginnen);
    Lees();
    EXPECT_EQ(KaleGroepen(), Groepen());
    EXPECT_EQ("HKEY=100000\r\n", Spelers());
    EXPECT_EQ(std::vector<Tekst>{",Gr01-Clubleden\r\n"}, Kopieen("RVDGroepen"));
    EXPECT_EQ(std::vector<Tekst>{",100001,Gr01-,Jan,,Jansen,,,,,,,M,,,,,\r\n"},
              Kopieen("RVDspelers"));
}

TEST_F(Opstartproef, DeSpelersKunnenTerugZonderHetBlancoBegin)
{
    const std::string goed = "HKEY=100200\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n";
    for (const QString& antwoord : {Terugzetten, Berichtwachter::Escape}) {
        ZetSpelers("\r\n" + goed);
        VerwachtTerugzetvraag(spelerwat, antwoord);
        Lees();
        EXPECT_EQ(goed, Spelers());
        EXPECT_EQ(1, administratie.spelers.tabel.Rijen());
        EXPECT_EQ(100200, administratie.spelers.HKEY);
        VoegToe("Nieuweling");
        EXPECT_NE(std::string::npos, Spelers()->find("2,100201,Gr01-"));
    }
}

/// The copy is there; what cannot be put back is told, and may be tried again.
TEST_F(Opstartproef, TerugzettenDatMislukt)
{
    const std::string oud = "\r\nHKEY=100200\r\n";
    ZetGroepen(KaleGroepen());
    ZetSpelers(oud);
    wachter.LaatBeslissen([&](const QMessageBox& bericht) {
        const bool eerste = bericht.text().contains(u" begon met een lege regel"_s);
        const QString terug = eerste ? Terugzetten : u"Opnieuw proberen"_s;
        EXPECT_EQ(terug, bericht.defaultButton()->text()) << "met Enter";
        geheugen.ZetAlleenLezen("C:\\RVD\\Spelers", eerste);
        if (!eerste) {
            EXPECT_TRUE(bericht.text().startsWith(
                u"Het spelerbestand kon niet worden teruggezet en is nu leeg. Wat erin stond, "
                "staat heel in een kopie. Verhelp de oorzaak en probeer het opnieuw, of zet de "
                "kopie zelf terug voordat u iets invoert.\n\nKopie: "
                "C:\\RVD\\Spelers\\Reservekopie\\RVDspelers "_s))
                << bericht.text().toStdString();
            EXPECT_EQ("HKEY=100000\r\n", Spelers());
            EXPECT_EQ(std::vector<Tekst>{oud}, Kopieen("RVDspelers"));
        }
        return terug;
    });
    Lees();
    EXPECT_EQ("HKEY=100200\r\n", Spelers());
}

TEST_F(Opstartproef, AlsDeKopieNietKanBlijftHetBlancoSpelerbestandStaan)
{
    const std::string oud = "\r\nHKEY=100200\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n";
    ZetSpelers(oud);
    ZetGroepen(KaleGroepen());
    geheugen.Zet("C:\\RVD\\Spelers\\Reservekopie", "een bestand waar de map moet komen");
    wachter.Begin(
        u"Het spelerbestand begint met een lege regel of een leeg gegeven en moest daarom "
        "worden vervangen, na een kopie. Dat is mislukt; het bestand is gebleven zoals het "
        "was. Kijk na of u in de map mag schrijven, of haal het lege begin weg met een "
        "tekstprogramma.\n\nBestand: C:\\RVD\\Spelers\\Reservekopie"_s);
    Lees();
    EXPECT_EQ(oud, Spelers());
}

/// A kill in any save, also that of the members of the federation on their way into the register.
TEST_F(Opstartproef, WatEenAfgebrokenOpslagLietWordtNaEenUurOpgeruimd)
{
    administratie.programmamap = "C:\\Plexoran";
    for (const Pad& doel :
         {"C:\\RVD\\Spelers\\RVDspelers.txt"s, "C:\\RVD\\Spelers\\RVDGroepen.txt"s,
          "C:\\RVD\\Spelers\\Reservekopie\\RVDspelers 2026-03-01 142355.txt"s,
          "C:\\RVD\\Spelers\\Parenmap\\Gr01-A-LIJN.txt"s, "C:\\RVD\\Admin\\Plexo.ini"s,
          "C:\\RVD\\Admin\\Club Temp-NBBXMLtoCSV.csv"s, "C:\\Plexoran\\Club Temp-NBBXMLtoCSV.csv"s,
          "C:\\RVD\\DiverseUitvoer\\RVDparenCSV2.csv"s}) {
        SCOPED_TRACE(doel);
        geheugen.ZetMap(doel.substr(0, doel.rfind('\\')));
        FalendeSchijf gedood(geheugen);
        gedood.FaalVanaf(5);
        ASSERT_FALSE(SchrijfHeel(gedood, doel, "06-00000000", Houdbaarheid::Vluchtig));
        const auto resten = [&] {
            auto namen = geheugen.AlleBestanden();
            std::erase_if(namen, [&](const Pad& pad) { return !pad.starts_with(doel + ".~"); });
            return namen;
        };
        ASSERT_EQ(1U, resten().size());
        const Pad rest = resten().front();
        geheugen.ZetTijd(rest, Nu() - 3'500'000'000'000);
        Lees();
        EXPECT_EQ(1U, resten().size());
        geheugen.ZetTijd(rest, Nu() - 3'700'000'000'000);
        Lees();
        EXPECT_EQ(0U, resten().size());
    }
}

/// Killed between the link file and the save, or an older register put back.
TEST_F(Opstartproef, KoppelverslagenMetSleutelsDieNogUitgegevenWordenZijnGemeld)
{
    const auto melding = [](const QString& waarvan, const QString& welk) {
        return u"In 'Koppelverslag.txt' van %1 staan sleutels die andere spelers nog kunnen "
               "krijgen, zoals na een toevoegen dat is afgebroken. Het spelerbestand is niet "
               "veranderd. Verwijder %2 of voeg de spelers opnieuw toe; hebt u een oud "
               "spelerbestand teruggezet, verhoog dan het getal achter HKEY=.\n"_s.arg(waarvan,
                                                                                       welk);
    };
    const Pad een = "C:\\RVD\\Zittingen\\Een_Rev\\Koppelverslag.txt";
    const Pad twee = "C:\\RVD\\Zittingen\\Twee_Rev\\Koppelverslag.txt";
    ZetSpelers("HKEY=100172\r\n" + Speler("1", "100001", "Gr01-", "Bos") + "\r\n");
    geheugen.Zet(een, "N01 100172 - 0\r\n");
    Lees();
    geheugen.Zet(een, "N01 100172 - 100173\r\n");
    wachter.Waarschuwing(melding(u"een zitting"_s, u"dat bestand"_s) +
                         u"\nBestand: C:\\RVD\\Zittingen\\Een_Rev\\Koppelverslag.txt"_s);
    Lees();
    geheugen.Zet(twee, "N01 100174 - 0\r\n");
    wachter.Waarschuwing(melding(u"2 zittingen"_s, u"die bestanden"_s) +
                         u"\nBestand: C:\\RVD\\Zittingen\\Een_Rev\\Koppelverslag.txt\nBestand: "
                         "C:\\RVD\\Zittingen\\Twee_Rev\\Koppelverslag.txt"_s);
    Lees();
    EXPECT_EQ("N01 100174 - 0\r\n", geheugen.Inhoud(twee));
}

// ---- Settings and buttons ---------------------------------------------------------------------

TEST_F(Opstartproef, DeLaatsteGroepKomtTerugAlsZeInDeLijstStaat)
{
    ASSERT_EQ(std::nullopt, Laad());
    EXPECT_EQ(1, GetoondeGroep()) << "zonder instellingen";
    for (const auto& [plaats, groep] : std::initializer_list<std::pair<const char*, int>>{
             {"11", 12}, {"49", 50}, {"50", 1}, {"-1", 1}, {"32767", 1}, {"-32768", 1}}) {
        ZetInstellingen(std::string("OPTIND=8\r\nLOSTGR=") + plaats + "\r\n");
        ASSERT_EQ(std::nullopt, Laad());
        EXPECT_EQ(groep, GetoondeGroep()) << plaats;
        EXPECT_EQ(8, administratie.instellingen.OPTIND);
        EXPECT_EQ("OPTIND=8\r\nLOSTGR=" + std::to_string(groep - 1) + "\r\n", Plexo());
    }
}

TEST_F(Opstartproef, EenGetalInDeMappenToontOfVerbergtEenKnop)
{
    struct Geval {
        const char* regel;
        const char* knop;
        bool zichtbaar;
    };
    for (const Geval& geval : {Geval{"NEWPAGR=1\r\n", "cmdParenOnderhoud", true},
                               Geval{"NEWPAGR=2\r\n", "cmdParenOnderhoud", false},
                               Geval{"NEWPAGR=65537\r\n", "cmdParenOnderhoud", false},
                               Geval{"", "cmdParenOnderhoud", false},
                               Geval{"NBB28UIT=1\r\n", "cmdToonGatenlijst", false},
                               Geval{"NBB28UIT=2\r\n", "cmdToonGatenlijst", true},
                               Geval{"", "cmdToonGatenlijst", true}}) {
        SCOPED_TRACE(geval.regel);
        geheugen.Zet("C:\\RVD\\Mappen.ini", ini + geval.regel);
        Start();
        EXPECT_EQ(geval.zichtbaar, Knop(geval.knop)->isVisible());
        KiesGroep(5);
        EXPECT_EQ(geval.zichtbaar, Knop(geval.knop)->isVisible());
        KiesGroep(1);
    }
}

/// Meant: with this word no display of a group touches the import button, so it stays as it began.
TEST_F(Opstartproef, ODNBB28VerbergtDeGatenlijstEnLaatHetImporterenStaan)
{
    geheugen.Zet("C:\\RVD\\Mappen.ini", ini + "ODKEYS=ODNBB28\r\n");
    Start();
    for (const int groep : {1, 5, 2}) {
        KiesGroep(groep);
        EXPECT_FALSE(Knop("cmdToonGatenlijst")->isVisible());
        EXPECT_TRUE(Knop("cmdHaalNBBnamen")->isVisible());
    }
}

/// Meant: hidden after the first display, also when that is the import group.
TEST_F(Opstartproef, HetKoppelenIsNaDeStartVerborgenOokInDeImportgroep)
{
    ZetInstellingen("OPTIND=0\r\nLOSTGR=4\r\n");
    Start();
    ASSERT_EQ(5, GetoondeGroep());
    EXPECT_FALSE(Knop("cmdKoppel")->isVisible());
    EXPECT_TRUE(venster->findChild<QAction*>(u"actKoppel"_s)->isEnabled());
    EXPECT_TRUE(Knop("cmdHaalNBBnamen")->isVisible());
    KiesUit(Keus("cmbGr"), 4);
    EXPECT_TRUE(Knop("cmdKoppel")->isVisible()) << "de getoonde groep nog eens gekozen";
    KiesGroep(6);
    EXPECT_FALSE(Knop("cmdKoppel")->isVisible());
    KiesGroep(5);
    EXPECT_TRUE(Knop("cmdKoppel")->isVisible());
    KiesGroep(1);
    EXPECT_FALSE(Knop("cmdKoppel")->isVisible());
}

TEST_F(Opstartproef, EenGroepKiezenToontHaar)
{
    Start();
    // A display reads the settings before it writes them.
    const auto keren = [this](const char* wat) {
        return std::count(geheugen.log.begin(), geheugen.log.end(),
                          Tekst(wat) + " C:\\RVD\\Admin\\Plexo.ini");
    };
    const auto getoond = [&](const std::function<void()>& kies) {
        geheugen.log.clear();
        kies();
        return keren("lees");
    };
    QComboBox* cmbGr = Keus("cmbGr");
    EXPECT_LE(1, getoond([&] { KiesUit(cmbGr, 3); }));
    EXPECT_LE(1, getoond([&] { KiesUit(cmbGr, 3); })) << "nog eens";
    EXPECT_LE(1, getoond([&] { QTest::keyClick(cmbGr, Qt::Key_Down); }));
    QApplication::processEvents();
    EXPECT_LE(1, getoond([&] { cmbGr->setCurrentIndex(6); }));
    EXPECT_EQ(1, keren("schrijf"));
    EXPECT_EQ(7, GetoondeGroep());
}

TEST_F(Opstartproef, DeVasteTekstenEnVinkjes)
{
    ASSERT_EQ(std::nullopt, Laad());
    EXPECT_EQ("Onderhoud Plexoran[*]", venster->windowTitle().toStdString());
    EXPECT_FALSE(venster->isWindowModified());
    EXPECT_EQ("Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\n"
              "Bij het opzetten van de zitting moet u kiezen uit deze spelers.",
              Label("lblToel")->text().toStdString());
    EXPECT_EQ("Kies spelergroep:", Label("Label1")->text().toStdString());
    EXPECT_TRUE(Vink("chkKolBr")->isChecked());
    EXPECT_FALSE(Vink("chkToonAlle")->isChecked());
}

// ---- The scoring program ----------------------------------------------------------------------

TEST_F(Opstartproef, DeDatamapVanHetRekenprogrammaDatErIsOfWordtGekozen)
{
    Lees();
    EXPECT_EQ("", administratie.DataMap);
    winkel.Zet("Bridge-It", "DataRoot", "C:\\Bridge");
    Lees();
    EXPECT_EQ("C:\\Bridge\\data", administratie.DataMap);
    winkel.Zet("NBB-Rekenprogramma", "DataRoot", "C:\\NBBR");
    wachter.Bedien([](QDialog& keus) {
        EXPECT_EQ("diaRekProgkeus", keus.objectName().toStdString());
        Klik(Vind<QRadioButton>(keus, "Option1"), {8, 8});
        Druk(keus, "cmdOK");
    });
    Lees();
    EXPECT_EQ("C:\\NBBR\\data", administratie.DataMap);
}
