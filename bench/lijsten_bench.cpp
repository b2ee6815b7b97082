// The lists and the changes of many players at once: each sorted list beside sorting the same keys
// and reading the table, the others beside one load of the same register, measured in the same run.
#include <algorithm>
#include <memory>
#include <utility>

#include "dialogs/kopieren.h"
#include "dialogs/subgroep.h"
#include "dialogs/verplaatsen.h"
#include "hulp/meten.h"
#include "hulp/register.h"
#include "mainwindow/dubbelenamen.h"
#include "mainwindow/sorteerlijst.h"
#include "platform/echteSchijf.h"
#include "platform/tekstorde.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

constexpr Tekstblik Subgroep = "DINSDAG";
constexpr int ElkeDubbele = 20; ///< of so many players one bears the name of an earlier one

/// Letters that tell one row from every other.
Tekst Toevoegsel(int rij)
{
    Tekst uit = "-";
    for (int rest = rij; rest > 0; rest /= 26)
        uit += static_cast<char>('a' + rest % 26);
    return uit;
}

/// The made-up names come from a short list, which gives a large register hundreds of namesakes
/// each. Here a name is borne once, by some a few times, and every second player is of one
/// subgroup.
Tekst Proeftekst(int spelers, Verdeling verdeling)
{
    Register uit;
    uit.HKEY = Sleutelbasis + spelers;
    uit.tabel = SpelersUit(MaakRegister(spelers, verdeling)).tabel.value_or(Spelertabel());
    for (int rij = 1; rij <= uit.tabel.Rijen(); ++rij) {
        Rijvelden velden = uit.tabel.Velden(rij);
        velden[Plaats(Kolom::Achternaam)] += Toevoegsel(rij);
        if (rij % ElkeDubbele == 0) {
            for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam})
                velden[Plaats(kolom)] = uit.tabel.Cel(rij / 2, kolom);
        }
        if (rij % 2 == 0)
            velden[Plaats(Kolom::NBBgr)] = Subgroep;
        uit.tabel.ZetRij(rij, velden);
    }
    return SpelersTekst(uit);
}

/// A register of one size on the disk, in the page cache, and the table that it gives.
struct Proef {
    Proef(int spelers, Verdeling verdeling) : suite(Proeftekst(spelers, verdeling))
    {
        Lees(gelezen);
        for (int rij = 1; rij <= gelezen.tabel.Rijen(); ++rij)
            keys.emplace_back(gelezen.tabel.Cel(rij, Kolom::Key));
    }

    void Lees(Register& naar) { LeesSpelers(schijf, suite.Instellingen(), naar); }
    Register Opnieuw()
    {
        Register spelers;
        Lees(spelers);
        return spelers;
    }

    EchteSchijf schijf;
    Proefsuite suite;
    Register gelezen;
    std::vector<Tekst> keys;
};

Proefkast<Proef, int, Verdeling>& Proeven()
{
    static Proefkast<Proef, int, Verdeling> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting, Verdeling verdeling)
{
    return Proeven().Geef(Grootte(meting), verdeling);
}

// ---------------------------------------------------------------- the sorted lists

void Sorteren(benchmark::State& meting, Sorteersoort soort)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::AlleGroepen).gelezen.tabel;
    Meet(
        meting, [] { return tl::expected<Sorteerlijst, GeenGetal>(); },
        [&](auto& lijst) {
            lijst = VulSorteerlijst(tabel, soort, std::nullopt);
            Eis(meting, lijst && lijst->size() == static_cast<std::size_t>(Grootte(meting)));
        });
}

/// The sort keys of the same lines in the order of the table: keys of players rise with the rows.
std::vector<Tekst> Ongesorteerd(const Spelertabel& tabel, Sorteersoort soort)
{
    auto lijst = VulSorteerlijst(tabel, soort, std::nullopt);
    if (!lijst)
        return {};
    auto& regels = *lijst;
    std::sort(regels.begin(), regels.end(), [soort](Tekstblik een, Tekstblik ander) {
        return VeldenVan(een, soort) < VeldenVan(ander, soort);
    });
    std::vector<Tekst> sleutels;
    sleutels.reserve(regels.size());
    for (const Tekstblik regel : regels)
        sleutels.push_back(Sorteersleutel(regel));
    return sleutels;
}

/// One walk over all cells, at least one byte of each.
std::size_t LoopDoor(const Spelertabel& tabel)
{
    std::size_t som = 0;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        for (int kolom = 1; kolom <= AantalKolommen; ++kolom) {
            const Tekstblik cel = tabel.Cel(rij, static_cast<Kolom>(kolom));
            som += cel.size() + (cel.empty() ? 0 : static_cast<unsigned char>(cel.front()));
        }
    }
    return som;
}

void SorterenGrens(benchmark::State& meting, Sorteersoort soort)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::AlleGroepen).gelezen.tabel;
    const std::vector<Tekst> sleutels = Ongesorteerd(tabel, soort);
    Eis(meting, sleutels.size() == static_cast<std::size_t>(Grootte(meting)));
    Meet(
        meting, [&] { return sleutels; },
        [&](std::vector<Tekst>& gesorteerd) {
            benchmark::DoNotOptimize(LoopDoor(tabel));
            std::sort(gesorteerd.begin(), gesorteerd.end());
        });
}

void SorterenKey(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::Key);
}
BENCHMARK(SorterenKey)->Apply(Groottes);

void SorterenKeyGrens(benchmark::State& meting)
{
    SorterenGrens(meting, Sorteersoort::Key);
}
BENCHMARK(SorterenKeyGrens)->Apply(Groottes);

void SorterenNBBnr(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::NBBnr);
}
BENCHMARK(SorterenNBBnr)->Apply(Groottes);

void SorterenNBBnrGrens(benchmark::State& meting)
{
    SorterenGrens(meting, Sorteersoort::NBBnr);
}
BENCHMARK(SorterenNBBnrGrens)->Apply(Groottes);

void SorterenNBBgroep(benchmark::State& meting)
{
    Sorteren(meting, Sorteersoort::NBBgroep);
}
BENCHMARK(SorterenNBBgroep)->Apply(Groottes);

void SorterenNBBgroepGrens(benchmark::State& meting)
{
    SorterenGrens(meting, Sorteersoort::NBBgroep);
}
BENCHMARK(SorterenNBBgroepGrens)->Apply(Groottes);

// ---------------------------------------------------------------- many players at once

/// What the operations below are compared with: the same register, everybody in one group.
void Laden(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [] { return Register(); },
        [&](Register& spelers) {
            proef.Lees(spelers);
            Eis(meting, spelers.tabel.Rijen() == Grootte(meting));
        });
}
BENCHMARK(Laden)->Apply(Groottes);

/// The least that anything costs which looks at every player: how that grows tells what the
/// processor's caches have to do with it.
void Doorlopen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [](const Register& spelers) { benchmark::DoNotOptimize(LoopDoor(spelers.tabel)); });
}
BENCHMARK(Doorlopen)->Apply(Groottes);

void DubbeleNamen(benchmark::State& meting)
{
    const Spelertabel& tabel = ProefVan(meting, Verdeling::EenGroep).gelezen.tabel;
    const auto minstens = static_cast<std::size_t>(Grootte(meting) / ElkeDubbele);
    Meet(
        meting, [] { return Dubbelen(); },
        [&](Dubbelen& dubbelen) {
            dubbelen = ZoekDubbeleNamen(tabel, "Gr01-");
            Eis(meting, !dubbelen.meer && dubbelen.paren.size() >= minstens &&
                            dubbelen.paren.size() <= 2 * minstens);
        });
}
BENCHMARK(DubbeleNamen)->Apply(Groottes);

void AllesVerplaatsen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            VerplaatsSpelers(spelers.tabel, proef.keys, "Gr02-");
            Eis(meting, spelers.tabel.Cel(Grootte(meting), Kolom::Groep) == "Gr02-");
        });
}
BENCHMARK(AllesVerplaatsen)->Apply(Groottes);

void AllesKopieren(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    const Kopieeropdracht opdracht{.keys = proef.keys, .naarGroep = "Gr02-"};
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            Eis(meting,
                KopieerSpelers(spelers, opdracht) && spelers.tabel.Rijen() == 2 * Grootte(meting));
        });
}
BENCHMARK(AllesKopieren)->Apply(Groottes);

void SubgroepVerwijderen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting, Verdeling::EenGroep);
    Meet(
        meting, [&] { return proef.Opnieuw(); },
        [&](Register& spelers) {
            const int aantal = VerwijderSubgroep(spelers.tabel, "Gr01-", Subgroep);
            Eis(meting, aantal == Grootte(meting) / 2);
        });
}
BENCHMARK(SubgroepVerwijderen)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
