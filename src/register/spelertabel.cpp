#include "register/spelertabel.h"

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
        uit.append(tekst_, grenzen[van], grenzen[tot] - grenzen[van] - 1);
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

void Spelertabel::ZetRij(int rij, const Rijvelden& velden)
{
    assert(rij >= 1 && rij <= Rijen());
    rijen_[static_cast<std::size_t>(rij - 1)] = SchrijfVelden(velden);
}

void Spelertabel::ZetCel(int rij, Kolom kolom, Tekstblik tekst)
{
    const Tekst nieuw = AlsVeld(tekst); // a copy, since it may be a view into this table
    const auto lengte = Grenzen(rij)[AantalKolommen] - Grenzen(rij)[0];
    MaakRuimte(lengte + nieuw.size() + 1);

    const Celgrenzen oud = Grenzen(rij);
    const auto plaats = Plaats(kolom);
    const auto begin = static_cast<std::uint32_t>(tekst_.size());
    tekst_.append(tekst_, oud[0], oud[plaats] - oud[0]);
    tekst_ += nieuw;
    tekst_ += ',';
    const auto verder = static_cast<std::uint32_t>(tekst_.size());
    if (plaats + 1 < AantalKolommen) {
        tekst_.append(tekst_, oud[plaats + 1], oud[AantalKolommen] - oud[plaats + 1] - 1);
        tekst_ += ',';
    }
    Celgrenzen& grenzen = rijen_[static_cast<std::size_t>(rij - 1)];
    for (std::size_t i = 0; i < grenzen.size(); ++i)
        grenzen[i] = i <= plaats ? oud[i] - oud[0] + begin : oud[i] - oud[plaats + 1] + verder;
}

void Spelertabel::VoegToe(const Rijvelden& velden)
{
    rijen_.push_back(SchrijfVelden(velden));
}

Spelertabel::Celgrenzen Spelertabel::SchrijfVelden(const Rijvelden& velden)
{
    std::size_t lengte = AantalKolommen;
    for (const Tekst& veld : velden)
        lengte += veld.size();
    MaakRuimte(lengte);

    Celgrenzen grenzen{};
    for (std::size_t i = 0; i < velden.size(); ++i) {
        grenzen[i] = static_cast<std::uint32_t>(tekst_.size());
        tekst_ += AlsVeld(velden[i]);
        tekst_ += ',';
    }
    grenzen[AantalKolommen] = static_cast<std::uint32_t>(tekst_.size());
    return grenzen;
}

void Spelertabel::Verwijder(std::span<const int> rijen)
{
    std::vector<bool> weg(rijen_.size(), false);
    for (const int rij : rijen) {
        assert(rij >= 1 && rij <= Rijen());
        weg[static_cast<std::size_t>(rij - 1)] = true;
    }

    Tekst tekst;
    tekst.reserve(tekst_.size() + rijen_.size());
    std::vector<Celgrenzen> over;
    over.reserve(rijen_.size());
    for (int rij = 1; rij <= Rijen(); ++rij) {
        if (weg[static_cast<std::size_t>(rij - 1)])
            continue;
        Celgrenzen grenzen = Grenzen(rij);
        const auto oudBegin = grenzen[1];
        const auto lengte = grenzen[AantalKolommen] - oudBegin - 1;
        grenzen[0] = static_cast<std::uint32_t>(tekst.size());
        tekst += std::to_string(over.size() + 1);
        tekst += ',';
        const auto nieuwBegin = static_cast<std::uint32_t>(tekst.size());
        tekst.append(tekst_, oudBegin, lengte);
        tekst += ',';
        for (std::size_t i = 1; i < grenzen.size(); ++i)
            grenzen[i] = grenzen[i] - oudBegin + nieuwBegin;
        over.push_back(grenzen);
    }
    tekst_ = std::move(tekst);
    rijen_ = std::move(over);
}

/// Unused bytes of changed rows are given up when the buffer would outgrow its bounds.
void Spelertabel::MaakRuimte(std::size_t bytes)
{
    if (tekst_.size() + bytes <= GrootsteTekst)
        return;
    Tekst compact;
    for (Celgrenzen& grenzen : rijen_) {
        const auto begin = grenzen[0];
        const auto nieuw = static_cast<std::uint32_t>(compact.size());
        compact.append(tekst_, begin, grenzen[AantalKolommen] - begin - 1);
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

std::size_t Spelertabel::Geheugen() const
{
    return sizeof(*this) + tekst_.capacity() + rijen_.capacity() * sizeof(Celgrenzen);
}

} // namespace plexoran
