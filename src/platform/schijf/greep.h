// An open file of the system, and what else differs between the systems' calls. Every result is
// handed on; a call that a signal broke off is tried again.
#pragma once

#include <filesystem>
#include <system_error>

#include "platform/schijf/schijf.h"

namespace plexoran::systeem {

/// Owns one open file; closes it when it still is open at the end.
class Greep {
  public:
    Greep() = default;
    Greep(const Greep&) = delete;
    Greep& operator=(const Greep&) = delete;
    ~Greep();

    /// Never waits for the other end of a pipe.
    [[nodiscard]] std::error_code OpenLezen(const std::filesystem::path& pad);
    /// The file must not exist yet.
    [[nodiscard]] std::error_code MaakNieuw(const std::filesystem::path& pad);
    /// The whole file from here on. Refused for what is not a regular file.
    [[nodiscard]] std::error_code LeesAlles(Tekst& naar);
    [[nodiscard]] std::error_code Schrijf(Tekstblik bytes);
    [[nodiscard]] std::error_code Sync();
    [[nodiscard]] std::error_code Sluit();

  private:
    int nummer_ = -1;
};

/// Refused for what is not a regular file or a link to one.
[[nodiscard]] std::error_code NeemStempel(const std::filesystem::path& pad, Stempel& stempel);
/// Gives `naar` the mode of `van` and, where the system lets us, its owner. Refused when `van` may
/// not be written: a rename would replace it all the same.
[[nodiscard]] std::error_code NeemRechtenOver(const std::filesystem::path& van,
                                              const std::filesystem::path& naar);
/// Files only, never a folder.
[[nodiscard]] std::error_code Verwijder(const std::filesystem::path& pad);
/// Replaces `naar` in one step.
[[nodiscard]] std::error_code Hernoem(const std::filesystem::path& van,
                                      const std::filesystem::path& naar);
/// Returns when the names in the folder are on the device; nothing on Windows, where `Hernoem`
/// itself waits for that.
[[nodiscard]] std::error_code SyncMap(const std::filesystem::path& map);

} // namespace plexoran::systeem
