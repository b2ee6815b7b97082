#include "federation/voorbeeld.h"

#include <algorithm>
#include <unordered_set>

namespace plexoran {
namespace {

/// By which names are compared: without regard to case, accent and blanks.
Tekst Naamsleutel(Tekst naam)
{
    std::erase(naam, ' ');
    return Gewichten(naam);
}

Tekst Nummersleutel(Tekstblik nummer)
{
    return OpgemaaktNBBnr(ZonderSpaties(nummer));
}

/// Who bears one name: lines of the file, and of the group the first player and the first one with
/// another number than he has.
struct Naamdragers {
    std::size_t regels = 0;
    int rij = 0;
    int ander = 0;
};

/// Neither first name nor surname is what it was.
bool IsAndereNaam(const Rijblikken& oud, const Rijblikken& nieuw)
{
    return std::ranges::all_of(std::array{Kolom::Voornaam, Kolom::Achternaam}, [&](Kolom kolom) {
        const Tekst was = Naamsleutel(Tekst(oud[Index(kolom)]));
        return was.empty() || was != Naamsleutel(Tekst(nieuw[Index(kolom)]));
    });
}

} // namespace

tl::expected<Voorbeeld, Samenvoegfout> Voorbeeld::Maak(const Spelertabel& tabel,
                                                       Samenvoegopdracht opdracht,
                                                       const Ledenlezing& lezing,
                                                       const Voortgang& voortgang)
{
    // The decisions count each line twice; every line is gone through three times more, and every
    // player once for his name and once to see whether he is gone.
    const auto rijen = static_cast<std::size_t>(tabel.Rijen());
    const std::size_t geheel = 5 * opdracht.lstN1.size() + 2 * rijen;
    std::size_t gedaan = 2 * opdracht.lstN1.size();
    const auto meld = [&](std::size_t stap, std::size_t /*deel*/) {
        return !voortgang || voortgang(stap, geheel);
    };
    auto besluiten = BesluitSamenvoeging(tabel, opdracht, meld);
    if (!besluiten)
        return tl::unexpected(besluiten.error());
    constexpr std::size_t meldElke = 2048;
    const auto verder = [&] { return ++gedaan % meldElke != 0 || meld(gedaan, geheel); };
    Voorbeeld uit(tabel, std::move(opdracht), lezing, std::move(*besluiten));
    if (!uit.VergelijkRegels(verder) || !uit.ZoekTwijfels(verder))
        return tl::unexpected(Samenvoegfout::Gestopt);
    uit.VoegOvergeslagenToe();
    if (uit.IsHeel() && !uit.ZoekVerdwenen(verder))
        return tl::unexpected(Samenvoegfout::Gestopt);
    for (const Voorbeeldregel& regel : uit.regels_)
        ++uit.aantallen_[static_cast<std::size_t>(regel.soort)];
    return uit;
}

Voorbeeld::Voorbeeld(const Spelertabel& tabel, Samenvoegopdracht opdracht,
                     const Ledenlezing& lezing, Besluiten besluiten)
    : tabel_(tabel), opdracht_(std::move(opdracht)), lezing_(lezing),
      NBBgr_(AlsVeld(Hoofdletters(opdracht_.subgroep))), besluiten_(std::move(besluiten)),
      regels_(besluiten_.size()), eerdere_(besluiten_.size())
{}

void Voorbeeld::VoegOvergeslagenToe()
{
    regels_.resize(regels_.size() + lezing_.metIsTeken.size(),
                   {.soort = Voorbeeldsoort::Geweigerd, .weigering = Weigering::MetIsTeken});
    if (lezing_.teKorteRegel > 0)
        regels_.push_back({.soort = Voorbeeldsoort::Geweigerd, .weigering = Weigering::TeKort});
}

bool Voorbeeld::VergelijkRegels(const Stap& verder)
{
    std::vector<std::optional<std::size_t>> laatste(static_cast<std::size_t>(tabel_.Rijen()) + 1);
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (!verder())
            return false;
        Regelbesluit& besluit = besluiten_[i];
        Voorbeeldregel& regel = regels_[i];
        regel.rij = besluit.rij;
        if (besluit.lot == Regellot::ZonderNBBnr || besluit.lot == Regellot::Overgeslagen) {
            regel.soort = Voorbeeldsoort::Geweigerd;
            regel.weigering =
                besluit.lot == Regellot::ZonderNBBnr ? Weigering::ZonderNBBnr : Weigering::KomtVoor;
            continue;
        }
        const Rijblikken nieuw = Cellen(i);
        Rijblikken oud;
        if (besluit.lot == Regellot::Ververst) {
            eerdere_[i] = std::exchange(laatste[static_cast<std::size_t>(besluit.rij)], i);
            oud = eerdere_[i] ? Cellen(*eerdere_[i]) : tabel_.Cellen(besluit.rij);
        }
        for (const Kolom kolom : Importkolommen)
            regel.anders[Index(kolom)] = nieuw[Index(kolom)] != oud[Index(kolom)];
        besluit.kolommen = regel.anders;
        regel.zonderAchternaam = nieuw[Index(Kolom::Achternaam)].empty();
        if (besluit.lot == Regellot::Ververst) {
            regel.soort =
                regel.anders.any() ? Voorbeeldsoort::Gewijzigd : Voorbeeldsoort::Ongewijzigd;
            regel.andereNaam = regel.anders.any() && IsAndereNaam(oud, nieuw);
        }
    }
    return true;
}

bool Voorbeeld::ZoekTwijfels(const Stap& verder)
{
    const auto nummer = [this](int rij) { return Nummersleutel(tabel_.Cel(rij, Kolom::NBBnr)); };
    std::unordered_map<Tekst, Naamdragers> namen;
    for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
        if (!verder())
            return false;
        if (tabel_.Cel(rij, Kolom::Groep) != opdracht_.importgroep)
            continue;
        Naamdragers& dragers = namen[Naamsleutel(VolleNaam(tabel_, rij))];
        if (dragers.rij == 0)
            dragers.rij = rij;
        else if (dragers.ander == 0 && nummer(rij) != nummer(dragers.rij))
            dragers.ander = rij;
    }
    std::vector<const Naamdragers*> vanRegel(besluiten_.size());
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (!verder())
            return false;
        if (const Tekst naam = Naamsleutel(Naam(i)); !naam.empty()) {
            Naamdragers& dragers = namen[naam];
            ++dragers.regels;
            vanRegel[i] = &dragers;
        }
    }
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        const Naamdragers* dragers = vanRegel[i];
        if (!MagUit(i) || dragers == nullptr)
            continue;
        regels_[i].dubbel = dragers->regels > 1;
        const bool eigen = dragers->rij > 0 && nummer(dragers->rij) == Nummersleutel(Nummer(i));
        regels_[i].naamgenoot = eigen ? dragers->ander : dragers->rij;
    }
    return true;
}

/// Players without a number are looked for by their name.
bool Voorbeeld::ZoekVerdwenen(const Stap& verder)
{
    std::vector<bool> ververst(static_cast<std::size_t>(tabel_.Rijen()) + 1);
    for (const Voorbeeldregel& regel : regels_)
        ververst[static_cast<std::size_t>(regel.rij)] = true;
    std::vector<int> over;
    for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
        if (!verder())
            return false;
        if (!ververst[static_cast<std::size_t>(rij)] &&
            tabel_.Cel(rij, Kolom::Groep) == opdracht_.importgroep &&
            tabel_.Cel(rij, Kolom::NBBgr) == NBBgr_)
            over.push_back(rij);
    }
    if (over.empty())
        return true;
    std::unordered_set<Tekst> nummers;
    std::unordered_set<Tekst> namen;
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (!verder())
            return false;
        nummers.insert(Nummersleutel(Nummer(i)));
        namen.insert(Naamsleutel(Naam(i)));
    }
    for (const Tekstblik regel : lezing_.metIsTeken)
        nummers.insert(Nummersleutel(ZonderVoorloop(regel.substr(0, regel.find(';')))));
    for (const int rij : over) {
        const Tekst nummer = Nummersleutel(tabel_.Cel(rij, Kolom::NBBnr));
        if (nummer.empty() ? !namen.contains(Naamsleutel(VolleNaam(tabel_, rij)))
                           : !nummers.contains(nummer))
            regels_.push_back({.soort = Voorbeeldsoort::Verdwenen, .rij = rij});
    }
    return true;
}

bool Voorbeeld::IsHeel() const
{
    return lezing_.teKorteRegel == 0 && !lezing_.nietGeladen && !lezing_.anderNummer;
}

std::size_t Voorbeeld::AantalTwijfelachtig() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(regels_, &Voorbeeldregel::IsTwijfelachtig));
}

Rijblikken Voorbeeld::Cellen(std::size_t regel) const
{
    return Importcellen(opdracht_.lstN1[regel],
                        regels_[regel].rij == 0 ? Regellot::Nieuw : Regellot::Ververst, NBBgr_);
}

/// What stands in a cell after what this line and those before it do to its player.
Tekstblik Voorbeeld::Na(std::optional<std::size_t> regel, int rij, Kolom kolom) const
{
    while (regel && !(IsAan(*regel) && IsAan(*regel, kolom)))
        regel = eerdere_[*regel];
    if (regel)
        return Cellen(*regel)[Index(kolom)];
    return rij > 0 ? tabel_.Cel(rij, kolom) : Tekstblik();
}

Tekst Voorbeeld::Naam(std::size_t regel) const
{
    if (regel < besluiten_.size()) {
        const Importvelden velden = SplitsImportregel(opdracht_.lstN1[regel]);
        return VolleNaam(ZonderSpaties(velden[Importveld::Voornaam]),
                         ZonderSpaties(velden[Importveld::Tusv]),
                         ZonderSpaties(velden[Importveld::Achternaam]));
    }
    if (regels_[regel].soort == Voorbeeldsoort::Verdwenen)
        return VolleNaam(tabel_, regels_[regel].rij);
    return regels_[regel].weigering == Weigering::TeKort
               ? "regel " + std::to_string(lezing_.teKorteRegel)
               : lezing_.metIsTeken[regel - besluiten_.size()];
}

Tekstblik Voorbeeld::Nummer(std::size_t regel) const
{
    if (regel < besluiten_.size())
        return Cellen(regel)[Index(Kolom::NBBnr)];
    const int rij = regels_[regel].rij;
    return rij > 0 ? tabel_.Cel(rij, Kolom::NBBnr) : Tekstblik();
}

std::vector<Veldwijziging> Voorbeeld::Velden(std::size_t regel) const
{
    std::vector<Veldwijziging> uit;
    for (const Kolom kolom : Importkolommen) {
        if (regels_[regel].anders[Index(kolom)])
            uit.push_back({kolom, Na(eerdere_[regel], regels_[regel].rij, kolom),
                           Cellen(regel)[Index(kolom)]});
    }
    return uit;
}

bool Voorbeeld::IsAan(std::size_t regel) const
{
    return MagUit(regel) && besluiten_[regel].lot != Regellot::Uitgezet;
}

bool Voorbeeld::IsAan(std::size_t regel, Kolom kolom) const
{
    return besluiten_[regel].kolommen[Index(kolom)];
}

void Voorbeeld::Zet(std::size_t regel, bool aan)
{
    if (MagUit(regel))
        besluiten_[regel].lot = !aan                      ? Regellot::Uitgezet
                                : regels_[regel].rij == 0 ? Regellot::Nieuw
                                                          : Regellot::Ververst;
}

void Voorbeeld::Zet(std::size_t regel, Kolom kolom, bool aan)
{
    if (regels_[regel].anders[Index(kolom)] && MagUit(regel, kolom))
        besluiten_[regel].kolommen[Index(kolom)] = aan;
}

std::size_t Voorbeeld::RegelsUit() const
{
    return static_cast<std::size_t>(
        std::ranges::count(besluiten_, Regellot::Uitgezet, &Regelbesluit::lot));
}

std::size_t Voorbeeld::VeldenUit() const
{
    std::size_t aantal = 0;
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (IsAan(i))
            aantal += regels_[i].anders.count() - besluiten_[i].kolommen.count();
    }
    return aantal;
}

/// Of two lines for one player the second can undo the first.
bool Voorbeeld::VerandertIets() const
{
    std::vector<bool> isLaatste(besluiten_.size(), true);
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (eerdere_[i])
            isLaatste[*eerdere_[i]] = false;
    }
    for (std::size_t i = 0; i < besluiten_.size(); ++i) {
        if (besluiten_[i].lot == Regellot::Nieuw)
            return true;
        const int rij = regels_[i].rij;
        if (rij > 0 && isLaatste[i] && std::ranges::any_of(Importkolommen, [&](Kolom kolom) {
                return Na(i, rij, kolom) != tabel_.Cel(rij, kolom);
            }))
            return true;
    }
    return false;
}

} // namespace plexoran
