#include "platform/schijf/heelschrijven.h"

#include <atomic>
#include <utility>

#include <QCoreApplication>

namespace plexoran {
namespace {

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
        Pad pad = doel;
        pad += kenmerk;
        pad += UniekNummer();
        auto schrijver = schijf.MaakNieuw(pad);
        if (schrijver)
            return Tijdelijk{std::move(pad), std::move(*schrijver)};
        const auto soort = schijf.Soort(pad);
        const bool bezet = soort && *soort != Padsoort::Niets;
        if (!bezet || poging == pogingen)
            return Mislukt(schrijver);
    }
}

/// Whether the new file must survive a loss of power as soon as it is written.
enum class Houdbaarheid { Vluchtig, Blijvend };

/// The old file's rights come before the contents, so that what few may read is never readable to
/// many, and so that they are synced along. Ends with the writer closed, also on a failure: an open
/// file cannot be removed everywhere.
Uitkomst<void> Vul(Schijf& schijf, Tijdelijk tijdelijk, const std::optional<Pad>& rechtenVan,
                   Tekstblik inhoud, Houdbaarheid houdbaarheid)
{
    Schrijver& schrijver = *tijdelijk.schrijver;
    const auto rechten =
        rechtenVan ? schijf.NeemRechtenOver(*rechtenVan, tijdelijk.pad) : Uitkomst<void>();
    return rechten.and_then([&] { return schrijver.Schrijf(inhoud); })
        .and_then([&] {
            return houdbaarheid == Houdbaarheid::Blijvend ? schrijver.Sync() : Uitkomst<void>();
        })
        .and_then([&] { return schrijver.Sluit(); });
}

Uitkomst<void> Vervang(Schijf& schijf, const Pad& pad, Tekstblik inhoud, Houdbaarheid houdbaarheid)
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

    const Pad nieuw = tijdelijk->pad;
    const auto oud = *soort == Padsoort::Niets ? std::nullopt : std::optional(*doel);
    auto geruild = Vul(schijf, std::move(*tijdelijk), oud, inhoud, houdbaarheid).and_then([&] {
        return schijf.Hernoem(nieuw, *doel);
    });
    if (!geruild) {
        // When this fails too, RuimTijdelijkeOp comes later; the first failure is the one to tell.
        static_cast<void>(schijf.Verwijder(nieuw));
        return geruild;
    }
    if (houdbaarheid == Houdbaarheid::Vluchtig)
        return {};
    return schijf.SyncMapVan(*doel).map_error([](Fout fout) {
        fout.soort = Foutsoort::NietVast;
        return fout;
    });
}

/// What failed may be a temporary file; the user knows the file by its own name.
Uitkomst<void> VervangOfMeld(Schijf& schijf, const Pad& pad, Tekstblik inhoud,
                             Houdbaarheid houdbaarheid)
{
    return Vervang(schijf, pad, inhoud, houdbaarheid).map_error([&](Fout fout) {
        fout.bestand = schijf.Toonpad(pad);
        return fout;
    });
}

} // namespace

Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, Tekstblik inhoud)
{
    return VervangOfMeld(schijf, pad, inhoud, Houdbaarheid::Blijvend);
}

Uitkomst<void> SchrijfVluchtig(Schijf& schijf, const Pad& pad, Tekstblik inhoud)
{
    return VervangOfMeld(schijf, pad, inhoud, Houdbaarheid::Vluchtig);
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
