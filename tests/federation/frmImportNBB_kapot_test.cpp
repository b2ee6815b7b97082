// Bad input through the real window: the user reads in Dutch what is wrong with a member file, and
// table, register file and folder of the program stay as they were. What is refused, and that it is
// refused in time, the tests of the readers say.
#include "federation/importproef.h"

#include "federation/frmImportNBB.h"
#include "hulp/accessgegevens.h"

using namespace plexoran;

namespace {

namespace fs = std::filesystem;

const std::string map = "Bestanden/NBB4-Leden/";
const QString Documenttype =
    u"een documenttype (DOCTYPE) hoort niet in een ledenbestand (teken 11 van die regel)"_s;

/// An export of which the only member refers to what its document type says.
std::string Lijstdocument(const std::string& documenttype)
{
    return "<?xml version=\"1.0\"?>\n" + documenttype +
           "\n<ReportableMembersList><Members><ReportableMember><a>&x;</a></ReportableMember>"
           "</Members></ReportableMembersList>\n";
}

class KapotTest : public Importproef {
  protected:
    void AllesIsGebleven()
    {
        EXPECT_EQ(oud, suite.Spelers());
        EXPECT_EQ(148, administratie.spelers.tabel.Rijen());
        EXPECT_FALSE(venster->isWindowModified());
        EXPECT_TRUE(venster->isVisible());
        EXPECT_TRUE(suite.Namen("Programma").empty());
    }

    /// Imports one file, of which the box says what is wrong. An export of NBBR-4 then has no
    /// members; any other ends the import.
    void EisFout(
        const char* optie, const std::string& naam, const QString& oorzaak,
        const QString& waar = {}, const std::function<void()>& intussen = [] {},
        const QString& raad = u"Exporteer het opnieuw"_s)
    {
        SCOPED_TRACE(optie + naam);
        const bool vier = std::string("Option4") == optie;
        Verwacht([&](QDialog& dia) {
            KiesOptie(dia, optie);
            Lijst(dia)->selectAll();
            EXPECT_EQ(1, Lijst(dia)->Aantal());
            intussen();
            Druk(dia, "cmdImporteer");
            EXPECT_NE(vier, dia.isVisible());
        });
        const QString soort = vier                              ? u"NBB4-XML"_s
                              : std::string("Option3") == optie ? u"NBB3-XML"_s
                                                                : u"CSV"_s;
        wachter.Waarschuwing(
            u"Fout bij het lezen van '%1' %2-bestand\r\n%3; er is niets uit geïmporteerd. "
            "%6 of kies een ander ledenbestand.\r\n\r\nBestand: %4%5"_s.arg(
                QString::fromStdString(naam), soort, oorzaak,
                QString::fromStdString(suite.Toonpad(fs::path(map) / naam)), waar, raad));
        if (vier) {
            VerwachtImport(QString::fromStdString(naam.substr(0, naam.find_first_of(" ."))), 0, 0,
                           0);
        }
        Importeer();
        AllesIsGebleven();
    }
    void EisInhoudsfout(const char* optie, const std::string& naam, int regel, const QString& wat)
    {
        EisFout(optie, naam, u"Het ledenbestand kan niet worden gelezen"_s,
                (regel > 0 ? u"\nRegel: %1"_s.arg(regel) : QString()) + u"\nOorzaak: "_s + wat);
    }
};

} // namespace

/// Each line ten times the one before it: a thousand million times the word, if it were expanded.
TEST_F(KapotTest, EenDocumentDatZouZwellen)
{
    std::string type = "<!DOCTYPE l [<!ENTITY a0 \"lol\">";
    for (int i = 1; i <= 9; ++i) {
        type += "<!ENTITY a" + std::to_string(i) + " \"";
        for (int j = 0; j < 10; ++j)
            type += "&a" + std::to_string(i - 1) + ";";
        type += "\">";
    }
    ZetExport("Lach.xml", Lijstdocument(type + "<!ENTITY x \"&a9;\">]>"));
    EisInhoudsfout("Option3", "Lach.xml", 2, Documenttype);
}

/// Nothing that a document names is ever fetched, least of all the register itself.
TEST_F(KapotTest, EenVerwijzingNaarEenAnderBestand)
{
    ZetExport("Gluur.xml",
              Lijstdocument("<!DOCTYPE l SYSTEM \"http://club.example/l.dtd\" [<!ENTITY x SYSTEM "
                            "\"file://" +
                            (suite.Weg() / "Spelers/RVDspelers.txt").string() +
                            "\"><!ENTITY y \"<LeagueId>\">]>"));
    EisInhoudsfout("Option4", "Gluur.xml", 2, Documenttype);
}

/// The huge ones take no room on the disk.
TEST_F(KapotTest, WatGeenTekstIsOfReusachtig)
{
    ZetExport("Nul.csv", std::string("1;V;An;;;Bos;;;;;;\r\n\0", 21));
    EisInhoudsfout("Option2", "Nul.csv", 0, u"dit is geen tekstbestand"_s);
    suite.Verwijder(map + "Nul.csv");
    for (const char* naam : {"Groot.csv", "Groot.xml"}) {
        ZetExport(naam, "");
        fs::resize_file(suite.Weg() / map / naam, 200'000'000);
    }
    const QString teGroot = u"het bestand is te groot: meer dan 64 MB"_s;
    EisInhoudsfout("Option2", "Groot.csv", 0, teGroot);
    EisInhoudsfout("Option3", "Groot.xml", 0, teGroot);
    EisInhoudsfout("Option4", "Groot.xml", 0, teGroot);
}

TEST_F(KapotTest, EenBestandZonderRechten)
{
    ZetExport("Dicht.csv", "1;V;An;;;Bos;;;;;;\r\n");
    schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("Dicht.csv"); });
    EisFout(
        "Option2", "Dicht.csv", u"Het bestand hieronder kan niet worden gelezen of geschreven"_s,
        u"\nMelding van het systeem: geen toegang"_s, [] {}, u"Verhelp de oorzaak"_s);
}

TEST_F(KapotTest, EenBestandDatVerdwijntTerwijlHetInDeLijstStaat)
{
    for (const auto& [optie, naam] : {std::pair{"Option2", "Maandag 20260901.csv"},
                                      std::pair{"Option3", "Donderdag 20260901.xml"},
                                      std::pair{"Option4", "Zomer 20260901.xml"}}) {
        ZetExport(naam, suite.Inhoud(std::string("Ledenbestanden/") + naam));
        EisFout(optie, naam, u"Het bestand is er niet (meer)"_s, {},
                [&, naam = naam] { suite.Verwijder(map + naam); });
    }
}

TEST_F(KapotTest, DeDatabaseGaatStukTerwijlHaarLijstErStaat)
{
    const fs::path database = "Rekenprogramma/data/Members.mdb";
    StartMetDatabase();
    for (const bool beschadigd : {true, false}) {
        Verwacht([&](QDialog& dia) {
            KiesOptie(dia, "Option1");
            Lijst(dia)->selectAll();
            suite.Verwijder(database);
            if (beschadigd)
                suite.Zet(database, LeesAlsBytes(Accessbestand("bad/no-table-leden.mdb")));
            Druk(dia, "cmdImporteer");
            EXPECT_TRUE(dia.isVisible());
        });
        wachter.Waarschuwing(
            u"Fout bij het lezen van het ledenbestand (alle items)!\r\n%1; er is niets uit "
            "geïmporteerd. Kies zo nodig een geëxporteerd ledenbestand.\r\n\r\nBestand: %2%3"_s.arg(
                beschadigd ? u"Het ledenbestand kan niet worden gelezen"_s
                           : u"Het bestand is er niet (meer)"_s,
                QString::fromStdString(suite.Toonpad(database)),
                beschadigd ? u"\nOorzaak: de tabel \"leden\" ontbreekt"_s : QString()));
        Importeer();
        AllesIsGebleven();
    }
}

/// Of one the list is there, of the other the child that reads it hangs: 10 seconds, for the user.
TEST_F(KapotTest, EenBeschadigdeDatabase)
{
    StartMetDatabase();
    for (const char* naam : {"no-table-ledenbestanden.mdb", "repro-hang-propslist-len0.mdb"}) {
        const std::string bytes = LeesAlsBytes(Accessbestand(std::string("bad/") + naam));
        suite.Zet("Rekenprogramma/data/Members.mdb", bytes);
        Verwacht([](QDialog& dia) {
            Accessgrenzen grenzen;
            grenzen.zonderVoortgang = std::chrono::milliseconds(1'500);
            dynamic_cast<frmImportNBB&>(dia).ZetGrenzen(grenzen);
            KiesOptie(dia, "Option1");
            EXPECT_EQ(0, Lijst(dia)->Aantal());
        });
        wachter.Begin(
            u"Fout bij het lezen van de ledenbestanden!\r\nDe database met de ledenbestanden kan "
            "niet worden gelezen; er is niets geïmporteerd. Kies zo nodig een geëxporteerd "
            "ledenbestand.\n\nBestand: "_s);
        Importeer();
        EXPECT_EQ(bytes, suite.Inhoud("Rekenprogramma/data/Members.mdb"));
        AllesIsGebleven();
    }
}
