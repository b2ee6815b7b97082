#include "federation/tussenbestand.h"

#include <utility>

#include "platform/heelschrijven.h"

namespace plexoran {
namespace {

/// A text that went into the file with its line ends would come back as several members.
void VoegVeldToe(Tekst& uit, Tekstblik veld)
{
    for (auto eind = veld.find_first_of("\r\n"); eind != Tekstblik::npos;
         eind = veld.find_first_of("\r\n")) {
        uit += veld.substr(0, eind);
        uit += ' ';
        const bool paar = veld.substr(eind, 2) == "\r\n";
        veld.remove_prefix(eind + (paar ? 2 : 1));
    }
    uit += veld;
    uit += ';';
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

void VoegLidToe(Tekst& regels, const Lidrij& lid)
{
    for (const Tekst& veld : lid)
        VoegVeldToe(regels, veld);
    regels += "\r\n";
}

Uitkomst<void> SchrijfTussenregels(Schijf& schijf, const Pad& pad, Tekst regels)
{
    regels += "\r\n";
    return SchrijfHeel(schijf, pad, regels);
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
