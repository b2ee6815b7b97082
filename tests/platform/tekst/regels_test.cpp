#include "platform/tekst/regels.h"

#include <vector>

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Lijst = std::vector<Tekst>;

Lijst AlleRegels(Tekstblik inhoud)
{
    const auto regels = Regels(inhoud);
    return {regels.begin(), regels.end()};
}

Lijst AlleItems(Tekstblik inhoud)
{
    const auto items = Items(inhoud);
    return {items.begin(), items.end()};
}

} // namespace

TEST(Regels, EindigenOpElkRegeleinde)
{
    EXPECT_EQ(AlleRegels("een\r\ntwee\ndrie\rvier"), (Lijst{"een", "twee", "drie", "vier"}));
    // The last line end gives no empty line; others do.
    for (const Tekst inhoud : {"een\r\n", "een\r", "een"})
        EXPECT_EQ(AlleRegels(inhoud), Lijst{"een"});
    EXPECT_EQ(AlleRegels(""), Lijst{});
    EXPECT_EQ(AlleRegels("\r\n"), (Lijst{""}));
    EXPECT_EQ(AlleRegels("\n\r"), (Lijst{"", ""}));
    EXPECT_EQ(AlleRegels("a\n\nb\r\r\n"), (Lijst{"a", "", "b", ""}));
    EXPECT_EQ(AlleRegels("a,b\nc"), (Lijst{"a,b", "c"})) << "een komma is er geen";
    EXPECT_EQ(AlleRegels(Tekstblik("a\0b\nc", 5)), (Lijst{Tekst("a\0b", 3), "c"}));
}

TEST(Regels, ItemsEindigenOpKommaOfRegeleinde)
{
    EXPECT_EQ(AlleItems("1,twee\r\n3,vier"), (Lijst{"1", "twee", "3", "vier"}));
    EXPECT_EQ(AlleItems("a,,b"), (Lijst{"a", "", "b"}));
    EXPECT_EQ(AlleItems(",a"), (Lijst{"", "a"}));
    EXPECT_EQ(AlleItems("a,\r\nb"), (Lijst{"a", "", "b"}));
    EXPECT_EQ(AlleItems(" a , b "), (Lijst{" a ", " b "}));
    EXPECT_EQ(AlleItems("a,"), (Lijst{"a"}));
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
