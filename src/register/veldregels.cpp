#include "register/veldregels.h"

#include "platform/tekst/tekst.h"

namespace plexoran {

Veldverlaten VerlaatVeld(Kolom veld, Tekstblik tekst)
{
    Veldverlaten uit{Tekst(tekst), {}};
    if (tekst.find(',') != Tekstblik::npos) {
        uit.tekst = Vervang(uit.tekst, ',', '_');
        uit.reparaties.push_back(Reparatie::Komma);
    }
    if (veld == Kolom::Achternaam && uit.tekst.find(' ') != Tekst::npos && IsPartner(tekst)) {
        uit.tekst = Vervang(uit.tekst, ' ', '_');
        uit.reparaties.push_back(Reparatie::Partner);
    }
    if (veld == Kolom::NBBgr)
        uit.tekst = Hoofdletters(uit.tekst);
    return uit;
}

} // namespace plexoran
