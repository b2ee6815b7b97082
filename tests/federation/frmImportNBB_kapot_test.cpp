// Bad input through the real window: whatever a member file holds, the user reads in Dutch what is
// wrong with it, and table, register file and folder of the program stay as they were.
#include "federation/importproef.h"

#include <QElapsedTimer>

#include <algorithm>
#include <random>

#include "federation/frmImportNBB.h"
#include "hulp/accessgegevens.h"

using namespace plexoran;

namespace {

namespace fs = std::filesystem;

/// Longer than anything a user should have to wait for.
constexpr qint64 TeLang = 15'000; // milliseconds

class KapotTest : public Importproef {
  protected:
    /// Every question is answered with Annuleren, every other box with OK and kept.
    void LaatBeslissen()
    {
        wachter.ZetGeduld(static_cast<int>(TeLang));
        sinds.start();
        wachter.LaatBeslissen([this](const QMessageBox& box) {
            EXPECT_LT(sinds.elapsed(), TeLang) << box.text().toStdString();
            sinds.start();
            const std::string tekst = box.text().toStdString();
            if (tekst.starts_with("U gaat van '")) {
                ++vragen;
                return u"Annuleren"_s;
            }
            const bool zonderBestanden =
                tekst.starts_with("In de database van het rekenprogramma staat geen enkel");
            if (zonderBestanden) { // which is no damage
                EXPECT_EQ(QMessageBox::Information, box.icon());
                return u"OK"_s;
            }
            EXPECT_EQ(QMessageBox::Warning, box.icon()) << tekst;
            EXPECT_TRUE(IsVerklaard(tekst)) << tekst;
            berichten.push_back(tekst);
            return u"OK"_s;
        });
    }

    /// Says of which file, and what it means for the import.
    static bool IsVerklaard(const std::string& tekst)
    {
        const auto heeft = [&](const char* deel) { return tekst.find(deel) != std::string::npos; };
        if (tekst.starts_with("Fout bij het lezen van de ledenbestanden!\r\n"))
            return heeft("\n\nBestand: ");
        if (tekst.starts_with("Fout bij het lezen van "))
            return heeft("; er is niets uit geïmporteerd. ") && heeft("\r\n\r\nBestand: ");
        return (tekst.starts_with("Regel ") && heeft("Er is nog niets geïmporteerd")) ||
               (tekst.starts_with("'") && heeft(" is opgeslagen in UTF-8"));
    }

    /// Imports the whole list, a file that cannot be read after the other left out, as a user would
    /// who wants the rest. Every file gets its box or its question.
    void ImporteerAlles(const char* optie)
    {
        std::vector<std::string> over;
        const auto kies = [&](QDialog& dia) {
            Lijst(dia)->clearSelection();
            for (int i = 0; i < Lijst(dia)->Aantal(); ++i) {
                if (std::find(over.begin(), over.end(),
                              Bestanden(dia)[static_cast<std::size_t>(i)]) != over.end())
                    Lijst(dia)->Kies({i});
            }
        };
        Verwacht([&](QDialog& dia) {
            KiesOptie(dia, optie);
            over = Bestanden(dia);
            kies(dia);
            aantal = static_cast<int>(over.size());
            while (dia.isVisible() && !over.empty()) {
                const int gevraagd = vragen;
                const std::size_t gemeld = berichten.size();
                Druk(dia, "cmdImporteer");
                if (!dia.isVisible())
                    break; // all of them were asked about
                // The last box is that of the file at which it ended.
                ASSERT_LT(gemeld, berichten.size());
                ++fouten;
                over.erase(over.begin(), over.begin() + (vragen - gevraagd) + 1);
                ASSERT_EQ(nullptr, QGuiApplication::overrideCursor());
                kies(dia);
            }
            if (dia.isVisible())
                Druk(dia, "cmdAnnuleren");
        });
        LaatBeslissen();
        Importeer();
        EXPECT_EQ(aantal, vragen + fouten) << optie;
        AllesIsGebleven();
    }

    void AllesIsGebleven()
    {
        EXPECT_EQ(oud, suite.Spelers());
        EXPECT_EQ(148, administratie.spelers.tabel.Rijen());
        EXPECT_FALSE(venster->isWindowModified());
        EXPECT_TRUE(venster->isVisible());
        for (const std::string& naam : suite.Namen("Programma"))
            EXPECT_TRUE(fs::path(naam).extension() == ".csv") << naam; // of the database it stays
    }

    /// One file that cannot be read, with the whole text of its box.
    void EisFout(const char* optie, const std::string& naam, const QString& fout)
    {
        Verwacht([&](QDialog& dia) {
            KiesOptie(dia, optie);
            Lijst(dia)->selectAll();
            EXPECT_EQ(1, Lijst(dia)->Aantal());
            Druk(dia, "cmdImporteer");
            EXPECT_TRUE(dia.isVisible());
            Druk(dia, "cmdAnnuleren");
        });
        const QString pad =
            QString::fromStdString(suite.Toonpad(fs::path("Bestanden/NBB4-Leden") / naam));
        wachter.Waarschuwing(QString(fout).replace(u"<pad>"_s, pad));
        QElapsedTimer klok;
        klok.start();
        Importeer();
        EXPECT_LT(klok.elapsed(), TeLang);
        AllesIsGebleven();
    }
    /// The same for NBBR-4, where it is an empty list.
    void EisGeenLeden(const std::string& naam, const QString& fout)
    {
        Verwacht([&](QDialog& dia) {
            KiesOptie(dia, "Option4");
            Lijst(dia)->selectAll();
            EXPECT_EQ(1, Lijst(dia)->Aantal());
            Druk(dia, "cmdImporteer");
        });
        const QString pad =
            QString::fromStdString(suite.Toonpad(fs::path("Bestanden/NBB4-Leden") / naam));
        wachter.Waarschuwing(QString(fout).replace(u"<pad>"_s, pad));
        VerwachtVraag(QString::fromStdString(naam.substr(0, naam.find_first_of(" ."))), 0);
        VerwachtAantallen(0, 0);
        Importeer();
        AllesIsGebleven();
    }
    /// What every box says between the cause and where it is.
    static QString Vervolg()
    {
        return u"; er is niets uit geïmporteerd. Exporteer het opnieuw of kies een ander "
               "ledenbestand.\r\n\r\n"_s;
    }
    static QString Fouttekst(const std::string& naam, const char* soort, const QString& rest)
    {
        return u"Fout bij het lezen van '%1' %2-bestand\r\n"_s.arg(QString::fromStdString(naam),
                                                                   QString::fromLatin1(soort)) +
               rest;
    }
    static QString Documenttypefout()
    {
        return Inhoudsfout(
            u"Regel: 2\n"_s,
            u"een documenttype (DOCTYPE) hoort niet in een ledenbestand (teken 11 van die "
            "regel)"_s);
    }
    static QString Inhoudsfout(const QString& plaats, const QString& oorzaak)
    {
        return u"Het ledenbestand kan niet worden gelezen"_s + Vervolg() + u"Bestand: <pad>\n"_s +
               plaats + u"Oorzaak: "_s + oorzaak;
    }

    /// The same bytes, some of them other ones, gone or twice there.
    static std::string Verminkt(std::string inhoud, unsigned zaad)
    {
        std::mt19937 toeval(zaad);
        const auto tot = [&](std::size_t grens) { return toeval() % grens; };
        for (unsigned keer = 0; keer <= zaad % 4; ++keer) {
            const std::size_t plaats = tot(inhoud.size());
            const auto byte = static_cast<char>(tot(256));
            const std::size_t lang = std::min<std::size_t>(1 + tot(60), inhoud.size() - plaats);
            switch (tot(4)) {
            case 0:
                inhoud[plaats] = byte;
                break;
            case 1:
                inhoud.insert(plaats, 1, byte);
                break;
            case 2:
                inhoud.erase(plaats, lang);
                break;
            default:
                inhoud.insert(plaats, inhoud.substr(plaats, lang));
            }
        }
        return inhoud;
    }
    /// Puts variants of the samples with this extension in the folder: cut off and mutilated.
    void ZetVarianten(const char* extensie)
    {
        for (const auto& naam : suite.Namen("Ledenbestanden")) {
            if (!naam.ends_with(extensie))
                continue;
            const std::string heel = suite.Inhoud("Ledenbestanden/" + naam);
            const std::string begin = naam.substr(0, naam.find(' '));
            for (unsigned i = 0; i < 12; ++i) {
                const std::string nummer = " " + std::to_string(10 + i);
                ZetExport(begin + nummer + "af" + extensie,
                          heel.substr(0, heel.size() * i / 12 + i % 3));
                ZetExport(begin + nummer + "om" + extensie, Verminkt(heel, i));
            }
        }
    }

    void ZetDatabase(const std::string& inhoud)
    {
        suite.Zet("Rekenprogramma/data/Members.mdb", inhoud);
    }
    void StartMetDatabase()
    {
        winkel.Zet("NBB-Rekenprogramma", "DataRoot", (suite.Weg() / "Rekenprogramma").string());
        Herstart();
    }
    /// A damaged database: an error when its member files are listed, or else one per file or the
    /// question.
    void ImporteerUitDatabase(const std::string& naam)
    {
        SCOPED_TRACE(naam);
        ZetDatabase(LeesAlsBytes(Accessbestand("bad/" + naam)));
        const std::string vooraf = suite.Inhoud("Rekenprogramma/data/Members.mdb");
        vragen = 0;
        fouten = 0;
        berichten.clear();
        Verwacht([&](QDialog& dia) {
            // A child that hangs is given up sooner than for the user, to whom it is 10 seconds.
            Accessgrenzen grenzen;
            grenzen.zonderVoortgang = std::chrono::milliseconds(1'500);
            dynamic_cast<frmImportNBB&>(dia).ZetGrenzen(grenzen);
            KiesOptie(dia, "Option1");
            aantal = Lijst(dia)->Aantal();
            Lijst(dia)->selectAll();
            if (aantal > 0)
                Druk(dia, "cmdImporteer");
            if (dia.isVisible())
                Druk(dia, "cmdAnnuleren");
        });
        LaatBeslissen();
        Importeer();
        // No file to choose from, an error that ends the run, or a question for each.
        EXPECT_TRUE(vragen == aantal || !berichten.empty());
        EXPECT_EQ(vooraf, suite.Inhoud("Rekenprogramma/data/Members.mdb"));
        AllesIsGebleven();
        gelezen += vragen;
        geweigerd += berichten.empty() ? 0 : 1;
    }

    QElapsedTimer sinds;
    std::vector<std::string> berichten;
    int aantal = 0; ///< files in the list
    int vragen = 0;
    int fouten = 0; ///< files at which the import ended
    int gelezen = 0;
    int geweigerd = 0;
};

const std::string member = "<ReportableMember><LeagueId>&x;</LeagueId></ReportableMember>";

std::string Nbb3(std::string lid)
{
    const auto plaats = lid.find("LeagueId");
    if (plaats != std::string::npos) {
        lid.replace(lid.find("LeagueId"), 8, "a");
        lid.replace(lid.find("LeagueId"), 8, "a");
    }
    return lid;
}

std::string Lijstdocument(const std::string& documenttype, const std::string& lid)
{
    return "<?xml version=\"1.0\"?>\n" + documenttype + "\n<ReportableMembersList><Members>" + lid +
           "</Members></ReportableMembersList>\n";
}

} // namespace

TEST_F(KapotTest, AfgekapteEnVerminkteCsv)
{
    ZetVarianten(".csv");
    ImporteerAlles("Option2");
    EXPECT_EQ(48, aantal);
    EXPECT_GT(vragen, 20);
    EXPECT_FALSE(berichten.empty());
}

TEST_F(KapotTest, AfgekapteEnVerminkteXmlVanNbbr3)
{
    ZetVarianten(".xml");
    ImporteerAlles("Option3");
    EXPECT_GT(aantal, 20);
    EXPECT_GT(vragen, 0);
    EXPECT_GT(fouten, 10);
}

TEST_F(KapotTest, AfgekapteEnVerminkteXmlVanNbbr4)
{
    ZetVarianten(".xml");
    ImporteerAlles("Option4");
    EXPECT_GT(aantal, 40);
    EXPECT_EQ(aantal, vragen) << "wat niet te laden is, heeft geen leden";
    EXPECT_GT(berichten.size(), 20U);
}

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
    type += "<!ENTITY x \"&a9;\">]>";
    ZetExport("Lach.xml", Lijstdocument(type, Nbb3(member)));
    EisFout("Option3", "Lach.xml", Fouttekst("Lach.xml", "NBB3-XML", Documenttypefout()));
    ZetExport("Lach.xml", Lijstdocument(type, member));
    EisGeenLeden("Lach.xml", Fouttekst("Lach.xml", "NBB4-XML", Documenttypefout()));
}

/// Nothing that a document names is ever fetched, least of all the register itself.
TEST_F(KapotTest, EenVerwijzingNaarEenAnderBestand)
{
    const std::string type = "<!DOCTYPE l SYSTEM \"http://club.example/l.dtd\" [<!ENTITY x SYSTEM "
                             "\"file://" +
                             (suite.Weg() / "Spelers/RVDspelers.txt").string() + "\">]>";
    ZetExport("Gluur.xml", Lijstdocument(type, Nbb3(member)));
    EisFout("Option3", "Gluur.xml", Fouttekst("Gluur.xml", "NBB3-XML", Documenttypefout()));
    ZetExport("Gluur.xml", Lijstdocument(type, member));
    EisGeenLeden("Gluur.xml", Fouttekst("Gluur.xml", "NBB4-XML", Documenttypefout()));
}

/// They take no room on the disk, but are read from end to end.
TEST_F(KapotTest, BestandenVanZestigMegabyte)
{
    constexpr std::uintmax_t groot = 60'000'000;
    const auto maakGroot = [this](const char* naam) {
        fs::resize_file(suite.Weg() / "Bestanden/NBB4-Leden" / naam, groot);
    };
    ZetExport("Groot.csv", "1;V;An;;;Bos;;;;;;\r\n");
    maakGroot("Groot.csv");
    EisFout("Option2", "Groot.csv",
            Fouttekst("Groot.csv", "CSV", Inhoudsfout({}, u"dit is geen tekstbestand"_s)));
    const QString oorzaak = Inhoudsfout(
        u"Regel: 4\n"_s, u"hier staat geen teken dat in XML mag (teken 1 van die regel)"_s);
    const std::string drie = Lijstdocument("", Nbb3(member));
    ZetExport("Groot.xml", drie);
    maakGroot("Groot.xml");
    EisFout("Option3", "Groot.xml", Fouttekst("Groot.xml", "NBB3-XML", oorzaak));
    const std::string vier = Lijstdocument("", member);
    ZetExport("Groot.xml", vier);
    maakGroot("Groot.xml");
    EisGeenLeden("Groot.xml", Fouttekst("Groot.xml", "NBB4-XML", oorzaak));
}

TEST_F(KapotTest, BestandenVanTweehonderdMegabyteWordenNietGelezen)
{
    const QString oorzaak = Inhoudsfout({}, u"het bestand is te groot: meer dan 64 MB"_s);
    for (const char* naam : {"Groot.csv", "Groot.xml"}) {
        ZetExport(naam, "");
        fs::resize_file(suite.Weg() / "Bestanden/NBB4-Leden" / naam, 200'000'000);
    }
    EisFout("Option2", "Groot.csv", Fouttekst("Groot.csv", "CSV", oorzaak));
    EisFout("Option3", "Groot.xml", Fouttekst("Groot.xml", "NBB3-XML", oorzaak));
    EisGeenLeden("Groot.xml", Fouttekst("Groot.xml", "NBB4-XML", oorzaak));
}

TEST_F(KapotTest, EenBestandZonderRechten)
{
    ZetExport("Dicht.csv", "1;V;An;;;Bos;;;;;;\r\n");
    schijf.Vooraf([](const Pad& pad) { return !pad.ends_with("Dicht.csv"); });
    EisFout("Option2", "Dicht.csv",
            Fouttekst(
                "Dicht.csv", "CSV",
                u"Het bestand hieronder kan niet worden gelezen of geschreven; er is niets uit "
                "geïmporteerd. Verhelp de oorzaak of kies een ander ledenbestand.\r\n\r\nBestand: "
                "<pad>\nMelding van het systeem: geen toegang"_s));
}

TEST_F(KapotTest, EenBestandDatVerdwijntTerwijlHetInDeLijstStaat)
{
    for (const auto& [optie, soort, naam] :
         {std::tuple{"Option2", "CSV", "Maandag 20260901.csv"},
          std::tuple{"Option3", "NBB3-XML", "Donderdag 20260901.xml"},
          std::tuple{"Option4", "NBB4-XML", "Zomer 20260901.xml"}}) {
        SCOPED_TRACE(naam);
        ZetExport(naam, suite.Inhoud(std::string("Ledenbestanden/") + naam));
        const bool vier = std::string("Option4") == optie;
        Verwacht([&, optie = optie, naam = naam](QDialog& dia) {
            KiesOptie(dia, optie);
            Lijst(dia)->selectAll();
            suite.Verwijder(std::string("Bestanden/NBB4-Leden/") + naam);
            Druk(dia, "cmdImporteer");
            EXPECT_NE(vier, dia.isVisible());
            if (!vier)
                Druk(dia, "cmdAnnuleren");
        });
        const QString pad =
            QString::fromStdString(suite.Toonpad(fs::path("Bestanden/NBB4-Leden") / naam));
        wachter.Waarschuwing(Fouttekst(
            naam, soort, u"Het bestand is er niet (meer)"_s + Vervolg() + u"Bestand: "_s + pad));
        if (vier) {
            VerwachtVraag(u"Zomer"_s, 0);
            VerwachtAantallen(0, 0);
        }
        Importeer();
        AllesIsGebleven();
    }
}

TEST_F(KapotTest, DeDatabaseVerdwijntTerwijlHaarLijstErStaat)
{
    StartMetDatabase();
    Verwacht([this](QDialog& dia) {
        KiesOptie(dia, "Option1");
        Lijst(dia)->selectAll();
        suite.Verwijder("Rekenprogramma/data/Members.mdb");
        Druk(dia, "cmdImporteer");
        EXPECT_TRUE(dia.isVisible());
        Druk(dia, "cmdAnnuleren");
    });
    wachter.Waarschuwing(
        u"Fout bij het lezen van het ledenbestand (alle items)!\r\nHet bestand is er niet (meer); "
        "er is niets uit geïmporteerd. Kies zo nodig een geëxporteerd ledenbestand.\r\n\r\n"
        "Bestand: %1"_s.arg(
            QString::fromStdString(suite.Toonpad("Rekenprogramma/data/Members.mdb"))));
    Importeer();
    AllesIsGebleven();
}

/// Of the 29 databases these two take the time that they are given.
const std::vector<std::string> langzaam{"repro-hang-propslist-len0.mdb",
                                        "repro-memory-prop-reclen0.mdb"};

TEST_F(KapotTest, ElkeBeschadigdeDatabase)
{
    StartMetDatabase();
    int gezien = 0;
    for (const auto& plaats : fs::directory_iterator(Accessbestand("bad"))) {
        const std::string naam = plaats.path().filename().string();
        if (std::find(langzaam.begin(), langzaam.end(), naam) != langzaam.end())
            continue;
        ASSERT_NO_FATAL_FAILURE(ImporteerUitDatabase(naam));
        ++gezien;
    }
    EXPECT_EQ(27, gezien);
    EXPECT_GT(gelezen, 0) << "een paar zijn heel genoeg";
    EXPECT_GT(geweigerd, 8);
}

TEST_F(KapotTest, EenDatabaseDieHetLezenOphoudt)
{
    StartMetDatabase();
    for (const std::string& naam : langzaam)
        ASSERT_NO_FATAL_FAILURE(ImporteerUitDatabase(naam));
    EXPECT_EQ(2, geweigerd);
}
