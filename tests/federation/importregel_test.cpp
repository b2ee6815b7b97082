#include "federation/importregel.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

Tekstblik Veld(const Importvelden& velden, Importveld veld)
{
    return velden[static_cast<std::size_t>(veld)];
}

TEST(SplitsImportregel, GeeftElkVeldZijnPlaats)
{
    const auto velden =
        SplitsImportregel("Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06,z@x.example,Nederland,V, 123 ");
    EXPECT_EQ(Veld(velden, Importveld::Voornaam), "Zo\xEB");
    EXPECT_EQ(Veld(velden, Importveld::Tusv), "van");
    EXPECT_EQ(Veld(velden, Importveld::Achternaam), "Ek");
    EXPECT_EQ(Veld(velden, Importveld::Adres), "Brink 1");
    EXPECT_EQ(Veld(velden, Importveld::Postc), "0411 JK");
    EXPECT_EQ(Veld(velden, Importveld::Plaats), "Laar");
    EXPECT_EQ(Veld(velden, Importveld::Telef), "06");
    EXPECT_EQ(Veld(velden, Importveld::Email), "z@x.example");
    EXPECT_EQ(Veld(velden, Importveld::Land), "Nederland");
    EXPECT_EQ(Veld(velden, Importveld::MV), "V");
    EXPECT_EQ(Veld(velden, Importveld::NBBnr), " 123 ");
}

TEST(SplitsImportregel, LegeEnOntbrekendeVeldenZijnLeeg)
{
    const Importvelden leeg{};
    EXPECT_EQ(SplitsImportregel(""), leeg);
    EXPECT_EQ(SplitsImportregel(",,,,,,,,,,"), leeg);
    Importvelden verwacht{};
    verwacht[0] = "a";
    verwacht[2] = "b";
    EXPECT_EQ(SplitsImportregel("a,,b"), verwacht);
}

TEST(SplitsImportregel, EenKommaInEenVeldSchuiftDeRestOp)
{
    const auto velden = SplitsImportregel("0,1,2,3,4,5,6,7,8,9,10,11");
    EXPECT_EQ(velden.size(), 11U);
    EXPECT_EQ(Veld(velden, Importveld::NBBnr), "10");
}

} // namespace
} // namespace plexoran
