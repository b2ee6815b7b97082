// What the user exported last, in the file that says how he wants his windows. What cannot be read
// or written there costs him nothing but that.
#pragma once

#include <QList>
#include <QString>

#include "platform/schijf/schijf.h"

namespace plexoran {

struct Exportkeuze {
    QList<int> kolommen{}; ///< all of them in his order; negative: left out
    QString soort{};       ///< of file; empty: none yet
};

[[nodiscard]] Exportkeuze LeesExportkeuze(const Pad& bestand);
void BewaarExportkeuze(const Pad& bestand, const Exportkeuze& keuze);

} // namespace plexoran
