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
        Vindplaats& nieuw = uit.emplace_back(Vindplaats{.bestanden = {bestand}});
        if (bestand.soort) {
            nieuw.zitting = zittingen_.at(plaats);
            nieuw.zitting->plaatsen = code;
            tafels = {Tafelsleutel(code)};
        } else {
            nieuw.paar = code;
        }
        if (std::ranges::find(andere, plaats, &Plek::plaats) != andere.end())
            nieuw.bezwaar = bestand.soort || code.find(blijft) != Tekst::npos ? Bezwaar::Beide
                                                                              : Bezwaar::AnderPaar;
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
                return beide || nieuw == inhoud ? std::nullopt : std::optional(std::move(nieuw));
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
