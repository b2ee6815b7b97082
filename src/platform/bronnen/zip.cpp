#include "platform/bronnen/zip.h"

#include <algorithm>
#include <memory>
#include <optional>

#include <zip.h>

#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

constexpr zip_int64_t MeesteDelen = 10'000;
constexpr zip_uint32_t Snelst = 1; // level of compression

struct Sluiter {
    void operator()(zip_t* archief) const { zip_discard(archief); }
    void operator()(zip_source_t* bron) const { zip_source_free(bron); }
    void operator()(zip_file_t* bestand) const { static_cast<void>(zip_fclose(bestand)); }
};
using Archief = std::unique_ptr<zip_t, Sluiter>;
using Bron = std::unique_ptr<zip_source_t, Sluiter>;
using Bestand = std::unique_ptr<zip_file_t, Sluiter>;

tl::unexpected<Fout> Beschadigd(const std::string& reden)
{
    return Mislukt({.soort = Foutsoort::Beschadigd,
                    .systeem = "het is geen zipbestand dat heel is (" + reden + ")"});
}

tl::unexpected<Fout> NietGemaakt()
{
    return Mislukt({.systeem = "het zipbestand kon niet worden gemaakt"});
}

/// The names in a zip are UTF-8, and their folders end in "/".
std::string Zipnaam(const Pad& naam)
{
    return NaarUtf8(Vervang(naam, '\\', '/'));
}

std::optional<Pad> NaamUit(const char* naam)
{
    if (naam == nullptr)
        return std::nullopt;
    const Omzetting omzetting = Utf8NaarCodepagina(naam);
    Pad pad = Vervang(omzetting.tekst, '/', '\\');
    if (!omzetting.vervangen.empty() || pad.find('\0') != Pad::npos)
        return std::nullopt;
    for (std::size_t begin = 0; begin <= pad.size();) {
        const auto eind = std::min(pad.find('\\', begin), pad.size());
        const Tekstblik deel = Tekstblik(pad).substr(begin, eind - begin);
        if (deel.empty() || !IsKaleNaam(deel))
            return std::nullopt;
        begin = eind + 1;
    }
    return pad;
}

Archief Open(Tekstblik zip)
{
    if (zip.empty()) // which the library takes for a zip without files
        return nullptr;
    Bron bron(zip_source_buffer_create(zip.data(), zip.size(), 0, nullptr));
    if (!bron)
        return nullptr;
    Archief archief(zip_open_from_source(bron.get(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr));
    if (archief)
        static_cast<void>(bron.release()); // the archive's now
    return archief;
}

/// What the file holds, as far as `ruimte` lets it; the library checks its sum at the end.
Uitkomst<Tekst> InhoudVan(zip_t* archief, zip_uint64_t plaats, std::size_t ruimte)
{
    const Bestand bestand(zip_fopen_index(archief, plaats, 0));
    if (!bestand)
        return Beschadigd("een deel kan niet worden geopend");
    constexpr std::size_t portie = std::size_t{1} << 16U;
    Tekst inhoud;
    for (;;) {
        const auto al = inhoud.size();
        if (al > ruimte)
            return Beschadigd("er staat te veel in");
        inhoud.resize(al + portie);
        const auto gelezen = zip_fread(bestand.get(), inhoud.data() + al, portie);
        if (gelezen < 0)
            return Beschadigd("een deel is beschadigd");
        inhoud.resize(al + static_cast<std::size_t>(gelezen));
        if (gelezen == 0)
            return inhoud;
    }
}

bool VoegToe(zip_t* archief, const Zipdeel& deel)
{
    Bron bron(zip_source_buffer(archief, deel.inhoud.data(), deel.inhoud.size(), 0));
    if (!bron)
        return false;
    const auto plaats =
        zip_file_add(archief, Zipnaam(deel.naam).c_str(), bron.get(), ZIP_FL_ENC_UTF_8);
    if (plaats < 0)
        return false;
    static_cast<void>(bron.release());
    return zip_set_file_compression(archief, static_cast<zip_uint64_t>(plaats), ZIP_CM_DEFLATE,
                                    Snelst) == 0;
}

Uitkomst<Tekst> BytesVan(zip_source_t* bron)
{
    zip_stat_t maat;
    if (zip_source_stat(bron, &maat) != 0 || (maat.valid & ZIP_STAT_SIZE) == 0 ||
        zip_source_open(bron) != 0)
        return NietGemaakt();
    Tekst uit(maat.size, '\0');
    const auto gelezen = zip_source_read(bron, uit.data(), uit.size());
    static_cast<void>(zip_source_close(bron));
    if (gelezen != static_cast<zip_int64_t>(uit.size()))
        return NietGemaakt();
    return uit;
}

} // namespace

Uitkomst<Tekst> ZipVan(const std::vector<Zipdeel>& delen, Tekstblik toelichting)
{
    const Bron doel(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!doel)
        return NietGemaakt();
    Archief archief(zip_open_from_source(doel.get(), ZIP_TRUNCATE, nullptr));
    if (!archief)
        return NietGemaakt();
    zip_source_keep(doel.get()); // the archive holds it too
    for (const Zipdeel& deel : delen) {
        if (!VoegToe(archief.get(), deel))
            return NietGemaakt();
    }
    if (zip_set_archive_comment(archief.get(), toelichting.data(),
                                static_cast<zip_uint16_t>(toelichting.size())) != 0 ||
        zip_close(archief.get()) != 0)
        return NietGemaakt();
    static_cast<void>(archief.release());
    return BytesVan(doel.get());
}

Uitkomst<std::vector<Zipdeel>> Uitgepakt(Tekstblik zip, std::size_t hoogstens)
{
    const Archief archief = Open(zip);
    if (!archief)
        return Beschadigd("het einde ontbreekt of klopt niet");
    const auto aantal = zip_get_num_entries(archief.get(), 0);
    if (aantal > MeesteDelen)
        return Beschadigd("er staat te veel in");
    std::vector<Zipdeel> uit;
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(aantal); ++i) {
        auto naam = NaamUit(zip_get_name(archief.get(), i, ZIP_FL_ENC_GUESS));
        if (!naam)
            return Beschadigd("een naam erin kan niet");
        auto inhoud = InhoudVan(archief.get(), i, hoogstens);
        if (!inhoud)
            return Mislukt(inhoud);
        hoogstens -= inhoud->size();
        uit.push_back({std::move(*naam), std::move(*inhoud)});
    }
    return uit;
}

Uitkomst<Tekst> Toelichting(Tekstblik zip)
{
    const Archief archief = Open(zip);
    int lengte = 0;
    const char* tekst =
        archief ? zip_get_archive_comment(archief.get(), &lengte, ZIP_FL_ENC_RAW) : nullptr;
    if (tekst == nullptr)
        return Beschadigd("het einde ontbreekt of klopt niet");
    return Tekst(tekst, static_cast<std::size_t>(lengte));
}

} // namespace plexoran
