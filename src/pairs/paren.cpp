#include "pairs/paren.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

/// Stands for the name of a player who is not available.
constexpr auto OnbekendeNaam = "??????";

/// The lines of the available players, in text order.
std::vector<Tekst> BeschikbareSpelers(const Spelertabel& tabel, Tekstblik groepscode,
                                      Tekstblik keuze)
{
    std::vector<Tekst> uit;
    const Tekst gezocht = Hoofdletters(keuze);
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == groepscode &&
            Hoofdletters(Tekst(groepscode).append(tabel.Cel(rij, Kolom::NBBgr))) == gezocht &&
            !IsOverleden(tabel.Cel(rij, Kolom::Status)))
            uit.push_back(Spelerregel(tabel, rij));
    }
    Sorteer(uit);
    return uit;
}

/// Of every key of these pairs the lines that contain it, the last one first: anywhere in the line,
/// a player's name included. One walk through the lines finds where all of them stand.
std::unordered_map<Tekstblik, std::vector<std::size_t>>
RegelsMetKeys(const std::vector<Tekst>& regels, const Paartekens& paren)
{
    std::unordered_map<Tekstblik, std::vector<std::size_t>> regelsMet(2 * paren.size());
    std::array<bool, 256> begint{}; // most characters of a name begin no key and are passed over
    for (const Tekst& paar : paren) {
        for (const Tekstblik key : {Eerste6(paar), Laatste6(paar)}) {
            regelsMet[key];
            begint[static_cast<unsigned char>(key.front())] = true;
        }
    }
    for (std::size_t i = regels.size(); i-- > 0;) {
        const Tekstblik regel = regels[i];
        for (std::size_t begin = 0; begin < regel.size(); ++begin) {
            const auto plek = begint[static_cast<unsigned char>(regel[begin])]
                                  ? regelsMet.find(Eerste6(regel.substr(begin)))
                                  : regelsMet.end();
            if (plek != regelsMet.end())
                plek->second.push_back(i);
        }
    }
    return regelsMet;
}

} // namespace

std::vector<Tekst> VulGroepSubgroepen(const Spelertabel& tabel, Tekstblik groepscode)
{
    std::vector<Tekst> lstHulp;
    std::unordered_set<Tekstblik> gezien;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const Tekstblik subgroep = tabel.Cel(rij, Kolom::NBBgr);
        if (tabel.Cel(rij, Kolom::Groep) == groepscode && gezien.insert(subgroep).second)
            lstHulp.push_back(Tekst(groepscode).append(subgroep));
    }
    return lstHulp;
}

bool IsOverleden(Tekstblik status)
{
    constexpr std::size_t kortste = 5;
    constexpr Tekstblik woord = "OVERLEDEN";
    const Tekst hoofdletters = Hoofdletters(ZonderSpaties(status));
    return hoofdletters.size() >= kortste &&
           (hoofdletters.find(woord) != Tekst::npos || woord.starts_with(hoofdletters));
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

/// Puts the pairs in their list and takes their players out of the available ones.
Tekst Paren::ToonParen(const Paartekens& paren)
{
    Tekst losse;
    auto regelsMet = RegelsMetKeys(lalle_, paren);
    std::vector<bool> weg(lalle_.size());
    for (const Tekst& paar : paren) {
        bool los = false;
        // The first line left that contains the key; it serves no other pair.
        const auto speler = [&](Tekstblik key) {
            auto& regels = regelsMet.at(key);
            while (!regels.empty() && weg[regels.back()])
                regels.pop_back();
            Tekst wie = Tekst(key).append(" ");
            if (regels.empty()) {
                los = true;
                wie += OnbekendeNaam;
            } else {
                weg[regels.back()] = true;
                wie += Spelernaam(lalle_[regels.back()]);
            }
            return wie;
        };
        const Tekst links = speler(Eerste6(paar));
        const Tekst rechts = speler(Laatste6(paar));
        if (los)
            losse.append(links).append(" - ").append(rechts).append("\r\n");
        l3_.push_back(Paarregel(links, rechts));
    }
    std::size_t regel = 0;
    std::erase_if(lalle_, [&](const Tekst&) { return weg[regel++]; });
    return losse;
}

int Paren::MaakPaar(int links, int rechts)
{
    const Tekst linkerkeuze = Keuze(links);
    const Tekst rechterkeuze = Keuze(rechts);
    const Tekst paar = Paarregel(linkerkeuze, rechterkeuze);
    l3_.push_back(paar);
    Sorteer();
    // Every line that contains a key goes, a key in somebody else's name included.
    std::erase_if(lalle_, [&](const Tekst& regel) {
        return regel.find(Eerste6(linkerkeuze)) != Tekst::npos ||
               regel.find(Eerste6(rechterkeuze)) != Tekst::npos;
    });
    return static_cast<int>(std::find(l3_.begin(), l3_.end(), paar) - l3_.begin());
}

void Paren::Ontbind(int regel)
{
    const Tekst paar = std::move(l3_.at(Index(regel)));
    l3_.erase(l3_.begin() + regel);
    lalle_.push_back(LinkerSpeler(paar).AlsSpelerregel());
    lalle_.push_back(RechterSpeler(paar).AlsSpelerregel());
    plexoran::Sorteer(lalle_);
}

void Paren::Sorteer()
{
    // Three digits as the suite has them, and more when there are more than a thousand pairs.
    const auto breedte = std::max<std::size_t>(3, std::to_string(l3_.size()).size());
    std::vector<std::pair<Tekst, Tekst>> l9; // by keys that are all different
    l9.reserve(l3_.size());
    for (Tekst& regel : l3_) {
        const Paarspeler speler = LinkerSpeler(regel);
        Tekst sleutel(speler.naam);
        sleutel.append(" ").append(speler.key).append(" ");
        sleutel += MetNullen(static_cast<std::int64_t>(l9.size()), static_cast<int>(breedte));
        l9.emplace_back(Sorteersleutel(sleutel), std::move(regel));
    }
    std::ranges::sort(l9);
    l3_.clear();
    for (auto& [sleutel, regel] : l9)
        l3_.push_back(std::move(regel));
}

} // namespace plexoran
