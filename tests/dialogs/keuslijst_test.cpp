#include "dialogs/keuslijst.h"

#include <random>

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "register/waardenlijst.h"

using namespace plexoran;

namespace {

const Tekst spaties60 = "                                                            ";

Spelertabel VierSpelers()
{
    return MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "", "1"},
                      {"100002", "Gr05-", "Bea", "de", "Cock", "DINSDAG", "2"},
                      {"100003", "Gr02-", "Cor", "van der", "Dam", " A ", "3"},
                      {"100004", "Gr01-", "", "", "Eik", "  ", ""}});
}

/// The values seen, kept as one text.
std::vector<Tekst> GewoonVerzameld(const std::vector<Tekst>& waarden)
{
    Tekst gezien;
    std::vector<Tekst> nieuw;
    for (const Tekst& waarde : waarden) {
        const Tekst gemerkt = "#" + waarde + "#";
        if (gezien.find(gemerkt) != Tekst::npos)
            continue;
        gezien += gemerkt;
        nieuw.push_back(waarde);
    }
    return nieuw;
}

std::vector<Tekst> Verzameld(const std::vector<Tekst>& waarden)
{
    Waardenlijst lijst;
    for (const Tekst& waarde : waarden)
        lijst.Voeg(waarde);
    return lijst.Waarden();
}

} // namespace

TEST(Keuslijst, VerplaatsregelMetTabZestigSpatiesEnDeKey)
{
    ASSERT_EQ(60U, spaties60.size());
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
    EXPECT_TRUE(RijenVanGroep(tabel, "Gr09-").empty());
    EXPECT_TRUE(VerplaatsbareRijen(MaakTabel({{"1", "Gr05-"}, {"2", "Gr05-"}}), "Gr05-").empty());
}

/// Meant: whatever the length of the key, the last six characters of the line are taken for it.
TEST(Keuslijst, DeKeyIsDeLaatsteZesTekens)
{
    EXPECT_EQ("100001", KeyVan("Gr01-\tBos   An " + spaties60 + "100001"));
    EXPECT_EQ("    12", KeyVan("Gr01-\tBos   An " + spaties60 + "12"));
    EXPECT_EQ("100001", KeyVan("Gr01-\tBos   An " + spaties60 + "7100001"));
    EXPECT_EQ("12", KeyVan("12"));
    EXPECT_EQ("", KeyVan(""));
}

TEST(Waardenlijst, ElkeWaardeEenKeerInVolgordeVanVerschijnen)
{
    EXPECT_EQ((std::vector<Tekst>{"b", "geen", "a", "B", " b"}),
              Verzameld({"b", "geen", "b", "a", "geen", "B", "a", " b"}));
    EXPECT_TRUE(Verzameld({}).empty());
}

TEST(Waardenlijst, EenDeelVanEenWaardeIsNieuw)
{
    EXPECT_EQ((std::vector<Tekst>{"A-lijn", "A", "lijn", "A-lij"}),
              Verzameld({"A-lijn", "A", "lijn", "A-lij"}));
}

/// Meant: a "#" in a value counts as a mark and can hide another value.
TEST(Waardenlijst, EenHekjeInEenWaardeVerbergtAndere)
{
    EXPECT_EQ((std::vector<Tekst>{"a#b#c"}), Verzameld({"a#b#c", "b", "a", "c", "a#b", "b#c"}));
    EXPECT_EQ((std::vector<Tekst>{"a", "b"}), Verzameld({"a", "b", "a##b", ""}));
    EXPECT_EQ((std::vector<Tekst>{"a", "#"}), Verzameld({"a", "#", "#"}));
}

TEST(Waardenlijst, GelijkAanHetZoekenInEenDoorlopendeTekst)
{
    std::mt19937 toeval(33);
    for (int keer = 0; keer < 20'000; ++keer) {
        std::vector<Tekst> waarden(Gooi(toeval, 25));
        for (Tekst& waarde : waarden) {
            waarde.resize(Gooi(toeval, 6));
            for (char& teken : waarde)
                teken = "ab#"[Gooi(toeval, 3)];
        }
        ASSERT_EQ(GewoonVerzameld(waarden), Verzameld(waarden)) << testing::PrintToString(waarden);
    }
}
