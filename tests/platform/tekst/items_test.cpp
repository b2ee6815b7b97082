#include "platform/tekst/regels.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

Teksten TekstenVan(Tekstblik regel, Tekstblik Item::*deel = &Item::tekst)
{
    Teksten uit;
    for (const Item& item : ItemsVan(regel))
        uit.emplace_back(item.*deel);
    return uit;
}

} // namespace

TEST(Items, EenKommaScheidt)
{
    EXPECT_EQ((Teksten{"a", " b ", "c"}), TekstenVan("a, b ,c"));
    EXPECT_EQ((Teksten{"", "", ""}), TekstenVan(",,"));
    EXPECT_EQ((Teksten{"a", ""}), TekstenVan("a,"));
    EXPECT_EQ(Teksten{""}, TekstenVan(""));
    EXPECT_EQ(Teksten{"  "}, TekstenVan("  "));
}

TEST(Items, AanhalingstekensVallenWegEnHoudenDeKommaBijeen)
{
    EXPECT_EQ((Teksten{"Bos, Jan", "2"}), TekstenVan(R"("Bos, Jan",2)"));
    EXPECT_EQ((Teksten{R"("Bos, Jan")", "2"}), TekstenVan(R"("Bos, Jan",2)", &Item::rauw));
    EXPECT_EQ((Teksten{"", "x"}), TekstenVan(R"("","x")"));
    EXPECT_EQ((Teksten{"a ", "b"}), TekstenVan(R"( "a " , "b")"));
    EXPECT_EQ((Teksten{R"( "a " )", R"( "b")"}), TekstenVan(R"( "a " , "b")", &Item::rauw));
    EXPECT_TRUE(ItemsVan(R"("a")").front().IsAangehaald());
    EXPECT_TRUE(ItemsVan(R"("")").front().IsAangehaald());
    EXPECT_FALSE(ItemsVan("a").front().IsAangehaald());
}

TEST(Items, EenAanhalingstekenMiddenInEenItemIsEenTeken)
{
    EXPECT_EQ((Teksten{R"(Jan "de" Bos)", "2"}), TekstenVan(R"(Jan "de" Bos,2)"));
    EXPECT_EQ((Teksten{R"(Jan "de" Bos)", "2"}), TekstenVan(R"("Jan "de" Bos",2)"));
    EXPECT_EQ((Teksten{R"("a"b)", "c"}), TekstenVan(R"("a"b,c)"));
}

TEST(Items, EenOpenAanhalingstekenReiktNietVerderDanZijnItem)
{
    EXPECT_EQ((Teksten{R"("a)", "b"}), TekstenVan(R"("a,b)"));
    EXPECT_EQ(Teksten{R"(")"}, TekstenVan(R"(")"));
    EXPECT_EQ((Teksten{R"("a)", R"("b)", R"("c)"}), TekstenVan(R"("a,"b,"c)"));
}

TEST(Items, EenLangeRegelVanOpenAanhalingstekens)
{
    constexpr std::size_t aantal = 200'000;
    Tekst regel;
    for (std::size_t i = 0; i < aantal; ++i)
        regel += "\"a,";
    EXPECT_EQ(aantal + 1, ItemsVan(regel).size());
}

TEST(Items, EenAndereTekstTussenDezelfdeTekens)
{
    const auto items = ItemsVan(R"(a , "b" ,"")");
    EXPECT_EQ("x", MetTekst(items[0], "x"));
    EXPECT_EQ(R"( "x" )", MetTekst(items[1], "x"));
    EXPECT_EQ(R"("x")", MetTekst(items[2], "x"));
}

TEST(Items, TussenAanhalingstekensAlleenAlsHetNietAndersKan)
{
    EXPECT_EQ("a b", AlsItem("a b"));
    EXPECT_EQ("", AlsItem(""));
    EXPECT_EQ(R"("a,b")", AlsItem("a,b"));
    EXPECT_EQ(R"(a"b)", AlsItem(R"(a"b)"));
    EXPECT_EQ(R"(""a"")", AlsItem(R"("a")"));
    EXPECT_EQ(R"("a)", AlsItem(R"("a)"));
    EXPECT_EQ(R"(a",b)", AlsItem(R"(a",b)")); // neither way reads back
}
