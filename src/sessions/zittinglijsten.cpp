#include "sessions/zittinglijsten.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

#include "platform/tekst/regels.h"
#include "sessions/tafelparen.h"

namespace plexoran {
namespace {

constexpr std::size_t AantalVelden = 7;
constexpr std::size_t Codeveld = 2;
constexpr std::size_t Paarveld = 3;

/// The fields of a record; nothing for a line that is none.
std::optional<std::vector<Item>> RecordUit(Tekstblik regel)
{
    auto velden = ItemsVan(regel, AantalVelden + 1);
    return velden.size() == AantalVelden ? std::optional(std::move(velden)) : std::nullopt;
}

void VoegZwevendenToe(std::vector<Vindplaats>& uit, Tekstblik code, Tekstblik spelers)
{
    const auto helften = SplitsHelften(spelers);
    if (!helften)
        return;
    for (const Tekstblik helft : {helften->eerste, helften->tweede}) {
        if (IsZwevend(helft))
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

/// Looks up a place and remembers where something was replaced.
class Plaatslijst {
  public:
    explicit Plaatslijst(const Naamvervanging& vervanging)
        : vervanging_(vervanging), vervangen_(vervanging.codes.size())
    {
        for (std::size_t i = 0; i < vervanging.codes.size(); ++i)
            plaatsen_.try_emplace(Plaatssleutel(vervanging.codes[i]), i);
    }

    /// The players with the key in the name's place; nothing where it is not to be replaced.
    std::optional<Tekst> Vervang(Tekstblik code, Tekstblik spelers)
    {
        const auto plaats = plaatsen_.find(Plaatssleutel(code));
        const auto helften = SplitsHelften(spelers);
        if (plaats == plaatsen_.end() || !helften)
            return std::nullopt;
        auto nieuw = MetKey(*helften, vervanging_.naam, vervanging_.key);
        if (nieuw)
            vervangen_[plaats->second] = true;
        return nieuw;
    }

    [[nodiscard]] std::vector<bool> Vervangen() const { return vervangen_; }

  private:
    const Naamvervanging& vervanging_;
    std::unordered_map<Tekst, std::size_t> plaatsen_;
    std::vector<bool> vervangen_;
};

/// The line of a player list anew: its items on lines of their own, without quotes where they can
/// do without. Nothing when no name on it was replaced.
std::optional<Tekst> NieuweSpelersregel(Tekstblik regel, Tekstblik einde, Plaatslijst& plaatsen)
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
        const auto nieuw = paar ? plaatsen.Vervang(paar->code, paar->spelers) : std::nullopt;
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
std::optional<Tekst> NieuweRecordregel(Tekstblik regel, Plaatslijst& plaatsen)
{
    const auto velden = RecordUit(regel);
    if (!velden)
        return std::nullopt;
    const Item& paar = (*velden)[Paarveld];
    const auto nieuw = plaatsen.Vervang((*velden)[Codeveld].tekst, paar.tekst);
    if (!nieuw)
        return std::nullopt;
    const auto begin = static_cast<std::size_t>(paar.rauw.data() - regel.data());
    Tekst uit(regel.substr(0, begin));
    uit += MetTekst(paar, *nieuw);
    uit += regel.substr(begin + paar.rauw.size());
    return uit;
}

} // namespace

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

bool Herschrijving::IetsVervangen() const
{
    return std::find(vervangen.begin(), vervangen.end(), true) != vervangen.end();
}

Herschrijving HerschrijfLijst(Tekstblik inhoud, Lijstsoort soort, const Naamvervanging& vervanging)
{
    Herschrijving uit;
    Plaatslijst plaatsen(vervanging);
    std::size_t klaar = 0; // so much of the old text stands in the new one
    for (const Tekstblik regel : Regels(inhoud)) {
        if (regel.find(vervanging.naam) == Tekstblik::npos)
            continue;
        const auto nieuw = soort == Lijstsoort::Spelers
                               ? NieuweSpelersregel(regel, Regeleinde(inhoud, regel), plaatsen)
                               : NieuweRecordregel(regel, plaatsen);
        if (!nieuw)
            continue;
        const auto begin = static_cast<std::size_t>(regel.data() - inhoud.data());
        uit.inhoud += inhoud.substr(klaar, begin - klaar);
        uit.inhoud += *nieuw;
        klaar = begin + regel.size();
    }
    uit.inhoud += inhoud.substr(klaar);
    uit.vervangen = plaatsen.Vervangen();
    return uit;
}

} // namespace plexoran
