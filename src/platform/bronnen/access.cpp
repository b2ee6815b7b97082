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

#include "platform/bronnen/accesskind.h"
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

tl::unexpected<Fout> Mis(Foutsoort soort, std::string reden)
{
    return tl::unexpected(
        Fout{.soort = soort, .bestand = {}, .regel = 0, .systeem = std::move(reden)});
}

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
            return Mis(Foutsoort::Beschadigd, "de database geeft te veel gegevens");
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
        return Mis(Foutsoort::Beschadigd, reden.toStdString());
    if (!heel || !goed || aantal != rijen.size())
        return Mis(Foutsoort::Beschadigd, "de database is beschadigd: het lezen brak af");
    return rijen;
}

/// One child, from its question to its end. Whatever goes wrong, it is gone afterwards.
class Lezing {
  public:
    explicit Lezing(const Accessgrenzen& grenzen) : grenzen_(grenzen) {}
    Lezing(const Lezing&) = delete;
    Lezing& operator=(const Lezing&) = delete;
    ~Lezing()
    {
        if (kind_.state() == QProcess::NotRunning)
            return;
        kind_.kill();
        kind_.waitForFinished();
    }

    /// Everything that the child has to say, or what is wrong. `grootte` is that of the database,
    /// beside which progress is measured.
    Uitkomst<std::vector<Accessrij>> Doe(const Accessvraag& vraag, std::size_t grootte,
                                         const Voortgang& voortgang)
    {
        constexpr int wachttijd = 50; // ms, so that `voortgang` is called often enough
        if (!Start(vraag))
            return Mis(Foutsoort::Geweigerd, kind_.errorString().toStdString());
        std::size_t gegeven = 0;
        for (auto laatste = Klok::now(); kind_.state() != QProcess::NotRunning;) {
            kind_.waitForReadyRead(wachttijd);
            const auto nu = static_cast<std::size_t>(kind_.bytesAvailable());
            if (nu > grenzen_.uitvoer)
                return Mis(Foutsoort::Beschadigd, "de database geeft te veel gegevens");
            if (std::exchange(gegeven, nu) != nu)
                laatste = Klok::now();
            if (Klok::now() - laatste > grenzen_.zonderVoortgang)
                return Mis(Foutsoort::Beschadigd,
                           "de database is beschadigd: het lezen schoot niet meer op");
            if (voortgang)
                voortgang(std::min(gegeven, grootte), grootte);
        }
        const bool goed = kind_.exitStatus() == QProcess::NormalExit && kind_.exitCode() == 0;
        const QByteArray antwoord = kind_.readAllStandardOutput();
        if (static_cast<std::size_t>(antwoord.size()) > grenzen_.uitvoer)
            return Mis(Foutsoort::Beschadigd, "de database geeft te veel gegevens");
        return LeesAntwoord(antwoord, goed, vraag.kolommen.size(), grenzen_.rijen);
    }

  private:
    bool Start(const Accessvraag& vraag)
    {
        kind_.setProgram(grenzen_.programma.empty() ? EigenProgramma()
                                                    : QString::fromStdString(grenzen_.programma));
        kind_.setArguments(Argumenten(vraag));
        kind_.setProcessEnvironment(Kindomgeving());
        kind_.setStandardInputFile(QProcess::nullDevice());
        kind_.setStandardErrorFile(QProcess::nullDevice());
        kind_.start(QIODevice::ReadOnly);
        return kind_.waitForStarted(static_cast<int>(grenzen_.zonderVoortgang.count()));
    }

    QProcess kind_;
    const Accessgrenzen& grenzen_;
};

constexpr std::size_t koplengte = 21;

tl::unexpected<Fout> Mis(const fs::path& bestand, Foutsoort soort, std::string reden)
{
    return tl::unexpected(Fout{
        .soort = soort, .bestand = Leesbaar(bestand), .regel = 0, .systeem = std::move(reden)});
}

std::string_view ReedsVerkeerd(const std::array<char, koplengte>& kop, std::uintmax_t grootte)
{
    const std::string_view soort(kop.data() + 4, 16);
    if (soort != "Standard Jet DB\0"sv && soort != "Standard ACE DB\0"sv)
        return "het is geen Access-database";
    const std::uintmax_t blad = kop[koplengte - 1] == 0 ? 2048 : 4096;
    if (grootte % blad != 0)
        return "de grootte is geen geheel aantal bladen: het bestand is afgekapt";
    return {};
}

/// Looked at before libmdb sees the file: whole pages with such a head.
///
///     offset 4   "Standard Jet DB" or "Standard ACE DB", and a null byte
///     offset 20  0: pages of 2048 bytes; above: pages of 4096 bytes
Uitkomst<void> KeurAccesskop(const fs::path& bestand)
{
    std::error_code fout;
    const fs::file_type soort = fs::status(bestand, fout).type();
    if (soort == fs::file_type::not_found)
        return Mis(bestand, Foutsoort::Ontbreekt, {});
    if (soort == fs::file_type::none)
        return Mis(bestand, Foutsoort::Geweigerd, Systeemmelding(fout));
    if (soort != fs::file_type::regular)
        return Mis(bestand, Foutsoort::Geweigerd, "het is geen gewoon bestand");
    const std::uintmax_t grootte = fs::file_size(bestand, fout);
    if (fout)
        return Mis(bestand, Foutsoort::Geweigerd, Systeemmelding(fout));
    if (grootte == 0)
        return Mis(bestand, Foutsoort::Beschadigd, "het bestand is leeg");
    errno = 0;
    std::ifstream stroom(bestand, std::ios::binary);
    if (!stroom)
        return Mis(bestand, Foutsoort::Geweigerd, Systeemmelding({errno, std::generic_category()}));
    std::array<char, koplengte> kop{};
    if (!stroom.read(kop.data(), koplengte))
        return Mis(bestand, Foutsoort::Beschadigd, "het is geen Access-database");
    if (const auto reden = ReedsVerkeerd(kop, grootte); !reden.empty())
        return Mis(bestand, Foutsoort::Beschadigd, std::string(reden));
    return {};
}

} // namespace

Uitkomst<std::vector<Accessrij>> LeesAccess(const Pad& database, const Tekst& tabel,
                                            const std::vector<Accesskolom>& kolommen,
                                            const Voortgang& voortgang,
                                            const Accessgrenzen& grenzen)
{
    const fs::path bestand = Systeempad(database);
    if (auto kop = KeurAccesskop(bestand); !kop)
        return tl::unexpected(std::move(kop.error()));
    std::error_code fout;
    const fs::path heel = fs::absolute(bestand, fout);
    const auto grootte = fs::file_size(bestand, fout);
    auto rijen = Lezing(grenzen).Doe({.pad = Padbytes(heel), .tabel = tabel, .kolommen = kolommen},
                                     grootte, voortgang);
    if (!rijen)
        rijen.error().bestand = Leesbaar(bestand);
    return rijen;
}

} // namespace plexoran
