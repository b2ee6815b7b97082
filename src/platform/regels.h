// Lines and items of a text file. A line ends at CR LF, LF or CR; an item ends at a comma or at the
// end of its line. A text that does not close with a line end has one more, last line.
#pragma once

#include <iterator>

#include "platform/tekst.h"

namespace plexoran {

/// Walks the pieces of a text, each a view into it, without its line end or comma.
/// `for (Tekstblik regel : Regels(inhoud))`, `for (Tekstblik item : Items(inhoud))`.
class Stukken {
  public:
    class Iterator {
      public:
        using value_type = Tekstblik;
        using difference_type = std::ptrdiff_t;

        Iterator(Tekstblik rest, bool opKomma);
        Tekstblik operator*() const { return stuk_; }
        Iterator& operator++();
        bool operator==(std::default_sentinel_t) const { return klaar_; }

      private:
        void Volgend();

        Tekstblik rest_;
        Tekstblik stuk_;
        bool opKomma_;
        bool klaar_ = false;
    };

    Stukken(Tekstblik inhoud, bool opKomma) : inhoud_(inhoud), opKomma_(opKomma) {}
    [[nodiscard]] Iterator begin() const { return {inhoud_, opKomma_}; }
    [[nodiscard]] static std::default_sentinel_t end() { return {}; }

  private:
    Tekstblik inhoud_;
    bool opKomma_;
};

[[nodiscard]] inline Stukken Regels(Tekstblik inhoud)
{
    return {inhoud, false};
}

[[nodiscard]] inline Stukken Items(Tekstblik inhoud)
{
    return {inhoud, true};
}

/// The first item of a file; empty for an empty file.
[[nodiscard]] Tekstblik EersteItem(Tekstblik inhoud);

/// The text from its first item that is not blank; empty when there is none.
[[nodiscard]] Tekstblik ZonderBlancoBegin(Tekstblik inhoud);

/// Whether a text holds nothing but spaces and line ends.
[[nodiscard]] bool IsLeeg(Tekstblik inhoud);

} // namespace plexoran
