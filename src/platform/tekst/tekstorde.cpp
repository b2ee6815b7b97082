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

/// The letters that a character counts as; empty for what is none.
Tekstblik Letters(char teken)
{
    /// The plain capitals that 0xC0 to 0xDD count as; a blank where they are none, or two.
    constexpr Tekstblik kaleHoofdletters = "AAAAAA CEEEEIIIIDNOOOOO OUUUUY";
    constexpr Tekstblik alfabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    constexpr std::pair<char, Tekstblik> andere[] = {{'\xC6', "AE"}, {'\x8C', "OE"}, {'\xDF', "SS"},
                                                     {'\xDE', "TH"}, {'\x8A', "S"},  {'\x8E', "Z"},
                                                     {'\x9F', "Y"}};

    const char hoofdletter = Hoofdletter(teken);
    for (const auto& [ander, letters] : andere) {
        if (hoofdletter == ander)
            return letters;
    }
    const auto na = static_cast<std::size_t>(static_cast<unsigned char>(hoofdletter)) - 0xC0U;
    const char letter = na < kaleHoofdletters.size() ? kaleHoofdletters[na] : hoofdletter;
    const auto plek = alfabet.find(letter);
    return plek == Tekstblik::npos ? Tekstblik() : alfabet.substr(plek, 1);
}

/// Weight 0 is kept for the end of a text, so that it comes before every longer one.
std::array<Gewicht, 256> MaakGewichten()
{
    std::array<Gewicht, 256> gewichten{};
    unsigned char volgende = 1;
    gewichten[' '].eerste = volgende++;
    for (std::size_t i = 0; i < gewichten.size(); ++i) {
        if (i != ' ' && !IsCijfer(static_cast<char>(i)) && Letters(static_cast<char>(i)).empty())
            gewichten[i].eerste = volgende++;
    }
    for (std::size_t i = '0'; i <= '9'; ++i)
        gewichten[i].eerste = volgende++;
    for (std::size_t i = 0; i < gewichten.size(); ++i) {
        const Tekstblik letters = Letters(static_cast<char>(i));
        if (letters.empty())
            continue;
        gewichten[i].eerste = static_cast<unsigned char>(volgende + letters[0] - 'A');
        if (letters.size() == 2)
            gewichten[i].tweede = static_cast<unsigned char>(volgende + letters[1] - 'A');
    }
    return gewichten;
}

const auto gewichten = MaakGewichten();

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
