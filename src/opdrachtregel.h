// The command line.
#pragma once

#include <filesystem>
#include <string>

#include <tl/expected.hpp>

namespace plexoran {

struct Opdrachten {
    std::string mappenIni;      ///< UTF-8; empty: beside the program
    std::filesystem::path slot; ///< empty: the one file of this user
};

/// Or the status with which the program ends at once. Answers `--help` and `--version` on standard
/// output and refuses what it does not know on standard error with status 2, all without a display.
[[nodiscard]] tl::expected<Opdrachten, int> LeesOpdrachtregel(int argc, char** argv);

} // namespace plexoran
