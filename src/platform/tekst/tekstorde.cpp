#include "platform/tekst/tekstorde.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

/// What a character counts as: one weight, or two for a character that stands for two letters.
struct Gewicht {
    unsigned char eerste = 0;
    unsigned char tweede = 0;
};

/// The plain capitals that the accented capitals 0xC0 to 0xDE count as; a blank where the place is
/// not a letter, a digit where it stands for two letters, below.
constexpr Tekstblik kaleHoofdletters = "AAAAAA1CEEEEIIIIDNOOOOO OUUUUY2";

/// The letters a capital or lower-case letter counts as; empty for other characters.
constexpr Tekstblik Letters(unsigned char teken)
{
    constexpr Tekstblik alfabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const auto een = [&](char letter) {
        return alfabet.substr(static_cast<std::size_t>(letter - 'A'), 1);
    };
    if (teken >= 'A' && teken <= 'Z')
        return een(static_cast<char>(teken));
    if (teken >= 'a' && teken <= 'z')
        return een(static_cast<char>(teken - 0x20));
    switch (teken) {
    case 0xC6:
    case 0xE6:
        return "AE";
    case 0x8C:
    case 0x9C:
        return "OE";
    case 0xDF:
        return "SS";
    case 0xDE:
    case 0xFE:
        return "TH";
    case 0x8A:
    case 0x9A:
        return "S";
    case 0x8E:
    case 0x9E:
        return "Z";
    case 0x9F:
    case 0xFF:
        return "Y";
    case 0xD7:
    case 0xF7: // the signs for times and divided by
        return {};
    default:
        break;
    }
    if (teken < 0xC0)
        return {};
    const auto plaats = static_cast<std::size_t>(teken >= 0xE0 ? teken - 0xE0 : teken - 0xC0);
    return een(kaleHoofdletters[plaats]);
}

/// Weight 0 is kept for the end of a text, so that it comes before every longer one.
constexpr std::array<Gewicht, 256> MaakGewichten()
{
    std::array<Gewicht, 256> gewichten{};
    unsigned char volgende = 1;
    gewichten[' '].eerste = volgende++;
    for (std::size_t i = 0; i < gewichten.size(); ++i) {
        if (i != ' ' && !IsCijfer(static_cast<char>(i)) &&
            Letters(static_cast<unsigned char>(i)).empty())
            gewichten[i].eerste = volgende++;
    }
    for (std::size_t i = '0'; i <= '9'; ++i)
        gewichten[i].eerste = volgende++;
    for (std::size_t i = 0; i < gewichten.size(); ++i) {
        const Tekstblik letters = Letters(static_cast<unsigned char>(i));
        if (letters.empty())
            continue;
        gewichten[i].eerste = static_cast<unsigned char>(volgende + letters[0] - 'A');
        if (letters.size() == 2)
            gewichten[i].tweede = static_cast<unsigned char>(volgende + letters[1] - 'A');
    }
    return gewichten;
}

constexpr auto gewichten = MaakGewichten();

/// Hands out the weights of a text one by one, and zeros behind its end.
class Weger {
  public:
    explicit Weger(Tekstblik tekst) : tekst_(tekst) {}

    unsigned char Volgende()
    {
        if (tweede_ != 0)
            return std::exchange(tweede_, 0);
        if (tekst_.empty())
            return 0;
        const Gewicht gewicht = gewichten[static_cast<unsigned char>(tekst_.front())];
        tekst_.remove_prefix(1);
        tweede_ = gewicht.tweede;
        return gewicht.eerste;
    }

  private:
    Tekstblik tekst_;
    unsigned char tweede_ = 0;
};

} // namespace

bool KomtVoor(Tekstblik een, Tekstblik ander)
{
    // What is alike to the byte weighs the same.
    const auto [eenRest, anderRest] =
        std::mismatch(een.begin(), een.end(), ander.begin(), ander.end());
    Weger eenWeger({eenRest, een.end()});
    Weger anderWeger({anderRest, ander.end()});
    for (;;) {
        const unsigned char eenGewicht = eenWeger.Volgende();
        const unsigned char anderGewicht = anderWeger.Volgende();
        if (eenGewicht != anderGewicht)
            return eenGewicht < anderGewicht;
        if (eenGewicht == 0)
            return een < ander;
    }
}

void Sorteer(std::vector<Tekst>& teksten)
{
    std::sort(teksten.begin(), teksten.end(), KomtVoor);
}

Tekst Sorteersleutel(Tekstblik tekst)
{
    Tekst sleutel;
    sleutel.reserve(2 * tekst.size() + 2);
    for (const char teken : tekst) {
        const Gewicht gewicht = gewichten[static_cast<unsigned char>(teken)];
        sleutel += static_cast<char>(gewicht.eerste);
        if (gewicht.tweede != 0)
            sleutel += static_cast<char>(gewicht.tweede);
    }
    sleutel += '\0';
    sleutel += tekst;
    return sleutel;
}

} // namespace plexoran
