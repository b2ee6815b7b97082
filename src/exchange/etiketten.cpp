#include "exchange/etiketten.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

/// Without its blanks and in capitals, as post codes are compared.
Tekst Postcode(const Spelertabel& tabel, int rij)
{
    Tekst uit = Hoofdletters(tabel.Cel(rij, Kolom::Postc));
    std::erase(uit, ' ');
    return uit;
}

/// Empty for who has no address.
Tekst Adressleutel(const Spelertabel& tabel, int rij)
{
    const Tekstblik plaats = tabel.Cel(rij, Kolom::Plaats);
    const Tekst postcode = Postcode(tabel, rij);
    if (IsBlanco(tabel.Cel(rij, Kolom::Adres)) || (postcode.empty() && IsBlanco(plaats)))
        return {};
    return KaleWoorden(tabel.Cel(rij, Kolom::Adres)) + '\n' +
           (postcode.empty() ? '\n' + KaleWoorden(plaats) : postcode);
}

/// The players of each label, in the order of the rows.
std::vector<std::vector<int>> Bewoners(const Spelertabel& tabel, const std::vector<int>& rijen,
                                       Etiketsoort soort, std::vector<int>& zonderAdres)
{
    std::vector<std::vector<int>> uit;
    std::unordered_map<Tekst, std::size_t> plekken(rijen.size());
    for (const int rij : rijen) {
        Tekst sleutel = soort == Etiketsoort::Naamkaart ? " " : Adressleutel(tabel, rij);
        if (sleutel.empty()) {
            zonderAdres.push_back(rij);
            continue;
        }
        std::size_t plek = uit.size();
        if (soort == Etiketsoort::PerAdres)
            plek = plekken.try_emplace(std::move(sleutel), plek).first->second;
        if (plek == uit.size())
            uit.emplace_back();
        uit[plek].push_back(rij);
    }
    return uit;
}

/// Each text once, capitals and accents apart.
Tekst Samen(const std::vector<Tekst>& teksten, Tekstblik tussen, Tekstblik laatste)
{
    std::set<Tekst> gezien;
    std::vector<Tekstblik> enige;
    for (const Tekst& tekst : teksten) {
        if (!tekst.empty() && gezien.insert(Gewichten(tekst)).second)
            enige.push_back(tekst);
    }
    Tekst uit;
    for (std::size_t i = 0; i < enige.size(); ++i)
        uit.append(i == 0 ? "" : i + 1 == enige.size() ? laatste : tussen).append(enige[i]);
    return uit;
}

/// A partner without a name of his own adds none.
Tekst Familienaam(const Spelertabel& tabel, const std::vector<int>& rijen)
{
    std::vector<Tekst> delen;
    for (const int rij : rijen) {
        const Tekstblik achternaam = tabel.Cel(rij, Kolom::Achternaam);
        const Tekst naam =
            Vervang(VolleNaam({}, tabel.Cel(rij, Kolom::Tusv), achternaam), '-', ',');
        for (const Tekstblik deel : Items(IsPartner(achternaam) ? Tekstblik() : naam))
            delen.emplace_back(ZonderSpaties(deel));
    }
    const Tekst samen = Samen(delen, "-", "-");
    return samen.empty() ? samen : "Fam. " + samen;
}

Etiket MaakEtiket(const Spelertabel& tabel, const std::vector<int>& rijen,
                  const Etiketopdracht& opdracht)
{
    const auto veld = [&](Kolom kolom) {
        return Tekst(ZonderSpaties(tabel.Cel(rijen.front(), kolom)));
    };
    if (opdracht.soort == Etiketsoort::Naamkaart)
        return {veld(Kolom::Voornaam), VolleNaam({}, veld(Kolom::Tusv), veld(Kolom::Achternaam)),
                opdracht.onderschrift};
    std::vector<Tekst> namen;
    for (const int rij : rijen)
        namen.push_back(VolleNaam(tabel, rij));
    const Tekst voluit = namen.size() == 1 ? namen.front() : Samen(namen, ", ", " en ");
    const bool samen = opdracht.alsFamilie && voluit != namen.front();
    const Tekst familie = samen ? Familienaam(tabel, rijen) : Tekst();
    const Tekst postcode = veld(Kolom::Postc);
    const Tekst plaats = veld(Kolom::Plaats);
    const bool beide = !postcode.empty() && !plaats.empty();
    Etiket uit{familie.empty() ? voluit : familie, veld(Kolom::Adres),
               postcode + (beide ? "  " : "") + plaats, veld(Kolom::Land)};
    std::erase(uit, Tekst());
    return uit;
}

/// What is looked at first stands first; a blank sorts before all else.
Tekst Volgorde(const Spelertabel& tabel, int rij, bool opPostcode)
{
    Tekst uit;
    if (opPostcode)
        uit.append(Postcode(tabel, rij)).append("  ").append(tabel.Cel(rij, Kolom::Adres)) += "  ";
    for (const Kolom kolom : {Kolom::Achternaam, Kolom::Voornaam, Kolom::Tusv})
        uit.append(tabel.Cel(rij, kolom)) += "  ";
    return Sorteersleutel(uit);
}

} // namespace

Etiketreeks MaakEtiketten(const Spelertabel& tabel, const std::vector<int>& rijen,
                          const Etiketopdracht& opdracht)
{
    Etiketreeks uit;
    const auto bewoners = Bewoners(tabel, rijen, opdracht.soort, uit.zonderAdres);
    std::vector<std::pair<Tekst, std::size_t>> volgorde;
    volgorde.reserve(bewoners.size());
    for (const auto& samen : bewoners)
        volgorde.emplace_back(Volgorde(tabel, samen.front(), opdracht.opPostcode), volgorde.size());
    std::ranges::sort(volgorde);
    uit.etiketten.reserve(volgorde.size());
    for (const auto& [sleutel, plek] : volgorde)
        uit.etiketten.push_back(MaakEtiket(tabel, bewoners[plek], opdracht));
    return uit;
}

} // namespace plexoran
