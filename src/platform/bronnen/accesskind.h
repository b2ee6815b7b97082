// The child process that reads an Access database with libmdb; see
// platform/bronnen/access.h.
//
// It is this same program, started with a word that is not for users. Its question stands in the
// arguments behind that word, in percent encoding, since not every system hands bytes on as they
// are: the path, the table, and each column with the digit of its kind before its name. It ends by
// itself when it takes too much memory or processor time, and when the program that asked is gone.
//
// Its answer, to what was its standard output, is a QDataStream: of each row a byte 1 and the
// cells, texts in UTF-8 and a null text for NULL; then a byte 0, the number of rows, and what is
// wrong, in Dutch, empty when nothing is. An answer without that end is worth nothing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/schijf/fout.h"
#include "platform/tekst/tekst.h"

class QDataStream;

namespace plexoran {

inline constexpr auto Kindwoord = "--lees-access";

enum class Accesssoort : unsigned char {
    Letters, ///< a column of text or long text
    Geheel,  ///< a column of whole numbers
};

/// A column that the table must have, of this kind. Names are ASCII, found without regard to case.
struct Accesskolom {
    Tekst naam;
    Accesssoort soort = Accesssoort::Letters;
};

struct Accessvraag {
    std::string pad; ///< in the system's own bytes, on Windows in UTF-8
    Tekst tabel;
    std::vector<Accesskolom> kolommen;
};

/// To be called first of all in `main`: the status to end with when this process is such a child,
/// nothing when it is the program itself.
[[nodiscard]] std::optional<int> AlsAccesskind(int argc, char** argv);

/// Walks the table with libmdb and writes the rows. Gives how many there were, or what is wrong.
/// May crash, loop or use all memory on a damaged file.
[[nodiscard]] Uitkomst<std::uint32_t> LeesMetLibmdb(const Accessvraag& vraag, QDataStream& uit);

} // namespace plexoran
