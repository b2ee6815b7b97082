#include "federation/controlelijst.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "platform/tekst/tekst.h"
#include "register/spelertabel.h"

namespace plexoran {
namespace {

constexpr std::size_t GroepBreed = 10;
constexpr std::array<std::size_t, AantalControlekolommen> Breedten{10, 5, GroepBreed, 20};

Tekst Naamkolom(const Importvelden& velden)
{
    Tekst naam(velden[Importveld::Achternaam]);
    if (IsPartner(naam))
        naam = Vervang(naam, ' ', '_');
    naam += ", ";
    naam += velden[Importveld::Voornaam];
    if (const Tekstblik tusv = velden[Importveld::Tusv]; !IsBlanco(tusv))
        naam.append(" ").append(tusv);
    return naam;
}

} // namespace

Controleregel MaakControleregel(Tekstblik importregel, Tekstblik ledengroep)
{
    const Importvelden velden = SplitsImportregel(importregel);
    Controleregel uit;
    const Tekst naam = Naamkolom(velden);
    const std::array<Tekstblik, AantalControlekolommen> teksten{
        velden[Importveld::NBBnr], velden[Importveld::MV], ledengroep.substr(0, GroepBreed), naam};
    for (std::size_t i = 0; i < teksten.size(); ++i) {
        uit.regel += i == 0 ? "" : "  ";
        uit.begin[i] = uit.regel.size();
        uit.regel += teksten[i];
        uit.regel.append(Breedten[i] - std::min(Breedten[i], teksten[i].size()), ' ');
    }
    return uit;
}

std::vector<Controleregel> OpNaam(std::vector<Controleregel> lstN9)
{
    std::multimap<Tekst, Controleregel> opNaam;
    for (Controleregel& regel : lstN9)
        opNaam.emplace(Sorteersleutel(regel.Naam()), std::move(regel));
    std::transform(opNaam.begin(), opNaam.end(), lstN9.begin(),
                   [](auto& paar) { return std::move(paar.second); });
    return lstN9;
}

Controlerijen::Controlerijen(const std::vector<Controleregel>& regels, std::size_t breedte)
    : breedte_(std::max<std::size_t>(1, breedte))
{
    for (const Controleregel& regel : regels)
        Splits(regel);
}

/// Of the rows that go on: under the name, where that leaves some room.
std::size_t Controlerijen::Inspringing(const Controleregel& regel) const
{
    constexpr std::size_t ruimte = 10;
    return regel.begin.back() + ruimte <= breedte_ ? regel.begin.back() : 0;
}

/// Between two words of the name where that can be. The blanks that only fill up the last column
/// need no row.
void Controlerijen::Splits(const Controleregel& regel)
{
    const Tekstblik tekst = Tekstblik(regel.regel).substr(0, regel.regel.find_last_not_of(' ') + 1);
    std::size_t ruimte = breedte_;
    std::size_t vanaf = std::min(regel.begin.back() + 1, tekst.size()); // no break before the name
    std::size_t begin = 0;
    while (tekst.size() - begin > ruimte) {
        // Only looked for in this row: a word may be as long as the file.
        const auto blanco = tekst.substr(begin, ruimte + 1).rfind(' ');
        const bool past = blanco != Tekstblik::npos && blanco > 0 && begin + blanco >= vanaf;
        const std::size_t eind = begin + (past ? blanco : ruimte);
        delen_.push_back({&regel, begin, eind});
        begin = tekst.substr(eind).starts_with(' ') ? eind + 1 : eind;
        ruimte = breedte_ - Inspringing(regel);
        vanaf = 0;
    }
    delen_.push_back({&regel, begin, begin == 0 ? regel.regel.size() : tekst.size()});
}

Tekst Controlerijen::Rij(std::size_t nummer) const
{
    const auto& [regel, begin, eind] = delen_[nummer];
    return Tekst(begin == 0 ? 0 : Inspringing(*regel), ' ') +
           regel->regel.substr(begin, eind - begin);
}

Tekstblik Controlerijen::Cel(std::size_t nummer, std::size_t kolom) const
{
    const auto& [regel, begin, eind] = delen_[nummer];
    const std::size_t van = std::max(begin, regel->begin[kolom]);
    const std::size_t tot =
        kolom + 1 < AantalControlekolommen ? std::min(eind, regel->begin[kolom + 1]) : eind;
    return van < tot ? ZonderSpaties(Tekstblik(regel->regel).substr(van, tot - van)) : Tekstblik();
}

std::size_t TekensNaastElkaar(const Lettermeter& meter, double breed)
{
    const double teken = meter.Breedte(controle::Schrift, "0");
    return static_cast<std::size_t>(std::max(1.0, std::floor(breed / teken)));
}

void TekenControlelijst(Tekenvlak& vlak, double links, double boven, Tekstblik kop,
                        const Controlerijen& rijen, std::size_t eerste, std::size_t aantal)
{
    vlak.Schrijf(links, boven, controle::Schrift, kop);
    double y = boven + controle::Kophoogte;
    for (std::size_t i = eerste; i < std::min(eerste + aantal, rijen.Aantal()); ++i) {
        vlak.Schrijf(links, y, controle::Schrift, rijen.Rij(i));
        y += controle::Regelhoogte;
    }
}

int ControlebladenVoor(std::size_t rijen)
{
    const std::size_t bladen = (rijen + controleblad::Rijen - 1) / controleblad::Rijen;
    return static_cast<int>(std::max<std::size_t>(1, bladen));
}

void TekenControleblad(Tekenvlak& vlak, const Controlerijen& rijen, int blad, int bladen)
{
    using namespace controleblad;
    TekenControlelijst(vlak, Marge, Marge, ControlekopPapier, rijen,
                       static_cast<std::size_t>(blad - 1) * Rijen, Rijen);
    const Tekst voet = "Blad " + std::to_string(blad) + " van " + std::to_string(bladen);
    const double breed = vlak.Meter().Breedte(controle::Schrift, voet);
    vlak.Schrijf(Breed - Marge - breed, Hoog - Marge + 2, controle::Schrift, voet);
}

} // namespace plexoran
