#include "platform/tekst/tekstblad.h"

#include "hulp/vlakvanger.h"

using namespace plexoran;

namespace {

using Bladen = std::vector<std::vector<Tekst>>;

/// Of these letters 180 fit beside the margins, and 66 lines on a page.
Bladen Verdeel(Tekstblik tekst)
{
    return Tekstbladen(tekst, Vastemeter());
}

} // namespace

TEST(Tekstblad, RegelsZoalsZeStaanOfGebroken)
{
    const Tekst a100 = " - " + Tekst(100, 'a');
    const Tekst vol = a100 + " " + Tekst(76, 'b');
    const Tekst b77 = " " + Tekst(77, 'b') + " c";
    for (const auto& [tekst, regels] : std::vector<std::pair<Tekst, std::vector<Tekst>>>{
             {"een\r\n\r\n - twee", {"een", "", " - twee"}},
             {"een\ntwee\n", {"een", "twee"}},
             {"", {}},
             // A tab is eight blanks.
             {"\tTitel\r\na\tb", {"        Titel", "a       b"}},
             // A line that is too long breaks at a blank, or where it is full.
             {vol, {vol}},
             {a100 + b77, {a100, b77}},
             {Tekst(190, 'a'), {Tekst(180, 'a'), Tekst(10, 'a')}},
             {"    " + Tekst(190, 'a'), {"    " + Tekst(176, 'a'), "    " + Tekst(14, 'a')}}})
        EXPECT_EQ(Bladen{regels}, Verdeel(tekst));
}

/// However deep a line begins, all of it comes out.
TEST(Tekstblad, EenInspringingBrederDanHetBlad)
{
    const Bladen bladen = Verdeel(Tekst(400, ' ') + "eind " + Tekst(190, ' '));
    Tekst alles;
    for (const Tekst& regel : bladen.front())
        alles += regel;
    EXPECT_NE(Tekst::npos, alles.find("eind"));
}

TEST(Tekstblad, EenVolBladGaatVerderOpHetVolgende)
{
    Tekst tekst;
    for (int i = 0; i < 133; ++i)
        tekst += std::to_string(i) + "\r\n";
    const Bladen bladen = Verdeel(tekst);
    ASSERT_EQ(3U, bladen.size());
    EXPECT_EQ(66U, bladen[0].size());
    EXPECT_EQ("66", bladen[1].front());
    EXPECT_EQ(std::vector<Tekst>{"132"}, bladen[2]);
}

TEST(Tekstblad, HetTekenen)
{
    Vlakvanger vlak;
    TekenTekstblad(vlak, {"een", "", "twee"});
    EXPECT_EQ((std::vector<Tekst>{"een", "", "twee"}), vlak.Teksten());
    for (std::size_t i = 0; i < vlak.teksten.size(); ++i) {
        EXPECT_EQ(15, vlak.teksten[i].x);
        EXPECT_EQ(15 + 4 * static_cast<double>(i), vlak.teksten[i].y);
        EXPECT_EQ((Letter{.type = Lettertype::TimesNewRoman, .punten = 10}),
                  vlak.teksten[i].letter);
    }
    EXPECT_TRUE(vlak.lijnen.empty());
}
