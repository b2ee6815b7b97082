#include "exchange/lijstimport.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "exchange/uitvoer.h"
#include "register/veldregels.h"

namespace plexoran {
namespace {

constexpr std::size_t LengteKey = 6;
constexpr std::size_t LengteNBBnr = 8;

/// What the entry dialog keeps of a text: line ends and tabs become blanks, other control
/// characters go.
Tekst ZonderStuurtekens(Tekstblik cel)
{
    constexpr Tekstblik onbepaald = "\x7F\x81\x8D\x8F\x90\x9D";
    Tekst uit;
    for (const char teken : cel) {
        if (teken == '\t' || teken == '\r' || teken == '\n')
            uit += ' ';
        else if (static_cast<unsigned char>(teken) >= ' ' &&
                 onbepaald.find(teken) == Tekstblik::npos)
            uit += teken;
    }
    return uit;
}

Tekst Geslacht(const Tekst& cel)
{
    const Tekst woord = KaleWoorden(cel);
    return IsEenVan(woord, " M MAN MALE DHR HEER ")                ? "M"
           : IsEenVan(woord, " V VROUW F FEMALE MW MEVR MEVROUW ") ? "V"
                                                                   : cel;
}

Tekst Schoon(Kolom kolom, Tekstblik cel)
{
    const Tekst tekst = ZonderStuurtekens(ZonderWacht(cel));
    Tekst uit = VerlaatVeld(kolom, ZonderSpaties(tekst)).tekst;
    return kolom == Kolom::MV && !uit.empty() ? Geslacht(uit) : uit;
}

bool IsNBBnr(Tekstblik tekst)
{
    return tekst.size() <= LengteNBBnr && std::ranges::all_of(tekst, IsCijfer);
}

/// Who bears one name: lines of the list, and the first player of the target group.
struct Naamdragers {
    std::size_t regels = 0;
    int rij = 0;
};

/// Whether a text stands there already, be it as it would be kept or as it is in the list.
bool StaatEr(Kolom kolom, Tekstblik oud, Tekstblik rauw, const Tekst& schoon)
{
    return oud == schoon || (!rauw.empty() && (oud == rauw || oud == ZonderWacht(rauw))) ||
           (kolom == Kolom::Postc && Naamsleutel(Tekst(oud)) == Naamsleutel(schoon)) ||
           (kolom == Kolom::NBBnr && OpgemaaktNBBnr(ZonderSpaties(oud)) == OpgemaaktNBBnr(schoon));
}

Rijblikken Blikken(const Rijvelden& velden)
{
    Rijblikken uit;
    std::ranges::copy(velden, uit.begin());
    return uit;
}

template <class Rij> Tekst NaamIn(const Rij& velden)
{
    return VolleNaam(velden[Index(Kolom::Voornaam)], velden[Index(Kolom::Tusv)],
                     velden[Index(Kolom::Achternaam)]);
}

} // namespace

Tekstblik ZonderWacht(Tekstblik cel)
{
    const bool wacht = cel.starts_with('\'') && LijktFormule(cel);
    return cel.substr(wacht ? 1 : 0);
}

/// A row as it stands in the list, and as it may stand in the register.
struct Lijstvoorbeeld::Rij {
    bool inEen = false; ///< the name came from one column
    Rijblikken rauw;
    Rijvelden schoon;
};

Lijstvoorbeeld::Lijstvoorbeeld(const Spelertabel& tabel, const Spelerslijst& lijst,
                               Lijstopdracht opdracht)
    : Regelvoorbeeld(tabel, opdracht.groep,
                     Besluiten(lijst.Rijen() - (opdracht.kop && lijst.Rijen() > 0 ? 1 : 0))),
      lijst_(lijst), opdracht_(std::move(opdracht))
{}

Tekst Lijstvoorbeeld::Merk(const Rijblikken& cellen) const
{
    const auto cel = [&](Kolom kolom) { return ZonderSpaties(cellen[Index(kolom)]); };
    switch (opdracht_.keuze.herkenning) {
    case Herkenning::Key:
        return AlsGetal(cel(Kolom::Key), LengteKey).value_or(Tekst(cel(Kolom::Key)));
    case Herkenning::NBBnr:
        return OpgemaaktNBBnr(cel(Kolom::NBBnr));
    case Herkenning::Naam:
        break;
    }
    const Tekst naam =
        Naamsleutel(VolleNaam(cel(Kolom::Voornaam), cel(Kolom::Tusv), cel(Kolom::Achternaam)));
    return naam.empty() ? naam : naam + '|' + Naamsleutel(Tekst(cel(Kolom::Postc)));
}

Lijstvoorbeeld::Rij Lijstvoorbeeld::LeesRij(std::size_t regel) const
{
    Rij rij;
    std::array<Tekst, 3> naam;
    const auto& velden = opdracht_.keuze.velden;
    for (std::size_t kolom = 0; kolom < velden.size(); ++kolom) {
        const Tekstblik cel = lijst_.Cel(regel + Eerste(), kolom);
        if (velden[kolom] == HeleNaam && !IsBlanco(cel)) {
            naam = SplitsNaam(ZonderWacht(cel));
            rij.inEen = true;
        } else if (velden[kolom] >= Kolom::Key && velden[kolom] <= Kolom::NBBnr && !IsBlanco(cel))
            rij.rauw[Index(velden[kolom])] = cel;
    }
    for (std::size_t i = 0; i < rij.rauw.size(); ++i)
        rij.schoon[i] = Schoon(static_cast<Kolom>(i + 1), rij.rauw[i]);
    for (std::size_t i = 0; i < naam.size(); ++i) {
        if (Tekst& deel = rij.schoon[Index(Kolom::Voornaam) + i]; deel.empty())
            deel = Schoon(static_cast<Kolom>(Index(Kolom::Voornaam) + i + 1), naam[i]);
    }
    return rij;
}

/// Of a player who is known `rij` is where he stands. Cells that stay become what they were.
void Lijstvoorbeeld::Vergelijk(std::size_t plek, Rij& rij, int bekende)
{
    Voorbeeldregel& regel = regels_[plek];
    Rijblikken oud; // what the line before it made of him
    if (eerdere_[plek] || bekende > 0)
        oud = eerdere_[plek] ? Cellen(*eerdere_[plek]) : tabel_.Cellen(bekende);
    const bool zelfdeNaam = rij.inEen && NaamIn(rij.schoon) == NaamIn(oud);
    const bool andereNaam =
        rij.inEen && rij.schoon[Index(Kolom::Achternaam)] != oud[Index(Kolom::Achternaam)];
    if (bekende == 0 && rij.schoon[Index(Kolom::NBBgr)].empty())
        rij.schoon[Index(Kolom::NBBgr)] = AlsVeld(Hoofdletters(ZonderSpaties(opdracht_.subgroep)));
    for (std::size_t i = Index(Kolom::Voornaam); i < oud.size(); ++i) {
        const auto kolom = static_cast<Kolom>(i + 1);
        Tekst& nieuw = rij.schoon[i];
        const bool vult = !nieuw.empty() || (kolom == Kolom::Tusv && andereNaam);
        const bool blijft = zelfdeNaam && kolom <= Kolom::Achternaam;
        regel.anders[i] = vult && !blijft && !StaatEr(kolom, oud[i], rij.rauw[i], nieuw);
        if (!regel.anders[i])
            nieuw = oud[i];
    }
    regel.rij = bekende;
    regel.andereNaam = bekende > 0 && IsAndereNaam(oud, Blikken(rij.schoon));
    // Under another number he may be somebody else of that name.
    if (regel.anders[Index(Kolom::NBBnr)] && !IsBlanco(oud[Index(Kolom::NBBnr)]))
        regel.naamgenoot = bekende;
    regel.soort = bekende == 0         ? Voorbeeldsoort::Nieuw
                  : regel.anders.any() ? Voorbeeldsoort::Gewijzigd
                                       : Voorbeeldsoort::Ongewijzigd;
}

/// What is wrong with a line that was compared.
std::optional<Weigering> Lijstvoorbeeld::Bezwaar(std::size_t plek, const Rij& rij) const
{
    const std::size_t lijstrij = plek + Eerste();
    bool heel = lijst_.Cellen(lijstrij) >= lijst_.Kolommen();
    for (std::size_t kolom = lijst_.Kolommen(); kolom < lijst_.Cellen(lijstrij); ++kolom)
        heel = heel && IsBlanco(lijst_.Cel(lijstrij, kolom));
    if (!heel)
        return Weigering::Cellen;
    if (rij.schoon[Index(Kolom::Achternaam)].empty())
        return Weigering::GeenNaam;
    if (regels_[plek].anders[Index(Kolom::NBBnr)] && !IsNBBnr(rij.schoon[Index(Kolom::NBBnr)]))
        return Weigering::Nummer;
    return std::nullopt;
}

/// Who is known, and what the lines so far did.
struct Lijstvoorbeeld::Boek {
    std::unordered_map<Tekst, int> bekenden; ///< the first row with each mark
    std::unordered_map<Tekst, Naamdragers> namen;
    std::unordered_set<Tekst> nieuwen;               ///< their marks
    std::vector<std::optional<std::size_t>> laatste; ///< line per row of the table
    std::vector<const Naamdragers*> dragers;         ///< per line
};

std::optional<Lijstvoorbeeld> Lijstvoorbeeld::Maak(const Spelertabel& tabel,
                                                   const Spelerslijst& lijst,
                                                   Lijstopdracht opdracht,
                                                   const Voortgang& voortgang)
{
    Lijstvoorbeeld uit(tabel, lijst, std::move(opdracht));
    const auto rijen = static_cast<std::size_t>(tabel.Rijen());
    const std::size_t geheel = rijen + uit.regels_.size();
    Boek boek;
    boek.laatste.resize(rijen + 1);
    for (std::size_t i = 0; i < geheel; ++i) {
        constexpr std::size_t elkeZoveel = 2048;
        if (i % elkeZoveel == 0 && voortgang && !voortgang(i, geheel))
            return std::nullopt;
        if (i < rijen)
            uit.NeemSpeler(boek, static_cast<int>(i) + 1);
        else
            uit.NeemRegel(boek, i - rijen);
    }
    for (std::size_t i = 0; i < uit.regels_.size(); ++i) {
        Voorbeeldregel& regel = uit.regels_[i];
        if (regel.soort == Voorbeeldsoort::Nieuw)
            regel.naamgenoot = boek.dragers[i]->rij;
        if (regel.soort <= Voorbeeldsoort::Gewijzigd)
            regel.dubbel = regel.dubbel || boek.dragers[i]->regels > 1;
    }
    uit.Tel();
    return uit;
}

void Lijstvoorbeeld::NeemSpeler(Boek& boek, int rij) const
{
    const Rijblikken cellen = tabel_.Cellen(rij);
    const bool hier = cellen[Index(Kolom::Groep)] == groep_;
    if (hier)
        boek.namen.try_emplace(Naamsleutel(NaamIn(cellen)), Naamdragers{.rij = rij});
    if (Tekst merk = Merk(cellen);
        !merk.empty() && (hier || opdracht_.keuze.herkenning == Herkenning::Key))
        boek.bekenden.try_emplace(std::move(merk), rij);
}

/// Who is new is added once, whatever the list says: another line for him is off at first.
void Lijstvoorbeeld::NeemRegel(Boek& boek, std::size_t plek)
{
    Rij rij = LeesRij(plek);
    const Tekst merk = Merk(Blikken(rij.schoon));
    const auto bekende = boek.bekenden.find(merk);
    const int was = bekende == boek.bekenden.end() ? 0 : bekende->second;
    std::optional<std::size_t>& laatste = boek.laatste[static_cast<std::size_t>(was)];
    if (was > 0)
        eerdere_[plek] = laatste;
    Vergelijk(plek, rij, was);
    Voorbeeldregel& regel = regels_[plek];
    Naamdragers& naam = boek.namen[Naamsleutel(NaamIn(rij.schoon))];
    boek.dragers.push_back(&naam);
    if (const auto bezwaar = Bezwaar(plek, rij)) {
        regel = {.soort = Voorbeeldsoort::Geweigerd, .weigering = *bezwaar};
        besluiten_[plek] = {.lot = Regellot::Overgeslagen, .kolommen = {}};
    } else {
        ++naam.regels;
        laatste = plek;
        const bool isNieuw = was == 0;
        regel.dubbel = isNieuw ? !merk.empty() && !boek.nieuwen.insert(merk).second
                               : eerdere_[plek].has_value();
        besluiten_[plek] = {.lot = !isNieuw       ? Regellot::Ververst
                                   : regel.dubbel ? Regellot::Uitgezet
                                                  : Regellot::Nieuw,
                            .rij = was,
                            .kolommen = regel.anders};
    }
    wens_.VoegToe(rij.schoon);
}

std::optional<Lijsttelling> Lijstvoorbeeld::VoerUit(Register& spelers) const
{
    const auto nieuw = std::ranges::count(besluiten_, Regellot::Nieuw, &Regelbesluit::lot);
    if (!ZijnErSleutels(spelers, static_cast<std::size_t>(nieuw)))
        return std::nullopt;
    Lijsttelling uit;
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (!IsAan(i) || besluiten_[i].kolommen.none())
            continue;
        Rijvelden nieuweRij;
        std::vector<Celtekst> anders;
        const Rijblikken cellen = Cellen(i);
        for (std::size_t k = 0; k < cellen.size(); ++k) {
            if (!besluiten_[i].kolommen[k])
                continue;
            nieuweRij[k] = cellen[k];
            anders.push_back({static_cast<Kolom>(k + 1), cellen[k]});
        }
        if (besluiten_[i].lot == Regellot::Ververst) {
            spelers.tabel.ZetCellen(besluiten_[i].rij, anders);
            ++uit.gewijzigd;
        } else if (VoegSpelerToe(spelers, groep_, nieuweRij))
            ++uit.nieuw;
    }
    return uit;
}

} // namespace plexoran
