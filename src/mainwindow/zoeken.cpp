#include "mainwindow/zoeken.h"

#include <algorithm>

namespace plexoran {
namespace {

/// The first two decide the order.
constexpr std::array Namen{Kolom::Achternaam, Kolom::Voornaam, Kolom::Tusv};
/// In the order of a line.
constexpr std::array Gegevens{Kolom::NBBgr,  Kolom::Telef, Kolom::Email, Kolom::Adres, Kolom::Postc,
                              Kolom::Plaats, Kolom::NBBnr, Kolom::Key,   Kolom::Status};

/// What a character is compared by.
struct Kaalteken {
    std::array<char, 2> tekens;
    std::uint8_t aantal;
};

const std::array<Kaalteken, 256> Kaal = [] {
    std::array<Kaalteken, 256> uit{};
    for (std::size_t code = 0; code < uit.size(); ++code) {
        Tekst letters = Letters(static_cast<char>(code));
        if (letters.empty())
            letters = static_cast<char>(code);
        uit[code].aantal = static_cast<std::uint8_t>(letters.size());
        std::copy(letters.begin(), letters.end(), uit[code].tekens.begin());
    }
    return uit;
}();

/// Puts what is compared of a character at `naar`, where there is room for two.
char* Vouw(char teken, char* naar)
{
    const Kaalteken& kaal = Kaal[static_cast<unsigned char>(teken)];
    naar[0] = kaal.tekens[0];
    naar[1] = kaal.tekens[1];
    return naar + kaal.aantal;
}

/// What is looked in, cell by cell. One for all rows, so that no row asks for memory.
class Klad {
  public:
    void Leeg() { lengte_ = 0; }
    [[nodiscard]] std::size_t Lengte() const { return lengte_; }
    [[nodiscard]] Tekstblik Vanaf(std::size_t begin) const
    {
        return {vak_.data() + begin, lengte_ - begin};
    }
    void Voeg(Tekstblik cel, Kolom kolom)
    {
        char* naar = MaakRuimte(2 * cel.size() + 1);
        char* eind = naar;
        for (const char teken : cel)
            eind = Vouw(teken, eind);
        Sluit(kolom == Kolom::Postc ? std::remove(naar, eind, ' ') : eind);
    }
    void VoegCijfers(Tekstblik cel)
    {
        char* naar = MaakRuimte(cel.size() + 1);
        Sluit(std::copy_if(cel.begin(), cel.end(), naar, IsCijfer));
    }

  private:
    [[nodiscard]] char* MaakRuimte(std::size_t meer)
    {
        if (vak_.size() < lengte_ + meer)
            vak_.resize(2 * (lengte_ + meer));
        return vak_.data() + lengte_;
    }
    /// By what no word holds.
    void Sluit(char* eind)
    {
        *eind++ = ',';
        lengte_ = static_cast<std::size_t>(eind - vak_.data());
    }

    Tekst vak_;
    std::size_t lengte_ = 0;
};

enum class Rang : std::size_t { Achternaam, Voornaam, Rest, Nergens };

/// Most rows are decided by their names: the rest is looked at only where a word is missing yet.
Rang RangVan(const Spelertabel& tabel, int rij, const Zoekwoorden& woorden, Klad& klad)
{
    klad.Leeg();
    std::array<std::size_t, Namen.size()> begin{};
    for (std::size_t i = 0; i < Namen.size(); ++i) {
        begin[i] = klad.Lengte();
        klad.Voeg(tabel.Cel(rij, Namen[i]), Namen[i]);
    }
    const auto bevat = [](Tekstblik in) {
        return [in](const Zoekwoord& woord) { return in.find(woord.kaal) != Tekstblik::npos; };
    };
    if (!std::ranges::all_of(woorden, bevat(klad.Vanaf(0)))) {
        for (const Kolom kolom : Gegevens)
            klad.Voeg(tabel.Cel(rij, kolom), kolom);
        const std::size_t nummer = klad.Lengte();
        klad.VoegCijfers(tabel.Cel(rij, Kolom::Telef));
        const auto staatErin = [&](const Zoekwoord& woord) {
            return bevat(klad.Vanaf(0))(woord) ||
                   (!woord.cijfers.empty() &&
                    klad.Vanaf(nummer).find(woord.cijfers) != Tekstblik::npos);
        };
        if (!std::ranges::all_of(woorden, staatErin))
            return Rang::Nergens;
    }
    for (const Rang rang : {Rang::Achternaam, Rang::Voornaam}) {
        const Tekstblik naam = klad.Vanaf(begin[static_cast<std::size_t>(rang)]);
        if (std::ranges::any_of(woorden, [&](auto& woord) { return naam.starts_with(woord.kaal); }))
            return rang;
    }
    return Rang::Rest;
}

/// Marks in `merk` where `gezocht` stands in the characters of `cel` that `telt` lets through.
template <class Telt>
void Merk(std::vector<bool>& merk, Tekstblik cel, Tekstblik gezocht, const Telt& telt)
{
    Tekst kaal;
    std::vector<std::size_t> plekken; // in the cell, of each character of `kaal`
    for (std::size_t i = 0; i < cel.size(); ++i) {
        std::array<char, 2> deel{};
        if (telt(cel[i]))
            kaal.append(deel.data(), Vouw(cel[i], deel.data()));
        plekken.resize(kaal.size(), i);
    }
    if (gezocht.empty())
        return;
    for (auto plek = kaal.find(gezocht); plek != Tekst::npos; plek = kaal.find(gezocht, plek + 1)) {
        for (std::size_t i = plekken[plek]; i <= plekken[plek + gezocht.size() - 1]; ++i)
            merk[i] = true;
    }
}

std::vector<bool> Merken(Tekstblik cel, Kolom kolom, const Zoekwoorden& woorden)
{
    std::vector<bool> merk(cel.size());
    for (const Zoekwoord& woord : woorden) {
        Merk(merk, cel, woord.kaal,
             [&](char teken) { return teken != ' ' || kolom != Kolom::Postc; });
        if (kolom == Kolom::Telef)
            Merk(merk, cel, woord.cijfers, IsCijfer);
    }
    return merk;
}

/// Adds a text to a line with what is marked of it: of a long one in a short line as much as
/// reaches a little beyond its marks, or its beginning.
void Voeg(Zoekregel& regel, Tekstblik scheiding, Tekstblik tekst, const std::vector<bool>& merk,
          bool kort)
{
    constexpr std::size_t lang = 30;
    constexpr std::size_t buurt = 8;
    if (tekst.empty())
        return;
    std::size_t begin = 0;
    std::size_t eind = tekst.size();
    if (kort && eind > lang) {
        const auto eerste = static_cast<std::size_t>(std::ranges::find(merk, true) - merk.begin());
        const auto na = static_cast<std::size_t>(
            merk.rend() - std::find(merk.rbegin(), merk.rend(), true)); // the last one
        begin = na == 0 ? 0 : eerste - std::min(eerste, buurt);
        eind = std::min(eind, na == 0 ? lang : na + buurt);
    }
    if (!regel.tekst.empty())
        regel.tekst += scheiding;
    if (begin > 0)
        regel.tekst += "...";
    for (std::size_t i = begin; i < eind; ++i) {
        if (merk[i] && (i == 0 || !merk[i - 1]))
            regel.merken.emplace_back(regel.tekst.size(), 0);
        if (merk[i])
            ++regel.merken.back().second;
        regel.tekst += tekst[i];
    }
    if (eind < tekst.size())
        regel.tekst += "...";
}

} // namespace

Zoekwoorden ZoekwoordenUit(Tekstblik getypt)
{
    Zoekwoorden woorden;
    while (!getypt.empty()) {
        const Tekstblik woord = getypt.substr(0, getypt.find_first_of(" ,"));
        getypt.remove_prefix(std::min(woord.size() + 1, getypt.size()));
        if (woord.empty())
            continue;
        Zoekwoord uit;
        std::array<char, 2> deel{};
        for (const char teken : woord)
            uit.kaal.append(deel.data(), Vouw(teken, deel.data()));
        if (woord.find_first_not_of("0123456789+-()/.") == Tekstblik::npos)
            std::ranges::copy_if(woord, std::back_inserter(uit.cijfers), IsCijfer);
        woorden.push_back(std::move(uit));
    }
    return woorden;
}

std::vector<int> ZoekSpelers(const Spelertabel& tabel, const Zoekwoorden& woorden)
{
    std::array<std::vector<int>, 3> rijen;
    Klad klad;
    for (int rij = 1; !woorden.empty() && rij <= tabel.Rijen(); ++rij) {
        const Rang rang = RangVan(tabel, rij, woorden, klad);
        if (rang != Rang::Nergens)
            rijen[static_cast<std::size_t>(rang)].push_back(rij);
    }
    for (const std::size_t rang : {1U, 2U})
        rijen[0].insert(rijen[0].end(), rijen[rang].begin(), rijen[rang].end());
    return std::move(rijen[0]);
}

Zoekregel MaakZoekregel(const Spelertabel& tabel, const Groepen& groepen, int rij,
                        const Zoekwoorden& woorden, bool kort)
{
    Zoekregel regel;
    for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam})
        Voeg(regel, " ", tabel.Cel(rij, kolom), Merken(tabel.Cel(rij, kolom), kolom, woorden),
             kort);
    const Tekstblik code = tabel.Cel(rij, Kolom::Groep);
    const int nummer = Groepnummer(code);
    const Tekst groep = nummer == 0 ? Tekst(code) : groepen.Toontekst(nummer);
    Voeg(regel, ", ", groep, std::vector<bool>(groep.size()), kort);
    for (const bool voorop : {true, false}) {
        for (const Kolom kolom : Gegevens) {
            const Tekstblik cel = tabel.Cel(rij, kolom);
            const auto merk = Merken(cel, kolom, woorden);
            const bool antwoordt = kort && std::ranges::find(merk, true) != merk.end();
            if (antwoordt == voorop)
                Voeg(regel, ", ", cel, merk, kort);
        }
    }
    return regel;
}

} // namespace plexoran
