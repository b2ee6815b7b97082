#include "platform/regels.h"

#include <algorithm>

namespace plexoran {

Stukken::Iterator::Iterator(Tekstblik rest, bool opKomma) : rest_(rest), opKomma_(opKomma)
{
    Volgend();
}

Stukken::Iterator& Stukken::Iterator::operator++()
{
    Volgend();
    return *this;
}

void Stukken::Iterator::Volgend()
{
    if (rest_.empty()) {
        klaar_ = true;
        return;
    }
    // Not find_first_of: that calls a function for every character.
    const auto waar = std::find_if(rest_.begin(), rest_.end(), [this](char teken) {
        return teken == '\n' || teken == '\r' || (opKomma_ && teken == ',');
    });
    const auto eind = static_cast<std::size_t>(waar - rest_.begin());
    stuk_ = rest_.substr(0, eind);
    if (eind == rest_.size()) {
        rest_ = {};
        return;
    }
    const bool paar = rest_.substr(eind, 2) == "\r\n";
    rest_.remove_prefix(eind + (paar ? 2 : 1));
}

Tekstblik EersteItem(Tekstblik inhoud)
{
    const auto items = Items(inhoud);
    const auto eerste = items.begin();
    return eerste == items.end() ? Tekstblik() : *eerste;
}

Tekstblik ZonderBlancoBegin(Tekstblik inhoud)
{
    for (const Tekstblik item : Items(inhoud)) {
        if (!IsBlanco(item))
            return inhoud.substr(static_cast<std::size_t>(item.data() - inhoud.data()));
    }
    return {};
}

bool IsLeeg(Tekstblik inhoud)
{
    return inhoud.find_first_not_of(" \r\n") == Tekstblik::npos;
}

} // namespace plexoran
