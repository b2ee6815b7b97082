// Reading a table of an Access database ("Members.mdb" and the like) with libmdb.
//
// libmdb trusts the file: on a damaged one it may crash, loop for ever, take all memory or give
// fewer rows without a word. So it works in a child process of this same program, with limits on
// time, memory and output, and its answer is believed only as a whole. The database is opened for
// reading only; that another program has it open does no harm.
//
// The child is this same program, started with a word that is not for users. Its question stands in
// the arguments behind that word, in percent encoding, since not every system hands bytes on as
// they are: the path, the table, and each column with the digit of its kind before its name. It
// ends by itself when it takes too much memory or processor time, and when the program that asked
// is gone.
//
// Its answer, to what was its standard output, is a QDataStream: of each row a byte 1 and the
// cells, texts in UTF-8 and a null text for NULL; then a byte 0, the number of rows, and what is
// wrong, in Dutch, empty when nothing is. An answer without that end is worth nothing.
#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "platform/schijf/schijf.h"

namespace plexoran {

enum class Accesssoort : unsigned char {
    Letters, ///< a column of text or long text
    Geheel,  ///< a column of whole numbers
};

/// A column that the table must have, of this kind. Names are ASCII, found without regard to case.
struct Accesskolom {
    Tekst naam;
    Accesssoort soort = Accesssoort::Letters;
};

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
/// looked at. `Beschadigd` for what is no database or lacks the table or a column; the reason
/// stands in `systeem`, in Dutch.
[[nodiscard]] Uitkomst<std::vector<Accessrij>> LeesAccess(const Pad& database, const Tekst& tabel,
                                                          const std::vector<Accesskolom>& kolommen,
                                                          const Voortgang& voortgang = {},
                                                          const Accessgrenzen& grenzen = {});

// ---- The child ---------------------------------------------------------------------------------

inline constexpr auto Kindwoord = "--lees-access";

struct Accessvraag {
    std::string pad; ///< in the system's own bytes, on Windows in UTF-8
    Tekst tabel;
    std::vector<Accesskolom> kolommen;
};

/// What is wrong with the database, which the one who asked names.
[[nodiscard]] inline tl::unexpected<Fout> Beschadigd(std::string reden)
{
    return Mislukt({.soort = Foutsoort::Beschadigd, .systeem = std::move(reden)});
}

/// To be called first of all in `main`: ends this process when it is such a child, and does nothing
/// when it is the program itself.
void WerkAlsAccesskind(int argc, char** argv);

} // namespace plexoran
