// The time of day.
#pragma once

#include <cstdint>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// Nanoseconds since 1970, as files are stamped.
[[nodiscard]] std::int64_t Nu();

/// The date of a stamp, nanoseconds since 1970, "jjjj-mm-dd", local time.
[[nodiscard]] Tekst Datum(std::int64_t tijd);

/// Date and time for the name of a file, "jjjj-mm-dd uummss", local time.
[[nodiscard]] Tekst Tijdstempel();

/// The day of today as people write it, "dd-mm-jjjj", local time.
[[nodiscard]] Tekst Dagtekening();

} // namespace plexoran
