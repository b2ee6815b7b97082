#include "federation/samenvoegen.h"

#include <gtest/gtest.h>

#include "hulp/tabelmaker.h"

namespace plexoran {
namespace {

TEST(OpgemaaktNBBnr, CijfersTotAchtAndereTekstZoalsZeIs)
{
    for (const auto& [nummer, opgemaakt] : std::vector<std::pair<Tekst, Tekst>>{
             {"12345", "00012345"},
             {"012345", "00012345"},
             {"12345678", "12345678"},
             {"123456789", "123456789"},
             {" 12345 ", "00012345"},
             {"0", "00000000"},
             {"", ""},
             {"12a45", "12a45"},
             {"12-45", "12-45"},
             {"-12345", "-12345"},
         })
        EXPECT_EQ(opgemaakt, OpgemaaktNBBnr(nummer));
}

/// Asks for each text after all numbers were put in.
std::vector<bool> Antwoorden(const std::vector<Tekst>& nummers, const std::vector<Tekst>& vragen)
{
    NBBnrIndex index({vragen.begin(), vragen.end()});
    for (const Tekst& nummer : nummers)
        index.Voeg(nummer);
    std::vector<bool> antwoorden;
    for (std::size_t vraag = 0; vraag < vragen.size(); ++vraag)
        antwoorden.push_back(index.Bevat(vraag));
    return antwoorden;
}

TEST(NBBnrIndex, VindtWatErgensInDeTekstStaat)
{
    using Rij = std::vector<bool>;
    const Tekst lang(65, '7'); // longer than any number is
    for (const auto& [nummers, vragen, antwoorden] :
         std::vector<std::tuple<std::vector<Tekst>, std::vector<Tekst>, Rij>>{
             {{"00012345", "00067890"},
              {"00012345", "00067890", "00012346", "12345000"},
              {true, true, false, false}},
             {{}, {"00012345", ""}, {false, true}},
             // Meant: a number of nine or more digits hides every number within its digits.
             {{"1234567890"},
              {"12345678", "23456789", "34567890", "123456789", "45678900"},
              {true, true, true, true, false}},
             // Across the "-", if the question has one.
             {{"00012345", "00067890", "7-8"},
              {"5-0", "12345-00067890-7", "0-7-8", "0-8", "-00012345"},
              {true, true, true, false, true}},
             // Short and strange texts, and the same question twice.
             {{"gast12", "00012345"},
              {"gast", "st1", "gast12", "12g", "00012345", "00012345"},
              {true, true, true, false, true, true}},
             {{"", ""}, {"--", "---"}, {true, false}},
             {{Tekst(9, '\0')}, {Tekst(8, '\0'), Tekst(9, '\0')}, {true, true}},
             {{lang + "8"},
              {lang, lang + "9", lang + "8", Tekst(64, '7')},
              {true, false, true, true}}})
        EXPECT_EQ(antwoorden, Antwoorden(nummers, vragen)) << testing::PrintToString(nummers);
}

/// The index in the plain way: one text, searched from its beginning every time.
TEST(NBBnrIndex, AntwoordtAlsDeAaneengeregenTekst)
{
    std::mt19937 toeval(20);
    const std::vector<Tekst> alfabetten{"01", "0123456789", "01-", "1a-", "-", "0a\xE9"};
    std::size_t gevonden = 0;
    std::size_t gemist = 0;
    for (int keer = 0; keer < 6000; ++keer) {
        const Tekst& alfabet = alfabetten[Gooi(toeval, alfabetten.size())];
        const auto tekst = [&] {
            // Half of them of the usual length, so that all ways of asking come up.
            Tekst uit(Gooi(toeval, 2) == 0 ? 8 : Gooi(toeval, 13), ' ');
            for (char& teken : uit)
                teken = alfabet[Gooi(toeval, alfabet.size())];
            return uit;
        };
        std::vector<Tekst> vragen(Gooi(toeval, 8));
        for (Tekst& vraag : vragen)
            vraag = tekst();
        NBBnrIndex index({vragen.begin(), vragen.end()});
        Tekst plat;
        for (std::size_t stap = Gooi(toeval, 10); stap > 0; --stap) {
            const Tekst nummer = tekst();
            index.Voeg(nummer);
            plat += "-" + OpgemaaktNBBnr(nummer);
            for (std::size_t i = 0; i < vragen.size(); ++i) {
                const bool staatEr = plat.find(OpgemaaktNBBnr(vragen[i])) != Tekst::npos;
                ASSERT_EQ(staatEr, index.Bevat(i)) << plat << " ? " << vragen[i];
                ++(staatEr ? gevonden : gemist);
            }
        }
    }
    EXPECT_GT(gevonden, 10000U);
    EXPECT_GT(gemist, 10000U);
}

} // namespace
} // namespace plexoran
