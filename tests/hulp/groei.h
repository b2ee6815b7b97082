// Whether work takes time in step with what it is done on.
#pragma once

#include <algorithm>
#include <ctime>
#include <functional>

#include <gtest/gtest.h>

namespace plexoran {

/// Seconds of the processor, so that a busy machine does not count, of the quickest of some runs.
inline double Rekentijd(const std::function<void()>& werk)
{
    constexpr int keren = 3;
    double snelste = 0;
    for (int keer = 0; keer < keren; ++keer) {
        const std::clock_t begin = std::clock();
        werk();
        const double tijd = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        snelste = keer == 0 ? tijd : std::min(snelste, tijd);
    }
    return snelste;
}

/// Ten times as much takes about ten times as long. It may be forty times, and another half second
/// is never too long; where each piece looks at all the others it is a hundred.
inline testing::AssertionResult GroeitMee(int aantal, const std::function<void(int)>& werk)
{
    const double tiende = Rekentijd([&] { werk(aantal / 10); });
    const double alles = Rekentijd([&] { werk(aantal); });
    const auto uitkomst =
        alles < 40 * tiende + 0.5 ? testing::AssertionSuccess() : testing::AssertionFailure();
    return testing::AssertionResult(uitkomst)
           << "een tiende: " << tiende << " s, alles: " << alles << " s";
}

} // namespace plexoran
