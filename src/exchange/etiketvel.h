// Sheets of labels on A4, in millimetres: their measures, the usual ones and one of the user's own,
// which is kept in "etiketten.ini" (docs/bestanden.md); and where the texts stand on them.
#pragma once

#include <array>
#include <optional>

#include "exchange/etiketten.h"
#include "platform/schijf/schijf.h"
#include "platform/tekst/tekenvlak.h"

namespace plexoran {

struct Etiketmaat {
    double kolommen = 3; ///< this one and the next are whole, and 1 at least
    double rijen = 8;
    double breed = 70; ///< of one label
    double hoog = 36;
    double links = 0; ///< from the edge of the sheet to the first label
    double boven = 4.5;
    double stapOpzij = 70; ///< from the left side of a label to that of the next
    double stapOmlaag = 36;
    bool operator==(const Etiketmaat&) const = default;

    [[nodiscard]] int PerVel() const { return static_cast<int>(kolommen * rijen); }
    [[nodiscard]] double Rechts() const { return links + (kolommen - 1) * stapOpzij + breed; }
    [[nodiscard]] double Onder() const { return boven + (rijen - 1) * stapOmlaag + hoog; }
    /// Whether the sheet is one: within A4, no label over another, with room for an address in the
    /// smallest letter.
    [[nodiscard]] bool IsGoed() const;
};

/// All measures, in the order of the file and of the window.
inline constexpr std::array Etiketmaten{
    &Etiketmaat::kolommen, &Etiketmaat::rijen, &Etiketmaat::breed,     &Etiketmaat::hoog,
    &Etiketmaat::links,    &Etiketmaat::boven, &Etiketmaat::stapOpzij, &Etiketmaat::stapOmlaag};

/// The labels of the third one go up to the sides of the sheet.
inline constexpr std::array Etiketvellen{Etiketmaat{2, 7, 99.1, 38.1, 4.65, 15.15, 101.6, 38.1},
                                         Etiketmaat{3, 7, 63.5, 38.1, 7.25, 15.15, 66, 38.1},
                                         Etiketmaat{3, 8, 70, 37, 0, 0.5, 70, 37},
                                         Etiketmaat{2, 4, 99.1, 67.7, 4.65, 13.1, 101.6, 67.7},
                                         Etiketmaat{4, 10, 48.5, 25.4, 8, 21.5, 48.5, 25.4}};

/// `Beschadigd` when the text holds anything else than the measures of a sheet, a line for each.
[[nodiscard]] Uitkomst<Etiketmaat> EtiketmaatUit(Tekstblik inhoud);
[[nodiscard]] Tekst EtiketmaatTekst(const Etiketmaat& maat);

/// All that is printed.
struct Etiketwerk {
    Etiketmaat maat{};
    std::vector<Etiket> etiketten{};
    bool naamkaarten = false;
    int eerste = 1; ///< the first free label of the first sheet

    /// Sheets; at least one.
    [[nodiscard]] int Bladen() const;
};

/// A line of a label; its place is from the top left corner of that.
struct Etiketregel {
    double x = 0;
    double y = 0;
    Letter letter{};
    Tekst tekst{};
    bool ingekort = false;
};

/// The lines of a label as they fit on the sheet: together too high they become smaller together,
/// one too wide becomes smaller and, where its smallest letter does not help, is shortened. An
/// address stands at the left, a badge in the middle; either half way down.
[[nodiscard]] std::vector<Etiketregel> PasEtiket(const Etiketwerk& werk, const Etiket& etiket,
                                                 const Lettermeter& meter);

/// Draws page `blad`, from 1; every label of the sheet with its outline where `kader` gives that a
/// colour. A sheet that is none bears outlines only.
void TekenEtiketten(Tekenvlak& vlak, const Etiketwerk& werk, int blad,
                    const std::optional<Kleur>& kader);

} // namespace plexoran
