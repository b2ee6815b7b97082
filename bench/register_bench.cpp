// Every operation over the whole register, each beside its lower limit: reading or writing the same
// bytes, measured in the same run.
#include <fstream>
#include <memory>

#include "hulp/meten.h"
#include "hulp/register.h"
#include "platform/schijf/echteSchijf.h"
#include "platform/schijf/systeempad.h"
#include "register/spelerbestand.h"

#ifdef __linux__
#include <unistd.h>
#endif

namespace plexoran {
namespace {

/// A register of one size on the disk, in the page cache.
struct Proef {
    explicit Proef(int spelers) : tekst(MaakRegister(spelers, Verdeling::AlleGroepen)), suite(tekst)
    {}

    Leesverslag Lees(Register& naar) { return LeesSpelers(schijf, suite.Instellingen(), naar); }
    Register Gelezen()
    {
        Register spelers;
        Lees(spelers);
        return spelers;
    }
    Uitkomst<void> Schrijf(Register& spelers)
    {
        return SchrijfSpelers(schijf, suite.Instellingen(), spelers, Overschrijven::AlleenEigen);
    }

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

// ---------------------------------------------------------------- loading

void Laden(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Meet(
        meting, [] { return Register(); },
        [&](Register& spelers) {
            proef.Lees(spelers);
            Eis(meting, spelers.tabel.Rijen() == Grootte(meting));
        });
}
BENCHMARK(Laden)->Apply(Groottes);

void LadenGrens(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    const auto pad = proef.suite.Spelerpad("RVDspelers.txt");
    // Per player 17 commas, CR and LF; CR and LF of the key line.
    const std::int64_t verwacht = std::int64_t{Grootte(meting)} * (AantalKolommen + 1) + 2;
    Meet(
        meting, [] { return std::unique_ptr<char[]>(); },
        [&](std::unique_ptr<char[]>& buffer) { Eis(meting, LeesEnTel(pad, buffer) == verwacht); });
}
BENCHMARK(LadenGrens)->Apply(Groottes);

// ---------------------------------------------------------------- writing

void Schrijven(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Register spelers = proef.Gelezen();
    Meet(meting, [&] { Eis(meting, proef.Schrijf(spelers).has_value()); });
}
BENCHMARK(Schrijven)->Apply(Groottes);

std::filesystem::path Verwijderd(const std::filesystem::path& pad)
{
    std::error_code fout;
    std::filesystem::remove(pad, fout);
    return pad;
}

bool SchrijfEnSync(const std::filesystem::path& pad, Tekstblik bytes)
{
    EchteSchijf schijf;
    const auto schrijver = schijf.MaakNieuw(PadVan(pad));
    return schrijver && (*schrijver)->Schrijf(bytes) && (*schrijver)->Sync() &&
           (*schrijver)->Sluit();
}

void SchrijvenGrens(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    const auto pad = proef.suite.Spelerpad("grens.txt");
    Meet(
        meting, [&] { return Verwijderd(pad); },
        [&](const auto& nieuw) { Eis(meting, SchrijfEnSync(nieuw, proef.tekst)); });
    Verwijderd(pad);
}
BENCHMARK(SchrijvenGrens)->Apply(Groottes);

// ---------------------------------------------------------------- after every change

void OpslaanEnHerladen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    Register spelers = proef.Gelezen();
    Meet(meting, [&] {
        Eis(meting, proef.Schrijf(spelers).has_value());
        proef.Lees(spelers);
    });
    Eis(meting, spelers.tabel.Rijen() == Grootte(meting));
}
BENCHMARK(OpslaanEnHerladen)->Apply(Groottes);

void OpslaanEnHerladenGrens(benchmark::State& meting)
{
    const Proef& proef = ProefVan(meting);
    const auto pad = proef.suite.Spelerpad("grens.txt");
    std::unique_ptr<char[]> buffer;
    Meet(
        meting, [&] { return Verwijderd(pad); },
        [&](const auto& nieuw) {
            Eis(meting, SchrijfEnSync(nieuw, proef.tekst));
            Eis(meting, LeesEnTel(nieuw, buffer) > 0);
        });
    Verwijderd(pad);
}
BENCHMARK(OpslaanEnHerladenGrens)->Apply(Groottes);

// ---------------------------------------------------------------- changes in memory

void HelftVerwijderen(benchmark::State& meting)
{
    const Register gelezen = ProefVan(meting).Gelezen();
    std::vector<int> weg;
    for (int rij = 1; rij <= Grootte(meting); rij += 2)
        weg.push_back(rij);
    Meet(
        meting, [&] { return gelezen.tabel; },
        [&](Spelertabel& tabel) {
            tabel.VerwijderRijen(weg);
            Eis(meting, tabel.Rijen() == Grootte(meting) / 2);
        });
}
BENCHMARK(HelftVerwijderen)->Apply(Groottes);

/// Copies these bytes to memory that was not used before.
void MeetKopie(benchmark::State& meting, Tekstblik bytes)
{
    Meet(
        meting, [] { return std::unique_ptr<char[]>(); },
        [&](std::unique_ptr<char[]>& buffer) {
            buffer = std::make_unique_for_overwrite<char[]>(bytes.size());
            bytes.copy(buffer.get(), bytes.size());
            benchmark::ClobberMemory();
        });
}

void HelftVerwijderenGrens(benchmark::State& meting)
{
    const Tekstblik tekst(ProefVan(meting).tekst);
    MeetKopie(meting, tekst.substr(0, tekst.size() / 2));
}
BENCHMARK(HelftVerwijderenGrens)->Apply(Groottes);

/// The first player after a load, when the table has no room left: the dearest case.
void Toevoegen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    const Rijvelden velden = proef.Gelezen().tabel.Velden(1);
    Meet(
        meting, [&] { return proef.Gelezen(); },
        [&](Register& spelers) { Eis(meting, VoegSpelerToe(spelers, "Gr01-", velden)); });
}
BENCHMARK(Toevoegen)->Apply(Groottes);

void ToevoegenGrens(benchmark::State& meting)
{
    MeetKopie(meting, ProefVan(meting).tekst);
}
BENCHMARK(ToevoegenGrens)->Apply(Groottes);

// ---------------------------------------------------------------- memory

#if defined(__GLIBC__) && defined(__linux__)

double Uitgegeven()
{
    const struct mallinfo2 stand = mallinfo2();
    return static_cast<double>(stand.uordblks) + static_cast<double>(stand.hblkhd);
}

/// Bytes of the process that stand in the machine's memory.
double Aanwezig()
{
    malloc_trim(0);
    std::ifstream stand("/proc/self/statm");
    double geheel = 0;
    double aanwezig = 0;
    stand >> geheel >> aanwezig;
    return aanwezig * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

/// Its time says nothing; the counters are multiples of the file's size.
void Geheugen(benchmark::State& meting)
{
    Proef& proef = ProefVan(meting);
    const auto bestand = static_cast<double>(proef.tekst.size());
    for (auto _ : meting) {
        const double uitgegeven = Uitgegeven();
        const double aanwezig = Aanwezig();
        Register spelers;
        proef.Lees(spelers);
        meting.counters["uitgegeven"] = (Uitgegeven() - uitgegeven) / bestand;
        meting.counters["aanwezig"] = (Aanwezig() - aanwezig) / bestand;
        meting.SetIterationTime(1e-9);
    }
    meting.counters["bestand"] = bestand;
    meting.counters["regel"] = bestand / Grootte(meting);
}
BENCHMARK(Geheugen)->Apply(Groottes)->Iterations(1);

#endif

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    return plexoran::VoerMetingenUit(argc, argv, [] { plexoran::Proeven().Leeg(); });
}
