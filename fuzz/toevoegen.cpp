// Any text as the player list of a "_Rev" session: names come in pairs, and adding them gives every
// somebody one new key and no cell a comma.
#include <algorithm>

#include "dialogs/toevoegen.h"
#include "eis.h"

using namespace plexoran;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const auto namen = SessiespelersUit(AlsTekst(data, lengte)).spelers;
    Eis(namen.size() % 2 == 0, "namen komen per twee");
    for (const Sessiespeler& naam : namen) {
        const Tekst regel = Toevoegregel(naam);
        Eis(std::count(regel.begin(), regel.end(), ',') == 3, "vier velden");
        Eis(IsNiemand(naam) || !naam.achternaam.empty(), "wie iemand is, heeft een achternaam");
    }
    Register spelers;
    spelers.HKEY = 100042;
    const auto verslag = VoegSpelersToe(spelers, namen);
    Eis(verslag.has_value(), "er zijn sleutels genoeg");
    const auto iemand = std::count_if(namen.begin(), namen.end(),
                                      [](const Sessiespeler& naam) { return !IsNiemand(naam); });
    Eis(spelers.tabel.Rijen() == iemand && spelers.HKEY == 100042 + iemand, "een key per speler");
    const auto gelezen = SpelersUit(SpelersTekst(spelers));
    Eis(gelezen.tabel && gelezen.tabel->Rijen() == iemand && !gelezen.fout, "op te slaan");
    return 0;
}
