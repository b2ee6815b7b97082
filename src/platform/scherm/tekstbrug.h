// Between the register's bytes and the texts of windows.
#pragma once

#include <QString>

#include "platform/codepagina.h"

namespace plexoran {

[[nodiscard]] QString NaarQString(Tekstblik tekst);

/// The bytes of a text that a `Tekstvak` let through or that this program wrote itself; anything
/// else becomes the nearest letters.
[[nodiscard]] Tekst NaarTekst(const QString& tekst);

/// A text of the user on a button or label that has a mnemonic: its "&" is shown as it is.
[[nodiscard]] QString ZonderSneltoets(const QString& tekst);

} // namespace plexoran
