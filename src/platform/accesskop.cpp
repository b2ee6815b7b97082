#include "platform/accesskop.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>

#include "platform/systeempad.h"

namespace plexoran {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

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

} // namespace

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

} // namespace plexoran
