#include "controle/vindplaatsen.h"

#include <algorithm>
#include <set>

#include "controle/controleur.h"
#include "pairs/paarregel.h"
#include "pairs/parenbestand.h"

namespace plexoran {
namespace {

/// A key as it stands in a text.
struct Sleutelplek {
    Tekstblik key; ///< a view into it
    Tekst code;
};

/// A half may be a name with a "-" in it: its key is behind the last one.
bool IsSleutel(Tekstblik helft)
{
    const Tekstblik ervoor = ZonderSpaties(helft.substr(0, helft.size() - Laatste6(helft).size()));
    return Sleutelgetal(Laatste6(helft)) && (ervoor.empty() || ervoor.ends_with('-'));
}

/// `Beschadigd` for what is no list of a session.
Uitkomst<std::vector<Sleutelplek>> Sleutels(Tekstblik inhoud, std::optional<Lijstsoort> soort)
{
    std::vector<Sleutelplek> uit;
    if (!soort) {
        for (const Tekstblik paar : Paarblikken(inhoud)) {
            for (const Tekstblik key : {Eerste6(paar), Laatste6(paar)})
                uit.push_back({key, Tekst(paar)});
        }
        return uit;
    }
    const auto lezing = LeesLijst(inhoud, *soort, [&](Tekstblik helft) {
        if (!IsSleutel(helft))
            return false;
        uit.push_back({Laatste6(helft), {}});
        return true;
    });
    if (lezing.IsTeVeel())
        return Mislukt({.soort = Foutsoort::Beschadigd, .systeem = TeVeelNamen});
    for (std::size_t i = 0; i < uit.size(); ++i)
        uit[i].code = lezing.zwevend[i].code;
    return uit;
}

/// Without what `paar` became where that is there too.
void LaatElkPaarEens(Tekst& nieuw, Tekstblik oud, const Tekst& paar)
{
    const auto was = Paarblikken(oud);
    for (std::size_t i = was.size(); i-- > 0;) {
        const auto nu = Paarblikken(nieuw);
        const auto zelfde = [&](Tekstblik een) {
            return een.find(Eerste6(nu[i])) != Tekst::npos &&
                   een.find(Laatste6(nu[i])) != Tekst::npos;
        };
        if (was[i] == paar && std::ranges::count_if(nu, zelfde) > 1) {
            const auto plek = static_cast<std::size_t>(nu[i].data() - nieuw.data());
            const bool hekje = nieuw.compare(plek + nu[i].size(), 1, "#") == 0;
            nieuw.erase(plek, nu[i].size() + (hekje ? 1 : 0));
        }
    }
}

} // namespace

Vindplaatsen::Vindplaatsen(Schijf& schijf, const Mappen& mappen, const Voortgang& voortgang)
{
    std::size_t plaats = 0;
    auto paren = Parenbestanden(schijf, mappen);
    if (paren)
        Sorteer(*paren);
    else
        fouten_.push_back(paren.error());
    for (const Tekst& naam : paren.value_or(std::vector<Tekst>()))
        Lees(schijf, plaats++, {Samen(mappen.Parenmap(), naam), std::nullopt});
    Lees(schijf, plaats++, {Samen(mappen.SPEMAP, "RVDparen.txt"), std::nullopt});
    const auto sessies = AlleSessies(schijf, mappen, fouten_);
    for (std::size_t i = 0; i < sessies.size(); ++i, ++plaats) {
        if (voortgang)
            static_cast<void>(voortgang(i, sessies.size()));
        const auto& [naam, zitting] = sessies[i];
        zittingen_[plaats] = {naam, zitting.inCompetitie, zitting.ronde, zitting.zitting};
        for (const Lijstsoort soort : {Lijstsoort::Spelers, Lijstsoort::Percentages})
            Lees(schijf, plaats, {zitting.Bestand(soort), soort});
    }
}

void Vindplaatsen::Lees(Schijf& schijf, std::size_t plaats, const Vindplaats::Bestand& bestand)
{
    const auto inhoud = LeesAlsErIs(schijf, bestand.pad);
    if (!inhoud) {
        fouten_.push_back(inhoud.error());
        return;
    }
    const Tekst tekst = inhoud->value_or(Tekst());
    const auto sleutels = Sleutels(tekst, bestand.soort);
    if (!sleutels) {
        fouten_.push_back(sleutels.error());
        fouten_.back().bestand = schijf.Toonpad(bestand.pad);
        return;
    }
    for (const Sleutelplek& plek : *sleutels)
        plekken_[Tekst(plek.key)].push_back({plaats, bestand, plek.code});
}

void Vindplaatsen::Herlees(Schijf& schijf, const std::vector<Vindplaats>& plaatsen)
{
    const auto fouten = fouten_;
    for (const Vindplaats& plaats : plaatsen) {
        for (const auto& bestand : plaats.bestanden) {
            for (auto& [key, plekken] : plekken_)
                std::erase_if(plekken, [&](const Plek& plek) { return plek.bestand == bestand; });
            Lees(schijf, plaats.nummer, bestand);
        }
    }
    for (auto& [key, plekken] : plekken_)
        std::ranges::stable_sort(plekken, {}, [](const Plek& plek) {
            return std::pair(plek.plaats, plek.bestand.soort);
        });
    fouten_ = fouten;
}

std::vector<Vindplaats> Vindplaatsen::Van(const Tekst& weg, const Tekst& blijft) const
{
    const auto van = [this](const Tekst& key) {
        const auto gevonden = plekken_.find(key);
        return gevonden == plekken_.end() ? std::vector<Plek>() : gevonden->second;
    };
    const auto andere = van(blijft);
    std::vector<Vindplaats> uit;
    std::optional<std::size_t> vorige;
    std::set<Tekst> tafels; // of that session, by their keys
    for (const auto& [plaats, bestand, code] : van(weg)) {
        if (bestand.soort && vorige == plaats) { // the other list of the session, or its next pair
            auto& bestanden = uit.back().bestanden;
            if (bestanden.back() != bestand)
                bestanden.push_back(bestand);
            if (tafels.insert(Tafelsleutel(code)).second)
                uit.back().zitting->plaatsen.append(", ").append(code);
            continue;
        }
        vorige = plaats;
        Vindplaats& nieuw = uit.emplace_back(Vindplaats{.bestanden = {bestand}, .nummer = plaats});
        if (bestand.soort) {
            nieuw.zitting = zittingen_.at(plaats);
            nieuw.zitting->plaatsen = code;
            tafels = {Tafelsleutel(code)};
        } else {
            nieuw.paar = code;
        }
        const Tekst partner = code.starts_with(weg) ? Tekst(Laatste6(code)) : code.substr(0, 6);
        for (const Plek& daar : andere) {
            if (daar.plaats == plaats)
                nieuw.bezwaar = std::max(
                    nieuw.bezwaar, bestand.soort || partner == blijft       ? Bezwaar::Beide
                                   : daar.code.find(partner) != Tekst::npos ? Bezwaar::ZelfdePaar
                                                                            : Bezwaar::AnderPaar);
        }
    }
    return uit;
}

Uitkomst<void> VervangSleutel(Schijf& schijf, const Vindplaats& plaats, const Tekst& weg,
                              const Tekst& blijft)
{
    Uitkomst<void> uit;
    for (const auto& [pad, soort] : plaats.bestanden) {
        bool beide = false;
        Uitkomst<void> leesbaar;
        const auto streep = pad.rfind('\\');
        RuimTijdelijkeOp(schijf, pad.substr(0, streep), pad.substr(streep + 1));
        const auto geschreven = Herschrijf(
            schijf, pad, [&, soort = soort](const Tekst& inhoud) -> std::optional<Tekst> {
                Tekst nieuw = inhoud;
                const auto sleutels = Sleutels(inhoud, soort);
                if (!sleutels)
                    leesbaar = Mislukt(sleutels);
                for (const auto& [key, code] : sleutels.value_or(std::vector<Sleutelplek>())) {
                    if (!soort && code != plaats.paar)
                        continue;
                    beide = beide || key == blijft;
                    if (key == weg)
                        nieuw.replace(static_cast<std::size_t>(key.data() - inhoud.data()),
                                      key.size(), blijft);
                }
                if (beide || nieuw == inhoud)
                    return std::nullopt;
                if (!soort)
                    LaatElkPaarEens(nieuw, inhoud, plaats.paar);
                return nieuw;
            });
        if (beide)
            return Mislukt({.soort = Foutsoort::Gewijzigd, .bestand = schijf.Toonpad(pad)});
        if (!leesbaar)
            return leesbaar;
        if (!geschreven)
            uit = geschreven;
        if (!StaatOpSchijf(geschreven))
            break;
    }
    return uit;
}

} // namespace plexoran
