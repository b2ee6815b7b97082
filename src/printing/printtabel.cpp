#include "printing/printtabel.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "platform/tekstorde.h"

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

constexpr Tekstblik Naamslot = "  #";

/// The weights by which a name and what follows it in its line are ordered, without the bytes that
/// the order looks at last: those come behind the number of the row and so never count.
Tekst Naamgewichten(Tekstblik naam)
{
    Tekst sleutel = Sorteersleutel(Tekst(naam).append(Naamslot));
    sleutel.resize(sleutel.find('\0'));
    return sleutel;
}

/// One line a row: surname, "  #" and the number of the row, read back from the sorted lines.
std::vector<int> OpRegel(const Spelertabel& tabel, const std::vector<int>& rijen, Kolom naamkolom)
{
    const std::size_t cijfers = std::max(Nummerbreedte, std::to_string(rijen.size()).size());
    std::vector<std::pair<Tekst, int>> lstHPsort;
    lstHPsort.reserve(rijen.size());
    for (std::size_t i = 0; i < rijen.size(); ++i) {
        const Tekst nummer = std::to_string(i + 1);
        Tekst regel(tabel.Cel(rijen[i], naamkolom));
        regel.append(Naamslot).append(cijfers - nummer.size(), '0').append(nummer);
        lstHPsort.emplace_back(Sorteersleutel(regel), rijen[i]);
    }
    std::sort(lstHPsort.begin(), lstHPsort.end());
    std::vector<int> gesorteerd;
    gesorteerd.reserve(rijen.size());
    for (const auto& [sleutel, rij] : lstHPsort)
        gesorteerd.push_back(rij);
    return gesorteerd;
}

/// The order of those lines. As the number follows the name, players whose names weigh the same
/// stay in table order, so that each name need be weighed only once, however many bear it.
std::vector<int> OpNaam(const Spelertabel& tabel, const std::vector<int>& rijen, Kolom naamkolom)
{
    std::unordered_map<Tekstblik, std::size_t> plaatsVan;
    std::vector<std::pair<Tekst, std::size_t>> namen; // weights, and the place of the name
    std::vector<std::size_t> naamVan;
    naamVan.reserve(rijen.size());
    for (const int rij : rijen) {
        const Tekstblik naam = tabel.Cel(rij, naamkolom);
        const auto [plaats, nieuw] = plaatsVan.try_emplace(naam, namen.size());
        if (nieuw)
            namen.emplace_back(Naamgewichten(naam), namen.size());
        naamVan.push_back(plaats->second);
    }
    std::sort(namen.begin(), namen.end());

    std::vector<std::size_t> rang(namen.size());
    std::size_t hoogste = 0;
    for (std::size_t i = 1; i < namen.size(); ++i) {
        const Tekst& vorige = namen[i - 1].first;
        if (namen[i].first != vorige) {
            // A name that goes on as a line would: there the digits of the one count against it.
            if (namen[i].first.starts_with(vorige))
                return OpRegel(tabel, rijen, naamkolom);
            ++hoogste;
        }
        rang[namen[i].second] = hoogste;
    }
    std::vector<std::vector<int>> perRang(namen.empty() ? 0 : hoogste + 1);
    for (std::size_t i = 0; i < rijen.size(); ++i)
        perRang[rang[naamVan[i]]].push_back(rijen[i]);
    std::vector<int> gesorteerd;
    gesorteerd.reserve(rijen.size());
    for (const std::vector<int>& gelijken : perRang)
        gesorteerd.insert(gesorteerd.end(), gelijken.begin(), gelijken.end());
    return gesorteerd;
}

} // namespace

std::vector<Tekst> Printsubgroepen(const Spelertabel& tabel, Tekstblik groepscode)
{
    std::unordered_set<Tekstblik> gezien;
    std::vector<Tekst> subgroepen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != groepscode)
            continue;
        const Tekstblik subgroep = SubgroepVan(tabel, rij);
        if (gezien.insert(subgroep).second)
            subgroepen.emplace_back(subgroep);
    }
    return subgroepen;
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
