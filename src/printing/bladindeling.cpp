#include "printing/bladindeling.h"

#include <algorithm>

namespace plexoran {
namespace {

constexpr float A4Kort = 210;
constexpr float A4Lang = 297;

float Tekstbreedte(const Lettermeter& meter, const Letter& letter, Tekstblik tekst)
{
    return static_cast<float>(meter.Breedte(letter, tekst));
}

double BreedsteTeken(const Lettermeter& meter, const Letter& letter)
{
    double breedste = 0;
    for (int code = 0; code < 256; ++code) {
        const char teken = static_cast<char>(code);
        breedste = std::max(breedste, meter.Breedte(letter, Tekstblik(&teken, 1)));
    }
    return breedste;
}

/// The text widths of all columns. A text that could not be wider than the widest so far, even of
/// the widest characters, need not be measured: in a long list that is most of them. Row by row,
/// since the cells of a player stand together in memory and sorted players do not.
std::vector<float> Tekstbreedten(const Printtabel& tabel, const Schaalmaten& maten,
                                 const Lettermeter& meter)
{
    std::vector<float> breedsten;
    for (int kolom = 0; kolom <= tabel.Kolommen(); ++kolom)
        breedsten.push_back(Tekstbreedte(meter, maten.Vet(), tabel.Titel(kolom)));
    const Letter letter = maten.Gewoon();
    const double breedsteTeken = BreedsteTeken(meter, letter);
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        for (int kolom = 1; kolom <= tabel.Kolommen(); ++kolom) {
            const Tekstblik cel = tabel.Cel(rij, kolom);
            float& breedste = breedsten[static_cast<std::size_t>(kolom)];
            if (static_cast<double>(cel.size()) * breedsteTeken > static_cast<double>(breedste))
                breedste = std::max(breedste, Tekstbreedte(meter, letter, cel));
        }
    }
    return breedsten;
}

std::vector<float> Kolombegin(const Printtabel& tabel, const Schaalmaten& maten,
                              const Lettermeter& meter)
{
    std::vector<float> begin{0};
    for (const float breedte : Tekstbreedten(tabel, maten, meter))
        begin.push_back(begin.back() + (maten.celmarge + maten.celmarge + breedte));
    return begin;
}

/// How many columns lie within the width of the sheet; the first always does.
int PassendeKolommen(const std::vector<float>& begin, float breed)
{
    int passend = 1;
    while (passend + 1 < static_cast<int>(begin.size()) &&
           begin[static_cast<std::size_t>(passend) + 1] <= breed)
        ++passend;
    return passend;
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

Schaalmaten::Schaalmaten(float welke)
    : schaal(welke), punten(schaal * 10), titelpunten(schaal * 14), celmarge(schaal * 0.8F),
      kophoogte(schaal * 15), titelhoogte(schaal * 4.5F), rijhoogte(schaal * 4.5F)
{}

Papier::Papier(Papierstand welke)
    : stand(welke), breed(welke == Papierstand::Staand ? A4Kort : A4Lang),
      hoog(welke == Papierstand::Staand ? A4Lang : A4Kort), zijmarge(15),
      bovenmarge(welke == Papierstand::Staand ? 15.0F : 10.0F)
{}

bool Bladindeling::TeBreed() const
{
    return Printbreedte() > A4Lang;
}

int Bladindeling::ToonbareBladen() const
{
    return std::min(bladen, Bladgrens);
}

int Bladindeling::LaatsteRij(int blad, int rijen) const
{
    return std::min(EersteRij(blad) + rijenPerBlad - 1, rijen);
}

/// The orientation is decided by the whole sheet, as the margins do not count yet at that point. So
/// a list may be wider than what lies between them.
Bladindeling BerekenKolommen(const Printtabel& tabel, float schaal, const Lettermeter& meter)
{
    const Schaalmaten maten(schaal);
    std::vector<float> begin = Kolombegin(tabel, maten, meter);
    const Papier papier(begin.back() <= A4Kort ? Papierstand::Staand : Papierstand::Liggend);
    const int kolommen = PassendeKolommen(begin, papier.breed);
    const float getekend = begin[static_cast<std::size_t>(kolommen)];
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

} // namespace plexoran
