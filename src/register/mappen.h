// The suite's folder configuration, "Mappen.ini" (docs/bestanden.md): read once at start, never
// written.
#pragma once

#include "platform/schijf/schijf.h"

namespace plexoran {

/// The members bear the names of the keys. Folders come without a closing `\`; one that is not
/// named is empty, and nothing may be read or written in it.
struct Mappen {
    Tekst RVDMAP;              ///< root folder of the suite
    Tekst APPEXE;              ///< name of the suite's main application
    Tekst ZITMAP;              ///< club sessions
    Tekst ADMMAP;              ///< this program's own settings
    Tekst INDMAP;              ///< kept, not used here
    Tekst SPEMAP;              ///< players, group names, pairs
    Tekst COMMAP;              ///< competitions
    Tekst DFIMPG;              ///< code of the federation import group, such as "Gr05-"
    Tekst WINMAP;              ///< holds the folder of the federation exports
    Tekst ODKEYS;              ///< option words, looked for as parts of this text
    std::int16_t NEWPAGR = 0;  ///< 1 shows the pairs button
    std::int16_t NBB28UIT = 0; ///< 1 hides the button for free federation numbers
    Pad bestand;               ///< this "Mappen.ini" itself
    std::string bezwaar;       ///< why lines of the text may not count, UTF-8; mostly empty

    [[nodiscard]] Pad Spelerbestand() const { return Samen(SPEMAP, "RVDspelers.txt"); }
    [[nodiscard]] Pad Groepenbestand() const { return Samen(SPEMAP, "RVDGroepen.txt"); }
    [[nodiscard]] Pad Instellingenbestand() const { return Samen(ADMMAP, "Plexo.ini"); }
    [[nodiscard]] Pad Parenmap() const { return Samen(SPEMAP, "Parenmap"); }
    [[nodiscard]] Pad Geschiedenismap() const { return Samen(SPEMAP, "Geschiedenis"); }
    /// The federation export folder.
    [[nodiscard]] Pad Ledenmap() const { return Samen(WINMAP, "NBB4-Leden"); }
};

/// Where "Mappen.ini" lies for a program in `programmamap`: in that folder, or, when its path holds
/// the text "Admin" (capital A), in the folder above it.
[[nodiscard]] Pad MappenIniPad(const Pad& programmamap);

/// The settings in the text of a "Mappen.ini". Absent keys stay empty or 0; a number that does not
/// fit 16 bits counts as 0.
[[nodiscard]] Mappen MappenUit(Tekstblik inhoud);

/// `Beschadigd` when the file names no players folder: without it there is no register.
[[nodiscard]] Uitkomst<Mappen> LeesMappenIni(Schijf& schijf, const Pad& pad);

/// The names of the pair files, in any order; none where their folder is missing.
[[nodiscard]] Uitkomst<std::vector<Tekst>> Parenbestanden(Schijf& schijf, const Mappen& mappen);

} // namespace plexoran
