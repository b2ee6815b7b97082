#include "help/tekstblad.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

using Bladen = std::vector<std::vector<Tekst>>;

/// Every character is 2 mm wide, so that 90 of them fit beside the margins; a line is 10 mm high,
/// so that 26 of them fit.
class Vastemeter : public Lettermeter {
  public:
    double Breedte(const Letter& letter, Tekstblik tekst) const override
    {
        EXPECT_EQ(Tekstbladletter, letter);
        return 2.0 * static_cast<double>(tekst.size());
    }
    double Hoogte(const Letter& /*letter*/) const override { return 10; }
};

struct Regel {
    double x;
    double y;
    Tekst tekst;
    bool operator==(const Regel&) const = default;
};

class Opnemer : public Tekenvlak {
  public:
    const Lettermeter& Meter() const override { return meter_; }
    void Schrijf(double x, double y, const Letter& letter, Tekstblik tekst) override
    {
        EXPECT_EQ(Lettertype::TimesNewRoman, letter.type);
        EXPECT_EQ(10, letter.punten);
        EXPECT_FALSE(letter.vet);
        regels.push_back({x, y, Tekst(tekst)});
    }
    void Lijn(double, double, double, double, Kleur, double) override { ADD_FAILURE(); }
    void Vul(double, double, double, double, Kleur) override { ADD_FAILURE(); }

    std::vector<Regel> regels;

  private:
    Vastemeter meter_;
};

Bladen Verdeel(Tekstblik tekst)
{
    return Tekstbladen(tekst, Vastemeter());
}

} // namespace

TEST(Tekstblad, RegelsZoalsZeStaanOfGebroken)
{
    const Tekst a50 = " - " + Tekst(50, 'a');
    const Tekst vol = a50 + " " + Tekst(36, 'b');
    const Tekst b37 = " " + Tekst(37, 'b') + " c";
    for (const auto& [tekst, regels] : std::vector<std::pair<Tekst, std::vector<Tekst>>>{
             {"een\r\n\r\n - twee", {"een", "", " - twee"}},
             {"een\ntwee\n", {"een", "twee"}},
             {"", {}},
             // A tab is eight blanks.
             {"\tTitel\r\na\tb", {"        Titel", "a       b"}},
             // A line that is too long breaks at a blank, or where it is full.
             {vol, {vol}},
             {a50 + b37, {a50, b37}},
             {Tekst(100, 'a'), {Tekst(90, 'a'), Tekst(10, 'a')}},
             {"    " + Tekst(100, 'a'), {"    " + Tekst(86, 'a'), "    " + Tekst(14, 'a')}}})
        EXPECT_EQ(Bladen{regels}, Verdeel(tekst));
}

/// However deep a line begins, all of it comes out.
TEST(Tekstblad, EenInspringingBrederDanHetBlad)
{
    const Bladen bladen = Verdeel(Tekst(200, ' ') + "eind " + Tekst(95, ' '));
    Tekst alles;
    for (const Tekst& regel : bladen.front())
        alles += regel;
    EXPECT_NE(Tekst::npos, alles.find("eind"));
}

TEST(Tekstblad, EenVolBladGaatVerderOpHetVolgende)
{
    Tekst tekst;
    for (int i = 0; i < 53; ++i)
        tekst += std::to_string(i) + "\r\n";
    const Bladen bladen = Verdeel(tekst);
    ASSERT_EQ(3U, bladen.size());
    EXPECT_EQ(26U, bladen[0].size());
    EXPECT_EQ("26", bladen[1].front());
    EXPECT_EQ(std::vector<Tekst>{"52"}, bladen[2]);
}

TEST(Tekstblad, HetTekenen)
{
    Opnemer vlak;
    TekenTekstblad(vlak, {"een", "", "twee"});
    EXPECT_EQ((std::vector<Regel>{{15, 15, "een"}, {15, 25, ""}, {15, 35, "twee"}}), vlak.regels);
}
