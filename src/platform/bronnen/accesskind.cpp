// The child. The only file that knows libmdb; nothing that libmdb gives is taken on trust.
#include "platform/bronnen/access.h"

#include <QDataStream>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

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

#include <mdbtools.h>

namespace plexoran {
namespace {

constexpr std::size_t bindgrootte = std::size_t{1} << 20; // bytes; a longer text is refused
constexpr unsigned hoogsteKolommen = MDB_MAX_COLS;
constexpr int rijmasker = 0x1fff; // of a row's place on its page; above it stand flags

struct Sluiter {
    void operator()(MdbHandle* database) const { mdb_close(database); }
    void operator()(MdbTableDef* tabel) const { mdb_free_tabledef(tabel); }
};

/// A column that was asked, and where it stands in the table.
struct Zoekkolom {
    MdbColumn* kolom = nullptr;
    std::size_t index = 0;
};

bool IsSoort(int type, Accesssoort soort)
{
    if (soort == Accesssoort::Letters)
        return type == MDB_TEXT || type == MDB_MEMO;
    return type == MDB_BYTE || type == MDB_INT || type == MDB_LONGINT;
}

/// Walks the table and writes the rows. May crash, loop or use all memory on a damaged file.
class Tabellezing {
  public:
    Tabellezing(const Accessvraag& vraag, QDataStream& uit) : vraag_(vraag), uit_(uit) {}

    /// Gives how many rows there were, or what is wrong.
    Uitkomst<std::uint32_t> Doe()
    {
        return Open()
            .and_then([this] { return VindTabel(); })
            .and_then([this] { return VindKolommen(); })
            .and_then([this] { return LeesRijen(); });
    }

  private:
    Uitkomst<void> Open()
    {
        database_.reset(mdb_open(vraag_.pad.c_str(), MDB_NOFLAGS));
        if (!database_ || !database_->f || !database_->fmt ||
            (database_->fmt->pg_size != 2048 && database_->fmt->pg_size != MDB_PGSIZE))
            return Beschadigd("de database kan niet worden geopend");
        mdb_set_bind_size(database_.get(), bindgrootte);
#if MDBTOOLS_H_HAVE_ICONV_H
        // libmdb takes texts for UCS-2, which has no pairs: each half would become a "?".
        if (!IS_JET3(database_)) {
            const iconv_t volledig = iconv_open("UTF-8", "UTF-16LE");
            if (volledig != reinterpret_cast<iconv_t>(-1))
                database_->iconv_in = volledig;
        }
#endif
        return {};
    }

    Uitkomst<void> VindTabel()
    {
        const GPtrArray* lijst = mdb_read_catalog(database_.get(), MDB_TABLE);
        if (!lijst)
            return Beschadigd("de lijst van tabellen kan niet worden gelezen");
        MdbCatalogEntry* gevonden = nullptr;
        for (guint i = 0; i < lijst->len && !gevonden; ++i) {
            auto* kandidaat = static_cast<MdbCatalogEntry*>(g_ptr_array_index(lijst, i));
            if (kandidaat && kandidaat->object_type == MDB_TABLE &&
                g_ascii_strcasecmp(kandidaat->object_name, vraag_.tabel.c_str()) == 0)
                gevonden = kandidaat;
        }
        if (!gevonden)
            return Beschadigd(DeTabel() + " ontbreekt");
        tabel_.reset(mdb_read_table(gevonden));
        if (!tabel_ || !mdb_read_columns(tabel_.get()) || !tabel_->columns ||
            tabel_->num_cols > hoogsteKolommen || tabel_->columns->len != tabel_->num_cols)
            return Beschadigd(DeTabel() + " is onleesbaar");
        return {};
    }

    Uitkomst<void> VindKolommen()
    {
        for (const Accesskolom& gevraagd : vraag_.kolommen) {
            Zoekkolom gevonden;
            for (guint i = 0; i < tabel_->columns->len && !gevonden.kolom; ++i) {
                auto* kolom = static_cast<MdbColumn*>(g_ptr_array_index(tabel_->columns, i));
                if (kolom && g_ascii_strcasecmp(kolom->name, gevraagd.naam.c_str()) == 0)
                    gevonden = {kolom, i};
            }
            const std::string waar = "de kolom \"" + gevraagd.naam + "\" van " + DeTabel();
            if (!gevonden.kolom)
                return Beschadigd(waar + " ontbreekt");
            if (!IsSoort(gevonden.kolom->col_type, gevraagd.soort))
                return Beschadigd(waar + (gevraagd.soort == Accesssoort::Letters
                                              ? " bevat geen tekst"
                                              : " bevat geen gehele getallen"));
            kolommen_.push_back(gevonden);
        }
        return {};
    }

    Uitkomst<std::uint32_t> LeesRijen()
    {
        const std::uint32_t geheel = tabel_->num_rows;
        if (geheel > HoogstensRijen())
            return Beschadigd(DeTabel() + " zegt onmogelijk veel rijen te hebben");
        std::uint32_t gelezen = 0;
        mdb_rewind_table(tabel_.get());
        while (geheel > 0 && mdb_fetch_row(tabel_.get())) {
            if (++gelezen > geheel)
                break;
            if (auto gelukt = SchrijfRij(); !gelukt)
                return Mislukt(gelukt);
        }
        if (gelezen != geheel)
            return Beschadigd("in " + DeTabel() +
                              (gelezen < geheel ? " ontbreken rijen" : " staan te veel rijen") +
                              " (verwacht: " + std::to_string(geheel) +
                              ", gelezen: " + std::to_string(gelezen) + ")");
        return gelezen;
    }

    /// A row is known by its page and one byte.
    [[nodiscard]] std::uintmax_t HoogstensRijen() const
    {
        constexpr std::uintmax_t perBlad = 256;
#ifdef _WIN32
        const std::filesystem::path pad = std::u8string(vraag_.pad.begin(), vraag_.pad.end());
#else
        const std::filesystem::path pad = vraag_.pad;
#endif
        std::error_code fout;
        const std::uintmax_t grootte = std::filesystem::file_size(pad, fout);
        return fout ? 0 : grootte / static_cast<std::uintmax_t>(database_->fmt->pg_size) * perBlad;
    }

    /// The row on which `mdb_fetch_row` stands.
    Uitkomst<void> SchrijfRij()
    {
        int begin = 0;
        std::size_t lengte = 0;
        MdbField velden[hoogsteKolommen] = {};
        if (tabel_->cur_row == 0 ||
            mdb_find_row(database_.get(), static_cast<int>(tabel_->cur_row) - 1, &begin, &lengte) !=
                0)
            return KapotteRij();
        begin &= rijmasker;
        eind_ = static_cast<std::size_t>(begin) + lengte;
        const auto blad = static_cast<std::size_t>(database_->fmt->pg_size);
        if (lengte == 0 || eind_ > blad || mdb_crack_row(tabel_.get(), begin, lengte, velden) < 0)
            return KapotteRij();
        uit_ << quint8{1};
        for (const Zoekkolom& kolom : kolommen_) {
            const MdbField& veld = velden[kolom.index];
            if (veld.colnum != static_cast<int>(kolom.index))
                return KapotteRij();
            if (veld.is_null) {
                uit_ << QByteArray();
                continue;
            }
            if (veld.siz < 0 || veld.start < begin || (veld.siz > 0 && !veld.value) ||
                static_cast<std::size_t>(veld.start) + static_cast<std::size_t>(veld.siz) > eind_)
                return KapotteRij();
            const int type = kolom.kolom->col_type;
            auto waarde = type == MDB_TEXT   ? LeesTekst(veld)
                          : type == MDB_MEMO ? LeesLangeTekst(veld)
                                             : LeesGetal(type, veld);
            if (!waarde)
                return Mislukt(waarde);
            // Not null, though it may be empty.
            uit_ << QByteArray(waarde->data(), static_cast<qsizetype>(waarde->size()));
        }
        return {};
    }

    Uitkomst<std::string> LeesTekst(const MdbField& veld)
    {
        // Room for a whole page of it: nothing can be cut.
        char tekst[4 * MDB_PGSIZE];
        if (veld.siz == 0)
            return std::string();
        const int lengte = mdb_unicode2ascii(
            database_.get(), reinterpret_cast<char*>(database_->pg_buf) + veld.start,
            static_cast<std::size_t>(veld.siz), tekst, sizeof tekst);
        if (lengte < 0 || static_cast<std::size_t>(lengte) >= sizeof tekst)
            return KapotteRij();
        return std::string(tekst, static_cast<std::size_t>(lengte));
    }

    /// A long text stands in the row itself or on pages of its own. libmdb answers with an empty
    /// text when it cannot follow, and cuts at the size that was set.
    Uitkomst<std::string> LeesLangeTekst(const MdbField& veld)
    {
        constexpr std::uint32_t lengtemasker = 0x3fffffff;
        if (veld.siz < MDB_MEMO_OVERHEAD)
            return KapotteRij();
        const auto lengte =
            static_cast<std::uint32_t>(mdb_get_int32(database_->pg_buf, veld.start)) & lengtemasker;
        const std::unique_ptr<char, decltype(&g_free)> tekst(
            mdb_col_to_string(database_.get(), database_->pg_buf, veld.start, MDB_MEMO, veld.siz),
            g_free);
        if (!tekst)
            return KapotteRij();
        std::string uit = tekst.get();
        constexpr std::size_t langsteTeken = 4;
        if (uit.size() + langsteTeken >= bindgrootte)
            return Beschadigd("een tekst in " + DeTabel() + " is te lang");
        if (uit.empty() && lengte > 0)
            return KapotteRij();
        return uit;
    }

    Uitkomst<std::string> LeesGetal(int type, const MdbField& veld)
    {
        const auto lees = [&](auto getal) -> Uitkomst<std::string> {
            if (veld.siz != static_cast<int>(sizeof getal))
                return KapotteRij();
            std::memcpy(&getal, database_->pg_buf + veld.start, sizeof getal);
            return std::to_string(getal);
        };
        return type == MDB_BYTE  ? lees(std::uint8_t{})
               : type == MDB_INT ? lees(std::int16_t{})
                                 : lees(std::int32_t{});
    }

    [[nodiscard]] tl::unexpected<Fout> KapotteRij() const
    {
        return Beschadigd("een rij van " + DeTabel() + " is beschadigd");
    }

    [[nodiscard]] std::string DeTabel() const
    {
        return "de tabel \"" + vraag_.tabel + "\"";
    }

    const Accessvraag& vraag_;
    QDataStream& uit_;
    std::unique_ptr<MdbHandle, Sluiter> database_;
    std::unique_ptr<MdbTableDef, Sluiter> tabel_; // before the database it belongs to
    std::vector<Zoekkolom> kolommen_;
    std::size_t eind_ = 0;
};

// ---- Limits -------------------------------------------------------------------------------------

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

// ---- Question and answer ------------------------------------------------------------------------

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
    const auto rijen = (new Tabellezing(vraag, uit))->Doe(); // which is never torn down
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
