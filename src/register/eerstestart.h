// The first start: which "Mappen.ini" holds, finding one that is there already, and making a new
// administration (docs/bestanden.md).
#pragma once

#include <functional>

#include "platform/bronnen/zip.h"
#include "register/mappen.h"

namespace plexoran {

/// The one beside the program, whatever it holds; without that the one this user chose, which `ini`
/// remembers.
[[nodiscard]] Pad StartMappenIni(Schijf& schijf, const Pad& programmamap, const Pad& ini);
[[nodiscard]] Uitkomst<void> OnthoudMappenIni(Schijf& schijf, const Pad& ini, const Pad& mappenIni);

struct Zoekplaats {
    Pad map;
    int diep = 0; ///< how many folders deep
};

/// What the first start knows of this user and this computer.
struct Startomgeving {
    Pad ini;        ///< remembers the choice
    Pad documenten; ///< in which administrations come
    std::vector<Zoekplaats> zoekplaatsen;
};

/// Every "Mappen.ini" that names a players folder that is there. The places one after another, what
/// is near first; hidden folders are passed over. Goes on while `verder`, asked before each folder.
[[nodiscard]] std::vector<Pad> ZoekSuites(Schijf& schijf, const std::vector<Zoekplaats>& plaatsen,
                                          const std::function<bool()>& verder);

/// What stands in a folder that no new administration may come over.
struct Bestaand {
    Pad mappenIni;  ///< empty: there is none
    Pad spelersmap; ///< where a player file is; empty: there is none
};
[[nodiscard]] Uitkomst<Bestaand> ZoekBestaand(Schijf& schijf, const Pad& map);

/// Why a new administration cannot come there, in Dutch, UTF-8; empty when it can.
[[nodiscard]] std::string Naambezwaar(Tekstblik club, const Pad& map);

/// The files of a new administration but for its "Mappen.ini"; their names are paths in it.
[[nodiscard]] std::vector<Zipdeel> NieuweDelen(Tekstblik club);
/// A "Mappen.ini" with all its keys.
[[nodiscard]] Tekst NieuweMappenIni(const Pad& map, const Pad& spelersmap);

struct Aanlegfout {
    Fout fout;
    std::vector<std::string> gebleven; ///< of what was made and could not be taken away, UTF-8
};

/// Makes an administration of these files, or what one lacks, and gives its "Mappen.ini", which
/// comes last. What is there stays as it is. What a failure leaves half made goes again.
[[nodiscard]] tl::expected<Pad, Aanlegfout> MaakAdministratie(Schijf& schijf, const Pad& map,
                                                              const std::vector<Zipdeel>& delen,
                                                              const Pad& spelersmap);

/// Where the club to practise with is, made of `delen` before, and where a new one can come.
struct Oefenplaats {
    Pad bestaand; ///< its folder; empty: there is none
    Pad vrij;
};
[[nodiscard]] Uitkomst<Oefenplaats> ZoekOefenplaats(Schijf& schijf, const Pad& documenten,
                                                    const std::vector<Zipdeel>& delen);

} // namespace plexoran
