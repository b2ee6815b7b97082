#include "sessions/zittinglijsten.h"

#include <array>
#include <functional>

#include <gtest/gtest.h>

#include "hulp/kill.h"

#ifdef __linux__
#include <sys/resource.h>
#endif

using namespace plexoran;

namespace {

constexpr auto Spelers = Lijstsoort::Spelers;
constexpr auto Percentages = Lijstsoort::Percentages;

using Tafelnamen = std::vector<Tafelnaam>;

Tafelnamen Zwevend(Tekstblik inhoud, Lijstsoort soort)
{
    return LeesLijst(inhoud, soort).zwevend;
}

/// The new text, with Jansen at N05 linked to 100237 unless something else is said.
Tekst Gekoppeld(Tekstblik inhoud, Lijstsoort soort, const Tekst& naam = "Jansen",
                const std::vector<Tekst>& codes = {"N05"})
{
    return HerschrijfLijst(inhoud, soort, {codes, naam, "100237"}).inhoud;
}

} // namespace

// ---------------------------------------------------------------- pairs

/// Meant: a hyphen in the name of the first player counts as the one between the two.
TEST(Tafelparen, HetEersteStreepjeSplitst)
{
    EXPECT_EQ(SplitsHelften("Jansen - 100234"), (Helften{"Jansen", "100234"}));
    EXPECT_EQ(SplitsHelften("Jansen-100234"), (Helften{"Jansen", "100234"}));
    EXPECT_EQ(SplitsHelften("  Jan  Bos  -  Piet "), (Helften{"Jan  Bos", "Piet"}));
    EXPECT_EQ(SplitsHelften("-"), (Helften{"", ""}));
    EXPECT_EQ(SplitsHelften("Jansen"), std::nullopt);
    EXPECT_EQ(SplitsHelften(""), std::nullopt);
    EXPECT_EQ(SplitsHelften("Tol-Vink - 100234"), (Helften{"Tol", "Vink - 100234"}));
    EXPECT_EQ(SplitsHelften("100234 - Tol-Vink"), (Helften{"100234", "Tol-Vink"}));
}

TEST(Tafelparen, EenItemIsCodeEnSpelers)
{
    EXPECT_EQ(PaarUit("N05 Jansen - 100234"), (Lijstpaar{"N05", "Jansen - 100234"}));
    EXPECT_EQ(PaarUit("  N05Jansen - 1 "), (Lijstpaar{"N05", "Jansen - 1"}));
    EXPECT_EQ(PaarUit("N5 Jansen - 1"), (Lijstpaar{"N5 ", "Jansen - 1"}));
    EXPECT_EQ(PaarUit("N105 Jansen - 1"), (Lijstpaar{"N10", "5 Jansen - 1"})); // no fourth
    EXPECT_EQ(PaarUit("N05"), (Lijstpaar{"N05", ""}));
    EXPECT_EQ(PaarUit("N"), (Lijstpaar{"N", ""}));
    EXPECT_EQ(PaarUit(""), std::nullopt);
    EXPECT_EQ(PaarUit("   "), std::nullopt);
}

TEST(Tafelparen, EenPlaatsIsEenLetterEnEenGetal)
{
    EXPECT_EQ(Tafelsleutel("N05"), Tafelsleutel("N5"));
    EXPECT_EQ(Tafelsleutel("N005"), Tafelsleutel(" N5 "));
    EXPECT_EQ(Tafelsleutel("N0"), Tafelsleutel("N00"));
    EXPECT_NE(Tafelsleutel("N5"), Tafelsleutel("N50"));
    EXPECT_NE(Tafelsleutel("N5"), Tafelsleutel("O5"));
    EXPECT_NE(Tafelsleutel("N5"), Tafelsleutel("n5"));
    EXPECT_NE(Tafelsleutel("105"), Tafelsleutel("15"));
    EXPECT_NE(Tafelsleutel("N0x"), Tafelsleutel("Nx"));
    EXPECT_NE(Tafelsleutel("N 5"), Tafelsleutel("N5"));
    EXPECT_EQ(Tafelsleutel("N"), "N");
    EXPECT_EQ(Tafelsleutel(""), "");
}

// ---------------------------------------------------------------- player lists

/// In file order and the first player first; an item ends at a comma or the end of the line, and
/// quotes around it fall away. What is no pair gives nothing.
TEST(Spelerslijst, DeHelftenDieGeenGetalZijn)
{
    const std::vector<std::pair<Tekst, Tafelnamen>> lijsten{
        {"N05 Jansen - 100234\r\n", {{"N05", "Jansen"}}},
        {"N05 7 - 100234\r\n", {}}, // digits, though no register key
        {"N05 100234a - 10 0234,N06 +100234 - 100234",
         {{"N05", "100234a"}, {"N05", "10 0234"}, {"N06", "+100234"}}},
        {"O02 Bos - 100001\r\nN01 Cos - Dos\r\n\r\n  \r\nN02 100002 - Bos",
         {{"O02", "Bos"}, {"N01", "Cos"}, {"N01", "Dos"}, {"N02", "Bos"}}},
        {"N01 Bos - 1,N02 Cos - 2\nN03 Dos - 3\r,,",
         {{"N01", "Bos"}, {"N02", "Cos"}, {"N03", "Dos"}}},
        {"\"N01 Bos, Jan - 1\"\r\n\"N02 Cos - 2\",N03 Dos - 3",
         {{"N01", "Bos, Jan"}, {"N02", "Cos"}, {"N03", "Dos"}}},
        {"", {}},
        {"N05 Jansen\r\nN\r\nN05\r\n-\r\nN05 -\r\nN05 - 100234\r\n", {}},
        {Tekst("\0\xFF\x01\r\x81", 5), {}}};
    for (const auto& [inhoud, zwevend] : lijsten)
        EXPECT_EQ(Zwevend(inhoud, Spelers), zwevend) << inhoud;
}

/// The pair comes out in its fixed form, every item of its line on a line of its own, and quotes
/// stay only where there is a comma.
TEST(Spelerslijst, DeKeyInDePlaatsVanDeNaam)
{
    const std::vector<std::pair<Tekst, Tekst>> lijsten{
        {"N05 Jansen - 100234\r\n", "N05 100237 - 100234\r\n"},
        {"N05 100234 - Jansen\r\n", "N05 100234 - 100237\r\n"},
        {"N05 Jansen - Jansen\r\n", "N05 100237 - 100237\r\n"},
        {"N05 jansen - Jansens\r\n", "N05 jansen - Jansens\r\n"},
        {"  N05Jansen-Piet  Bos  ", "N05 100237 - Piet  Bos"},
        {"N5 Jansen-1", "N5  100237 - 1"},
        {"N05 Jansen -", "N05 100237 - "},
        {"N04 Bos - 1,N05 Jansen - 2,,\"N06 Cos - 3\",\nN07 Dos - 4,N08 Eik - 5\n",
         "N04 Bos - 1\nN05 100237 - 2\n\nN06 Cos - 3\n\nN07 Dos - 4,N08 Eik - 5\n"},
        {"N05 Jansen - 2,N06 Cos - 3", "N05 100237 - 2\r\nN06 Cos - 3"},
        {"\"N05 Jansen - 2\"\r\n", "N05 100237 - 2\r\n"},
        {"\"N05 Jansen - Bos, Jan\"\r\n", "\"N05 100237 - Bos, Jan\"\r\n"}};
    for (const auto& [oud, nieuw] : lijsten)
        EXPECT_EQ(nieuw, Gekoppeld(oud, Spelers)) << oud;
    EXPECT_EQ("N05 100237 - 2\r\n", Gekoppeld("\"N05 Bos, Jan - 2\"\r\n", Spelers, "Bos, Jan"));
}

TEST(Spelerslijst, AndereRegelsKomenPrecieszoTerug)
{
    const Tekst voor = "\r\n  N04  Jansen-1 \n\"N06 Jansen - 1\",,x \r\x81\xFF\r\n";
    const Tekst na = "\n\n N05 Jansens - Jan\r\r\n,\r\n \r\nN07 -";
    EXPECT_EQ(voor + "N05 100237 - 100234\n" + na,
              Gekoppeld(voor + "N05 Jansen - 100234\n" + na, Spelers));
    EXPECT_EQ(voor + na, Gekoppeld(voor + na, Spelers));
}

TEST(Spelerslijst, AlleenOpDePlaats)
{
    const Tekst tekst = "N04 Jansen - 1\r\nN05 Jansen - 2\r\nO05 Jansen - 3\r\n";
    EXPECT_EQ("N04 Jansen - 1\r\nN05 100237 - 2\r\nO05 Jansen - 3\r\n",
              Gekoppeld(tekst, Spelers, "Jansen", {"N5"}));
    EXPECT_EQ("N04 100237 - 1\r\nN05 Jansen - 2\r\nO05 100237 - 3\r\n",
              Gekoppeld(tekst, Spelers, "Jansen", {"O05", "N04"}));
}

TEST(Spelerslijst, WelkePlaatsenErVervangenZijn)
{
    const auto nieuw = HerschrijfLijst("N01 Jan - 1\r\nN02 Piet - Jan\r\n", Spelers,
                                       {{"N03", "N02", "N2", "N01"}, "Jan", "100237"});
    EXPECT_EQ(nieuw.vervangen, (std::set<Tekst>{"N01", "N02"}));
    EXPECT_TRUE(HerschrijfLijst("N01 Jan - 1", Spelers, {{"N02"}, "Jan", "1"}).vervangen.empty());
}

// ---------------------------------------------------------------- result lists

TEST(Percentagelijst, VeldDrieIsDeCodeEnVeldVierHetPaar)
{
    EXPECT_EQ(Zwevend("1,\"A\",\"N5\",\"Jansen-100234\",52.08,0,\"\"\r\n", Percentages),
              (Tafelnamen{{"N5", "Jansen"}}));
    EXPECT_EQ(Zwevend("1,A, N5 ,Jansen - Bos,52.08,0,\r\n", Percentages),
              (Tafelnamen{{"N5", "Jansen"}, {"N5", "Bos"}}));
}

TEST(Percentagelijst, EenKommaTussenAanhalingstekensHoortBijZijnVeld)
{
    const Tekst tekst = "1,\"a,b\",\"N5\",\"Bos, Jan-Jansen\",52,0,\",\"\r\n";
    EXPECT_EQ(Zwevend(tekst, Percentages), (Tafelnamen{{"N5", "Bos, Jan"}, {"N5", "Jansen"}}));
    EXPECT_EQ("1,\"a,b\",\"N5\",\"Bos, Jan - 100237\",52,0,\",\"\r\n",
              Gekoppeld(tekst, Percentages));
}

TEST(Percentagelijst, RegelsZonderZevenVeldenWordenOvergeslagen)
{
    const Tekst tekst =
        "\r\n1,2,\"N5\",\"Jansen-1\",5,6\r\n  \r\n1,2,\"N5\",\"Jansen-1\",5,6,7,8\r\n"
        "ruis\r\n1,2,\"N5\",Bos, Jan-Jansen,5,6,7\r\n";
    EXPECT_EQ(Zwevend(tekst, Percentages), Tafelnamen{});
    EXPECT_EQ(4, LeesLijst(tekst, Percentages).overgeslagen);
    EXPECT_EQ(tekst, Gekoppeld(tekst, Percentages));
    EXPECT_EQ(0, LeesLijst("\r\n\r\n", Percentages).overgeslagen);
}

TEST(Percentagelijst, AlleenHetPaarVerandert)
{
    const Tekst voor = "\n 1 , \"x\" ,\"N4\", \"Jansen - 1\" ,5,\"\",\" 7 \"\r\n,,,,,,\r\nruis\r";
    const Tekst na = "3,,O5,Jansen-1,,,\r\n\r\n";
    EXPECT_EQ(voor +
                  " 2 , \"x\" , \"N05\" , \"100237 - 1\" ,5,\"\", \x81"
                  "\n" +
                  na,
              Gekoppeld(voor +
                            " 2 , \"x\" , \"N05\" , \"Jansen-1\" ,5,\"\", \x81"
                            "\n" +
                            na,
                        Percentages));
    EXPECT_EQ("2,x,N5,100237 - 1,5,6,7", Gekoppeld("2,x,N5,Jansen-1,5,6,7", Percentages));
    EXPECT_EQ("2,x,N5,100237 - 100237,5,6,7",
              Gekoppeld("2,x,N5,Jansen - Jansen,5,6,7", Percentages));
}

TEST(Percentagelijst, LeegAfgeknipEnRuis)
{
    for (const Tekst& tekst :
         {Tekst(), Tekst("1,\"A\",\"N5\",\"Jan"), Tekst("\"\"\",\"\0,\xFF", 9)}) {
        EXPECT_EQ(Zwevend(tekst, Percentages), Tafelnamen{});
        EXPECT_EQ(tekst, Gekoppeld(tekst, Percentages));
    }
}

// ---------------------------------------------------------------- size

TEST(Lijstgrootte, MeerNamenDanEenLijstHeeftBreektHetLezenAf)
{
    Tekst spelers;
    Tekst percentages;
    for (std::size_t i = 0; i < MeesteNamen / 2; ++i) {
        spelers += "N01 a-b,";
        percentages += "1,2,N1,a-b,5,6,7\r\n";
    }
    EXPECT_EQ(MeesteNamen, LeesLijst(spelers, Spelers).zwevend.size());
    EXPECT_FALSE(LeesLijst(spelers, Spelers).IsTeVeel());
    EXPECT_FALSE(LeesLijst(percentages, Percentages).IsTeVeel());
    spelers += spelers;
    percentages += percentages;
    EXPECT_TRUE(LeesLijst(spelers, Spelers).IsTeVeel());
    EXPECT_LE(LeesLijst(spelers, Spelers).zwevend.size(), MeesteNamen + 2);
    EXPECT_TRUE(LeesLijst(percentages, Percentages).IsTeVeel());
    EXPECT_LE(LeesLijst(percentages, Percentages).zwevend.size(), MeesteNamen + 2);
}

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)

namespace {

/// The most that `werk` takes in memory above what there was, in bytes.
std::size_t Geheugen(const std::function<void()>& werk)
{
    std::array<int, 2> pijp{};
    if (::pipe(pijp.data()) != 0)
        return 0;
    const auto meest = [] {
        rusage gebruik{};
        ::getrusage(RUSAGE_SELF, &gebruik);
        return static_cast<std::size_t>(gebruik.ru_maxrss) * 1024;
    };
    const pid_t kind = Kind([&] { // which begins with what there is now
        const std::size_t vooraf = meest();
        werk();
        const std::size_t erbij = meest() - vooraf;
        ::_exit(::write(pijp[1], &erbij, sizeof erbij) == sizeof erbij ? 0 : 1);
    });
    std::size_t erbij = 0;
    ::close(pijp[1]);
    EXPECT_EQ(static_cast<ssize_t>(sizeof erbij), ::read(pijp[0], &erbij, sizeof erbij));
    ::close(pijp[0]);
    ::waitpid(kind, nullptr, 0);
    return erbij;
}

} // namespace

TEST(Lijstgrootte, LezenEnHerschrijvenBlijvenBinnenAchtKeerHetBestand)
{
    const std::size_t grootte = std::size_t{2} << 20U;
    const Tekst kommas(grootte, ',');
    Tekst quotes;
    while (quotes.size() < grootte)
        quotes += "\"\",";
    for (const Tekst& inhoud : {kommas, quotes}) {
        for (const Lijstsoort soort : {Spelers, Percentages}) {
            EXPECT_LT(Geheugen([&] { (void)LeesLijst(inhoud, soort); }), 2 * grootte);
            const Tekst metNaam = "N05 Jansen-1," + inhoud;
            EXPECT_LT(Geheugen([&] {
                          (void)HerschrijfLijst(metNaam, soort, {{"N05"}, "Jansen", "100237"});
                      }),
                      8 * grootte);
        }
    }
}

#endif
