// The font of the grid and of printed lists, and the widths of its 256 characters.
#pragma once

#include <QFont>

#include "platform/tekstmeter.h"

namespace plexoran {

/// "Arial", or its metric equivalent where it is missing, without kerning, so that the width of a
/// text is the sum of its characters'.
[[nodiscard]] QFont Roosterletter(int pixels);

[[nodiscard]] Tekstmeter MaakMeter(const QFont& letter, double pixelsPerMm);

} // namespace plexoran
