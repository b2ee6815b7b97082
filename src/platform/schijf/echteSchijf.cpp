#include "platform/schijf/echteSchijf.h"

#include <cerrno>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "platform/schijf/systeempad.h"

namespace plexoran {

namespace fs = std::filesystem;

namespace {

/// What the systems have calls of their own for. Every result is handed on as the system's own
/// error.
namespace systeem {

struct Sluiter {
    void operator()(std::FILE* bestand) const { static_cast<void>(std::fclose(bestand)); }
};
/// An open file, which no child inherits.
using Greep = std::unique_ptr<std::FILE, Sluiter>;

std::error_code GewoonBestand(const fs::path& pad)
{
    std::error_code fout;
    const fs::file_type soort = fs::status(pad, fout).type();
    if (fout || soort == fs::file_type::regular)
        return fout;
    return std::make_error_code(soort == fs::file_type::directory
                                    ? std::errc::is_a_directory
                                    : std::errc::operation_not_supported);
}

std::error_code Laatste()
{
    return {errno, std::generic_category()};
}

/// A new file must not exist yet.
std::FILE* Open(const fs::path& pad, bool nieuw)
{
#ifdef _WIN32
    return ::_wfopen(pad.c_str(), nieuw ? L"wbxN" : L"rbN");
#else
    return std::fopen(pad.c_str(), nieuw ? "wbxe" : "rbe");
#endif
}

/// The error of the last call that sets `errno`; none when `teruggave` is what a good one returns.
std::error_code Uitslag(int teruggave)
{
    return teruggave == 0 ? std::error_code() : Laatste();
}

// Then, once for each kind of system:
//  - `Sync` returns when what was written is on the device;
//  - `NeemStempel` refuses what is not a regular file or a link to one;
//  - `NeemRechtenOver` gives `naar` the mode of `van` and, where the system lets us, its owner; it
//    refuses when `van` may not be written: a rename would replace it all the same;
//  - `Hernoem` replaces `naar` in one step;
//  - `SyncMap` returns when the names in the folder are on the device; nothing on Windows, where
//    `Hernoem` itself waits for that.

#ifdef _WIN32

std::error_code LaatsteVanWindows()
{
    return {static_cast<int>(::GetLastError()), std::system_category()};
}

/// What a virus scanner or an indexer that has the file open for a moment causes.
bool GaatVoorbij(DWORD fout)
{
    return fout == ERROR_ACCESS_DENIED || fout == ERROR_SHARING_VIOLATION ||
           fout == ERROR_LOCK_VIOLATION;
}

std::uint64_t Samengevoegd(DWORD hoog, DWORD laag)
{
    return (std::uint64_t{hoog} << 32) | laag;
}

std::error_code Sync(const Greep& greep)
{
    return Uitslag(::_commit(::_fileno(greep.get())));
}

std::error_code NeemStempel(const fs::path& pad, Stempel& stempel)
{
    if (const auto fout = GewoonBestand(pad))
        return fout;
    const HANDLE greep = ::CreateFileW(pad.c_str(), FILE_READ_ATTRIBUTES,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                       nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (greep == INVALID_HANDLE_VALUE)
        return LaatsteVanWindows();
    BY_HANDLE_FILE_INFORMATION gegevens{};
    const bool gelukt = ::GetFileInformationByHandle(greep, &gegevens) != 0;
    const std::error_code fout = gelukt ? std::error_code() : LaatsteVanWindows();
    ::CloseHandle(greep);
    constexpr std::int64_t van1601tot1970 = 116'444'736'000'000'000; // in steps of 100 ns
    const auto tijd = static_cast<std::int64_t>(Samengevoegd(
        gegevens.ftLastWriteTime.dwHighDateTime, gegevens.ftLastWriteTime.dwLowDateTime));
    stempel = {Samengevoegd(gegevens.nFileSizeHigh, gegevens.nFileSizeLow),
               (tijd - van1601tot1970) * 100,
               Samengevoegd(gegevens.nFileIndexHigh, gegevens.nFileIndexLow)};
    return fout;
}

std::error_code NeemRechtenOver(const fs::path& van, const fs::path& naar)
{
    if (const auto fout = GewoonBestand(van))
        return fout;
    constexpr int schrijven = 2;
    if (::_waccess(van.c_str(), schrijven) == -1)
        return Laatste();
    // The rights come from the folder that both are in; only that the new file is there matters.
    return GewoonBestand(naar);
}

std::error_code Hernoem(const fs::path& van, const fs::path& naar)
{
    constexpr DWORD pauze = 50; // milliseconds
    constexpr int pogingen = 100;
    for (int poging = 1;; ++poging) {
        if (::MoveFileExW(van.c_str(), naar.c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
            return {};
        const std::error_code fout = LaatsteVanWindows();
        if (!GaatVoorbij(static_cast<DWORD>(fout.value())) || poging == pogingen)
            return fout;
        ::Sleep(pauze);
    }
}

std::error_code SyncMap(const fs::path& /*map*/)
{
    return {};
}

#else

std::error_code SyncNummer(int nummer)
{
    int teruggave = 0;
    do
        teruggave = ::fsync(nummer);
    while (teruggave == -1 && errno == EINTR); // a signal broke it off
    return Uitslag(teruggave);
}

std::error_code ToestandVan(const fs::path& pad, struct stat& toestand)
{
    if (const auto fout = GewoonBestand(pad))
        return fout;
    return Uitslag(::stat(pad.c_str(), &toestand));
}

std::error_code Sync(const Greep& greep)
{
    return SyncNummer(::fileno(greep.get()));
}

std::error_code NeemStempel(const fs::path& pad, Stempel& stempel)
{
    struct stat toestand {};
    if (const auto fout = ToestandVan(pad, toestand))
        return fout;
    stempel = {static_cast<std::uint64_t>(toestand.st_size),
               std::int64_t{toestand.st_mtim.tv_sec} * 1'000'000'000 + toestand.st_mtim.tv_nsec,
               toestand.st_ino};
    return {};
}

std::error_code NeemRechtenOver(const fs::path& van, const fs::path& naar)
{
    struct stat oud {
    }, nieuw{};
    if (const auto fout = ToestandVan(van, oud))
        return fout;
    if (::faccessat(AT_FDCWD, van.c_str(), W_OK, AT_EACCESS) == -1)
        return Laatste();
    if (const auto fout = ToestandVan(naar, nieuw))
        return fout;
    if (oud.st_uid != nieuw.st_uid || oud.st_gid != nieuw.st_gid) {
        // Only root may give a file away; a group of our own may be kept all the same. Where
        // neither is allowed, a file of ours is as good as it gets.
        if (::chown(naar.c_str(), oud.st_uid, oud.st_gid) == -1 &&
            ::chown(naar.c_str(), nieuw.st_uid, oud.st_gid) == -1)
            errno = 0;
    }
    constexpr mode_t rechten = 0777;
    // Disks without rights of their own refuse a chmod, even when nothing would change.
    if ((oud.st_mode & rechten) == (nieuw.st_mode & rechten))
        return {};
    return Uitslag(::chmod(naar.c_str(), oud.st_mode & rechten));
}

std::error_code Hernoem(const fs::path& van, const fs::path& naar)
{
    return Uitslag(std::rename(van.c_str(), naar.c_str()));
}

std::error_code SyncMap(const fs::path& map)
{
    const int nummer = ::open(map.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer == -1)
        return Laatste();
    const std::error_code fout = SyncNummer(nummer);
    ::close(nummer);
    // Some network disks know no such thing as syncing a folder.
    if (fout == std::errc::invalid_argument || fout == std::errc::not_supported)
        return {};
    return fout;
}

#endif

} // namespace systeem

tl::unexpected<Fout> Mislukt(const fs::path& waar, const std::error_code& code)
{
    const bool ontbreekt =
        code == std::errc::no_such_file_or_directory || code == std::errc::not_a_directory;
    return plexoran::Mislukt({.soort = ontbreekt ? Foutsoort::Ontbreekt : Foutsoort::Geweigerd,
                              .bestand = Leesbaar(waar),
                              .systeem = Systeemmelding(code)});
}

Uitkomst<void> Uitslag(const fs::path& waar, const std::error_code& code)
{
    if (code)
        return Mislukt(waar, code);
    return {};
}

/// The names in a folder of what is of this kind, or a link to it; what no path of the suite can
/// say is put with the others.
Uitkomst<std::vector<Tekst>> Namen(const Pad& map, fs::file_type soort,
                                   std::set<fs::path>& overgeslagen)
{
    const fs::path waar = Systeempad(map);
    std::vector<Tekst> namen;
    std::error_code fout;
    for (fs::directory_iterator plek(waar, fout); !fout && plek != fs::directory_iterator();
         plek.increment(fout)) {
        std::error_code nietTeZien; // as a link that leads nowhere
        if (plek->status(nietTeZien).type() != soort)
            continue;
        auto naam = NaamVan(plek->path().filename());
        if (naam && IsKaleNaam(*naam))
            namen.push_back(std::move(*naam));
        else
            overgeslagen.insert(plek->path());
    }
    if (fout)
        return Mislukt(waar, fout);
    return namen;
}

std::error_code LeesAlles(const fs::path& waar, Tekst& naar)
try {
    // Asked first: the opening of a pipe would hold us until someone writes to it.
    if (const auto fout = systeem::GewoonBestand(waar))
        return fout;
    const systeem::Greep greep(systeem::Open(waar, false));
    if (!greep)
        return systeem::Laatste();
    // One byte more, so that the end shows without growing; the size is a guess, for the file may
    // change and some systems do not tell it.
    std::error_code onbekend;
    const auto grootte = fs::file_size(waar, onbekend);
    naar.resize(onbekend ? 1 : grootte + 1);
    std::size_t gelezen = 0;
    for (;;) {
        gelezen += std::fread(naar.data() + gelezen, 1, naar.size() - gelezen, greep.get());
        if (gelezen < naar.size())
            break;
        naar.resize(2 * naar.size());
    }
    naar.resize(gelezen);
    return systeem::Uitslag(std::ferror(greep.get()));
} catch (const std::bad_alloc&) {
    return std::make_error_code(std::errc::not_enough_memory);
} catch (const std::length_error&) {
    return std::make_error_code(std::errc::file_too_large);
}

class EchteSchrijver : public Schrijver {
  public:
    EchteSchrijver(fs::path pad, systeem::Greep greep)
        : pad_(std::move(pad)), greep_(std::move(greep))
    {}
    Uitkomst<void> Schrijf(Tekstblik bytes) override
    {
        const bool heel = std::fwrite(bytes.data(), 1, bytes.size(), greep_.get()) == bytes.size();
        return Uitslag(pad_, systeem::Uitslag(heel ? 0 : -1));
    }
    Uitkomst<void> Sync() override { return Uitslag(pad_, systeem::Sync(greep_)); }
    Uitkomst<void> Sluit() override
    {
        return Uitslag(pad_, systeem::Uitslag(std::fclose(greep_.release())));
    }

  private:
    fs::path pad_;
    systeem::Greep greep_;
};

} // namespace

Uitkomst<Padsoort> EchteSchijf::Soort(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    std::error_code fout;
    const fs::file_type soort = fs::status(waar, fout).type();
    if (soort == fs::file_type::not_found)
        return Padsoort::Niets;
    if (soort == fs::file_type::none || fout)
        return Mislukt(waar, fout);
    return soort == fs::file_type::directory ? Padsoort::Map : Padsoort::Bestand;
}

Uitkomst<Tekst> EchteSchijf::LeesBestand(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    Tekst inhoud;
    if (const auto fout = LeesAlles(waar, inhoud))
        return Mislukt(waar, fout);
    return inhoud;
}

Uitkomst<Stempel> EchteSchijf::NeemStempel(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    Stempel stempel;
    if (const auto fout = systeem::NeemStempel(waar, stempel))
        return Mislukt(waar, fout);
    return stempel;
}

Uitkomst<std::vector<Tekst>> EchteSchijf::Bestanden(const Pad& map)
{
    return Namen(map, fs::file_type::regular, overgeslagen_);
}

Uitkomst<std::vector<Tekst>> EchteSchijf::Mappen(const Pad& map)
{
    return Namen(map, fs::file_type::directory, overgeslagen_);
}

std::vector<std::string> EchteSchijf::NeemOvergeslagen(const Pad& map)
{
    const fs::path waar = Systeempad(map);
    std::vector<std::string> namen;
    for (const fs::path& pad : overgeslagen_) {
        if (pad.parent_path() == waar && gemeld_.insert(pad).second)
            namen.push_back(Leesbaar(pad.filename()));
    }
    return namen;
}

Uitkomst<void> EchteSchijf::MaakMap(const Pad& map)
{
    const fs::path waar = Systeempad(map);
    std::error_code fout;
    const bool gemaakt = fs::create_directory(waar, fout);
    if (!gemaakt && !fout && !fs::is_directory(waar, fout))
        fout = std::make_error_code(std::errc::file_exists);
    // Nothing is missing: a file stands in the way. Windows has no word of its own for it.
    std::error_code nietTeZien;
    const bool achterBestand = fout == std::errc::no_such_file_or_directory &&
                               fs::is_regular_file(waar.parent_path(), nietTeZien);
    if (fout == std::errc::not_a_directory || achterBestand)
        fout = std::make_error_code(std::errc::file_exists);
    return Uitslag(waar, fout);
}

Uitkomst<Pad> EchteSchijf::Doel(const Pad& pad)
{
    fs::path waar = Systeempad(pad);
    constexpr int hoogstens = 40; // as many as the systems follow themselves
    for (int gevolgd = 0; gevolgd <= hoogstens; ++gevolgd) {
        std::error_code fout;
        const fs::file_type soort = fs::symlink_status(waar, fout).type();
        if (soort == fs::file_type::none)
            return Mislukt(waar, fout);
        if (soort != fs::file_type::symlink)
            return gevolgd == 0 ? pad : PadVan(waar);
        const fs::path heen = fs::read_symlink(waar, fout);
        if (fout)
            return Mislukt(waar, fout);
        waar = waar.parent_path() / heen;
    }
    return Mislukt(waar, std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

Uitkomst<std::unique_ptr<Schrijver>> EchteSchijf::MaakNieuw(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    systeem::Greep greep(systeem::Open(waar, true));
    // Without a buffer: what is written goes to the system at once.
    if (!greep || std::setvbuf(greep.get(), nullptr, _IONBF, 0) != 0)
        return Mislukt(waar, systeem::Laatste());
    return std::make_unique<EchteSchrijver>(waar, std::move(greep));
}

Uitkomst<void> EchteSchijf::NeemRechtenOver(const Pad& van, const Pad& naar)
{
    const fs::path waar = Systeempad(van);
    return Uitslag(waar, systeem::NeemRechtenOver(waar, Systeempad(naar)));
}

Uitkomst<void> EchteSchijf::Hernoem(const Pad& van, const Pad& naar)
{
    const fs::path waar = Systeempad(naar);
    return Uitslag(waar, systeem::Hernoem(Systeempad(van), waar));
}

Uitkomst<void> EchteSchijf::Verwijder(const Pad& pad)
{
    const fs::path waar = Systeempad(pad);
    std::error_code fout;
    if (fs::is_directory(fs::symlink_status(waar, fout))) // which would go, when it is empty
        fout = std::make_error_code(std::errc::is_a_directory);
    else if (!fout)
        fs::remove(waar, fout);
    return Uitslag(waar, fout);
}

Uitkomst<void> EchteSchijf::SyncMapVan(const Pad& pad)
{
    fs::path map = Systeempad(pad).parent_path();
    if (map.empty())
        map = ".";
    return Uitslag(map, systeem::SyncMap(map));
}

std::string EchteSchijf::Toonpad(const Pad& pad) const
{
    return Leesbaar(Systeempad(pad));
}

} // namespace plexoran
