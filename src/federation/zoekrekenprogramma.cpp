#include "federation/zoekrekenprogramma.h"

namespace plexoran {

Rekenprogramma ZoekRekenprogramma(const Instellingenwinkel& winkel,
                                  const std::function<Programma()>& kies)
{
    const auto nbbr = winkel("NBB-Rekenprogramma", "Options", "DataRoot");
    const auto bridgeIt = winkel("Bridge-It", "Options", "DataRoot");
    Rekenprogramma gevonden;
    gevonden.NBBRaanwezig = nbbr.has_value();
    gevonden.BRITaanwezig = bridgeIt.has_value();
    gevonden.GekozenProgramma = nbbr && bridgeIt ? kies()
                                : bridgeIt       ? Programma::BridgeIt
                                : nbbr           ? Programma::NBBR
                                                 : Programma::Geen;
    if (gevonden.GekozenProgramma == Programma::NBBR) {
        gevonden.DataRoot = nbbr.value_or(Tekst());
        gevonden.ProgrammaCode = "NBBR";
        gevonden.ProgrammaNaam = "NBB-R";
    } else if (gevonden.GekozenProgramma == Programma::BridgeIt) {
        gevonden.DataRoot = bridgeIt.value_or(Tekst());
        gevonden.ProgrammaCode = "BRIT";
        gevonden.ProgrammaNaam = "Bridge-It";
    }
    return gevonden;
}

} // namespace plexoran
