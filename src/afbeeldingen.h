// Pictures of every window on the data at hand, for the manual and for looking.
#pragma once

#include <string>

namespace plexoran {

class frmLedenAdmin;
struct Administratie;

/// Writes a PNG of each window, named after it, into the folder `map` (UTF-8, made when missing).
/// Returns the exit status; a picture that cannot be written is named on standard error.
[[nodiscard]] int MaakAfbeeldingen(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                                   const std::string& map);

} // namespace plexoran
