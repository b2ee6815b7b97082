#include "platform/tekst/tekst.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace plexoran {
namespace {

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

Tekst Letters(char teken)
{
    /// The plain capitals that 0xC0 to 0xDD count as; a blank where they are none, or two.
    constexpr Tekstblik kaleHoofdletters = "AAAAAA CEEEEIIIIDNOOOOO OUUUUY";
    constexpr std::pair<char, const char*> andere[] = {
        {'\xC6', "AE"}, {'\x8C', "OE"}, {'\xDF', "SS"}, {'\xDE', "TH"},
        {'\x8A', "S"},  {'\x8E', "Z"},  {'\x9F', "Y"}};

    const char hoofdletter = Hoofdletter(teken);
    for (const auto& [ander, letters] : andere) {
        if (hoofdletter == ander)
            return letters;
    }
    const auto na = static_cast<std::size_t>(static_cast<unsigned char>(hoofdletter)) - 0xC0U;
    const char letter = na < kaleHoofdletters.size() ? kaleHoofdletters[na] : hoofdletter;
    return letter >= 'A' && letter <= 'Z' ? Tekst(1, letter) : Tekst();
}

char Hoofdletter(char teken)
{
    const auto code = static_cast<unsigned char>(teken);
    const bool gewoon = code >= 'a' && code <= 'z';
    const bool metTeken = code >= 0xE0 && code <= 0xFE && code != 0xF7; // 0xF7: division sign
    if (gewoon || metTeken)
        return static_cast<char>(code - 0x20);
    if (code == 0x9A || code == 0x9C || code == 0x9E) // s caron, oe, z caron
        return static_cast<char>(code - 0x10);
    return code == 0xFF ? '\x9F' : teken; // y diaeresis
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

void Sorteer(std::vector<Tekst>& teksten)
{
    std::ranges::transform(teksten, teksten.begin(), Sorteersleutel);
    std::ranges::sort(teksten);
    for (Tekst& sleutel : teksten)
        sleutel.erase(0, sleutel.find('\0') + 1);
}

Tekst Sorteersleutel(Tekstblik tekst)
{
    // A sort before each weight, of which 0 is kept for the end: it comes before all that goes on.
    enum : char { Einde, Blank, Leesteken, Cijfer, Letter };
    static const auto gewichten = [] {
        std::array<Tekst, 256> uit;
        for (std::size_t code = 0; code < uit.size(); ++code) {
            const char teken = static_cast<char>(code);
            for (const char deel : Letters(teken))
                (uit[code] += Letter) += deel;
            if (teken == ' ')
                uit[code] += Blank;
            else if (uit[code].empty())
                (uit[code] += IsCijfer(teken) ? Cijfer : Leesteken) += static_cast<char>(code + 1);
        }
        return uit;
    }();
    Tekst sleutel(4 * tekst.size(), Einde); // no character has more than two letters
    char* eind = sleutel.data();
    for (const char teken : tekst) {
        for (const char deel : gewichten[static_cast<unsigned char>(teken)])
            *eind++ = deel;
    }
    sleutel.erase(static_cast<std::size_t>(eind - sleutel.data()));
    return (sleutel += Einde) += tekst;
}

Tekst Gewichten(Tekstblik tekst)
{
    Tekst sleutel = Sorteersleutel(tekst);
    sleutel.resize(sleutel.find('\0'));
    return sleutel;
}

Tekst KaleWoorden(Tekstblik tekst)
{
    static const auto kaal = [] {
        std::array<Tekst, 256> uit;
        for (std::size_t code = 0; code < uit.size(); ++code) {
            const char teken = static_cast<char>(code);
            uit[code] = IsCijfer(teken) ? Tekst(1, teken) : Letters(teken);
        }
        return uit;
    }();
    Tekst uit;
    bool nieuwWoord = false;
    for (const char teken : tekst) {
        const Tekst& deel = kaal[static_cast<unsigned char>(teken)];
        if (!deel.empty() && nieuwWoord)
            uit += ' ';
        nieuwWoord = deel.empty() && !uit.empty();
        uit += deel;
    }
    return uit;
}

} // namespace plexoran
