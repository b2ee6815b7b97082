// Zip files in memory: what goes to the disk or comes from it is the caller's.
#pragma once

#include <vector>

#include "platform/schijf/schijf.h"

namespace plexoran {

/// A file in a zip. Its name is a path of the suite that leads nowhere else than below the folder
/// in which the zip is unpacked, such as "Parenmap\Gr01-.txt".
struct Zipdeel {
    Pad naam;
    Tekst inhoud;
    bool operator==(const Zipdeel&) const = default;
};

/// The names are unlike each other. Fails only where the memory does.
[[nodiscard]] Uitkomst<Tekst> ZipVan(const std::vector<Zipdeel>& delen, Tekstblik toelichting);

/// All of it, each file as whole as when it was packed. `Beschadigd` for anything else than a zip,
/// one of which a part is missing or changed, a name that leads elsewhere, and one that unpacks to
/// more than 10,000 files or `hoogstens` bytes.
[[nodiscard]] Uitkomst<std::vector<Zipdeel>>
Uitgepakt(Tekstblik zip, std::size_t hoogstens = std::size_t{1} << 30U);

/// The comment, from the end of the zip: nothing is unpacked.
[[nodiscard]] Uitkomst<Tekst> Toelichting(Tekstblik zip);

} // namespace plexoran
