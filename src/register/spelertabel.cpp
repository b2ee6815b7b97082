#include "register/spelertabel.h"

#include <algorithm>

namespace plexoran {
Spelertabel::Spelertabel(Tekst tekst, std::vector<Celgrenzen> rijen)
    : tekst_(std::move(tekst)), rijen_(std::move(rijen))
{
    assert(tekst_.size() <= GrootsteTekst);
}

void Spelertabel::VoegCellenAan(Tekst& uit, int rij) const
{
    const Celgrenzen& grenzen = Grenzen(rij);
    const auto stuk = [&](std::size_t van, std::size_t tot) {
        uit += Bytes(grenzen[van], grenzen[tot]);
    };
    if (grenzen[3] - grenzen[2] - 1 <= LengteGroepscode) {
        stuk(1, AantalKolommen);
        return;
    }
    stuk(1, 2);
    uit += ',';
    uit += Cel(rij, Kolom::Groep);
    uit += ',';
    stuk(3, AantalKolommen);
}

template <class Rij> Spelertabel::Celgrenzen Spelertabel::SchrijfVelden(const Rij& velden)
{
    std::size_t lengte = AantalKolommen;
    for (const Tekstblik veld : velden)
        lengte += veld.size();
    MaakRuimte(lengte);

    Celgrenzen grenzen{};
    for (std::size_t i = 0; i < velden.size(); ++i) {
        grenzen[i] = static_cast<std::uint32_t>(tekst_.size());
        VoegVeldToe(tekst_, velden[i]);
        tekst_ += ',';
    }
    grenzen[AantalKolommen] = static_cast<std::uint32_t>(tekst_.size());
    return grenzen;
}

void Spelertabel::ZetRij(int rij, const Rijvelden& velden)
{
    assert(rij >= 1 && rij <= Rijen());
    const Celgrenzen grenzen = SchrijfVelden(velden);
    Grenzen(rij) = grenzen;
}

void Spelertabel::ZetCel(int rij, Kolom kolom, Tekstblik tekst)
{
    const Tekst nieuw = AlsVeld(tekst); // a copy, since it may be a view into this table
    const auto begin = Grenzen(rij)[Plaats(kolom)];
    if (Grenzen(rij)[Plaats(kolom) + 1] - begin - 1 == nieuw.size()) {
        std::copy(nieuw.begin(), nieuw.end(), tekst_.begin() + begin);
        return;
    }
    const Celtekst anders{kolom, nieuw};
    ZetCellen(rij, {&anders, 1});
}

void Spelertabel::ZetCellen(int rij, std::span<const Celtekst> anders)
{
    const Celgrenzen grenzen = SchrijfKopie(rij, anders);
    Grenzen(rij) = grenzen;
}

void Spelertabel::VoegToe(const Rijvelden& velden)
{
    rijen_.push_back(SchrijfVelden(velden));
}

void Spelertabel::VoegRijToe(const Rijblikken& velden)
{
    rijen_.push_back(SchrijfVelden(velden));
}

void Spelertabel::VoegKopieToe(int rij, std::span<const Celtekst> anders)
{
    rijen_.push_back(SchrijfKopie(rij, anders));
}

Spelertabel::Celgrenzen Spelertabel::SchrijfKopie(int rij, std::span<const Celtekst> anders)
{
    const Celgrenzen& bron = Grenzen(rij);
    Tekst kopie; // on its own first, since the texts may be views into this table
    Celgrenzen grenzen{};
    std::size_t plaats = 0;
    const auto neemOver = [&](std::size_t tot) { // the cells up to `tot`, as they stand together
        if (plaats == tot)
            return;
        const auto verschil = static_cast<std::uint32_t>(kopie.size()) - bron[plaats];
        kopie += Bytes(bron[plaats], bron[tot]);
        kopie += ',';
        for (; plaats < tot; ++plaats)
            grenzen[plaats] = bron[plaats] + verschil;
    };
    for (const Celtekst& cel : anders) {
        assert(Plaats(cel.kolom) >= plaats);
        neemOver(Plaats(cel.kolom));
        grenzen[plaats++] = static_cast<std::uint32_t>(kopie.size());
        VoegVeldToe(kopie, cel.tekst);
        kopie += ',';
    }
    neemOver(AantalKolommen);
    grenzen[AantalKolommen] = static_cast<std::uint32_t>(kopie.size());

    MaakRuimte(kopie.size());
    for (auto& grens : grenzen)
        grens += static_cast<std::uint32_t>(tekst_.size());
    tekst_ += kopie;
    return grenzen;
}

void Spelertabel::Verwijder(std::span<const int> rijen)
{
    std::vector<bool> weg(rijen_.size(), false);
    for (const int rij : rijen) {
        assert(rij >= 1 && rij <= Rijen());
        weg[static_cast<std::size_t>(rij - 1)] = true;
    }

    std::size_t over = 0;
    for (std::size_t i = 0; i < rijen_.size(); ++i) {
        if (weg[i])
            continue;
        rijen_[over++] = rijen_[i];
        ZetNr(static_cast<int>(over));
    }
    rijen_.resize(over);
}

/// Gives a row its position as `Nr`: at the end of the old number's bytes where it fits in them.
void Spelertabel::ZetNr(int rij)
{
    const Tekst nr = std::to_string(rij);
    Celgrenzen& grenzen = Grenzen(rij);
    if (grenzen[1] - grenzen[0] - 1 < nr.size()) {
        ZetCel(rij, Kolom::Nr, nr);
        return;
    }
    grenzen[0] = grenzen[1] - 1 - static_cast<std::uint32_t>(nr.size());
    std::copy(nr.begin(), nr.end(), tekst_.begin() + grenzen[0]);
}

/// Unused bytes of changed rows are given up when the text would outgrow the bounds.
void Spelertabel::MaakRuimte(std::size_t bytes)
{
    if (tekst_.size() + bytes <= GrootsteTekst)
        return;
    Tekst compact;
    for (int rij = 1; rij <= Rijen(); ++rij) {
        Celgrenzen& grenzen = Grenzen(rij);
        const auto begin = grenzen[0];
        const auto nieuw = static_cast<std::uint32_t>(compact.size());
        compact += Bytes(begin, grenzen[AantalKolommen]);
        compact += ',';
        for (auto& grens : grenzen)
            grens = grens - begin + nieuw;
    }
    tekst_ = std::move(compact);
}

Rijvelden Spelertabel::Velden(int rij) const
{
    Rijvelden velden;
    for (int kolom = 1; kolom <= AantalKolommen; ++kolom)
        velden[static_cast<std::size_t>(kolom - 1)] = Cel(rij, static_cast<Kolom>(kolom));
    return velden;
}

Tekst VolleNaam(const Spelertabel& tabel, int rij)
{
    Tekst naam;
    for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam}) {
        const Tekstblik deel = tabel.Cel(rij, kolom);
        if (!naam.empty() && !deel.empty())
            naam += ' ';
        naam += deel;
    }
    return naam;
}

} // namespace plexoran
