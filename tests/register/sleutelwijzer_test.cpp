#include "register/sleutelwijzer.h"

#include <map>
#include <random>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

TEST(Sleutelwijzer, DeEersteRijMetDeSleutel)
{
    const Spelertabel tabel = MaakTabel({{"100001"}, {"100002"}, {"100001"}, {""}, {"0100001"}});
    const Sleutelwijzer wijzer(tabel);
    EXPECT_EQ(1, wijzer.Rij("100001"));
    EXPECT_EQ(2, wijzer.Rij("100002"));
    EXPECT_EQ(4, wijzer.Rij(""));
    EXPECT_EQ(5, wijzer.Rij("0100001"));
    EXPECT_EQ(0, wijzer.Rij("100003"));
    EXPECT_EQ(0, wijzer.Rij("10000"));
    EXPECT_EQ(0, wijzer.Rij("1000011"));
}

TEST(Sleutelwijzer, EenTabelZonderRijen)
{
    const Spelertabel tabel;
    EXPECT_EQ(0, Sleutelwijzer(tabel).Rij("100001"));
    EXPECT_EQ(0, Sleutelwijzer(tabel).Rij(""));
}

TEST(Sleutelwijzer, SleutelsVanElkeLengteEnMetElkTeken)
{
    const Tekst nul(1, '\0');
    const std::vector<Tekst> keys{"",
                                  nul,
                                  nul + nul,
                                  "\xFF",
                                  "A",
                                  "1234567",
                                  "12345678",
                                  "87654321",
                                  "123456789",
                                  "\xFF\xFF\xFF\xFF\xFF\xFF\xFF",
                                  Tekst(8, '\0'),
                                  Tekst(500, 'k')};
    std::vector<Proefspeler> spelers;
    for (const Tekst& key : keys)
        spelers.push_back({.key = key});
    const Spelertabel tabel = MaakTabel(spelers);
    const Sleutelwijzer wijzer(tabel);
    for (std::size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(static_cast<int>(i) + 1, wijzer.Rij(keys[i]));
    for (const Tekst& key : {Tekst(7, '\0'), Tekst(499, 'k'), Tekst("123456"), Tekst("12345679")})
        EXPECT_EQ(0, wijzer.Rij(key));
}

/// Rows may be added and other cells changed while the index is used.
TEST(Sleutelwijzer, TijdensHetWijzigen)
{
    Spelertabel tabel = MaakTabel({{"100001234"}, {"100002"}});
    const Sleutelwijzer wijzer(tabel);
    for (int keer = 0; keer < 50; ++keer) {
        tabel.VoegKopieToe(1, {});
        tabel.ZetCel(1, Kolom::Achternaam, Tekst(static_cast<std::size_t>(keer), 'x'));
        ASSERT_EQ(1, wijzer.Rij("100001234"));
        ASSERT_EQ(2, wijzer.Rij("100002"));
    }
}

TEST(Sleutelwijzer, GelijkAanZoekenVanBovenaf)
{
    std::mt19937 toeval(36);
    const auto key = [&] {
        Tekst uit = std::to_string(100'000 + toeval() % 3000);
        if (toeval() % 4 == 0)
            uit += Tekst(toeval() % 5, "0A"[toeval() % 2]);
        return uit;
    };
    std::vector<Proefspeler> spelers(5000);
    std::map<Tekst, int> eerste;
    for (std::size_t i = 0; i < spelers.size(); ++i) {
        spelers[i].key = key();
        eerste.emplace(spelers[i].key, static_cast<int>(i) + 1);
    }
    const Spelertabel tabel = MaakTabel(spelers);
    const Sleutelwijzer wijzer(tabel);
    for (int keer = 0; keer < 20'000; ++keer) {
        const Tekst gezocht = key();
        const auto plaats = eerste.find(gezocht);
        ASSERT_EQ(plaats == eerste.end() ? 0 : plaats->second, wijzer.Rij(gezocht)) << gezocht;
    }
}
