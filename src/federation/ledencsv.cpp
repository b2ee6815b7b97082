#include "federation/ledencsv.h"

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr std::size_t AantalCsvkolommen = 12;

/// Which column each field of an import line comes from, and whether its box is ticked.
struct Herkomst {
    std::size_t kolom = 0;
    bool gekozen = true;
};
using Herkomsten = std::array<Herkomst, Importveld::Aantal>;

Herkomsten HerkomstenVan(const Importkeuzes& keuzes)
{
    return {{{2},
             {4},
             {5},
             {6, keuzes.naw},
             {7, keuzes.naw},
             {8, keuzes.naw},
             {9, keuzes.tel},
             {10, keuzes.email},
             {11, keuzes.naw},
             {1, keuzes.mv},
             {0}}};
}

/// The import line of a line; false when it lacks columns that are asked for.
bool MaakImportregel(Tekst& uit, Tekstblik regel, const Herkomsten& herkomsten)
{
    std::array<Tekstblik, AantalCsvkolommen> kolommen;
    std::size_t aantal = 0;
    for (std::size_t eind = 0; eind != Tekstblik::npos && aantal < kolommen.size(); ++aantal) {
        eind = regel.find(';');
        kolommen[aantal] = regel.substr(0, eind);
        regel.remove_prefix(std::min(kolommen[aantal].size() + 1, regel.size()));
    }
    kolommen[0] = ZonderVoorloop(kolommen[0]);
    uit.clear();
    for (const auto& [kolom, gekozen] : herkomsten) {
        if (gekozen && kolom >= aantal)
            return false;
        if (gekozen)
            uit += kolommen[kolom];
        uit += ',';
    }
    uit.pop_back();
    return true;
}

} // namespace

Tekst GeslachtUit(Tekstblik tekst)
{
    const Tekst groot = Hoofdletters(tekst);
    if (groot == "MAN" || groot == "MALE")
        return "M";
    if (groot == "VROUW" || groot == "FEMALE")
        return "V";
    return {}; // "NIET BEKEND" and "UNKNOWN" are no different from any other text
}

Tekstblik ZonderVoorloop(Tekstblik nummer)
{
    constexpr unsigned char hoogste = 240;
    if (IsBlanco(nummer))
        return nummer;
    while (!nummer.empty() && static_cast<unsigned char>(nummer.front()) > hoogste)
        nummer.remove_prefix(1);
    return nummer;
}

Tekst ZonderRegeleinden(Tekstblik tekst)
{
    Tekst uit;
    uit.reserve(tekst.size());
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (tekst.substr(i, 2) == "\r\n")
            ++i;
        uit += tekst[i] == '\r' || tekst[i] == '\n' ? ' ' : tekst[i];
    }
    return uit;
}

void VoegLidToe(Tekst& regels, const Lidrij& lid)
{
    for (const Tekst& veld : lid) {
        const bool meer = veld.find('\n') != Tekst::npos || veld.find('\r') != Tekst::npos;
        regels += meer ? ZonderRegeleinden(veld) : veld;
        regels += ';';
    }
    regels += "\r\n";
}

Uitkomst<void> SchrijfTussenregels(Schijf& schijf, const Pad& pad, Tekst regels)
{
    regels += "\r\n";
    return SchrijfHeel(schijf, pad, regels, Houdbaarheid::Vluchtig);
}

Uitkomst<Ledenlezing> LeesLedencsv(Tekstblik tekst, const Importkeuzes& keuzes,
                                   const Voortgang& voortgang)
{
    if (tekst.find('\0') != Tekstblik::npos)
        return Mislukt({.soort = Foutsoort::Beschadigd, .systeem = "dit is geen tekstbestand"});
    constexpr int elkeZoveel = 4096;
    const Herkomsten herkomsten = HerkomstenVan(keuzes);
    Ledenlezing uit;
    uit.lstN1.reserve(static_cast<std::size_t>(std::count(tekst.begin(), tekst.end(), '\n')) + 1);
    Tekst importregel;
    int nummer = 0;
    for (const Tekstblik regel : Regels(tekst)) {
        if (++nummer % elkeZoveel == 0 && voortgang)
            voortgang(static_cast<std::size_t>(regel.data() - tekst.data()), tekst.size());
        if (IsBlanco(regel))
            continue;
        if (regel.find('=') != Tekstblik::npos) {
            uit.metIsTeken.emplace_back(regel);
        } else if (MaakImportregel(importregel, regel, herkomsten)) {
            uit.lstN1.emplace_back(importregel);
        } else {
            uit.teKorteRegel = nummer;
            break;
        }
    }
    return uit;
}

} // namespace plexoran
