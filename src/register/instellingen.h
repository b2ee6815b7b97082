// The program's own settings, "Plexo.ini" (docs/bestanden.md).
#pragma once

#include "register/mappen.h"

namespace plexoran {

struct Instellingen {
    std::int16_t OPTIND = 0;         ///< the return field of fast entry
    std::int16_t LOSTGR = 0;         ///< list position, from 0, of the group shown last
    std::int16_t OPTINDopSchijf = 0; ///< as it was read or written last
};

/// The settings in the text of a "Plexo.ini"; those not found stay 0. A number that does not fit
/// 16 bits ends the reading.
[[nodiscard]] Instellingen InstellingenUit(Tekstblik inhoud);
[[nodiscard]] Tekst InstellingenTekst(const Instellingen& instellingen);
/// Whether the text holds settings and nothing else, so that writing it anew loses nothing.
[[nodiscard]] bool IsInstellingenbestand(Tekstblik inhoud);

/// A file that is missing or cannot be read gives 0 for both.
[[nodiscard]] Instellingen LeesInstellingen(Schijf& schijf, const Mappen& mappen);

/// Writes the file whole. A return field that only another program changed since is taken over. A
/// file that holds anything else than settings is first copied aside.
[[nodiscard]] Uitkomst<void> SchrijfInstellingen(Schijf& schijf, const Mappen& mappen,
                                                 Instellingen& instellingen);

} // namespace plexoran
