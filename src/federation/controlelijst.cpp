#include "federation/controlelijst.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

constexpr std::size_t GroepBreed = 10;
constexpr std::array<std::size_t, AantalControlekolommen> Breedten{10, 5, GroepBreed, 20};
constexpr Tekstblik Scheiding = "  ";

void Voeg(Tekst& regel, Tekstblik tekst, std::size_t breedte)
{
    regel += tekst;
    regel.append(breedte - std::min(breedte, tekst.size()), ' ');
}

/// The surname of a partner without a name of his own is one word in every source.
Tekst Achternaam(Tekstblik achternaam)
{
    constexpr Tekstblik partner = "PARTNER";
    if (Hoofdletters(ZonderSpaties(achternaam.substr(0, partner.size()))) == partner)
        return Vervang(achternaam, ' ', '_');
    return Tekst(achternaam);
}

Tekst Naamkolom(const Importvelden& velden)
{
    Tekst naam = Achternaam(velden[Importveld::Achternaam]);
    naam += ", ";
    naam += velden[Importveld::Voornaam];
    if (const Tekstblik tusv = velden[Importveld::Tusv]; !IsBlanco(tusv))
        naam.append(" ").append(tusv);
    return naam;
}

/// Without the blanks that only fill a column.
Tekstblik ZonderSlot(Tekstblik tekst)
{
    return tekst.substr(0, tekst.find_last_not_of(' ') + 1);
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
        if (i > 0)
            uit.regel += Scheiding;
        uit.begin[i] = uit.regel.size();
        Voeg(uit.regel, teksten[i], Breedten[i]);
    }
    return uit;
}

std::vector<std::size_t> VolgordeOpNaam(const std::vector<Controleregel>& lstN9)
{
    std::vector<Tekst> sleutels;
    sleutels.reserve(lstN9.size());
    for (const Controleregel& regel : lstN9)
        sleutels.push_back(Sorteersleutel(regel.Naam()));
    std::vector<std::size_t> volgorde(lstN9.size());
    std::iota(volgorde.begin(), volgorde.end(), std::size_t{0});
    std::stable_sort(volgorde.begin(), volgorde.end(), [&](std::size_t een, std::size_t ander) {
        return sleutels[een] < sleutels[ander];
    });
    return volgorde;
}

Controlerijen::Controlerijen(const std::vector<Controleregel>& lstN9,
                             std::vector<std::size_t> volgorde, std::size_t breedte)
    : lstN9_(lstN9), volgorde_(std::move(volgorde)), breedte_(std::max<std::size_t>(1, breedte)),
      aantal_(lstN9.size())
{
    const bool past = std::all_of(lstN9.begin(), lstN9.end(), [this](const Controleregel& regel) {
        return ZonderSlot(regel.regel).size() <= breedte_;
    });
    if (!past)
        Splits();
}

const Controleregel& Controlerijen::Regel(std::size_t plaats) const
{
    return lstN9_[volgorde_.empty() ? plaats : volgorde_[plaats]];
}

/// Of the rows that go on: under the name, where that leaves some room.
std::size_t Controlerijen::Inspringing(const Controleregel& regel) const
{
    constexpr std::size_t ruimte = 10;
    return regel.begin.back() + ruimte <= breedte_ ? regel.begin.back() : 0;
}

/// Between two words of the name where that can be.
void Controlerijen::Splits()
{
    for (std::size_t plaats = 0; plaats < lstN9_.size(); ++plaats) {
        const Controleregel& regel = Regel(plaats);
        const Tekstblik tekst = ZonderSlot(regel.regel);
        std::size_t ruimte = breedte_;
        std::size_t vanaf =
            std::min(regel.begin.back() + 1, tekst.size()); // no break before the name
        std::size_t begin = 0;
        while (tekst.size() - begin > ruimte) {
            // Only looked for in this row: a word may be as long as the file.
            const auto blanco = tekst.substr(begin, ruimte + 1).rfind(' ');
            const bool past = blanco != Tekstblik::npos && blanco > 0 && begin + blanco >= vanaf;
            const std::size_t eind = begin + (past ? blanco : ruimte);
            delen_.push_back({plaats, begin, eind});
            begin = tekst.substr(eind).starts_with(' ') ? eind + 1 : eind;
            ruimte = breedte_ - Inspringing(regel);
            vanaf = 0;
        }
        delen_.push_back({plaats, begin, tekst.size()});
    }
    aantal_ = delen_.size();
}

Tekst Controlerijen::Rij(std::size_t nummer) const
{
    if (delen_.empty())
        return Regel(nummer).regel;
    const Deel& deel = delen_[nummer];
    const Controleregel& regel = Regel(deel.plaats);
    const Tekst tekst = regel.regel.substr(deel.begin, deel.eind - deel.begin);
    return deel.begin == 0 ? tekst : Tekst(Inspringing(regel), ' ') + tekst;
}

Tekstblik Controlerijen::Cel(std::size_t nummer, std::size_t kolom) const
{
    const Deel deel = delen_.empty() ? Deel{nummer, 0, Tekst::npos} : delen_[nummer];
    const Controleregel& regel = Regel(deel.plaats);
    const std::size_t van = std::max(deel.begin, regel.begin[kolom]);
    const std::size_t tot = std::min(
        deel.eind, kolom + 1 < regel.begin.size() ? regel.begin[kolom + 1] : regel.regel.size());
    return van < tot ? ZonderSpaties(Tekstblik(regel.regel).substr(van, tot - van)) : Tekstblik();
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
    const std::size_t over = rijen.Aantal() - std::min(rijen.Aantal(), eerste);
    for (std::size_t i = 0; i < std::min(aantal, over); ++i) {
        const double y =
            boven + controle::Kophoogte + static_cast<double>(i) * controle::Regelhoogte;
        vlak.Schrijf(links, y, controle::Schrift, rijen.Rij(eerste + i));
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
