// Finding the installed scoring program in the per-user settings.
#pragma once

#include <functional>

#include "platform/bronnen/instellingenwinkel.h"
#include "register/administratie.h"

namespace plexoran {

/// Whether the settings of a scoring program name its data folder, be it with an empty text; false
/// too when they cannot be read.
[[nodiscard]] bool RegistersleutelBestaat(Instellingenwinkel& winkel, Tekstblik toepassing);

/// Looks for both programs. When both are there `kies` asks the user, whose answer may be `Geen`.
[[nodiscard]] Rekenprogramma ZoekRekenprogramma(Instellingenwinkel& winkel,
                                                const std::function<Programma()>& kies);

} // namespace plexoran
