#include "platform/items.h"

#include <algorithm>
#include <utility>

namespace plexoran {
namespace {

class Knipper {
  public:
    explicit Knipper(Tekstblik regel) : regel_(regel) {}

    /// The item that begins at `begin`; afterwards `begin` is where the next one does, or past the
    /// end of the line when this was the last.
    Item Volgend(std::size_t& begin)
    {
        const std::size_t vanaf = begin;
        const auto eerste = regel_.find_first_not_of(' ', vanaf);
        if (eerste != Tekstblik::npos && regel_[eerste] == '"') {
            const auto [sluiter, eind] = Sluiter(eerste + 1);
            if (sluiter != Tekstblik::npos) {
                begin = eind + 1;
                return {regel_.substr(vanaf, eind - vanaf),
                        regel_.substr(eerste + 1, sluiter - eerste - 1)};
            }
        }
        const std::size_t eind = std::min(regel_.find(',', vanaf), regel_.size());
        begin = eind + 1;
        const Tekstblik rauw = regel_.substr(vanaf, eind - vanaf);
        return {rauw, rauw};
    }

  private:
    /// The first quote from `vanaf` that closes an item, and the comma or line end behind it.
    std::pair<std::size_t, std::size_t> Sluiter(std::size_t vanaf)
    {
        // Without this a line of open quotes would be searched to its end for each of them.
        if (geenMeer_)
            return {Tekstblik::npos, 0};
        for (auto quote = regel_.find('"', vanaf); quote != Tekstblik::npos;
             quote = regel_.find('"', quote + 1)) {
            const auto erna = regel_.find_first_not_of(' ', quote + 1);
            if (erna == Tekstblik::npos)
                return {quote, regel_.size()};
            if (regel_[erna] == ',')
                return {quote, erna};
        }
        geenMeer_ = true;
        return {Tekstblik::npos, 0};
    }

    Tekstblik regel_;
    bool geenMeer_ = false;
};

bool LeestTerug(Tekstblik geschreven, Tekstblik tekst)
{
    const auto items = ItemsVan(geschreven);
    return items.size() == 1 && items.front().tekst == tekst;
}

} // namespace

std::vector<Item> ItemsVan(Tekstblik regel)
{
    constexpr std::size_t gewoonlijk = 8; // a record of a result list has 7
    std::vector<Item> items;
    items.reserve(gewoonlijk);
    Knipper knipper(regel);
    std::size_t begin = 0;
    do {
        items.push_back(knipper.Volgend(begin));
    } while (begin <= regel.size());
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
