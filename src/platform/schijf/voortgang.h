// How work that can take longer than a moment tells how far it is.
#pragma once

#include <cstddef>
#include <functional>

namespace plexoran {

/// Called now and then with what is done of the whole (0 where the whole is not known). The answer
/// is false when the user wants to stop; work that cannot stop safely goes on. An empty one is
/// never called.
using Voortgang = std::function<bool(std::size_t gedaan, std::size_t geheel)>;

} // namespace plexoran
