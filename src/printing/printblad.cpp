#include "printing/printblad.h"

namespace plexoran {
namespace {

/// A column is as wide as its widest text, its title in bold among them.
std::vector<float> Kolombegin(const Printtabel& tabel, const Schaalmaten& maten,
                              const Lettermeter& meter)
{
    const auto breed = [&](const Letter& letter, Tekstblik tekst) {
        return static_cast<float>(meter.Breedte(letter, tekst));
    };
    std::vector<float> begin{0};
    for (int kolom = 0; kolom <= tabel.Kolommen(); ++kolom) {
        float breedste = breed(maten.Vet(), tabel.Titel(kolom));
        for (int rij = 1; kolom > 0 && rij <= tabel.Rijen(); ++rij)
            breedste = std::max(breedste, breed(maten.Gewoon(), tabel.Cel(rij, kolom)));
        begin.push_back(begin.back() + (maten.celmarge + maten.celmarge + breedste));
    }
    return begin;
}

constexpr float Printerrand = 5; // no printer reaches the edge of the sheet; few need more white

/// Where x(0) lies: at the margin, unless the list would reach into the rim at the right then. That
/// one stands in the middle of the sheet.
float Linkerkant(const Papier& papier, float breed)
{
    const float over = papier.breed - breed;
    return over >= papier.zijmarge + Printerrand ? papier.zijmarge : over / 2;
}

} // namespace

/// The orientation is decided by the whole sheet, as the margins do not count yet at that point. So
/// a list may be wider than what lies between them.
Bladindeling BerekenKolommen(const Printtabel& tabel, float schaal, const Lettermeter& meter)
{
    const Schaalmaten maten{schaal};
    std::vector<float> begin = Kolombegin(tabel, maten, meter);
    const Papier papier{begin.back() <= A4Kort ? Papierstand::Staand : Papierstand::Liggend};
    // The first column always lies within the width of the sheet.
    const auto laatste = std::upper_bound(begin.begin() + 2, begin.end(), papier.breed) - 1;
    const auto kolommen = static_cast<int>(laatste - begin.begin());
    const float getekend = *laatste;
    const float links = Linkerkant(papier, getekend);
    const float bruikbaar =
        papier.hoog - papier.bovenmarge - papier.bovenmarge - maten.kophoogte - maten.titelhoogte;
    const int rijenPerBlad = static_cast<int>(bruikbaar / maten.rijhoogte);
    return {.maten = maten,
            .begin = std::move(begin),
            .papier = papier,
            .links = links,
            .kolommen = kolommen,
            .rijenPerBlad = rijenPerBlad,
            // A last page that would be just full is followed by an empty one. That is meant.
            .bladen = tabel.Rijen() / rijenPerBlad + 1};
}

// ---------------------------------------------------------------- drawing

namespace {

constexpr double Lijndikte = 0.1; // millimetres
constexpr float Groepregel = 6.0; // of the block at the head, from its top, times the scale
constexpr float Subgroepregel = 10.4F;
constexpr Letter Voetletter{.type = Lettertype::Arial, .punten = 7};
constexpr double Voetwit = 3; // between the rows' room and the foot

void TekenKop(Tekenvlak& vlak, const Printlijst& lijst)
{
    const Bladindeling& indeling = lijst.indeling;
    const double links = indeling.links;
    const double boven = indeling.papier.bovenmarge;
    const double schaal = indeling.maten.schaal;
    const double ruimte = indeling.papier.breed - indeling.papier.zijmarge - links;
    const Letter letter = indeling.maten.Gewoon();
    vlak.Schrijf(links, boven, {.punten = static_cast<double>(indeling.maten.titelpunten)},
                 "Spelerinformatie");
    const auto regel = [&](float hoogte, const Tekst& tekst) {
        vlak.Schrijf(links, boven + schaal * hoogte, letter,
                     Ingekort(tekst, ruimte,
                              [&](Tekstblik deel) { return vlak.Meter().Breedte(letter, deel); }));
    };
    regel(Groepregel, "Groep:  " + lijst.groeptekst);
    if (!lijst.subgroepkop.empty())
        regel(Subgroepregel, lijst.subgroepkop);
}

double KolomX(const Bladindeling& indeling, int kolom)
{
    return indeling.links + indeling.begin[static_cast<std::size_t>(kolom)];
}

double TekstX(const Bladindeling& indeling, int kolom)
{
    return indeling.links +
           (indeling.begin[static_cast<std::size_t>(kolom)] + indeling.maten.celmarge);
}

/// In the middle of a row of this height.
double TekstY(const Tekenvlak& vlak, const Letter& letter, double boven, double hoogte)
{
    return boven + (hoogte - vlak.Meter().Hoogte(letter)) / 2;
}

double TitelBoven(const Bladindeling& indeling)
{
    return indeling.papier.bovenmarge + indeling.maten.kophoogte;
}

double RijBoven(const Bladindeling& indeling, int plaats)
{
    return TitelBoven(indeling) +
           (indeling.maten.titelhoogte + static_cast<float>(plaats) * indeling.maten.rijhoogte);
}

void TekenKolomkoppen(Tekenvlak& vlak, const Printlijst& lijst)
{
    const Bladindeling& indeling = lijst.indeling;
    const Letter vet = indeling.maten.Vet();
    const double boven = TitelBoven(indeling);
    const double y = TekstY(vlak, vet, boven, indeling.maten.titelhoogte);
    const double rechts = KolomX(indeling, indeling.kolommen);
    vlak.Lijn(indeling.links, boven, rechts, boven, Lijnkleur, Lijndikte);
    for (int kolom = 0; kolom < indeling.kolommen; ++kolom)
        vlak.Schrijf(TekstX(indeling, kolom), y, vet, lijst.tabel.Titel(kolom));
}

void TekenRijlijnen(Tekenvlak& vlak, const Bladindeling& indeling, int rijen)
{
    const double links = indeling.links;
    const double rechts = KolomX(indeling, indeling.kolommen);
    for (int plaats = 0; plaats <= rijen; ++plaats) {
        const double y = RijBoven(indeling, plaats);
        vlak.Lijn(links, y, rechts, y, Lijnkleur, Lijndikte);
    }
    const double boven = TitelBoven(indeling);
    const double onder = RijBoven(indeling, rijen);
    for (int kolom = 0; kolom <= indeling.kolommen; ++kolom) {
        const double x = KolomX(indeling, kolom);
        vlak.Lijn(x, boven, x, onder, Lijnkleur, Lijndikte);
    }
}

void TekenRegels(Tekenvlak& vlak, const Printlijst& lijst, int blad)
{
    const Bladindeling& indeling = lijst.indeling;
    const Letter letter = indeling.maten.Gewoon();
    const int eerste = indeling.EersteRij(blad);
    const int laatste = indeling.LaatsteRij(blad, lijst.tabel.Rijen());
    TekenRijlijnen(vlak, indeling, laatste < eerste ? 0 : laatste - eerste + 1);
    for (int rij = eerste; rij <= laatste; ++rij) {
        const double boven = RijBoven(indeling, rij - eerste);
        const double y = TekstY(vlak, letter, boven, indeling.maten.rijhoogte);
        vlak.Schrijf(TekstX(indeling, 0), y, letter, std::to_string(rij));
        for (int kolom = 1; kolom < indeling.kolommen; ++kolom) {
            if (const Tekstblik cel = lijst.tabel.Cel(rij, kolom); !cel.empty())
                vlak.Schrijf(TekstX(indeling, kolom), y, letter, cel);
        }
    }
}

void TekenVoet(Tekenvlak& vlak, const Printlijst& lijst, int blad)
{
    const Papier& papier = lijst.indeling.papier;
    const double y = papier.hoog - papier.bovenmarge + Voetwit;
    const double links = papier.zijmarge;
    const double rechts = papier.breed - papier.zijmarge;
    const auto breed = [&](const Tekst& tekst) { return vlak.Meter().Breedte(Voetletter, tekst); };
    const Tekst bladtekst =
        "Blad " + std::to_string(blad) + " van " + std::to_string(lijst.indeling.bladen);
    vlak.Schrijf(links, y, Voetletter, lijst.programma);
    vlak.Schrijf((links + rechts - breed(lijst.datum)) / 2, y, Voetletter, lijst.datum);
    vlak.Schrijf(rechts - breed(bladtekst), y, Voetletter, bladtekst);
}

} // namespace

void TekenBlad(Tekenvlak& vlak, const Printlijst& lijst, int blad)
{
    TekenKop(vlak, lijst);
    TekenKolomkoppen(vlak, lijst);
    TekenRegels(vlak, lijst, blad);
    TekenVoet(vlak, lijst, blad);
}

} // namespace plexoran
