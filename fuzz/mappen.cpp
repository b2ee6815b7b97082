// Any text as a "Mappen.ini": values are parts of its lines, reading it twice changes nothing, and
// what was read can be written down and read again.
#include <array>
#include <utility>

#include "eis.h"
#include "register/mappen.h"

using namespace plexoran;

namespace {

using Tekstveld = std::pair<const char*, Tekst Mappen::*>;

constexpr std::array<Tekstveld, 10> tekstvelden{{
    {"RVDMAP=", &Mappen::RVDMAP},
    {"APPEXE=", &Mappen::APPEXE},
    {"ZITMAP=", &Mappen::ZITMAP},
    {"ADMMAP=", &Mappen::ADMMAP},
    {"INDMAP=", &Mappen::INDMAP},
    {"SPEMAP=", &Mappen::SPEMAP},
    {"COMMAP=", &Mappen::COMMAP},
    {"DFIMPG=", &Mappen::DFIMPG},
    {"WINMAP=", &Mappen::WINMAP},
    {"ODKEYS=", &Mappen::ODKEYS},
}};

void EisGelijk(const Mappen& een, const Mappen& twee, const char* wat)
{
    for (const auto& [sleutel, veld] : tekstvelden)
        Eis(een.*veld == twee.*veld, wat);
    Eis(een.NEWPAGR == twee.NEWPAGR && een.NBB28UIT == twee.NBB28UIT, wat);
}

/// The keys in the other order than that of the reader, in small letters.
Tekst Opgeschreven(const Mappen& mappen)
{
    Tekst tekst = "nbb28uit=" + std::to_string(mappen.NBB28UIT) + "\n";
    tekst += "newpagr=" + std::to_string(mappen.NEWPAGR) + "\n";
    for (auto plaats = tekstvelden.rbegin(); plaats != tekstvelden.rend(); ++plaats) {
        for (Tekst sleutel = plaats->first; const char teken : sleutel)
            tekst += teken >= 'A' && teken <= 'Z' ? static_cast<char>(teken + 32) : teken;
        tekst += mappen.*(plaats->second) + "\n";
    }
    return tekst;
}

/// A line with the key decides, whatever its number; without one the value from before stays.
void EisLaatsteRegelWint(const Tekst& inhoud, const Tekst& sleutel, std::int16_t Mappen::*veld)
{
    const Tekst regels = "\n" + Vervang(Hoofdletters(inhoud), '\r', '\n');
    const bool staatErin = regels.find("\n" + sleutel) != Tekst::npos;
    const std::int16_t verwacht = staatErin ? MappenUit(inhoud).*veld : std::int16_t{7};
    Eis(MappenUit(sleutel + "7\n" + inhoud).*veld == verwacht, "de laatste regel wint");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    const Mappen mappen = MappenUit(inhoud);
    for (const auto& [sleutel, veld] : tekstvelden) {
        const Tekst& waarde = mappen.*veld;
        Eis(waarde.find_first_of("\r\n") == Tekst::npos, "een waarde is een deel van een regel");
        Eis(waarde.empty() || inhoud.find("=" + waarde) != Tekst::npos, "een waarde staat er zo");
    }
    EisGelijk(MappenUit(inhoud + "\n" + inhoud), mappen, "nog eens hetzelfde");
    EisGelijk(MappenUit("SPEMAP=x\nNEWPAGR=1\n" + Opgeschreven(mappen)), mappen, "opgeschreven");

    EisLaatsteRegelWint(inhoud, "NEWPAGR=", &Mappen::NEWPAGR);
    EisLaatsteRegelWint(inhoud, "NBB28UIT=", &Mappen::NBB28UIT);

    const Pad pad = MappenIniPad(inhoud);
    Eis(pad.ends_with("Mappen.ini"), "de naam van het bestand");
    const Tekst map = pad.substr(0, pad.size() - 10);
    const bool erboven = inhoud.find("Admin") != Tekst::npos;
    Eis(erboven ? inhoud.starts_with(map) : map == inhoud + "\\", "in de map of erboven");
    return 0;
}
