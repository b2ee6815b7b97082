// What the systems have calls of their own for. Every result is handed on as the system's own
// error.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "platform/schijf/schijf.h"

namespace plexoran::systeem {

struct Sluiter {
    void operator()(std::FILE* bestand) const { static_cast<void>(std::fclose(bestand)); }
};
/// An open file, which no child inherits.
using Greep = std::unique_ptr<std::FILE, Sluiter>;

/// Refused for what is not a regular file or a link to one.
[[nodiscard]] std::error_code GewoonBestand(const std::filesystem::path& pad);
/// A new file must not exist yet. None on a failure, which `Laatste` tells.
[[nodiscard]] std::FILE* Open(const std::filesystem::path& pad, bool nieuw);
[[nodiscard]] std::error_code Laatste();
/// The error of the last call that sets `errno`; none when `teruggave` is what a good one returns.
[[nodiscard]] std::error_code Uitslag(int teruggave);

/// Returns when what was written is on the device.
[[nodiscard]] std::error_code Sync(const Greep& greep);
/// Refused for what is not a regular file or a link to one.
[[nodiscard]] std::error_code NeemStempel(const std::filesystem::path& pad, Stempel& stempel);
/// Gives `naar` the mode of `van` and, where the system lets us, its owner. Refused when `van` may
/// not be written: a rename would replace it all the same.
[[nodiscard]] std::error_code NeemRechtenOver(const std::filesystem::path& van,
                                              const std::filesystem::path& naar);
/// Replaces `naar` in one step.
[[nodiscard]] std::error_code Hernoem(const std::filesystem::path& van,
                                      const std::filesystem::path& naar);
/// Returns when the names in the folder are on the device; nothing on Windows, where `Hernoem`
/// itself waits for that.
[[nodiscard]] std::error_code SyncMap(const std::filesystem::path& map);

} // namespace plexoran::systeem
