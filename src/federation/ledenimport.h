// The import of federation members without its window: where they come from, which member files
// there are, and what becomes of each. It changes the table in memory; saving is the main window's.
#pragma once

#include <map>

#include "federation/ledenbestand.h"
#include "federation/voorbeeld.h"
#include "register/administratie.h"

namespace plexoran {

/// What was chosen last, for as long as the program runs.
struct Importgeheugen {
    std::map<Ledenbron, Pad> mappen; ///< the folder per kind of source
    std::optional<Ledenbron> bron;
};

class Ledenimport {
  public:
    Ledenimport(Administratie& administratie, Importgeheugen& geheugen);

    /// Another source, of which no member files are known yet.
    void KiesBron(Ledenbron bron);
    [[nodiscard]] Ledenbron Bron() const { return bron_; }
    /// The folder chosen last for this source, else that of the federation exports; empty when it
    /// is not there.
    [[nodiscard]] Pad Beginmap() const;

    /// Takes the member files from the database. Without a known place of it nothing is read.
    [[nodiscard]] Uitkomst<void> KiesDatabase(const Voortgang& voortgang);
    [[nodiscard]] bool KentDatabase() const { return !LedenDatabase_.empty(); }
    /// Takes the files of a folder that have the source's extension, in text order. An error leaves
    /// everything as it was.
    [[nodiscard]] Uitkomst<void> KiesMap(const Pad& map);
    /// Keeps those of them that are of the source's kind, which takes reading every XML file.
    /// `voortgang` may stop it: then those that were found count.
    void HoudVanSoort(const Voortgang& voortgang);

    [[nodiscard]] const Pad& Map() const { return map_; } ///< empty without one
    [[nodiscard]] const std::vector<Tekst>& Namen() const { return namen_; }
    /// Which of these stands chosen at first: the file that was pointed at, or else the first of
    /// XML files; -1: none.
    [[nodiscard]] int EersteKeus(Tekstblik aangewezen) const;

    /// Of reading the database.
    void ZetGrenzen(const Accessgrenzen& grenzen) { grenzen_ = grenzen; }
    [[nodiscard]] Ledenopdracht Opdracht(const Importkeuzes& keuzes) const;

    /// Merges what was read of a member file into the import group.
    [[nodiscard]] Samenvoeguitkomst Importeer(Tekstblik naam, std::vector<Tekst> lstN1,
                                              const Voortgang& voortgang);
    /// What that would do. Takes the import lines out of the reading, which must outlive it.
    [[nodiscard]] tl::expected<Voorbeeld, Samenvoegfout> Bekijk(Tekstblik naam, Ledenlezing& lezing,
                                                                const Voortgang& voortgang) const;
    /// Does what is on in a preview. Where that leaves every player as he is, there is nothing to
    /// save.
    [[nodiscard]] Samenvoeguitkomst Importeer(const Voorbeeld& voorbeeld);
    /// Whether a player was refreshed or added, so that there is something to save.
    [[nodiscard]] bool IetsGewijzigd() const { return ietsGewijzigd_; }

  private:
    [[nodiscard]] Samenvoegopdracht Samenvoegen(Tekstblik naam, std::vector<Tekst> lstN1) const;
    Samenvoeguitkomst Onthoud(Samenvoeguitkomst uitkomst);

    Administratie& administratie_;
    Importgeheugen& geheugen_;
    Ledenbron bron_ = Ledenbron::Csv;
    Pad map_;
    Pad LedenDatabase_;
    Accessgrenzen grenzen_;
    std::vector<Tekst> namen_;
    bool ietsGewijzigd_ = false;
};

} // namespace plexoran
