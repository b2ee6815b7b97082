// The time of day.
#pragma once

#include <cstdint>

#include "platform/tekst.h"

namespace plexoran {

/// Nanoseconds since 1970, as files are stamped.
[[nodiscard]] std::int64_t Nu();

/// Date and time for the name of a file, "jjjj-mm-dd uummss", local time.
[[nodiscard]] Tekst Tijdstempel();

} // namespace plexoran
