#include "platform/tekst/tekstblad.h"

#include <algorithm>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr double BladBreed = 210;
constexpr double BladHoog = 297;
constexpr std::size_t Tabbreedte = 8;

Tekst ZonderTabs(Tekstblik regel)
{
    Tekst uit;
    for (const char teken : regel) {
        if (teken == '\t')
            uit.append(Tabbreedte - uit.size() % Tabbreedte, ' ');
        else
            uit += teken;
    }
    return uit;
}

/// How much of a line fits: up to a blank where there is one behind the indent, else as many
/// characters as fit, and never none.
std::size_t Passend(Tekstblik regel, const Lettermeter& meter)
{
    constexpr double breed = BladBreed - 2 * Tekstbladrand;
    if (meter.Breedte(Tekstbladletter, regel) <= breed)
        return regel.size();
    std::size_t lengte = 1;
    while (lengte < regel.size() &&
           meter.Breedte(Tekstbladletter, regel.substr(0, lengte + 1)) <= breed)
        ++lengte;
    const auto inspringing = regel.find_first_not_of(' ');
    const auto blank = regel.rfind(' ', lengte);
    return blank != Tekstblik::npos && blank > inspringing ? blank : lengte;
}

void VoegRegelToe(std::vector<Tekst>& regels, Tekst regel, const Lettermeter& meter)
{
    // What goes on the next line begins where the line began.
    constexpr std::size_t diepste = 16;
    const Tekst inspringing(std::min(diepste, regel.find_first_not_of(' ')), ' ');
    for (;;) {
        const std::size_t lengte = Passend(regel, meter);
        regels.emplace_back(regel, 0, lengte);
        const auto verder = regel.find_first_not_of(' ', lengte);
        if (lengte >= regel.size() || verder == Tekst::npos)
            return;
        regel = inspringing + regel.substr(verder);
    }
}

} // namespace

std::vector<std::vector<Tekst>> Tekstbladen(Tekstblik tekst, const Lettermeter& meter)
{
    std::vector<Tekst> regels;
    for (const Tekstblik regel : Regels(tekst))
        VoegRegelToe(regels, ZonderTabs(regel), meter);
    const auto perBlad =
        static_cast<std::size_t>((BladHoog - 2 * Tekstbladrand) / meter.Hoogte(Tekstbladletter));
    std::vector<std::vector<Tekst>> bladen(1);
    for (Tekst& regel : regels) {
        if (bladen.back().size() == perBlad)
            bladen.emplace_back();
        bladen.back().push_back(std::move(regel));
    }
    return bladen;
}

void TekenTekstblad(Tekenvlak& vlak, const std::vector<Tekst>& regels)
{
    double y = Tekstbladrand;
    for (const Tekst& regel : regels) {
        vlak.Schrijf(Tekstbladrand, y, Tekstbladletter, regel);
        y += vlak.Meter().Hoogte(Tekstbladletter);
    }
}

} // namespace plexoran
