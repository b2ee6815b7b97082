// What the sample sessions must be to serve as an example.
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "sessions/zittinglijsten.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Regels(const fs::path& bestand)
{
    std::ifstream stroom(bestand, std::ios::binary);
    std::vector<std::string> regels;
    for (std::string regel; std::getline(stroom, regel);)
        regels.push_back(regel.substr(0, regel.find('\r')));
    return regels;
}

/// The name that goes with a key, as a session has it of a floating player.
std::map<std::string, std::string> NamenBijKeys()
{
    std::map<std::string, std::string> namen;
    for (const std::string& regel : Regels(fs::path(VOORBEELD) / "Spelers/RVDspelers.txt")) {
        std::vector<std::string> velden;
        std::istringstream stroom(regel);
        for (std::string veld; std::getline(stroom, veld, ',');)
            velden.push_back(veld);
        if (velden.size() > 5)
            namen[velden[1]] =
                velden[3] + " " + velden[4] + (velden[4].empty() ? "" : " ") + velden[5];
    }
    return namen;
}

/// Once floating players are linked, a session with one player at two places would be nonsense.
TEST(Voorbeeld, InEenCompetitiezittingSpeeltNiemandTweeKeer)
{
    const auto namen = NamenBijKeys();
    int zittingen = 0;
    for (const auto& deel : fs::recursive_directory_iterator(fs::path(VOORBEELD) / "Competities")) {
        if (deel.path().filename() != "Spelers.txt")
            continue;
        ++zittingen;
        std::set<std::string> gezien;
        for (const std::string& regel : Regels(deel.path())) {
            const auto paar = PaarUit(regel);
            const auto helften = paar ? SplitsHelften(paar->spelers) : std::nullopt;
            ASSERT_TRUE(helften) << regel;
            for (const Tekstblik half : {helften->eerste, helften->tweede}) {
                const auto gevonden = namen.find(std::string(half));
                const std::string naam =
                    gevonden == namen.end() ? std::string(half) : gevonden->second;
                EXPECT_TRUE(gezien.insert(naam).second) << deel.path() << ": " << regel;
            }
        }
    }
    EXPECT_EQ(5, zittingen);
}

} // namespace
} // namespace plexoran
