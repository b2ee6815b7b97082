#include "federation/ledenbestand.h"

#include <algorithm>
#include <array>
#include <utility>

#include "federation/ledencsv.h"
#include "federation/ledendatabase.h"
#include "federation/ledenxml.h"
#include "federation/tussenbestand.h"
#include "platform/tekst/codepagina.h"
#include "platform/tekst/getal.h"

namespace plexoran {
namespace {

/// Sources that are converted first are halfway when that is done.
Voortgang EersteHelft(const Voortgang& voortgang)
{
    if (!voortgang)
        return {};
    return [&](std::size_t gedaan, std::size_t geheel) { return voortgang(gedaan, 2 * geheel); };
}

Voortgang TweedeHelft(const Voortgang& voortgang)
{
    if (!voortgang)
        return {};
    return [&](std::size_t gedaan, std::size_t geheel) {
        return voortgang(geheel + gedaan, 2 * geheel);
    };
}

constexpr std::size_t Nummerlengte = 3;

/// The number of a member file of the database, in the last three characters of its entry.
int Databasenummer(Tekstblik naam)
{
    return Geheel32(naam.substr(naam.size() - std::min(naam.size(), Nummerlengte))).value_or(0);
}

/// A number of other than three digits cannot be read back from its entry.
bool IsHeelNummer(Tekstblik naam)
{
    const Tekstblik nummer = naam.substr(naam.rfind(' ') + 1);
    return nummer.size() == Nummerlengte &&
           nummer.find_first_not_of("0123456789") == Tekstblik::npos;
}

Uitkomst<Xmlomzetting> ZetOm(Schijf& schijf, const Ledenopdracht& opdracht, Tekstblik naam,
                             const Pad& tussenbestand, const Voortgang& voortgang)
{
    const Pad bestand = Samen(opdracht.map, naam);
    switch (opdracht.bron) {
    case Ledenbron::XmlNbb3:
        return ConverteerNBB3XML(schijf, bestand, tussenbestand, voortgang);
    case Ledenbron::XmlNbb4:
        return ConverteerNBB4XML(schijf, bestand, tussenbestand, voortgang);
    default:
        return HaalLeden(schijf, opdracht.LedenDatabase, Databasenummer(naam), tussenbestand,
                         voortgang, opdracht.grenzen)
            .map([](std::size_t vervangen) {
                return Xmlomzetting{vervangen, std::nullopt};
            });
    }
}

Uitkomst<Ledenlezing> LeesBestand(Schijf& schijf, const Pad& bestand, const Ledenopdracht& opdracht,
                                  const Voortgang& voortgang)
{
    auto inhoud = LeesBegrensd(schijf, bestand);
    if (!inhoud)
        return tl::unexpected(std::move(inhoud.error()));
    auto lezing = LeesLedencsv(*inhoud, opdracht.keuzes, voortgang);
    if (!lezing)
        lezing.error().bestand = schijf.Toonpad(bestand);
    else if (opdracht.bron == Ledenbron::Csv)
        lezing->inUtf8 = IsUtf8(*inhoud);
    return lezing;
}

} // namespace

Tekst SubgroepUitNaam(Tekstblik naam)
{
    const auto blanco = naam.find(' ');
    return Tekst(naam.substr(0, blanco != Tekstblik::npos ? blanco : naam.find('.')));
}

Pad Tussenbestand(const Pad& programmamap, Tekstblik subgroep)
{
    Pad pad = Samen(programmamap, subgroep);
    pad += " Temp-NBBXMLtoCSV.csv";
    return pad;
}

Uitkomst<Ledenlezing> LeesLedenbestand(Schijf& schijf, const Ledenopdracht& opdracht,
                                       Tekstblik naam, const Voortgang& voortgang)
{
    if (opdracht.bron == Ledenbron::Csv)
        return LeesBestand(schijf, Samen(opdracht.map, naam), opdracht, voortgang);
    // The name of a member file of the database is no name of a file until here.
    const Tekst subgroep = SubgroepUitNaam(naam);
    if (!IsKaleNaam(subgroep))
        return tl::unexpected(GeenNaam(subgroep));
    const Pad tussenbestand = Tussenbestand(opdracht.programmamap, subgroep);
    auto omgezet = ZetOm(schijf, opdracht, naam, tussenbestand, EersteHelft(voortgang));
    if (!omgezet)
        return tl::unexpected(std::move(omgezet.error()));
    auto lezing = LeesBestand(schijf, tussenbestand, opdracht, TweedeHelft(voortgang));
    if (lezing) {
        lezing->vervangenTekens = omgezet->vervangenTekens;
        lezing->nietGeladen = std::move(omgezet->nietGeladen);
        if (opdracht.bron == Ledenbron::Database && !IsHeelNummer(naam))
            lezing->anderNummer = Databasenummer(naam);
    }
    return lezing;
}

} // namespace plexoran
