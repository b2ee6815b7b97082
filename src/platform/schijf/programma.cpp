#include "platform/schijf/programma.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <io.h>
#include <windows.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

#include "platform/schijf/systeempad.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

std::filesystem::path NaarPad(const QString& naam)
{
    return QDir::toNativeSeparators(naam).toStdU16String();
}

QString NaarNaam(const std::filesystem::path& pad)
{
    return QString::fromStdU16String(pad.u16string());
}

#ifdef _WIN32

int Open(const std::filesystem::path& bestand)
{
    return ::_wopen(bestand.c_str(), _O_RDWR | _O_CREAT | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

bool HoudtEenAnder(int greep)
{
    return !::LockFile(reinterpret_cast<HANDLE>(::_get_osfhandle(greep)), 0, 0, 1, 0) &&
           ::GetLastError() == ERROR_LOCK_VIOLATION;
}

void Sluit(int greep)
{
    ::_close(greep);
}

#else

int Open(const std::filesystem::path& bestand)
{
    constexpr int vlaggen = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int greep = ::open(bestand.c_str(), vlaggen | O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
    // A folder, or a file that may only be read, can be locked as well.
    return greep != -1 ? greep : ::open(bestand.c_str(), vlaggen | O_RDONLY);
}

/// Everyone may make files in the folder; one that somebody else put there says nothing.
bool HoudtEenAnder(int greep)
{
    struct stat bestand = {};
    return ::fstat(greep, &bestand) == 0 && bestand.st_uid == ::geteuid() &&
           ::flock(greep, LOCK_EX | LOCK_NB) == -1 && errno == EWOULDBLOCK;
}

void Sluit(int greep)
{
    ::close(greep);
}

#endif

} // namespace

Pad Programmamap()
{
    return PadVan(NaarPad(QCoreApplication::applicationDirPath()));
}

Tekst Computernaam()
{
    return Utf8NaarCodepagina(QSysInfo::machineHostName().toStdString()).tekst;
}

Tekst Gebruikersnaam()
{
#ifdef _WIN32
    const QString naam = qEnvironmentVariable("USERNAME");
#else
    const QString naam = qEnvironmentVariable("USER", QDir::home().dirName());
#endif
    return Utf8NaarCodepagina(naam.toStdString()).tekst;
}

Pad VolledigPad(const std::string& utf8)
{
    return PadVan(NaarPad(QDir().absoluteFilePath(QString::fromStdString(utf8))));
}

void ZetWerkmap(const Pad& map)
{
    std::error_code fout;
    std::filesystem::current_path(Systeempad(map), fout);
}

Uitkomst<void> StartProgramma(Schijf& schijf, const Pad& pad)
{
    const auto soort = schijf.Soort(pad);
    if (!soort)
        return Mislukt(soort);
    if (*soort != Padsoort::Bestand)
        return Mislukt({.soort = Foutsoort::Ontbreekt, .bestand = schijf.Toonpad(pad)});
    const auto programma = Systeempad(pad);
    QProcess proces;
    proces.setProgram(NaarNaam(programma));
    proces.setWorkingDirectory(NaarNaam(programma.parent_path()));
    if (proces.startDetached())
        return {};
    return Mislukt(
        {.soort = Foutsoort::Geweigerd,
         .bestand = schijf.Toonpad(pad),
         .systeem = QFileInfo(proces.program()).isExecutable()
                        ? proces.errorString().toStdString()
                        : Systeemmelding(std::make_error_code(std::errc::permission_denied))});
}

std::filesystem::path Slotbestand()
{
#ifdef _WIN32
    return NaarPad(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) /
           "plexoran.lock";
#else
    return "/tmp/plexoran-" + std::to_string(::geteuid()) + ".lock";
#endif
}

Exemplaarslot::~Exemplaarslot()
{
    if (greep_ != -1)
        Sluit(greep_);
}

bool Exemplaarslot::Neem()
{
    if (greep_ != -1)
        return true;
    const int greep = Open(bestand_);
    if (greep == -1)
        return true;
    if (HoudtEenAnder(greep)) {
        Sluit(greep);
        return false;
    }
    greep_ = greep;
    static_cast<void>(IsGeroepen());
    return true;
}

/// The time of the file is the one thing of it that both can see without waiting. Some systems keep
/// whole seconds only.
void Exemplaarslot::Roep() const
{
    using namespace std::filesystem;
    std::error_code fout;
    const auto vorige = last_write_time(bestand_, fout);
    if (greep_ == -1 && !fout)
        last_write_time(bestand_,
                        std::max(vorige + std::chrono::seconds(1), file_time_type::clock::now()),
                        fout);
}

bool Exemplaarslot::IsGeroepen()
{
    std::error_code fout;
    const auto tijd = std::filesystem::last_write_time(bestand_, fout);
    return !fout && std::exchange(gezien_, tijd) != tijd;
}

} // namespace plexoran
