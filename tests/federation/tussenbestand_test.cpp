#include "federation/tussenbestand.h"

#include <gtest/gtest.h>

#include "schijven/geheugenSchijf.h"

namespace plexoran {
namespace {

const Pad bestand = "C:\\P\\Club Temp-NBBXMLtoCSV.csv";

Tekst Geschreven(const std::vector<Lidrij>& leden)
{
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\P");
    EXPECT_TRUE(SchrijfTussenbestand(schijf, bestand, leden).has_value());
    return schijf.Inhoud(bestand).value_or("(niets)");
}

TEST(Geslacht, ZesTekstenZijnBekendInHoofdlettersOfNiet)
{
    for (const char* tekst : {"MAN", "man", "Man", "MALE", "male"})
        EXPECT_EQ(GeslachtUit(tekst), "M") << tekst;
    for (const char* tekst : {"VROUW", "vrouw", "FEMALE", "female", "Female"})
        EXPECT_EQ(GeslachtUit(tekst), "V") << tekst;
    for (const char* tekst : {"NIET BEKEND", "unknown", "", "M", "V", " MAN", "MAN ", "X", "MANN"})
        EXPECT_EQ(GeslachtUit(tekst), "") << tekst;
}

TEST(ZonderVoorloop, NeemtTekensBoven240VoorafWeg)
{
    EXPECT_EQ(ZonderVoorloop("\xFF\xFE"
                             "123"),
              "123");
    EXPECT_EQ(ZonderVoorloop("\xF1"
                             "9"),
              "9");
    EXPECT_EQ(ZonderVoorloop("\xF0"
                             "9"),
              "\xF0"
              "9");
    EXPECT_EQ(ZonderVoorloop("\xFF\xFF"), "");
}

TEST(ZonderVoorloop, HoudtDeRestZoalsHijIs)
{
    EXPECT_EQ(ZonderVoorloop(" 123 "), " 123 ");
    EXPECT_EQ(ZonderVoorloop("\xFF 123"), " 123");
    EXPECT_EQ(ZonderVoorloop("12\xFF"), "12\xFF");
    EXPECT_EQ(ZonderVoorloop(" \xFF"
                             "1"),
              " \xFF"
              "1");
    EXPECT_EQ(ZonderVoorloop("   "), "   ");
    EXPECT_EQ(ZonderVoorloop(""), "");
    // The mark of UTF-8 begins with 239.
    EXPECT_EQ(ZonderVoorloop("\xEF\xBB\xBF"
                             "1"),
              "\xEF\xBB\xBF"
              "1");
}

TEST(Tussenbestand, HoudtZestienVeldenPerLidEnEenLegeRegelAanHetEind)
{
    EXPECT_EQ(Geschreven({{"1", "V", "Zo\xEB", "Z.", "van", "Ek", "Brink 1", "0411 JK", "Laar",
                           "06", "z@x.example"},
                          {"2"}}),
              "1;V;Zo\xEB;Z.;van;Ek;Brink 1;0411 JK;Laar;06;z@x.example;;;;;;\r\n"
              "2;;;;;;;;;;;;;;;;\r\n"
              "\r\n");
    EXPECT_EQ(Geschreven({}), "\r\n");
}

TEST(Tussenbestand, EenRegeleindeInEenVeldWordtEenSpatie)
{
    EXPECT_EQ(Geschreven({{"1", "", "a\r\nb", "c\rd", "e\nf", "\r\n", "\n\n", "g\n\rh", "i;j"}}),
              "1;;a b;c d;e f; ;  ;g  h;i;j;;;;;;;;\r\n\r\n");
}

TEST(Tussenbestand, RegeleindenOpDeGrensVanVeldenVloeienNietSamen)
{
    GeheugenSchijf schijf;
    schijf.ZetMap("C:\\P");
    ASSERT_TRUE(SchrijfTussenbestand(schijf, bestand, {{"1\r", "\nV"}, {"2"}}).has_value());
    EXPECT_EQ(schijf.Inhoud(bestand), "1 ; V;;;;;;;;;;;;;;;\r\n2;;;;;;;;;;;;;;;;\r\n\r\n");
}

TEST(Tussenbestand, VervangtEenEerder)
{
    GeheugenSchijf schijf;
    schijf.Zet(bestand, "een veel langere oude inhoud dan de nieuwe\r\nen nog een regel\r\n");
    ASSERT_TRUE(SchrijfTussenbestand(schijf, bestand, {}).has_value());
    EXPECT_EQ(schijf.Inhoud(bestand), "\r\n");
    EXPECT_EQ(schijf.AlleBestanden(), std::vector<Pad>{bestand});
}

TEST(Tussenbestand, MeldtEenSchijfDieWeigert)
{
    GeheugenSchijf schijf;
    schijf.Zet(bestand, "oud");
    schijf.ZetAlleenLezen("C:\\P");
    const auto uitkomst = SchrijfTussenbestand(schijf, bestand, {{"1"}});
    ASSERT_FALSE(uitkomst.has_value());
    EXPECT_EQ(uitkomst.error().soort, Foutsoort::Geweigerd);
    EXPECT_EQ(schijf.Inhoud(bestand), "oud");
}

} // namespace
} // namespace plexoran
