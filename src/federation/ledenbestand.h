// Reading one member file of the federation, whatever its source, into import lines.
#pragma once

#include <vector>

#include "federation/ledencsv.h"
#include "platform/bronnen/access.h"

namespace plexoran {

/// The sources, numbered as the options of the import window.
enum class Ledenbron { Database = 1, Csv, XmlNbb3, XmlNbb4 };

/// What a reading needs to know beside the name of the member file.
struct Ledenopdracht {
    Ledenbron bron = Ledenbron::Csv;
    Pad map{};           ///< chosen folder of the files; not used for the database
    Pad programmamap{};  ///< where the intermediate file comes
    Pad LedenDatabase{}; ///< used for the database only
    Importkeuzes keuzes{};
    Accessgrenzen grenzen{}; ///< of reading the database
};

/// The name of the subgroup: up to the first blank or, without one, up to the first full stop.
[[nodiscard]] Tekst SubgroepUitNaam(Tekstblik naam);

/// The intermediate file of a subgroup.
[[nodiscard]] Pad Tussenbestand(const Pad& programmamap, Tekstblik subgroep);

/// Where the intermediate files come: the program's own folder or, where no file can be made in it,
/// as with a program that the system installed, `anders`.
[[nodiscard]] Pad Tussenmap(Schijf& schijf, const Pad& programmamap, const Pad& anders);

/// Reads the member file `naam`; for the database that is an entry of its list, of which the last
/// three characters are the number of the file that is read. All sources but the CSV go by way of
/// the intermediate file, which is left on the disk. On an error nothing is imported: for XML and
/// CSV it is `Beschadigd` when the file was read but is not what it should be, with the line and
/// what the parser said, and without a file when the name cannot be that of the intermediate file.
/// The answer of `voortgang` is not looked at.
[[nodiscard]] Uitkomst<Ledenlezing> LeesLedenbestand(Schijf& schijf, const Ledenopdracht& opdracht,
                                                     Tekstblik naam,
                                                     const Voortgang& voortgang = {});

/// Removes the intermediate file of an XML file that was read: it holds what members gave the club,
/// so it must not stay behind unnoticed.
[[nodiscard]] Uitkomst<void> RuimTussenbestandOp(Schijf& schijf, const Ledenopdracht& opdracht,
                                                 Tekstblik naam);

/// The names of those files of `namen` in `map` that are of the source's XML kind, in their order.
/// Member files hold "<ReportableMember>", those of NBBR-4 also "<LeagueId>"; a file that cannot be
/// read is of no kind, one that is too large of both. `voortgang` hears of every file, and may stop
/// it: then the files that were looked at count.
[[nodiscard]] std::vector<Tekst> BepaalXMLsoort(Schijf& schijf, const Pad& map,
                                                const std::vector<Tekst>& namen, Ledenbron bron,
                                                const Voortgang& voortgang = {});

} // namespace plexoran
