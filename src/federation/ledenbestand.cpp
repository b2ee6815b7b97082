#include "federation/ledenbestand.h"

#include "platform/tekst/codepagina.h"
#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

/// Sources that are converted first are halfway when that is done: the first or the second half.
Voortgang Helft(const Voortgang& voortgang, std::size_t eerder)
{
    if (!voortgang)
        return {};
    return [&voortgang, eerder](std::size_t gedaan, std::size_t geheel) {
        return voortgang(eerder * geheel + gedaan, 2 * geheel);
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
    return nummer.size() == Nummerlengte && std::all_of(nummer.begin(), nummer.end(), IsCijfer);
}

Uitkomst<Ledenomzetting> ZetOm(Schijf& schijf, const Ledenopdracht& opdracht, Tekstblik naam,
                               const Pad& tussenbestand, const Voortgang& voortgang)
{
    const Pad bestand = Samen(opdracht.map, naam);
    if (opdracht.bron == Ledenbron::XmlNbb3)
        return ConverteerNBB3XML(schijf, bestand, tussenbestand, voortgang);
    if (opdracht.bron == Ledenbron::XmlNbb4)
        return ConverteerNBB4XML(schijf, bestand, tussenbestand, voortgang);
    return HaalLeden(schijf, opdracht.LedenDatabase, Databasenummer(naam), tussenbestand, voortgang,
                     opdracht.grenzen);
}

Uitkomst<Ledenlezing> LeesBestand(Schijf& schijf, const Pad& bestand, const Ledenopdracht& opdracht,
                                  const Voortgang& voortgang)
{
    auto inhoud = LeesBegrensd(schijf, bestand);
    if (!inhoud)
        return Mislukt(inhoud);
    auto lezing = LeesLedencsv(*inhoud, opdracht.keuzes, voortgang);
    if (!lezing)
        lezing.error().bestand = schijf.Toonpad(bestand);
    else if (opdracht.bron == Ledenbron::Csv)
        lezing->inUtf8 = IsUtf8(*inhoud);
    return lezing;
}

/// Whether a file is for this source. One that is too large is for both, so that reading it says
/// so.
bool IsVoor(Schijf& schijf, const Pad& bestand, Ledenbron bron)
{
    auto inhoud = LeesBegrensd(schijf, bestand);
    if (!inhoud)
        return inhoud.error().soort == Foutsoort::Beschadigd;
    std::erase(*inhoud, '\0'); // of UTF-16 this leaves what is written in ASCII
    const bool nbb4 = inhoud->find("<LeagueId>") != Tekst::npos;
    return inhoud->find("<ReportableMember>") != Tekst::npos &&
           nbb4 == (bron == Ledenbron::XmlNbb4);
}

} // namespace

Tekst SubgroepUitNaam(Tekstblik naam)
{
    const auto blanco = naam.find(' ');
    return Tekst(naam.substr(0, blanco != Tekstblik::npos ? blanco : naam.find('.')));
}

Pad Tussenbestand(const Pad& programmamap, Tekstblik subgroep)
{
    return Samen(programmamap, subgroep) + " Temp-NBBXMLtoCSV.csv";
}

Pad Tussenmap(Schijf& schijf, const Pad& programmamap, const Pad& anders)
{
    const Pad proef = Samen(programmamap, "Temp-NBBXMLtoCSV.proef");
    (void)schijf.Verwijder(proef); // left by a program that was killed just here
    if (const auto schrijver = schijf.MaakNieuw(proef); schrijver)
        (void)(*schrijver)->Sluit();
    else if (!anders.empty())
        return anders;
    (void)schijf.Verwijder(proef);
    return programmamap;
}

Uitkomst<Ledenlezing> LeesLedenbestand(Schijf& schijf, const Ledenopdracht& opdracht,
                                       Tekstblik naam, const Voortgang& voortgang)
{
    if (opdracht.bron == Ledenbron::Csv)
        return LeesBestand(schijf, Samen(opdracht.map, naam), opdracht, voortgang);
    // The name of a member file of the database is no name of a file until here.
    const Tekst subgroep = SubgroepUitNaam(naam);
    if (!IsKaleNaam(subgroep))
        return Mislukt(GeenNaam(subgroep));
    const Pad tussenbestand = Tussenbestand(opdracht.programmamap, subgroep);
    auto omgezet = ZetOm(schijf, opdracht, naam, tussenbestand, Helft(voortgang, 0));
    if (!omgezet)
        return Mislukt(omgezet);
    auto lezing = LeesBestand(schijf, tussenbestand, opdracht, Helft(voortgang, 1));
    if (lezing) {
        lezing->vervangenTekens = omgezet->vervangenTekens;
        lezing->nietGeladen = std::move(omgezet->nietGeladen);
        if (opdracht.bron == Ledenbron::Database && !IsHeelNummer(naam))
            lezing->anderNummer = Databasenummer(naam);
    }
    return lezing;
}

Uitkomst<void> RuimTussenbestandOp(Schijf& schijf, const Ledenopdracht& opdracht, Tekstblik naam)
{
    if (opdracht.bron != Ledenbron::XmlNbb3 && opdracht.bron != Ledenbron::XmlNbb4)
        return {};
    auto weg = schijf.Verwijder(Tussenbestand(opdracht.programmamap, SubgroepUitNaam(naam)));
    if (!weg && weg.error().soort == Foutsoort::Ontbreekt)
        return {};
    return weg;
}

std::vector<Tekst> BepaalXMLsoort(Schijf& schijf, const Pad& map, const std::vector<Tekst>& namen,
                                  Ledenbron bron, const Voortgang& voortgang)
{
    std::vector<Tekst> uit;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (voortgang && !voortgang(i, namen.size()))
            break;
        if (IsVoor(schijf, Samen(map, namen[i]), bron))
            uit.push_back(namen[i]);
    }
    return uit;
}

} // namespace plexoran
