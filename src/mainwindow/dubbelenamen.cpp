#include "mainwindow/dubbelenamen.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>
#include <numeric>

namespace plexoran {
namespace {

/// In a text that is used again, for the sake of its memory.
const Tekst& ZetVolleNaam(Tekst& naam, const Spelertabel& tabel, int rij)
{
    naam = tabel.Cel(rij, Kolom::Voornaam);
    naam += tabel.Cel(rij, Kolom::Tusv);
    naam += tabel.Cel(rij, Kolom::Achternaam);
    return naam;
}

/// Puts hashes in order: dealt out by their top bits over drawers of some, which are then sorted.
std::vector<std::uint64_t> Gesorteerd(const std::vector<std::uint64_t>& hashes)
{
    constexpr std::size_t perLade = 16;
    const auto bits = static_cast<unsigned>(std::bit_width(hashes.size() / perLade + 1));
    const auto lade = [=](std::uint64_t hash) {
        return static_cast<std::size_t>(hash >> (64U - bits));
    };
    std::vector<std::size_t> eind((std::size_t{1} << bits) + 1);
    for (const std::uint64_t hash : hashes)
        ++eind[lade(hash) + 1];
    std::partial_sum(eind.begin(), eind.end(), eind.begin());

    std::vector<std::uint64_t> uit(hashes.size());
    for (const std::uint64_t hash : hashes)
        uit[eind[lade(hash)]++] = hash;
    auto begin = uit.begin();
    for (const std::size_t tot : eind) {
        const auto einde = uit.begin() + static_cast<std::ptrdiff_t>(tot);
        std::sort(begin, einde);
        begin = einde;
    }
    return uit;
}

/// Every row behind the hash of its name, sorted, so that namesakes lie together in table order.
/// A hash table would be read all over for every row, far outside the processor's caches.
std::vector<std::uint64_t> RijenOpNaam(const Spelertabel& tabel)
{
    std::vector<std::uint64_t> rijen;
    rijen.reserve(static_cast<std::size_t>(tabel.Rijen()));
    Tekst naam;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const std::uint64_t hash = std::hash<Tekst>()(ZetVolleNaam(naam, tabel, rij));
        rijen.push_back(hash << 32U | static_cast<std::uint32_t>(rij));
    }
    return Gesorteerd(rijen);
}

/// Per row the next one with the same name; 0 for the last of its name.
std::vector<int> VolgendeNaamgenoten(const Spelertabel& tabel)
{
    const std::vector<std::uint64_t> rijen = RijenOpNaam(tabel);
    std::vector<int> volgende(rijen.size() + 1, 0);
    const auto rijVan = [](std::uint64_t element) {
        return static_cast<int>(element & 0xFFFFFFFF);
    };
    Tekst naam;
    Tekst andere;
    for (auto een = rijen.begin(); een != rijen.end(); ++een) {
        const auto verder = std::next(een);
        if (verder == rijen.end() || *verder >> 32U != *een >> 32U)
            continue;
        ZetVolleNaam(naam, tabel, rijVan(*een));
        // Another name can have the same hash.
        const auto volgend = std::find_if(verder, rijen.end(), [&](std::uint64_t ander) {
            return ander >> 32U != *een >> 32U ||
                   ZetVolleNaam(andere, tabel, rijVan(ander)) == naam;
        });
        if (volgend != rijen.end() && *volgend >> 32U == *een >> 32U)
            volgende[static_cast<std::size_t>(rijVan(*een))] = rijVan(*volgend);
    }
    return volgende;
}

} // namespace

Dubbelen ZoekDubbeleNamen(const Spelertabel& tabel, Tekstblik groepscode)
{
    const std::vector<int> volgende = VolgendeNaamgenoten(tabel);
    Dubbelen dubbelen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (volgende[static_cast<std::size_t>(rij)] == 0 ||
            tabel.Cel(rij, Kolom::Groep) != groepscode)
            continue;
        for (int latere = volgende[static_cast<std::size_t>(rij)]; latere != 0;
             latere = volgende[static_cast<std::size_t>(latere)]) {
            if (dubbelen.paren.size() == MeesteDubbelen) {
                dubbelen.meer = true;
                return dubbelen;
            }
            dubbelen.paren.push_back({rij, latere});
        }
    }
    return dubbelen;
}

} // namespace plexoran
