// The child process that reads an Access database with libmdb; see platform/access.h.
//
// It is this same program, started with one word that is not for users. It reads its question from
// standard input and writes its answer to what was its standard output, which it takes for itself
// before libmdb can print there. It ends by itself when it takes too much memory or processor time,
// and when the program that asked is gone.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "platform/accesspijp.h"

namespace plexoran {

inline constexpr auto Kindwoord = "--lees-access";

/// To be called first of all in `main`: the status to end with when this process is such a child,
/// nothing when it is the program itself.
[[nodiscard]] std::optional<int> AlsAccesskind(int argc, char** argv);

/// The path of the question.
[[nodiscard]] std::filesystem::path Padnaam(const Accessvraag& vraag);

/// Takes bytes of the answer; false when nobody listens any more.
using Antwoorduitvoer = std::function<bool(std::string_view)>;

/// Walks the table with libmdb and writes the answer, all but a message of failure. May crash, loop
/// or use all memory on a damaged file.
[[nodiscard]] Uitkomst<void> LeesMetLibmdb(const Accessvraag& vraag, const Antwoorduitvoer& uit);

} // namespace plexoran
