#include "dialogs/verplaatsen.h"

#include <random>

#include <gtest/gtest.h>

#include "dialogs/keuslijst.h"
#include "hulp/tabelmaker.h"

using namespace plexoran;

namespace {

std::vector<Rijvelden> MetGroep(std::vector<Rijvelden> rijen, std::size_t rij, const Tekst& groep)
{
    rijen.at(rij - 1)[2] = groep;
    return rijen;
}

/// The lines one after the other, the table searched from its top for each.
void VerplaatsGewoon(std::vector<Rijvelden>& rijen, const std::vector<Tekst>& regels,
                     const Tekst& groep)
{
    for (const Tekst& regel : regels) {
        for (Rijvelden& rij : rijen) {
            if (rij[1] == regel.substr(regel.size() - 6)) {
                rij[2] = groep;
                break;
            }
        }
    }
}

} // namespace

TEST(Verplaatsen, AlleenDeGroepVerandert)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "A-lijn", "123"},
                                   {"100002", "Gr02-", "Bo", "de", "Cos", "", ""},
                                   {"100003", "Gr02-", "Cy", "", "Dos", "B", "9"}});
    const auto oud = AlleRijen(tabel);
    VerplaatsSpelers(tabel, {"100003", "100001"}, "Gr10-");
    EXPECT_EQ(MetGroep(MetGroep(oud, 1, "Gr10-"), 3, "Gr10-"), AlleRijen(tabel));
}

TEST(Verplaatsen, NaarDeImportgroepOfDeEigenGroep)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr01-"}, {"100002", "Gr02-"}});
    const auto oud = AlleRijen(tabel);
    VerplaatsSpelers(tabel, {"100002"}, "Gr05-");
    EXPECT_EQ(MetGroep(oud, 2, "Gr05-"), AlleRijen(tabel));
    EXPECT_EQ(std::vector{1}, VerplaatsbareRijen(tabel, "Gr05-"));
    VerplaatsSpelers(tabel, {"100001"}, "Gr01-");
    EXPECT_EQ(MetGroep(oud, 2, "Gr05-"), AlleRijen(tabel));
}

TEST(Verplaatsen, VanTweeRijenMetDezelfdeKeyAlleenDeEerste)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr05-"}, {"100001", "Gr01-"}, {"100001", "Gr02-"}});
    const auto oud = AlleRijen(tabel);
    // Also when the first one is not among those that can be moved.
    VerplaatsSpelers(tabel, {"100001", "100001"}, "Gr03-");
    EXPECT_EQ(MetGroep(oud, 1, "Gr03-"), AlleRijen(tabel));
}

TEST(Verplaatsen, EenOnbekendeKeyWordtOvergeslagen)
{
    Spelertabel tabel = MaakTabel({{"100001", "Gr01-"}, {"12", "Gr01-"}, {"7100009", "Gr01-"}});
    const auto oud = AlleRijen(tabel);
    VerplaatsSpelers(tabel, {"    12", "100009", "100002", ""}, "Gr03-");
    EXPECT_EQ(oud, AlleRijen(tabel));
    VerplaatsSpelers(tabel, {}, "Gr03-");
    EXPECT_EQ(oud, AlleRijen(tabel));
}

TEST(Verplaatsen, GelijkAanHetGewoneOpDuizendenKleineRegisters)
{
    std::mt19937 toeval(34);
    for (int keer = 0; keer < 5000; ++keer) {
        Spelertabel tabel = ToevalligeTabel(toeval);
        const Tekst groep = Trek(toeval, {"Gr01-", "Gr05-", "Gr10-"});
        std::vector<Tekst> regels;
        std::vector<Tekst> keys;
        for (const int rij : VerplaatsbareRijen(tabel, "Gr05-")) {
            if (Gooi(toeval, 2) == 0)
                continue;
            regels.push_back(Verplaatsregel(tabel, rij));
            keys.emplace_back(KeyVan(regels.back()));
        }
        auto moet = AlleRijen(tabel);
        VerplaatsGewoon(moet, regels, groep);
        VerplaatsSpelers(tabel, keys, groep);
        ASSERT_EQ(moet, AlleRijen(tabel));
    }
}
