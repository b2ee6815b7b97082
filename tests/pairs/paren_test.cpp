#include "pairs/paren.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

struct ParenTest : testing::Test {
    Tekst Laad(const Paartekens& stukken, Tekstblik keuze = "Gr03-Dinsdag")
    {
        return paren.LaadSubgroep(tabel, "Gr03-", keuze, stukken);
    }
    [[nodiscard]] Teksten Keuzes() const
    {
        Teksten keuzes;
        for (std::size_t i = 0; i < paren.Lalle().size(); ++i)
            keuzes.push_back(paren.Keuze(static_cast<int>(i)));
        return keuzes;
    }

    Spelertabel tabel = MaakTabel({{"100001", "Gr03-", "An", "", "Bos", "Dinsdag", ""},
                                   {"100002", "Gr03-", "Bea", "de", "Cock", "Dinsdag", ""},
                                   {"100003", "Gr02-", "Cor", "van der", "Dam", "Dinsdag", ""},
                                   {"100004", "Gr03-", "Dirk", "", "Eik", "DINSDAG", ""},
                                   {"100005", "Gr03-", "Els", "", "Aap", "Dinsdag", ""},
                                   {"100006", "Gr03-", "Fred", "", "Gans", "", ""},
                                   {"100007", "Gr03-", "Gijs", "", "Haan", "Maandag", ""}});
    Paren paren;
};

} // namespace

// ---- Lines -------------------------------------------------------------------------------------

TEST(Paarregel, DeRegelsVanEenSpeler)
{
    const auto tabel = MaakTabel({{"100003", "Gr03-", "Cor", "van der", "Dam", "", ""},
                                  {"100001", "Gr03-", "An", "", "Bos", "", ""},
                                  {"100001", "Gr03-", "", "", "Bos", "", ""}});
    const Teksten regels{"Dam Cor van der   100003", "Bos An    100001", "Bos     100001"};
    const Teksten keuzes{"100003 Dam Cor van der", "100001 Bos An", "100001 Bos"};
    for (std::size_t i = 0; i < regels.size(); ++i) {
        EXPECT_EQ(regels[i], Spelerregel(tabel, static_cast<int>(i) + 1));
        EXPECT_EQ(keuzes[i], Keuzeregel(regels[i]));
    }
}

/// Blanks around the parts do not count, and a "+" in a name does not tear the pair apart.
TEST(Paarregel, DeSpelersVanEenPaar)
{
    EXPECT_EQ("100234 Faiskuza Bo de          +100417 Beiglim",
              Paarregel("100234 Faiskuza Bo de", "100417 Beiglim"));
    const std::vector<std::pair<Tekst, Teksten>> paren{
        {"100234 Faiskuza Bo de          +100417 Beiglim",
         {"100234", "Faiskuza Bo de", "100417", "Beiglim"}},
        {"  100234   Faiskuza + 100417 Beiglim  ", {"100234", "Faiskuza", "100417", "Beiglim"}},
        {Paarregel("100234 Bos+Co An", "100417 Dam+Zn"),
         {"100234", "Bos+Co An", "100417", "Dam+Zn"}},
        {"100234 F+100417 B+c", {"100234", "F", "100417", "B+c"}},
        {"100234 F+", {"100234", "F", "", ""}},
        {"+", {"", "", "", ""}}};
    for (const auto& [regel, delen] : paren) {
        const Paarspeler links = LinkerSpeler(regel);
        const Paarspeler rechts = RechterSpeler(regel);
        EXPECT_EQ(delen, (Teksten{Tekst(links.key), Tekst(links.naam), Tekst(rechts.key),
                                  Tekst(rechts.naam)}))
            << regel;
    }
    EXPECT_EQ("Faiskuza Bo de   100234", LinkerSpeler(paren.front().first).AlsSpelerregel());
    EXPECT_EQ(8U, Plusplek("100234 F+100417 B+c"));
    EXPECT_EQ(Tekst::npos, Plusplek("100234 F - 100417 B"));
}

// ---- Group-subgroups ---------------------------------------------------------------------------

/// Told apart by their characters, capitals included, in table order.
TEST_F(ParenTest, DeGroepSubgroepenInTabelvolgorde)
{
    EXPECT_EQ((Teksten{"Gr03-Dinsdag", "Gr03-DINSDAG", "Gr03-", "Gr03-Maandag"}),
              VulGroepSubgroepen(tabel, "Gr03-"));
    EXPECT_EQ(Teksten{"Gr02-Dinsdag"}, VulGroepSubgroepen(tabel, "Gr02-"));
    EXPECT_EQ(Teksten(), VulGroepSubgroepen(tabel, "Gr09-"));
}

// ---- Available players -------------------------------------------------------------------------

TEST_F(ParenTest, DeBeschikbareSpelersOpVolgordeVanNaam)
{
    EXPECT_EQ("", Laad({}));
    EXPECT_EQ((Teksten{"Aap Els    100005", "Bos An    100001", "Cock Bea de   100002",
                       "Eik Dirk    100004"}),
              paren.Lalle());
    EXPECT_EQ((Teksten{"100005 Aap Els", "100001 Bos An", "100002 Cock Bea de", "100004 Eik Dirk"}),
              Keuzes());
    EXPECT_EQ(Teksten(), paren.L3());
}

TEST_F(ParenTest, DeSpelersVanEenKeuzeZonderOpHoofdlettersTeLetten)
{
    for (const auto& [keuze, spelers] : std::vector<std::pair<Tekst, Teksten>>{
             {"Gr03-dinsDAG",
              {"100005 Aap Els", "100001 Bos An", "100002 Cock Bea de", "100004 Eik Dirk"}},
             {"Gr03-", {"100006 Gans Fred"}},
             {"Gr03-Woensdag", {}},
             {"Gr02-Dinsdag", {}},
             {"Gr", {}}}) {
        (void)Laad({}, keuze);
        EXPECT_EQ(spelers, Keuzes()) << keuze;
    }
}

TEST_F(ParenTest, EenOverledenSpelerDoetNietMee)
{
    tabel.ZetCel(2, Kolom::Status, "is Overleden (2021)");
    (void)Laad({});
    EXPECT_EQ((Teksten{"100005 Aap Els", "100001 Bos An", "100004 Eik Dirk"}), Keuzes());
}

TEST(Overleden, WatEenStatusBetekent)
{
    for (const char* status :
         {"OVERLEDEN", "overleden", "Is overleden in 2020", "overl", "OVERL", "Overle", " overl "})
        EXPECT_TRUE(IsOverleden(status)) << status;
    for (const char* status : {"", "over", "overl.", "ziek", "verleden", "overlast", "vovert"})
        EXPECT_FALSE(IsOverleden(status)) << status;
}

// ---- Stored pairs ------------------------------------------------------------------------------

TEST_F(ParenTest, EenGeldigPaarVerdwijntUitDeSpelersEnStaatOpVolgorde)
{
    EXPECT_EQ("", Laad({"100001-100004"}));
    EXPECT_EQ(Teksten{"100001 Bos An          +100004 Eik Dirk"}, paren.L3());
    EXPECT_EQ((Teksten{"100005 Aap Els", "100002 Cock Bea de"}), Keuzes());
    EXPECT_EQ("", Laad({"100002-100001", "100004-100005"}));
    EXPECT_EQ((Teksten{"100002 Cock Bea de          +100001 Bos An",
                       "100004 Eik Dirk          +100005 Aap Els"}),
              paren.L3());
    EXPECT_EQ("", Laad({"100004-100005", "100002-100001"}));
    EXPECT_EQ("100002 Cock Bea de          +100001 Bos An", paren.L3().front());
}

TEST_F(ParenTest, LosseSpelersWordenGemeldEnBlijvenStaan)
{
    EXPECT_EQ("100001 Bos An - 100099 ??????\r\n"
              "100098 ?????? - 100002 Cock Bea de\r\n"
              "100003 ?????? - 100007 ??????\r\n",
              Laad({"100001-100099", "100005-100004", "100098-100002", "100003-100007"}));
    EXPECT_EQ((Teksten{"100003 ??????          +100007 ??????",
                       "100098 ??????          +100002 Cock Bea de",
                       "100005 Aap Els          +100004 Eik Dirk",
                       "100001 Bos An          +100099 ??????"}),
              paren.L3());
    EXPECT_EQ(Teksten(), Keuzes());
}

/// Who has died is not available, nor is who is in another pair already.
TEST_F(ParenTest, WieInEenPaarLosIs)
{
    tabel.ZetCel(5, Kolom::Status, "OVERLEDEN");
    for (const auto& [stukken, losse] : std::vector<std::pair<Paartekens, Tekst>>{
             {{"1000011004170"}, "100001 Bos An - 004170 ??????\r\n"},
             {{"100001-100005"}, "100001 Bos An - 100005 ??????\r\n"},
             {{"100001-100002", "100004-100001"}, "100004 Eik Dirk - 100001 ??????\r\n"},
             {{"100001-100001"}, "100001 Bos An - 100001 ??????\r\n"}})
        EXPECT_EQ(losse, Laad(stukken));
}

/// Meant: the first line that contains the key anywhere is taken, a name included.
TEST_F(ParenTest, EenSleutelInEenNaam)
{
    tabel.ZetCel(5, Kolom::Voornaam, "100001");
    EXPECT_EQ("", Laad({"100001-100002"}));
    EXPECT_EQ(Teksten{"100001 Aap 100001          +100002 Cock Bea de"}, paren.L3());
    EXPECT_EQ((Teksten{"100001 Bos An", "100004 Eik Dirk"}), Keuzes());
}

/// He is there; only his name is.
TEST_F(ParenTest, EenSpelerDieVraagtekensHeetIsNietLos)
{
    tabel.ZetCel(1, Kolom::Voornaam, "");
    tabel.ZetCel(1, Kolom::Achternaam, "??????");
    EXPECT_EQ("", Laad({"100001-100002"}));
}

TEST_F(ParenTest, OpnieuwLadenVergeetDeVorigeParenEnWissenBrengtDeSpelersNietTerug)
{
    (void)Laad({"100001-100004"});
    (void)Laad({}, "Gr03-Maandag");
    EXPECT_EQ(Teksten(), paren.L3());
    EXPECT_EQ(Teksten{"100007 Haan Gijs"}, Keuzes());
    (void)Laad({"100001-100004"});
    paren.WisParen();
    EXPECT_EQ(Teksten(), paren.L3());
    EXPECT_EQ((Teksten{"100005 Aap Els", "100002 Cock Bea de"}), Keuzes());
}

// ---- Forming and dissolving --------------------------------------------------------------------

TEST_F(ParenTest, EenPaarMaken)
{
    (void)Laad({"100004-100001"});
    EXPECT_EQ(0, paren.MaakPaar(1, 0)); // Cock and Aap
    EXPECT_EQ((Teksten{"100002 Cock Bea de          +100005 Aap Els",
                       "100004 Eik Dirk          +100001 Bos An"}),
              paren.L3());
    EXPECT_EQ(Teksten(), Keuzes());
}

/// Meant: every line that contains the key goes, somebody else's name included.
TEST_F(ParenTest, EenPaarMakenNeemtElkeRegelMetDeSleutelWeg)
{
    tabel.ZetCel(4, Kolom::Voornaam, "x100005");
    tabel.ZetCel(2, Kolom::Voornaam, "y100001");
    (void)Laad({});
    EXPECT_EQ(0, paren.MaakPaar(0, 1)); // Aap 100005 and Bos 100001
    EXPECT_EQ(Teksten{"100005 Aap Els          +100001 Bos An"}, paren.L3());
    EXPECT_EQ(Teksten(), Keuzes());
}

TEST_F(ParenTest, OntbindenBrengtBeideSpelersOpHunPlaatsTerugOokWieOntbreekt)
{
    (void)Laad({"100002-100005"});
    ASSERT_EQ((Teksten{"100001 Bos An", "100004 Eik Dirk"}), Keuzes());
    paren.Ontbind(0);
    EXPECT_EQ((Teksten{"100005 Aap Els", "100001 Bos An", "100002 Cock Bea de", "100004 Eik Dirk"}),
              Keuzes());
    EXPECT_EQ((Teksten{"Aap Els   100005", "Bos An    100001", "Cock Bea de   100002",
                       "Eik Dirk    100004"}),
              paren.Lalle());
    EXPECT_EQ(Teksten(), paren.L3());
    (void)Laad({"100001-100099"});
    paren.Ontbind(0);
    EXPECT_EQ((Teksten{"100099 ??????", "100005 Aap Els", "100001 Bos An", "100002 Cock Bea de",
                       "100004 Eik Dirk"}),
              Keuzes());
}

// ---- Sorting -----------------------------------------------------------------------------------

TEST_F(ParenTest, NaamgenotenOpSleutelEnDanZoalsZeStonden)
{
    tabel = MaakTabel({{"100009", "Gr03-", "Jan", "", "Bos", "", ""},
                       {"100008", "Gr03-", "Jan", "", "Bos", "", ""},
                       {"100007", "Gr03-", "jan", "", "b\xF3s", "", ""},
                       {"100001", "Gr03-", "A", "", "X", "", ""},
                       {"100002", "Gr03-", "A", "", "Y", "", ""},
                       {"100003", "Gr03-", "A", "", "Z", "", ""}});
    (void)Laad({"100009-100001", "100008-100002", "100007-100003"}, "Gr03-");
    EXPECT_EQ(
        (Teksten{"100007 b\xF3s jan          +100003 Z A", "100008 Bos Jan          +100002 Y A",
                 "100009 Bos Jan          +100001 X A"}),
        paren.L3());
    (void)Laad({"100090-100001", "100090-100003", "100090-100002"}, "Gr03-");
    EXPECT_EQ((Teksten{"100090 ??????          +100001 X A", "100090 ??????          +100003 Z A",
                       "100090 ??????          +100002 Y A"}),
              paren.L3());
}

/// Three digits are not a limit: the order holds beyond a thousand pairs.
TEST_F(ParenTest, MeerDanDuizendParen)
{
    std::vector<Proefspeler> spelers;
    Paartekens stukken;
    for (int i = 0; i < 2500; ++i) {
        const Tekst links = std::to_string(100000 + i);
        const Tekst rechts = std::to_string(200000 + i);
        spelers.push_back({.key = links, .groep = "Gr03-", .achternaam = "N" + MetNullen(i, 5)});
        spelers.push_back({.key = rechts, .groep = "Gr03-", .achternaam = "P" + MetNullen(i, 5)});
        stukken.insert(stukken.begin(), links + "-" + rechts);
    }
    tabel = MaakTabel(spelers);
    EXPECT_EQ("", Laad(stukken, "Gr03-"));
    ASSERT_EQ(2500U, paren.L3().size());
    for (int i = 0; i < 2500; ++i)
        ASSERT_EQ(std::to_string(100000 + i), paren.L3()[static_cast<std::size_t>(i)].substr(0, 6));
    EXPECT_EQ(Teksten(), paren.Lalle());
    const Teksten eens = paren.L3();
    paren.Sorteer();
    EXPECT_EQ(eens, paren.L3());
}

// ---- Beside the plain way ----------------------------------------------------------------------

namespace {

/// As it is told, with plain searches.
Tekst GewoonTonen(Teksten& lalle, Teksten& l3, const Paartekens& paren)
{
    Tekst losse;
    const auto neem = [&](const Tekst& key) -> Tekst {
        for (std::size_t i = 0; i < lalle.size(); ++i) {
            if (lalle[i].find(key) == Tekst::npos)
                continue;
            const Tekst naam(ZonderSpaties(Tekstblik(lalle[i]).substr(0, lalle[i].size() - 6)));
            lalle.erase(lalle.begin() + static_cast<std::ptrdiff_t>(i));
            return naam;
        }
        return "??????";
    };
    for (const Tekst& paar : paren) {
        const Tekst key1 = paar.substr(0, 6);
        const Tekst key2 = paar.substr(7);
        const Tekst naam1 = neem(key1);
        const Tekst naam2 = neem(key2);
        if (naam1 == "??????" || naam2 == "??????")
            losse += key1 + " " + naam1 + " - " + key2 + " " + naam2 + "\r\n";
        l3.push_back(key1 + " " + naam1 + "          +" + key2 + " " + naam2);
    }
    return losse;
}

} // namespace

TEST_F(ParenTest, GelijkAanHetGewoneOpDuizendenKleineGroepen)
{
    std::mt19937 toeval(61);
    const Teksten keys{"100001", "100002", "100003", "100011", "1", "7100001", "a b c "};
    const Teksten namen{"Bos", "bos", "100002", "B 100001", "\xC9ik", "x100003y"};
    for (int keer = 0; keer < 3000; ++keer) {
        std::vector<Proefspeler> spelers(Gooi(toeval, 8));
        for (Proefspeler& speler : spelers)
            speler = {.key = Trek(toeval, keys),
                      .groep = "Gr03-",
                      .voornaam = Trek(toeval, {"", "An", "100001"}),
                      .tusv = Trek(toeval, {"", "de"}),
                      .achternaam = Trek(toeval, namen)};
        tabel = MaakTabel(spelers);
        Paartekens stukken(Gooi(toeval, 6));
        for (Tekst& stuk : stukken)
            stuk = (Trek(toeval, keys) + "       ").substr(0, 6) + "-" +
                   (Trek(toeval, keys) + "      ").substr(0, 6);
        (void)Laad({}, "Gr03-");
        Teksten lalle = paren.Lalle();
        Teksten l3;
        const Tekst losse = GewoonTonen(lalle, l3, stukken);
        ASSERT_EQ(losse, Laad(stukken, "Gr03-"));
        ASSERT_EQ(lalle, paren.Lalle());
        Teksten ongesorteerd = paren.L3();
        std::sort(ongesorteerd.begin(), ongesorteerd.end());
        std::sort(l3.begin(), l3.end());
        ASSERT_EQ(l3, ongesorteerd);
    }
}
