#include <string>

#include "federation/ledenbestand.h"

namespace plexoran {
namespace {

/// Whether a file is for this source. One that is too large is for both, so that reading it says
/// so.
bool IsVoor(Schijf& schijf, const Pad& bestand, Ledenbron bron)
{
    auto inhoud = LeesBegrensd(schijf, bestand);
    if (!inhoud)
        return inhoud.error().soort == Foutsoort::Beschadigd;
    std::erase(*inhoud, '\0'); // of UTF-16 this leaves what is written in ASCII
    const bool nbb4 = inhoud->find("<LeagueId>") != Tekst::npos;
    return inhoud->find("<ReportableMember>") != Tekst::npos &&
           nbb4 == (bron == Ledenbron::XmlNbb4);
}

} // namespace

std::vector<Tekst> BepaalXMLsoort(Schijf& schijf, const Pad& map, const std::vector<Tekst>& namen,
                                  Ledenbron bron, const Voortgang& voortgang)
{
    std::vector<Tekst> uit;
    if (bron != Ledenbron::XmlNbb3 && bron != Ledenbron::XmlNbb4)
        return uit;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (voortgang && !voortgang(i, namen.size()))
            break;
        if (IsVoor(schijf, Samen(map, namen[i]), bron))
            uit.push_back(namen[i]);
    }
    return uit;
}

} // namespace plexoran
