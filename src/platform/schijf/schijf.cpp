#include "platform/schijf/schijf.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <thread>
#include <utility>

#include <QCoreApplication>
#include <QDateTime>

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

/// Between the name of the file and digits. Nobody else's files are named so.
constexpr Tekstblik kenmerk = ".~plexoran";

bool IsTijdelijk(Tekstblik naam)
{
    const auto plek = naam.rfind(kenmerk);
    return plek != Tekstblik::npos && plek + kenmerk.size() < naam.size() &&
           naam.find_first_not_of("0123456789", plek + kenmerk.size()) == Tekstblik::npos;
}

/// Digits that no other save uses at this moment; those of a killed program may come back.
Tekst UniekNummer()
{
    static std::atomic<unsigned> teller = 0;
    constexpr unsigned rond = 10'000;
    return MetNullen(QCoreApplication::applicationPid(), 1) + MetNullen(++teller % rond, 4);
}

struct Tijdelijk {
    Pad pad;
    std::unique_ptr<Schrijver> schrijver;
};

Uitkomst<Tijdelijk> MaakTijdelijk(Schijf& schijf, const Pad& doel)
{
    constexpr int pogingen = 100;
    for (int poging = 1;; ++poging) {
        Pad pad = Pad(doel).append(kenmerk).append(UniekNummer());
        auto schrijver = schijf.MaakNieuw(pad);
        if (schrijver)
            return Tijdelijk{std::move(pad), std::move(*schrijver)};
        const auto soort = schijf.Soort(pad);
        const bool bezet = soort && *soort != Padsoort::Niets;
        if (!bezet || poging == pogingen)
            return Mislukt(schrijver);
    }
}

/// Does `werk` while a file stands beside `bestand` that only one program at a time can make. It is
/// told how to see whether that is so still: who takes long may be taken for killed.
Uitkomst<void> OnderSlot(Schijf& schijf, const Pad& bestand,
                         const std::function<Uitkomst<void>(const std::function<bool()>&)>& werk)
{
    constexpr int pogingen = 60;
    const Pad slot = Pad(bestand).append(kenmerk).append("0");
    std::optional<Stempel> gezien; // of the lock that is waited for
    int poging = 0;
    int raadsels = 0; // refusals without a lock: it may have gone just then, but not every time
    for (;;) {
        const auto gemaakt = schijf.MaakNieuw(slot);
        if (gemaakt)
            break;
        const auto stempel = schijf.NeemStempel(slot);
        raadsels = stempel ? 0 : raadsels + 1;
        if (raadsels == 5 || poging == 2 * pogingen)
            return Mislukt(gemaakt);
        if (stempel && gezien != *stempel) {
            gezien = *stempel;
            poging = 0;
        }
        if (++poging == pogingen) // a killed program left it: nobody holds it this long
            static_cast<void>(schijf.Verwijder(slot));
        else
            std::this_thread::sleep_for(Slotpoos);
    }
    const auto eigen = schijf.NeemStempel(slot);
    const auto isVanOns = [&] {
        const auto nu = schijf.NeemStempel(slot);
        return !eigen || (nu ? *nu == *eigen : nu.error().soort != Foutsoort::Ontbreekt);
    };
    auto uitkomst = werk(isVanOns);
    if (isVanOns() && !schijf.Verwijder(slot))
        static_cast<void>(schijf.Verwijder(slot)); // when this fails too, the next one waits
    return uitkomst;
}

/// How the new file takes the place of the old one, whose path without links it is given.
using Ruil = std::function<Uitkomst<void>(const Pad& nieuw, const Pad& doel)>;

Uitkomst<void> VulEnRuil(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                         Houdbaarheid houdbaarheid, const Ruil& ruil)
{
    const auto doel = schijf.Doel(pad);
    if (!doel)
        return Mislukt(doel);
    const auto soort = schijf.Soort(*doel);
    if (!soort)
        return Mislukt(soort);
    auto tijdelijk = MaakTijdelijk(schijf, *doel);
    if (!tijdelijk)
        return Mislukt(tijdelijk);

    // The old file's rights come before the contents, so that what few may read is never readable
    // to many, and so that they are synced along.
    const Uitkomst<void> gelukt;
    const bool blijvend = houdbaarheid == Houdbaarheid::Blijvend;
    const Pad& nieuw = tijdelijk->pad;
    Schrijver& schrijver = *tijdelijk->schrijver;
    auto geruild = (*soort == Padsoort::Niets ? gelukt : schijf.NeemRechtenOver(*doel, nieuw))
                       .and_then([&] { return schrijver.Schrijf(inhoud); })
                       .and_then([&] { return blijvend ? schrijver.Sync() : gelukt; })
                       .and_then([&] { return schrijver.Sluit(); });
    tijdelijk->schrijver.reset(); // an open file cannot be removed everywhere
    if (geruild)
        geruild = ruil(nieuw, *doel);
    if (!geruild) {
        // When this fails too, RuimTijdelijkeOp comes later; the first failure is the one to tell.
        static_cast<void>(schijf.Verwijder(nieuw));
        return geruild;
    }
    return (blijvend ? schijf.SyncMapVan(*doel) : gelukt).map_error([](Fout fout) {
        fout.soort = Foutsoort::NietVast;
        return fout;
    });
}

/// What failed may be a temporary file; the user knows the file by its own name.
Uitkomst<void> Vervang(Schijf& schijf, const Pad& pad, Tekstblik inhoud, Houdbaarheid houdbaarheid,
                       const Ruil& ruil)
{
    return VulEnRuil(schijf, pad, inhoud, houdbaarheid, ruil).map_error([&](Fout fout) {
        fout.bestand = schijf.Toonpad(pad);
        return fout;
    });
}

} // namespace

std::string Systeemmelding(const std::error_code& code)
{
    for (const auto& [fout, woorden] : Bekend) {
        if (code == fout)
            return woorden;
    }
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

Tekst GeweigerdeTekens(Tekstblik naam)
{
    constexpr Tekstblik verboden = "\\/:*?\"<>|";
    Tekst tekens;
    for (const char teken : naam) {
        const bool stuurteken = static_cast<unsigned char>(teken) < 0x20;
        if ((stuurteken || verboden.find(teken) != Tekstblik::npos) &&
            tekens.find(teken) == Tekst::npos)
            tekens += teken;
    }
    return tekens;
}

Fout GeenNaam(Tekstblik naam, std::string bestand)
{
    return {.soort = Foutsoort::Beschadigd,
            .bestand = std::move(bestand),
            .systeem = std::string("'").append(NaarUtf8(naam)) +
                       "' kan niet de naam van een bestand of map zijn: daarin mogen geen '/', "
                       "'\\', 'C:' of '..' staan"};
}

Tekst AlsBestandsnaam(Tekst tekst)
{
    const auto gewoon = [](char teken) {
        return (teken >= 'a' && teken <= 'z') || (teken >= 'A' && teken <= 'Z') ||
               (teken >= '0' && teken <= '9') || teken == '-';
    };
    std::replace_if(tekst.begin(), tekst.end(), std::not_fn(gewoon), '_');
    return tekst;
}

Fout TeGroot(std::string bestand)
{
    return {.soort = Foutsoort::Beschadigd,
            .bestand = std::move(bestand),
            .systeem = "het bestand is te groot: meer dan 64 MB"};
}

Uitkomst<Tekst> Schijf::LeesBegrensd(const Pad& pad)
{
    const auto stempel = NeemStempel(pad);
    if (!stempel)
        return Mislukt(stempel);
    if (stempel->grootte > GrootsteBestand)
        return Mislukt(TeGroot(Toonpad(pad)));
    return LeesBestand(pad);
}

Uitkomst<std::optional<Tekst>> LeesAlsErIs(Schijf& schijf, const Pad& pad)
{
    auto inhoud = AlsErIs(LeesBegrensd(schijf, pad));
    if (!inhoud && schijf.Soort(pad) == Padsoort::Map)
        return std::nullopt;
    return inhoud;
}

Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                           Houdbaarheid houdbaarheid)
{
    const auto ruil = [&](const Pad& nieuw, const Pad& doel) {
        return schijf.Hernoem(nieuw, doel);
    };
    return Vervang(schijf, pad, inhoud, houdbaarheid, ruil);
}

Uitkomst<void> VervangOngewijzigd(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                                  const std::optional<Tekst>& oud)
{
    const auto ruil = [&](const Pad& nieuw, const Pad& doel) {
        return OnderSlot(schijf, doel, [&](const auto& isVanOns) -> Uitkomst<void> {
            const auto zelfde = AlsErIs(schijf.Houdt(doel, oud ? *oud : Tekstblik()));
            if (!zelfde)
                return Mislukt(zelfde);
            if (*zelfde && !(oud && **zelfde))
                return Mislukt({.soort = Foutsoort::Gewijzigd});
            if (schijf.DeGetuige() != nullptr)
                schijf.DeGetuige()->VoorVervanging(pad, inhoud);
            if (!isVanOns())
                return Mislukt({.soort = Foutsoort::Gewijzigd});
            return schijf.Hernoem(nieuw, doel);
        });
    };
    return Vervang(schijf, pad, inhoud, Houdbaarheid::Blijvend, ruil);
}

Uitkomst<void> Herschrijf(Schijf& schijf, const Pad& pad,
                          const std::function<std::optional<Tekst>(const Tekst& inhoud)>& maak)
{
    constexpr int pogingen = 20;
    for (int poging = 1;; ++poging) {
        const auto inhoud = LeesAlsErIs(schijf, pad);
        if (!inhoud)
            return Mislukt(inhoud);
        const auto nieuw = *inhoud ? maak(**inhoud) : std::nullopt;
        const auto geschreven =
            nieuw ? VervangOngewijzigd(schijf, pad, *nieuw, *inhoud) : Uitkomst<void>();
        if (geschreven || geschreven.error().soort != Foutsoort::Gewijzigd || poging == pogingen)
            return geschreven;
    }
}

Uitkomst<void> VerwijderBlijvend(Schijf& schijf, const Pad& pad)
{
    if (schijf.DeGetuige() != nullptr)
        schijf.DeGetuige()->VoorVervanging(pad, std::nullopt);
    return schijf.Verwijder(pad);
}

constexpr std::int64_t perMilliseconde = 1'000'000;

std::int64_t Nu()
{
    return QDateTime::currentMSecsSinceEpoch() * perMilliseconde;
}

Tekst Tijdtekst(const char* vorm, std::int64_t tijd)
{
    return QDateTime::fromMSecsSinceEpoch(tijd / perMilliseconde)
        .toString(QString::fromLatin1(vorm))
        .toStdString();
}

void RuimTijdelijkeOp(Schijf& schijf, const Pad& map, Tekstblik naam, std::int64_t nu)
{
    if (map.empty())
        return;
    // A save of a link works in the folder of what it leads to.
    const auto doel = schijf.Doel(Samen(map, naam));
    if (!doel)
        return;
    const Pad doelmap = doel->substr(0, doel->find_last_of("\\/"));
    const auto bestanden = schijf.Bestanden(doelmap);
    if (!bestanden)
        return;
    constexpr std::int64_t uur = 3'600'000'000'000;
    for (const Tekst& bestand : *bestanden) {
        if (!IsTijdelijk(bestand))
            continue;
        const Pad pad = Samen(doelmap, bestand);
        const auto stempel = schijf.NeemStempel(pad);
        if (stempel && stempel->tijd < nu - uur)
            static_cast<void>(schijf.Verwijder(pad));
    }
}

} // namespace plexoran
