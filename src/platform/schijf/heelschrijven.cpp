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
    const auto plaats = naam.rfind(kenmerk);
    return plaats != Tekstblik::npos && plaats + kenmerk.size() < naam.size() &&
           naam.find_first_not_of("0123456789", plaats + kenmerk.size()) == Tekstblik::npos;
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
            return tl::unexpected(schrijver.error());
    }
}

/// Whether the new file must survive a loss of power as soon as it is written.
enum class Houdbaarheid { Vluchtig, Blijvend };

/// Ends with the writer closed, also on a failure: an open file cannot be removed everywhere.
Uitkomst<void> VulEnSluit(std::unique_ptr<Schrijver> schrijver, const Vuller& vul,
                          Houdbaarheid houdbaarheid)
{
    const auto sync = [&] {
        return houdbaarheid == Houdbaarheid::Blijvend ? schrijver->Sync() : Uitkomst<void>();
    };
    return vul(*schrijver).and_then(sync).and_then([&] { return schrijver->Sluit(); });
}

/// The old file's rights come before the contents, so that what few may read is never readable to
/// many, and so that they are synced along.
Uitkomst<void> VulEnRuil(Schijf& schijf, Tijdelijk& tijdelijk, const Pad& doel, bool vervangt,
                         const Vuller& vul, Houdbaarheid houdbaarheid)
{
    std::unique_ptr<Schrijver> schrijver = std::move(tijdelijk.schrijver);
    Uitkomst<void> rechten;
    if (vervangt)
        rechten = schijf.NeemRechtenOver(doel, tijdelijk.pad);
    return rechten.and_then([&] { return VulEnSluit(std::move(schrijver), vul, houdbaarheid); })
        .and_then([&] { return schijf.Hernoem(tijdelijk.pad, doel); });
}

Uitkomst<void> Vervang(Schijf& schijf, const Pad& pad, const Vuller& vul, Houdbaarheid houdbaarheid)
{
    const auto doel = schijf.Doel(pad);
    if (!doel)
        return tl::unexpected(doel.error());
    const auto soort = schijf.Soort(*doel);
    if (!soort)
        return tl::unexpected(soort.error());
    auto tijdelijk = MaakTijdelijk(schijf, *doel);
    if (!tijdelijk)
        return tl::unexpected(tijdelijk.error());

    const bool vervangt = *soort != Padsoort::Niets;
    auto geruild = VulEnRuil(schijf, *tijdelijk, *doel, vervangt, vul, houdbaarheid);
    if (!geruild) {
        // When this fails too, RuimTijdelijkeOp comes later; the first failure is the one to tell.
        static_cast<void>(schijf.Verwijder(tijdelijk->pad));
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
Uitkomst<void> VervangOfMeld(Schijf& schijf, const Pad& pad, const Vuller& vul,
                             Houdbaarheid houdbaarheid)
{
    return Vervang(schijf, pad, vul, houdbaarheid).map_error([&](Fout fout) {
        fout.bestand = schijf.Toonpad(pad);
        return fout;
    });
}

} // namespace

Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, Tekstblik inhoud)
{
    return SchrijfHeel(schijf, pad,
                       [inhoud](Schrijver& schrijver) { return schrijver.Schrijf(inhoud); });
}

Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, const Vuller& vul)
{
    return VervangOfMeld(schijf, pad, vul, Houdbaarheid::Blijvend);
}

Uitkomst<void> SchrijfVluchtig(Schijf& schijf, const Pad& pad, Tekstblik inhoud)
{
    return VervangOfMeld(
        schijf, pad, [inhoud](Schrijver& schrijver) { return schrijver.Schrijf(inhoud); },
        Houdbaarheid::Vluchtig);
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
