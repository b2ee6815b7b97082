#include "federation/samenvoegen.h"

#include <algorithm>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

constexpr std::size_t MeldElke = 2048; // lines between two reports

/// From which field of the line each of `Importkolommen` comes, but for the last one.
constexpr std::array Herkomst{Importveld::Voornaam, Importveld::Tusv,   Importveld::Achternaam,
                              Importveld::Telef,    Importveld::Email,  Importveld::Adres,
                              Importveld::Postc,    Importveld::Plaats, Importveld::Land,
                              Importveld::MV};

Tekstblik Nummer(const Importvelden& velden)
{
    return ZonderSpaties(velden[Importveld::NBBnr]);
}

/// A file with many texts there that no number comes near holds something else.
bool ZijnTeGroot(const std::vector<Tekstblik>& nummers)
{
    constexpr std::size_t meeste = 65536;
    std::size_t samen = 0;
    for (const Tekstblik nummer : nummers)
        samen += nummer.size() > NBBnrIndex::Langste ? nummer.size() : 0;
    return samen > meeste;
}

void Ververs(Spelertabel& tabel, const Regelbesluit& besluit, const Rijblikken& cellen)
{
    std::array<Celtekst, Importkolommen.size()> anders;
    std::size_t aantal = 0;
    for (const Kolom kolom : Importkolommen) {
        if (besluit.kolommen[Index(kolom)])
            anders[aantal++] = {kolom, cellen[Index(kolom)]};
    }
    tabel.ZetCellen(besluit.rij, std::span(anders).first(aantal));
}

void VoegToe(Register& spelers, Tekstblik groep, const Kolommen& kolommen, Rijblikken& cellen)
{
    for (const Kolom kolom : Importkolommen) {
        if (!kolommen[Index(kolom)])
            cellen[Index(kolom)] = {};
    }
    const Tekst nr = std::to_string(spelers.tabel.Rijen() + 1);
    const Tekst key = std::to_string(NieuweSleutel(spelers).value());
    cellen[Index(Kolom::Nr)] = nr;
    cellen[Index(Kolom::Key)] = key;
    cellen[Index(Kolom::Groep)] = groep;
    spelers.tabel.VoegToe(cellen);
}

} // namespace

Rijblikken Importcellen(Tekstblik regel, Regellot lot, Tekstblik NBBgr)
{
    const Importvelden velden = SplitsImportregel(regel);
    Rijblikken cellen;
    for (std::size_t i = 0; i < Herkomst.size(); ++i) {
        const Tekstblik veld = velden[Herkomst[i]];
        cellen[Index(Importkolommen[i])] = lot == Regellot::Nieuw ? ZonderSpaties(veld) : veld;
    }
    cellen[Index(Kolom::NBBgr)] = NBBgr;
    cellen[Index(Kolom::NBBnr)] = Nummer(velden);
    return cellen;
}

/// What has a row of its own number is to be refreshed. Of the rest that has a number all are added
/// whose number does not occur yet; every one of them makes it occur.
tl::expected<Besluiten, Samenvoegfout> BesluitSamenvoeging(const Spelertabel& tabel,
                                                           const Samenvoegopdracht& opdracht,
                                                           const Voortgang& voortgang)
{
    const std::size_t aantal = opdracht.lstN1.size();
    std::vector<Tekstblik> nummers;
    nummers.reserve(aantal);
    for (const Tekstblik regel : opdracht.lstN1)
        nummers.push_back(Nummer(SplitsImportregel(regel)));
    if (ZijnTeGroot(nummers))
        return tl::unexpected(Samenvoegfout::TeGroot);

    NBBnrIndex index(nummers);
    std::unordered_map<Tekstblik, int> eersteRij; // of the group, with each number as text
    eersteRij.reserve(static_cast<std::size_t>(tabel.Rijen()));
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != opdracht.importgroep)
            continue;
        const Tekstblik nummer = tabel.Cel(rij, Kolom::NBBnr);
        index.Voeg(nummer);
        eersteRij.try_emplace(nummer, rij);
    }

    std::size_t gedaan = 0;
    const auto gestopt = [&] {
        return ++gedaan % MeldElke == 0 && voortgang && !voortgang(gedaan, 2 * aantal);
    };
    Besluiten besluiten(aantal);
    for (std::size_t i = 0; i < aantal; ++i) {
        const auto gelijke = eersteRij.find(nummers[i]);
        if (nummers[i].empty())
            besluiten[i].lot = Regellot::ZonderNBBnr;
        else if (gelijke != eersteRij.end()) // whose number is in the index as well
            besluiten[i] = {.lot = Regellot::Ververst, .rij = gelijke->second};
        if (gestopt())
            return tl::unexpected(Samenvoegfout::Gestopt);
    }
    for (std::size_t i = 0; i < aantal; ++i) {
        if (besluiten[i].lot != Regellot::Nieuw)
            continue;
        if (index.Bevat(i))
            besluiten[i].lot = Regellot::Overgeslagen;
        else
            index.Voeg(nummers[i]);
        if (gestopt())
            return tl::unexpected(Samenvoegfout::Gestopt);
    }
    return besluiten;
}

Samenvoeguitkomst VoerSamenvoegingUit(Register& spelers, const Samenvoegopdracht& opdracht,
                                      const Besluiten& besluiten)
{
    const auto nieuw = std::ranges::count(besluiten, Regellot::Nieuw, &Regelbesluit::lot);
    if (!ZijnErSleutels(spelers, static_cast<std::size_t>(nieuw)))
        return tl::unexpected(Samenvoegfout::GeenSleutels);
    const Tekst NBBgr = Hoofdletters(opdracht.subgroep);
    Samenvoeging uit;
    for (std::size_t i = 0; i < besluiten.size(); ++i) {
        const Regelbesluit& besluit = besluiten[i];
        const Tekst& regel = opdracht.lstN1[i];
        Rijblikken cellen = Importcellen(regel, besluit.lot, NBBgr);
        if (besluit.lot == Regellot::ZonderNBBnr) {
            uit.ZonderNBBnr.append(regel).append("\r\n");
        } else if (besluit.lot == Regellot::Overgeslagen) {
            uit.overgeslagen.push_back(regel);
        } else if (besluit.lot == Regellot::Ververst) {
            Ververs(spelers.tabel, besluit, cellen);
            ++uit.AantalVerververst;
        } else if (besluit.lot == Regellot::Nieuw) {
            VoegToe(spelers, opdracht.importgroep, besluit.kolommen, cellen);
            ++uit.AantalNieuw;
        }
    }
    return uit;
}

Samenvoeguitkomst VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht,
                                 const Voortgang& voortgang)
{
    return BesluitSamenvoeging(spelers.tabel, opdracht, voortgang)
        .and_then([&](const Besluiten& besluiten) {
            return VoerSamenvoegingUit(spelers, opdracht, besluiten);
        });
}

NBBnrIndex::NBBnrIndex(const std::vector<Tekstblik>& vragen)
{
    vragen_.reserve(vragen.size()); // their texts stay where they are
    gezien_.reserve(vragen.size());
    antwoorden_.reserve(vragen.size());
    for (const Tekstblik nummer : vragen) {
        const Tekst& vraag = vragen_.emplace_back(OpgemaaktNBBnr(nummer));
        if (vraag.size() > Langste) {
            antwoorden_.push_back(nullptr);
            continue;
        }
        // Nothing occurs everywhere.
        antwoorden_.push_back(&gezien_.try_emplace(vraag, vraag.empty()).first->second);
        lengten_.insert(vraag.size());
        metStreep_ = metStreep_ || vraag.find('-') != Tekst::npos;
    }
    lengten_.erase(0);
}

bool NBBnrIndex::Bevat(std::size_t vraag) const
{
    const bool* const antwoord = antwoorden_[vraag];
    return antwoord != nullptr ? *antwoord : tekst_.find(vragen_[vraag]) != Tekst::npos;
}

void NBBnrIndex::Voeg(Tekstblik nummer)
{
    const std::size_t begin = tekst_.size() + 1;
    tekst_ += '-';
    tekst_ += OpgemaaktNBBnr(nummer);
    for (const std::size_t lengte : lengten_) {
        // As a rule nothing that is asked can reach across the "-".
        const std::size_t eerste = metStreep_ ? std::max(lengte, begin) : begin + lengte;
        for (std::size_t eind = eerste; eind <= tekst_.size(); ++eind) {
            const auto gevonden = gezien_.find(Tekstblik(tekst_).substr(eind - lengte, lengte));
            if (gevonden != gezien_.end())
                gevonden->second = true;
        }
    }
}

} // namespace plexoran
