// The member database: its members read into the intermediate file, beside the least that this can
// take: a child process that walks the same table with libmdb, all columns bound, and says nothing.
#include <benchmark/benchmark.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

#include <mdbtools.h>
#include <sys/wait.h>
#include <unistd.h>

#include "federation/ledendatabase.h"
#include "hulp/ledenmaker.h"
#include "platform/accesskind.h"
#include "platform/geheugenSchijf.h"

namespace plexoran {
namespace {

constexpr auto Wandelwoord = "--kale-wandeling";
constexpr unsigned ledenPerKeer = 40;

/// A database of so many members, in a folder that goes with the program.
class Proefdatabases {
  public:
    Proefdatabases()
    {
        map_ = std::filesystem::temp_directory_path() /
               ("plexoran-access-bench-" + std::to_string(::getpid()));
        std::filesystem::create_directory(map_);
    }
    Proefdatabases(const Proefdatabases&) = delete;
    Proefdatabases& operator=(const Proefdatabases&) = delete;
    ~Proefdatabases()
    {
        std::error_code fout;
        std::filesystem::remove_all(map_, fout);
    }

    std::string Van(unsigned leden)
    {
        const std::string bestand = (map_ / (std::to_string(leden) + ".mdb")).string();
        if (!std::filesystem::exists(bestand))
            std::ofstream(bestand, std::ios::binary) << MaakLedendatabase(
                std::string(GEGEVENS) + "/access/Members.mdb", leden / ledenPerKeer);
        return bestand;
    }

  private:
    std::filesystem::path map_;
};

Proefdatabases& Databases()
{
    static Proefdatabases databases;
    return databases;
}

int Wandel(const char* bestand)
{
    static std::array<std::array<char, MDB_BIND_SIZE>, MDB_MAX_COLS> waarden;
    MdbHandle* database = mdb_open(bestand, MDB_NOFLAGS);
    char naam[] = "leden";
    MdbTableDef* tabel = database ? mdb_read_table_by_name(database, naam, MDB_TABLE) : nullptr;
    if (!tabel || !mdb_read_columns(tabel))
        return 1;
    for (unsigned kolom = 0; kolom < tabel->num_cols; ++kolom)
        mdb_bind_column(tabel, static_cast<int>(kolom) + 1, waarden[kolom].data(), nullptr);
    mdb_rewind_table(tabel);
    unsigned rijen = 0;
    while (mdb_fetch_row(tabel) != 0)
        ++rijen;
    return rijen == tabel->num_rows ? 0 : 1;
}

bool WandelInKind(const std::string& bestand)
{
    const pid_t kind = ::fork();
    if (kind == 0) {
        ::execl("/proc/self/exe", "access_bench", Wandelwoord, bestand.c_str(), nullptr);
        ::_exit(1);
    }
    int status = 1;
    return kind > 0 && ::waitpid(kind, &status, 0) == kind && status == 0;
}

void KaleWandeling(benchmark::State& meting)
{
    const std::string bestand = Databases().Van(static_cast<unsigned>(meting.range(0)));
    for (auto _ : meting) {
        if (!WandelInKind(bestand))
            meting.SkipWithError("de wandeling mislukte");
    }
}

void LedenHalen(benchmark::State& meting)
{
    const std::string bestand = Databases().Van(static_cast<unsigned>(meting.range(0)));
    GeheugenSchijf schijf;
    schijf.ZetMap("P");
    for (auto _ : meting) {
        if (!HaalLeden(schijf, bestand, 7, "P\\Club.csv"))
            meting.SkipWithError("het lezen mislukte");
    }
}

void Groottes(benchmark::internal::Benchmark* meting)
{
    meting->Arg(1'000)->Arg(10'000)->Arg(20'000)->Arg(100'000)->UseRealTime()->Unit(
        benchmark::kMillisecond);
}
BENCHMARK(KaleWandeling)->Apply(Groottes);
BENCHMARK(LedenHalen)->Apply(Groottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    if (const auto eindstatus = plexoran::AlsAccesskind(argc, argv))
        return *eindstatus;
    if (argc == 3 && std::strcmp(argv[1], plexoran::Wandelwoord) == 0)
        return plexoran::Wandel(argv[2]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
