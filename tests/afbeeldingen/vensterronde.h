// A walk along all windows on the data at hand, for looking at them and for testing what must hold
// of each.
#pragma once

#include <functional>

class QWidget;

namespace plexoran {

class frmLedenAdmin;
struct Administratie;

/// Hands every window to `bezoek`, one after another and not yet shown but for the main window,
/// with what the register has to show in it. A box that one of them opens is answered with Escape.
void DoorloopVensters(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                      const std::function<void(QWidget&)>& bezoek);

} // namespace plexoran
