// Where the suite keeps its sessions and competitions (docs/bestanden.md).
#pragma once

#include <vector>

#include "register/mappen.h"
#include "sessions/zittinglijsten.h"

namespace plexoran {

/// A session or competition that the folders hold.
struct Sessiemap {
    Tekst naam;
    std::int64_t tijd = 0; ///< of the last change of its data file, nanoseconds since 1970
};

/// In text order. A root folder that is missing or not named holds none. Folders of which the disk
/// does not say whether they are one are left out; what it says instead goes to `geweigerd`.
[[nodiscard]] Uitkomst<std::vector<Sessiemap>>
LeesZittingen(Schijf& schijf, const Mappen& mappen, std::vector<Fout>* geweigerd = nullptr);
[[nodiscard]] Uitkomst<std::vector<Sessiemap>>
LeesCompetities(Schijf& schijf, const Mappen& mappen, std::vector<Fout>* geweigerd = nullptr);

/// One session, loose or of a competition.
struct Zitting {
    Pad map;
    bool inCompetitie = false;
    int ronde = 0; ///< this and the next only in a competition
    int zitting = 0;

    [[nodiscard]] Tekst Bestandsnaam(Lijstsoort soort) const;
    [[nodiscard]] Pad Bestand(Lijstsoort soort) const { return Samen(map, Bestandsnaam(soort)); }
};

[[nodiscard]] Zitting LosseZitting(const Mappen& mappen, Tekstblik naam);
[[nodiscard]] Zitting Competitiezitting(const Mappen& mappen, Tekstblik competitie, int ronde,
                                        int zitting);

/// A session with the name of its folder, or that of its competition.
struct Sessie {
    Tekst naam;
    Zitting zitting;
};
/// Those of all folders, the loose ones first. What cannot be read goes to `onleesbaar`.
[[nodiscard]] std::vector<Sessie> AlleSessies(Schijf& schijf, const Mappen& mappen,
                                              std::vector<Fout>& onleesbaar);

/// The loose session itself, or the sessions of the competition, rounds and sessions in numeric
/// order. `Ontbreekt` when it is not there any more.
[[nodiscard]] Uitkomst<std::vector<Zitting>> ZittingVan(Schijf& schijf, const Mappen& mappen,
                                                        Tekstblik zitting);
[[nodiscard]] Uitkomst<std::vector<Zitting>> ZittingenVan(Schijf& schijf, const Mappen& mappen,
                                                          Tekstblik competitie);

} // namespace plexoran
