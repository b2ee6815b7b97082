#include "dialogs/ingave.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Reparaties = std::vector<Reparatie>;
constexpr std::optional<char> nietIngevuld;

} // namespace

TEST(KanTerugkeerveld, VierTotAchttienBehalveHetGeslacht)
{
    for (int veld = -3; veld <= 25; ++veld)
        EXPECT_EQ(veld >= 4 && veld <= 18 && veld != 13, KanTerugkeerveld(veld)) << veld;
    EXPECT_FALSE(KanTerugkeerveld(32767));
    EXPECT_FALSE(KanTerugkeerveld(-32768));
}

TEST(Begintekst, EenLeegGeslachtWordtMEnEenAnderBlijft)
{
    EXPECT_EQ("M", Begintekst(Kolom::MV, ""));
    for (const char* letter : {"M", "V", "X", " ", "v"})
        EXPECT_EQ(letter, Begintekst(Kolom::MV, letter));
}

TEST(Begintekst, DeSubgroepStaatInHoofdletters)
{
    EXPECT_EQ("A-LIJN \xC9", Begintekst(Kolom::NBBgr, "a-lijn \xE9"));
    EXPECT_EQ("", Begintekst(Kolom::NBBgr, ""));
}

TEST(Begintekst, DeAndereVeldenStaanZoalsZeZijn)
{
    for (int veld = 1; veld <= AantalKolommen; ++veld) {
        const auto kolom = static_cast<Kolom>(veld);
        if (kolom == Kolom::NBBgr)
            continue;
        EXPECT_EQ(" a,B\x81 ", Begintekst(kolom, " a,B\x81 ")) << veld;
        if (kolom != Kolom::MV) {
            EXPECT_EQ("", Begintekst(kolom, "")) << veld;
        }
    }
}

TEST(TypTeken, DeSubgroepNeemtHoofdlettersHetNummerCijfersEnDeRestAlles)
{
    for (int code = 15; code < 256; ++code) {
        const char teken = static_cast<char>(code);
        const char groot = code >= 'a' && code <= 'z' ? static_cast<char>(code - 32) : teken;
        ASSERT_EQ(groot, TypTeken(Kolom::NBBgr, teken, 0)) << code;
        ASSERT_EQ(groot, TypTeken(Kolom::NBBgr, teken, 1000)) << code;
        ASSERT_EQ(code >= '0' && code <= '9' ? std::optional(teken) : nietIngevuld,
                  TypTeken(Kolom::NBBnr, teken, 0))
            << code;
        for (int veld = 4; veld <= 16; ++veld)
            ASSERT_EQ(teken, TypTeken(static_cast<Kolom>(veld), teken, 5000));
    }
}

TEST(TypTeken, HetNummerNeemtHoogstensAchtCijfers)
{
    EXPECT_EQ('5', TypTeken(Kolom::NBBnr, '5', 7));
    EXPECT_EQ(nietIngevuld, TypTeken(Kolom::NBBnr, '5', 8));
    EXPECT_EQ(nietIngevuld, TypTeken(Kolom::NBBnr, '5', 9)); // a stored text may be longer
}

TEST(VerlaatVeld, ElkeKommaWordtEenUnderscoreMetEenMelding)
{
    for (int veld = 4; veld <= AantalKolommen; ++veld) {
        const auto uit = VerlaatVeld(static_cast<Kolom>(veld), "1,2,,");
        EXPECT_EQ("1_2__", uit.tekst) << veld;
        EXPECT_EQ(Reparaties{Reparatie::Komma}, uit.reparaties) << veld;
    }
    for (const char* tekst : {"", " ", "de Vries", "a;b.c", "\x82 lage aanhaling"}) {
        const auto uit = VerlaatVeld(Kolom::Voornaam, tekst);
        EXPECT_EQ(tekst, uit.tekst);
        EXPECT_EQ(Reparaties{}, uit.reparaties);
    }
}

TEST(VerlaatVeld, EenLozePartnerKrijgtUnderscoresVoorSpaties)
{
    const std::vector<std::pair<const char*, const char*>> gevallen{
        {"Partner Jan", "Partner_Jan"},
        {"partner x", "partner_x"},
        {"PARTNER  2 ", "PARTNER__2_"},
        {"Partnership van A", "Partnership_van_A"},
        {"pArTnEr van Jan", "pArTnEr_van_Jan"}};
    for (const auto& [in, verwacht] : gevallen) {
        const auto uit = VerlaatVeld(Kolom::Achternaam, in);
        EXPECT_EQ(verwacht, uit.tekst);
        EXPECT_EQ(Reparaties{Reparatie::Partner}, uit.reparaties) << in;
    }
    for (const char* tekst : {"Jan Partner", " Partner Jan", "Partner", "Partner_2", "Partne r x",
                              "Partne", "de Vries"}) {
        const auto uit = VerlaatVeld(Kolom::Achternaam, tekst);
        EXPECT_EQ(tekst, uit.tekst);
        EXPECT_EQ(Reparaties{}, uit.reparaties) << tekst;
    }
}

TEST(VerlaatVeld, DePartnerGeldtAlleenInDeAchternaam)
{
    for (int veld = 4; veld <= 16; ++veld) {
        if (veld == 6)
            continue;
        EXPECT_EQ("Partner Jan", VerlaatVeld(static_cast<Kolom>(veld), "Partner Jan").tekst);
    }
}

TEST(VerlaatVeld, EerstDeKommaDanDePartner)
{
    const auto uit = VerlaatVeld(Kolom::Achternaam, "Partner, Jan");
    EXPECT_EQ("Partner__Jan", uit.tekst);
    EXPECT_EQ((Reparaties{Reparatie::Komma, Reparatie::Partner}), uit.reparaties);
    // The comma is no letter of PARTNER once it is an underscore either.
    EXPECT_EQ("Part_ner Jan", VerlaatVeld(Kolom::Achternaam, "Part,ner Jan").tekst);
}

TEST(VerlaatVeld, DeSubgroepKomtGeheelInHoofdletters)
{
    const auto uit = VerlaatVeld(Kolom::NBBgr, "caf\xE9,\xE7\xFF b");
    EXPECT_EQ("CAF\xC9_\xC7\x9F B", uit.tekst);
    EXPECT_EQ(Reparaties{Reparatie::Komma}, uit.reparaties);
    EXPECT_EQ("caf\xE9", VerlaatVeld(Kolom::Div1, "caf\xE9").tekst);
}
