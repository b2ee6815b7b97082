// What the benchmarks share: sizes, the clock around one piece of work, and the lower limits.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "hulp/proefsuite.h"

namespace plexoran {

/// The fastest repetition tells what the work costs when nothing else uses the machine.
inline double Laagste(const std::vector<double>& waarden)
{
    return *std::min_element(waarden.begin(), waarden.end());
}

/// The sizes at which every operation over the whole register is measured. Few times each, since
/// every time begins with emptying the caches; the repetitions of a run make up for it.
inline void Groottes(benchmark::internal::Benchmark* meting)
{
    constexpr int keer = 3;
    meting->Arg(1'000)->Arg(10'000)->Arg(100'000)->Iterations(keer);
    meting->UseManualTime()->Unit(benchmark::kMillisecond)->ComputeStatistics("min", Laagste);
}

/// Fills the processor's caches with something else. A person gives a command every some seconds,
/// and by then other programs have had the caches: so every measurement starts there, and a small
/// register has no advantage that it would not have in use. What was filled for it is
/// given back, so that the memory which is handed out next is there: on a virtual machine the first
/// touch may have to wait for the host, and that takes longer than all that is measured.
inline void LeegCaches()
{
    constexpr std::size_t bytes = std::size_t{256} * 1024 * 1024; // far more than caches hold
    std::vector<char> vulling(bytes);
    constexpr std::size_t lijn = 64;
    for (std::size_t i = 0; i < bytes; i += lijn)
        ++vulling[i];
    benchmark::DoNotOptimize(vulling.data());
    benchmark::ClobberMemory();
}

/// The allocator gets more generous with what it keeps as a program goes on. Fixed, so that every
/// measurement pays for fresh memory as a program that just started does, whatever ran before it.
inline void ZetGeheugenVast()
{
#ifdef __GLIBC__
    constexpr int grens = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, grens);
    mallopt(M_TRIM_THRESHOLD, grens);
#endif
}

/// What was freed goes back to the system. The allocator keeps what lies between blocks in use,
/// some megabytes after a while: enough for all that a register of 10,000 asks for, which would
/// then pay for none of it, and not for one of 100,000.
inline void GeefGeheugenTerug()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

/// Times `werk(toestand)` alone, on a `toestand` that `vooraf()` makes anew every time; making it
/// and clearing it away do not count. The caches are empty at the start, and all memory is fresh.
template <class Vooraf, class Werk>
void Meet(benchmark::State& meting, const Vooraf& vooraf, const Werk& werk)
{
    using Klok = std::chrono::steady_clock;
    for (auto _ : meting) {
        auto toestand = vooraf();
        GeefGeheugenTerug();
        LeegCaches();
        const auto begin = Klok::now();
        werk(toestand);
        const auto eind = Klok::now();
        benchmark::DoNotOptimize(toestand);
        meting.SetIterationTime(std::chrono::duration<double>(eind - begin).count());
    }
}

/// Times `werk()`, which needs nothing made ready.
template <class Werk> void Meet(benchmark::State& meting, const Werk& werk)
{
    Meet(
        meting, [] { return 0; }, [&](int) { werk(); });
}

/// The size at which this measurement runs: players, members or sessions.
inline int Grootte(const benchmark::State& meting)
{
    return static_cast<int>(meting.range(0));
}

/// A result that is not what it must be spoils the measurement, and the report says so.
inline void Eis(benchmark::State& meting, bool goed)
{
    if (!goed)
        meting.SkipWithError("de uitkomst klopt niet");
}

/// What measurements of one size and kind share, made when the first of them asks for it.
template <class Proef, class... Delen> class Proefkast {
  public:
    Proef& Geef(Delen... delen)
    {
        auto& proef = proeven_[{delen...}];
        if (!proef)
            proef = std::make_unique<Proef>(delen...);
        return *proef;
    }
    void Leeg() { proeven_.clear(); }

  private:
    std::map<std::tuple<Delen...>, std::unique_ptr<Proef>> proeven_;
};

/// The whole of a benchmark's main, but for what `vooraf` must make and `achteraf` clear away while
/// the program still stands.
template <class Vooraf, class Achteraf>
int VoerMetingenUit(int argc, char** argv, const Vooraf& vooraf, const Achteraf& achteraf)
{
    ZetGeheugenVast();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    vooraf();
    benchmark::RunSpecifiedBenchmarks();
    achteraf();
    return 0;
}

template <class Achteraf> int VoerMetingenUit(int argc, char** argv, const Achteraf& achteraf)
{
    return VoerMetingenUit(
        argc, argv, [] {}, achteraf);
}

inline bool IsScheiding(char teken)
{
    return teken == ',' || teken == '\r' || teken == '\n';
}

/// The least that anything can do that finds the cells of a text. Summed in bytes over blocks of
/// one length: of that compilers make vector code, twenty times as fast as one long sum.
inline std::int64_t TelScheidingen(Tekstblik tekst)
{
    constexpr std::size_t blok = 240; // so that its sum fits a byte
    std::int64_t aantal = 0;
    for (; tekst.size() >= blok; tekst.remove_prefix(blok)) {
        std::uint8_t som = 0;
        for (std::size_t i = 0; i < blok; ++i) {
            const char teken = tekst[i];
            som =
                static_cast<std::uint8_t>(som + (teken == ',') + (teken == '\r') + (teken == '\n'));
        }
        aantal += som;
    }
    return aantal + std::count_if(tekst.begin(), tekst.end(), IsScheiding);
}

/// The lower limit of loading: the file once into one buffer that nobody cleared before, and its
/// separators counted.
inline std::int64_t LeesEnTel(const std::filesystem::path& pad, std::unique_ptr<char[]>& buffer)
{
    const std::size_t lengte = std::filesystem::file_size(pad);
    buffer = std::make_unique_for_overwrite<char[]>(lengte);
    std::filebuf bestand;
    // Without a buffer of its own the stream reads straight into ours.
    bestand.pubsetbuf(nullptr, 0);
    if (bestand.open(pad, std::ios::in | std::ios::binary) == nullptr ||
        bestand.sgetn(buffer.get(), static_cast<std::streamsize>(lengte)) !=
            static_cast<std::streamsize>(lengte))
        return 0;
    return TelScheidingen({buffer.get(), lengte});
}

} // namespace plexoran
