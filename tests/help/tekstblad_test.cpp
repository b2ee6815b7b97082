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

TEST(Tekstblad, RegelsZoalsZeStaan)
{
    EXPECT_EQ((Bladen{{"een", "", " - twee"}}), Verdeel("een\r\n\r\n - twee"));
    EXPECT_EQ((Bladen{{"een", "twee"}}), Verdeel("een\ntwee\n"));
    EXPECT_EQ((Bladen{{}}), Verdeel(""));
}

TEST(Tekstblad, EenTabIsAchtBlanco)
{
    EXPECT_EQ((Bladen{{"        Titel", "a       b"}}), Verdeel("\tTitel\r\na\tb"));
}

TEST(Tekstblad, EenTeLangeRegelBreektOpEenBlanco)
{
    const Tekst lang = " - " + Tekst(50, 'a') + " " + Tekst(36, 'b');
    EXPECT_EQ((Bladen{{lang}}), Verdeel(lang));
    EXPECT_EQ((Bladen{{" - " + Tekst(50, 'a'), " " + Tekst(37, 'b') + " c"}}),
              Verdeel(" - " + Tekst(50, 'a') + " " + Tekst(37, 'b') + " c"));
}

TEST(Tekstblad, ZonderBlancoBreektHijWaarHijVolIs)
{
    EXPECT_EQ((Bladen{{Tekst(90, 'a'), Tekst(10, 'a')}}), Verdeel(Tekst(100, 'a')));
    EXPECT_EQ((Bladen{{"    " + Tekst(86, 'a'), "    " + Tekst(14, 'a')}}),
              Verdeel("    " + Tekst(100, 'a')));
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
