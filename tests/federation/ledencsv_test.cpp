#include "federation/ledencsv.h"

#include <gtest/gtest.h>

namespace plexoran {
namespace {

using Lijst = Tekstlijst;

constexpr Importkeuzes geen{.naw = false, .tel = false, .email = false, .mv = false};

Ledenlezing Lees(Tekstblik tekst, const Importkeuzes& keuzes = {})
{
    auto lezing = LeesLedencsv(tekst, keuzes);
    EXPECT_TRUE(lezing.has_value());
    return lezing.value_or(Ledenlezing());
}

const Tekst lid = "123;V;Zo\xEB;Z.;van;Ek;Brink 1;0411 JK;Laar;06-1;z@x.example;Nederland";

TEST(Ledencsv, ZetDeKolommenInDeVolgordeVanDeImportregel)
{
    EXPECT_EQ(Lees(lid).lstN1,
              Lijst{"Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,z@x.example,Nederland,V,123"});
}

TEST(Ledencsv, EenVakjeDatUitStaatLaatZijnVeldenLeegMaarAanwezig)
{
    const auto met = [](bool naw, bool tel, bool email, bool mv) {
        return Tekst(Lees(lid, {.naw = naw, .tel = tel, .email = email, .mv = mv}).lstN1[0]);
    };
    EXPECT_EQ(met(false, true, true, true), "Zo\xEB,van,Ek,,,,06-1,z@x.example,,V,123");
    EXPECT_EQ(met(true, false, true, true),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,,z@x.example,Nederland,V,123");
    EXPECT_EQ(met(true, true, false, true),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,,Nederland,V,123");
    EXPECT_EQ(met(true, true, true, false),
              "Zo\xEB,van,Ek,Brink 1,0411 JK,Laar,06-1,z@x.example,Nederland,,123");
    EXPECT_EQ(met(false, false, false, false), "Zo\xEB,van,Ek,,,,,,,,123");
}

TEST(Ledencsv, SlaatLegeRegelsOverEnKoppenMetEenIsTeken)
{
    const Ledenlezing lezing =
        Lees("NBBNR=Geslacht;x\r\n\r\n   \r\n" + lid + "\r\n1;;;;;De Vries;;;;;a=b;\r\n \r\n");
    EXPECT_EQ(lezing.lstN1.size(), 1U);
    EXPECT_EQ(lezing.metIsTeken, (Lijst{"NBBNR=Geslacht;x", "1;;;;;De Vries;;;;;a=b;"}));
    EXPECT_EQ(lezing.teKorteRegel, 0);
    // A tab is no blank.
    EXPECT_EQ(Lees("\t\r\n").teKorteRegel, 1);
}

TEST(Ledencsv, HoudtDeVolgordeEnTrimtNiets)
{
    EXPECT_EQ(Lees(" 2 ;; Bea ;; de ; B ;;;;;;\r\n1;;Ans;;;A;;;;;; nl ;rest;\r\n").lstN1,
              (Lijst{" Bea , de , B ,,,,,,,, 2 ", "Ans,,A,,,,,, nl ,,1"}));
}

TEST(Ledencsv, HetNummerVerliestAlleenTekensBoven240Vooraan)
{
    const auto nummer = [](const Tekst& kolom) {
        const Tekst regel(Lees(kolom + ";;;;;X", geen).lstN1[0]);
        return regel.substr(regel.rfind(',') + 1);
    };
    EXPECT_EQ(nummer("\xFF\xFE\x31"), "1");
    EXPECT_EQ(nummer("\xF1\xF1\x31\xFF"), "1\xFF");
    EXPECT_EQ(nummer("\xF0\x31"), "\xF0\x31");
    EXPECT_EQ(nummer(" 1"), " 1");
    EXPECT_EQ(nummer("\xFF 1"), " 1");
    EXPECT_EQ(nummer("   "), "   ");
    EXPECT_EQ(nummer(""), "");
}

TEST(Ledencsv, EenKommaBlijftStaanEnSplitstHetVeld)
{
    const auto lezing = Lees("1;;Ans;;;Ek, van;;;;;;");
    ASSERT_EQ(lezing.lstN1.size(), 1U);
    EXPECT_EQ(lezing.lstN1[0], "Ans,,Ek, van,,,,,,,,1");
    EXPECT_EQ(SplitsImportregel(lezing.lstN1[0])[3], " van");
}

TEST(Ledencsv, EenTeKorteRegelBeeindigtHetLezenEnHoudtWatErWas)
{
    const Tekst goed = "1;;A;;;B;;;;;;\r\n";
    const Ledenlezing lezing = Lees(goed + "\r\n" + "2;;C;;;D;;;;;\r\n" + goed);
    EXPECT_EQ(lezing.lstN1, Lijst{"A,,B,,,,,,,,1"});
    EXPECT_EQ(lezing.teKorteRegel, 3);
}

TEST(Ledencsv, HoeveelKolommenErMoetenZijnHangtVanDeVakjesAf)
{
    const auto teKort = [](std::size_t kolommen, const Importkeuzes& keuzes) {
        return Lees(Tekst(kolommen - 1, ';') + "x", keuzes).teKorteRegel == 1;
    };
    EXPECT_TRUE(teKort(5, geen));
    EXPECT_FALSE(teKort(6, geen));
    EXPECT_TRUE(teKort(5, {.naw = false, .tel = false, .email = false, .mv = true}));
    EXPECT_FALSE(teKort(6, {.naw = false, .tel = false, .email = false, .mv = true}));
    EXPECT_TRUE(teKort(9, {.naw = false, .tel = true, .email = false, .mv = true}));
    EXPECT_FALSE(teKort(10, {.naw = false, .tel = true, .email = false, .mv = true}));
    EXPECT_TRUE(teKort(10, {.naw = false, .tel = true, .email = true, .mv = true}));
    EXPECT_FALSE(teKort(11, {.naw = false, .tel = true, .email = true, .mv = true}));
    EXPECT_TRUE(teKort(11, {.naw = true, .tel = false, .email = false, .mv = false}));
    EXPECT_FALSE(teKort(12, {.naw = true, .tel = false, .email = false, .mv = false}));
}

TEST(Ledencsv, LeestElkRegeleindeEnEenRegelZonder)
{
    EXPECT_EQ(Lees("1;;A;;;B\n2;;C;;;D\r3;;E;;;F", geen).lstN1,
              (Lijst{"A,,B,,,,,,,,1", "C,,D,,,,,,,,2", "E,,F,,,,,,,,3"}));
    EXPECT_TRUE(Lees("").lstN1.empty());
    EXPECT_TRUE(Lees("\r\n").lstN1.empty());
}

TEST(Ledencsv, EenNulByteIsGeenTekst)
{
    const auto lezing = LeesLedencsv(Tekstblik("1;;A;;;B\0", 9), geen);
    ASSERT_FALSE(lezing.has_value());
    EXPECT_EQ(lezing.error().soort, Foutsoort::Beschadigd);
}

TEST(Ledencsv, MeldtHoeVerHetIs)
{
    Tekst tekst;
    for (int i = 0; i < 10'000; ++i)
        tekst += lid + "\r\n";
    std::vector<std::size_t> standen;
    const auto lezing = LeesLedencsv(tekst, {}, [&](std::size_t gedaan, std::size_t geheel) {
        EXPECT_EQ(geheel, tekst.size());
        standen.push_back(gedaan);
        return false; // reading goes on
    });
    EXPECT_EQ(lezing->lstN1.size(), 10'000U);
    ASSERT_GE(standen.size(), 2U);
    EXPECT_LT(standen[0], standen[1]);
}

} // namespace
} // namespace plexoran
