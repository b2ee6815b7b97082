// Bytes and pages of a good database changed at random, read by the real child: an error or whole
// rows, in time, whatever libmdb makes of it. PLEXORAN_MUTATIES sets how many; the seed is fixed.

#include <cstdlib>
#include <random>

#include "hulp/accessgegevens.h"
#include "platform/bronnen/access.h"
#include "platform/schijf/tijdelijkeMap.h"

namespace plexoran {
namespace {

using Klok = std::chrono::steady_clock;

int Aantal()
{
    const char* gezet = std::getenv("PLEXORAN_MUTATIES");
    return gezet == nullptr ? 100 : std::atoi(gezet);
}

class Verminker {
  public:
    explicit Verminker(std::string goed) : goed_(std::move(goed)) {}

    std::string Volgende()
    {
        std::string bytes = goed_;
        switch (Tot(4)) {
        case 0: // a page in the place of another
            bytes.replace(Blad(), AccessBladgrootte, goed_, Blad(), AccessBladgrootte);
            break;
        case 1: // a page emptied
            bytes.replace(Blad(), AccessBladgrootte, AccessBladgrootte, '\0');
            break;
        default: // some bytes, mostly at the front of a page, where its structure is
            for (std::size_t keer = 1 + Tot(4); keer > 0; --keer)
                bytes[Blad() + Tot(Tot(2) == 0 ? 128 : AccessBladgrootte)] =
                    static_cast<char>(Tot(256));
        }
        return bytes;
    }

  private:
    std::size_t Tot(std::size_t grens) { return toeval_() % grens; }
    std::size_t Blad() { return Tot(goed_.size() / AccessBladgrootte) * AccessBladgrootte; }

    std::string goed_;
    std::mt19937 toeval_{20'000'229};
};

TEST(Accessmutatie, EenFoutOfGeheleRijenBinnenDeTijd)
{
    const TijdelijkeMap map;
    const Pad bestand = Samen(map.AlsPad(), "Members.mdb");
    Verminker verminker(LeesAlsBytes(Accessbestand("Members.mdb")));
    Accessgrenzen grenzen;
    grenzen.zonderVoortgang = std::chrono::milliseconds(1'500);
    int fouten = 0;
    int goed = 0;
    for (int keer = 0; keer < Aantal(); ++keer) {
        map.Zet("Members.mdb", verminker.Volgende());
        const auto begin = Klok::now();
        const auto rijen = LeesAccess(bestand, "leden",
                                      {{"lidid", Accesssoort::Geheel},
                                       {"achternaam", Accesssoort::Letters},
                                       {"adres", Accesssoort::Letters}},
                                      {}, grenzen);
        ASSERT_LT(Klok::now() - begin, std::chrono::seconds(15)) << keer;
        if (rijen) {
            ++goed;
            for (const Accessrij& rij : *rijen)
                ASSERT_EQ(rij.size(), 3U) << keer;
        } else {
            ++fouten;
            ASSERT_FALSE(rijen.error().systeem.empty()) << keer;
        }
    }
    std::printf("%d goed, %d fouten\n", goed, fouten);
    EXPECT_GT(goed, 0);
    EXPECT_GT(fouten, 0);
}

} // namespace
} // namespace plexoran
