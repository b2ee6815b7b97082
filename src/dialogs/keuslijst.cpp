#include "dialogs/keuslijst.h"

#include <algorithm>

namespace plexoran {
namespace {

constexpr std::size_t LengteKey = 6;
constexpr std::size_t AantalSpaties = 60;

/// Group code, tab, surname, three spaces, first name, space, particle.
Tekst Naamdeel(const Spelertabel& tabel, int rij)
{
    Tekst regel(tabel.Cel(rij, Kolom::Groep));
    regel += '\t';
    regel += tabel.Cel(rij, Kolom::Achternaam);
    regel += "   ";
    regel += tabel.Cel(rij, Kolom::Voornaam);
    regel += ' ';
    regel += tabel.Cel(rij, Kolom::Tusv);
    return regel;
}

Tekst MetKey(Tekst regel, const Spelertabel& tabel, int rij)
{
    regel.append(AantalSpaties, ' ');
    regel += tabel.Cel(rij, Kolom::Key);
    return regel;
}

template <class Hoort> std::vector<int> Rijen(const Spelertabel& tabel, Hoort hoort)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (hoort(tabel.Cel(rij, Kolom::Groep)))
            rijen.push_back(rij);
    }
    return rijen;
}

std::vector<Tekst> Knip(Tekstblik waarde)
{
    std::vector<Tekst> delen;
    for (;;) {
        const auto hekje = waarde.find('#');
        delen.emplace_back(waarde.substr(0, hekje));
        if (hekje == Tekstblik::npos)
            return delen;
        waarde.remove_prefix(hekje + 1);
    }
}

} // namespace

Tekstblik KeyVan(Tekstblik regel)
{
    return regel.substr(regel.size() - std::min(regel.size(), LengteKey));
}

std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep)
{
    return Rijen(tabel, [&](Tekstblik groep) { return groep != importgroep; });
}

Tekst Verplaatsregel(const Spelertabel& tabel, int rij)
{
    return MetKey(Naamdeel(tabel, rij), tabel, rij);
}

std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode)
{
    return Rijen(tabel, [&](Tekstblik groep) { return groep == groepscode; });
}

Tekst Kopieerregel(const Spelertabel& tabel, int rij)
{
    Tekst regel = Naamdeel(tabel, rij);
    const Tekstblik subgroep = tabel.Cel(rij, Kolom::NBBgr);
    if (IsBlanco(subgroep)) {
        regel += "(geen)";
    } else {
        regel += "  (";
        regel += subgroep;
        regel += ')';
    }
    return MetKey(std::move(regel), tabel, rij);
}

void Waardenlijst::Voeg(const Tekst& waarde)
{
    const std::vector<Tekst> delen = Knip(waarde);
    if (IsGezien(delen))
        return;
    for (const Tekst& deel : delen)
        VoegDeelToe(deel);
    VoegDeelToe({}); // between the closing mark of this value and the opening one of the next
    waarden_.push_back(waarde);
}

void Waardenlijst::VoegDeelToe(const Tekst& deel)
{
    plaatsen_[deel].push_back(delen_.size());
    delen_.push_back(deel);
}

/// Looks where the rarest part of the value stands.
bool Waardenlijst::IsGezien(const std::vector<Tekst>& delen) const
{
    const std::vector<std::size_t>* zeldzaamst = nullptr;
    std::size_t anker = 0;
    for (std::size_t i = 0; i < delen.size(); ++i) {
        const auto plaatsen = plaatsen_.find(delen[i]);
        if (plaatsen == plaatsen_.end())
            return false;
        if (zeldzaamst == nullptr || plaatsen->second.size() < zeldzaamst->size()) {
            zeldzaamst = &plaatsen->second;
            anker = i;
        }
    }
    return std::any_of(zeldzaamst->begin(), zeldzaamst->end(), [&](std::size_t plaats) {
        return plaats > anker && StaatOp(delen, plaats - anker);
    });
}

/// The first and last part of the running text lack a mark before or behind them.
bool Waardenlijst::StaatOp(const std::vector<Tekst>& delen, std::size_t begin) const
{
    return begin + delen.size() < delen_.size() &&
           std::equal(delen.begin(), delen.end(),
                      delen_.begin() + static_cast<std::ptrdiff_t>(begin));
}

} // namespace plexoran
