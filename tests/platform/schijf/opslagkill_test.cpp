// A real program that is killed while it saves, again and again: the file must be whole each time.
#ifndef _WIN32

#include <limits>
#include <random>

#include <unistd.h>

#include "hulp/kill.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/tijdelijkeMap.h"

using namespace plexoran;

namespace {

constexpr std::size_t ongeveer = 200'000; // bytes

/// Of different length, so that a mixture cannot pass for either.
Tekst Versie(char letter, std::size_t lengte)
{
    Tekst uit;
    for (int regel = 1; uit.size() < lengte; ++regel)
        uit += MetNullen(regel, 6) + ",Speler " + letter + ",Straat 1\r\n";
    return uit;
}

[[noreturn]] void BewaarSteeds(const Pad& pad, const Tekst& eerst, const Tekst& dan)
{
    EchteSchijf schijf;
    for (;;) {
        if (!SchrijfHeel(schijf, pad, eerst) || !SchrijfHeel(schijf, pad, dan))
            ::_exit(1);
    }
}

} // namespace

TEST(OpslagKill, BestandIsAltijdHeel)
{
    constexpr int kills = 250;
    const TijdelijkeMap map;
    const Pad pad = Samen(map.AlsPad(), "spelers.txt");
    const Tekst een = Versie('a', ongeveer);
    const Tekst twee = Versie('b', ongeveer + 5'000);
    EchteSchijf schijf;
    ASSERT_TRUE(SchrijfHeel(schijf, pad, een));

    std::mt19937 toeval(20'240'607);
    std::uniform_int_distribution<useconds_t> wachten(0, 15'000);
    int eenGezien = 0;
    int tweeGezien = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const pid_t kind = Kind([&] { BewaarSteeds(pad, twee, een); });
        ASSERT_NE(kind, -1);
        ASSERT_TRUE(KillNa(kind, wachten(toeval))) << "het opslaan zelf mislukte";
        const auto inhoud = schijf.LeesBestand(pad);
        ASSERT_TRUE(inhoud) << inhoud.error().systeem;
        ASSERT_TRUE(*inhoud == een || *inhoud == twee)
            << "kill " << kill << " liet " << inhoud->size() << " bytes achter";
        ++(*inhoud == een ? eenGezien : tweeGezien);
    }
    // The kills must have come at all sorts of moments, or the test shows nothing.
    EXPECT_GT(eenGezien, 0);
    EXPECT_GT(tweeGezien, 0);
    EXPECT_GT(schijf.Bestanden(map.AlsPad())->size(), 1U);

    RuimTijdelijkeOp(schijf, map.AlsPad(), "spelers.txt", std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(schijf.Bestanden(map.AlsPad()), std::vector<Tekst>{"spelers.txt"});
}

#endif
