// Lines and items of a text file. A line ends at CR LF, LF or CR; an item ends at a comma or at the
// end of its line. A text that does not close with a line end has one more, last line.
#pragma once

#include <optional>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// The lines, each a view into the text without its line end.
[[nodiscard]] std::vector<Tekstblik> Regels(Tekstblik inhoud);
/// The items of all lines, each a view into the text without its comma or line end.
[[nodiscard]] std::vector<Tekstblik> Items(Tekstblik inhoud);

/// The first item of a file; empty for an empty file.
[[nodiscard]] Tekstblik EersteItem(Tekstblik inhoud);

/// The text from its first item that is not blank; empty when there is none.
[[nodiscard]] Tekstblik ZonderBlancoBegin(Tekstblik inhoud);

/// Whether a text holds nothing but spaces and line ends.
[[nodiscard]] bool IsLeeg(Tekstblik inhoud);

// The items of one line of a session file: an item may stand between double quotes, and a comma
// inside these belongs to it. A quote closes an item when a comma or the end of the line follows
// it, blanks apart. A quote that is never closed is a character like any other and reaches no
// further than its own item.

/// Views into the line.
struct Item {
    Tekstblik rauw;  ///< all between two commas, quotes and blanks included
    Tekstblik tekst; ///< without the enclosing quotes; the same as `rauw` where there are none

    [[nodiscard]] bool IsAangehaald() const { return tekst.size() != rauw.size(); }
};

/// Takes the items off a line one by one. There is at least one; an empty line holds an empty one.
class Itemlezer {
  public:
    explicit Itemlezer(Tekstblik regel) : regel_(regel) {}
    [[nodiscard]] std::optional<Item> Volgend();

  private:
    struct Slot; ///< where an item that began with a quote ends
    [[nodiscard]] Slot Sluiter(std::size_t vanaf);

    Tekstblik regel_;
    std::size_t begin_ = 0;
    bool geenQuoteMeer_ = false;
};

/// All items; of a line that has more than `hoogstens`, so many of them.
[[nodiscard]] std::vector<Item> ItemsVan(Tekstblik regel, std::size_t hoogstens = Tekstblik::npos);

/// The item as it stands with another text between its quotes, if it has any.
[[nodiscard]] Tekst MetTekst(const Item& item, Tekstblik tekst);

/// How a text is written so that it reads back as one item: bare where that will do, else between
/// quotes. A text that can be read back in neither way is written bare.
[[nodiscard]] Tekst AlsItem(Tekstblik tekst);

} // namespace plexoran
