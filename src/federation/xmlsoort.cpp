#include <string>

#include "federation/ledenbestand.h"
#include "federation/ledentekst.h"
#include "platform/xmlcodering.h"

namespace plexoran {
namespace {

/// The source that a file is for; `Csv` for a file that is no member file.
Ledenbron SoortVan(Schijf& schijf, const Pad& bestand)
{
    const auto inhoud = LeesLedentekst(schijf, bestand);
    if (!inhoud)
        return Ledenbron::Csv;
    std::string ruimte;
    const Tekstblik tekst = XmlDoorzoekbaar(*inhoud, ruimte);
    if (tekst.find("<ReportableMember>") == Tekstblik::npos)
        return Ledenbron::Csv;
    return tekst.find("<LeagueId>") == Tekstblik::npos ? Ledenbron::XmlNbb3 : Ledenbron::XmlNbb4;
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
        if (SoortVan(schijf, Samen(map, namen[i])) == bron)
            uit.push_back(namen[i]);
    }
    return uit;
}

} // namespace plexoran
