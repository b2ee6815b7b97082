#include "register/waardenlijst.h"

#include <algorithm>

namespace plexoran {
namespace {

std::vector<Tekst> Knip(Tekstblik waarde)
{
    std::vector<Tekst> delen;
    for (;;) {
        const auto hekje = waarde.find('#');
        delen.emplace_back(waarde.substr(0, hekje));
        if (hekje == Tekstblik::npos)
            return delen;
        waarde.remove_prefix(hekje + 1);
    }
}

} // namespace

void Hekjestekst::Voeg(Tekstblik waarde)
{
    for (const Tekst& deel : Knip(waarde))
        VoegDeelToe(deel);
    VoegDeelToe({}); // between the closing mark of this value and the opening one of the next
}

void Hekjestekst::VoegDeelToe(const Tekst& deel)
{
    plaatsen_[deel].push_back(delen_.size());
    delen_.push_back(deel);
}

/// Looks where the rarest part of the value stands.
bool Hekjestekst::Bevat(Tekstblik waarde) const
{
    const std::vector<Tekst> delen = Knip(waarde);
    const std::vector<std::size_t>* zeldzaamst = nullptr;
    std::size_t anker = 0;
    for (std::size_t i = 0; i < delen.size(); ++i) {
        const auto plaatsen = plaatsen_.find(delen[i]);
        if (plaatsen == plaatsen_.end())
            return false;
        if (zeldzaamst == nullptr || plaatsen->second.size() < zeldzaamst->size()) {
            zeldzaamst = &plaatsen->second;
            anker = i;
        }
    }
    return std::any_of(zeldzaamst->begin(), zeldzaamst->end(), [&](std::size_t plaats) {
        return plaats > anker && StaatOp(delen, plaats - anker);
    });
}

/// The first and last part of the running text lack a mark before or behind them.
bool Hekjestekst::StaatOp(const std::vector<Tekst>& delen, std::size_t begin) const
{
    return begin + delen.size() < delen_.size() &&
           std::equal(delen.begin(), delen.end(),
                      delen_.begin() + static_cast<std::ptrdiff_t>(begin));
}

void Waardenlijst::Voeg(const Tekst& waarde)
{
    if (gezien_.Bevat(waarde))
        return;
    gezien_.Voeg(waarde);
    waarden_.push_back(waarde);
}

} // namespace plexoran
