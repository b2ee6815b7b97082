#include "register/itemmenging.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "register/groepen.h"

using namespace plexoran;

namespace {

using Staat = std::optional<Tekst>;

constexpr auto Groepenpad = "S:\\Spelers\\RVDGroepen.txt";
constexpr auto Inipad = "S:\\Admin\\Plexo.ini";
constexpr auto Parenpad = "S:\\Spelers\\Parenmap\\Gr01-A-LIJN.txt";
constexpr auto Spelerspad = "S:\\Zit\\Dinsdag\\Spelers.txt";
constexpr auto Uitslagpad = "S:\\Comp\\Ronde-1\\Zitting-2\\PercZit-2.txt";

Tekst Samen(const std::vector<Tekst>& items)
{
    Tekst uit;
    for (const Tekst& item : items)
        uit += item + ";";
    return uit;
}

/// What comes of it; a made-up text where nothing does.
Staat Inhoud(Tekstblik pad, const Staat& basis, const Staat& ons, const Staat& ander)
{
    const auto uit = MengTekst(pad, basis, ons, ander);
    return uit ? uit->inhoud : "kan niet";
}

/// The text, and behind a "|" each what was taken over and what collided.
Tekst Uitkomst3(Tekstblik pad, const Staat& basis, const Staat& ons, const Staat& ander)
{
    const auto uit = MengTekst(pad, basis, ons, ander);
    if (!uit)
        return "kan niet";
    return uit->inhoud.value_or("geen bestand") + "|" + Samen(uit->overgenomen) + "|" +
           Samen(uit->botsingen);
}

// --- whatever the file ---

TEST(MengTekst, TweeGelijkeTekstenGevenDeDerdeTotOpDeByte)
{
    for (const auto* pad : {"X:\\wat.bin", Groepenpad, Inipad, Parenpad, Spelerspad, Uitslagpad}) {
        const Staat een = "\n,\"raar\0tekst#\r";
        const Staat twee = "Gr01-\rGr07-x\nOPTIND\r\n\r\n";
        for (const Staat& ander : {twee, Staat(), Staat("")}) {
            EXPECT_EQ(Inhoud(pad, een, ander, een), ander) << pad;
            EXPECT_EQ(Inhoud(pad, een, een, ander), ander) << pad;
            EXPECT_EQ(Inhoud(pad, een, ander, ander), ander) << pad;
        }
    }
}

TEST(MengTekst, AndereSoortenKunnenNietSamen)
{
    for (const auto* pad : {"", "X:\\wat.txt", "S:\\RVDspelers.txt", "S:\\Spelers.txt\\x.txt",
                            "S:\\Nietparenmap.txt", "Parenmap.txt", "S:\\Parenmap\\x.ini",
                            "S:\\RVDparen.txt", "S:\\Parenmap2\\a.txt", "S:\\xParenmap\\a.txt"})
        EXPECT_FALSE(MengTekst(pad, "a", "b", "c")) << pad;
}

TEST(MengTekst, DeNaamTeltZonderHoofdlettersEnMetElkeStreep)
{
    for (const auto* pad : {"plexo.INI", "map/Plexo.ini", "S:\\PLEXO.INI"})
        EXPECT_EQ(Uitkomst3(pad, "A=1\nB=1\n", "A=2\nB=1\n", "A=1\nB=2\n"), "A=2\nB=2\n|B=2;|");
    EXPECT_EQ(Uitkomst3("Parenmap\\Gr01-.txt", "", "100001-100002#\r\n", ""),
              "100001-100002#\r\n||");
    EXPECT_EQ(Uitkomst3("/x/parenmap/gr01-.TXT", "", "100001-100002#\r\n", "100003-100004#\r\n"),
              "100003-100004#100001-100002#\r\n|100003-100004;|");
}

// --- group names ---

TEST(MengGroepen, NamenPerPlaats)
{
    const Tekst basis = "Gr01-Een\r\nGr02-Twee\r\nGr03-Drie\r\n";
    const Tekst ons = "Gr01-Een\r\nGr02-Hier\r\nGr03-Drie\r\n";
    const Tekst ander = "Gr01-Daar\r\nGr02-Twee\r\nGr03-Drie\r\n";
    const auto uit = MengTekst(Groepenpad, basis, ons, ander);
    ASSERT_TRUE(uit && uit->inhoud);
    EXPECT_TRUE(uit->inhoud->starts_with("Gr01-Daar\r\nGr02-Hier\r\nGr03-Drie\r\nGr04-\r\n"));
    EXPECT_TRUE(uit->inhoud->ends_with("\r\nGr50-\r\n"));
    EXPECT_EQ(Samen(uit->overgenomen), "Gr01-Daar;");
    EXPECT_EQ(Samen(uit->botsingen), "");
}

TEST(MengGroepen, BeideEenAndereNaamBotst)
{
    Groepen groepen;
    const Tekst basis = GroepenTekst(groepen);
    groepen.ZetNaam(7, "Hier");
    groepen.ZetNaam(8, "Ook hier");
    const Tekst ons = GroepenTekst(groepen);
    groepen.ZetNaam(7, "Daar");
    const Tekst ander = GroepenTekst(groepen);
    EXPECT_EQ(Uitkomst3(Groepenpad, basis, ons, ander), ander + "||Gr07-Hier;");
}

TEST(MengGroepen, EenNaamDieOntbreektIsNietGewist)
{
    Groepen groepen;
    groepen.ZetNaam(50, "Laatste");
    const Tekst basis = GroepenTekst(groepen);
    groepen.ZetNaam(1, "Hier");
    const Tekst ons = GroepenTekst(groepen);
    const auto uit = MengTekst(Groepenpad, basis, ons, "Gr01-\r\nGr02-Daar\r\nGr03");
    ASSERT_TRUE(uit && uit->inhoud);
    groepen.ZetNaam(2, "Daar");
    EXPECT_EQ(GroepenUit(*uit->inhoud).Toonteksten(), groepen.Toonteksten());
    EXPECT_EQ(Samen(uit->overgenomen), "Gr02-Daar;");
    EXPECT_EQ(Inhoud(Groepenpad, basis, ons, std::nullopt), ons);
}

TEST(MengGroepen, DeCijfersInDeCodeTellenNietEnVreemdeItemsBlijven)
{
    const Tekst ander = "; eigen regel\r\nGr07-Een,Gr02-Twee\nDrie\r\nGr09-Drie\r\n";
    const auto uit =
        MengTekst(Groepenpad, "Gr01-\r\n", "Gr01-\r\nGr02-\r\nGr03-\r\nGr04-Vier\r\n", ander);
    ASSERT_TRUE(uit && uit->inhoud);
    EXPECT_TRUE(uit->inhoud->starts_with(ander + "Gr04-Vier\r\nGr05-\r\n")) << *uit->inhoud;
    EXPECT_EQ(Samen(uit->botsingen), "");
}

TEST(MengGroepen, WatNaDeVijftigsteKomtIsGeenGroep)
{
    Groepen groepen;
    const Tekst basis = GroepenTekst(groepen);
    groepen.ZetNaam(50, "Laatste");
    EXPECT_EQ(Uitkomst3(Groepenpad, basis, GroepenTekst(groepen) + "Gr51-Hier\r\n",
                        basis + "Gr51-Daar\r\n"),
              GroepenTekst(groepen) + "Gr51-Daar\r\nGr51-Hier\r\n|Gr51-Daar;|");
}

// --- settings ---

TEST(MengInstellingen, PerSleutelEnDeRestBlijftStaan)
{
    EXPECT_EQ(Uitkomst3(Inipad, "OPTIND=1\r\nLOSTGR=2\r\n", "OPTIND=1\r\nLOSTGR=5\r\n",
                        "# eigen\noptind = 3,LOSTGR=2"),
              "# eigen\noptind = 3,LOSTGR=5|# eigen;optind = 3;|");
    EXPECT_EQ(Uitkomst3(Inipad, "OPTIND=1\r\n", "OPTIND=2\r\n", "OPTIND=3\r\n"),
              "OPTIND=3\r\n||OPTIND=2;");
    EXPECT_EQ(Uitkomst3(Inipad, "A=1\r\n", "A=1\r\nB=1\r\n", "A=2"), "A=2\r\nB=1\r\n|A=2;|");
}

// --- pairs ---

TEST(MengParen, DieVanDeAnderEerstEnOnzeNieuweErachter)
{
    EXPECT_EQ(Uitkomst3(Parenpad, "100001-100002#100003-100004#\r\n",
                        "100007-100008#100003-100004#100001-100002#\r\n",
                        "100003-100004#100001-100002#100005-100006#\r\n"),
              "100003-100004#100001-100002#100005-100006#100007-100008#\r\n|100005-100006;|");
}

TEST(MengParen, AanEenKantWegIsWeg)
{
    EXPECT_EQ(Uitkomst3(Parenpad, "100001-100002#100003-100004#100005-100006#\r\n",
                        "100003-100004#100005-100006#\r\n", "100001-100002#100005-100006#\r\n"),
              "100005-100006#\r\n|100003-100004;|");
    // All of them, and a pair of the other's.
    EXPECT_EQ(
        Uitkomst3(Parenpad, "100001-100002#\r\n", std::nullopt, "100001-100002#100003-100004#\r\n"),
        "100003-100004#\r\n|100003-100004;|");
    EXPECT_EQ(Uitkomst3(Parenpad, "100001-100002#\r\n", std::nullopt, "100001-100002#"),
              "geen bestand||");
}

TEST(MengParen, EenSpelerInTweeParenBotst)
{
    EXPECT_EQ(Uitkomst3(Parenpad, "", "100001-100002#100005-100006#\r\n", "100002-100003#\r\n"),
              "100002-100003#100005-100006#\r\n|100002-100003;|100001-100002;");
    // Whom we freed and the other left in his pair is free.
    EXPECT_EQ(Uitkomst3(Parenpad, "100001-100002#\r\n", "100001-100003#\r\n",
                        "100001-100002#100005-100006#\r\n"),
              "100005-100006#100001-100003#\r\n|100005-100006;|");
    // The other turned the pair around that we dissolved: it stays, so its player is not free.
    EXPECT_EQ(Uitkomst3(Parenpad, "100001-100002#\r\n", "100001-100003#\r\n", "100002-100001#\r\n"),
              "100002-100001#\r\n||100002-100001;100001-100003;");
}

TEST(MengParen, HetzelfdePaarTweeKeerGemaaktIsEenPaar)
{
    EXPECT_EQ(Uitkomst3(Parenpad, std::nullopt, "100001-100002#100005-100006#\r\n",
                        "100001-100002#100003-100004"),
              "100001-100002#100003-100004#100005-100006#|100003-100004;|");
    EXPECT_EQ(Uitkomst3(Parenpad, std::nullopt, "100002-100001#\r\n", "100001-100002#\n"),
              "100001-100002#\n||100002-100001;");
}

TEST(MengParen, BeschadigdeBestandenKunnenNietSamen)
{
    for (const auto* stuk : {"100003-1000", "100003-100004#x#\r\n", "1000031000040#",
                             "100003-100004#\r\n\r\n", "geen paren"}) {
        EXPECT_FALSE(MengTekst(Parenpad, "", "100001-100002#\r\n", stuk)) << stuk;
        EXPECT_FALSE(MengTekst(Parenpad, stuk, "100001-100002#\r\n", "")) << stuk;
        EXPECT_FALSE(MengTekst(Parenpad, "", stuk, "100001-100002#\r\n")) << stuk;
        EXPECT_EQ(Inhoud(Parenpad, "", "", stuk), stuk) << stuk;
    }
}

// --- sessions ---

TEST(MengZitting, ItemsPerPlaats)
{
    EXPECT_EQ(Uitkomst3(Spelerspad, "N01 Bos - 100002\r\nN02 Vos - 100003\r\n",
                        "N01 100001 - 100002\r\nN02 Vos - 100003\r\n",
                        "N01 Bos - 100002,\"N02 Vos, C. - 100003\"\nN03 100005 - Das"),
              "N01 100001 - 100002,\"N02 Vos, C. - 100003\"\nN03 100005 - Das|"
              "\"N02 Vos, C. - 100003\";N03 100005 - Das;|");
    EXPECT_EQ(Uitkomst3(Spelerspad, "N01 Bos - 100002\r\n", "N01 100001 - 100002\r\n",
                        "N01 100009 - 100002\r\n"),
              "N01 100009 - 100002\r\n||N01 100001 - 100002;");
}

TEST(MengZitting, AanhalingstekensTellenNietMee)
{
    EXPECT_EQ(Uitkomst3(Spelerspad, "N01 Bos - Das\r\nN02 Vos - Lam\r\n",
                        "N01 Bos - Das\r\nN02 100001 - Lam\r\n",
                        "\"N01 Bos - Das\"\r\n\"N02 Vos - Lam\"\r\n"),
              "\"N01 Bos - Das\"\r\nN02 100001 - Lam\r\n||");
}

TEST(MengUitslag, RegelsPerPlaatsEnDieGeenRecordZijnOpInhoud)
{
    const Tekst een = "1,\"A\",\"N1\",\"Bos-100002\",52.08,0,\"\"\r\n";
    const Tekst eenOns = "1,\"A\",\"N1\",\"100001 - 100002\",52.08,0,\"\"\r\n";
    const Tekst twee = "2,\"A\",\"N2\",\"Vos-100003\",48.00,0,\"\"\r\n";
    const Tekst tweeAnder = "2,\"A\",\"N2\",\"Vos-100003\",49.00,0,\"\"\r\n";
    EXPECT_EQ(Uitkomst3(Uitslagpad, een + "kop\r\n" + twee, eenOns + "kop\r\n" + twee,
                        een + "\r\nkop 2\n" + tweeAnder),
              eenOns + "\r\nkop 2\n" + tweeAnder + "|;kop 2;" +
                  tweeAnder.substr(0, tweeAnder.size() - 2) + ";kop;|");
    EXPECT_EQ(
        Uitkomst3("PercZit.txt", twee, "2,\"A\",\"N2\",\"100001-100003\",48.00,0,\"\"", tweeAnder),
        tweeAnder + "||2,\"A\",\"N2\",\"100001-100003\",48.00,0,\"\";");
}

// --- against a plain model ---

using Lijst = std::vector<std::pair<Tekst, Tekst>>;

const Tekst* Zoek(const Lijst& lijst, const Tekst& sleutel)
{
    const auto plek = std::find_if(lijst.begin(), lijst.end(),
                                   [&](const auto& item) { return item.first == sleutel; });
    return plek == lijst.end() ? nullptr : &plek->second;
}

bool Zelfde(const Tekst* een, const Tekst* ander)
{
    return een == nullptr || ander == nullptr ? een == ander : *een == *ander;
}

struct Model {
    Lijst uit;
    std::vector<Tekst> overgenomen;
    std::vector<Tekst> botsingen;
};

Tekst Ini(const Lijst& lijst)
{
    Tekst uit;
    for (const auto& [sleutel, waarde] : lijst)
        uit += sleutel + "=" + waarde + "\r\n";
    return uit;
}

Model MengEenvoudig(const Lijst& basis, const Lijst& ons, const Lijst& ander)
{
    Model model;
    std::vector<Tekst> sleutels;
    for (const Lijst* lijst : {&ander, &ons}) {
        for (const auto& [sleutel, waarde] : *lijst) {
            if (std::find(sleutels.begin(), sleutels.end(), sleutel) == sleutels.end())
                sleutels.push_back(sleutel);
        }
    }
    for (const Tekst& sleutel : sleutels) {
        const Tekst* b = Zoek(basis, sleutel);
        const Tekst* o = Zoek(ons, sleutel);
        const Tekst* a = Zoek(ander, sleutel);
        const bool wij = !Zelfde(b, o);
        const bool zij = !Zelfde(b, a);
        const Tekst* wint = zij ? a : o;
        if (wint != nullptr)
            model.uit.emplace_back(sleutel, *wint);
        if (wij && zij && !Zelfde(o, a))
            model.botsingen.push_back(sleutel + "=" + (o != nullptr ? *o : *a));
        else if (zij && !wij)
            model.overgenomen.push_back(sleutel + "=" + (a != nullptr ? *a : *o));
    }
    return model;
}

TEST(MengModel, HonderdduizendDrietallenVanItems)
{
    std::mt19937 toeval(20240611); // NOLINT(cert-msc51-cpp)
    const auto tot = [&](unsigned n) { return static_cast<int>(toeval() % n); };
    const auto maak = [&] {
        Lijst lijst;
        for (int i = 0; i < 6; ++i) {
            if (tot(4) > 0)
                lijst.emplace_back("K" + std::to_string(i), std::to_string(tot(2)));
        }
        std::shuffle(lijst.begin(), lijst.end(), toeval);
        return lijst;
    };
    int botsingen = 0;
    for (int keer = 0; keer < 100'000; ++keer) {
        const Lijst basis = maak();
        const Lijst ons = maak();
        const Lijst ander = maak();
        const Tekst teksten[]{Ini(basis), Ini(ons), Ini(ander)};
        const auto uit = MengTekst(Inipad, teksten[0], teksten[1], teksten[2]);
        ASSERT_TRUE(uit);
        if (teksten[0] == teksten[2] || teksten[1] == teksten[2]) {
            ASSERT_EQ(uit->inhoud, teksten[1]);
            continue;
        }
        const Model model = MengEenvoudig(basis, ons, ander);
        ASSERT_EQ(uit->inhoud, Ini(model.uit)) << Ini(basis) << "--\n"
                                               << Ini(ons) << "--\n"
                                               << Ini(ander);
        ASSERT_EQ(uit->overgenomen, model.overgenomen);
        ASSERT_EQ(uit->botsingen, model.botsingen);
        botsingen += static_cast<int>(model.botsingen.size());
    }
    EXPECT_GT(botsingen, 10'000);
}

/// Pairs of players of whom each is in one pair at the most, now and then turned around.
TEST(MengModel, DertigduizendDrietallenVanParen)
{
    std::mt19937 toeval(20240612); // NOLINT(cert-msc51-cpp)
    const auto maak = [&] {
        std::vector<int> spelers{1, 2, 3, 4, 5, 6, 7};
        std::shuffle(spelers.begin(), spelers.end(), toeval);
        Tekst uit;
        for (std::size_t i = 0; i + 1 < spelers.size() - toeval() % 6; i += 2)
            uit += "10000" + std::to_string(spelers[i]) + "-10000" +
                   std::to_string(spelers[i + 1]) + "#";
        return uit + "\r\n";
    };
    const auto paren = [](const Tekst& tekst) {
        std::vector<Tekst> uit;
        for (std::size_t plek = 0; plek + 14 <= tekst.size(); plek += 14)
            uit.push_back(tekst.substr(plek, 13));
        return uit;
    };
    const auto heeft = [](const std::vector<Tekst>& lijst, const Tekst& paar) {
        return std::find(lijst.begin(), lijst.end(), paar) != lijst.end();
    };
    const auto om = [](const Tekst& paar) { return paar.substr(7) + "-" + paar.substr(0, 6); };
    for (int keer = 0; keer < 30'000; ++keer) {
        const Tekst teksten[]{maak(), maak(), maak()};
        const auto uit = MengTekst(Parenpad, teksten[0], teksten[1], teksten[2]);
        ASSERT_TRUE(uit && uit->inhoud);
        const auto basis = paren(teksten[0]);
        const auto ons = paren(teksten[1]);
        const auto ander = paren(teksten[2]);
        const auto samen = paren(*uit->inhoud);
        std::map<Tekst, int> keren;
        for (const Tekst& paar : samen) {
            ASSERT_TRUE(heeft(ons, paar) || heeft(ander, paar)) << paar;
            ASSERT_EQ(++keren[paar.substr(0, 6)], 1) << *uit->inhoud;
            ASSERT_EQ(++keren[paar.substr(7)], 1) << *uit->inhoud;
        }
        for (const Tekst& paar : ander) { // gone only when we dissolved or turned it
            const bool blijft = heeft(ons, paar) || !heeft(basis, paar);
            ASSERT_EQ(heeft(samen, paar), blijft) << paar;
        }
        for (const Tekst& paar : ons) { // gone only when the other dissolved it, or told
            ASSERT_TRUE(heeft(samen, paar) || heeft(uit->botsingen, paar) ||
                        (heeft(basis, paar) && !heeft(ander, paar)))
                << paar << om(paar);
        }
    }
}

TEST(MengTekst, HonderdduizendItemsMergenVlot)
{
    Tekst basis;
    for (int i = 0; i < 100'000; ++i)
        basis += "N01 " + std::to_string(i) + " - x\r\n";
    const auto begin = std::chrono::steady_clock::now();
    const auto uit = MengTekst(Spelerspad, basis, basis + "N02 a - b\r\n", "N03 c - d\r\n" + basis);
    const std::chrono::duration<double> duur = std::chrono::steady_clock::now() - begin;
    ASSERT_TRUE(uit);
    EXPECT_EQ(uit->inhoud, "N03 c - d\r\n" + basis + "N02 a - b\r\n");
    EXPECT_LT(duur.count(), 5.0);
}

} // namespace
