#include "exchange/etiketvel.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr double A4Breed = 210;
constexpr double A4Hoog = 297;
constexpr double Afronding = 0.005;  // half of the last digit that can be given
constexpr double Wit = 2.5;          // between the side of a label and its text
constexpr double Printerrand = 5;    // of the sheet, which no printer reaches
constexpr double MinsteBreedte = 15; // of the text
constexpr double MinsteHoogte = 11.1;
constexpr double Lijndikte = 0.1;

constexpr std::array<Tekstblik, Etiketmaten.size()> Sleutels{
    "KOLOMMEN=", "RIJEN=", "BREED=", "HOOG=", "LINKS=", "BOVEN=", "STAPOPZIJ=", "STAPOMLAAG="};

/// A line's letter when there is room, and the smallest that can be read.
struct Lettermaat {
    Letter letter;
    double kleinste;
};
constexpr Lettermaat Adresletter{{.punten = 11}, 7};
constexpr std::array<Lettermaat, 3> Naamkaartletters{
    {{{.punten = 26, .vet = true}, 12}, {{.punten = 26, .vet = true}, 12}, {{.punten = 10}, 7}}};

/// What of a label may bear text, from its top left corner; the same of all, so that they look
/// alike.
struct Tekstvak {
    explicit Tekstvak(const Etiketmaat& maat)
        : x(Rand(maat.links)), y(Rand(maat.boven)),
          breed(maat.breed - x - Rand(A4Breed - maat.Rechts())),
          hoog(maat.hoog - y - Rand(A4Hoog - maat.Onder()))
    {}
    static double Rand(double totPapierrand) { return std::max(Wit, Printerrand - totPapierrand); }

    double x;
    double y;
    double breed;
    double hoog;
};

/// Written with a point or a comma; no measure of A4 is outside these.
std::optional<double> Getal(Tekstblik tekst)
{
    const Tekst getal = Vervang(ZonderSpaties(tekst), ',', '.');
    double uit = -1;
    const char* eind = getal.data() + getal.size();
    const auto tot = std::from_chars(getal.data(), eind, uit, std::chars_format::fixed).ptr;
    return tot == eind && uit >= 0 && uit <= A4Hoog ? std::optional(uit) : std::nullopt;
}

} // namespace

bool Etiketmaat::IsGoed() const
{
    const Tekstvak tekst(*this);
    return Rechts() <= A4Breed + Afronding && Onder() <= A4Hoog + Afronding &&
           (kolommen == 1 || stapOpzij >= breed - Afronding) &&
           (rijen == 1 || stapOmlaag >= hoog - Afronding) && tekst.breed >= MinsteBreedte &&
           tekst.hoog >= MinsteHoogte;
}

Uitkomst<Etiketmaat> EtiketmaatUit(Tekstblik inhoud)
{
    Etiketmaat uit;
    const auto regels = Regels(inhoud);
    for (std::size_t i = 0; i < std::max(regels.size(), Sleutels.size()); ++i) {
        const bool hoort =
            i < Sleutels.size() && i < regels.size() && regels[i].starts_with(Sleutels[i]);
        const auto getal = hoort ? Getal(regels[i].substr(Sleutels[i].size())) : std::nullopt;
        if (!getal || (i < 2 && (*getal < 1 || *getal != std::floor(*getal))))
            return Mislukt({.soort = Foutsoort::Beschadigd, .regel = static_cast<int>(i) + 1});
        uit.*Etiketmaten[i] = *getal;
    }
    if (!uit.IsGoed())
        return Mislukt({.soort = Foutsoort::Beschadigd});
    return uit;
}

Tekst EtiketmaatTekst(const Etiketmaat& maat)
{
    Tekst uit;
    for (std::size_t i = 0; i < Sleutels.size(); ++i) {
        std::array<char, 32> getal{};
        const auto eind =
            std::to_chars(getal.data(), getal.data() + getal.size(), maat.*Etiketmaten[i]).ptr;
        uit.append(Sleutels[i]).append(getal.data(), eind).append("\r\n");
    }
    return uit;
}

// ---------------------------------------------------------------- the sheets

int Etiketwerk::Bladen() const
{
    const int plekken = eerste - 1 + static_cast<int>(etiketten.size());
    return std::max(1, (plekken + maat.PerVel() - 1) / maat.PerVel());
}

namespace {

/// Makes a line fit in the width.
void Pas(Etiketregel& regel, double breed, double kleinste, const Lettermeter& meter)
{
    constexpr double speling = 1e-6; // of reckoning with fractions
    const double nu = meter.Breedte(regel.letter, regel.tekst);
    if (nu <= breed)
        return;
    double& punten = regel.letter.punten;
    punten = std::max(std::min(kleinste, punten), punten * breed / nu);
    Tekst kort = Ingekort(regel.tekst, breed + speling,
                          [&](Tekstblik deel) { return meter.Breedte(regel.letter, deel); });
    regel.ingekort = kort != regel.tekst;
    regel.tekst = std::move(kort);
}

void TekenKader(Tekenvlak& vlak, double x, double y, const Etiketmaat& maat, Kleur kleur)
{
    for (const double lijn : {y, y + maat.hoog})
        vlak.Lijn(x, lijn, x + maat.breed, lijn, kleur, Lijndikte);
    for (const double lijn : {x, x + maat.breed})
        vlak.Lijn(lijn, y, lijn, y + maat.hoog, kleur, Lijndikte);
}

} // namespace

std::vector<Etiketregel> PasEtiket(const Etiketwerk& werk, const Etiket& etiket,
                                   const Lettermeter& meter)
{
    const Tekstvak vak(werk.maat);
    const auto maat = [&](std::size_t i) {
        return werk.naamkaarten ? Naamkaartletters.at(i) : Adresletter;
    };
    double hoog = 0;
    for (std::size_t i = 0; i < etiket.size(); ++i)
        hoog += etiket[i].empty() ? 0 : meter.Hoogte(maat(i).letter);
    const double factor = hoog > vak.hoog ? vak.hoog / hoog : 1;
    double y = vak.y + (vak.hoog - hoog * factor) / 2;
    std::vector<Etiketregel> uit;
    for (std::size_t i = 0; i < etiket.size(); ++i) {
        if (etiket[i].empty())
            continue;
        Etiketregel regel{.x = vak.x, .letter = maat(i).letter, .tekst = etiket[i]};
        const double regelhoogte = meter.Hoogte(regel.letter) * factor;
        regel.letter.punten *= factor;
        Pas(regel, vak.breed, maat(i).kleinste, meter);
        regel.y = y + (regelhoogte - meter.Hoogte(regel.letter)) / 2;
        if (werk.naamkaarten)
            regel.x += (vak.breed - meter.Breedte(regel.letter, regel.tekst)) / 2;
        uit.push_back(std::move(regel));
        y += regelhoogte;
    }
    return uit;
}

void TekenEtiketten(Tekenvlak& vlak, const Etiketwerk& werk, int blad,
                    const std::optional<Kleur>& kader)
{
    const Etiketmaat& maat = werk.maat;
    const int kolommen = static_cast<int>(maat.kolommen);
    for (int plek = 0; plek < maat.PerVel(); ++plek) {
        const double x = maat.links + plek % kolommen * maat.stapOpzij;
        const double y = maat.boven + plek / kolommen * maat.stapOmlaag;
        if (kader)
            TekenKader(vlak, x, y, maat, *kader);
        const int nummer = (blad - 1) * maat.PerVel() + plek - (werk.eerste - 1);
        if (nummer < 0 || nummer >= static_cast<int>(werk.etiketten.size()) || !maat.IsGoed())
            continue;
        const Etiket& etiket = werk.etiketten[static_cast<std::size_t>(nummer)];
        for (const Etiketregel& regel : PasEtiket(werk, etiket, vlak.Meter()))
            vlak.Schrijf(x + regel.x, y + regel.y, regel.letter, regel.tekst);
    }
}

} // namespace plexoran
