#include "platform/tekstorde.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

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
    const auto isCijfer = [](std::size_t i) { return i >= '0' && i <= '9'; };
    for (std::size_t i = 0; i < gewichten.size(); ++i) {
        if (i != ' ' && !isCijfer(i) && Letters(static_cast<unsigned char>(i)).empty())
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

} // namespace

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

void Sorteer(std::vector<Tekst>& teksten)
{
    std::vector<std::pair<Tekst, std::size_t>> sleutels;
    sleutels.reserve(teksten.size());
    for (std::size_t i = 0; i < teksten.size(); ++i)
        sleutels.emplace_back(Sorteersleutel(teksten[i]), i);
    std::sort(sleutels.begin(), sleutels.end());
    std::vector<Tekst> gesorteerd;
    gesorteerd.reserve(teksten.size());
    for (const auto& [sleutel, plaats] : sleutels)
        gesorteerd.push_back(std::move(teksten[plaats]));
    teksten = std::move(gesorteerd);
}

} // namespace plexoran
