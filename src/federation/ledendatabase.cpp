#include "federation/ledenbestand.h"

#include <map>
#include <utility>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

/// The columns of "leden", as they are asked and stand in a row.
enum Ledenkolom : std::size_t {
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
    std::vector<Accesskolom> kolommen;
    for (const char* naam : {"voornaam", "tussenvoegsel", "voorletters", "achternaam", "bestand",
                             "telefoon1", "telefoon2", "email", "geslacht", "bondsnummer", "adres",
                             "postcode", "plaats", "land", "status"})
        kolommen.push_back({naam, Accesssoort::Letters});
    kolommen[Bestand].soort = Accesssoort::Geheel;
    return kolommen;
}

/// `waarde <> tekst` as the database engine has it: false for NULL; capitals and trailing blanks do
/// not count. A letter that only the code page made equal is another one.
bool Ongelijk(const std::optional<Accesswaarde>& waarde, Tekstblik tekst)
{
    if (!waarde)
        return false;
    const Tekstblik zonderStaart =
        Tekstblik(waarde->tekst).substr(0, waarde->tekst.find_last_not_of(' ') + 1);
    return waarde->vervangen > 0 || Hoofdletters(zonderStaart) != Hoofdletters(tekst);
}

Lidrij AlsLid(const Accessrij& rij, std::size_t& vervangen)
{
    const auto neem = [&](Ledenkolom kolom) {
        const Accesswaarde waarde = rij[kolom].value_or(Accesswaarde());
        vervangen += waarde.vervangen;
        return waarde.tekst;
    };
    const bool tweede = rij[Telefoon2] && !IsBlanco(rij[Telefoon2]->tekst);
    Lidrij lid;
    lid[Lidveld::NBBnr] = ZonderVoorloop(neem(Bondsnummer));
    lid[Lidveld::Geslacht] = rij[Geslacht] ? GeslachtUit(rij[Geslacht]->tekst) : Tekst();
    lid[Lidveld::Voornaam] = neem(Voornaam);
    lid[Lidveld::Voorletters] = neem(Voorletters);
    lid[Lidveld::Tussenvoegsel] = neem(Tussenvoegsel);
    lid[Lidveld::Achternaam] = neem(Achternaam);
    lid[Lidveld::Adres] = neem(Adres);
    lid[Lidveld::Postcode] = neem(Postcode);
    lid[Lidveld::Plaats] = neem(Plaats);
    lid[Lidveld::Telefoon] = neem(tweede ? Telefoon2 : Telefoon1);
    lid[Lidveld::Email] = neem(Email);
    return lid;
}

} // namespace

Uitkomst<std::vector<Tekst>> HaalLedenbestanden(const Pad& database, const Voortgang& voortgang,
                                                const Accessgrenzen& grenzen)
{
    const auto rijen = LeesAccess(
        database, "ledenbestanden",
        {{"id", Accesssoort::Geheel}, {"bestandsnaam", Accesssoort::Letters}}, voortgang, grenzen);
    if (!rijen)
        return Mislukt(rijen);
    std::vector<Tekst> lijst;
    for (const Accessrij& rij : *rijen) {
        Tekst& regel = lijst.emplace_back(rij[1] ? rij[1]->tekst : Tekst());
        regel += ' ';
        if (rij[0])
            regel += MetNullen(Geheel32(rij[0]->tekst).value_or(0), 3);
    }
    return lijst;
}

Uitkomst<Ledenomzetting> HaalLeden(Schijf& schijf, const Pad& database, int id,
                                   const Pad& tussenbestand, const Voortgang& voortgang,
                                   const Accessgrenzen& grenzen)
{
    const auto rijen = LeesAccess(database, "leden", Ledenkolommen(), voortgang, grenzen);
    if (!rijen)
        return Mislukt(rijen);
    const Tekst bestand = std::to_string(id);
    // By surname in the text order and then as they were read.
    std::multimap<Tekst, const Accessrij*> opNaam;
    for (const Accessrij& rij : *rijen) {
        if (rij[Bestand] && rij[Bestand]->tekst == bestand && Ongelijk(rij[Achternaam], "") &&
            Ongelijk(rij[Status], "Overleden"))
            opNaam.emplace(Sorteersleutel(rij[Achternaam]->tekst), &rij);
    }
    Tekst regels;
    Ledenomzetting uit;
    for (const auto& [naam, rij] : opNaam)
        VoegLidToe(regels, AlsLid(*rij, uit.vervangenTekens));
    return SchrijfTussenregels(schijf, tussenbestand, std::move(regels)).map([&] { return uit; });
}

} // namespace plexoran
