#include "sessions/tafelparen.h"

#include <algorithm>

#include "platform/tekst/getal.h"

namespace plexoran {
namespace {

constexpr std::size_t LengteCode = 3;

bool ZijnCijfers(Tekstblik tekst)
{
    return !tekst.empty() && std::all_of(tekst.begin(), tekst.end(), IsCijfer);
}

} // namespace

std::optional<Helften> SplitsHelften(Tekstblik spelers)
{
    const auto streep = spelers.find('-');
    if (streep == Tekstblik::npos)
        return std::nullopt;
    return Helften{ZonderSpaties(spelers.substr(0, streep)),
                   ZonderSpaties(spelers.substr(streep + 1))};
}

bool IsZwevend(Tekstblik helft)
{
    return !helft.empty() && !ZijnCijfers(helft);
}

std::optional<Tekst> MetKey(const Helften& helften, Tekstblik naam, Tekstblik key)
{
    if (helften.eerste != naam && helften.tweede != naam)
        return std::nullopt;
    Tekst uit(helften.eerste == naam ? key : helften.eerste);
    uit += " - ";
    uit += helften.tweede == naam ? key : helften.tweede;
    return uit;
}

std::optional<Lijstpaar> PaarUit(Tekstblik item)
{
    const Tekstblik tekst = ZonderSpaties(item);
    if (tekst.empty())
        return std::nullopt;
    return Lijstpaar{tekst.substr(0, LengteCode),
                     ZonderSpaties(tekst.substr(std::min(LengteCode, tekst.size())))};
}

Tekst Plaatssleutel(Tekstblik code)
{
    const Tekstblik tekst = ZonderSpaties(code);
    if (tekst.size() < 2 || IsCijfer(tekst.front()) || !ZijnCijfers(tekst.substr(1)))
        return Tekst(tekst);
    Tekstblik nummer = tekst.substr(1);
    nummer.remove_prefix(std::min(nummer.find_first_not_of('0'), nummer.size() - 1));
    Tekst uit(tekst.substr(0, 1));
    uit += nummer;
    return uit;
}

} // namespace plexoran
