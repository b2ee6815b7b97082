#include "platform/schijf/schijf.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

using Woorden = std::pair<std::errc, const char*>;

constexpr std::array Bekend{
    Woorden{std::errc::no_such_file_or_directory, "het bestand of de map bestaat niet"},
    Woorden{std::errc::not_a_directory, "wat een map moet zijn, is een bestand"},
    Woorden{std::errc::is_a_directory, "het is een map en geen bestand"},
    Woorden{std::errc::file_exists, "er bestaat al iets met die naam"},
    Woorden{std::errc::directory_not_empty, "de map is niet leeg"},
    Woorden{std::errc::permission_denied, "u hebt daar geen rechten voor"},
    Woorden{std::errc::operation_not_permitted, "dat is niet toegestaan"},
    Woorden{std::errc::read_only_file_system, "op deze schijf kan alleen worden gelezen"},
    Woorden{std::errc::no_space_on_device, "de schijf is vol"},
    Woorden{std::errc::file_too_large, "het bestand is te groot voor deze schijf"},
    Woorden{std::errc::io_error, "de schijf geeft een fout bij lezen of schrijven"},
    Woorden{std::errc::device_or_resource_busy, "het is in gebruik"},
    Woorden{std::errc::text_file_busy, "het is een programma dat nu draait"},
    Woorden{std::errc::filename_too_long, "de naam is te lang"},
    Woorden{std::errc::invalid_argument, "deze schijf aanvaardt dat niet"},
    Woorden{std::errc::too_many_symbolic_link_levels, "de verwijzing verwijst naar zichzelf"},
    Woorden{std::errc::cross_device_link, "het ligt op een andere schijf"},
    Woorden{std::errc::too_many_files_open, "het programma heeft te veel bestanden open"},
    Woorden{std::errc::too_many_files_open_in_system, "er zijn te veel bestanden open"},
    Woorden{std::errc::not_enough_memory, "er is te weinig geheugen"},
    Woorden{std::errc::no_such_device, "de schijf is er niet"},
    Woorden{std::errc::timed_out, "de schijf antwoordt niet"},
#ifndef _WIN32
    Woorden{static_cast<std::errc>(EDQUOT), "uw deel van de schijf is vol"},
    Woorden{static_cast<std::errc>(ESTALE), "het bestand is op de netwerkschijf verdwenen"},
#endif
};

} // namespace

std::string Systeemmelding(const std::error_code& code)
{
    const auto bekend = std::find_if(Bekend.begin(), Bekend.end(),
                                     [&](const Woorden& woorden) { return code == woorden.first; });
    if (bekend != Bekend.end())
        return bekend->second;
#ifdef _WIN32
    if (code.category() == std::system_category())
        return NaarUtf8(code.message()); // Windows gives its words in the code page
#endif
    return code.message();
}

bool IsKaleNaam(Tekstblik naam)
{
    const bool metStation = naam.size() > 1 && naam[1] == ':';
    return naam.find_first_of("\\/") == Tekstblik::npos && !metStation && naam != "." &&
           naam != "..";
}

Fout GeenNaam(Tekstblik naam, std::string bestand)
{
    return {.soort = Foutsoort::Beschadigd,
            .bestand = std::move(bestand),
            .systeem = std::string("'").append(NaarUtf8(naam)) +
                       "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                       "'\\', 'C:' of '..' staan"};
}

Uitkomst<Tekst> LeesBegrensd(Schijf& schijf, const Pad& pad)
{
    constexpr std::uint64_t grootste = std::uint64_t{64} << 20U;
    const auto stempel = schijf.NeemStempel(pad);
    if (!stempel)
        return Mislukt(stempel);
    if (stempel->grootte > grootste)
        return Mislukt({.soort = Foutsoort::Beschadigd,
                        .bestand = schijf.Toonpad(pad),
                        .systeem = "het bestand is te groot: meer dan 64 MB"});
    return schijf.LeesBestand(pad);
}

Uitkomst<std::optional<Tekst>> LeesAlsErIs(Schijf& schijf, const Pad& pad)
{
    auto inhoud = AlsErIs(LeesBegrensd(schijf, pad));
    if (!inhoud && schijf.Soort(pad) == Padsoort::Map)
        return std::nullopt;
    return inhoud;
}

} // namespace plexoran
