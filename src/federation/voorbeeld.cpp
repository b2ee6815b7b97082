#include "federation/voorbeeld.h"

#include <algorithm>
#include <unordered_set>

namespace plexoran {
namespace {

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
    uit.Tel();
    return uit;
}

Voorbeeld::Voorbeeld(const Spelertabel& tabel, Samenvoegopdracht opdracht,
                     const Ledenlezing& lezing, Besluiten besluiten)
    : Regelvoorbeeld(tabel, opdracht.importgroep, std::move(besluiten)),
      opdracht_(std::move(opdracht)), lezing_(lezing),
      NBBgr_(AlsVeld(Hoofdletters(opdracht_.subgroep)))
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

Rijblikken Voorbeeld::Cellen(std::size_t regel) const
{
    return Importcellen(opdracht_.lstN1[regel],
                        regels_[regel].rij == 0 ? Regellot::Nieuw : Regellot::Ververst, NBBgr_);
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

} // namespace plexoran
