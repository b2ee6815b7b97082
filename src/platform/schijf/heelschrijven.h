// Writing a file whole, so that at every moment the disk holds either the old file or the new one.
#pragma once

#include "platform/schijf/klok.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

/// Makes a temporary file in the same folder with the old file's rights, writes and syncs it,
/// renames it over the old file and syncs the folder. Where `pad` is a link, the file it leads to
/// is the one that is replaced. On any failure before the rename the temporary file is removed and
/// the old file untouched. A failing folder sync, the last step, is reported as `NietVast`.
[[nodiscard]] Uitkomst<void> SchrijfHeel(Schijf& schijf, const Pad& pad, Tekstblik inhoud);

/// The same for a file that is needed only until the program ends: nothing is synced, so that a
/// loss of power may leave neither the old contents nor the new. For whoever reads it while the
/// machine runs it is as whole, and every failure to write it is told.
[[nodiscard]] Uitkomst<void> SchrijfVluchtig(Schijf& schijf, const Pad& pad, Tekstblik inhoud);

/// Removes what killed saves of any file left more than an hour ago in the folder in which a save
/// of `naam` in `map` works; nothing when `map` is empty. `nu` is nanoseconds since 1970. Failures
/// do no harm and are passed over.
void RuimTijdelijkeOp(Schijf& schijf, const Pad& map, Tekstblik naam, std::int64_t nu = Nu());

} // namespace plexoran
