#include "register/tweedeplaats.h"

#include "register/registerhulp.h"
#include "register/reservezip.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr const char* ini = "C:\\gebruiker\\plexoran\\reservekopie.ini";
constexpr const char* stick = "E:\\reserve";

class TweedeplaatsTest : public testing::Test {
  protected:
    TweedeplaatsTest()
    {
        binnen.Zet(spelerbestand, vijfSpelers);
        binnen.ZetMap("C:\\gebruiker");
        EXPECT_TRUE(BewaarTweedeplaats(binnen, ini, {stick, "2026-01-01"}));
    }
    Pad Maak()
    {
        const Pad pad = MaakReservezip(binnen, Proefmappen(), "voor import").value();
        return pad.substr(pad.rfind('\\') + 1);
    }
    void WerkBij() { WerkTweedeplaatsBij(schijf, Proefmappen(), ini); }
    std::vector<Tekst> OpDeStick()
    {
        auto namen = binnen.Bestanden(stick).value();
        std::sort(namen.begin(), namen.end());
        return namen;
    }
    Tekst Gezien() { return LeesTweedeplaats(binnen, ini).gezien; }

    GeheugenSchijf binnen;
    FalendeSchijf schijf{binnen};
    const Tekst vandaag = Tijdtekst("yyyy-MM-dd");
};

} // namespace

TEST_F(TweedeplaatsTest, WordtOnthouden)
{
    EXPECT_EQ(binnen.Inhoud(ini), "MAP=E:\\reserve\r\nGEZIEN=2026-01-01\r\n");
    EXPECT_EQ(LeesTweedeplaats(binnen, ini).map, stick);
    EXPECT_EQ(LeesTweedeplaats(binnen, "").map, "");
    EXPECT_EQ(LeesTweedeplaats(binnen, "C:\\nergens.ini").map, "");
}

TEST_F(TweedeplaatsTest, DeNieuwsteGaatErheen)
{
    binnen.ZetMap(stick);
    Maak();
    const Tekst nieuwste = Maak();
    WerkBij();
    EXPECT_EQ(OpDeStick(), std::vector<Tekst>{nieuwste});
    EXPECT_EQ(binnen.Inhoud(Samen(stick, nieuwste)),
              binnen.Inhoud(Samen("C:\\club\\Spelers\\Reservekopie", nieuwste)));
    EXPECT_EQ(Gezien(), vandaag);
    // There already: nothing is written.
    FalendeSchijf telt(binnen, FalendeSchijf::Telt::AlleenSchrijven);
    WerkTweedeplaatsBij(telt, Proefmappen(), ini);
    EXPECT_EQ(telt.Aantal(), 0);
}

TEST_F(TweedeplaatsTest, IsHijErNietDanGebeurtErNiets)
{
    Maak();
    WerkBij();
    EXPECT_EQ(Gezien(), "2026-01-01");
    binnen.ZetMap(stick);
    WerkBij();
    EXPECT_EQ(OpDeStick().size(), 1U) << "as soon as it is back";
    EXPECT_EQ(Gezien(), vandaag);
}

TEST_F(TweedeplaatsTest, ZonderReserveIsHijErGewoon)
{
    binnen.ZetMap(stick);
    WerkBij();
    EXPECT_EQ(Gezien(), vandaag);
    EXPECT_EQ(OpDeStick(), std::vector<Tekst>());
}

TEST_F(TweedeplaatsTest, BijElkeStapDieMisluktStaatErNietsHalfs)
{
    binnen.ZetMap(stick);
    const Tekst nieuwste = Maak();
    int bleef = 0;
    for (int stap = 1; stap <= 25; ++stap) {
        (void)binnen.Verwijder(Samen(stick, nieuwste));
        ASSERT_TRUE(BewaarTweedeplaats(binnen, ini, {stick, "2026-01-01"}));
        schijf.FaalBij(stap);
        WerkBij();
        for (const Tekst& naam : OpDeStick())
            EXPECT_TRUE(Uitgepakt(binnen.Inhoud(Samen(stick, naam)).value())) << naam << stap;
        if (Gezien() == vandaag)
            EXPECT_EQ(OpDeStick(), std::vector<Tekst>{nieuwste}) << stap;
        else
            ++bleef;
    }
    EXPECT_GT(bleef, 8);
    EXPECT_LT(bleef, 25);
}

TEST_F(TweedeplaatsTest, WatErStaatBlijft)
{
    binnen.ZetMap(stick);
    for (int i = 10; i < 40; ++i)
        binnen.Zet(Samen(stick, "2001-01-01 1200" + std::to_string(i) + " dagelijks.zip"), "x");
    binnen.Zet(Samen(stick, "vakantie.zip"), "blijft");
    Maak();
    WerkBij();
    EXPECT_EQ(OpDeStick().size(), 32U);
}

TEST(Tweedeplaats, VeertienDagenWeg)
{
    const Tweedeplaats plaats{"E:\\reserve", "2026-10-20"};
    EXPECT_EQ(DagenWeg(plaats, "2026-11-02"), 0);
    EXPECT_EQ(DagenWeg(plaats, "2026-11-03"), 14);
    EXPECT_EQ(DagenWeg(plaats, "2027-10-20"), 365);
    EXPECT_EQ(DagenWeg(plaats, "2026-01-01"), 0);
    EXPECT_EQ(DagenWeg({"", "2026-10-20"}, "2027-10-20"), 0);
    EXPECT_EQ(DagenWeg({"E:\\reserve", ""}, "2027-10-20"), 0);
}
