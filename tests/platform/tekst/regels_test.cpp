#include "platform/tekst/regels.h"

#include <vector>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

Teksten AlleRegels(Tekstblik inhoud)
{
    const auto regels = Regels(inhoud);
    return {regels.begin(), regels.end()};
}

Teksten AlleItems(Tekstblik inhoud)
{
    const auto items = Items(inhoud);
    return {items.begin(), items.end()};
}

Teksten TekstenVan(Tekstblik regel, Tekstblik Item::*deel = &Item::tekst)
{
    Teksten uit;
    for (const Item& item : ItemsVan(regel))
        uit.emplace_back(item.*deel);
    return uit;
}

} // namespace

TEST(Regels, EindigenOpElkRegeleinde)
{
    EXPECT_EQ(AlleRegels("een\r\ntwee\ndrie\rvier"), (Teksten{"een", "twee", "drie", "vier"}));
    // The last line end gives no empty line; others do.
    for (const Tekst inhoud : {"een\r\n", "een\r", "een"})
        EXPECT_EQ(AlleRegels(inhoud), Teksten{"een"});
    EXPECT_EQ(AlleRegels(""), Teksten{});
    EXPECT_EQ(AlleRegels("\r\n"), (Teksten{""}));
    EXPECT_EQ(AlleRegels("\n\r"), (Teksten{"", ""}));
    EXPECT_EQ(AlleRegels("a\n\nb\r\r\n"), (Teksten{"a", "", "b", ""}));
    EXPECT_EQ(AlleRegels("a,b\nc"), (Teksten{"a,b", "c"})) << "een komma is er geen";
    EXPECT_EQ(AlleRegels(Tekstblik("a\0b\nc", 5)), (Teksten{Tekst("a\0b", 3), "c"}));
}

TEST(Regels, ItemsEindigenOpKommaOfRegeleinde)
{
    EXPECT_EQ(AlleItems("1,twee\r\n3,vier"), (Teksten{"1", "twee", "3", "vier"}));
    EXPECT_EQ(AlleItems("a,,b"), (Teksten{"a", "", "b"}));
    EXPECT_EQ(AlleItems(",a"), (Teksten{"", "a"}));
    EXPECT_EQ(AlleItems("a,\r\nb"), (Teksten{"a", "", "b"}));
    EXPECT_EQ(AlleItems(" a , b "), (Teksten{" a ", " b "}));
    EXPECT_EQ(AlleItems("a,"), (Teksten{"a"}));
}

TEST(Regels, StukkenZijnBlikkenInDeTekst)
{
    const Tekst inhoud = "een\r\ntwee";
    const auto regels = Regels(inhoud);
    EXPECT_EQ(regels.at(0).data(), inhoud.data());
    EXPECT_EQ(regels.at(1).data(), inhoud.data() + 5);
}

TEST(Regels, EersteItem)
{
    EXPECT_EQ(EersteItem("Bridgeclub,rest"), "Bridgeclub");
    EXPECT_EQ(EersteItem("Bridgeclub\r\nrest"), "Bridgeclub");
    EXPECT_EQ(EersteItem("Bridgeclub"), "Bridgeclub");
    EXPECT_EQ(EersteItem("\r\nrest"), "");
    EXPECT_EQ(EersteItem(""), "");
}

TEST(ZonderBlancoBegin, VanafHetEersteItemDatNietBlancoIs)
{
    EXPECT_EQ(ZonderBlancoBegin(" a,b\r\n"), " a,b\r\n");
    EXPECT_EQ(ZonderBlancoBegin("\r\n , \n,a,,b"), "a,,b");
    EXPECT_EQ(ZonderBlancoBegin(", \r\n"), "");
    EXPECT_EQ(ZonderBlancoBegin(""), "");
}

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
