#include "platform/grootgeheugen.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "platform/tekst.h"

using namespace plexoran;

TEST(Grootgeheugen, RuimteVoorWeinigEnVeelMetDezelfdeInhoud)
{
    for (const std::size_t aantal : {1U, 1000U, 5'000'000U, 9'000'001U}) {
        Tekst tekst = "HKEY=100000";
        ReserveerGroot(tekst, aantal);
        EXPECT_GE(tekst.capacity(), aantal);
        EXPECT_EQ(tekst, "HKEY=100000");
        const char* const plek = tekst.data();
        tekst.resize(std::max(aantal, tekst.size()), 'x');
        EXPECT_EQ(tekst.data(), plek);
        EXPECT_TRUE(tekst.starts_with("HKEY=10000"));
        EXPECT_EQ(tekst.back(), aantal > 11 ? 'x' : '0');
    }
}

TEST(Grootgeheugen, WatErIsBlijftWaarHetIs)
{
    std::vector<int> getallen(1000, 7);
    const int* const plek = getallen.data();
    ReserveerGroot(getallen, 1000);
    ReserveerGroot(getallen, 0);
    EXPECT_EQ(getallen.data(), plek);
    EXPECT_EQ(getallen, std::vector<int>(1000, 7));
}

TEST(Grootgeheugen, WatGroeitWordtVerplaatstEnNietGekopieerd)
{
    std::vector<std::unique_ptr<int>> getallen;
    getallen.push_back(std::make_unique<int>(5));
    const int* const vijf = getallen.front().get();
    ReserveerGroot(getallen, 1'000'000);
    ASSERT_EQ(getallen.size(), 1U);
    EXPECT_EQ(getallen.front().get(), vijf);
}

/// Asking changes nothing of the bytes, also not around the pages that lie wholly inside.
TEST(Grootgeheugen, VragenVerandertNiets)
{
    std::vector<char> bytes(9'000'000, 'a');
    for (const std::size_t begin : {0U, 1U, 4095U, 4096U}) {
        for (const std::size_t lengte : {0U, 1U, 4'194'304U, 8'000'001U})
            VraagGrotePaginas(bytes.data() + begin, lengte);
    }
    EXPECT_EQ(bytes, std::vector<char>(9'000'000, 'a'));
}
