#include "dialogs/kopieren.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "dialogs/keuslijst.h"
#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

constexpr std::int32_t hoogste = std::numeric_limits<std::int32_t>::max();

Register Drie()
{
    Register spelers;
    spelers.tabel = MaakTabel({{"100001", "Gr05-", "An", "", "Bos", "DINSDAG", "12345"},
                               {"100007", "Gr01-", "Bo", "de", "Cos", "", ""},
                               {"100003", "Gr01-", "Cy", "", "Dos", "B", "9"}});
    spelers.HKEY = 100042;
    return spelers;
}

Rijvelden Kopie(Rijvelden bron, const Tekst& key, const Tekst& groep)
{
    bron[1] = key;
    bron[2] = groep;
    return bron;
}

} // namespace

TEST(Kopieren, DeKopieKomtAchteraanMetEenNieuweKeyZonderNummer)
{
    Register spelers = Drie();
    auto moet = AlleRijen(spelers.tabel);
    moet.push_back(Kopie(moet[2], "100043", "Gr09-"));
    moet.push_back(Kopie(moet[0], "100044", "Gr09-"));
    moet[3][17] = "";
    moet[4][17] = "";
    // Column 1 is copied as it stands; saving numbers anew.
    EXPECT_EQ("3", moet[3][0]);
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100003", "100001"}, .naarGroep = "Gr09-"}));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
    EXPECT_EQ(100044, spelers.HKEY);
}

TEST(Kopieren, KolomZeventienAlleenAlsHetGevraagdIs)
{
    for (const bool met : {false, true}) {
        Register spelers = Drie();
        EXPECT_TRUE(KopieerSpelers(
            spelers, {.keys = {"100001", "100007"}, .naarGroep = "Gr01-", .metNBBgr = met}));
        EXPECT_EQ(met ? "DINSDAG" : "", spelers.tabel.Cel(4, Kolom::NBBgr));
        EXPECT_EQ("", spelers.tabel.Cel(5, Kolom::NBBgr));
        EXPECT_EQ("Ede 100001", spelers.tabel.Cel(4, Kolom::Plaats));
        EXPECT_EQ("DINSDAG", spelers.tabel.Cel(1, Kolom::NBBgr));
    }
}

TEST(Kopieren, KolomAchttienAlleenAlsHetGevraagdIs)
{
    Register spelers = Drie();
    EXPECT_TRUE(
        KopieerSpelers(spelers, {.keys = {"100001"}, .naarGroep = "Gr01-", .metNBBnr = true}));
    EXPECT_EQ("12345", spelers.tabel.Cel(4, Kolom::NBBnr));
}

/// Meant: copying into the group itself makes doubles.
TEST(Kopieren, InDeEigenGroepMaaktDubbelen)
{
    Register spelers = Drie();
    auto moet = AlleRijen(spelers.tabel);
    moet.push_back(Kopie(moet[1], "100043", "Gr01-"));
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100007"}, .naarGroep = "Gr01-"}));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
}

/// Meant: keys follow the highest one issued, not the highest one in the table.
TEST(Kopieren, DeKeysVolgenOpDeHoogsteDieOoitIsUitgegeven)
{
    Register spelers = Drie();
    spelers.HKEY = 200000;
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100007"}, .naarGroep = "Gr01-"}));
    EXPECT_EQ("200001", spelers.tabel.Cel(4, Kolom::Key));
    spelers.HKEY = 100002;
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100007"}, .naarGroep = "Gr01-"}));
    EXPECT_EQ("100003", spelers.tabel.Cel(5, Kolom::Key));
}

/// Meant: a line whose key is not in the table gives a row with a key and a group only.
TEST(Kopieren, EenOnbekendeKeyGeeftEenLegeRij)
{
    Register spelers = Drie();
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"    12", "100003"}, .naarGroep = "Gr02-"}));
    ASSERT_EQ(5, spelers.tabel.Rijen());
    Rijvelden leeg;
    leeg[1] = "100043";
    leeg[2] = "Gr02-";
    EXPECT_EQ(leeg, spelers.tabel.Velden(4));
    EXPECT_EQ("100044", spelers.tabel.Cel(5, Kolom::Key));
    EXPECT_EQ("Dos", spelers.tabel.Cel(5, Kolom::Achternaam));
}

TEST(Kopieren, VanTweeRijenMetDezelfdeKeyTweeKeerDeEerste)
{
    Register spelers;
    spelers.tabel = MaakTabel({{"100001", "Gr01-", "Een"}, {"100001", "Gr01-", "Twee"}});
    spelers.HKEY = 100001;
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100001", "100001"}, .naarGroep = "Gr02-"}));
    EXPECT_EQ("Een", spelers.tabel.Cel(3, Kolom::Voornaam));
    EXPECT_EQ("Een", spelers.tabel.Cel(4, Kolom::Voornaam));
    EXPECT_EQ("100003", spelers.tabel.Cel(4, Kolom::Key));
}

TEST(Kopieren, AlsDeSleutelsOpZijnVerandertErNiets)
{
    Register spelers = Drie();
    spelers.HKEY = hoogste - 1;
    const auto oud = AlleRijen(spelers.tabel);
    EXPECT_FALSE(KopieerSpelers(spelers, {.keys = {"100001", "100007"}, .naarGroep = "Gr01-"}));
    EXPECT_EQ(oud, AlleRijen(spelers.tabel));
    EXPECT_EQ(hoogste - 1, spelers.HKEY);
    EXPECT_TRUE(KopieerSpelers(spelers, {.keys = {"100001"}, .naarGroep = "Gr01-"}));
    EXPECT_EQ("2147483647", spelers.tabel.Cel(4, Kolom::Key));
}

TEST(Kopieren, OverEenSleutelMinderIsGenoegOfNiet)
{
    Register spelers;
    EXPECT_TRUE(ZijnErSleutels(spelers, 0));
    EXPECT_TRUE(ZijnErSleutels(spelers, static_cast<std::size_t>(hoogste) - 100000));
    EXPECT_FALSE(ZijnErSleutels(spelers, static_cast<std::size_t>(hoogste) - 99999));
    spelers.HKEY = hoogste;
    EXPECT_TRUE(ZijnErSleutels(spelers, 0));
    EXPECT_FALSE(ZijnErSleutels(spelers, 1));
    spelers.HKEY = -5;
    EXPECT_TRUE(ZijnErSleutels(spelers, 1));
}

TEST(Kopieren, GelijkAanHetGewoneOpDuizendenKleineRegisters)
{
    std::mt19937 toeval(35);
    for (int keer = 0; keer < 5000; ++keer) {
        Register spelers;
        spelers.tabel = ToevalligeTabel(toeval);
        spelers.HKEY = 100000 + static_cast<std::int32_t>(Gooi(toeval, 100)) + 10;
        const bool metNBBgr = Gooi(toeval, 2) == 0;
        const bool metNBBnr = Gooi(toeval, 2) == 0;

        auto moet = AlleRijen(spelers.tabel);
        const std::size_t n = moet.size();
        std::int32_t hkey = spelers.HKEY;
        Kopieeropdracht opdracht{
            .keys = {}, .naarGroep = "Gr07-", .metNBBgr = metNBBgr, .metNBBnr = metNBBnr};
        for (const int rij : RijenVanGroep(spelers.tabel, "Gr01-")) {
            if (Gooi(toeval, 3) == 0)
                continue;
            const Tekst regel = Kopieerregel(spelers.tabel, rij);
            opdracht.keys.emplace_back(KeyVan(regel));
            Rijvelden nieuw;
            for (std::size_t r = 0; r < n; ++r) {
                if (moet[r][1] != regel.substr(regel.size() - 6))
                    continue;
                for (std::size_t kolom = 0; kolom < nieuw.size(); ++kolom) {
                    if ((kolom != 17 || metNBBnr) && (kolom != 16 || metNBBgr))
                        nieuw[kolom] = moet[r][kolom];
                }
                break;
            }
            nieuw[1] = std::to_string(++hkey);
            nieuw[2] = "Gr07-";
            moet.push_back(nieuw);
        }
        ASSERT_TRUE(KopieerSpelers(spelers, opdracht));
        ASSERT_EQ(moet, AlleRijen(spelers.tabel));
        ASSERT_EQ(hkey, spelers.HKEY);
    }
}
