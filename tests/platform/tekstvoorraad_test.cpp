#include "platform/tekstvoorraad.h"

#include <gtest/gtest.h>

using namespace plexoran;

TEST(Tekstvoorraad, TekstenBlijvenHeelOokNaVerhuizen)
{
    Tekstvoorraad voorraad;
    std::vector<Tekst> moet;
    std::vector<Tekstblik> bewaard;
    const auto bewaar = [&](const Tekst& tekst) {
        moet.push_back(tekst);
        Tekst tijdelijk = tekst;
        bewaard.push_back(voorraad.Bewaar(tijdelijk));
        tijdelijk.assign(tekst.size(), '!');
    };
    bewaar("");
    for (std::size_t i = 0; i < 5000; ++i) // several blocks
        bewaar(Tekst(i % 100, static_cast<char>('a' + i % 26)));
    bewaar(Tekst(200'000, 'x')); // larger than a block
    bewaar("klein");
    Tekstvoorraad nieuw = std::move(voorraad);
    EXPECT_EQ(std::vector<Tekstblik>(moet.begin(), moet.end()), bewaard);
    voorraad = Tekstvoorraad();
    bewaar("verder");
    nieuw.Bewaar(Tekst(60'000, 'y'));
    EXPECT_EQ(std::vector<Tekstblik>(moet.begin(), moet.end()), bewaard);
}
