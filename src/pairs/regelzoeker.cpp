#include "pairs/regelzoeker.h"

#include "pairs/paarregel.h"

namespace plexoran {

Regelzoeker::Regelzoeker(std::span<const Tekst> regels, const Paartekens& paren)
    : weg_(regels.size())
{
    for (const Tekst& paar : paren) {
        regelsMet_[Eerste6(paar)];
        regelsMet_[Laatste6(paar)];
    }
    for (std::size_t i = regels.size(); i-- > 0;) {
        const Tekstblik regel = regels[i];
        for (std::size_t begin = 0; begin + Sleutellengte <= regel.size(); ++begin) {
            const auto plek = regelsMet_.find(regel.substr(begin, Sleutellengte));
            if (plek != regelsMet_.end())
                plek->second.push_back(static_cast<int>(i));
        }
    }
}

int Regelzoeker::NeemEerste(Tekstblik key)
{
    std::vector<int>& plaatsen = regelsMet_.at(key);
    while (!plaatsen.empty()) {
        const int plaats = plaatsen.back();
        plaatsen.pop_back();
        const auto regel = static_cast<std::size_t>(plaats);
        if (!weg_[regel]) {
            weg_[regel] = true;
            return plaats;
        }
    }
    return -1;
}

} // namespace plexoran
