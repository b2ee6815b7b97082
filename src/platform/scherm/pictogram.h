// The icon of the program, drawn at the sizes that window managers ask for.
#pragma once

#include <QIcon>

namespace plexoran {

/// A white spade on green baize.
[[nodiscard]] QIcon Pictogram();

} // namespace plexoran
