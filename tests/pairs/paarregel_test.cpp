#include "pairs/paarregel.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

Tekst RegelVan(const Proefspeler& speler)
{
    return Spelerregel(MaakTabel({speler}), 1);
}

} // namespace

TEST(Paarregel, DeRegelVanEenSpeler)
{
    EXPECT_EQ(
        "Dam Cor van der   100003",
        RegelVan({.key = "100003", .voornaam = "Cor", .tusv = "van der", .achternaam = "Dam"}));
    EXPECT_EQ("Bos An    100001",
              RegelVan({.key = "100001", .voornaam = "An", .tusv = "", .achternaam = "Bos"}));
    EXPECT_EQ("Bos     100001", RegelVan({.key = "100001", .achternaam = "Bos"}));
}

TEST(Paarregel, DeKeuzeregel)
{
    EXPECT_EQ("100003 Dam Cor van der", Keuzeregel("Dam Cor van der   100003"));
    EXPECT_EQ("100001 Bos An", Keuzeregel("Bos An    100001"));
    EXPECT_EQ("100001 Bos", Keuzeregel("Bos   100001"));
}

TEST(Paarregel, DeRegelVanEenPaar)
{
    EXPECT_EQ("100234 Faiskuza          +100417 Beiglim",
              Paarregel("100234 Faiskuza", "100417 Beiglim"));
}

TEST(Paarregel, DeSpelersVanEenPaar)
{
    const Tekst regel = "100234 Faiskuza Bo de          +100417 Beiglim";
    EXPECT_EQ("100234", LinkerSpeler(regel).key);
    EXPECT_EQ("Faiskuza Bo de", LinkerSpeler(regel).naam);
    EXPECT_EQ("100417", RechterSpeler(regel).key);
    EXPECT_EQ("Beiglim", RechterSpeler(regel).naam);
    EXPECT_EQ("Faiskuza Bo de   100234", LinkerSpeler(regel).AlsSpelerregel());
}

TEST(Paarregel, SpatiesRondDeDelenTellenNietMee)
{
    const Tekst regel = "  100234   Faiskuza + 100417 Beiglim  ";
    EXPECT_EQ("100234", LinkerSpeler(regel).key);
    EXPECT_EQ("Faiskuza", LinkerSpeler(regel).naam);
    EXPECT_EQ("100417", RechterSpeler(regel).key);
    EXPECT_EQ("Beiglim", RechterSpeler(regel).naam);
}

TEST(Paarregel, ZonderTienSpatiesTeltHetEerstePlusteken)
{
    EXPECT_EQ(8U, Plusplek("100234 F+100417 B+c"));
    EXPECT_EQ(Tekst::npos, Plusplek("100234 F - 100417 B"));
}

/// A "+" in a name must not tear the pair apart.
TEST(Paarregel, EenPlustekenInEenNaamScheidtNiet)
{
    const Tekst regel = Paarregel("100234 Bos+Co An", "100417 Dam+Zn");
    EXPECT_EQ("Bos+Co An", LinkerSpeler(regel).naam);
    EXPECT_EQ("100417", RechterSpeler(regel).key);
    EXPECT_EQ("Dam+Zn", RechterSpeler(regel).naam);
}

TEST(Paarregel, EenPlustekenAanHetEind)
{
    EXPECT_EQ("", RechterSpeler("100234 F+").key);
    EXPECT_EQ("", LinkerSpeler("+").key);
    EXPECT_EQ("", RechterSpeler("+").naam);
}
