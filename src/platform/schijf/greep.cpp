#include "platform/schijf/greep.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
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

namespace {

std::error_code Laatste()
{
    return {errno, std::generic_category()};
}

template <class Aanroep> auto Herhaald(Aanroep aanroep)
{
    auto uitslag = aanroep();
    while (uitslag == -1 && errno == EINTR)
        uitslag = aanroep();
    return uitslag;
}

/// The systems take at most some two gigabytes in one call.
constexpr std::size_t grootsteHap = std::size_t{1} << 30;

#ifdef _WIN32

using Toestand = struct _stat64;

int Open(const fs::path& pad, bool nieuw)
{
    const int vlaggen = nieuw ? _O_WRONLY | _O_CREAT | _O_EXCL : _O_RDONLY;
    return ::_wopen(pad.c_str(), vlaggen | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

int Lees(int nummer, char* naar, std::size_t ruimte)
{
    return ::_read(nummer, naar, static_cast<unsigned>(ruimte));
}

int Schrijf(int nummer, Tekstblik bytes)
{
    return ::_write(nummer, bytes.data(), static_cast<unsigned>(bytes.size()));
}

int Synchroniseer(int nummer)
{
    return ::_commit(nummer);
}

int Dicht(int nummer)
{
    return ::_close(nummer);
}

int ToestandVan(int nummer, Toestand& toestand)
{
    return ::_fstat64(nummer, &toestand);
}

int ToestandVan(const fs::path& pad, Toestand& toestand)
{
    return ::_wstat64(pad.c_str(), &toestand);
}

std::error_code Gewoon(const Toestand& toestand)
{
    if ((toestand.st_mode & _S_IFMT) == _S_IFDIR)
        return std::make_error_code(std::errc::is_a_directory);
    if ((toestand.st_mode & _S_IFMT) != _S_IFREG)
        return std::make_error_code(std::errc::operation_not_supported);
    return {};
}

#else

using Toestand = struct stat;

int Open(const fs::path& pad, bool nieuw)
{
    // Without O_NONBLOCK a pipe would hold us until someone writes to it.
    const int vlaggen = nieuw ? O_WRONLY | O_CREAT | O_EXCL : O_RDONLY | O_NONBLOCK | O_NOCTTY;
    return Herhaald([&] { return ::open(pad.c_str(), vlaggen | O_CLOEXEC, 0666); });
}

ssize_t Lees(int nummer, char* naar, std::size_t ruimte)
{
    return Herhaald([&] { return ::read(nummer, naar, ruimte); });
}

ssize_t Schrijf(int nummer, Tekstblik bytes)
{
    return Herhaald([&] { return ::write(nummer, bytes.data(), bytes.size()); });
}

int Synchroniseer(int nummer)
{
    return Herhaald([&] { return ::fsync(nummer); });
}

int Dicht(int nummer)
{
    // A close that a signal broke off has closed; again could hit the file of another thread.
    const int uitslag = ::close(nummer);
    return uitslag == -1 && errno == EINTR ? 0 : uitslag;
}

int ToestandVan(int nummer, Toestand& toestand)
{
    return ::fstat(nummer, &toestand);
}

int ToestandVan(const fs::path& pad, Toestand& toestand)
{
    return ::stat(pad.c_str(), &toestand);
}

std::error_code Gewoon(const Toestand& toestand)
{
    if (S_ISDIR(toestand.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(toestand.st_mode))
        return std::make_error_code(std::errc::operation_not_supported);
    return {};
}

#endif

/// For an open file or a path.
template <class Bron> std::error_code GewoonBestand(const Bron& bron, Toestand& toestand)
{
    return ToestandVan(bron, toestand) == -1 ? Laatste() : Gewoon(toestand);
}

} // namespace

Greep::~Greep()
{
    if (nummer_ != -1)
        Dicht(nummer_);
}

std::error_code Greep::OpenLezen(const fs::path& pad)
{
    nummer_ = Open(pad, false);
    return nummer_ == -1 ? Laatste() : std::error_code();
}

std::error_code Greep::MaakNieuw(const fs::path& pad)
{
    nummer_ = Open(pad, true);
    return nummer_ == -1 ? Laatste() : std::error_code();
}

std::error_code Greep::LeesAlles(Tekst& naar)
try {
    Toestand toestand{};
    if (const auto fout = GewoonBestand(nummer_, toestand))
        return fout;
    // One byte more, so that the end shows without growing; the size is a guess, for the file may
    // change and some systems do not tell it.
    naar.resize(static_cast<std::size_t>(toestand.st_size) + 1);
    std::size_t gelezen = 0;
    for (;;) {
        if (gelezen == naar.size())
            naar.resize(2 * naar.size());
        const std::size_t ruimte = std::min(naar.size() - gelezen, grootsteHap);
        const auto aantal = Lees(nummer_, naar.data() + gelezen, ruimte);
        if (aantal < 0)
            return Laatste();
        if (aantal == 0)
            break;
        gelezen += static_cast<std::size_t>(aantal);
    }
    naar.resize(gelezen);
    return {};
} catch (const std::bad_alloc&) {
    return std::make_error_code(std::errc::not_enough_memory);
} catch (const std::length_error&) {
    return std::make_error_code(std::errc::file_too_large);
}

std::error_code Greep::Schrijf(Tekstblik bytes)
{
    while (!bytes.empty()) {
        const auto aantal = systeem::Schrijf(nummer_, bytes.substr(0, grootsteHap));
        if (aantal < 0)
            return Laatste();
        if (aantal == 0) // would go on for ever
            return std::make_error_code(std::errc::no_space_on_device);
        bytes.remove_prefix(static_cast<std::size_t>(aantal));
    }
    return {};
}

std::error_code Greep::Sync()
{
    return Synchroniseer(nummer_) == -1 ? Laatste() : std::error_code();
}

std::error_code Greep::Sluit()
{
    const int nummer = nummer_;
    nummer_ = -1; // also after a failing close there is nothing left to close
    return Dicht(nummer) == -1 ? Laatste() : std::error_code();
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

std::error_code NeemStempel(const fs::path& pad, Stempel& stempel)
{
    Toestand toestand{};
    if (const auto fout = GewoonBestand(pad, toestand))
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
    Toestand toestand{};
    if (const auto fout = GewoonBestand(van, toestand))
        return fout;
    constexpr int schrijven = 2;
    if (::_waccess(van.c_str(), schrijven) == -1)
        return Laatste();
    // The rights come from the folder that both are in; only that the new file is there matters.
    return GewoonBestand(naar, toestand);
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

std::error_code Verwijder(const fs::path& pad)
{
    return ::_wunlink(pad.c_str()) == -1 ? Laatste() : std::error_code();
}

std::error_code SyncMap(const fs::path& /*map*/)
{
    return {};
}

#else

std::error_code NeemStempel(const fs::path& pad, Stempel& stempel)
{
    Toestand toestand{};
    if (const auto fout = GewoonBestand(pad, toestand))
        return fout;
    stempel = {static_cast<std::uint64_t>(toestand.st_size),
               std::int64_t{toestand.st_mtim.tv_sec} * 1'000'000'000 + toestand.st_mtim.tv_nsec,
               toestand.st_ino};
    return {};
}

std::error_code NeemRechtenOver(const fs::path& van, const fs::path& naar)
{
    Toestand oud{};
    Toestand nieuw{};
    if (const auto fout = GewoonBestand(van, oud))
        return fout;
    if (::faccessat(AT_FDCWD, van.c_str(), W_OK, AT_EACCESS) == -1)
        return Laatste();
    if (const auto fout = GewoonBestand(naar, nieuw))
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
    return ::chmod(naar.c_str(), oud.st_mode & rechten) == -1 ? Laatste() : std::error_code();
}

std::error_code Hernoem(const fs::path& van, const fs::path& naar)
{
    return ::rename(van.c_str(), naar.c_str()) == -1 ? Laatste() : std::error_code();
}

std::error_code Verwijder(const fs::path& pad)
{
    return ::unlink(pad.c_str()) == -1 ? Laatste() : std::error_code();
}

std::error_code SyncMap(const fs::path& map)
{
    const int nummer =
        Herhaald([&] { return ::open(map.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (nummer == -1)
        return Laatste();
    std::error_code fout;
    if (Synchroniseer(nummer) == -1)
        fout = Laatste();
    if (Dicht(nummer) == -1 && !fout)
        fout = Laatste();
    // Some network disks know no such thing as syncing a folder.
    if (fout == std::errc::invalid_argument || fout == std::errc::not_supported)
        return {};
    return fout;
}

#endif

} // namespace plexoran::systeem
