// Making labels: joining by address, sorting and writing them, beside sorting the same names by
// ready-made keys; and fitting them on their sheets.
#include <QApplication>

#include <algorithm>

#include "exchange/etiketvel.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/scherm/schildervlak.h"
#include "platform/tekst/tekst.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

const Letterkast& Kast()
{
    // Fonts must not outlive the application, nor end in an order that nobody knows.
    static const auto* kast = new Letterkast;
    return *kast;
}

/// Two players at every address, as many clubs have; these names are of the made-up register.
const Spelertabel& TabelVan(const benchmark::State& meting)
{
    static std::map<int, Spelertabel> tabellen;
    const int spelers = Grootte(meting);
    auto plaats = tabellen.find(spelers);
    if (plaats == tabellen.end()) {
        const auto adres = [](Spelertabel& tabel, int rij) {
            const int huis = (rij + 1) / 2;
            tabel.ZetCel(rij, Kolom::Adres, "Dorpsstraat " + std::to_string(huis));
            tabel.ZetCel(rij, Kolom::Postc, std::to_string(1000 + huis % 9000) + " AB");
        };
        plaats = tabellen
                     .emplace(spelers, SpelersUit(MaakRegister(spelers, Verdeling::EenGroep, adres))
                                           .tabel.value_or(Spelertabel()))
                     .first;
    }
    return plaats->second;
}

std::vector<int> Rijen(const Spelertabel& tabel)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        rijen.push_back(rij);
    return rijen;
}

void Maak(benchmark::State& meting, const Etiketopdracht& opdracht, int perEtiket)
{
    const Spelertabel& tabel = TabelVan(meting);
    const std::vector<int> rijen = Rijen(tabel);
    Meet(
        meting, [] { return Etiketreeks(); },
        [&](Etiketreeks& reeks) {
            reeks = MaakEtiketten(tabel, rijen, opdracht);
            Eis(meting, static_cast<int>(reeks.etiketten.size()) * perEtiket == Grootte(meting));
        });
}

void EtikettenPerAdres(benchmark::State& meting)
{
    Maak(meting, {}, 2);
}
BENCHMARK(EtikettenPerAdres)->Apply(Groottes);

void EtikettenFamilie(benchmark::State& meting)
{
    Maak(meting, {.alsFamilie = true, .opPostcode = false}, 2);
}
BENCHMARK(EtikettenFamilie)->Apply(Groottes);

void EtikettenPerSpeler(benchmark::State& meting)
{
    Maak(meting, {.soort = Etiketsoort::PerSpeler, .opPostcode = false}, 1);
}
BENCHMARK(EtikettenPerSpeler)->Apply(Groottes);

/// The lower limit: the sort keys of the names, ready-made, sorted once.
void EtikettenGrens(benchmark::State& meting)
{
    const Spelertabel& tabel = TabelVan(meting);
    std::vector<Tekst> sleutels;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        sleutels.push_back(Sorteersleutel(tabel.Cel(rij, Kolom::Achternaam)));
    Meet(
        meting, [&] { return sleutels; },
        [](std::vector<Tekst>& gesorteerd) { std::ranges::sort(gesorteerd); });
}
BENCHMARK(EtikettenGrens)->Apply(Groottes);

/// As the window does to say who is shortened.
void EtikettenPassen(benchmark::State& meting)
{
    const Spelertabel& tabel = TabelVan(meting);
    const Etiketwerk werk{.maat = Etiketvellen[1],
                          .etiketten = MaakEtiketten(tabel, Rijen(tabel), {}).etiketten};
    Meet(meting, [&] {
        std::size_t regels = 0;
        for (const Etiket& etiket : werk.etiketten)
            regels += PasEtiket(werk, etiket, Kast()).size();
        Eis(meting, regels >= 3 * werk.etiketten.size());
    });
}
BENCHMARK(EtikettenPassen)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    const QApplication programma(argc, argv);
    return plexoran::VoerMetingenUit(argc, argv, [] {});
}
