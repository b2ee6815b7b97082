#include "platform/tekst/tekst.h"

#include <algorithm>
#include <array>
#include <limits>

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

/// Takes the digits at the beginning off the text.
Tekstblik NeemCijfers(Tekstblik& tekst)
{
    const auto eind = std::find_if_not(tekst.begin(), tekst.end(), IsCijfer);
    const Tekstblik cijfers(tekst.begin(), eind);
    tekst.remove_prefix(cijfers.size());
    return cijfers;
}

/// The rounded value; nothing as soon as it is larger than any caller accepts.
std::optional<std::int64_t> GeheelAanBegin(Tekstblik tekst)
{
    constexpr std::int64_t ruimBuitenBereik = 1'000'000'000'000;
    tekst.remove_prefix(std::min(tekst.find_first_not_of(' '), tekst.size()));
    const bool negatief = tekst.starts_with('-');
    if (negatief || tekst.starts_with('+'))
        tekst.remove_prefix(1);

    std::int64_t waarde = 0;
    for (const char cijfer : NeemCijfers(tekst)) {
        waarde = waarde * 10 + (cijfer - '0');
        if (waarde > ruimBuitenBereik)
            return std::nullopt;
    }
    Tekstblik breuk;
    if (tekst.starts_with('.')) {
        tekst.remove_prefix(1);
        breuk = NeemCijfers(tekst);
        breuk = breuk.substr(0, breuk.find_last_not_of('0') + 1);
    }
    if (breuk > "5" || (breuk == "5" && waarde % 2 != 0))
        ++waarde;
    return negatief ? -waarde : waarde;
}

template <class Int> std::optional<Int> Passend(Tekstblik tekst)
{
    const auto waarde = GeheelAanBegin(tekst);
    if (!waarde || *waarde < std::numeric_limits<Int>::min() ||
        *waarde > std::numeric_limits<Int>::max())
        return std::nullopt;
    return static_cast<Int>(*waarde);
}

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

std::optional<std::int16_t> Geheel16(Tekstblik tekst)
{
    return Passend<std::int16_t>(tekst);
}

std::optional<std::int32_t> Geheel32(Tekstblik tekst)
{
    return Passend<std::int32_t>(tekst);
}

bool BegintMetGetal(Tekstblik tekst)
{
    tekst = ZonderSpaties(tekst);
    for (const Tekstblik ervoor : {"+-", "."}) {
        if (!tekst.empty() && ervoor.find(tekst.front()) != Tekstblik::npos)
            tekst.remove_prefix(1);
    }
    return !tekst.empty() && IsCijfer(tekst.front());
}

std::optional<Tekst> AlsGetal(Tekstblik tekst, std::size_t breedte)
{
    Tekstblik cijfers = ZonderSpaties(tekst);
    if (cijfers.empty() || !std::all_of(cijfers.begin(), cijfers.end(), IsCijfer))
        return std::nullopt;
    cijfers.remove_prefix(std::min(cijfers.find_first_not_of('0'), cijfers.size() - 1));
    Tekst uit(breedte - std::min(breedte, cijfers.size()), '0');
    uit += cijfers;
    return uit;
}

} // namespace plexoran
