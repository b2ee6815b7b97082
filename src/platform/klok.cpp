#include "platform/klok.h"

#include <array>
#include <chrono>
#include <ctime>

namespace plexoran {

std::int64_t Nu()
{
    const auto sinds1970 = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(sinds1970).count();
}

Tekst Tijdstempel()
{
    const std::time_t nu = std::time(nullptr);
    std::tm delen{};
#ifdef _WIN32
    localtime_s(&delen, &nu);
#else
    localtime_r(&nu, &delen);
#endif
    std::array<char, 32> tekst{};
    return {tekst.data(), std::strftime(tekst.data(), tekst.size(), "%Y-%m-%d %H%M%S", &delen)};
}

} // namespace plexoran
