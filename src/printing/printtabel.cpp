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

std::vector<int> RijenVan(const Spelertabel& tabel, const Printopdracht& opdracht)
{
    Hekjestekst gekozen;
    for (const Tekst& subgroep : opdracht.subgroepen)
        gekozen.Voeg(Hoofdletters(subgroep));
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == opdracht.groepscode &&
            (opdracht.subgroepen.empty() || gekozen.Bevat(Hoofdletters(SubgroepVan(tabel, rij)))))
            rijen.push_back(rij);
    }
    return rijen;
}

/// By the lines "surname  #number" as a list in text order has them. Four digits, and more where
/// there are more rows.
std::vector<int> OpNaam(const Spelertabel& tabel, const std::vector<int>& rijen, Kolom naamkolom)
{
    const std::size_t cijfers = std::max(Nummerbreedte, std::to_string(rijen.size()).size());
    std::vector<Tekst> lstHPsort;
    lstHPsort.reserve(rijen.size());
    for (std::size_t i = 0; i < rijen.size(); ++i) {
        const Tekst nummer = std::to_string(i + 1);
        lstHPsort.push_back(Tekst(tabel.Cel(rijen[i], naamkolom))
                                .append("  #")
                                .append(cijfers - nummer.size(), '0')
                                .append(nummer));
    }
    Sorteer(lstHPsort);
    std::vector<int> gesorteerd;
    gesorteerd.reserve(rijen.size());
    for (const Tekst& regel : lstHPsort)
        gesorteerd.push_back(rijen[std::stoul(regel.substr(regel.size() - cijfers)) - 1]);
    return gesorteerd;
}

} // namespace

std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel, Tekstblik groepscode)
{
    Waardenlijst subgroepen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == groepscode)
            subgroepen.Voeg(Tekst(SubgroepVan(tabel, rij)));
    }
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
        rijen = OpNaam(tabel, rijen,
                       opdracht.kolommen[static_cast<std::size_t>(naam - titels.begin())]);
    return {tabel, std::move(rijen), opdracht.kolommen, std::move(titels)};
}

} // namespace plexoran
