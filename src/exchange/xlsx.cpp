#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>

#include <xlsxwriter.h>

#include "exchange/uitvoer.h"
#include "platform/bronnen/zip.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;

constexpr std::uint8_t Teksttype = 49;     // the number format "@"
constexpr std::size_t LangsteCel = 32'767; // characters; a sheet takes no more
constexpr std::size_t BreedsteKolom = 60;  // characters
constexpr std::size_t Pijlbreedte = 3;     // of the filter behind the name of a column

/// The library writes to a file only. A folder that nobody else may look into, gone afterwards.
class Kladmap {
  public:
    Kladmap() : map_(fs::temp_directory_path(fout_))
    {
        map_ /= "plexoran-" + std::to_string(std::random_device()());
        if (!fout_ && !fs::create_directory(map_, fout_) && !fout_)
            fout_ = std::make_error_code(std::errc::file_exists);
        else if (!fout_)
            fs::permissions(map_, fs::perms::owner_all, fout_);
        eigen_ = !fout_;
    }
    Kladmap(const Kladmap&) = delete;
    Kladmap& operator=(const Kladmap&) = delete;
    ~Kladmap()
    {
        if (eigen_)
            fs::remove_all(map_, fout_);
    }
    [[nodiscard]] const std::error_code& Waarom() const { return fout_; }
    [[nodiscard]] std::string Naam() const { return map_.string(); }
    [[nodiscard]] fs::path Bestand() const { return map_ / "spelers.xlsx"; }

  private:
    std::error_code fout_;
    fs::path map_;
    bool eigen_ = false;
};

/// Whether a reader would take what begins here, such as "_x0041_", for another character.
bool IsTekencode(Tekstblik tekst)
{
    return tekst.size() >= 7 && tekst.starts_with("_x") && tekst[6] == '_' &&
           std::all_of(tekst.begin() + 2, tekst.begin() + 6,
                       [](unsigned char teken) { return std::isxdigit(teken) != 0; });
}

/// As a sheet gives it back. The library sees to the other control characters.
std::string Celtekst(Tekstblik tekst)
{
    Tekst uit;
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (IsTekencode(tekst.substr(i)))
            uit += "_x005F";
        if (tekst[i] == '\0')
            uit += "_x0000_";
        else
            uit += tekst[i];
    }
    return NaarUtf8(uit);
}

/// In characters; the number of the row in which a text is too long instead.
tl::expected<std::vector<std::size_t>, int> Breedten(const Uitvoer& uitvoer)
{
    std::vector<std::size_t> uit;
    for (const Kolom kolom : uitvoer.kolommen) {
        std::size_t breed = Kolomnamen[Index(kolom)].size() + Pijlbreedte;
        for (const int rij : uitvoer.rijen) {
            const std::size_t lengte = uitvoer.tabel.Cel(rij, kolom).size();
            if (lengte > LangsteCel)
                return tl::unexpected(rij);
            breed = std::max(breed, lengte + 1);
        }
        uit.push_back(std::min(breed, BreedsteKolom));
    }
    return uit;
}

struct Sluiter {
    void operator()(lxw_workbook* boek) const { static_cast<void>(workbook_close(boek)); }
};
using Boek = std::unique_ptr<lxw_workbook, Sluiter>;

/// The first error of the library counts.
class Blad {
  public:
    Blad(lxw_workbook* boek, const Uitvoer& uitvoer)
        : uitvoer_(uitvoer), blad_(workbook_add_worksheet(boek, "Spelers")),
          tekst_(workbook_add_format(boek)), kop_(workbook_add_format(boek))
    {
        for (lxw_format* vorm : {tekst_, kop_})
            format_set_num_format_index(vorm, Teksttype); // what is typed later stays a text too
        format_set_bold(kop_);
    }

    void ZetKop(const std::vector<std::size_t>& breedten)
    {
        const auto kolommen = static_cast<lxw_col_t>(breedten.size());
        for (lxw_col_t i = 0; i < kolommen; ++i) {
            Let(worksheet_set_column(blad_, i, i, static_cast<double>(breedten[i]), tekst_));
            Schrijf(0, i, Kolomnamen[Index(uitvoer_.kolommen[i])], kop_);
        }
        const auto rijen = static_cast<lxw_row_t>(uitvoer_.rijen.size());
        worksheet_freeze_panes(blad_, 1, 0);
        Let(worksheet_autofilter(blad_, 0, 0, rijen, static_cast<lxw_col_t>(kolommen - 1)));
        Let(worksheet_ignore_errors(blad_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, "A1:R1048576"));
    }
    /// False when the user wants to stop.
    [[nodiscard]] bool ZetSpelers(const Voortgang& voortgang)
    {
        const auto& rijen = uitvoer_.rijen;
        for (std::size_t i = 0; i < rijen.size(); ++i) {
            if (!MagDoor(voortgang, i, rijen.size()))
                return false;
            for (std::size_t k = 0; k < uitvoer_.kolommen.size(); ++k)
                Schrijf(static_cast<lxw_row_t>(i + 1), static_cast<lxw_col_t>(k),
                        uitvoer_.tabel.Cel(rijen[i], uitvoer_.kolommen[k]), tekst_);
        }
        return true;
    }
    [[nodiscard]] lxw_error Eerste() const { return fout_; }

  private:
    void Let(lxw_error fout)
    {
        if (fout_ == LXW_NO_ERROR)
            fout_ = fout;
    }
    void Schrijf(lxw_row_t rij, lxw_col_t kolom, Tekstblik tekst, lxw_format* vorm)
    {
        if (!tekst.empty() || kolom == 0) // a line of nothing would not be there
            Let(worksheet_write_string(blad_, rij, kolom, Celtekst(tekst).c_str(), vorm));
    }

    const Uitvoer& uitvoer_;
    lxw_worksheet* blad_;
    lxw_format* tekst_;
    lxw_format* kop_;
    lxw_error fout_ = LXW_NO_ERROR;
};

/// Where the disk is full the library leaves out lines and says nothing.
bool HeeftRegels(Tekstblik bestand, std::size_t regels)
{
    const auto delen = Uitgepakt(bestand, std::size_t{1} << 32U);
    const Pad naam = "xl\\worksheets\\sheet1.xml";
    const auto blad =
        delen ? std::ranges::find(*delen, naam, &Zipdeel::naam) : decltype(delen->begin())();
    if (!delen || blad == delen->end() || !blad->inhoud.ends_with("</worksheet>"))
        return false;
    std::size_t plek = 0;
    while ((plek = blad->inhoud.find("</row>", plek)) != Tekst::npos) {
        --regels;
        ++plek;
    }
    return regels == 0;
}

} // namespace

Uitvoerbytes MaakXlsx(const Uitvoer& uitvoer, const Voortgang& voortgang)
{
    const auto breedten = Breedten(uitvoer);
    if (!breedten)
        return Mislukt({.soort = Foutsoort::Beschadigd, .regel = breedten.error()});
    const Kladmap klad;
    if (klad.Waarom())
        return Mislukt({.bestand = klad.Naam(), .systeem = Systeemmelding(klad.Waarom())});
    Tekst map = klad.Naam();
    lxw_workbook_options opties{};
    opties.constant_memory = LXW_TRUE; // lines go to the disk one by one
    opties.tmpdir = map.data();
    Boek boek(workbook_new_opt(klad.Bestand().string().c_str(), &opties));
    if (!boek)
        return Mislukt({});
    Blad blad(boek.get(), uitvoer);
    blad.ZetKop(*breedten);
    if (!blad.ZetSpelers(voortgang))
        return std::nullopt;
    const lxw_error sluiten = workbook_close(boek.release());
    std::ifstream bron(klad.Bestand(), std::ios::binary);
    Tekst bytes{std::istreambuf_iterator<char>(bron), {}};
    const lxw_error fout = blad.Eerste() != LXW_NO_ERROR ? blad.Eerste() : sluiten;
    if (fout != LXW_NO_ERROR || !HeeftRegels(bytes, uitvoer.rijen.size() + 1))
        return Mislukt({.bestand = klad.Naam(),
                        .systeem = fout == LXW_NO_ERROR ? std::string() : lxw_strerror(fout)});
    return bytes;
}

} // namespace plexoran
