#include "sessions/zittinglijsten.h"

#include <algorithm>
#include <array>
#include <functional>
#include <unordered_map>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr std::size_t LengteCode = 3;
constexpr std::size_t AantalVelden = 7;
constexpr std::size_t Codeveld = 2;
constexpr std::size_t Paarveld = 3;

/// The fields of a record; nothing for a line that is none.
std::optional<std::array<Item, AantalVelden>> RecordUit(Tekstblik regel)
{
    std::array<Item, AantalVelden> velden;
    Itemlezer items(regel);
    for (Item& veld : velden) {
        const auto item = items.Volgend();
        if (!item)
            return std::nullopt;
        veld = *item;
    }
    return items.Volgend() ? std::nullopt : std::optional(velden);
}

void VoegZwevendenToe(std::vector<Tafelnaam>& uit, Tekstblik code, Tekstblik spelers)
{
    const auto helften = SplitsHelften(spelers);
    if (!helften)
        return;
    for (const Tekstblik helft : {helften->eerste, helften->tweede}) {
        if (!std::ranges::all_of(helft, IsCijfer)) // which an empty one is too
            uit.push_back({Tekst(ZonderSpaties(code)), Tekst(helft)});
    }
}

/// What stands behind the line in the text: its line end; CR LF where it has none.
Tekstblik Regeleinde(Tekstblik inhoud, Tekstblik regel)
{
    const Tekstblik rest =
        inhoud.substr(static_cast<std::size_t>(regel.data() - inhoud.data()) + regel.size());
    if (rest.empty() || rest.starts_with("\r\n"))
        return "\r\n";
    return rest.substr(0, 1);
}

/// The players with the key in the name's place; nothing where it is not to be replaced.
using Vervanger = std::function<std::optional<Tekst>(Tekstblik code, Tekstblik spelers)>;

/// The line of a player list anew: its items on lines of their own, without quotes where they can
/// do without. Nothing when no name on it was replaced.
std::optional<Tekst> NieuweSpelersregel(Tekstblik regel, Tekstblik einde, const Vervanger& vervang)
{
    Tekst uit;
    bool veranderd = false;
    bool eerste = true;
    Itemlezer items(regel);
    while (const auto item = items.Volgend()) {
        if (!eerste)
            uit += einde;
        eerste = false;
        const auto paar = PaarUit(item->tekst);
        const auto nieuw = paar ? vervang(paar->code, paar->spelers) : std::nullopt;
        if (nieuw) {
            veranderd = true;
            uit += AlsItem(Tekst(paar->code) + ' ' + *nieuw);
        } else {
            uit += item->IsAangehaald() ? AlsItem(item->tekst) : Tekst(item->rauw);
        }
    }
    return veranderd ? std::optional(std::move(uit)) : std::nullopt;
}

/// The record with the pair replaced and all else, quotes included, as it was.
std::optional<Tekst> NieuweRecordregel(Tekstblik regel, const Vervanger& vervang)
{
    const auto velden = RecordUit(regel);
    if (!velden)
        return std::nullopt;
    const Item& paar = (*velden)[Paarveld];
    const auto nieuw = vervang((*velden)[Codeveld].tekst, paar.tekst);
    if (!nieuw)
        return std::nullopt;
    const auto begin = static_cast<std::size_t>(paar.rauw.data() - regel.data());
    Tekst uit(regel.substr(0, begin));
    uit += MetTekst(paar, *nieuw);
    uit += regel.substr(begin + paar.rauw.size());
    return uit;
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

std::optional<Lijstpaar> PaarUit(Tekstblik item)
{
    const Tekstblik tekst = ZonderSpaties(item);
    if (tekst.empty())
        return std::nullopt;
    return Lijstpaar{tekst.substr(0, LengteCode),
                     ZonderSpaties(tekst.substr(std::min(LengteCode, tekst.size())))};
}

Tekst Tafelsleutel(Tekstblik code)
{
    const Tekstblik tekst = ZonderSpaties(code);
    if (tekst.empty() || IsCijfer(tekst.front()) || tekst.substr(1).starts_with(' '))
        return Tekst(tekst);
    const auto nummer = AlsGetal(tekst.substr(1), 1);
    return nummer ? tekst.front() + *nummer : Tekst(tekst);
}

Lijstlezing LeesLijst(Tekstblik inhoud, Lijstsoort soort)
{
    Lijstlezing uit;
    for (const Tekstblik regel : Regels(inhoud)) {
        if (IsBlanco(regel))
            continue;
        if (soort == Lijstsoort::Spelers) {
            Itemlezer items(regel);
            for (auto item = items.Volgend(); item && !uit.IsTeVeel(); item = items.Volgend()) {
                if (const auto paar = PaarUit(item->tekst))
                    VoegZwevendenToe(uit.zwevend, paar->code, paar->spelers);
            }
        } else if (const auto velden = RecordUit(regel)) {
            VoegZwevendenToe(uit.zwevend, (*velden)[Codeveld].tekst, (*velden)[Paarveld].tekst);
        } else {
            ++uit.overgeslagen;
        }
        if (uit.IsTeVeel())
            break;
    }
    return uit;
}

Herschrijving HerschrijfLijst(Tekstblik inhoud, Lijstsoort soort, const Naamvervanging& vervanging)
{
    Herschrijving uit;
    std::unordered_map<Tekst, Tekst> codes; // by their key
    for (const Tekst& code : vervanging.codes)
        codes.try_emplace(Tafelsleutel(code), code);
    const Vervanger vervang = [&](Tekstblik code, Tekstblik spelers) -> std::optional<Tekst> {
        const auto gezocht = codes.find(Tafelsleutel(code));
        const auto helften = SplitsHelften(spelers);
        if (gezocht == codes.end() || !helften)
            return std::nullopt;
        const bool eerste = helften->eerste == vervanging.naam;
        const bool tweede = helften->tweede == vervanging.naam;
        if (!eerste && !tweede)
            return std::nullopt;
        uit.vervangen.insert(gezocht->second);
        Tekst nieuw(eerste ? vervanging.key : helften->eerste);
        return nieuw.append(" - ").append(tweede ? vervanging.key : helften->tweede);
    };
    std::size_t klaar = 0; // so much of the old text stands in the new one
    for (const Tekstblik regel : Regels(inhoud)) {
        if (regel.find(vervanging.naam) == Tekstblik::npos)
            continue;
        const auto nieuw = soort == Lijstsoort::Spelers
                               ? NieuweSpelersregel(regel, Regeleinde(inhoud, regel), vervang)
                               : NieuweRecordregel(regel, vervang);
        if (!nieuw)
            continue;
        const auto begin = static_cast<std::size_t>(regel.data() - inhoud.data());
        uit.inhoud += inhoud.substr(klaar, begin - klaar);
        uit.inhoud += *nieuw;
        klaar = begin + regel.size();
    }
    uit.inhoud += inhoud.substr(klaar);
    return uit;
}

} // namespace plexoran
