#include "pairs/paren.h"

#include <algorithm>
#include <charconv>
#include <unordered_set>

#include "pairs/regelzoeker.h"
#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

std::size_t Index(int plaats)
{
    return static_cast<std::size_t>(plaats);
}

bool GelijkInHoofdletters(Tekstblik een, Tekstblik ander)
{
    return een.size() == ander.size() &&
           std::equal(een.begin(), een.end(), ander.begin(),
                      [](char a, char b) { return Hoofdletter(a) == Hoofdletter(b); });
}

/// The lines of the available players, in text order.
std::vector<Tekst> BeschikbareSpelers(const Spelertabel& tabel, Tekstblik groepscode,
                                      Tekstblik keuze)
{
    std::vector<Tekst> uit;
    const auto lengte = std::min(keuze.size(), groepscode.size());
    if (!GelijkInHoofdletters(keuze.substr(0, lengte), groepscode))
        return uit;
    const Tekstblik subgroep = keuze.substr(lengte);
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == groepscode &&
            GelijkInHoofdletters(tabel.Cel(rij, Kolom::NBBgr), subgroep) &&
            !IsOverleden(tabel.Cel(rij, Kolom::Status)))
            uit.push_back(Spelerregel(tabel, rij));
    }
    Sorteer(uit);
    return uit;
}

/// A line of the sort buffer `L9`: name, key and place, so that equal names keep their order.
Tekst Sorteerregel(Tekstblik paarregel, std::size_t plaats, int breedte)
{
    const Paarspeler speler = LinkerSpeler(paarregel);
    Tekst regel(speler.naam);
    regel += ' ';
    regel += speler.key;
    regel += ' ';
    regel += MetNullen(static_cast<std::int64_t>(plaats), breedte);
    return regel;
}

/// Three digits as the suite has them, and more when there are more than a thousand pairs.
int Plaatsbreedte(std::size_t paren)
{
    constexpr std::size_t drie = 3;
    return static_cast<int>(std::max(drie, std::to_string(paren).size()));
}

std::size_t PlaatsUit(Tekstblik sorteerregel, int breedte)
{
    const Tekstblik cijfers = sorteerregel.substr(sorteerregel.size() - Index(breedte));
    std::size_t plaats = 0;
    std::from_chars(cijfers.data(), cijfers.data() + cijfers.size(), plaats);
    return plaats;
}

} // namespace

std::vector<Tekst> VulGroepSubgroepen(const Spelertabel& tabel, Tekstblik groepscode)
{
    std::vector<Tekst> lstHulp;
    std::unordered_set<Tekstblik> gezien;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != groepscode ||
            !gezien.insert(tabel.Cel(rij, Kolom::NBBgr)).second)
            continue;
        lstHulp.emplace_back(groepscode);
        lstHulp.back() += tabel.Cel(rij, Kolom::NBBgr);
    }
    return lstHulp;
}

bool IsOverleden(Tekstblik status)
{
    constexpr std::size_t kortste = 5;
    constexpr Tekstblik woord = "OVERLEDEN";
    if (ZonderSpaties(status).size() < kortste)
        return false;
    const Tekst hoofdletters = Hoofdletters(ZonderSpaties(status));
    return hoofdletters.find(woord) != Tekst::npos || woord.starts_with(hoofdletters);
}

Tekst Paren::LaadSubgroep(const Spelertabel& tabel, Tekstblik groepscode, Tekstblik keuze,
                          const Paartekens& paren)
{
    lalle_ = BeschikbareSpelers(tabel, groepscode, keuze);
    l3_.clear();
    Tekst losse = ToonParen(paren);
    Sorteer();
    return losse;
}

Tekst Paren::Keuze(int plaats) const
{
    return Keuzeregel(lalle_[Index(plaats)]);
}

/// Puts the pairs in their list and takes their players out of the available ones.
Tekst Paren::ToonParen(const Paartekens& paren)
{
    Tekst losse;
    Regelzoeker zoeker(lalle_, paren);
    bool los = false;
    const auto speler = [&](Tekstblik key) {
        const int regel = zoeker.NeemEerste(key);
        los = los || regel < 0;
        Tekst metNaam(key);
        metNaam += ' ';
        metNaam += regel < 0 ? OnbekendeNaam : Spelernaam(lalle_[Index(regel)]);
        return metNaam;
    };
    l3_.reserve(paren.size());
    for (const Tekst& paar : paren) {
        los = false;
        const Tekst links = speler(Eerste6(paar));
        const Tekst rechts = speler(Laatste6(paar));
        if (los)
            losse.append(links).append(" - ").append(rechts).append("\r\n");
        l3_.push_back(Paarregel(links, rechts));
    }
    std::size_t plaats = 0;
    std::erase_if(lalle_, [&](const Tekst&) { return zoeker.IsWeg(plaats++); });
    return losse;
}

int Paren::MaakPaar(int links, int rechts)
{
    const Tekst linkerregel = Keuze(links);
    const Tekst rechterregel = Keuze(rechts);
    const int plaats = VoegPaarToe(Paarregel(linkerregel, rechterregel));
    // Every line that contains a key goes, a key in somebody else's name included.
    std::erase_if(lalle_, [&](const Tekst& regel) {
        return regel.find(Eerste6(linkerregel)) != Tekst::npos ||
               regel.find(Eerste6(rechterregel)) != Tekst::npos;
    });
    return plaats;
}

/// The list is in order, so the pair goes where sorting would bring it from the end.
int Paren::VoegPaarToe(Tekst paarregel)
{
    const int breedte = Plaatsbreedte(l3_.size() + 1);
    const auto plek =
        std::upper_bound(l3_.begin(), l3_.end(), Sorteerregel(paarregel, l3_.size(), breedte),
                         [&](const Tekst& nieuw, const Tekst& regel) {
                             const auto plaats = static_cast<std::size_t>(&regel - l3_.data());
                             return KomtVoor(nieuw, Sorteerregel(regel, plaats, breedte));
                         });
    const auto plaats = plek - l3_.begin();
    l3_.insert(plek, std::move(paarregel));
    return static_cast<int>(plaats);
}

void Paren::VoegSpelerToe(Tekst spelerregel)
{
    const auto plek = std::upper_bound(lalle_.begin(), lalle_.end(), spelerregel, KomtVoor);
    lalle_.insert(plek, std::move(spelerregel));
}

void Paren::Ontbind(int plaats)
{
    const Tekst regel = std::move(l3_[Index(plaats)]);
    l3_.erase(l3_.begin() + plaats);
    VoegSpelerToe(LinkerSpeler(regel).AlsSpelerregel());
    VoegSpelerToe(RechterSpeler(regel).AlsSpelerregel());
}

void Paren::Sorteer()
{
    const int breedte = Plaatsbreedte(l3_.size());
    std::vector<Tekst> l9;
    l9.reserve(l3_.size());
    for (std::size_t i = 0; i < l3_.size(); ++i)
        l9.push_back(Sorteerregel(l3_[i], i, breedte));
    plexoran::Sorteer(l9);
    std::vector<Tekst> gesorteerd;
    gesorteerd.reserve(l3_.size());
    for (const Tekst& regel : l9)
        gesorteerd.push_back(std::move(l3_[PlaatsUit(regel, breedte)]));
    l3_ = std::move(gesorteerd);
}

} // namespace plexoran
