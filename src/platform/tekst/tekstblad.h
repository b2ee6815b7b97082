// A plain text on pages of A4: broken at its line ends, and at a blank where a line is wider than
// the page.
#pragma once

#include <vector>

#include "platform/tekst/tekenvlak.h"

namespace plexoran {

/// The letter of the printed explanation.
inline constexpr Letter Tekstbladletter{.type = Lettertype::TimesNewRoman, .punten = 10};
/// Left and right of the text, and above and below it, millimetres.
inline constexpr double Tekstbladrand = 15;

/// The lines of every page; at least one page. A tab is eight blanks.
[[nodiscard]] std::vector<std::vector<Tekst>> Tekstbladen(Tekstblik tekst,
                                                          const Lettermeter& meter);

/// Draws one of these pages.
void TekenTekstblad(Tekenvlak& vlak, const std::vector<Tekst>& regels);

} // namespace plexoran
