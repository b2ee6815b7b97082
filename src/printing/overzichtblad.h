// The club at a glance on one sheet of A4.
#pragma once

#include "platform/tekst/tekenvlak.h"
#include "register/overzicht.h"

namespace plexoran {

/// However many lines there are: in as many as three columns, and smaller where these are too few.
void TekenOverzicht(Tekenvlak& vlak, Tekstblik titel, const std::vector<Overzichtregel>& regels);

} // namespace plexoran
