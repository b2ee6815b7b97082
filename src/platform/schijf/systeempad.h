// The system's own form of the suite's paths. On Windows only the encoding changes. Elsewhere the
// folders usually come from systems that do not mind case, so each part of a path is looked up:
//  1. the name in UTF-8, 2. the bytes as they are, 3. a name that differs only in case.
// What is none of these is a new name and is taken in UTF-8.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/schijf/schijf.h"

namespace plexoran {

/// Where `pad` is, or would be made. Empty, which no system finds, when `pad` holds a null byte.
[[nodiscard]] std::filesystem::path Systeempad(const Pad& pad);

/// The way back, so that `Systeempad` finds the same file again.
[[nodiscard]] Pad PadVan(const std::filesystem::path& pad);

/// One name read from a folder. Nothing when no path of the suite can say it.
[[nodiscard]] std::optional<Tekst> NaamVan(const std::filesystem::path& naam);

/// UTF-8, for the eye only.
[[nodiscard]] std::string Leesbaar(const std::filesystem::path& pad);

} // namespace plexoran
