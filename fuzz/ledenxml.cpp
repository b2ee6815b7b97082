// Any bytes as an XML export: both converters come to an end with a whole intermediate file or an
// error, and agree on whether the file is XML and how many members it holds.
#include <algorithm>

#include "eis.h"
#include "federation/ledenbestand.h"
#include "federation/ledencsv.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

/// Lines of 16 fields, and an empty one.
std::ptrdiff_t EisTussenbestand(const Tekst& inhoud)
{
    Eis(inhoud == "\r\n" || inhoud.ends_with(";\r\n\r\n"), "een lege regel aan het eind");
    const auto regels = std::count(inhoud.begin(), inhoud.end(), '\n') - 1;
    Eis(std::count(inhoud.begin(), inhoud.end(), '\r') == regels + 1, "regels zijn leden");
    Eis(std::count(inhoud.begin(), inhoud.end(), ';') >= 16 * regels, "zestien velden");
    const auto lezing = LeesLedencsv(inhoud, {});
    Eis(lezing && lezing->teKorteRegel == 0, "het eigen bestand is heel");
    Eis(lezing->lstN1.size() + lezing->metIsTeken.size() == static_cast<std::size_t>(regels),
        "elk lid komt terug");
    return regels;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Pad bestand = "C:\\Export\\Club.xml";
    const Pad uit = "C:\\P\\uit.csv";
    GeheugenSchijf schijf;
    schijf.Zet(bestand, AlsTekst(data, lengte));
    schijf.Zet(uit, "oud");
    const auto drie = ConverteerNBB3XML(schijf, bestand, uit);
    const Tekst inhoud3 = schijf.Inhoud(uit).value_or(Tekst());
    const auto vier = ConverteerNBB4XML(schijf, bestand, uit);
    Eis(vier.has_value(), "een leeg bestand in plaats van een fout");
    Eis(drie.has_value() != vier->nietGeladen.has_value(), "beide lezen dezelfde XML");
    const auto leden = EisTussenbestand(schijf.Inhoud(uit).value_or(Tekst()));
    if (drie)
        Eis(EisTussenbestand(inhoud3) == leden, "evenveel leden");
    else
        Eis(inhoud3 == "oud" && leden == 0, "een fout laat staan wat er was");
    for (const Ledenbron bron : {Ledenbron::XmlNbb3, Ledenbron::XmlNbb4})
        Eis(BepaalXMLsoort(schijf, "C:\\Export", {"Club.xml"}, bron).size() <= 1, "de soort");
    return 0;
}
