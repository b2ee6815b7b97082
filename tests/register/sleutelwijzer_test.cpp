#include "register/spelertabel.h"

#include <algorithm>
#include <functional>
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

TEST(Sleutelwijzer, OplopendeSleutelsInElkeVolgordeGezocht)
{
    const std::vector<Tekst> keys{"", "1", "100001", "1000011", "100002", "100009", "2", "\xFF"};
    std::vector<Proefspeler> spelers;
    for (const Tekst& key : keys)
        spelers.push_back({.key = key});
    const Spelertabel tabel = MaakTabel(spelers);
    const Sleutelwijzer wijzer(tabel);
    const auto rijVan = [&](std::size_t i) { return static_cast<int>(i) + 1; };
    for (std::size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(rijVan(i), wijzer.Rij(keys[i]));
    for (std::size_t i = 0; i < keys.size(); ++i) {
        for (std::size_t j = 0; j < keys.size(); ++j) {
            EXPECT_EQ(rijVan(i), wijzer.Rij(keys[i]));
            EXPECT_EQ(0, wijzer.Rij("100003"));
            EXPECT_EQ(0, wijzer.Rij("\xFF\xFF"));
            EXPECT_EQ(0, wijzer.Rij("0"));
            EXPECT_EQ(rijVan(j), wijzer.Rij(keys[j]));
        }
    }
}

/// Added rows are not found, also where their keys rise on.
TEST(Sleutelwijzer, RijenDieErbijKomenWordenNietGevonden)
{
    for (const char* const tweede : {"100002", "100001"}) { // searched in order, and by the index
        Spelertabel tabel = MaakTabel({{"100001"}, {tweede}});
        const Sleutelwijzer wijzer(tabel);
        const Celtekst key{Kolom::Key, "100003"};
        tabel.VoegKopieToe(1, {&key, 1});
        EXPECT_EQ(0, wijzer.Rij("100003"));
        EXPECT_EQ(tweede == Tekst("100002") ? 2 : 1, wijzer.Rij(tweede));
        EXPECT_EQ(0, wijzer.Rij("100003"));
        EXPECT_EQ(1, wijzer.Rij("100001"));
    }
}

/// Rows may be added and other cells changed while the index is used.
TEST(Sleutelwijzer, TijdensHetWijzigen)
{
    Spelertabel tabel = MaakTabel({{"100001234"}, {"100002"}, {"100002"}});
    const Sleutelwijzer wijzer(tabel);
    for (int keer = 0; keer < 50; ++keer) {
        tabel.VoegKopieToe(1, {});
        tabel.ZetCel(1, Kolom::Achternaam, Tekst(static_cast<std::size_t>(keer), 'x'));
        ASSERT_EQ(1, wijzer.Rij("100001234"));
        ASSERT_EQ(2, wijzer.Rij("100002"));
    }
}

/// Small tables, of which some rise and some almost do, with keys of any length.
TEST(Sleutelwijzer, KleineTabellenGelijkAanZoekenVanBovenaf)
{
    std::mt19937 toeval(37);
    int stijgend = 0;
    for (int keer = 0; keer < 5000; ++keer) {
        std::vector<Tekst> keys(toeval() % 12);
        for (Tekst& key : keys)
            key = std::to_string(toeval() % (toeval() % 2 == 0 ? 200 : 20));
        std::sort(keys.begin(), keys.end());
        if (toeval() % 3 != 0)
            keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
        if (keys.size() > 1 && toeval() % 3 == 0)
            std::swap(keys[toeval() % keys.size()], keys.back());
        stijgend +=
            std::adjacent_find(keys.begin(), keys.end(), std::greater_equal<>()) == keys.end() ? 1
                                                                                               : 0;
        std::vector<Proefspeler> spelers;
        for (const Tekst& key : keys)
            spelers.push_back({.key = key});
        const Spelertabel tabel = MaakTabel(spelers);
        const Sleutelwijzer wijzer(tabel);
        for (int vraag = 0; vraag < 40; ++vraag) {
            const Tekst gezocht = toeval() % 2 == 0 && !keys.empty()
                                      ? keys[toeval() % keys.size()]
                                      : std::to_string(toeval() % 200);
            const auto plaats = std::find(keys.begin(), keys.end(), gezocht);
            const auto moet = plaats == keys.end() ? 0 : plaats - keys.begin() + 1;
            ASSERT_EQ(moet, wijzer.Rij(gezocht)) << gezocht;
        }
    }
    EXPECT_GT(stijgend, 1000);
    EXPECT_LT(stijgend, 4000);
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
