#include "printing/printtabel.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

Spelertabel Voorbeeld()
{
    return MaakTabel({{"100001", "Gr01-", "An", "", "Zee", "A-lijn", "1"},
                      {"100002", "Gr05-", "Bea", "de", "Cock", "DINSDAG", "2"},
                      {"100003", "Gr01-", "Cor", "van", "Bos", "", "3"},
                      {"100004", "Gr01-", "Dirk", "", "Bos", "B-lijn", "4"},
                      {"100005", "Gr01-", "Els", "", "aap", "a-LIJN", "5"},
                      {"100006", "Gr01-", "Fred", "", "Gans", "  ", "6"}});
}

/// The first names in printed order, of a list with this column.
std::vector<Tekst> Voornamen(const Spelertabel& tabel, std::vector<Tekst> subgroepen = {},
                             Kolom kolom = Kolom::Achternaam)
{
    const Printtabel print = MaakPrinttabel(tabel, {.groepscode = "Gr01-",
                                                    .subgroepen = std::move(subgroepen),
                                                    .kolommen = {Kolom::Voornaam, kolom}});
    std::vector<Tekst> namen;
    for (int rij = 1; rij <= print.Rijen(); ++rij)
        namen.emplace_back(print.Cel(rij, 1));
    return namen;
}

} // namespace

TEST(Printsubgroepen, InVolgordeVanVerschijnenZonderSubgroepAlsGeen)
{
    EXPECT_EQ((std::vector<Tekst>{"A-lijn", "GEEN", "B-lijn", "a-LIJN"}),
              Printsubgroepen(Voorbeeld(), "Gr01-"));
    EXPECT_EQ((std::vector<Tekst>{"DINSDAG"}), Printsubgroepen(Voorbeeld(), "Gr05-"));
    EXPECT_TRUE(Printsubgroepen(Voorbeeld(), "Gr09-").empty());
}

TEST(Printsubgroepen, EenGroepZonderSubgroepenBiedtGeenAan)
{
    const auto tabel = MaakTabel(
        {{"1", "Gr01-", "An", "", "Bos", "", ""}, {"2", "Gr01-", "Bea", "", "Dam", "", ""}});
    EXPECT_EQ((std::vector<Tekst>{"GEEN"}), Printsubgroepen(tabel, "Gr01-"));
}

/// Meant: a "#" in a name counts as a mark and can hide another one, which is chosen with it.
TEST(Printsubgroepen, EenHekjeInEenNaamVerbergtAndere)
{
    const auto tabel = MaakTabel({{"1", "Gr01-", "An", "", "Bos", "#", ""},
                                  {"2", "Gr01-", "Bea", "", "Dam", "a#b", ""},
                                  {"3", "Gr01-", "Cor", "", "Eik", "b", ""},
                                  {"4", "Gr01-", "Dirk", "", "Vos", "A", ""},
                                  {"5", "Gr01-", "Els", "", "Zee", "c", ""}});
    EXPECT_EQ((std::vector<Tekst>{"#", "a#b", "A", "c"}), Printsubgroepen(tabel, "Gr01-"));
    EXPECT_EQ((std::vector<Tekst>{"Bea", "Cor", "Dirk"}), Voornamen(tabel, {"a#b"}));
}

TEST(Subgroepkop, DeGekozenSubgroepenZoalsZeInDeLijstStaan)
{
    EXPECT_EQ("", Subgroepkop({}));
    EXPECT_EQ("Subgroep(en): A-lijn", Subgroepkop({"A-lijn"}));
    EXPECT_EQ("Subgroep(en): A-lijn + GEEN + dinsdag", Subgroepkop({"A-lijn", "GEEN", "dinsdag"}));
}

TEST(Printtabel, DeGekozenKolommenInHunVolgordeMetHunNamen)
{
    const Spelertabel tabel = Voorbeeld();
    auto namen = Kolomnamen;
    namen[Index(Kolom::NBBgr)] = "Subgr";
    namen[Index(Kolom::NBBnr)] = "";
    const Printtabel print =
        MaakPrinttabel(tabel, {.groepscode = "Gr05-",
                               .subgroepen = {},
                               .kolommen = {Kolom::Voornaam, Kolom::MV, Kolom::NBBgr, Kolom::NBBnr},
                               .kolomnamen = namen});
    ASSERT_EQ(1, print.Rijen());
    ASSERT_EQ(4, print.Kolommen());
    EXPECT_EQ("RegNr", print.Titel(0));
    EXPECT_EQ("Voornaam", print.Titel(1));
    EXPECT_EQ("M/V", print.Titel(2));
    EXPECT_EQ("Subgr", print.Titel(3));
    EXPECT_EQ("", print.Titel(4)); // the last column has no name outside the import group
    EXPECT_EQ("Bea", print.Cel(1, 1));
    EXPECT_EQ("", print.Cel(1, 2));
    EXPECT_EQ("DINSDAG", print.Cel(1, 3));
    EXPECT_EQ("2", print.Cel(1, 4));
}

TEST(Printtabel, OpAchternaamNaamgenotenInTabelvolgorde)
{
    EXPECT_EQ((std::vector<Tekst>{"Els", "Cor", "Dirk", "Fred", "An"}), Voornamen(Voorbeeld()));
}

/// The number behind the name decides before capitals do.
TEST(Printtabel, NaamgenotenDieInHoofdlettersVerschillenInTabelvolgorde)
{
    const auto tabel = MaakTabel({{"1", "Gr01-", "An", "", "bos", "", ""},
                                  {"2", "Gr01-", "Bea", "", "Bos", "", ""},
                                  {"3", "Gr01-", "Cor", "", "B\xF6s", "", ""}});
    EXPECT_EQ((std::vector<Tekst>{"An", "Bea", "Cor"}), Voornamen(tabel));
}

/// Four digits, whatever stands in the surname.
TEST(Printtabel, EenAchternaamDieOpEenGenummerdeLijkt)
{
    const auto tabel = MaakTabel({{"1", "Gr01-", "An", "", "Bos", "", ""},
                                  {"2", "Gr01-", "Bea", "", "Bos  #0005", "", ""},
                                  {"3", "Gr01-", "Cor", "", "Bos  #00005", "", ""}});
    EXPECT_EQ((std::vector<Tekst>{"Cor", "An", "Bea"}), Voornamen(tabel));
}

TEST(Printtabel, ZonderAchternaamInTabelvolgorde)
{
    EXPECT_EQ((std::vector<Tekst>{"An", "Cor", "Dirk", "Els", "Fred"}),
              Voornamen(Voorbeeld(), {}, Kolom::Plaats));
}

TEST(Printtabel, AlleenDeGekozenSubgroepenHoofdlettersTellenNiet)
{
    using Namen = std::vector<Tekst>;
    EXPECT_EQ((Namen{"Els", "An"}), Voornamen(Voorbeeld(), {"A-lijn"}));
    EXPECT_EQ((Namen{"Els", "An"}), Voornamen(Voorbeeld(), {"a-LIJN"}));
    EXPECT_EQ((Namen{"Cor", "Fred"}), Voornamen(Voorbeeld(), {"GEEN"}));
    EXPECT_EQ((Namen{"Cor", "Dirk", "Fred"}), Voornamen(Voorbeeld(), {"GEEN", "B-lijn"}));
    EXPECT_TRUE(Voornamen(Voorbeeld(), {"lijn"}).empty()); // a part is not enough
}

/// Four digits end at 9,999 rows; the order does not.
TEST(Printtabel, OokBovenTienduizendRijenKloptDeVolgorde)
{
    constexpr int aantal = 12'000;
    std::vector<Proefspeler> spelers(aantal);
    for (int i = 0; i < aantal; ++i)
        spelers[static_cast<std::size_t>(i)] = {.key = std::to_string(i),
                                                .groep = "Gr01-",
                                                .voornaam = std::to_string(i),
                                                .achternaam = i % 2 == 0 ? "Zee" : "Bos"};
    // A surname that looks like one with a number behind it.
    spelers.push_back({.key = "x", .groep = "Gr01-", .voornaam = "x", .achternaam = "Bos  #x"});
    std::vector<Tekst> verwacht;
    for (int i = 1; i < aantal; i += 2)
        verwacht.push_back(std::to_string(i));
    verwacht.emplace_back("x");
    for (int i = 0; i < aantal; i += 2)
        verwacht.push_back(std::to_string(i));
    EXPECT_EQ(verwacht, Voornamen(MaakTabel(spelers)));
}

TEST(Printtabel, EenLegeGroepHeeftGeenRijen)
{
    EXPECT_TRUE(Voornamen(MaakTabel({{"1", "Gr02-", "An", "", "Bos", "", ""}})).empty());
}

TEST(Printtabel, GekozenSpelersVanWelkeGroepOok)
{
    const Spelertabel tabel = Voorbeeld();
    const std::vector<int> rijen{2, 3, 5};
    EXPECT_EQ((std::vector<Tekst>{"DINSDAG", "GEEN", "a-LIJN"}), Printsubgroepen(tabel, rijen));
    Printopdracht opdracht{
        .groepscode = "Gr01-", .kolommen = {Kolom::Voornaam, Kolom::Achternaam}, .rijen = rijen};
    EXPECT_EQ((std::vector{5, 3, 2}), MaakPrinttabel(tabel, opdracht).rijen);
    opdracht.subgroepen = {"DINSDAG"};
    EXPECT_EQ(std::vector{2}, MaakPrinttabel(tabel, opdracht).rijen);
}
