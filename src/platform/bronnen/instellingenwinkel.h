// The per-user settings that other programs leave: on Windows the registry below
// "HKEY_CURRENT_USER\Software\VB and VBA Program Settings", elsewhere "rekenprogrammas.ini"
// (docs/bestanden.md).
#pragma once

#include <functional>
#include <optional>

#include "platform/schijf/schijf.h"

namespace plexoran {

/// Gives a value, or nothing when it is not there or cannot be read.
using Instellingenwinkel =
    std::function<std::optional<Tekst>(Tekstblik toepassing, Tekstblik sectie, Tekstblik sleutel)>;

/// A value in the text of such a file; the last one holds when it occurs twice.
[[nodiscard]] std::optional<Tekst> WaardeUit(Tekstblik inhoud, Tekstblik toepassing,
                                             Tekstblik sectie, Tekstblik sleutel);

/// Where this program keeps a file of its own for this user.
[[nodiscard]] Pad Gebruikersbestand(const char* naam);

/// The store of this system, which must not outlive `schijf`.
[[nodiscard]] Instellingenwinkel MaakInstellingenwinkel(Schijf& schijf);

/// Where the store of this system is, UTF-8, for the eye.
[[nodiscard]] std::string Winkelplaats();

} // namespace plexoran
