#include "federation/nbbnrindex.h"

#include <algorithm>

#include "platform/tekst/getal.h"

namespace plexoran {

Tekst OpgemaaktNBBnr(Tekstblik nummer)
{
    constexpr std::size_t cijfers = 8;
    auto getal = AlsGetal(nummer, cijfers);
    return getal ? std::move(*getal) : Tekst(nummer);
}

NBBnrIndex::NBBnrIndex(const std::vector<Tekst>& vragen)
{
    gezien_.reserve(vragen.size());
    for (const Tekst& vraag : vragen) {
        if (vraag.size() <= Langste) {
            gezien_.emplace(vraag, vraag.empty()); // nothing occurs everywhere
            lengten_.insert(vraag.size());
            metStreep_ = metStreep_ || vraag.find('-') != Tekst::npos;
        }
    }
    lengten_.erase(0);
}

bool NBBnrIndex::Bevat(Tekstblik vraag) const
{
    return vraag.size() > Langste ? tekst_.find(vraag) != Tekst::npos : gezien_.at(vraag);
}

void NBBnrIndex::Voeg(Tekstblik nummer)
{
    const std::size_t begin = tekst_.size() + 1;
    tekst_ += '-';
    tekst_ += nummer;
    for (const std::size_t lengte : lengten_) {
        // As a rule nothing that is asked can reach across the "-".
        const std::size_t eerste = metStreep_ ? std::max(lengte, begin) : begin + lengte;
        for (std::size_t eind = eerste; eind <= tekst_.size(); ++eind) {
            const auto plek = gezien_.find(Tekstblik(tekst_).substr(eind - lengte, lengte));
            if (plek != gezien_.end())
                plek->second = true;
        }
    }
}

} // namespace plexoran
