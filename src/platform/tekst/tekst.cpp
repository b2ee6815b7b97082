#include "platform/tekst/tekst.h"

#include <algorithm>
#include <array>

namespace plexoran {
namespace {

constexpr std::array<unsigned char, 256> MaakHoofdlettertabel()
{
    std::array<unsigned char, 256> tabel{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned hoofdletter = i;
        const bool gewoon = i >= 'a' && i <= 'z';
        const bool metTeken = i >= 0xE0 && i <= 0xFE && i != 0xF7; // 0xF7 is the division sign
        if (gewoon || metTeken)
            hoofdletter = i - 0x20;
        else if (i == 0x9A || i == 0x9C || i == 0x9E) // s caron, oe, z caron
            hoofdletter = i - 0x10;
        else if (i == 0xFF) // y diaeresis
            hoofdletter = 0x9F;
        tabel[i] = static_cast<unsigned char>(hoofdletter);
    }
    return tabel;
}

constexpr auto hoofdlettertabel = MaakHoofdlettertabel();

} // namespace

char Hoofdletter(char teken)
{
    return static_cast<char>(hoofdlettertabel[static_cast<unsigned char>(teken)]);
}

Tekst Hoofdletters(Tekstblik tekst)
{
    Tekst uit(tekst);
    std::transform(uit.begin(), uit.end(), uit.begin(), Hoofdletter);
    return uit;
}

Tekstblik ZonderSpaties(Tekstblik tekst)
{
    const auto begin = tekst.find_first_not_of(' ');
    if (begin == Tekstblik::npos)
        return {};
    return tekst.substr(begin, tekst.find_last_not_of(' ') - begin + 1);
}

bool IsBlanco(Tekstblik tekst)
{
    return tekst.find_first_not_of(' ') == Tekstblik::npos;
}

Tekst Vervang(Tekstblik tekst, char van, char door)
{
    Tekst uit(tekst);
    std::replace(uit.begin(), uit.end(), van, door);
    return uit;
}

Tekst AlsVeld(Tekstblik tekst)
{
    Tekst uit;
    VoegVeldToe(uit, tekst);
    return uit;
}

void VoegVeldToe(Tekst& uit, Tekstblik tekst)
{
    const std::size_t begin = uit.size();
    uit += tekst;
    for (std::size_t i = begin; i < uit.size(); ++i) {
        const char teken = uit[i];
        if (teken == ',')
            uit[i] = '_';
        else if (teken == '\r' || teken == '\n')
            uit[i] = ' ';
    }
}

Tekst MetNullen(std::int64_t getal, int breedte)
{
    Tekst cijfers = std::to_string(getal);
    if (getal < 0)
        cijfers.erase(0, 1); // the sign; the lowest number has no positive counterpart
    const auto doel = static_cast<std::size_t>(std::max(breedte, 0));
    if (cijfers.size() < doel)
        cijfers.insert(0, doel - cijfers.size(), '0');
    return getal < 0 ? "-" + cijfers : cijfers;
}

} // namespace plexoran
