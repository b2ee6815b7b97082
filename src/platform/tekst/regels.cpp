#include "platform/tekst/regels.h"

#include <algorithm>

namespace plexoran {
namespace {

std::vector<Tekstblik> Stukken(Tekstblik inhoud, bool opKomma)
{
    std::vector<Tekstblik> stukken;
    while (!inhoud.empty()) {
        // Not find_first_of: that calls a function for every character.
        const auto waar = std::find_if(inhoud.begin(), inhoud.end(), [opKomma](char teken) {
            return teken == '\n' || teken == '\r' || (opKomma && teken == ',');
        });
        const auto eind = static_cast<std::size_t>(waar - inhoud.begin());
        stukken.push_back(inhoud.substr(0, eind));
        const bool paar = inhoud.substr(eind, 2) == "\r\n";
        inhoud.remove_prefix(std::min(eind + (paar ? 2 : 1), inhoud.size()));
    }
    return stukken;
}

bool LeestTerug(Tekstblik geschreven, Tekstblik tekst)
{
    const auto items = ItemsVan(geschreven, 2);
    return items.size() == 1 && items.front().tekst == tekst;
}

} // namespace

std::vector<Tekstblik> Regels(Tekstblik inhoud)
{
    return Stukken(inhoud, false);
}

std::vector<Tekstblik> Items(Tekstblik inhoud)
{
    return Stukken(inhoud, true);
}

Tekstblik EersteItem(Tekstblik inhoud)
{
    return inhoud.substr(0, inhoud.find_first_of(",\r\n"));
}

Tekstblik ZonderBlancoBegin(Tekstblik inhoud)
{
    const auto eerste = inhoud.find_first_not_of(" ,\r\n");
    if (eerste == Tekstblik::npos)
        return {};
    const auto ervoor = inhoud.find_last_of(",\r\n", eerste);
    return inhoud.substr(ervoor == Tekstblik::npos ? 0 : ervoor + 1);
}

bool IsLeeg(Tekstblik inhoud)
{
    return inhoud.find_first_not_of(" \r\n") == Tekstblik::npos;
}

struct Itemlezer::Slot {
    std::size_t quote = Tekstblik::npos;
    std::size_t eind = 0; ///< the comma or line end behind it
};

std::optional<Item> Itemlezer::Volgend()
{
    if (begin_ > regel_.size())
        return std::nullopt;
    const std::size_t vanaf = begin_;
    const auto eerste = regel_.find_first_not_of(' ', vanaf);
    if (eerste != Tekstblik::npos && regel_[eerste] == '"') {
        const auto [quote, eind] = Sluiter(eerste + 1);
        if (quote != Tekstblik::npos) {
            begin_ = eind + 1;
            return Item{regel_.substr(vanaf, eind - vanaf),
                        regel_.substr(eerste + 1, quote - eerste - 1)};
        }
    }
    const std::size_t eind = std::min(regel_.find(',', vanaf), regel_.size());
    begin_ = eind + 1;
    const Tekstblik rauw = regel_.substr(vanaf, eind - vanaf);
    return Item{rauw, rauw};
}

/// The first quote from `vanaf` that closes an item.
Itemlezer::Slot Itemlezer::Sluiter(std::size_t vanaf)
{
    // Without this a line of open quotes would be searched to its end for each of them.
    if (geenQuoteMeer_)
        return {};
    for (auto quote = regel_.find('"', vanaf); quote != Tekstblik::npos;
         quote = regel_.find('"', quote + 1)) {
        const auto erna = regel_.find_first_not_of(' ', quote + 1);
        if (erna == Tekstblik::npos)
            return {quote, regel_.size()};
        if (regel_[erna] == ',')
            return {quote, erna};
    }
    geenQuoteMeer_ = true;
    return {};
}

std::vector<Item> ItemsVan(Tekstblik regel, std::size_t hoogstens)
{
    std::vector<Item> items;
    Itemlezer lezer(regel);
    while (items.size() < hoogstens) {
        const auto item = lezer.Volgend();
        if (!item)
            break;
        items.push_back(*item);
    }
    return items;
}

Tekst MetTekst(const Item& item, Tekstblik tekst)
{
    const auto voor = static_cast<std::size_t>(item.tekst.data() - item.rauw.data());
    Tekst uit(item.rauw.substr(0, voor));
    uit += tekst;
    uit += item.rauw.substr(voor + item.tekst.size());
    return uit;
}

Tekst AlsItem(Tekstblik tekst)
{
    Tekst bloot(tekst);
    if (LeestTerug(bloot, tekst))
        return bloot;
    const Tekst aangehaald = '"' + bloot + '"';
    return LeestTerug(aangehaald, tekst) ? aangehaald : bloot;
}

} // namespace plexoran
