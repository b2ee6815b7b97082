// The names in the folder "Reservekopie" (docs/bestanden.md): what a backup or a copy is of and
// from when, and which of them have had their time.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// A backup, such as "2026-11-22 142233 voor import.zip", or the copy of one file that a conflict
/// or damage caused, such as "RVDspelers 2026-11-22 142233-2.txt".
struct Kopienaam {
    Tekst naam;         ///< all of it
    Tekst moment;       ///< "2026-11-22 142233", local time
    int volgnummer = 1; ///< among those of the same second
    Tekst bestand{};    ///< what the copy is of, without its kind; empty for a backup
    Tekst reden{};      ///< of a backup

    [[nodiscard]] bool IsZip() const { return bestand.empty(); }
};

/// Nothing for the name of any other file.
[[nodiscard]] std::optional<Kopienaam> KopienaamUit(Tekstblik naam);
/// Those of them that are ours, the newest first.
[[nodiscard]] std::vector<Kopienaam> Kopienamen(std::span<const Tekst> namen);

/// The number of days since 1970 of a date such as "2026-11-22"; nothing for what is no date.
[[nodiscard]] std::optional<int> Dagnummer(Tekstblik datum);

/// Which of these files may go. Of the backups the last 20 stay; of those before them the last one
/// of each of 12 days, of those before these the last one of each of 10 weeks, then of 9 months: of
/// days, weeks (from Monday) and months in which there is a backup. Copies stay 400 days.
[[nodiscard]] std::vector<Tekst> Uitgediend(std::span<const Tekst> namen, Tekstblik vandaag);

} // namespace plexoran
