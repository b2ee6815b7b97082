// The head of an Access database, looked at before libmdb sees the file.
//
//     offset 4   "Standard Jet DB" or "Standard ACE DB", and a null byte
//     offset 20  0: pages of 2048 bytes; above: pages of 4096 bytes
#pragma once

#include <filesystem>

#include "platform/fout.h"

namespace plexoran {

/// Nothing when it is a regular file of whole pages with such a head.
[[nodiscard]] Uitkomst<void> KeurAccesskop(const std::filesystem::path& bestand);

} // namespace plexoran
