// What the sample sessions must be to serve as an example.
#include <filesystem>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "hulp/ledenmaker.h"
#include "platform/tekst/regels.h"
#include "register/spelerbestand.h"
#include "sessions/zittinglijsten.h"

using namespace plexoran;

namespace fs = std::filesystem;

/// Once floating players are linked, a session with one player at two tables would be nonsense.
TEST(Voorbeeld, InEenCompetitiezittingSpeeltNiemandTweeKeer)
{
    const auto tabel = SpelersUit(LeesAlsBytes(VOORBEELD "/Spelers/RVDspelers.txt")).tabel.value();
    std::map<Tekst, Tekst> namen; // as a session has them of a floating player, by key
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        namen[Tekst(tabel.Cel(rij, Kolom::Key))] = VolleNaam(tabel, rij);
    int zittingen = 0;
    for (const auto& deel : fs::recursive_directory_iterator(fs::path(VOORBEELD) / "Competities")) {
        if (deel.path().filename() != "Spelers.txt")
            continue;
        ++zittingen;
        std::set<Tekst> gezien;
        const Tekst inhoud = LeesAlsBytes(deel.path().string());
        for (const Tekstblik regel : Regels(inhoud)) {
            const auto paar = PaarUit(regel);
            const auto helften = paar ? SplitsHelften(paar->spelers) : std::nullopt;
            ASSERT_TRUE(helften) << regel;
            for (const Tekstblik half : {helften->eerste, helften->tweede}) {
                const auto speler = namen.find(Tekst(half));
                EXPECT_TRUE(
                    gezien.insert(speler == namen.end() ? Tekst(half) : speler->second).second)
                    << deel.path() << ": " << regel;
            }
        }
    }
    EXPECT_EQ(5, zittingen);
}
