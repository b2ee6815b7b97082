// Any text as a "Plexo.ini": what was read survives writing, and a save loses nothing of a file
// that holds more than the settings: then the copy stands beside it.
#include <algorithm>

#include "eis.h"
#include "register/instellingen.h"
#include "schijven/geheugenSchijf.h"

using namespace plexoran;

namespace {

bool Gelijk(const Instellingen& een, const Instellingen& twee)
{
    return een.OPTIND == twee.OPTIND && een.LOSTGR == twee.LOSTGR;
}

/// Whether any piece between commas and line ends is something else than a setting or spaces.
bool HeeftIetsAnders(const Tekst& inhoud)
{
    Tekst item;
    for (const char teken : inhoud + "\n") {
        if (teken != ',' && teken != '\r' && teken != '\n') {
            item += teken;
            continue;
        }
        const Tekst begin = Hoofdletters(item.substr(0, 7));
        if (item.find_first_not_of(' ') != Tekst::npos && begin != "OPTIND=" && begin != "LOSTGR=")
            return true;
        item.clear();
    }
    return false;
}

/// Whether the text stands in any file of the disk.
bool StaatErgens(const GeheugenSchijf& schijf, const Tekst& inhoud)
{
    const auto bestanden = schijf.AlleBestanden();
    return std::any_of(bestanden.begin(), bestanden.end(),
                       [&](const Pad& pad) { return schijf.Inhoud(pad) == inhoud; });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    const Instellingen gelezen = InstellingenUit(inhoud);
    const Tekst tekst = InstellingenTekst(gelezen);
    Eis(Gelijk(InstellingenUit(tekst), gelezen), "opgeschreven en weer gelezen");
    Eis(IsInstellingenbestand(tekst), "de eigen tekst wordt begrepen");
    Eis(Gelijk(InstellingenUit(Vervang(inhoud, ',', '\n')), gelezen),
        "een komma is een regeleinde");
    Eis(Gelijk(InstellingenUit(Hoofdletters(inhoud)), gelezen), "hoofdletters maken niets uit");

    Mappen mappen;
    mappen.ADMMAP = "C:\\Admin";
    mappen.SPEMAP = "C:\\Spelers";
    GeheugenSchijf schijf;
    schijf.ZetMap(mappen.SPEMAP);
    schijf.Zet(mappen.Instellingenbestand(), inhoud);
    Instellingen nieuw = gelezen;
    nieuw.LOSTGR = nieuw.LOSTGR == 7 ? std::int16_t{8} : std::int16_t{7};
    Eis(SchrijfInstellingen(schijf, mappen, nieuw).has_value(), "het opslaan");
    Eis(schijf.Inhoud(mappen.Instellingenbestand()) == InstellingenTekst(nieuw), "het bestand");
    Eis(!HeeftIetsAnders(inhoud) || StaatErgens(schijf, inhoud),
        "er ging iets verloren zonder kopie");
    return 0;
}
