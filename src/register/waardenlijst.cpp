#include "register/waardenlijst.h"

namespace plexoran {

void Hekjestekst::Voeg(Tekstblik waarde)
{
    if (!tekst_.empty())
        delen_.emplace(); // between the closing mark of one value and the opening one of the next
    tekst_.append("#").append(waarde) += '#';
    for (;;) {
        const auto hekje = waarde.find('#');
        delen_.emplace(waarde.substr(0, hekje));
        if (hekje == Tekstblik::npos)
            return;
        waarde.remove_prefix(hekje + 1);
    }
}

bool Hekjestekst::Bevat(const Tekst& waarde) const
{
    // Looked up where that will do, so that many values cost no search each.
    return waarde.find('#') == Tekst::npos ? delen_.contains(waarde)
                                           : tekst_.find("#" + waarde + "#") != Tekst::npos;
}

void Waardenlijst::Voeg(const Tekst& waarde)
{
    if (gezien_.Bevat(waarde))
        return;
    gezien_.Voeg(waarde);
    waarden_.push_back(waarde);
}

} // namespace plexoran
