#include "federation/zoekrekenprogramma.h"

namespace plexoran {
namespace {

constexpr Tekstblik sectie = "Options";
constexpr Tekstblik toepassingNBBR = "NBB-Rekenprogramma";
constexpr Tekstblik toepassingBridgeIt = "Bridge-It";

void NeemGegevens(Rekenprogramma& gevonden, Instellingenwinkel& winkel)
{
    if (gevonden.GekozenProgramma == Programma::Geen)
        return;
    const bool nbbr = gevonden.GekozenProgramma == Programma::NBBR;
    gevonden.DataRoot =
        winkel.Waarde(nbbr ? toepassingNBBR : toepassingBridgeIt, sectie, "DataRoot")
            .value_or(Tekst());
    gevonden.ProgrammaCode = nbbr ? "NBBR" : "BRIT";
    gevonden.ProgrammaNaam = nbbr ? "NBB-R" : "Bridge-It";
}

} // namespace

bool RegistersleutelBestaat(Instellingenwinkel& winkel, Tekstblik toepassing)
{
    return winkel.Waarde(toepassing, sectie, "DataRoot").has_value();
}

Rekenprogramma ZoekRekenprogramma(Instellingenwinkel& winkel,
                                  const std::function<Programma()>& kies)
{
    Rekenprogramma gevonden;
    gevonden.NBBRaanwezig = RegistersleutelBestaat(winkel, toepassingNBBR);
    gevonden.BRITaanwezig = RegistersleutelBestaat(winkel, toepassingBridgeIt);
    if (gevonden.NBBRaanwezig && gevonden.BRITaanwezig)
        gevonden.GekozenProgramma = kies();
    else if (gevonden.BRITaanwezig)
        gevonden.GekozenProgramma = Programma::BridgeIt;
    else if (gevonden.NBBRaanwezig)
        gevonden.GekozenProgramma = Programma::NBBR;
    NeemGegevens(gevonden, winkel);
    return gevonden;
}

} // namespace plexoran
