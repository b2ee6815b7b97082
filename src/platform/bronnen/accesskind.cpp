#include "platform/bronnen/access.h"

#include <QDataStream>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace plexoran {
namespace {

constexpr std::size_t geheugen = std::size_t{512} << 20; // bytes

#ifdef _WIN32

bool Begrens()
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
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
#ifdef _WIN32
    const int pijp = ::_dup(1);
    const char* const niets = "NUL";
#else
    const int pijp = ::dup(1);
    const char* const niets = "/dev/null";
#endif
    const bool stil = std::freopen(niets, "w", stdout) && std::freopen(niets, "w", stderr);
    return stil ? pijp : -1;
}

Accessvraag VraagUit(int argc, char** argv)
{
    const auto woord = [&](int nummer) {
        return QByteArray::fromPercentEncoding(argv[nummer]).toStdString();
    };
    Accessvraag vraag{.pad = woord(2), .tabel = woord(3), .kolommen = {}};
    for (int nummer = 4; nummer < argc; ++nummer) {
        const std::string kolom = woord(nummer);
        vraag.kolommen.push_back(
            {kolom.substr(1), kolom.front() == '1' ? Accesssoort::Geheel : Accesssoort::Letters});
    }
    return vraag;
}

int Werk(const Accessvraag& vraag)
{
    QFile pijp;
    if (!Begrens() || !pijp.open(NeemPijp(), QIODevice::WriteOnly))
        return 1;
    QDataStream uit(&pijp);
    uit.setVersion(QDataStream::Qt_6_0);
    const auto rijen = LeesMetLibmdb(vraag, uit);
    uit << quint8{0} << quint32{rijen.value_or(0)}
        << (rijen ? QByteArray() : QByteArray::fromStdString(rijen.error().systeem));
    return pijp.flush() && rijen ? 0 : 1;
}

} // namespace

void WerkAlsAccesskind(int argc, char** argv)
{
    // Ends at once: what libmdb left in memory is not worth tidying up, and may be broken.
    if (argc >= 4 && std::strcmp(argv[1], Kindwoord) == 0)
        std::_Exit(Werk(VraagUit(argc, argv)));
}

} // namespace plexoran
