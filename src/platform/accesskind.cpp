#include "platform/accesskind.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/accesskop.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace plexoran {
namespace {

constexpr std::size_t geheugen = std::size_t{512} << 20; // bytes
constexpr int Mislukt = 1;

#ifdef _WIN32

namespace sys {
int Dup(int van)
{
    return ::_dup(van);
}
int Dup2(int van, int naar)
{
    return ::_dup2(van, naar);
}
int OpenNiets()
{
    return ::_open("NUL", _O_RDWR);
}
int Lees(int van, char* naar, std::size_t lengte)
{
    return ::_read(van, naar, static_cast<unsigned>(lengte));
}
int Schrijf(int naar, const char* van, std::size_t lengte)
{
    return ::_write(naar, van, static_cast<unsigned>(lengte));
}
} // namespace sys

bool Begrens()
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::_setmode(0, _O_BINARY);
    ::_setmode(1, _O_BINARY);
    HANDLE taak = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION grenzen{};
    grenzen.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    grenzen.ProcessMemoryLimit = geheugen;
    // The handle stays open: the job holds as long as the process.
    return taak != nullptr &&
           ::SetInformationJobObject(taak, JobObjectExtendedLimitInformation, &grenzen,
                                     sizeof grenzen) != 0 &&
           ::AssignProcessToJobObject(taak, ::GetCurrentProcess()) != 0;
}

#else

namespace sys {
int Dup(int van)
{
    return ::dup(van);
}
int Dup2(int van, int naar)
{
    return ::dup2(van, naar);
}
int OpenNiets()
{
    return ::open("/dev/null", O_RDWR | O_CLOEXEC);
}
ssize_t Lees(int van, char* naar, std::size_t lengte)
{
    return ::read(van, naar, lengte);
}
ssize_t Schrijf(int naar, const char* van, std::size_t lengte)
{
    return ::write(naar, van, lengte);
}
} // namespace sys

bool Zet(decltype(RLIMIT_AS) soort, rlim_t hoogste)
{
    const rlimit grens{.rlim_cur = hoogste, .rlim_max = hoogste};
    return ::setrlimit(soort, &grens) == 0;
}

/// The address sanitizer takes terabytes of addresses before `main`.
constexpr bool MetAdreswacht()
{
#if defined(__SANITIZE_ADDRESS__)
    return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    return true;
#endif
#endif
    return false;
}

bool Begrens()
{
#ifdef __linux__
    // Gone together with the program that asked; a crash leaves no core file and wakes no reporter.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_DUMPABLE, 0);
#endif
    constexpr rlim_t rekentijd = 120; // seconds; the asking side ends it long before
    return Zet(RLIMIT_CORE, 0) && Zet(RLIMIT_CPU, rekentijd) && Zet(RLIMIT_FSIZE, 0) &&
           (MetAdreswacht() || Zet(RLIMIT_AS, geheugen));
}

#endif

/// The pipe for the answer; what is printed from here on goes nowhere. Negative on failure.
int NeemPijp()
{
    const int pijp = sys::Dup(1);
    const int niets = sys::OpenNiets();
    if (pijp < 0 || niets < 0 || sys::Dup2(niets, 1) < 0 || sys::Dup2(niets, 2) < 0)
        return -1;
    return pijp;
}

std::optional<std::string> LeesInvoer()
{
    constexpr std::size_t hoogste = std::size_t{1} << 20; // bytes
    std::string invoer;
    std::array<char, 4096> stuk{};
    while (invoer.size() <= hoogste) {
        const auto gelezen = sys::Lees(0, stuk.data(), stuk.size());
        if (gelezen == 0)
            return invoer;
        if (gelezen > 0)
            invoer.append(stuk.data(), static_cast<std::size_t>(gelezen));
        else if (errno != EINTR)
            return std::nullopt;
    }
    return std::nullopt;
}

bool SchrijfAlles(int pijp, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto geschreven = sys::Schrijf(pijp, bytes.data(), bytes.size());
        if (geschreven > 0)
            bytes.remove_prefix(static_cast<std::size_t>(geschreven));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

Uitkomst<void> Beantwoord(const Accessvraag& vraag, const Antwoorduitvoer& uit)
{
    if (auto kop = KeurAccesskop(Padnaam(vraag)); !kop)
        return kop;
    return LeesMetLibmdb(vraag, uit);
}

int Werk()
{
    if (!Begrens())
        return Mislukt;
    const int pijp = NeemPijp();
    const auto invoer = LeesInvoer();
    const auto vraag = invoer ? LeesVraag(*invoer) : std::nullopt;
    if (pijp < 0 || !vraag)
        return Mislukt;
    const Antwoorduitvoer uit = [pijp](std::string_view bytes) {
        return SchrijfAlles(pijp, bytes);
    };
    const auto uitkomst = Beantwoord(*vraag, uit);
    if (uitkomst)
        return 0;
    (void)uit(Foutbericht(uitkomst.error().soort, uitkomst.error().systeem));
    return Mislukt;
}

} // namespace

std::filesystem::path Padnaam(const Accessvraag& vraag)
{
#ifdef _WIN32
    return std::u8string(vraag.pad.begin(), vraag.pad.end());
#else
    return vraag.pad;
#endif
}

std::optional<int> AlsAccesskind(int argc, char** argv)
{
    if (argc != 2 || std::strcmp(argv[1], Kindwoord) != 0)
        return std::nullopt;
    // At once: what libmdb left in memory is not worth tidying up, and may be broken.
    std::_Exit(Werk());
}

} // namespace plexoran
