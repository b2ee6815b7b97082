#include "printing/printtabel.h"

#include <algorithm>
#include <charconv>

#include "platform/tekstorde.h"
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
    const Subgroepkeuze keuze(opdracht.subgroepen);
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == opdracht.groepscode &&
            (opdracht.subgroepen.empty() || keuze.Hoort(SubgroepVan(tabel, rij))))
            rijen.push_back(rij);
    }
    return rijen;
}

/// One line a row: surname, "  #" and the number of the row, whose digits keep namesakes in order.
/// The number is read back from the sorted lines.
std::vector<int> OpNaam(const Spelertabel& tabel, const std::vector<int>& rijen, Kolom naamkolom)
{
    constexpr std::size_t ruimeRegel = 32;
    const std::size_t cijfers = std::max(Nummerbreedte, std::to_string(rijen.size()).size());
    Tekst regels;
    regels.reserve(ruimeRegel * rijen.size());
    std::vector<std::size_t> einden;
    einden.reserve(rijen.size());
    for (std::size_t i = 0; i < rijen.size(); ++i) {
        const Tekst nummer = std::to_string(i + 1);
        regels.append(tabel.Cel(rijen[i], naamkolom)).append("  #");
        regels.append(cijfers - nummer.size(), '0').append(nummer);
        einden.push_back(regels.size());
    }
    std::vector<Tekstblik> lstHPsort;
    lstHPsort.reserve(rijen.size());
    for (std::size_t begin = 0; const std::size_t eind : einden) {
        lstHPsort.push_back(Tekstblik(regels).substr(begin, eind - begin));
        begin = eind;
    }
    Sorteer(lstHPsort);

    std::vector<int> gesorteerd;
    gesorteerd.reserve(rijen.size());
    for (const Tekstblik regel : lstHPsort) {
        const Tekstblik nummer = regel.substr(regel.size() - cijfers);
        std::size_t plaats = 0;
        std::from_chars(nummer.data(), nummer.data() + nummer.size(), plaats);
        gesorteerd.push_back(rijen[plaats - 1]);
    }
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

Subgroepkeuze::Subgroepkeuze(const std::vector<Tekst>& gekozen)
{
    for (const Tekst& subgroep : gekozen)
        tekst_.append("#").append(Hoofdletters(subgroep)).append("#");
    for (std::size_t begin = 0, eind = 0; begin < tekst_.size(); begin = eind + 1) {
        eind = std::min(tekst_.find('#', begin), tekst_.size());
        delen_.push_back(tekst_.substr(begin, eind - begin));
    }
    std::sort(delen_.begin(), delen_.end());
}

bool Subgroepkeuze::Hoort(Tekstblik subgroep) const
{
    const Tekst gezocht = Hoofdletters(subgroep);
    // Without a mark of its own it is one of the parts; looking through the text for every player
    // would take long when there are many subgroups.
    if (!gezocht.empty() && gezocht.find('#') == Tekst::npos)
        return std::binary_search(delen_.begin(), delen_.end(), gezocht);
    return tekst_.find("#" + gezocht + "#") != Tekst::npos;
}

Printtabel::Printtabel(const Spelertabel& tabel, std::vector<int> rijen,
                       std::vector<Kolom> kolommen, std::vector<Tekst> titels)
    : tabel_(tabel), rijen_(std::move(rijen)), kolommen_(std::move(kolommen)),
      titels_(std::move(titels))
{}

Tekstblik Printtabel::Titel(int kolom) const
{
    return kolom == 0 ? Tekstblik("RegNr") : titels_[static_cast<std::size_t>(kolom - 1)];
}

Tekstblik Printtabel::Cel(int rij, int kolom) const
{
    return tabel_.Cel(rijen_[static_cast<std::size_t>(rij - 1)],
                      kolommen_[static_cast<std::size_t>(kolom - 1)]);
}

Printtabel MaakPrinttabel(const Spelertabel& tabel, const Printopdracht& opdracht)
{
    std::vector<int> rijen = RijenVan(tabel, opdracht);
    std::vector<Tekst> titels;
    for (const Kolom kolom : opdracht.kolommen)
        titels.emplace_back(opdracht.kolomnamen[Plaats(kolom)]);
    const auto naam = std::find_if(titels.begin(), titels.end(), [](const Tekst& titel) {
        return Hoofdletters(titel) == SorteerkolomInHoofdletters;
    });
    if (naam != titels.end())
        rijen = OpNaam(tabel, rijen,
                       opdracht.kolommen[static_cast<std::size_t>(naam - titels.begin())]);
    return {tabel, std::move(rijen), opdracht.kolommen, std::move(titels)};
}

} // namespace plexoran
