// Any text as a group file: names come back after writing, always 50 lines, and a name that the
// file holds is either written again or stands in the copy.
#include <vector>

#include "eis.h"
#include "register/groepen.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

/// The pieces between commas and line ends that are not empty.
std::vector<Tekst> GevuldeItems(const Tekst& inhoud)
{
    std::vector<Tekst> items(1);
    for (const char teken : inhoud) {
        if (teken != ',' && teken != '\r' && teken != '\n')
            items.back() += teken;
        else if (!items.back().empty())
            items.emplace_back();
    }
    if (items.back().empty())
        items.pop_back();
    return items;
}

bool NamenGelijk(const Groepen& een, const Groepen& twee)
{
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer) {
        if (een.Naam(nummer) != twee.Naam(nummer))
            return false;
    }
    return true;
}

/// A file that counts as understood holds at most 50 items, and the name of each is there.
void EisNietsVerloren(const Tekst& inhoud, const Groepen& groepen)
{
    const auto items = GevuldeItems(inhoud);
    Eis(items.size() <= AantalGroepen, "meer items dan groepen");
    for (int nummer = 1; nummer <= static_cast<int>(items.size()); ++nummer) {
        const Tekst& item = items[static_cast<std::size_t>(nummer - 1)];
        Eis(item.size() >= 5 && item.starts_with("Gr"), "een item zonder code");
        Eis(item.substr(5) == groepen.Naam(nummer), "een naam op zijn plaats");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    const Groepen groepen = GroepenUit(inhoud);
    const Tekst tekst = GroepenTekst(groepen);
    Eis(NamenGelijk(GroepenUit(tekst), groepen), "opgeschreven en weer gelezen");
    Eis(IsGroepenbestand(tekst), "de eigen tekst wordt begrepen");
    Eis(GevuldeItems(tekst).size() == AantalGroepen, "vijftig regels");
    if (IsGroepenbestand(inhoud))
        EisNietsVerloren(inhoud, groepen);

    Mappen mappen;
    mappen.SPEMAP = "C:\\Spelers";
    GeheugenSchijf schijf;
    schijf.Zet(mappen.Groepenbestand(), inhoud);
    Eis(MaakGroepenbestand(schijf, mappen).gemaakt.has_value(), "het maken");
    const Groepen start = LeesGroepen(schijf, mappen);
    Eis(schijf.Inhoud(mappen.Groepenbestand()) == inhoud || NamenGelijk(start, Groepen()),
        "een nieuw bestand heeft geen namen");
    Groepen nieuw = start;
    nieuw.ZetNaam(3, inhoud);
    Eis(SchrijfGroepen(schijf, mappen, nieuw).gelukt.has_value(), "het opslaan");
    Eis(NamenGelijk(LeesGroepen(schijf, mappen), nieuw), "elke naam kan in het bestand");
    return 0;
}
