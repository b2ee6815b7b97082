#include "federation/tussenbestand.h"

#include <utility>

#include "platform/schijf/heelschrijven.h"

namespace plexoran {
namespace {

bool HeeftRegeleinde(Tekstblik tekst)
{
    return tekst.find('\n') != Tekstblik::npos || tekst.find('\r') != Tekstblik::npos;
}

} // namespace

Tekst GeslachtUit(Tekstblik tekst)
{
    const Tekst groot = Hoofdletters(tekst);
    if (groot == "MAN" || groot == "MALE")
        return "M";
    if (groot == "VROUW" || groot == "FEMALE")
        return "V";
    return {}; // "NIET BEKEND" and "UNKNOWN" are no different from any other text
}

Tekstblik ZonderVoorloop(Tekstblik nummer)
{
    constexpr unsigned char hoogste = 240;
    if (IsBlanco(nummer))
        return nummer;
    while (!nummer.empty() && static_cast<unsigned char>(nummer.front()) > hoogste)
        nummer.remove_prefix(1);
    return nummer;
}

Tekst ZonderRegeleinden(Tekstblik tekst)
{
    Tekst uit;
    uit.reserve(tekst.size());
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (tekst.substr(i, 2) == "\r\n")
            ++i;
        uit += tekst[i] == '\r' || tekst[i] == '\n' ? ' ' : tekst[i];
    }
    return uit;
}

void VoegLidToe(Tekst& regels, const Lidrij& lid)
{
    const std::size_t begin = regels.size();
    for (const Tekst& veld : lid) {
        regels += veld;
        regels += ';';
    }
    // The ";" between them keeps the CR of one field from the LF of the next.
    if (const Tekstblik regel = Tekstblik(regels).substr(begin); HeeftRegeleinde(regel))
        regels.replace(begin, Tekst::npos, ZonderRegeleinden(regel));
    regels += "\r\n";
}

Uitkomst<void> SchrijfTussenregels(Schijf& schijf, const Pad& pad, Tekst regels)
{
    regels += "\r\n";
    return SchrijfVluchtig(schijf, pad, regels);
}

Uitkomst<void> SchrijfTussenbestand(Schijf& schijf, const Pad& pad,
                                    const std::vector<Lidrij>& leden)
{
    Tekst regels;
    for (const Lidrij& lid : leden)
        VoegLidToe(regels, lid);
    return SchrijfTussenregels(schijf, pad, std::move(regels));
}

} // namespace plexoran
