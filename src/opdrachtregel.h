// The command line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace plexoran {

struct Opdrachten {
    std::string mappenIni;      ///< UTF-8; empty: beside the program
    std::filesystem::path slot; ///< empty: the one file of this user
    /// The program ends at once with this status; what it had to say has been said.
    std::optional<int> eindstatus;
};

/// Answers `--help` and `--version` on standard output and refuses what it does not know on
/// standard error with status 2, all without a display.
[[nodiscard]] Opdrachten LeesOpdrachtregel(int argc, char** argv);

} // namespace plexoran
