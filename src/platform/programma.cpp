#include "platform/programma.h"

#include <QCoreApplication>
#include <QDir>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>

#include <filesystem>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "platform/systeempad.h"

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

/// A file of this user and this computer alone, so that a lock of another computer never stands
/// in the way.
QString Slotbestand()
{
#ifdef _WIN32
    return QDir::tempPath() + QStringLiteral("/plexoran.lock"); // the user's own
#else
    if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
               QStringLiteral("/plexoran.lock");
    return QDir::tempPath() + QStringLiteral("/plexoran-%1.lock").arg(geteuid());
#endif
}

} // namespace

Pad Programmamap()
{
    return PadVan(NaarPad(QCoreApplication::applicationDirPath()));
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
        return tl::unexpected(soort.error());
    Fout fout{
        .soort = Foutsoort::Ontbreekt, .bestand = schijf.Toonpad(pad), .regel = 0, .systeem = {}};
    if (*soort != Padsoort::Bestand)
        return tl::unexpected(fout);
    const auto programma = Systeempad(pad);
    QProcess proces;
    proces.setProgram(NaarNaam(programma));
    proces.setWorkingDirectory(NaarNaam(programma.parent_path()));
    if (proces.startDetached())
        return {};
    fout.soort = Foutsoort::Geweigerd;
    fout.systeem = proces.errorString().toStdString();
    return tl::unexpected(fout);
}

struct Exemplaarslot::Binnenkant {
    QLockFile slot{Slotbestand()};
};

Exemplaarslot::Exemplaarslot() = default;
Exemplaarslot::~Exemplaarslot() = default;

bool Exemplaarslot::Neem()
{
    if (binnenkant_ && binnenkant_->slot.isLocked())
        return true;
    binnenkant_ = std::make_unique<Binnenkant>();
    QLockFile& slot = binnenkant_->slot;
    // A lock never grows old; that of a process that is gone is taken over at once.
    slot.setStaleLockTime(0);
    return slot.tryLock(0) || slot.error() != QLockFile::LockFailedError;
}

} // namespace plexoran
