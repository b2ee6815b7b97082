#include "register/aanwezigheid.h"

#include "register/registerhulp.h"
#include "schijven/falendeSchijf.h"

using namespace plexoran;

namespace {

constexpr std::int64_t seconde = 1'000'000'000;
constexpr const char* vanAn = "C:\\club\\Spelers\\Aanwezig PC-1 an.txt";
constexpr const char* vanBea = "C:\\club\\Spelers\\Aanwezig b_reau Bea_de_C.txt";

struct AanwezigheidTest : testing::Test {
    AanwezigheidTest()
    {
        schijf.ZetMap(spelersmap);
        an.emplace(schijf, Proefmappen(), "PC-1", "an");
        bea.emplace(schijf, Proefmappen(), "b\xFCreau", "Bea de C");
        an->Meld();
        bea->Meld();
    }
    /// So long ago did Bea renew, seen from the last time that An did.
    void LaatBeaWegzijn(int seconden)
    {
        schijf.ZetTijd(vanBea, schijf.NeemStempel(vanAn)->tijd - seconden * seconde);
    }

    GeheugenSchijf schijf;
    std::optional<Aanwezigheid> an;
    std::optional<Aanwezigheid> bea;
};

} // namespace

TEST_F(AanwezigheidTest, WieErIsStaatInEenBestandMetComputerGebruikerEnTijd)
{
    const Tekst inhoud = schijf.Inhoud(vanBea).value();
    EXPECT_EQ("b\xFCreau\r\nBea de C\r\n", inhoud.substr(0, 18));
    const auto anderen = an->Anderen();
    ASSERT_EQ(1U, anderen.size());
    EXPECT_EQ("b\xFCreau", anderen[0].computer);
    EXPECT_EQ("Bea de C", anderen[0].gebruiker);
    EXPECT_EQ(inhoud, "b\xFCreau\r\nBea de C\r\n" + anderen[0].sinds + "\r\n");
    bea.reset();
    EXPECT_EQ(std::nullopt, schijf.Inhoud(vanBea));
    EXPECT_TRUE(an->Anderen().empty());
}

TEST_F(AanwezigheidTest, WieTweeMinutenNietsLietHorenIsWeg)
{
    LaatBeaWegzijn(120);
    EXPECT_EQ(1U, an->Anderen().size());
    LaatBeaWegzijn(121);
    EXPECT_TRUE(an->Anderen().empty());
    EXPECT_TRUE(schijf.Inhoud(vanBea)) << "slaapt misschien";
    LaatBeaWegzijn(86'401);
    EXPECT_TRUE(an->Anderen().empty());
    EXPECT_EQ(std::nullopt, schijf.Inhoud(vanBea));
    bea->Meld();
    EXPECT_EQ(1U, an->Anderen().size());
}

TEST_F(AanwezigheidTest, EenVreemdOfHalfBestandIsNiemand)
{
    schijf.Zet("C:\\club\\Spelers\\Aanwezig lijst.txt", "a\r\nb");
    schijf.Zet("C:\\club\\Spelers\\Aanwezigheid.doc", "a\r\nb\r\nc\r\n");
    EXPECT_EQ(1U, an->Anderen().size());
}

TEST_F(AanwezigheidTest, EenSchijfDieNietsAanneemtDoetGeenKwaad)
{
    FalendeSchijf falend(schijf);
    falend.FaalVanaf(1);
    Aanwezigheid cor(falend, Proefmappen(), "PC-3", "cor");
    cor.Meld();
    EXPECT_TRUE(cor.Anderen().empty());
    falend.FaalNiet();
    cor.Meld();
    EXPECT_EQ(2U, cor.Anderen().size());
}
