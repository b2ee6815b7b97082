// The numeric value of a text, as the suite's files use it.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/tekst/tekst.h"

namespace plexoran {

[[nodiscard]] constexpr bool IsCijfer(char teken)
{
    return teken >= '0' && teken <= '9';
}

/// The number with which the text begins: spaces, a sign, digits and a fraction after a point;
/// what follows is ignored. Without digits it is 0. A value with a fraction is rounded to the
/// nearest whole number, a half to the even one. Nothing when it does not fit.
[[nodiscard]] std::optional<std::int16_t> Geheel16(Tekstblik tekst);
[[nodiscard]] std::optional<std::int32_t> Geheel32(Tekstblik tekst);

/// Whether the text begins with a number, rather than being read as 0 for want of digits.
[[nodiscard]] bool BegintMetGetal(Tekstblik tekst);

/// A text of digits, outer spaces apart, as a number of at least `breedte` digits with leading
/// zeros. Nothing for any other text.
[[nodiscard]] std::optional<Tekst> AlsGetal(Tekstblik tekst, std::size_t breedte);

} // namespace plexoran
