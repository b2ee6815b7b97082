// Group codes: "Gr", two digits and "-".
#pragma once

#include "platform/tekst/tekst.h"

namespace plexoran {

inline constexpr int AantalGroepen = 50;
inline constexpr std::size_t LengteGroepscode = 5;

/// "Gr01-" to "Gr50-"; `nummer` counts from 1.
[[nodiscard]] inline Tekst Groepscode(int nummer)
{
    return "Gr" + MetNullen(nummer, 2) + "-";
}

/// The group code of a text that begins with one, such as a drop-down's: its first five characters.
[[nodiscard]] inline Tekstblik CodeUit(Tekstblik tekst)
{
    return tekst.substr(0, LengteGroepscode);
}

} // namespace plexoran
