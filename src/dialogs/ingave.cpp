#include "dialogs/ingave.h"

#include "platform/tekst/tekst.h"

namespace plexoran {

bool KanTerugkeerveld(int veld)
{
    return veld >= EersteIngaveveld && veld <= AantalKolommen &&
           veld != static_cast<int>(Kolom::MV);
}

Tekst Begintekst(Kolom veld, Tekstblik tekst)
{
    if (veld == Kolom::MV && tekst.empty())
        return "M";
    return veld == Kolom::NBBgr ? Hoofdletters(tekst) : Tekst(tekst);
}

std::optional<char> TypTeken(Kolom veld, char teken, std::size_t lengte)
{
    if (veld == Kolom::NBBgr)
        return teken >= 'a' && teken <= 'z' ? Hoofdletter(teken) : teken;
    if (veld != Kolom::NBBnr)
        return teken;
    constexpr std::size_t langste = 8;
    return IsCijfer(teken) && lengte < langste ? std::optional(teken) : std::nullopt;
}

} // namespace plexoran
