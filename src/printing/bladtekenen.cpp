#include "printing/bladtekenen.h"

namespace plexoran {
namespace {

constexpr double Lijndikte = 0.1; // millimetres
constexpr float Groepregel = 6.0; // of the block at the head, from its top, times the scale
constexpr float Subgroepregel = 10.4F;
constexpr Letter Voetletter{.type = Lettertype::Arial, .punten = 7};
constexpr double Voetwit = 3; // between the rows' room and the foot

/// The text, shortened from its end and closed by dots where it is too wide.
Tekst Passend(const Lettermeter& meter, const Letter& letter, Tekstblik tekst, double ruimte)
{
    if (meter.Breedte(letter, tekst) <= ruimte)
        return Tekst(tekst);
    const double puntjes = meter.Breedte(letter, "...");
    double som = 0;
    std::size_t past = 0;
    for (; past < tekst.size(); ++past) {
        som += meter.Breedte(letter, tekst.substr(past, 1));
        if (som + puntjes > ruimte)
            break;
    }
    return Tekst(tekst.substr(0, past)).append("...");
}

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
                     Passend(vlak.Meter(), letter, tekst, ruimte));
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
