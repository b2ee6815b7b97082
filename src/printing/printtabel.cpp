#include "printing/printtabel.h"

#include <algorithm>
#include <utility>

#include "register/waardenlijst.h"

namespace plexoran {
namespace {

constexpr Tekstblik SorteerkolomInHoofdletters = "ACHTERNAAM";
constexpr std::size_t Nummerbreedte = 4;

Tekstblik SubgroepVan(const Spelertabel& tabel, int rij)
{
    const Tekstblik cel = tabel.Cel(rij, Kolom::NBBgr);
    return IsBlanco(cel) ? GeenSubgroep : cel;
}

std::vector<int> Groepsrijen(const Spelertabel& tabel, Tekstblik groepscode)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == groepscode)
            rijen.push_back(rij);
    }
    return rijen;
}

std::vector<int> RijenVan(const Spelertabel& tabel, const Printopdracht& opdracht)
{
    Hekjestekst gekozen;
    for (const Tekst& subgroep : opdracht.subgroepen)
        gekozen.Voeg(Hoofdletters(subgroep));
    std::vector<int> rijen =
        opdracht.rijen ? *opdracht.rijen : Groepsrijen(tabel, opdracht.groepscode);
    std::erase_if(rijen, [&](int rij) {
        return !opdracht.subgroepen.empty() &&
               !gekozen.Bevat(Hoofdletters(SubgroepVan(tabel, rij)));
    });
    return rijen;
}

/// By the lines "surname  #number" as a list in text order has them. Four digits, and more where
/// there are more rows.
std::vector<int> OpNaam(const Spelertabel& tabel, std::vector<int> rijen, Kolom naamkolom)
{
    const auto cijfers =
        static_cast<int>(std::max(Nummerbreedte, std::to_string(rijen.size()).size()));
    std::vector<std::pair<Tekst, int>> lstHPsort; // by keys that are all different
    lstHPsort.reserve(rijen.size());
    for (const int rij : rijen) {
        const Tekst nummer = MetNullen(static_cast<std::int64_t>(lstHPsort.size()) + 1, cijfers);
        lstHPsort.emplace_back(
            Sorteersleutel(Tekst(tabel.Cel(rij, naamkolom)).append("  #").append(nummer)), rij);
    }
    std::ranges::sort(lstHPsort);
    std::ranges::transform(lstHPsort, rijen.begin(), &std::pair<Tekst, int>::second);
    return rijen;
}

} // namespace

std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel, Tekstblik groepscode)
{
    return Printsubgroepen(tabel, Groepsrijen(tabel, groepscode));
}

std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel, const std::vector<int>& rijen)
{
    Waardenlijst subgroepen;
    for (const int rij : rijen)
        subgroepen.Voeg(Tekst(SubgroepVan(tabel, rij)));
    return subgroepen.Waarden();
}

Tekst Subgroepkop(const std::vector<Tekst>& subgroepen)
{
    Tekst kop;
    for (const Tekst& subgroep : subgroepen) {
        kop += kop.empty() ? "Subgroep(en): " : " + ";
        kop += subgroep;
    }
    return kop;
}

Printtabel MaakPrinttabel(const Spelertabel& tabel, const Printopdracht& opdracht)
{
    std::vector<int> rijen = RijenVan(tabel, opdracht);
    std::vector<Tekst> titels;
    for (const Kolom kolom : opdracht.kolommen)
        titels.emplace_back(opdracht.kolomnamen[Index(kolom)]);
    const auto naam = std::find_if(titels.begin(), titels.end(), [](const Tekst& titel) {
        return Hoofdletters(titel) == SorteerkolomInHoofdletters;
    });
    if (naam != titels.end())
        rijen = OpNaam(tabel, std::move(rijen),
                       opdracht.kolommen[static_cast<std::size_t>(naam - titels.begin())]);
    return {tabel, std::move(rijen), opdracht.kolommen, std::move(titels)};
}

} // namespace plexoran
