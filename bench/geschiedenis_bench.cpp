// Saving with the history beside saving without it; and undoing beside the two loads and saves of a
// user who does it by hand.
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "register/geschiedenis.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

enum class Houdt { Niets, Geschiedenis };

struct Proef {
    explicit Proef(int spelers) : tekst(MaakRegister(spelers, Verdeling::AlleGroepen)), suite(tekst)
    {}

    bool Lees(Register& naar)
    {
        return !LeesSpelers(schijf, suite.Instellingen(), naar).fout.has_value();
    }
    bool Schrijf(Register& spelers)
    {
        return SchrijfSpelers(schijf, suite.Instellingen(), spelers, Overschrijven::AlleenEigen)
            .has_value();
    }
    /// A program that has just saved one changed player, and has a file for its history.
    Register Bezig(Houdt houdt)
    {
        geschiedenis.reset();
        Register spelers;
        (void)SchrijfHeel(schijf, suite.Instellingen().Spelerbestand(), tekst);
        Lees(spelers);
        if (houdt == Houdt::Geschiedenis)
            geschiedenis.emplace(schijf).Open(suite.Instellingen(), "pc", "an");
        Wijzig(spelers);
        Schrijf(spelers);
        Lees(spelers);
        return spelers;
    }
    static void Wijzig(Register& spelers)
    {
        const int midden = 1 + spelers.tabel.Rijen() / 2;
        const Tekst oud(spelers.tabel.Cel(midden, Kolom::Telef));
        spelers.tabel.ZetCel(midden, Kolom::Telef, oud + "1");
    }

    EchteSchijf schijf;
    Tekst tekst;
    Proefsuite suite;
    std::optional<Geschiedenis> geschiedenis;
};

Proefkast<Proef, int>& Proeven()
{
    static Proefkast<Proef, int> proeven;
    return proeven;
}

Proef& ProefVan(const benchmark::State& meting)
{
    return Proeven().Geef(Grootte(meting));
}

void BewaarEen(benchmark::State& meting, Houdt houdt)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting,
        [&] {
            Register spelers = proef.Bezig(houdt);
            Proef::Wijzig(spelers);
            return spelers;
        },
        [&](Register& spelers) { Eis(meting, proef.Schrijf(spelers)); });
}

/// After an import of half as many players as there are.
void BewaarImport(benchmark::State& meting, Houdt houdt)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting,
        [&] {
            Register spelers = proef.Bezig(houdt);
            const int aantal = spelers.tabel.Rijen();
            for (int rij = 1; rij <= aantal / 2; ++rij)
                (void)VoegSpelerToe(spelers, "Gr05-", spelers.tabel.Velden(rij));
            return spelers;
        },
        [&](Register& spelers) { Eis(meting, proef.Schrijf(spelers)); });
}

void WijzigingOpslaan(benchmark::State& meting)
{
    BewaarEen(meting, Houdt::Geschiedenis);
}
BENCHMARK(WijzigingOpslaan)->Apply(Groottes);

void WijzigingOpslaanGrens(benchmark::State& meting)
{
    BewaarEen(meting, Houdt::Niets);
}
BENCHMARK(WijzigingOpslaanGrens)->Apply(Groottes);

void ImportOpslaan(benchmark::State& meting)
{
    BewaarImport(meting, Houdt::Geschiedenis);
}
BENCHMARK(ImportOpslaan)->Apply(Groottes);

void ImportOpslaanGrens(benchmark::State& meting)
{
    BewaarImport(meting, Houdt::Niets);
}
BENCHMARK(ImportOpslaanGrens)->Apply(Groottes);

void OngedaanMaken(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting, [&] { return proef.Bezig(Houdt::Geschiedenis); },
        [&](Register& spelers) {
            const auto handeling = proef.geschiedenis->Laatste(Handelingsoort::Ongedaan);
            Menging terug = DraaiSpelersTerug(spelers, handeling.value().wijzigingen.at(0),
                                              Handelingsoort::Ongedaan);
            spelers.tabel = std::move(terug.tabel);
            const Noteer noteer(*proef.geschiedenis, "Ongedaan", Handelingsoort::Ongedaan,
                                handeling->id);
            Eis(meting, proef.Schrijf(spelers) && spelers.gelezen == proef.tekst);
        });
}
BENCHMARK(OngedaanMaken)->Apply(Groottes);

void OngedaanMakenGrens(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting, [&] { return proef.Bezig(Houdt::Geschiedenis); },
        [&](Register& spelers) {
            for (int keer = 0; keer < 2; ++keer) {
                Eis(meting, proef.Lees(spelers));
                Proef::Wijzig(spelers);
                Eis(meting, proef.Schrijf(spelers));
            }
        });
}
BENCHMARK(OngedaanMakenGrens)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
