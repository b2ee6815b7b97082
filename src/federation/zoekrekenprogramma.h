// Finding the installed scoring program in the per-user settings.
#pragma once

#include <functional>
#include <tuple>

#include "platform/bronnen/instellingenwinkel.h"
#include "register/administratie.h"

namespace plexoran {

/// Looks for both programs: one is there when its settings name its data folder, be it with an
/// empty text, and can be read. When both are there `kies` asks the user, whose answer may be
/// `Geen`.
[[nodiscard]] inline Rekenprogramma ZoekRekenprogramma(const Instellingenwinkel& winkel,
                                                       const std::function<Programma()>& kies)
{
    const auto nbbr = winkel("NBB-Rekenprogramma", "Options", "DataRoot");
    const auto bridgeIt = winkel("Bridge-It", "Options", "DataRoot");
    const Programma gekozen = nbbr && bridgeIt ? kies()
                              : bridgeIt       ? Programma::BridgeIt
                              : nbbr           ? Programma::NBBR
                                               : Programma::Geen;
    Rekenprogramma uit{nbbr.has_value(), bridgeIt.has_value(), gekozen, {}, {}, {}};
    if (gekozen == Programma::NBBR)
        std::tie(uit.DataRoot, uit.ProgrammaCode, uit.ProgrammaNaam) =
            std::tuple(nbbr.value_or(""), "NBBR", "NBB-R");
    else if (gekozen == Programma::BridgeIt)
        std::tie(uit.DataRoot, uit.ProgrammaCode, uit.ProgrammaNaam) =
            std::tuple(bridgeIt.value_or(""), "BRIT", "Bridge-It");
    return uit;
}

} // namespace plexoran
