#include "platform/schijf/systeem.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace plexoran::systeem {

namespace fs = std::filesystem;

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

std::FILE* Open(const fs::path& pad, bool nieuw)
{
#ifdef _WIN32
    if (!nieuw)
        return ::_wfopen(pad.c_str(), L"rbN");
    // Not "x", which the C library that every Windows has does not know: a file would be emptied.
    const int greep =
        ::_wopen(pad.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                 _S_IREAD | _S_IWRITE);
    return greep == -1 ? nullptr : ::_fdopen(greep, "wb");
#else
    return std::fopen(pad.c_str(), nieuw ? "wbxe" : "rbe");
#endif
}

std::error_code Uitslag(int teruggave)
{
    return teruggave == 0 ? std::error_code() : Laatste();
}

#ifdef _WIN32

namespace {

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

} // namespace

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

namespace {

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
    const auto fout = Uitslag(::stat(pad.c_str(), &toestand));
    return fout || S_ISREG(toestand.st_mode) ? fout : GewoonBestand(pad);
}

} // namespace

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

} // namespace plexoran::systeem
