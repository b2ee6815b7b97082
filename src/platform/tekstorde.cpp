#include "platform/tekstorde.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "platform/grootgeheugen.h"

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

    /// The next eight weights, as a number that compares as they do.
    std::uint64_t Woord()
    {
        std::uint64_t woord = 0;
        for (std::size_t i = 0; i < sizeof(woord); ++i)
            woord = woord << 8U | Volgende();
        return woord;
    }

  private:
    Tekstblik tekst_;
    unsigned char tweede_ = 0;
};

/// Sorts many texts by some words of their weights at a time, and looks at the next words of those
/// only that are still alike.
class Sorteerder {
  public:
    explicit Sorteerder(std::span<const Tekstblik> teksten) : teksten_(teksten)
    {
        ReserveerGroot(woorden_, teksten.size());
        ReserveerGroot(koppen_, teksten.size());
        for (const Tekstblik tekst : teksten) {
            koppen_.push_back({0, static_cast<std::uint32_t>(woorden_.size())});
            woorden_.push_back(WoordenVan(Weger(tekst)));
        }
    }

    [[nodiscard]] std::vector<Tekstblik> Gesorteerd()
    {
        SorteerVanaf(koppen_, 0);
        std::vector<Tekstblik> uit;
        uit.reserve(koppen_.size());
        for (const Kop& kop : koppen_)
            uit.push_back(teksten_[kop.plaats]);
        return uit;
    }

  private:
    /// So many that most texts are told apart by them. They are taken in the order in which the
    /// texts lie in memory; the next ones are taken from all over it, and waiting for it takes
    /// longer than all else.
    static constexpr std::size_t WoordenTegelijk = 4;
    using Woorden = std::array<std::uint64_t, WoordenTegelijk>;

    /// A text in the list that is being sorted, and the word by which it is.
    struct Kop {
        std::uint64_t woord;
        std::uint32_t plaats; ///< of the text
    };

    static Woorden WoordenVan(Weger weger)
    {
        Woorden woorden;
        for (std::uint64_t& woord : woorden)
            woord = weger.Woord();
        return woorden;
    }

    static bool IsEinde(std::uint64_t woord) { return (woord & 0xFFU) == 0; }

    /// The weights of the text from word `diepte` on.
    [[nodiscard]] Weger Vanaf(std::uint32_t plaats, std::size_t diepte) const
    {
        Weger weger(teksten_[plaats]);
        for (std::size_t i = 0; i < diepte; ++i)
            (void)weger.Woord();
        return weger;
    }

    [[nodiscard]] bool KomtVoor(std::uint32_t een, std::uint32_t ander, std::size_t diepte) const;
    void SorteerVanaf(std::span<Kop> koppen, std::size_t diepte);
    void SorteerOpWoord(std::span<Kop> koppen);
    void SorteerOpBytes(std::span<Kop> koppen);

    std::span<const Tekstblik> teksten_;
    std::vector<Woorden> woorden_; ///< of each text the ones that are being compared
    std::vector<Kop> koppen_;
    std::vector<Kop> hulp_;
};

/// For texts that are alike up to word `diepte`.
bool Sorteerder::KomtVoor(std::uint32_t een, std::uint32_t ander, std::size_t diepte) const
{
    if (woorden_[een] != woorden_[ander])
        return woorden_[een] < woorden_[ander];
    Weger eenWeger = Vanaf(een, diepte);
    Weger anderWeger = Vanaf(ander, diepte);
    for (;;) {
        const unsigned char eenGewicht = eenWeger.Volgende();
        const unsigned char anderGewicht = anderWeger.Volgende();
        if (eenGewicht != anderGewicht)
            return eenGewicht < anderGewicht;
        if (eenGewicht == 0)
            return teksten_[een] < teksten_[ander];
    }
}

/// Sorts texts that are alike up to word `diepte`.
void Sorteerder::SorteerVanaf(std::span<Kop> koppen, std::size_t diepte)
{
    constexpr std::size_t weinig = 3; // to compare two texts reads each of them once, too
    constexpr std::size_t diepst = 8 * WoordenTegelijk;
    if (koppen.size() < weinig || diepte == diepst) {
        std::sort(koppen.begin(), koppen.end(), [&](const Kop& een, const Kop& ander) {
            return KomtVoor(een.plaats, ander.plaats, diepte);
        });
        return;
    }
    const std::size_t welk = diepte % WoordenTegelijk;
    for (Kop& kop : koppen) {
        if (welk == 0 && diepte > 0)
            woorden_[kop.plaats] = WoordenVan(Vanaf(kop.plaats, diepte));
        kop.woord = woorden_[kop.plaats][welk];
    }
    SorteerOpWoord(koppen);
    for (auto begin = koppen.begin(); begin != koppen.end();) {
        const auto eind = std::find_if(begin, koppen.end(),
                                       [&](const Kop& kop) { return kop.woord != begin->woord; });
        if (eind - begin > 1) {
            if (IsEinde(begin->woord))
                SorteerOpBytes({begin, eind});
            else
                SorteerVanaf({begin, eind}, diepte + 1);
        }
        begin = eind;
    }
}

void Sorteerder::SorteerOpBytes(std::span<Kop> koppen)
{
    std::sort(koppen.begin(), koppen.end(), [&](const Kop& een, const Kop& ander) {
        return teksten_[een.plaats] < teksten_[ander.plaats];
    });
}

/// Many are dealt out by the bytes of their words, the last one first: that takes as long for each
/// text however many there are, unlike comparing.
void Sorteerder::SorteerOpWoord(std::span<Kop> koppen)
{
    constexpr std::size_t veel = 1024;
    constexpr std::size_t bytes = sizeof(Kop::woord);
    constexpr std::size_t stapels = 256;
    if (koppen.size() < veel) {
        std::sort(koppen.begin(), koppen.end(),
                  [](const Kop& een, const Kop& ander) { return een.woord < ander.woord; });
        return;
    }
    const auto byteVan = [](const Kop& kop, std::size_t i) { return kop.woord >> 8 * i & 0xFFU; };
    std::array<std::array<std::uint32_t, stapels>, bytes> tel{};
    for (const Kop& kop : koppen) {
        for (std::size_t i = 0; i < bytes; ++i)
            ++tel[i][byteVan(kop, i)];
    }
    hulp_.resize(koppen_.size());
    std::span<Kop> van = koppen;
    std::span<Kop> naar = std::span(hulp_).first(koppen.size());
    for (std::size_t i = 0; i < bytes; ++i) {
        if (tel[i][byteVan(van.front(), i)] == van.size())
            continue; // they all have the same one
        std::uint32_t som = 0;
        for (std::uint32_t& begin : tel[i])
            som += std::exchange(begin, som);
        for (const Kop& kop : van)
            naar[tel[i][byteVan(kop, i)]++] = kop;
        std::swap(van, naar);
    }
    if (van.data() != koppen.data())
        std::copy(van.begin(), van.end(), koppen.begin());
}

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

void Sorteer(std::vector<Tekstblik>& teksten)
{
    teksten = Sorteerder(teksten).Gesorteerd();
}

void Sorteer(std::vector<Tekst>& teksten)
{
    std::vector<Tekstblik> blikken(teksten.begin(), teksten.end());
    Sorteer(blikken);
    teksten = std::vector<Tekst>(blikken.begin(), blikken.end());
}

} // namespace plexoran
