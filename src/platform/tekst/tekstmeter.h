// The width of texts in a font without kerning: a sum over a table of 256 advances.
#pragma once

#include <array>
#include <cstdint>

#include "platform/tekst/tekst.h"

namespace plexoran {

struct Tekstmeter {
    std::array<std::int32_t, 256> opschuiving{}; ///< of each character, in the unit of its maker

    /// In the same unit.
    [[nodiscard]] std::int64_t Breedte(Tekstblik tekst) const
    {
        std::int64_t som = 0;
        for (const char teken : tekst)
            som += opschuiving[static_cast<unsigned char>(teken)];
        return som;
    }
};

} // namespace plexoran
