// Settings of other programs for a benchmark with windows: none.
#pragma once

#include "platform/bronnen/instellingenwinkel.h"

namespace plexoran {

/// The machine's own settings stay out of the measurement.
class LegeWinkel : public Instellingenwinkel {
  public:
    std::optional<Tekst> Waarde(Tekstblik, Tekstblik, Tekstblik) override { return std::nullopt; }
};

} // namespace plexoran
