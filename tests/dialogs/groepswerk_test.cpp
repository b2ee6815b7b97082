#include "dialogs/groepswerk.h"

#include <limits>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

constexpr std::int32_t hoogste = std::numeric_limits<std::int32_t>::max();
const Tekst spaties60(60, ' ');

Spelertabel VierSpelers()
{
    return MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "", "1"},
                      {"100002", "Gr05-", "Bea", "de", "Cock", "DINSDAG", "2"},
                      {"100003", "Gr02-", "Cor", "van der", "Dam", " A ", "3"},
                      {"100004", "Gr01-", "", "", "Eik", "  ", ""}});
}

std::vector<Rijvelden> MetGroep(std::vector<Rijvelden> rijen, std::size_t rij, const Tekst& groep)
{
    rijen.at(rij - 1)[2] = groep;
    return rijen;
}

class Kopieren : public testing::Test {
  protected:
    Kopieren()
    {
        spelers.tabel = MaakTabel({{"100001", "Gr05-", "An", "", "Bos", "DINSDAG", "12345"},
                                   {"100007", "Gr01-", "Bo", "de", "Cos", "", ""},
                                   {"100003", "Gr01-", "Cy", "", "Dos", "B", "9"}});
        spelers.HKEY = 100042;
        moet = AlleRijen(spelers.tabel);
    }

    /// Row `bron` once more, with these texts instead of its own.
    void VerwachtKopie(std::size_t bron, const Tekst& key, const Tekst& groep)
    {
        moet.push_back(moet.at(bron - 1));
        moet.back()[1] = key;
        moet.back()[2] = groep;
        moet.back()[17] = "";
    }

    /// To the group, with the columns 17 and 18 as by default.
    [[nodiscard]] bool Kopieer(const Teksten& keys, const Tekst& groep = "Gr01-")
    {
        return KopieerSpelers(spelers, {.keys = keys, .naarGroep = groep});
    }

    Register spelers;
    std::vector<Rijvelden> moet;
};

Spelertabel MetSubgroepen(const Teksten& subgroepen)
{
    std::vector<Proefspeler> spelers;
    for (const Tekst& subgroep : subgroepen)
        spelers.push_back({.groep = "Gr01-", .nbbgr = subgroep});
    return MaakTabel(spelers);
}

} // namespace

// ---------------------------------------------------------------- the lists to choose from

TEST(Keuslijst, VerplaatsregelMetTabZestigSpatiesEnDeKey)
{
    const Spelertabel tabel = VierSpelers();
    EXPECT_EQ("Gr01-\tBos   An " + spaties60 + "100001", Verplaatsregel(tabel, 1));
    EXPECT_EQ("Gr02-\tDam   Cor van der" + spaties60 + "100003", Verplaatsregel(tabel, 3));
    EXPECT_EQ("Gr01-\tEik    " + spaties60 + "100004", Verplaatsregel(tabel, 4));
}

TEST(Keuslijst, KopieerregelMetDeSubgroepOfGeen)
{
    const Spelertabel tabel = VierSpelers();
    EXPECT_EQ("Gr01-\tBos   An (geen)" + spaties60 + "100001", Kopieerregel(tabel, 1));
    EXPECT_EQ("Gr05-\tCock   Bea de  (DINSDAG)" + spaties60 + "100002", Kopieerregel(tabel, 2));
    EXPECT_EQ("Gr02-\tDam   Cor van der  ( A )" + spaties60 + "100003", Kopieerregel(tabel, 3));
    EXPECT_EQ("Gr01-\tEik    (geen)" + spaties60 + "100004", Kopieerregel(tabel, 4));
}

TEST(Keuslijst, RijenInTabelvolgorde)
{
    const Spelertabel tabel = VierSpelers();
    EXPECT_EQ((std::vector{1, 3, 4}), VerplaatsbareRijen(tabel, "Gr05-"));
    EXPECT_EQ((std::vector{2, 3}), VerplaatsbareRijen(tabel, "Gr01-"));
    EXPECT_EQ((std::vector{1, 2, 3, 4}), VerplaatsbareRijen(tabel, "Gr09-"));
    EXPECT_EQ((std::vector{1, 4}), RijenVanGroep(tabel, "Gr01-"));
    EXPECT_EQ(std::vector{3}, RijenVanGroep(tabel, "Gr02-"));
    EXPECT_TRUE(RijenVanGroep(tabel, "Gr09-").empty());
    EXPECT_TRUE(RijenVanGroep(Spelertabel(), "Gr01-").empty());
    EXPECT_TRUE(RijenVanGroep(MaakTabel({{"1", "gr02-"}, {"2", "Gr02"}, {"3", " Gr02"}, {"4", ""}}),
                              "Gr02-")
                    .empty());
    EXPECT_TRUE(VerplaatsbareRijen(MaakTabel({{"1", "Gr05-"}, {"2", "Gr05-"}}), "Gr05-").empty());
}

/// Meant: whatever the length of the key, the last six characters of the line are taken for it.
TEST(Keuslijst, DeKeyIsDeLaatsteZesTekens)
{
    const Spelertabel tabel = MaakTabel({{"100001"}, {"12"}, {"7100001"}, {""}});
    EXPECT_EQ("100001", Regelkey(tabel, 1));
    EXPECT_EQ("    12", Regelkey(tabel, 2));
    EXPECT_EQ("100001", Regelkey(tabel, 3));
    EXPECT_EQ("      ", Regelkey(tabel, 4));
}

// ---------------------------------------------------------------- moving

TEST(Verplaatsen, AlleenDeGroepVerandert)
{
    Spelertabel tabel = VierSpelers();
    auto moet = MetGroep(MetGroep(AlleRijen(tabel), 1, "Gr10-"), 3, "Gr10-");
    VerplaatsSpelers(tabel, {"100003", "100001"}, "Gr10-");
    EXPECT_EQ(moet, AlleRijen(tabel));
    // Also to the import group, and to the own group.
    moet = MetGroep(moet, 4, "Gr05-");
    VerplaatsSpelers(tabel, {"100004"}, "Gr05-");
    VerplaatsSpelers(tabel, {"100001"}, "Gr10-");
    EXPECT_EQ(moet, AlleRijen(tabel));
}

TEST(Verplaatsen, VanTweeRijenMetDezelfdeKeyAlleenDeEerste)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr05-"}, {"100001", "Gr01-"}, {"100001", "Gr02-"}});
    const auto oud = AlleRijen(tabel);
    // Also when the first one is not among those that can be moved.
    VerplaatsSpelers(tabel, {"100001", "100001"}, "Gr03-");
    EXPECT_EQ(MetGroep(oud, 1, "Gr03-"), AlleRijen(tabel));
}

TEST(Verplaatsen, EenOnbekendeKeyWordtOvergeslagen)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr01-"}, {"12", "Gr01-"}, {"7100009", "Gr01-"}});
    const auto oud = AlleRijen(tabel);
    VerplaatsSpelers(tabel, {"    12", "100009", "100002", ""}, "Gr03-");
    VerplaatsSpelers(tabel, {}, "Gr03-");
    EXPECT_EQ(oud, AlleRijen(tabel));
}

// ---------------------------------------------------------------- copying

TEST_F(Kopieren, DeKopieKomtAchteraanMetEenNieuweKeyZonderNummer)
{
    VerwachtKopie(3, "100043", "Gr09-");
    VerwachtKopie(1, "100044", "Gr09-");
    // Column 1 is copied as it stands; saving numbers anew.
    EXPECT_EQ("3", moet[3][0]);
    // Meant: copying into the group itself makes doubles.
    VerwachtKopie(2, "100045", "Gr01-");
    EXPECT_TRUE(Kopieer({"100003", "100001"}, "Gr09-"));
    EXPECT_TRUE(Kopieer({"100007"}));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
    EXPECT_EQ(100045, spelers.HKEY);
}

TEST_F(Kopieren, KolomZeventienAlsHetGevraagdIsEnAchttienNooit)
{
    int rij = 3;
    for (const bool met17 : {false, true}) {
        EXPECT_TRUE(
            KopieerSpelers(spelers, {.keys = {"100001"}, .naarGroep = "Gr01-", .metNBBgr = met17}));
        EXPECT_EQ(met17 ? "DINSDAG" : "", spelers.tabel.Cel(++rij, Kolom::NBBgr));
        EXPECT_EQ("", spelers.tabel.Cel(rij, Kolom::NBBnr));
        EXPECT_EQ("Ede 100001", spelers.tabel.Cel(rij, Kolom::Plaats));
    }
    EXPECT_EQ(moet[0], spelers.tabel.Velden(1));
}

/// Meant: keys follow the highest one issued, not the highest one in the table.
TEST_F(Kopieren, DeKeysVolgenOpDeHoogsteDieOoitIsUitgegeven)
{
    spelers.HKEY = 200000;
    EXPECT_TRUE(Kopieer({"100007"}));
    EXPECT_EQ("200001", spelers.tabel.Cel(4, Kolom::Key));
    spelers.HKEY = 100002;
    EXPECT_TRUE(Kopieer({"100007"}));
    EXPECT_EQ("100003", spelers.tabel.Cel(5, Kolom::Key));
}

/// Meant: a line whose key is not in the table gives a row with a key and a group only.
TEST_F(Kopieren, EenOnbekendeKeyGeeftEenLegeRij)
{
    moet.push_back({"", "100043", "Gr02-"});
    VerwachtKopie(3, "100044", "Gr02-");
    EXPECT_TRUE(Kopieer({"    12", "100003"}, "Gr02-"));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
}

TEST_F(Kopieren, DeRijenZelfWatHunKeyOokIs)
{
    spelers.tabel.ZetCel(2, Kolom::Key, "100001");
    spelers.tabel.ZetCel(3, Kolom::Key, "");
    moet = AlleRijen(spelers.tabel);
    VerwachtKopie(2, "100043", "Gr09-");
    VerwachtKopie(3, "100044", "Gr09-");
    EXPECT_TRUE(KopieerRijen(spelers, {2, 3}, "Gr09-"));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
    spelers.HKEY = hoogste - 1;
    EXPECT_FALSE(KopieerRijen(spelers, {1, 2}, "Gr09-"));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
}

TEST_F(Kopieren, VanTweeRijenMetDezelfdeKeyTweeKeerDeEerste)
{
    spelers.tabel.ZetCel(2, Kolom::Key, "100001");
    EXPECT_TRUE(Kopieer({"100001", "100001"}, "Gr02-"));
    EXPECT_EQ("An", spelers.tabel.Cel(4, Kolom::Voornaam));
    EXPECT_EQ("An", spelers.tabel.Cel(5, Kolom::Voornaam));
    EXPECT_EQ("100044", spelers.tabel.Cel(5, Kolom::Key));
}

TEST_F(Kopieren, AlsDeSleutelsOpZijnVerandertErNiets)
{
    spelers.HKEY = hoogste - 1;
    EXPECT_FALSE(Kopieer({"100001", "100007"}));
    EXPECT_EQ(moet, AlleRijen(spelers.tabel));
    EXPECT_EQ(hoogste - 1, spelers.HKEY);
    EXPECT_TRUE(Kopieer({"100001"}));
    EXPECT_EQ("2147483647", spelers.tabel.Cel(4, Kolom::Key));
}

// ---------------------------------------------------------------- subgroups

TEST(Subgroep, ElkeSubgroepEenKeerInVolgordeVanVerschijnen)
{
    const Spelertabel tabel =
        MetSubgroepen({"B-lijn", "", " A-lijn ", "  ", "B-lijn", "geen", "A-lijn", "b-lijn"});
    EXPECT_EQ((Teksten{"B-lijn", "geen", "A-lijn", "b-lijn"}), SubgroepenVan(tabel, "Gr01-"));
    EXPECT_EQ(Teksten(), SubgroepenVan(tabel, "Gr02-"));
}

/// Meant: a "#" in a value counts as a mark between values.
TEST(Subgroep, EenHekjeKanEenSubgroepVerbergen)
{
    EXPECT_EQ((Teksten{"A#B#C", "A-lijn"}),
              SubgroepenVan(MetSubgroepen({"A#B#C", "B", "A", "A-lijn"}), "Gr01-"));
}

TEST(Subgroep, AlleSpelersVanDeSubgroepInDeGroep)
{
    const Spelertabel tabel = MaakTabel({{"1", "Gr01-", "", "", "A", "x", ""},
                                         {"2", "Gr02-", "", "", "B", "x", ""},
                                         {"3", "Gr01-", "", "", "C", "X", ""},
                                         {"4", "Gr01-", "", "", "D", "x", ""},
                                         {"5", "Gr01-", "", "", "E", "", ""}});
    EXPECT_EQ((std::vector{1, 4}), RijenVanSubgroep(tabel, "Gr01-", "x"));
    EXPECT_EQ(std::vector<int>(), RijenVanSubgroep(tabel, "Gr02-", "geen"));
}

TEST(Subgroep, GeenInElkeLetterIsOokDeLege)
{
    const Spelertabel tabel = MetSubgroepen({"", "geen", "Geen", "x", ""});
    EXPECT_EQ((std::vector{1, 2, 5}), RijenVanSubgroep(tabel, "Gr01-", "geen"));
    EXPECT_EQ((std::vector{1, 3, 5}), RijenVanSubgroep(tabel, "Gr01-", "Geen"));
    EXPECT_EQ((std::vector{1, 5}), RijenVanSubgroep(tabel, "Gr01-", "GEEN"));
}

/// Meant: listed without its spaces, but compared with them.
TEST(Subgroep, MetSpatiesEromheenHoortDeSpelerErNietBij)
{
    const Spelertabel tabel = MetSubgroepen({" x", "x ", "x", "  "});
    EXPECT_EQ((Teksten{"x", "geen"}), SubgroepenVan(tabel, "Gr01-"));
    EXPECT_EQ(std::vector{3}, RijenVanSubgroep(tabel, "Gr01-", "x"));
    EXPECT_EQ(std::vector<int>(), RijenVanSubgroep(tabel, "Gr01-", "geen"));
}

TEST(Veldopdracht, NoemtWieEenAndereTekstKrijgtZoalsDeIngaveDieMaakt)
{
    Spelertabel tabel = VierSpelers();
    const auto maak = [&](Kolom veld, Tekstblik waarde) {
        return MaakVeldopdracht(tabel, {1, 2, 3, 4}, veld, waarde, "Gr05-");
    };
    const Veldopdracht subgroep = maak(Kolom::NBBgr, "dins,dag");
    EXPECT_EQ("DINS_DAG", subgroep.nieuw);
    EXPECT_EQ((std::vector{1, 2, 3, 4}), subgroep.rijen);
    EXPECT_EQ((std::vector{1, 3, 4}), maak(Kolom::NBBgr, "DINSDAG").rijen);
    EXPECT_EQ((std::vector{1, 3, 4}),
              maak(Kolom::Groep, "Gr07-").rijen); // not out of the import group
    EXPECT_EQ((std::vector{3}), maak(Kolom::Groep, "Gr01-").rijen);
    EXPECT_EQ((std::vector{2}), maak(Kolom::NBBnr, "").rijen);
    EXPECT_TRUE(maak(Kolom::Achternaam, " ").rijen.empty());
    EXPECT_EQ((std::vector{1, 2, 3}), maak(Kolom::Achternaam, "Eik").rijen);

    std::vector<Rijvelden> moet = AlleRijen(tabel);
    VoerUit(tabel, maak(Kolom::NBBgr, "DINSDAG"));
    for (const std::size_t rij : {0U, 2U, 3U})
        moet[rij][16] = "DINSDAG";
    EXPECT_EQ(moet, AlleRijen(tabel));
}
