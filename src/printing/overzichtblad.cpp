#include "printing/overzichtblad.h"

#include <algorithm>

#include "platform/tekst/tekstblad.h"
#include "printing/printblad.h"

namespace plexoran {

void TekenOverzicht(Tekenvlak& vlak, Tekstblik titel, const std::vector<Overzichtregel>& regels)
{
    constexpr double boven = Tekstbladrand + 12; // below the title
    constexpr double ruim = 4.3;                 // from line to line
    constexpr double tussen = 6;                 // columns
    const auto perKolom = static_cast<std::size_t>((A4Lang - boven - Tekstbladrand) / ruim);
    const auto kolommen = std::clamp<std::size_t>((regels.size() + perKolom - 1) / perKolom, 1, 3);
    const std::size_t hoog = std::max(perKolom, (regels.size() + kolommen - 1) / kolommen);
    const double stap = ruim * static_cast<double>(perKolom) / static_cast<double>(hoog);
    const double breed =
        (A4Kort - 2 * Tekstbladrand + tussen) / static_cast<double>(kolommen) - tussen;
    const double naam = breed / 2; // the number behind it, and then the bar
    const Letter gewoon{.punten = 2 * stap};
    const auto breedte = [&vlak](const Letter& letter) {
        return [&vlak, letter](Tekstblik tekst) { return vlak.Meter().Breedte(letter, tekst); };
    };
    const double getallen = breedte(gewoon)("0000000");
    vlak.Schrijf(Tekstbladrand, Tekstbladrand, {.punten = 14, .vet = true}, titel);
    const auto meeste = std::max<std::size_t>(1, regels.empty() ? 0 : regels[0].aantal.value_or(0));
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const Overzichtregel& regel = regels[i];
        const Letter letter{.punten = gewoon.punten, .vet = regel.diepte == 0};
        const double links = Tekstbladrand + static_cast<double>(i / hoog) * (breed + tussen);
        const double y = boven + static_cast<double>(i % hoog) * stap;
        const double inspringing = regel.diepte * stap;
        vlak.Schrijf(links + inspringing, y, letter,
                     Ingekort(regel.tekst, naam - inspringing - 1, breedte(letter)));
        if (!regel.aantal)
            continue;
        const Tekst aantal = std::to_string(*regel.aantal);
        const double balk = links + naam + getallen;
        vlak.Schrijf(balk - 1 - breedte(gewoon)(aantal), y, gewoon, aantal);
        const double deel =
            std::min(1.0, static_cast<double>(*regel.aantal) / static_cast<double>(meeste));
        if (*regel.aantal > 0)
            vlak.Lijn(balk, y + stap / 2, balk + deel * (links + breed - balk), y + stap / 2,
                      Lijnkleur, stap / 2);
    }
}

} // namespace plexoran
