// What `verfmelder` tells `start_bench` about the first paint of a process.
#pragma once

#include <cstdint>

namespace plexoran {

/// Names the pipe to write to, a number.
inline constexpr auto Pijpvariabele = "PLEXORAN_VERFPIJP";

struct Verfmelding {
    std::int64_t tijd = 0; ///< of the monotonic clock, nanoseconds
    std::int32_t breedte = 0;
    std::int32_t hoogte = 0; ///< of the painted window, logical pixels
};

} // namespace plexoran
