// The member database: its members read into import lines, beside the least that this can
// take: a child process that walks the same table with libmdb, all columns bound, and says nothing.
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <mdbtools.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "federation/ledenbestand.h"
#include "hulp/ledenmaker.h"
#include "hulp/meten.h"
#include "platform/bronnen/access.h"
#include "platform/schijf/echteSchijf.h"

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

    Pad Map() const { return map_.string(); }

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

/// Spawned, since a fork copies the tables of all memory that this program uses.
bool WandelInKind(std::string bestand)
{
    std::string programma = "access_bench";
    std::string woord = Wandelwoord;
    std::array<char*, 4> argumenten = {programma.data(), woord.data(), bestand.data(), nullptr};
    pid_t kind = 0;
    if (::posix_spawn(&kind, "/proc/self/exe", nullptr, nullptr, argumenten.data(), environ) != 0)
        return false;
    int status = 1;
    return ::waitpid(kind, &status, 0) == kind && status == 0;
}

void KaleWandeling(benchmark::State& meting)
{
    const std::string bestand = Databases().Van(static_cast<unsigned>(meting.range(0)));
    Meet(meting, [&] {
        if (!WandelInKind(bestand))
            meting.SkipWithError("de wandeling mislukte");
    });
}

void LedenHalen(benchmark::State& meting)
{
    const std::string bestand = Databases().Van(static_cast<unsigned>(meting.range(0)));
    EchteSchijf schijf;
    const Ledenopdracht opdracht{.bron = Ledenbron::Database,
                                 .map = {},
                                 .programmamap = Databases().Map(),
                                 .LedenDatabase = bestand,
                                 .keuzes = {}};
    Meet(
        meting, [] { return Uitkomst<Ledenlezing>(); },
        [&](auto& lezing) {
            lezing = LeesLedenbestand(schijf, opdracht, "Club 007");
            if (!lezing || lezing->lstN1.empty())
                meting.SkipWithError("het lezen mislukte");
        });
}

/// A federation has clubs of some thousands of members: that is where the target is.
void Databasegroottes(benchmark::internal::Benchmark* meting)
{
    Groottes(meting);
    meting->Arg(20'000);
}
BENCHMARK(KaleWandeling)->Apply(Databasegroottes);
BENCHMARK(LedenHalen)->Apply(Databasegroottes);

} // namespace
} // namespace plexoran

int main(int argc, char** argv)
{
    plexoran::WerkAlsAccesskind(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], plexoran::Wandelwoord) == 0)
        return plexoran::Wandel(argv[2]);
    return plexoran::VoerMetingenUit(argc, argv, [] {});
}
