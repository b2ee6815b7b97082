#include "pairs/parencsv.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"
#include "schijven/falendeSchijf.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

struct ParenCSVTest : testing::Test {
    ParenCSVTest()
    {
        mappen.RVDMAP = "C:\\club";
        schijf.ZetMap("C:\\club");
    }

    [[nodiscard]] Tekst Een(const Teksten& regels) const
    {
        return ParenCSVTekst(regels, tabel, ParenCSV::EenKolom);
    }
    [[nodiscard]] Tekst Twee(const Teksten& regels) const
    {
        return ParenCSVTekst(regels, tabel, ParenCSV::TweeKolommen);
    }

    GeheugenSchijf schijf;
    Mappen mappen;
    Spelertabel tabel = MaakTabel({{"100001", "Gr03-", "An", "", "Bos", "", ""},
                                   {"100002", "Gr02-", "Fran\xE7ois", "van de", "C\xF4te", "", ""},
                                   {"100003", "Gr03-", "", "", "Partner_2", "", ""},
                                   {"100001", "Gr03-", "Dubbel", "", "Dubbel", "", ""},
                                   {"x", "Gr03-", "Geen", "", "Getal", "", ""},
                                   {" 0100007", "Gr03-", "Nul", "", "Nullen", "", ""}});
};

const Teksten tweeParen{"100001 Bos An          +100002 C\xF4te Fran\xE7ois van de",
                        "100003 Partner_2          +100001 Bos An"};

} // namespace

TEST_F(ParenCSVTest, EenSleutelDieErNietIsStaatErZelf)
{
    EXPECT_EQ("1;100099 - An Bos\r\n", Een({"100099 ??????          +100001 Bos An"}));
    EXPECT_EQ("1;An Bos;rommel\r\n", Twee({"100001 Bos An          +rommel ??????"}));
}

/// The numbers count, not the texts.
TEST_F(ParenCSVTest, DeSleutelWordtAlsGetalVergeleken)
{
    EXPECT_EQ("1;Nul Nullen;An Bos\r\n", Twee({"100007 ??????          +100001 Bos An"}));
    EXPECT_EQ("1;7;An Bos\r\n", Twee({"7      ??????          +100001 Bos An"}));
}

/// Meant: a line that is passed over leaves a gap in the numbers.
TEST_F(ParenCSVTest, EenRegelZonderPlusLaatEenGat)
{
    EXPECT_EQ("1;An Bos;An Bos\r\n3;An Bos;An Bos\r\n",
              Twee({"100001 Bos An          +100001 Bos An", "100001 Bos An",
                    "100001 Bos An          +100001 Bos An"}));
}

TEST_F(ParenCSVTest, HetBestandInDeMapDieErNogNietIs)
{
    ASSERT_TRUE(SchrijfParenCSV(schijf, mappen, tweeParen, tabel, ParenCSV::EenKolom));
    ASSERT_TRUE(SchrijfParenCSV(schijf, mappen, tweeParen, tabel, ParenCSV::TweeKolommen));
    EXPECT_EQ("1;An Bos - Fran\xE7ois van de C\xF4te\r\n2; Partner_2 - An Bos\r\n",
              schijf.Inhoud("C:\\club\\DiverseUitvoer\\RVDparenCSV1.csv"));
    EXPECT_EQ("1;An Bos;Fran\xE7ois van de C\xF4te\r\n2; Partner_2;An Bos\r\n",
              schijf.Inhoud("C:\\club\\DiverseUitvoer\\RVDparenCSV2.csv"));
}

TEST_F(ParenCSVTest, WatMisgaatIsEenFout)
{
    FalendeSchijf stuk(schijf);
    stuk.FaalVanaf(1);
    EXPECT_FALSE(SchrijfParenCSV(stuk, mappen, tweeParen, tabel, ParenCSV::EenKolom));
    mappen.RVDMAP.clear();
    const auto zonder = SchrijfParenCSV(schijf, mappen, tweeParen, tabel, ParenCSV::EenKolom);
    ASSERT_FALSE(zonder);
    EXPECT_EQ(Foutsoort::Ontbreekt, zonder.error().soort);
    EXPECT_EQ(std::vector<Pad>(), schijf.AlleBestanden());
}
