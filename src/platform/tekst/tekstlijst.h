// A list of many texts, kept one behind the other in one block of memory: a string for each costs
// more than its characters do.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

class Tekstlijst {
  public:
    Tekstlijst() = default;
    Tekstlijst(std::initializer_list<Tekstblik> teksten)
    {
        for (const Tekstblik tekst : teksten)
            VoegToe(tekst);
    }

    /// Makes room for so many more texts of so many bytes together.
    void Reserveer(std::size_t aantal, std::size_t bytes)
    {
        einden_.reserve(einden_.size() + aantal);
        tekens_.reserve(tekens_.size() + bytes);
    }
    void VoegToe(Tekstblik tekst)
    {
        tekens_ += tekst;
        einden_.push_back(tekens_.size());
    }

    [[nodiscard]] std::size_t size() const { return einden_.size(); }
    [[nodiscard]] bool empty() const { return einden_.empty(); }
    /// Holds until a text is added.
    [[nodiscard]] Tekstblik operator[](std::size_t plaats) const
    {
        const std::size_t begin = plaats == 0 ? 0 : einden_[plaats - 1];
        return Tekstblik(tekens_).substr(begin, einden_[plaats] - begin);
    }

    class const_iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Tekstblik;
        using difference_type = std::ptrdiff_t;
        using pointer = const Tekstblik*;
        using reference = Tekstblik;

        const_iterator(const Tekstlijst& lijst, std::size_t plaats)
            : lijst_(&lijst), plaats_(plaats)
        {}
        Tekstblik operator*() const { return (*lijst_)[plaats_]; }
        const_iterator& operator++()
        {
            ++plaats_;
            return *this;
        }
        bool operator==(const const_iterator&) const = default;

      private:
        const Tekstlijst* lijst_;
        std::size_t plaats_;
    };
    [[nodiscard]] const_iterator begin() const { return {*this, 0}; }
    [[nodiscard]] const_iterator end() const { return {*this, size()}; }

    bool operator==(const Tekstlijst&) const = default;

  private:
    Tekst tekens_;
    std::vector<std::size_t> einden_; ///< where each text ends in `tekens_`
};

} // namespace plexoran
