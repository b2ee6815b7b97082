// Reading one member file of the federation, whatever its source, into import lines. The exports of
// NBBR-3 and NBBR-4 as XML, and the database of a scoring program, are turned into the intermediate
// file first (docs/bestanden.md).
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
/// A file that cannot be read is of no kind, one that is too large of both. `voortgang` hears of
/// every file, and may stop it: then the files that were looked at count.
[[nodiscard]] std::vector<Tekst> BepaalXMLsoort(Schijf& schijf, const Pad& map,
                                                const std::vector<Tekst>& namen, Ledenbron bron,
                                                const Voortgang& voortgang = {});

struct Ledenomzetting {
    std::size_t vervangenTekens = 0; ///< characters that the code page lacks
    std::optional<Fout> nietGeladen; ///< NBBR-4 only: why there are no members
};

/// A file that cannot be read, or is no XML, is an error and leaves `tussenbestand` as it was.
[[nodiscard]] Uitkomst<Ledenomzetting> ConverteerNBB3XML(Schijf& schijf, const Pad& bestand,
                                                         const Pad& tussenbestand,
                                                         const Voortgang& voortgang = {});

/// A file that cannot be read, or is no XML, gives an intermediate file without members.
[[nodiscard]] Uitkomst<Ledenomzetting> ConverteerNBB4XML(Schijf& schijf, const Pad& bestand,
                                                         const Pad& tussenbestand,
                                                         const Voortgang& voortgang = {});

/// One entry per member file, in the order of the database: its name, a blank and its number in
/// three digits.
[[nodiscard]] Uitkomst<std::vector<Tekst>> HaalLedenbestanden(const Pad& database,
                                                              const Voortgang& voortgang = {},
                                                              const Accessgrenzen& grenzen = {});

/// Reads the members of the member file with number `id` and writes them to `tussenbestand`.
[[nodiscard]] Uitkomst<Ledenomzetting> HaalLeden(Schijf& schijf, const Pad& database, int id,
                                                 const Pad& tussenbestand,
                                                 const Voortgang& voortgang = {},
                                                 const Accessgrenzen& grenzen = {});

} // namespace plexoran
