#include "federation/ledenbestand.h"

#include <algorithm>
#include <ctime>
#include <random>

#include "hulp/fouten.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"
#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

using Lijst = std::vector<Tekst>;

Ledenopdracht Opdracht(Ledenbron bron)
{
    return {.bron = bron,
            .map = "C:\\Export",
            .programmamap = "C:\\P",
            .LedenDatabase = "C:\\Data\\Members.mdb"};
}

Tekst Xml(const Tekst& leden)
{
    return "<ReportableMembersList><Members>" + leden + "</Members></ReportableMembersList>";
}

/// One member file on a disk.
class LeesLedenbestandTest : public testing::Test {
  protected:
    LeesLedenbestandTest() { schijf.ZetMap("C:\\P"); }

    void Zet(const Tekst& naam, const Tekst& inhoud) { schijf.Zet("C:\\Export\\" + naam, inhoud); }
    auto Lees(Ledenbron bron, Tekstblik naam)
    {
        return LeesLedenbestand(schijf, Opdracht(bron), naam);
    }

    GeheugenSchijf schijf;
};

TEST(SubgroepUitNaam, TotDeEersteSpatieOfAndersDeEerstePunt)
{
    for (const auto& [naam, subgroep] : {std::pair{"Club.csv", "Club"},
                                         {"Club 30.csv", "Club"},
                                         {"Club 20170125.csv", "Club"},
                                         {"Club Nijmegen.xml", "Club"},
                                         {"Club 007", "Club"},
                                         {"B.C. Club.csv", "B.C."}, // the blank comes first
                                         {"B.C.csv", "B"},
                                         {"Club", "Club"},
                                         {" Club.csv", ""},
                                         {"", ""}})
        EXPECT_EQ(SubgroepUitNaam(naam), subgroep) << naam;
    EXPECT_EQ(Tussenbestand("F", "Club"), "F\\Club Temp-NBBXMLtoCSV.csv");
}

TEST_F(LeesLedenbestandTest, EenCsvRechtstreeksUitDeMap)
{
    Zet("Club 30.csv", "a=b\r\n1;V;Ans;A.;;Ek;;;;;;\r\n2;;C\r\n");
    const auto lezing = Lees(Ledenbron::Csv, "Club 30.csv");
    ASSERT_TRUE(lezing.has_value());
    EXPECT_EQ(lezing->lstN1, Lijst{"Ans,,Ek,,,,,,,V,1"});
    EXPECT_EQ(lezing->teKorteRegel, 3);
    EXPECT_EQ(lezing->metIsTeken, Lijst{"a=b"});
    EXPECT_EQ(schijf.AlleBestanden().size(), 1U) << "zonder tussenbestand";
}

TEST_F(LeesLedenbestandTest, XmlLangsHetTussenbestandDatBlijftStaan)
{
    Zet("Club 30.xml",
        Xml("<ReportableMember><LeagueId>1</LeagueId><Achternaam>Partner van "
            "\xC5\x90s</Achternaam></ReportableMember>"
            "<ReportableMember><LeagueId>2</LeagueId><Email>a=b</Email></ReportableMember>"
            "<ReportableMember/>"));
    const auto vier = Lees(Ledenbron::XmlNbb4, "Club 30.xml");
    ASSERT_TRUE(vier.has_value());
    EXPECT_EQ(vier->lstN1, (Lijst{",,Partner_van_Os,,,,,,,,1", ",,,,,,,,,,"}));
    EXPECT_EQ(vier->metIsTeken, Lijst{"2;;;;;;;;;;a=b;;;;;;"});
    EXPECT_EQ(vier->vervangenTekens, 1U);
    EXPECT_FALSE(vier->nietGeladen.has_value());
    EXPECT_EQ(
        schijf.Inhoud("C:\\P\\Club Temp-NBBXMLtoCSV.csv"),
        "1;;;;;Partner_van_Os;;;;;;;;;;;\r\n2;;;;;;;;;;a=b;;;;;;\r\n;;;;;;;;;;;;;;;;\r\n\r\n");
    const auto drie = Lees(Ledenbron::XmlNbb3, "Club 30.xml");
    ASSERT_TRUE(drie.has_value());
    EXPECT_EQ(drie->lstN1, (Lijst{",,1,Partner van Os,,,,,,,", ",,,,,,,,,,"}));
}

TEST_F(LeesLedenbestandTest, DeVakjesGeldenOokVoorXml)
{
    Zet("Club.xml", Xml("<ReportableMember><LeagueId>1</LeagueId><Geslacht>Man</Geslacht>"
                        "<Adres>Brink 1</Adres><Telefoon1>06</Telefoon1><Email>e</Email>"
                        "<Achternaam>Ek</Achternaam></ReportableMember>"));
    auto opdracht = Opdracht(Ledenbron::XmlNbb4);
    opdracht.keuzes = {.naw = false, .tel = true, .email = false, .mv = true};
    EXPECT_EQ(LeesLedenbestand(schijf, opdracht, "Club.xml")->lstN1, Lijst{",,Ek,,,,06,,,M,1"});
}

TEST_F(LeesLedenbestandTest, EenFoutLaatNietsLezen)
{
    // Left by an earlier reading: must not be taken for this file's members.
    schijf.Zet("C:\\P\\Club Temp-NBBXMLtoCSV.csv", "9;;;;;Oud;;;;;;;;;;;\r\n\r\n");
    Zet("Club.xml", "geen xml");
    Zet("nul.csv", Tekst("1;;A;;;B\0;;;;;;", 15));
    for (const auto& [bron, naam, soort] :
         {std::tuple{Ledenbron::XmlNbb3, "Club.xml", Foutsoort::Beschadigd},
          {Ledenbron::Csv, "weg.csv", Foutsoort::Ontbreekt},
          {Ledenbron::Csv, "nul.csv", Foutsoort::Beschadigd}}) {
        const Fout fout = FoutVan(Lees(bron, naam));
        EXPECT_EQ(fout.soort, soort) << naam;
        EXPECT_EQ(fout.bestand, Samen("C:\\Export", naam));
    }
    EXPECT_FALSE(Lees(Ledenbron::Database, "Club 007").has_value());
    const auto vier = Lees(Ledenbron::XmlNbb4, "Club.xml");
    ASSERT_TRUE(vier.has_value());
    EXPECT_TRUE(vier->lstN1.empty());
    EXPECT_TRUE(vier->nietGeladen.has_value());
}

/// A disk whose files say that they are huge.
class ReuzenSchijf : public GeheugenSchijf {
  public:
    Uitkomst<Stempel> NeemStempel(const Pad& pad) override
    {
        return GeheugenSchijf::NeemStempel(pad).map([](Stempel stempel) {
            stempel.grootte = (std::uint64_t{64} << 20U) + 1;
            return stempel;
        });
    }
    Uitkomst<Tekst> LeesBestand(const Pad& /*pad*/) override
    {
        ADD_FAILURE() << "een te groot bestand wordt niet gelezen";
        return Tekst();
    }
};

TEST(LeesLedenbestand, EenReusachtigBestandWordtNietGelezen)
{
    ReuzenSchijf schijf;
    schijf.Zet("C:\\Export\\Club.csv", "1;;A;;;B;;;;;;");
    schijf.Zet("C:\\Export\\Club.xml", Xml("<ReportableMember></ReportableMember>"));
    for (const auto& [bron, naam] :
         {std::pair{Ledenbron::Csv, "Club.csv"}, std::pair{Ledenbron::XmlNbb3, "Club.xml"}}) {
        const Fout fout = FoutVan(LeesLedenbestand(schijf, Opdracht(bron), naam));
        EXPECT_EQ(fout.soort, Foutsoort::Beschadigd);
        EXPECT_NE(fout.systeem, "");
    }
    for (const Ledenbron bron : {Ledenbron::XmlNbb3, Ledenbron::XmlNbb4})
        EXPECT_EQ(BepaalXMLsoort(schijf, "C:\\Export", {"Club.xml"}, bron).size(), 1U)
            << "om te kunnen zeggen dat het te groot is";
}

/// Meant: the bytes are read as they stand, mark and all; the user only hears of it.
TEST_F(LeesLedenbestandTest, EenCsvInUtf8WordtByteVoorByteGelezenEnDatWordtGezegd)
{
    Zet("Club.csv", "\xEF\xBB\xBF\x31;;Zo\xC3\xAB;;;Ek;;;;;;\r\n");
    const auto lezing = Lees(Ledenbron::Csv, "Club.csv");
    EXPECT_EQ(lezing->lstN1, Lijst{"Zo\xC3\xAB,,Ek,,,,,,,,\xEF\xBB\xBF\x31"});
    EXPECT_TRUE(lezing->inUtf8);
    Zet("Club.csv", "\xFF\xFE\x31;;Zo\xEB;;;Ek;;;;;;\r\n");
    EXPECT_FALSE(Lees(Ledenbron::Csv, "Club.csv")->inUtf8);
    // The way by the intermediate file is not asked: that is always of the code page.
    Zet("Club.xml", Xml("<ReportableMember><Plaats>\xC3\x83\xC2\xAB</Plaats></ReportableMember>"));
    const auto xml = Lees(Ledenbron::XmlNbb4, "Club.xml");
    EXPECT_EQ(xml->lstN1, Lijst{",,,,,\xC3\xAB,,,,,"});
    EXPECT_FALSE(xml->inUtf8);
}

TEST_F(LeesLedenbestandTest, TeltOverBeideStappenDoor)
{
    Tekst leden;
    for (int i = 0; i < 10'000; ++i)
        leden += "<ReportableMember/>";
    Zet("Club.xml", Xml(leden));
    std::vector<double> standen;
    const auto lezing = LeesLedenbestand(schijf, Opdracht(Ledenbron::XmlNbb4), "Club.xml",
                                         [&](std::size_t gedaan, std::size_t geheel) {
                                             standen.push_back(static_cast<double>(gedaan) /
                                                               static_cast<double>(geheel));
                                             return true;
                                         });
    EXPECT_EQ(lezing->lstN1.size(), 10'000U);
    ASSERT_GE(standen.size(), 4U);
    EXPECT_TRUE(std::is_sorted(standen.begin(), standen.end()));
    EXPECT_LT(standen.front(), 0.5);
    EXPECT_GT(standen.back(), 0.5);
    EXPECT_LE(standen.back(), 1.0);
}

using BepaalXMLsoortTest = LeesLedenbestandTest;

TEST_F(BepaalXMLsoortTest, HoudtAlleenDeBestandenVanDeGekozenSoort)
{
    const auto utf16 = [](const Tekst& tekst) {
        Tekst uit = "\xFF\xFE";
        for (const char teken : tekst) {
            uit += teken;
            uit += '\0';
        }
        return uit;
    };
    const Tekst drie = Xml("<ReportableMember><Naam>x</Naam></ReportableMember>");
    const Tekst vier = Xml("<ReportableMember><LeagueId>1</LeagueId></ReportableMember>");
    Zet("d.xml", drie);
    Zet("v.xml", vier);
    Zet("a.xml", vier);
    Zet("c.xml", drie);
    Zet("anders.xml", "<LeagueId>1</LeagueId>");
    Zet("hoofd.xml", "<REPORTABLEMEMBER><LeagueId>");
    Zet("leeg.xml", "");
    Zet("v16.xml", utf16(vier));
    Zet("d16.xml", utf16(drie));
    Zet("kapot.xml", "<ReportableMember>\xFF");
    // The mark of NBBR-4 is the opening tag: without one its members are read by position, and so
    // have no number.
    Zet("leegid.xml", Xml("<ReportableMember><LeagueId/></ReportableMember>"));
    const Lijst namen = {"v.xml", "d.xml",   "weg.xml", "anders.xml", "d16.xml",   "hoofd.xml",
                         "a.xml", "v16.xml", "c.xml",   "leeg.xml",   "kapot.xml", "leegid.xml"};
    EXPECT_EQ(BepaalXMLsoort(schijf, "C:\\Export", namen, Ledenbron::XmlNbb3),
              (Lijst{"d.xml", "d16.xml", "c.xml", "kapot.xml", "leegid.xml"}));
    EXPECT_EQ(BepaalXMLsoort(schijf, "C:\\Export", namen, Ledenbron::XmlNbb4),
              (Lijst{"v.xml", "a.xml", "v16.xml"}));
}

TEST_F(BepaalXMLsoortTest, MeldtElkBestandEnHoudtOpAlsHetMoet)
{
    const Lijst namen{"a.xml", "b.xml", "c.xml"};
    for (const Tekst& naam : namen)
        Zet(naam, Xml("<ReportableMember>x</ReportableMember>"));
    std::vector<std::size_t> standen;
    const auto tot = [&](std::size_t hoeveel) {
        return BepaalXMLsoort(schijf, "C:\\Export", namen, Ledenbron::XmlNbb3,
                              [&, hoeveel](std::size_t gedaan, std::size_t geheel) {
                                  EXPECT_EQ(geheel, 3U);
                                  standen.push_back(gedaan);
                                  return gedaan < hoeveel;
                              });
    };
    EXPECT_EQ(tot(3), namen);
    EXPECT_EQ(standen, (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(tot(2), (Lijst{"a.xml", "b.xml"}));
    EXPECT_EQ(tot(0), Lijst());
}

/// The sample exports as they stand in the repository.
class Voorbeelden : public LeesLedenbestandTest {
  protected:
    void SetUp() override
    {
        namespace fs = std::filesystem;
        for (const auto& item :
             fs::directory_iterator(fs::path(VOORBEELD) / "Bestanden/NBB4-Leden")) {
            std::ifstream bestand(item.path(), std::ios::binary);
            const Tekst inhoud(std::istreambuf_iterator<char>(bestand), {});
            namen_.push_back(item.path().filename().string());
            Zet(namen_.back(), inhoud);
        }
        std::sort(namen_.begin(), namen_.end());
    }

    Lijst namen_;
};

TEST_F(Voorbeelden, ZijnElkVanHunSoort)
{
    EXPECT_EQ(BepaalXMLsoort(schijf, "C:\\Export", namen_, Ledenbron::XmlNbb3),
              Lijst{"Donderdag 20260901.xml"});
    EXPECT_EQ(BepaalXMLsoort(schijf, "C:\\Export", namen_, Ledenbron::XmlNbb4),
              (Lijst{"Cursus 20260901.xml", "Zomer 20260901.xml"}));
}

TEST_F(Voorbeelden, DeCsvBestandenGevenHunLeden)
{
    const auto maandag = Lees(Ledenbron::Csv, "Maandag 20260901.csv").value();
    ASSERT_EQ(maandag.lstN1.size(), 8U);
    EXPECT_EQ(maandag.metIsTeken, Lijst{"LEDENBESTAND=Maandag;VERSIE=2.8"});
    EXPECT_EQ(maandag.lstN1[1], "Rob,van,Beukering,Graanstraat 23,0437 BC,Oud-Merwolde,010-0000298,"
                                "r.vanbeukering@thuispost.example,Nederland,M,91892044");
    EXPECT_EQ(maandag.lstN1[7],
              "Gonnie,,Gastvrouw,Brink 2,0411 JK,Wielerdam,06-00000607,,Nederland,V,");
    const auto dinsdag = Lees(Ledenbron::Csv, "Dinsdag 20260901.csv").value();
    ASSERT_EQ(dinsdag.lstN1.size(), 6U);
    EXPECT_TRUE(dinsdag.lstN1[0].ends_with(",91959164")) << "zonder de bytes van het merk";
}

TEST_F(Voorbeelden, DeXmlBestandenGevenHunLeden)
{
    const auto donderdag = Lees(Ledenbron::XmlNbb3, "Donderdag 20260901.xml").value();
    ASSERT_EQ(donderdag.lstN1.size(), 6U);
    EXPECT_EQ(donderdag.lstN1[4], "Jol\xE8ne,,Bru\xFFnzeele,Dorpsstraat 5,0423 DW,Elzenmade,"
                                  "06-00000622,j.bruynzeele@thuispost.example,,V,96608153");
    EXPECT_EQ(donderdag.lstN1[5], "Partner,,Partner van Otto,,,,,,,M,");
    const auto zomer = Lees(Ledenbron::XmlNbb4, "Zomer 20260901.xml").value();
    ASSERT_EQ(zomer.lstN1.size(), 7U);
    EXPECT_EQ(zomer.vervangenTekens, 2U);
    EXPECT_EQ(zomer.lstN1[3], "Gyongyi,,Dvor\xE1kova,Wilgenhof 3,0411 HK,Wielerdam,06-00000631,"
                              "g.dvorakova@wielerpost.example,,V,97714420");
    EXPECT_EQ(zomer.lstN1[4], "Bob,van,Eeckhof & Zoon,Bloemkwartier 9,0411 ZH,Wielerdam,"
                              "010-0000634,,,M,98025517");
    EXPECT_EQ(zomer.lstN1[5], "Partner,,Partner_van_Bob,,,,,,,,9901");
    const auto cursus = Lees(Ledenbron::XmlNbb4, "Cursus 20260901.xml").value();
    ASSERT_EQ(cursus.lstN1.size(), 3U);
    EXPECT_TRUE(cursus.lstN1[1].starts_with("Ma\xEBlle,,Kraaijenest,"));
}

/// Each sample as every source that it can be taken for: an error that leaves the intermediate file
/// of before, or members out of a whole one.
class Beschadigd : public Voorbeelden {
  protected:
    void LeesAlsAlles(const Tekst& inhoud, const std::string& hoe)
    {
        for (const Ledenbron bron : {Ledenbron::Csv, Ledenbron::XmlNbb3, Ledenbron::XmlNbb4}) {
            Zet("Kapot.x", inhoud);
            schijf.Zet(tussen, "oud");
            const auto lezing = Lees(bron, "Kapot.x");
            ++(lezing && !lezing->nietGeladen ? goed_ : fout_);
            const Tekst over = schijf.Inhoud(tussen).value_or("(weg)");
            const bool geschreven = lezing && bron != Ledenbron::Csv;
            const bool heel = over == "\r\n" || over.ends_with(";\r\n\r\n");
            ASSERT_TRUE(geschreven ? heel : over == "oud") << hoe;
            ASSERT_TRUE(lezing || lezing.error().soort == Foutsoort::Beschadigd) << hoe;
            ASSERT_TRUE(!lezing || !lezing->nietGeladen || lezing->lstN1.empty()) << hoe;
        }
    }

    static constexpr auto tussen = "C:\\P\\Kapot Temp-NBBXMLtoCSV.csv";
    int goed_ = 0;
    int fout_ = 0;
};

TEST_F(Beschadigd, AfgekaptOpElkePlaatsEnMetBytesDieErNietHoren)
{
    std::mt19937 toeval(4);
    for (const Tekst& naam : namen_) {
        const Tekst heel = schijf.Inhoud(Samen("C:\\Export", naam)).value();
        for (std::size_t lengte = 0; lengte < heel.size(); ++lengte)
            ASSERT_NO_FATAL_FAILURE(
                LeesAlsAlles(heel.substr(0, lengte), naam + " tot " + std::to_string(lengte)));
        for (int keer = 0; keer < 300; ++keer) {
            Tekst inhoud = heel;
            for (int i = keer % 5; i >= 0; --i)
                inhoud[toeval() % inhoud.size()] = static_cast<char>(toeval() % 256);
            ASSERT_NO_FATAL_FAILURE(LeesAlsAlles(inhoud, naam + " keer " + std::to_string(keer)));
        }
    }
    EXPECT_GT(goed_, 0);
    EXPECT_GT(fout_, 0);
}

/// Sixty megabytes of what begins well, within the time that a person is made to wait.
Uitkomst<Ledenlezing> LeesGroot(Ledenbron bron, const std::string& inhoud)
{
    const TijdelijkeMap map;
    map.Zet("Club.x", inhoud);
    EchteSchijf schijf;
    Ledenopdracht opdracht = Opdracht(bron);
    opdracht.map = opdracht.programmamap = map.AlsPad();
    const std::clock_t begin = std::clock(); // of the processor: a machine may be busy
    auto lezing = LeesLedenbestand(schijf, opdracht, "Club.x");
    EXPECT_LT((std::clock() - begin) / CLOCKS_PER_SEC, 15);
    return lezing;
}

TEST(LeesLedenbestand, ZestigMegabyteDuurtNietLang)
{
    constexpr std::size_t groot = std::size_t{60} << 20U;
    const Tekst lid = "1;V;Ans;A.;;Ek;;;;;;;\r\n";
    EXPECT_EQ(FoutVan(LeesGroot(Ledenbron::Csv, lid + Tekst(groot, '\0'))).soort,
              Foutsoort::Beschadigd);
    const auto regel = LeesGroot(Ledenbron::Csv, lid + Tekst(groot, 'x'));
    EXPECT_EQ(regel->lstN1.size(), 1U);
    EXPECT_EQ(regel->teKorteRegel, 2);
    EXPECT_EQ(FoutVan(LeesGroot(Ledenbron::XmlNbb3, "<a>" + Tekst(groot, '<'))).soort,
              Foutsoort::Beschadigd);
    const auto heel =
        LeesGroot(Ledenbron::XmlNbb4, Xml("<ReportableMember><Adres>" + Tekst(groot, 'x') +
                                          "</Adres></ReportableMember>"));
    EXPECT_EQ(heel->lstN1[0].size(), groot + 10);
}

/// The name of the intermediate file comes from the database.
TEST_F(LeesLedenbestandTest, EenNaamUitDeDatabaseDieGeenBestandKanZijnWordtNietGelezen)
{
    for (const char* naam : {"Noord/Zuid 007", "..\\..\\Elders 007", "C:Club 007"}) {
        const Fout fout = FoutVan(Lees(Ledenbron::Database, naam));
        EXPECT_EQ(Foutsoort::Beschadigd, fout.soort) << naam;
        EXPECT_EQ(0U, fout.systeem.find("'" + SubgroepUitNaam(naam) + "' kan niet"))
            << fout.systeem;
        EXPECT_EQ("", fout.bestand);
    }
}

} // namespace
} // namespace plexoran
