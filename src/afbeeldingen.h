// Pictures of every window on the data at hand, for the manual and for looking.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace plexoran {

class frmLedenAdmin;
struct Administratie;

/// Hands every window to `bezoek`, one after another and not yet shown but for the main window,
/// with what the register has to show in it. A box that one of them opens is answered with Escape.
void DoorloopVensters(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                      const std::function<void(QWidget&)>& bezoek);

/// Writes a PNG of each window, named after it, into the folder `map` (UTF-8, made when missing).
/// Returns the exit status; a picture that cannot be written is named on standard error.
[[nodiscard]] int MaakAfbeeldingen(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                                   const std::string& map);

} // namespace plexoran
