// Making a backup beside reading the same files and writing and syncing their bytes; and finding
// out what differs from one, beside loading the register that is in it.
#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/systeempad.h"
#include "register/herstel.h"
#include "register/reservekopie.h"
#include "register/reservezip.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

struct Proef {
    explicit Proef(int spelers) : tekst(MaakRegister(spelers, Verdeling::AlleGroepen)), suite(tekst)
    {}

    EchteSchijf schijf;
    Tekst tekst;
    Proefsuite suite;
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

void ReserveMaken(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Meet(meting, [&] {
        Eis(meting,
            MaakReservezip(proef.schijf, proef.suite.Instellingen(), "voor import").has_value());
    });
}
BENCHMARK(ReserveMaken)->Apply(Groottes);

void ReserveMakenGrens(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    const Mappen& mappen = proef.suite.Instellingen();
    const Pad grens = Samen(mappen.SPEMAP, "grens.txt");
    Meet(
        meting, [&] { return proef.schijf.Verwijder(grens).has_value(); },
        [&](bool) {
            const auto inhoud = proef.schijf.LeesBestand(mappen.Spelerbestand());
            Eis(meting, inhoud && SchrijfHeel(proef.schijf, grens, *inhoud).has_value());
        });
    (void)proef.schijf.Verwijder(grens);
}
BENCHMARK(ReserveMakenGrens)->Apply(Groottes);

/// Every player went since.
void VerschillenZoeken(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    const Spelertabel toen = SpelersUit(proef.tekst).tabel.value();
    const Spelertabel leeg;
    Meet(meting,
         [&] { Eis(meting, static_cast<int>(Verschillen(leeg, toen).size()) == Grootte(meting)); });
}
BENCHMARK(VerschillenZoeken)->Apply(Groottes);

void ReserveLaden(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    Meet(meting, [&] { Eis(meting, SpelersUit(proef.tekst).tabel->Rijen() == Grootte(meting)); });
}
BENCHMARK(ReserveLaden)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
