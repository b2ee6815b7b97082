// The players: what their file and their rows have that needs attention.
#include <algorithm>
#include <set>

#include "controle/controleur.h"
#include "platform/tekst/regels.h"
#include "register/groepen.h"
#include "register/spelerbestand.h"

namespace plexoran {

std::optional<std::int32_t> Sleutelgetal(Tekstblik key)
{
    constexpr std::size_t lengte = 6;
    if (key.size() != lengte)
        return std::nullopt;
    std::int32_t getal = 0;
    for (const char teken : key) {
        if (!IsCijfer(teken))
            return std::nullopt;
        getal = 10 * getal + (teken - '0');
    }
    return getal;
}

/// The player as a finding names him.
Tekst Controleur::Wie(int rij) const
{
    Tekst uit(tabel_.Cel(rij, Kolom::Key));
    uit.append(" ").append(VolleNaam(tabel_, rij));
    return uit.append(" (").append(tabel_.Cel(rij, Kolom::Groep)).append(")");
}

void Controleur::Speler(Vondstsoort soort, int rij, Tekst wat, Tekst ander)
{
    uit_.vondsten.push_back(
        {.soort = soort, .speler = Wie(rij), .wat = std::move(wat), .ander = std::move(ander)});
}

void Controleur::LeesRegister()
{
    const Pad pad = mappen_.Spelerbestand();
    const auto inhoud = schijf_.LeesBestand(pad);
    if (!inhoud) {
        Onleesbaar(inhoud.error());
        return;
    }
    ++uit_.telling.bestanden;
    ZoekTekens(*inhoud, pad);
    Spelerlezing lezing = SpelersUit(*inhoud);
    uit_.HKEY = std::max(lezing.HKEY.value_or(0), Sleutelbasis);
    uit_.allesGelezen = !lezing.fout && lezing.zonderAchternaam.empty();
    kentSpelers_ = !lezing.fout;
    MeldLezing(lezing, pad);
    MeldWeggelaten(lezing, *inhoud, pad);
    if (!lezing.tabel)
        return;
    tabel_ = std::move(*lezing.tabel);
    uit_.telling.spelers = static_cast<std::size_t>(tabel_.Rijen());
    BekijkRijen();
}

void Controleur::MeldLezing(const Spelerlezing& lezing, const Pad& pad)
{
    const auto meld = [&](int regel, const std::string& reden) {
        Onleesbaar({.bestand = Toon(pad), .regel = regel, .systeem = reden});
    };
    if (lezing.fout)
        meld(lezing.fout->regel,
             lezing.velden > 0 ? "deze regel heeft " + std::to_string(lezing.velden) +
                                     " velden in plaats van " + std::to_string(AantalKolommen)
             : lezing.fout->regel > 0 ? "achter HKEY= staat een getal dat niet past"
                                      : "het bestand is te groot");
    if (lezing.zonderSleutelregel)
        meld(0, "de regel HKEY= met de hoogste sleutel ontbreekt");
    if (lezing.sleutelZonderGetal > 0)
        meld(lezing.sleutelZonderGetal, "achter HKEY= staat geen getal");
}

void Controleur::MeldWeggelaten(const Spelerlezing& lezing, Tekstblik inhoud, const Pad& pad)
{
    if (lezing.zonderAchternaam.empty())
        return;
    const auto regels = Regels(inhoud);
    for (const int nummer : lezing.zonderAchternaam) {
        const auto velden = Items(regels[static_cast<std::size_t>(nummer - 1)]);
        const Tekstblik key = velden[Index(Kolom::Key)];
        if (const auto getal = Sleutelgetal(key))
            RijVan(*getal) = ZonderRij;
        uit_.vondsten.push_back(
            {.soort = Vondstsoort::ZonderAchternaam,
             .bestand = Toon(pad),
             .regel = nummer,
             .wat = Tekst(key).append(" ").append(velden[Index(Kolom::Voornaam)])});
    }
}

void Controleur::BekijkRijen()
{
    std::set<Tekst, std::less<>> groepen;
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        groepen.insert(Groepscode(nummer));
    std::set<Tekst, std::less<>> gebruikt;
    for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
        BekijkSleutel(rij);
        const Tekstblik groep = tabel_.Cel(rij, Kolom::Groep);
        if (!gebruikt.contains(groep))
            gebruikt.emplace(groep);
        if (!groepen.contains(groep))
            Speler(Vondstsoort::OnbekendeGroep, rij, Tekst(groep));
        if (groep == mappen_.DFIMPG)
            BekijkNBBnr(rij);
    }
    uit_.telling.groepen = gebruikt.size();
}

void Controleur::BekijkSleutel(int rij)
{
    const Tekstblik key = tabel_.Cel(rij, Kolom::Key);
    const auto getal = Sleutelgetal(key);
    if (!getal) {
        Speler(Vondstsoort::GeenSleutel, rij, Tekst(key));
        return;
    }
    int& eerste = RijVan(*getal);
    if (eerste > 0)
        Speler(Vondstsoort::DubbeleSleutel, rij, Wie(eerste));
    else
        eerste = rij;
    uit_.hoogste = std::max(uit_.hoogste, *getal);
    if (*getal > uit_.HKEY)
        Speler(Vondstsoort::BovenHKEY, rij);
}

/// Numbers are compared as the import does.
void Controleur::BekijkNBBnr(int rij)
{
    const Tekstblik cel = ZonderSpaties(tabel_.Cel(rij, Kolom::NBBnr));
    if (cel.empty())
        return;
    const auto [eerste, nieuw] = rijMetNBBnr_.emplace(OpgemaaktNBBnr(cel), rij);
    if (!nieuw)
        Speler(Vondstsoort::DubbelNBBnr, rij, Tekst(cel), Wie(eerste->second));
}

int& Controleur::RijVan(std::int32_t sleutel)
{
    const auto plek = static_cast<std::size_t>(sleutel);
    if (plek >= rijVan_.size())
        rijVan_.resize(plek + 1);
    return rijVan_[plek];
}

int Controleur::RijVan(Tekstblik key)
{
    const auto getal = Sleutelgetal(key);
    return getal ? RijVan(*getal) : 0;
}

} // namespace plexoran
