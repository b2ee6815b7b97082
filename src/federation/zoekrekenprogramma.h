// Finding the installed scoring program in the per-user settings.
#pragma once

#include <functional>

#include "platform/bronnen/instellingenwinkel.h"
#include "register/administratie.h"

namespace plexoran {

/// Looks for both programs: one is there when its settings name its data folder, be it with an
/// empty text, and can be read. When both are there `kies` asks the user, whose answer may be
/// `Geen`.
[[nodiscard]] Rekenprogramma ZoekRekenprogramma(const Instellingenwinkel& winkel,
                                                const std::function<Programma()>& kies);

} // namespace plexoran
