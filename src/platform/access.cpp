#include "platform/access.h"

#include <QProcess>

#include <algorithm>
#include <utility>

#include "platform/accesskind.h"
#include "platform/accesskop.h"
#include "platform/accesspijp.h"
#include "platform/codepagina.h"
#include "platform/systeempad.h"

#ifdef _WIN32
#include <windows.h>
#elif !defined(__linux__)
#include <QCoreApplication>
#endif

namespace plexoran {
namespace {

using Klok = std::chrono::steady_clock;

QString EigenProgramma()
{
#ifdef _WIN32
    std::wstring naam(32'768, L'\0');
    naam.resize(GetModuleFileNameW(nullptr, naam.data(), static_cast<DWORD>(naam.size())));
    return QString::fromStdWString(naam);
#elif defined(__linux__)
    // Of the child itself, which still is this program then; holds after an upgrade too.
    return QStringLiteral("/proc/self/exe");
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

std::string Padbytes(const std::filesystem::path& pad)
{
#ifdef _WIN32
    return Leesbaar(pad);
#else
    return pad.string();
#endif
}

bool IsAscii(std::string_view tekst)
{
    return std::all_of(tekst.begin(), tekst.end(), [](char teken) { return teken > 0; });
}

Accesswaarde NaarWaarde(std::string&& utf8)
{
    if (IsAscii(utf8))
        return {.tekst = std::move(utf8), .vervangen = 0};
    // A leading byte order mark is none of the text; a null byte would end it in other programs.
    QString tekst = QString::fromUtf8(utf8);
    const auto nullen = tekst.count(QChar(u'\0'));
    tekst.remove(QChar(u'\0'));
    Omzetting omzetting = NaarCodepagina(tekst.toStdU16String());
    return {.tekst = std::move(omzetting.tekst),
            .vervangen = omzetting.vervangen.size() + static_cast<std::size_t>(nullen)};
}

Accessrij NaarRij(Ruwerij&& ruw)
{
    Accessrij rij;
    rij.reserve(ruw.size());
    for (auto& cel : ruw)
        rij.push_back(cel ? std::optional(NaarWaarde(std::move(*cel))) : std::nullopt);
    return rij;
}

/// One child, from its question to its end. Whatever goes wrong, it is gone afterwards.
class Lezing {
  public:
    Lezing(std::size_t kolommen, const Accessgrenzen& grenzen, const Voortgang& voortgang)
        : lezer_(kolommen), grenzen_(grenzen), voortgang_(voortgang)
    {}
    Lezing(const Lezing&) = delete;
    Lezing& operator=(const Lezing&) = delete;
    ~Lezing() { Beeindig(); }

    /// Everything that the child has to say, or what is wrong.
    Uitkomst<std::vector<Accessrij>> Doe(const std::string& vraag)
    {
        if (!Start(vraag))
            return Mis(Foutsoort::Geweigerd, kind_.errorString().toStdString());
        for (;;) {
            const bool leeft = kind_.state() != QProcess::NotRunning;
            if (leeft)
                kind_.waitForReadyRead(wachttijd);
            const QByteArray stuk = kind_.readAllStandardOutput();
            if (stuk.isEmpty() && !leeft)
                return Oordeel();
            if (const auto reden = Neem(stuk); !reden.empty())
                return Mis(Foutsoort::Beschadigd, reden);
            if (voortgang_)
                voortgang_(lezer_.Gelezen(), lezer_.Geheel());
        }
    }

  private:
    static constexpr int wachttijd = 50; // ms, so that `voortgang` is called often enough

    static tl::unexpected<Fout> Mis(Foutsoort soort, std::string reden)
    {
        return tl::unexpected(
            Fout{.soort = soort, .bestand = {}, .regel = 0, .systeem = std::move(reden)});
    }

    bool Start(const std::string& vraag)
    {
        kind_.setProgram(grenzen_.programma.empty() ? EigenProgramma()
                                                    : QString::fromStdString(grenzen_.programma));
        kind_.setArguments({QString::fromLatin1(Kindwoord)});
        kind_.setProcessEnvironment(Kindomgeving());
        kind_.setStandardErrorFile(QProcess::nullDevice());
        kind_.start();
        if (!kind_.waitForStarted(static_cast<int>(grenzen_.zonderVoortgang.count())))
            return false;
        kind_.write(vraag.data(), static_cast<qint64>(vraag.size()));
        kind_.closeWriteChannel();
        laatste_ = Klok::now();
        return true;
    }

    /// What is wrong with what came; empty when all is well.
    std::string Neem(const QByteArray& stuk)
    {
        uitvoer_ += static_cast<std::size_t>(stuk.size());
        if (uitvoer_ > grenzen_.uitvoer)
            return "de database geeft te veel gegevens";
        const std::size_t eerst = lezer_.Berichten();
        if (!lezer_.Neem({stuk.data(), static_cast<std::size_t>(stuk.size())}))
            return "het lezen gaf een onbegrijpelijk antwoord";
        if (lezer_.Geheel() > grenzen_.rijen)
            return "de database geeft te veel gegevens";
        for (Ruwerij& rij : lezer_.NeemRijen())
            rijen_.push_back(NaarRij(std::move(rij)));
        const auto nu = Klok::now();
        if (lezer_.Berichten() != eerst)
            laatste_ = nu;
        return nu - laatste_ > grenzen_.zonderVoortgang
                   ? "de database is beschadigd: het lezen schoot niet meer op"
                   : "";
    }

    Uitkomst<std::vector<Accessrij>> Oordeel()
    {
        if (lezer_.Melding())
            return tl::unexpected(*lezer_.Melding());
        const bool goed = kind_.exitStatus() == QProcess::NormalExit && kind_.exitCode() == 0;
        if (!goed || !lezer_.Klaar())
            return Mis(Foutsoort::Beschadigd, "de database is beschadigd: het lezen brak af");
        return std::move(rijen_);
    }

    void Beeindig()
    {
        if (kind_.state() == QProcess::NotRunning)
            return;
        kind_.kill();
        kind_.waitForFinished();
    }

    QProcess kind_;
    Antwoordlezer lezer_;
    const Accessgrenzen& grenzen_;
    const Voortgang& voortgang_;
    std::vector<Accessrij> rijen_;
    std::size_t uitvoer_ = 0;
    Klok::time_point laatste_;
};

} // namespace

Uitkomst<std::vector<Accessrij>> LeesAccess(const Pad& database, const Tekst& tabel,
                                            const std::vector<Accesskolom>& kolommen,
                                            const Voortgang& voortgang,
                                            const Accessgrenzen& grenzen)
{
    const std::filesystem::path bestand = Systeempad(database);
    if (auto kop = KeurAccesskop(bestand); !kop)
        return tl::unexpected(std::move(kop.error()));
    std::error_code fout;
    const std::filesystem::path heel = std::filesystem::absolute(bestand, fout);
    Lezing lezing(kolommen.size(), grenzen, voortgang);
    auto rijen = lezing.Doe(SchrijfVraag(
        {.pad = Padbytes(fout ? bestand : heel), .tabel = tabel, .kolommen = kolommen}));
    if (!rijen)
        rijen.error().bestand = Leesbaar(bestand);
    return rijen;
}

} // namespace plexoran
