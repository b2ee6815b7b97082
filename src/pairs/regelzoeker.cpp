#include "pairs/regelzoeker.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>

namespace plexoran {
namespace {

constexpr std::size_t Zes = 6;

bool IsCijfer(char teken)
{
    return teken >= '0' && teken <= '9';
}

std::uint64_t Code(const char* tekens)
{
    std::uint64_t code = 0;
    std::memcpy(&code, tekens, Zes);
    return code;
}

/// Calls `deel` with each place in the text at which six digits begin.
template <class Deel> void LoopDoorCijfers(Tekstblik regel, const Deel& deel)
{
    // A row of six digits holds one of every six places.
    for (std::size_t i = Zes - 1; i < regel.size(); i += Zes) {
        if (!IsCijfer(regel[i]))
            continue;
        std::size_t begin = i;
        while (begin > 0 && IsCijfer(regel[begin - 1]))
            --begin;
        while (i < regel.size() && IsCijfer(regel[i]))
            ++i;
        for (; begin + Zes <= i; ++begin)
            deel(regel.data() + begin);
    }
}

/// Calls `deel` with each place at which six characters begin.
template <class Deel> void LoopDoorAlles(Tekstblik regel, const Deel& deel)
{
    for (std::size_t begin = 0; begin + Zes <= regel.size(); ++begin)
        deel(regel.data() + begin);
}

} // namespace

Regelzoeker::Regelzoeker(std::span<const Tekstblik> regels) : regels_(regels), weg_(regels.size())
{
    cijfers_.Bouw(regels_, true);
}

int Regelzoeker::NeemEerste(Tekstblik zes)
{
    assert(zes.size() == Zes);
    const bool sleutel = std::all_of(zes.begin(), zes.end(), IsCijfer);
    if (!sleutel && !alles_.Gebouwd())
        alles_.Bouw(regels_, false);
    const int regel = (sleutel ? cijfers_ : alles_).Eerste(zes, weg_);
    if (regel >= 0)
        weg_[static_cast<std::size_t>(regel)] = true;
    return regel;
}

void Regelzoeker::Wijzer::Bouw(std::span<const Tekstblik> regels, bool alleenCijfers)
{
    delen_.reserve(regels.size());
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const auto voegToe = [&](const char* tekens) {
            delen_.push_back({Code(tekens), static_cast<int>(i), -1});
        };
        if (alleenCijfers)
            LoopDoorCijfers(regels[i], voegToe);
        else
            LoopDoorAlles(regels[i], voegToe);
    }
    emmers_.assign(std::bit_ceil(delen_.size() + 1), -1);
    // From the last to the first, so that each bucket holds its lines from the top down.
    for (std::size_t i = delen_.size(); i-- > 0;) {
        int& eerste = emmers_[Emmer(delen_[i].zes)];
        delen_[i].volgende = eerste;
        eerste = static_cast<int>(i);
    }
}

std::size_t Regelzoeker::Wijzer::Emmer(std::uint64_t zes) const
{
    constexpr std::uint64_t gulden = 0x9E3779B97F4A7C15U; // spreads what differs in a few bits
    constexpr unsigned hoogsteHelft = 32;
    return static_cast<std::size_t>((zes * gulden) >> hoogsteHelft) & (emmers_.size() - 1);
}

int Regelzoeker::Wijzer::Eerste(Tekstblik zes, const std::vector<bool>& weg)
{
    const std::uint64_t code = Code(zes.data());
    int* wijst = &emmers_[Emmer(code)];
    while (*wijst >= 0) {
        Deel& deel = delen_[static_cast<std::size_t>(*wijst)];
        if (weg[static_cast<std::size_t>(deel.regel)])
            *wijst = deel.volgende;
        else if (deel.zes == code)
            return deel.regel;
        else
            wijst = &deel.volgende;
    }
    return -1;
}

} // namespace plexoran
