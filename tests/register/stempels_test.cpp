// What stands in a file counts, and not its stamp: on a disk with coarse times the program never
// takes its own work for another's, and what another did under an old stamp is seen.
#include <random>
#include <set>

#include "register/geschiedenis.h"
#include "register/instellingen.h"
#include "register/registerhulp.h"

using namespace plexoran;

namespace {

constexpr std::int64_t tweeSeconden = 2'000'000'000;

struct StempelsTest : testing::Test {
    StempelsTest()
    {
        schijf.ZetTijdstap(tweeSeconden);
        schijf.Zet(groepenbestand, GroepenTekst(Groepen()));
        schijf.Zet(instellingenbestand, "OPTIND=4\r\nLOSTGR=1\r\n");
        spelers = Gelezen(schijf, vijfSpelers);
        groepen = LeesGroepen(schijf, mappen);
        geschiedenis.Open(mappen, "pc", "an");
    }

    void WijzigEnBewaar(std::uint32_t keus)
    {
        const int rij =
            1 + static_cast<int>(keus / 8 % static_cast<unsigned>(spelers.tabel.Rijen()));
        if (keus % 4 == 0)
            ASSERT_TRUE(VoegSpelerToe(spelers, "Gr02-", {"", "", "", "Fie", "", "Gans"}));
        else if (keus % 4 == 1 && spelers.tabel.Rijen() > 1)
            spelers.tabel.VerwijderRijen(std::vector{rij});
        else
            spelers.tabel.ZetCel(rij, Kolom::Telef, std::to_string(10 + keus % 90));
        ASSERT_EQ(SoortVan(Bewaar(schijf, spelers)), std::nullopt);
        Lees(schijf, spelers);
    }

    void BewaarKleine(std::uint32_t keus)
    {
        groepen.ZetNaam(1 + static_cast<int>(keus % 50), std::to_string(10 + keus % 90));
        const Bewaring bewaard = SchrijfGroepen(schijf, mappen, groepen);
        EXPECT_TRUE(bewaard.gelukt && bewaard.overgenomen.empty() && bewaard.botsingen.empty());
        EXPECT_EQ(bewaard.onze + bewaard.andere, "");
        Instellingen instellingen{.OPTIND = static_cast<std::int16_t>(keus % 5), .LOSTGR = 1};
        EXPECT_TRUE(SchrijfInstellingen(schijf, mappen, instellingen));
    }

    [[nodiscard]] std::int64_t Tijd() { return schijf.NeemStempel(spelerbestand)->tijd; }

    const Mappen mappen = Proefmappen();
    GeheugenSchijf schijf;
    Register spelers;
    Groepen groepen;
    Geschiedenis geschiedenis{schijf};
};

} // namespace

TEST_F(StempelsTest, DuizendOpdrachtenGevenGeenValsAlarm)
{
    constexpr int opdrachten = 1000;
    std::mt19937 toeval(1'211);
    int zelfdeTijd = 0;
    for (int opdracht = 1; opdracht <= opdrachten; ++opdracht) {
        SCOPED_TRACE(opdracht);
        const auto tijd = Tijd();
        WijzigEnBewaar(static_cast<std::uint32_t>(toeval()));
        zelfdeTijd += Tijd() == tijd ? 1 : 0;
        // What the look at changes from outside would find.
        EXPECT_FALSE(AnderRegister::Lees(schijf, mappen)->IsAnders(spelers));
        if (opdracht % 10 == 0)
            BewaarKleine(static_cast<std::uint32_t>(toeval()));
        if (HasFailure())
            return;
    }
    EXPECT_GT(zelfdeTijd, opdrachten / 2) << "the stamps tell too much for this test";
    EXPECT_FALSE(schijf.Bestanden("C:\\club\\Spelers\\Reservekopie"));
    EXPECT_EQ(geschiedenis.NeemFout(), std::nullopt);
}

TEST_F(StempelsTest, AangeraaktIsNietGewijzigd)
{
    schijf.ZetTijd(spelerbestand, Tijd() + 60 * tweeSeconden);
    EXPECT_FALSE(AnderRegister::Lees(schijf, mappen)->IsAnders(spelers));
    WijzigEnBewaar(2);
    EXPECT_FALSE(schijf.Bestanden("C:\\club\\Spelers\\Reservekopie"));
}

TEST_F(StempelsTest, EvenLangMetDeOudeTijdIsWelGewijzigd)
{
    const auto tijd = Tijd();
    Tekst anders = vijfSpelers;
    schijf.Zet(spelerbestand, anders.replace(anders.find("Bos"), 3, "Vos"));
    schijf.ZetTijd(spelerbestand, tijd);
    EXPECT_TRUE(AnderRegister::Lees(schijf, mappen)->IsAnders(spelers));
    spelers.tabel.ZetCel(2, Kolom::Telef, "06-2");
    EXPECT_EQ(SoortVan(Bewaar(schijf, spelers)), Foutsoort::Gewijzigd);
    EXPECT_EQ(schijf.Inhoud(spelerbestand), anders);
}
