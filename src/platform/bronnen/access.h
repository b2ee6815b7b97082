// Reading a table of an Access database ("Members.mdb" and the like) with libmdb.
//
// libmdb trusts the file: on a damaged one it may crash, loop for ever, take all memory or give
// fewer rows without a word. So it works in a child process of this same program
// (platform/bronnen/accesskind.h) with limits on time, memory and output, and its answer is
// believed only as a whole. The database is opened for reading only; that another program has it
// open does no harm.
#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "platform/bronnen/accesskind.h"
#include "platform/schijf/fout.h"
#include "platform/schijf/schijf.h"

namespace plexoran {

struct Accesswaarde {
    Tekst tekst;               ///< whole numbers in decimal
    std::size_t vervangen = 0; ///< characters that the code page lacks
};

/// The values in the order of the columns that were asked; nothing for NULL.
using Accessrij = std::vector<std::optional<Accesswaarde>>;

struct Accessgrenzen {
    std::string programma;                             ///< UTF-8; empty: the running program
    std::chrono::milliseconds zonderVoortgang{10'000}; ///< without a new piece of the answer
    std::size_t uitvoer = std::size_t{256} << 20;      ///< bytes
    std::size_t rijen = 500'000;
};

/// All rows of a table that are not deleted, in the order in which the file has them. `voortgang`
/// is called at least every 100 ms, with about how much of the file was read; its answer is not
/// looked at. `Beschadigd` for what is no
/// database or lacks the table or a column; the reason stands in `systeem`, in Dutch.
[[nodiscard]] Uitkomst<std::vector<Accessrij>> LeesAccess(const Pad& database, const Tekst& tabel,
                                                          const std::vector<Accesskolom>& kolommen,
                                                          const Voortgang& voortgang = {},
                                                          const Accessgrenzen& grenzen = {});

} // namespace plexoran
