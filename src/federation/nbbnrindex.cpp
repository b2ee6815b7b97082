#include "federation/nbbnrindex.h"

#include <bit>

#include "platform/getal.h"
#include "platform/grootgeheugen.h"

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
    const std::size_t vakken = std::bit_ceil(2 * vragen.size() + 2);
    ReserveerGroot(stukken_, vakken);
    stukken_.resize(vakken);
    antwoord_.reserve(vragen.size());
    for (std::size_t i = 0; i < vragen.size(); ++i) {
        if (i + Vooruit < vragen.size())
            Kondig(vragen[i + Vooruit]);
        const Tekst& vraag = vragen[i];
        antwoord_.push_back(IsGewoon(vraag) ? PlantGewoon(StukVan(vraag)) : PlantVreemd(vraag));
    }
    VerbindTerug();
    if (knopen_[0].vraag != Geen)
        gezien_[knopen_[0].vraag] = true; // nothing occurs everywhere
}

std::uint32_t NBBnrIndex::Voeg(Tekstblik nummer)
{
    if (knopen_.size() == 1 && IsGewoon(nummer)) { // only its end can be an answer
        lengte_ = static_cast<int>(Stuklengte);
        laatste_ = StukVan(nummer);
        return ZieLaatste();
    }
    Lees('-');
    for (const char teken : nummer)
        Lees(teken);
    return Geen;
}

void NBBnrIndex::Kondig(Tekstblik nummer) const
{
    if (nummer.size() == Stuklengte)
        HaalAlvast(&stukken_[Begin(StukVan(nummer))]);
}

std::uint32_t NBBnrIndex::NieuwAntwoord()
{
    gezien_.push_back(false);
    return static_cast<std::uint32_t>(gezien_.size() - 1);
}

/// Where the search for the eight characters begins.
std::size_t NBBnrIndex::Begin(Stuk stuk) const
{
    // Mixes all bits, since the numbers differ in a few of them only.
    Stuk hash = stuk;
    hash = (hash ^ hash >> 30U) * 0xBF58476D1CE4E5B9U;
    hash = (hash ^ hash >> 27U) * 0x94D049BB133111EBU;
    hash ^= hash >> 31U;
    return hash & (stukken_.size() - 1);
}

/// Where the eight characters stand in the table, or the free place where they belong.
std::size_t NBBnrIndex::Vak(Stuk stuk) const
{
    std::size_t vak = Begin(stuk);
    while (stukken_[vak].stuk != 0 && stukken_[vak].stuk != stuk)
        vak = (vak + 1) & (stukken_.size() - 1);
    return vak;
}

std::uint32_t NBBnrIndex::PlantGewoon(Stuk stuk)
{
    Plek& plek = stukken_[Vak(stuk)];
    if (plek.stuk == 0)
        plek = {stuk, NieuwAntwoord()};
    return plek.antwoord;
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
    if (lengte_ == vol && laatste_ != 0)
        ZieLaatste();
}

std::uint32_t NBBnrIndex::ZieLaatste()
{
    const Plek& plek = stukken_[Vak(laatste_)];
    if (plek.stuk == 0)
        return Geen;
    gezien_[plek.antwoord] = true;
    return plek.antwoord;
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
