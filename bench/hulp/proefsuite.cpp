#include "hulp/proefsuite.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "platform/schijf/systeempad.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void BreekAf(const fs::path& map)
{
    std::fprintf(stderr, "de proefmap kon niet worden gevuld: %s\n", Leesbaar(map).c_str());
    std::exit(EXIT_FAILURE);
}

fs::path NieuweMap()
{
    static std::atomic<int> teller = 0;
    const auto nu = std::chrono::steady_clock::now().time_since_epoch().count();
    std::error_code fout;
    const fs::path basis = fs::temp_directory_path(fout);
    if (fout)
        BreekAf(basis);
    return basis / ("plexoran-bench-" + std::to_string(nu) + "-" + std::to_string(++teller));
}

[[nodiscard]] bool Zet(const fs::path& pad, const Tekst& inhoud)
{
    std::ofstream bestand(pad, std::ios::binary);
    bestand << inhoud;
    bestand.close();
    return !bestand.fail();
}

} // namespace

Proefsuite::Proefsuite(const Tekst& spelers) : map_(NieuweMap())
{
    mappen_.SPEMAP = PadVan(map_ / "Spelers");
    mappen_.ADMMAP = PadVan(map_ / "Admin");
    mappen_.WINMAP = PadVan(map_ / "Bestanden");
    mappen_.DFIMPG = "Gr05-";
    std::error_code fout;
    for (const char* naam : {"Spelers", "Admin", "Bestanden"})
        fs::create_directories(map_ / naam, fout);
    const Tekst ini = "SPEMAP=" + mappen_.SPEMAP + "\r\nADMMAP=" + mappen_.ADMMAP +
                      "\r\nWINMAP=" + mappen_.WINMAP + "\r\nDFIMPG=" + mappen_.DFIMPG + "\r\n";
    if (fout || !Zet(map_ / "Mappen.ini", ini) || !Zet(Spelerpad("RVDspelers.txt"), spelers))
        BreekAf(map_);
}

Proefsuite::~Proefsuite()
{
    std::error_code fout;
    fs::remove_all(map_, fout);
}

Pad Proefsuite::MappenIni() const
{
    return PadVan(map_ / "Mappen.ini");
}

fs::path Proefsuite::Spelerpad(const char* naam) const
{
    return map_ / "Spelers" / naam;
}

} // namespace plexoran
