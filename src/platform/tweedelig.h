// A text or a vector in two parts that count on: the first as it came, the second for what is
// added. Adding never copies what came, however much of it there is.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/grootgeheugen.h"

namespace plexoran {

template <class Bak> class Tweedelig {
  public:
    using Element = typename Bak::value_type;

    Tweedelig() = default;
    explicit Tweedelig(Bak eerste) : eerste_(std::move(eerste)) {}

    [[nodiscard]] std::size_t size() const { return eerste_.size() + tweede_.size(); }
    [[nodiscard]] std::size_t capacity() const { return eerste_.capacity() + tweede_.capacity(); }

    /// The element at a place. What follows it in memory follows it in the whole, up to the end of
    /// its part; at the end of the whole there is nothing to read.
    [[nodiscard]] const Element* Vanaf(std::size_t plaats) const
    {
        return plaats < eerste_.size() ? eerste_.data() + plaats
                                       : tweede_.data() + (plaats - eerste_.size());
    }
    [[nodiscard]] Element* Vanaf(std::size_t plaats)
    {
        return const_cast<Element*>(std::as_const(*this).Vanaf(plaats));
    }
    [[nodiscard]] const Element& operator[](std::size_t plaats) const { return *Vanaf(plaats); }
    [[nodiscard]] Element& operator[](std::size_t plaats) { return *Vanaf(plaats); }

    /// The part to add to.
    [[nodiscard]] Bak& Tweede() { return tweede_; }
    void Reserveer(std::size_t erbij) { ReserveerGroot(tweede_, tweede_.size() + erbij); }

    /// Keeps the first so many.
    void KortIn(std::size_t aantal)
    {
        tweede_.resize(aantal - std::min(aantal, eerste_.size()));
        eerste_.resize(std::min(aantal, eerste_.size()));
    }

  private:
    Bak eerste_;
    Bak tweede_;
};

} // namespace plexoran
