#include "federation/ledendatabase.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "federation/tussenbestand.h"
#include "platform/tekst/getal.h"
#include "platform/tekst/tekstorde.h"

namespace plexoran {
namespace {

/// The places of the columns in a row of "leden", as they are asked.
enum Kolomplaats : std::size_t {
    Voornaam,
    Tussenvoegsel,
    Voorletters,
    Achternaam,
    Bestand,
    Telefoon1,
    Telefoon2,
    Email,
    Geslacht,
    Bondsnummer,
    Adres,
    Postcode,
    Plaats,
    Land,
    Status,
};

std::vector<Accesskolom> Ledenkolommen()
{
    constexpr auto tekst = Accesssoort::Letters;
    return {{"voornaam", tekst},
            {"tussenvoegsel", tekst},
            {"voorletters", tekst},
            {"achternaam", tekst},
            {"bestand", Accesssoort::Geheel},
            {"telefoon1", tekst},
            {"telefoon2", tekst},
            {"email", tekst},
            {"geslacht", tekst},
            {"bondsnummer", tekst},
            {"adres", tekst},
            {"postcode", tekst},
            {"plaats", tekst},
            {"land", tekst},
            {"status", tekst}};
}

Tekstblik ZonderStaart(Tekstblik tekst)
{
    return tekst.substr(0, tekst.find_last_not_of(' ') + 1);
}

/// `waarde <> tekst` as the database engine has it: false for NULL; capitals and trailing blanks do
/// not count. A letter that only the code page made equal is another one.
bool Ongelijk(const std::optional<Accesswaarde>& waarde, Tekstblik tekst)
{
    return waarde && (waarde->vervangen > 0 ||
                      Hoofdletters(ZonderStaart(waarde->tekst)) != Hoofdletters(tekst));
}

bool DoetMee(const Accessrij& rij, const Tekst& bestand)
{
    return rij[Bestand] && rij[Bestand]->tekst == bestand && Ongelijk(rij[Achternaam], "") &&
           Ongelijk(rij[Status], "Overleden");
}

class Rijvuller {
  public:
    Rijvuller(const Accessrij& rij, std::size_t& vervangen) : rij_(rij), vervangen_(vervangen) {}

    Lidrij Vul()
    {
        const bool tweede = rij_[Telefoon2] && !IsBlanco(rij_[Telefoon2]->tekst);
        Zet(Lidveld::NBBnr, ZonderVoorloop(Neem(Bondsnummer)));
        Zet(Lidveld::Geslacht, GeslachtUit(rij_[Geslacht] ? rij_[Geslacht]->tekst : Tekst()));
        Zet(Lidveld::Voornaam, Neem(Voornaam));
        Zet(Lidveld::Voorletters, Neem(Voorletters));
        Zet(Lidveld::Tussenvoegsel, Neem(Tussenvoegsel));
        Zet(Lidveld::Achternaam, Neem(Achternaam));
        Zet(Lidveld::Adres, Neem(Adres));
        Zet(Lidveld::Postcode, Neem(Postcode));
        Zet(Lidveld::Plaats, Neem(Plaats));
        Zet(Lidveld::Telefoon, Neem(tweede ? Telefoon2 : Telefoon1));
        Zet(Lidveld::Email, Neem(Email));
        return std::move(lid_);
    }

  private:
    void Zet(Lidveld veld, Tekstblik tekst) { lid_[static_cast<std::size_t>(veld)] = tekst; }

    Tekstblik Neem(Kolomplaats kolom)
    {
        if (!rij_[kolom])
            return {};
        vervangen_ += rij_[kolom]->vervangen;
        return rij_[kolom]->tekst;
    }

    const Accessrij& rij_;
    std::size_t& vervangen_;
    Lidrij lid_;
};

/// The rows that take part, by surname in the text order and then as they were read.
std::vector<const Accessrij*> Gekozen(const std::vector<Accessrij>& rijen, const Tekst& bestand)
{
    std::vector<std::pair<Tekst, const Accessrij*>> gekozen;
    for (const Accessrij& rij : rijen) {
        if (DoetMee(rij, bestand))
            gekozen.emplace_back(Sorteersleutel(rij[Achternaam]->tekst), &rij);
    }
    std::stable_sort(gekozen.begin(), gekozen.end(),
                     [](const auto& een, const auto& ander) { return een.first < ander.first; });
    std::vector<const Accessrij*> uit;
    uit.reserve(gekozen.size());
    for (const auto& [sleutel, rij] : gekozen)
        uit.push_back(rij);
    return uit;
}

} // namespace

Uitkomst<std::vector<Tekst>> HaalLedenbestanden(const Pad& database, const Voortgang& voortgang,
                                                const Accessgrenzen& grenzen)
{
    const auto rijen = LeesAccess(
        database, "ledenbestanden",
        {{"id", Accesssoort::Geheel}, {"bestandsnaam", Accesssoort::Letters}}, voortgang, grenzen);
    if (!rijen)
        return tl::unexpected(rijen.error());
    std::vector<Tekst> lijst;
    for (const Accessrij& rij : *rijen) {
        Tekst regel = rij[1] ? rij[1]->tekst : Tekst();
        regel += ' ';
        if (rij[0])
            regel += MetNullen(Geheel32(rij[0]->tekst).value_or(0), 3);
        lijst.push_back(std::move(regel));
    }
    return lijst;
}

Uitkomst<std::size_t> HaalLeden(Schijf& schijf, const Pad& database, int id,
                                const Pad& tussenbestand, const Voortgang& voortgang,
                                const Accessgrenzen& grenzen)
{
    const auto rijen = LeesAccess(database, "leden", Ledenkolommen(), voortgang, grenzen);
    if (!rijen)
        return tl::unexpected(rijen.error());
    std::vector<Lidrij> leden;
    std::size_t vervangen = 0;
    for (const Accessrij* rij : Gekozen(*rijen, std::to_string(id)))
        leden.push_back(Rijvuller(*rij, vervangen).Vul());
    if (auto geschreven = SchrijfTussenbestand(schijf, tussenbestand, leden); !geschreven)
        return tl::unexpected(std::move(geschreven.error()));
    return vervangen;
}

} // namespace plexoran
