#include "platform/bronnen/access.h"

#include <QDataStream>
#include <QProcess>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/schijf/systeempad.h"
#include "platform/tekst/codepagina.h"

#ifdef _WIN32
#include <windows.h>
#elif !defined(__linux__)
#include <QCoreApplication>
#endif

namespace plexoran {
namespace {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;
using Klok = std::chrono::steady_clock;

QString EigenProgramma()
{
#ifdef _WIN32
    std::wstring naam(32'768, L'\0');
    naam.resize(GetModuleFileNameW(nullptr, naam.data(), static_cast<DWORD>(naam.size())));
    return QString::fromStdWString(naam);
#elif defined(__linux__)
    // Of the child itself, which still is this program then; holds after an upgrade too.
    return u"/proc/self/exe"_s;
#else
    return QCoreApplication::applicationFilePath();
#endif
}

/// Without what changes how libmdb reads.
QProcessEnvironment Kindomgeving()
{
    QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment();
    for (const char* naam : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"})
        omgeving.remove(QString::fromLatin1(naam));
    return omgeving;
}

std::string Padbytes(const fs::path& pad)
{
#ifdef _WIN32
    return Leesbaar(pad);
#else
    return pad.string();
#endif
}

Accesswaarde NaarWaarde(QByteArray utf8)
{
    // A null byte would end the text in other programs.
    const auto nullen = utf8.count('\0');
    if (nullen > 0)
        utf8.replace('\0', QByteArray());
    Omzetting omgezet =
        Utf8NaarCodepagina({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    return {.tekst = std::move(omgezet.tekst),
            .vervangen = omgezet.vervangen.size() + static_cast<std::size_t>(nullen)};
}

QStringList Argumenten(const Accessvraag& vraag)
{
    const auto woord = [](const std::string& bytes) {
        return QString::fromLatin1(QByteArray::fromStdString(bytes).toPercentEncoding());
    };
    QStringList uit{QString::fromLatin1(Kindwoord), woord(vraag.pad), woord(vraag.tabel)};
    for (const Accesskolom& kolom : vraag.kolommen)
        uit << woord((kolom.soort == Accesssoort::Geheel ? "1" : "0") + kolom.naam);
    return uit;
}

constexpr auto TeVeel = "de database geeft te veel gegevens";

/// What a child wrote that ended with this status.
Uitkomst<std::vector<Accessrij>> LeesAntwoord(const QByteArray& bytes, bool goed,
                                              std::size_t kolommen, std::size_t meesteRijen)
{
    QDataStream antwoord(bytes);
    antwoord.setVersion(QDataStream::Qt_6_0);
    std::vector<Accessrij> rijen;
    quint8 nogEen = 0;
    for (antwoord >> nogEen; nogEen == 1 && antwoord.status() == QDataStream::Ok;
         antwoord >> nogEen) {
        if (rijen.size() == meesteRijen)
            return Beschadigd(TeVeel);
        Accessrij& rij = rijen.emplace_back();
        for (std::size_t kolom = 0; kolom < kolommen; ++kolom) {
            QByteArray cel;
            antwoord >> cel;
            rij.push_back(cel.isNull() ? std::nullopt : std::optional(NaarWaarde(cel)));
        }
    }
    quint32 aantal = 0;
    QByteArray reden;
    antwoord >> aantal >> reden;
    const bool heel = nogEen == 0 && antwoord.status() == QDataStream::Ok && antwoord.atEnd();
    if (heel && !reden.isEmpty())
        return Beschadigd(reden.toStdString());
    if (!heel || !goed || aantal != rijen.size())
        return Beschadigd("de database is beschadigd: het lezen brak af");
    return rijen;
}

bool Start(QProcess& kind, const Accessvraag& vraag, const Accessgrenzen& grenzen)
{
    kind.setProgram(grenzen.programma.empty() ? EigenProgramma()
                                              : QString::fromStdString(grenzen.programma));
    kind.setArguments(Argumenten(vraag));
    kind.setProcessEnvironment(Kindomgeving());
    kind.setStandardInputFile(QProcess::nullDevice());
    kind.setStandardErrorFile(QProcess::nullDevice());
    kind.start(QIODevice::ReadOnly);
    return kind.waitForStarted(static_cast<int>(grenzen.zonderVoortgang.count()));
}

/// Everything that the child has to say, or what is wrong. `grootte` is that of the database,
/// beside which progress is measured.
Uitkomst<std::vector<Accessrij>> VraagKind(QProcess& kind, const Accessvraag& vraag,
                                           std::size_t grootte, const Voortgang& voortgang,
                                           const Accessgrenzen& grenzen)
{
    constexpr int wachttijd = 50; // ms, so that `voortgang` is called often enough
    if (!Start(kind, vraag, grenzen))
        return Mislukt({.systeem = kind.errorString().toStdString()});
    std::size_t gegeven = 0;
    for (auto laatste = Klok::now(); kind.state() != QProcess::NotRunning;) {
        kind.waitForReadyRead(wachttijd);
        const auto nu = static_cast<std::size_t>(kind.bytesAvailable());
        if (nu > grenzen.uitvoer)
            return Beschadigd(TeVeel);
        if (std::exchange(gegeven, nu) != nu)
            laatste = Klok::now();
        if (Klok::now() - laatste > grenzen.zonderVoortgang)
            return Beschadigd("de database is beschadigd: het lezen schoot niet meer op");
        if (voortgang)
            voortgang(std::min(gegeven, grootte), grootte);
    }
    const bool goed = kind.exitStatus() == QProcess::NormalExit && kind.exitCode() == 0;
    const QByteArray antwoord = kind.readAllStandardOutput();
    if (static_cast<std::size_t>(antwoord.size()) > grenzen.uitvoer)
        return Beschadigd(TeVeel);
    return LeesAntwoord(antwoord, goed, vraag.kolommen.size(), grenzen.rijen);
}

constexpr std::size_t koplengte = 21;

/// Looked at before libmdb sees the file: whole pages with such a head.
///
///     offset 4   "Standard Jet DB" or "Standard ACE DB", and a null byte
///     offset 20  0: pages of 2048 bytes; above: pages of 4096 bytes
Uitkomst<void> KeurAccesskop(const fs::path& bestand)
{
    std::error_code fout;
    const fs::file_type type = fs::status(bestand, fout).type();
    if (type == fs::file_type::not_found)
        return Mislukt({.soort = Foutsoort::Ontbreekt});
    if (type != fs::file_type::none && type != fs::file_type::regular)
        return Mislukt({.systeem = "het is geen gewoon bestand"});
    const std::uintmax_t grootte = fout ? 0 : fs::file_size(bestand, fout);
    if (fout)
        return Mislukt({.systeem = Systeemmelding(fout)});
    if (grootte == 0)
        return Beschadigd("het bestand is leeg");
    errno = 0;
    std::ifstream stroom(bestand, std::ios::binary);
    if (!stroom)
        return Mislukt({.systeem = Systeemmelding({errno, std::generic_category()})});
    std::array<char, koplengte> kop{};
    stroom.read(kop.data(), koplengte);
    const std::string_view soort(kop.data() + 4, 16);
    if (!stroom || (soort != "Standard Jet DB\0"sv && soort != "Standard ACE DB\0"sv))
        return Beschadigd("het is geen Access-database");
    if (const std::uintmax_t blad = kop.back() == 0 ? 2048 : 4096; grootte % blad != 0)
        return Beschadigd("de grootte is geen geheel aantal bladen: het bestand is afgekapt");
    return {};
}

} // namespace

Uitkomst<std::vector<Accessrij>> LeesAccess(const Pad& database, const Tekst& tabel,
                                            const std::vector<Accesskolom>& kolommen,
                                            const Voortgang& voortgang,
                                            const Accessgrenzen& grenzen)
{
    const fs::path bestand = Systeempad(database);
    QProcess kind;
    auto rijen = KeurAccesskop(bestand).and_then([&] {
        std::error_code fout;
        const fs::path heel = fs::absolute(bestand, fout);
        return VraagKind(kind, {.pad = Padbytes(heel), .tabel = tabel, .kolommen = kolommen},
                         fs::file_size(bestand, fout), voortgang, grenzen);
    });
    if (kind.state() != QProcess::NotRunning) { // whatever went wrong, it is gone afterwards
        kind.kill();
        kind.waitForFinished();
    }
    if (!rijen)
        rijen.error().bestand = Leesbaar(bestand);
    return rijen;
}

} // namespace plexoran
