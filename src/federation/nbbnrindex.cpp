#include "federation/nbbnrindex.h"

#include <bit>

#include "platform/getal.h"

namespace plexoran {
namespace {

constexpr std::size_t Stuklengte = 8;
constexpr std::size_t AantalTekens = 256;

std::uint64_t StukVan(Tekstblik tekst)
{
    std::uint64_t stuk = 0;
    for (const char teken : tekst)
        stuk = stuk << 8U | static_cast<unsigned char>(teken);
    return stuk;
}

/// Eight null characters would look like a free place; they are kept with the unusual ones.
bool IsGewoon(Tekstblik vraag)
{
    return vraag.size() == Stuklengte && vraag.find('-') == Tekstblik::npos && StukVan(vraag) != 0;
}

} // namespace

Tekst OpgemaaktNBBnr(Tekstblik nummer)
{
    auto getal = AlsGetal(nummer, Stuklengte);
    return getal ? std::move(*getal) : Tekst(nummer);
}

NBBnrIndex::NBBnrIndex(const std::vector<Tekst>& vragen) : wortel_(AantalTekens, Geen)
{
    stukken_.resize(std::bit_ceil(2 * vragen.size() + 2));
    stukAntwoord_.resize(stukken_.size());
    antwoord_.reserve(vragen.size());
    for (const Tekst& vraag : vragen)
        antwoord_.push_back(IsGewoon(vraag) ? PlantGewoon(StukVan(vraag)) : PlantVreemd(vraag));
    VerbindTerug();
    if (knopen_[0].vraag != Geen)
        gezien_[knopen_[0].vraag] = true; // nothing occurs everywhere
}

void NBBnrIndex::Voeg(Tekstblik nummer)
{
    Lees('-');
    for (const char teken : nummer)
        Lees(teken);
}

std::uint32_t NBBnrIndex::NieuwAntwoord()
{
    gezien_.push_back(false);
    return static_cast<std::uint32_t>(gezien_.size() - 1);
}

/// Where the eight characters stand in the table, or the free place where they belong.
std::size_t NBBnrIndex::Vak(Stuk stuk) const
{
    // Mixes all bits, since the numbers differ in a few of them only.
    Stuk hash = stuk;
    hash = (hash ^ hash >> 30U) * 0xBF58476D1CE4E5B9U;
    hash = (hash ^ hash >> 27U) * 0x94D049BB133111EBU;
    hash ^= hash >> 31U;
    std::size_t vak = hash & (stukken_.size() - 1);
    while (stukken_[vak] != 0 && stukken_[vak] != stuk)
        vak = (vak + 1) & (stukken_.size() - 1);
    return vak;
}

std::uint32_t NBBnrIndex::PlantGewoon(Stuk stuk)
{
    const std::size_t vak = Vak(stuk);
    if (stukken_[vak] == 0) {
        stukken_[vak] = stuk;
        stukAntwoord_[vak] = NieuwAntwoord();
    }
    return stukAntwoord_[vak];
}

std::uint32_t NBBnrIndex::Kind(std::uint32_t knoop, unsigned char teken) const
{
    if (knoop == 0)
        return wortel_[teken];
    std::uint32_t kind = knopen_[knoop].kind;
    while (kind != Geen && knopen_[kind].teken != teken)
        kind = knopen_[kind].broer;
    return kind;
}

std::uint32_t NBBnrIndex::PlantVreemd(Tekstblik vraag)
{
    std::uint32_t knoop = 0;
    for (const char c : vraag) {
        const auto teken = static_cast<unsigned char>(c);
        std::uint32_t kind = Kind(knoop, teken);
        if (kind == Geen) {
            kind = static_cast<std::uint32_t>(knopen_.size());
            knopen_.push_back({.teken = teken, .broer = knopen_[knoop].kind});
            knopen_[knoop].kind = kind;
            if (knoop == 0)
                wortel_[teken] = kind;
        }
        knoop = kind;
    }
    if (knopen_[knoop].vraag == Geen)
        knopen_[knoop].vraag = NieuwAntwoord();
    return knopen_[knoop].vraag;
}

/// The node in which reading this character ends.
std::uint32_t NBBnrIndex::Volgende(std::uint32_t knoop, unsigned char teken) const
{
    for (;;) {
        const std::uint32_t kind = Kind(knoop, teken);
        if (kind != Geen)
            return kind;
        if (knoop == 0)
            return 0;
        knoop = knopen_[knoop].terug;
    }
}

/// Level by level, since a way back leads to a shorter beginning.
void NBBnrIndex::VerbindTerug()
{
    std::vector<std::uint32_t> rij{0};
    rij.reserve(knopen_.size());
    for (std::size_t i = 0; i < rij.size(); ++i) {
        const std::uint32_t ouder = rij[i];
        for (auto kind = knopen_[ouder].kind; kind != Geen; kind = knopen_[kind].broer) {
            Knoop& knoop = knopen_[kind];
            knoop.terug = ouder == 0 ? 0 : Volgende(knopen_[ouder].terug, knoop.teken);
            const Knoop& terug = knopen_[knoop.terug];
            knoop.uitkomst = terug.vraag != Geen ? knoop.terug : terug.uitkomst;
            rij.push_back(kind);
        }
    }
}

void NBBnrIndex::Lees(char teken)
{
    LeesGewoon(teken);
    if (knopen_.size() > 1)
        LeesVreemd(static_cast<unsigned char>(teken));
}

void NBBnrIndex::LeesGewoon(char teken)
{
    constexpr int vol = static_cast<int>(Stuklengte);
    lengte_ = teken == '-' ? 0 : std::min(lengte_ + 1, vol);
    laatste_ = laatste_ << 8U | static_cast<unsigned char>(teken);
    if (lengte_ < vol || laatste_ == 0)
        return;
    const std::size_t vak = Vak(laatste_);
    if (stukken_[vak] != 0)
        gezien_[stukAntwoord_[vak]] = true;
}

void NBBnrIndex::LeesVreemd(unsigned char teken)
{
    stand_ = Volgende(stand_, teken);
    std::uint32_t knoop = stand_;
    if (knopen_[knoop].vraag == Geen)
        knoop = knopen_[knoop].uitkomst;
    // What was seen before brought all behind it along.
    while (knoop != Geen && knoop != 0 && !gezien_[knopen_[knoop].vraag]) {
        gezien_[knopen_[knoop].vraag] = true;
        knoop = knopen_[knoop].uitkomst;
    }
}

} // namespace plexoran
