#include "register/spelertabel.h"

#include <algorithm>
#include <numeric>

namespace plexoran {

Spelertabel::Spelertabel(Tekst tekst, std::vector<Celgrenzen> rijen)
    : tekst_(std::move(tekst)), rijen_(std::move(rijen))
{
    assert(tekst_.size() <= GrootsteTekst);
}

void Spelertabel::VoegCellenAan(Tekst& uit, int rij) const
{
    const Celgrenzen& grenzen = Grenzen(rij);
    uit += Bytes(grenzen[1], grenzen[2]);
    uit += ',';
    uit += Cel(rij, Kolom::Groep);
    uit += ',';
    uit += Bytes(grenzen[3], grenzen[AantalKolommen]);
}

/// What stands unchanged between two changed cells is taken over in one piece.
Spelertabel::Celgrenzen Spelertabel::SchrijfKopie(int rij, std::span<const Celtekst> anders)
{
    const Celgrenzen& bron = Grenzen(rij);
    Tekst kopie; // on its own first, since the texts may be views into this table
    Celgrenzen grenzen{};
    std::size_t cel = 0;
    const auto neemOver = [&](std::size_t tot) {
        if (cel == tot)
            return;
        const auto verschil = static_cast<std::uint32_t>(kopie.size()) - bron[cel];
        kopie += Bytes(bron[cel], bron[tot]);
        kopie += ',';
        for (; cel < tot; ++cel)
            grenzen[cel] = bron[cel] + verschil;
    };
    for (const auto& [kolom, tekst] : anders) {
        assert(Index(kolom) >= cel);
        neemOver(Index(kolom));
        grenzen[cel++] = static_cast<std::uint32_t>(kopie.size());
        VoegVeldToe(kopie, tekst);
        kopie += ',';
    }
    neemOver(AantalKolommen);
    grenzen[AantalKolommen] = static_cast<std::uint32_t>(kopie.size());
    for (auto& grens : grenzen)
        grens += static_cast<std::uint32_t>(tekst_.size());
    tekst_ += kopie;
    return grenzen;
}

void Spelertabel::ZetRij(int rij, const Rijvelden& velden)
{
    Grenzen(rij) = Schrijf(velden);
}

void Spelertabel::ZetCel(int rij, Kolom kolom, Tekstblik tekst)
{
    const Tekst nieuw = AlsVeld(tekst); // a copy, since it may be a view into this table
    const auto begin = Grenzen(rij)[Index(kolom)];
    if (Grenzen(rij)[Index(kolom) + 1] - begin - 1 == nieuw.size()) {
        std::copy(nieuw.begin(), nieuw.end(), tekst_.begin() + begin);
        return;
    }
    const Celtekst anders{kolom, nieuw};
    ZetCellen(rij, {&anders, 1});
}

void Spelertabel::ZetCellen(int rij, std::span<const Celtekst> anders)
{
    Grenzen(rij) = SchrijfKopie(rij, anders);
}

void Spelertabel::VoegKopieToe(int rij, std::span<const Celtekst> anders)
{
    rijen_.push_back(SchrijfKopie(rij, anders));
}

void Spelertabel::VerwijderRijen(std::span<const int> rijen)
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
        Celgrenzen& rij = rijen_[over++] = rijen_[i];
        const Tekst nr = std::to_string(over);
        if (rij[1] - rij[0] - 1 < nr.size()) {
            ZetCel(static_cast<int>(over), Kolom::Nr, nr);
            continue;
        }
        // At the end of the old number's bytes: a table that is numbered anew does not grow.
        rij[0] = rij[1] - 1 - static_cast<std::uint32_t>(nr.size());
        std::copy(nr.begin(), nr.end(), tekst_.begin() + rij[0]);
    }
    rijen_.resize(over);
}

Tekst VolleNaam(Tekstblik voornaam, Tekstblik tusv, Tekstblik achternaam)
{
    Tekst naam;
    for (const Tekstblik deel : {voornaam, tusv, achternaam}) {
        if (!naam.empty() && !deel.empty())
            naam += ' ';
        naam += deel;
    }
    return naam;
}

Tekst VolleNaam(const Spelertabel& tabel, int rij)
{
    return VolleNaam(tabel.Cel(rij, Kolom::Voornaam), tabel.Cel(rij, Kolom::Tusv),
                     tabel.Cel(rij, Kolom::Achternaam));
}

Tekst OpgemaaktNBBnr(Tekstblik nummer)
{
    constexpr std::size_t cijfers = 8;
    return AlsGetal(nummer, cijfers).value_or(Tekst(nummer));
}

bool IsPartner(Tekstblik achternaam)
{
    constexpr Tekstblik partner = "PARTNER";
    return Hoofdletters(achternaam.substr(0, partner.size())) == partner;
}

Sleutelwijzer::Sleutelwijzer(const Spelertabel& tabel)
    : tabel_(tabel), rijen_(static_cast<std::size_t>(tabel.Rijen()))
{
    std::iota(rijen_.begin(), rijen_.end(), 1);
    const auto opKey = [&](int een, int ander) { return Key(een) < Key(ander); };
    if (!std::is_sorted(rijen_.begin(), rijen_.end(), opKey)) // as a rule they are
        std::stable_sort(rijen_.begin(), rijen_.end(), opKey);
}

int Sleutelwijzer::Rij(Tekstblik key) const
{
    const auto plek =
        std::lower_bound(rijen_.begin(), rijen_.end(), key,
                         [&](int rij, Tekstblik gezocht) { return Key(rij) < gezocht; });
    return plek != rijen_.end() && Key(*plek) == key ? *plek : 0;
}

} // namespace plexoran
