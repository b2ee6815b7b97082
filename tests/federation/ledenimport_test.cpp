#include "federation/ledenimport.h"

#include <gtest/gtest.h>

#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

using Namen = std::vector<Tekst>;

class LedenimportTest : public testing::Test {
  protected:
    LedenimportTest()
    {
        administratie.mappen.DFIMPG = "Gr05-";
        administratie.mappen.ADMMAP = "C:\\Admin";
        administratie.mappen.WINMAP = "C:\\Win";
        for (const char* naam : {"b.csv", "A.CSV", "csv", "x.csvx", "c.xml", "a.XML", "d.xml"})
            schijf.Zet(Samen("C:\\Win\\NBB4-Leden", naam), "<ReportableMember><LeagueId>");
    }

    GeheugenSchijf schijf;
    Administratie administratie{.schijf = schijf, .winkel = {}, .programmamap = "C:\\P"};
    Importgeheugen geheugen;
    Ledenimport leden{administratie, geheugen};
};

TEST_F(LedenimportTest, DeMapIsDieVanDeBondOfDeLaatsteVanDezeBron)
{
    EXPECT_EQ("C:\\Win\\NBB4-Leden", leden.Beginmap());
    schijf.ZetMap("C:\\Elders");
    leden.KiesBron(Ledenbron::XmlNbb3);
    ASSERT_TRUE(leden.KiesMap("C:\\Elders"));
    EXPECT_EQ("C:\\Elders", leden.Beginmap());
    leden.KiesBron(Ledenbron::Csv);
    EXPECT_EQ("", leden.Map());
    EXPECT_EQ("C:\\Win\\NBB4-Leden", leden.Beginmap());
    EXPECT_EQ(Ledenbron::Csv, geheugen.bron);
    Ledenimport later(administratie, geheugen);
    later.KiesBron(Ledenbron::XmlNbb3);
    EXPECT_EQ("C:\\Elders", later.Beginmap());
    geheugen.mappen[Ledenbron::XmlNbb3] = "C:\\Weg"; // no longer there: not asked for another
    EXPECT_EQ("", later.Beginmap());
    administratie.mappen.WINMAP.clear();
    EXPECT_EQ("", leden.Beginmap());
}

TEST_F(LedenimportTest, DeNamenMetDeExtensieInTekstorde)
{
    ASSERT_TRUE(leden.KiesMap("C:\\Win\\NBB4-Leden"));
    EXPECT_EQ((Namen{"A.CSV", "b.csv"}), leden.Namen());
    leden.HoudVanSoort([](std::size_t, std::size_t) { return false; });
    EXPECT_EQ(2U, leden.Namen().size()) << "een CSV wordt niet gelezen";
    EXPECT_EQ(1, leden.EersteKeus("b.csv"));
    EXPECT_EQ(-1, leden.EersteKeus("d.xml"));
    leden.KiesBron(Ledenbron::XmlNbb4);
    EXPECT_TRUE(leden.Namen().empty());
    EXPECT_EQ(-1, leden.EersteKeus(""));
    ASSERT_TRUE(leden.KiesMap("C:\\Win\\NBB4-Leden"));
    EXPECT_EQ((Namen{"a.XML", "c.xml", "d.xml"}), leden.Namen());
    EXPECT_EQ(0, leden.EersteKeus("b.csv"));
    EXPECT_EQ(2, leden.EersteKeus("d.xml"));
    schijf.Zet("C:\\Win\\NBB4-Leden\\c.xml", "iets anders");
    leden.HoudVanSoort({});
    EXPECT_EQ((Namen{"a.XML", "d.xml"}), leden.Namen());
    EXPECT_FALSE(leden.KiesMap("C:\\Weg"));
    EXPECT_EQ("C:\\Win\\NBB4-Leden", leden.Map());
    EXPECT_EQ((Namen{"a.XML", "d.xml"}), leden.Namen());
}

TEST_F(LedenimportTest, DeOpdrachtEnDeDatabase)
{
    EXPECT_FALSE(leden.KentDatabase());
    administratie.DataMap = "C:\\Data";
    Ledenimport met(administratie, geheugen);
    EXPECT_TRUE(met.KentDatabase());
    EXPECT_EQ("C:\\Data\\Members.mdb", met.Opdracht({}).LedenDatabase);
    EXPECT_FALSE(met.KiesDatabase({}));
    ASSERT_TRUE(met.KiesMap("C:\\Win\\NBB4-Leden"));
    const Ledenopdracht opdracht = met.Opdracht({.naw = false});
    EXPECT_EQ(Ledenbron::Csv, opdracht.bron);
    EXPECT_EQ("C:\\Win\\NBB4-Leden", opdracht.map);
    EXPECT_EQ("C:\\P", opdracht.programmamap);
    EXPECT_FALSE(opdracht.keuzes.naw);
}

/// Where nothing may be written beside the program, as when the system installed it.
TEST_F(LedenimportTest, HetTussenbestandKomtWaarGeschrevenKanWorden)
{
    leden.KiesBron(Ledenbron::XmlNbb4);
    EXPECT_EQ("C:\\Admin", leden.Opdracht({}).programmamap);
    const Pad proef = "C:\\P\\Temp-NBBXMLtoCSV.proef";
    schijf.Zet(proef, "van een programma dat hier werd afgebroken");
    EXPECT_EQ("C:\\P", leden.Opdracht({}).programmamap);
    EXPECT_FALSE(schijf.Inhoud(proef));
    schijf.ZetAlleenLezen("C:\\P");
    EXPECT_EQ("C:\\Admin", leden.Opdracht({}).programmamap);
    EXPECT_EQ("C:\\P", Tussenmap(schijf, "C:\\P", {}));
}

TEST_F(LedenimportTest, ImporteertInDeVerzamelgroepOnderDeNaamVanHetBestand)
{
    EXPECT_TRUE(leden.Importeer("Club 30.csv", {"Eva,,Ek,,,,,,,V,"}, {}));
    EXPECT_FALSE(leden.IetsGewijzigd());
    const auto nieuw = leden.Importeer("Club 30.csv", {"Eva,,Ek,,,,,,,V,77"}, {});
    ASSERT_TRUE(nieuw);
    EXPECT_EQ(1U, nieuw->AantalNieuw);
    EXPECT_TRUE(leden.IetsGewijzigd());
    EXPECT_EQ("Gr05-", administratie.spelers.tabel.Cel(1, Kolom::Groep));
    EXPECT_EQ("CLUB", administratie.spelers.tabel.Cel(1, Kolom::NBBgr));
    Ledenimport ander(administratie, geheugen);
    ASSERT_TRUE(ander.Importeer("Club.csv", {"Eva,,Ek,,,,,,,V,77"}, {}));
    EXPECT_TRUE(ander.IetsGewijzigd()) << "ververst";
    Ledenimport beide(administratie, geheugen);
    ASSERT_TRUE(beide.Importeer("Club.csv", {"Eva,,Ek,,,,,,,V,77", "Fie,,Fan,,,,,,,V,76"}, {}));
    EXPECT_TRUE(beide.IetsGewijzigd()) << "evenveel ververst als nieuw";
    Ledenimport vol(administratie, geheugen);
    administratie.spelers.HKEY = 2147483647;
    EXPECT_FALSE(vol.Importeer("Club.csv", {"Eva,,Ek,,,,,,,V,78"}, {}));
    EXPECT_FALSE(vol.IetsGewijzigd());
}

TEST(RuimTussenbestandOp, AlleenNaXmlEnHetMagErNietZijn)
{
    GeheugenSchijf schijf;
    const Pad pad = "C:\\P\\Club Temp-NBBXMLtoCSV.csv";
    const auto ruimOp = [&](Ledenbron bron) {
        Ledenopdracht opdracht;
        opdracht.bron = bron;
        opdracht.programmamap = "C:\\P";
        return RuimTussenbestandOp(schijf, opdracht, "Club 30.xml");
    };
    for (const Ledenbron bron : {Ledenbron::Csv, Ledenbron::Database}) {
        schijf.Zet(pad, "");
        EXPECT_TRUE(ruimOp(bron));
        EXPECT_TRUE(schijf.Inhoud(pad));
    }
    for (const Ledenbron bron : {Ledenbron::XmlNbb3, Ledenbron::XmlNbb4}) {
        schijf.Zet(pad, "");
        EXPECT_TRUE(ruimOp(bron));
        EXPECT_FALSE(schijf.Inhoud(pad));
        EXPECT_TRUE(ruimOp(bron));
    }
    schijf.Zet(pad, "");
    schijf.ZetAlleenLezen("C:\\P");
    EXPECT_EQ(Foutsoort::Geweigerd, ruimOp(Ledenbron::XmlNbb3).error().soort);
}

} // namespace
} // namespace plexoran
