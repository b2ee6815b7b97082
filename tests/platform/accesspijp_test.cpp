#include "platform/accesspijp.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

TEST(Accesspijp, DeVraagKomtHeelOver)
{
    const Accessvraag vraag{
        .pad = "/map/L\xFF"
               "eden.mdb",
        .tabel = "leden",
        .kolommen = {{"id", Accesssoort::Geheel}, {"naam", Accesssoort::Letters}}};
    const std::string bytes = SchrijfVraag(vraag);
    const auto gelezen = LeesVraag(bytes);
    ASSERT_TRUE(gelezen);
    EXPECT_EQ(gelezen->pad, vraag.pad);
    EXPECT_EQ(gelezen->tabel, "leden");
    ASSERT_EQ(gelezen->kolommen.size(), 2U);
    EXPECT_EQ(gelezen->kolommen[0].naam, "id");
    EXPECT_EQ(gelezen->kolommen[0].soort, Accesssoort::Geheel);
    EXPECT_EQ(gelezen->kolommen[1].soort, Accesssoort::Letters);
    for (std::size_t lengte = 0; lengte < bytes.size(); ++lengte)
        EXPECT_FALSE(LeesVraag(bytes.substr(0, lengte))) << lengte;
    EXPECT_FALSE(LeesVraag(bytes + "x"));
}

TEST(Accesspijp, HetAntwoordStaatErZoals)
{
    std::string bytes = Tabelbericht(1);
    VoegRijberichtToe(bytes, {std::nullopt, "", "ab"});
    bytes += Eindbericht(1);
    const std::string verwacht("T\4\0\0\0\1\0\0\0"
                               "R\x0d\0\0\0"
                               "\0"
                               "\1\0\0\0\0"
                               "\1\2\0\0\0ab"
                               "E\4\0\0\0\1\0\0\0",
                               36);
    EXPECT_EQ(bytes, verwacht);
}

TEST(Accesspijp, HoeHetAntwoordOokInStukkenKomt)
{
    std::string bytes = Tabelbericht(2);
    VoegRijberichtToe(bytes, {"een", std::nullopt});
    VoegRijberichtToe(bytes, {std::string(3, '\0'), "Zo\xC3\xAB"});
    bytes += Eindbericht(2);
    for (std::size_t stuk = 1; stuk <= bytes.size(); ++stuk) {
        Antwoordlezer lezer(2);
        std::vector<Ruwerij> rijen;
        for (std::size_t i = 0; i < bytes.size(); i += stuk) {
            EXPECT_FALSE(lezer.Klaar());
            ASSERT_TRUE(lezer.Neem(std::string_view(bytes).substr(i, stuk)));
            for (auto& rij : lezer.NeemRijen())
                rijen.push_back(std::move(rij));
        }
        EXPECT_TRUE(lezer.Klaar());
        EXPECT_EQ(lezer.Berichten(), 4U);
        EXPECT_EQ(lezer.Geheel(), 2U);
        ASSERT_EQ(rijen.size(), 2U);
        EXPECT_EQ(rijen[0], (Ruwerij{"een", std::nullopt}));
        EXPECT_EQ(rijen[1], (Ruwerij{std::string(3, '\0'), "Zo\xC3\xAB"}));
    }
}

TEST(Accesspijp, EenFoutmeldingSluitHetAntwoord)
{
    Antwoordlezer lezer(1);
    ASSERT_TRUE(lezer.Neem(Tabelbericht(5) + Foutbericht(Foutsoort::Geweigerd, "mag niet")));
    EXPECT_FALSE(lezer.Klaar());
    ASSERT_TRUE(lezer.Melding());
    EXPECT_EQ(lezer.Melding()->soort, Foutsoort::Geweigerd);
    EXPECT_EQ(lezer.Melding()->systeem, "mag niet");
    EXPECT_FALSE(lezer.Neem(Eindbericht(0)));
}

TEST(Accesspijp, WatNietKlopt)
{
    std::string rij;
    VoegRijberichtToe(rij, {"x"});
    std::string tweeCellen;
    VoegRijberichtToe(tweeCellen, {"x", "y"});
    std::string kapotteCel = rij;
    kapotteCel[5] = 2; // neither NULL nor a text
    for (const std::string& bytes :
         {rij, Eindbericht(0), Tabelbericht(0) + rij, Tabelbericht(1) + Eindbericht(1),
          Tabelbericht(1) + Eindbericht(0), Tabelbericht(1) + Tabelbericht(1),
          Tabelbericht(1) + tweeCellen, Tabelbericht(1) + kapotteCel,
          Tabelbericht(0) + Eindbericht(0) + "x", std::string("X\0\0\0\0", 5),
          std::string("T\3\0\0\0\0\0\0", 8), std::string("R\xff\xff\xff\xff", 5),
          std::string("F\5\0\0\0x\0\0\0\0", 10)}) {
        Antwoordlezer lezer(1);
        EXPECT_FALSE(lezer.Neem(bytes) && lezer.Klaar()) << testing::PrintToString(bytes);
        Antwoordlezer nogEens(1);
        EXPECT_FALSE(nogEens.Neem(bytes)) << testing::PrintToString(bytes);
    }
}

} // namespace
} // namespace plexoran
