#include "platform/schijf/klok.h"

#include <array>
#include <chrono>
#include <ctime>

namespace plexoran {
namespace {

Tekst Opgemaakt(std::time_t tijd, const char* vorm)
{
    std::tm delen{};
#ifdef _WIN32
    localtime_s(&delen, &tijd);
#else
    localtime_r(&tijd, &delen);
#endif
    std::array<char, 32> tekst{};
    return {tekst.data(), std::strftime(tekst.data(), tekst.size(), vorm, &delen)};
}

} // namespace

std::int64_t Nu()
{
    const auto sinds1970 = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(sinds1970).count();
}

Tekst Datum(std::int64_t tijd)
{
    constexpr std::int64_t seconde = 1'000'000'000;
    return Opgemaakt(static_cast<std::time_t>(tijd / seconde), "%Y-%m-%d");
}

Tekst Tijdstempel()
{
    return Opgemaakt(std::time(nullptr), "%Y-%m-%d %H%M%S");
}

Tekst Dagtekening()
{
    return Opgemaakt(std::time(nullptr), "%d-%m-%Y");
}

} // namespace plexoran
