// Which federation numbers occur in the import group, asked as a search in one text: for every
// player "-" and the number in at least 8 digits ("-00012345-00067890"). A number is found wherever
// it stands in that text, so a longer number hides those within its digits, and one that holds a
// "-" can be found across two players. That is kept to the letter.
//
// The numbers that will be asked for are known before the first player, so the text need not be
// kept: it streams past all of them at once, however many there are.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/tekst.h"

namespace plexoran {

/// A number as the index writes it: digits with leading zeros to at least 8, any other text as it
/// is. Outer spaces do not count for digits.
[[nodiscard]] Tekst OpgemaaktNBBnr(Tekstblik nummer);

class NBBnrIndex {
  public:
    /// The formatted numbers that will be asked for, which are known by their places from then on.
    explicit NBBnrIndex(const std::vector<Tekst>& vragen);

    static constexpr std::uint32_t Geen = 0xFFFFFFFF;

    /// Lengthens the text by "-" and this formatted number. Gives the answer of the questions that
    /// are the same, where that is known: equal usual questions have one answer.
    std::uint32_t Voeg(Tekstblik nummer);
    /// By so many numbers `Kondig` should be ahead of what is asked or added.
    static constexpr std::size_t Vooruit = 16;
    /// Says that this number will be added soon, so that its place in memory is at hand.
    void Kondig(Tekstblik nummer) const;
    /// Whether the question at this place occurs in the text so far.
    [[nodiscard]] bool Bevat(std::size_t vraag) const { return gezien_[antwoord_[vraag]]; }
    [[nodiscard]] std::uint32_t Antwoord(std::size_t vraag) const { return antwoord_[vraag]; }
    [[nodiscard]] std::size_t AantalAntwoorden() const { return gezien_.size(); }

  private:
    using Stuk = std::uint64_t; ///< eight characters

    /// A node of the tree of all unusual questions; the children of a node hang together by
    /// `broer`.
    struct Knoop {
        unsigned char teken = 0;
        std::uint32_t kind = Geen;
        std::uint32_t broer = Geen;
        std::uint32_t terug = 0;       ///< the longest other beginning that ends here too
        std::uint32_t vraag = Geen;    ///< the answer of the question that ends here
        std::uint32_t uitkomst = Geen; ///< the next node on the way back where a question ends
    };

    std::uint32_t NieuwAntwoord();
    std::uint32_t PlantGewoon(Stuk stuk);
    std::uint32_t PlantVreemd(Tekstblik vraag);
    void VerbindTerug();
    [[nodiscard]] std::size_t Begin(Stuk stuk) const;
    [[nodiscard]] std::size_t Vak(Stuk stuk) const;
    [[nodiscard]] std::uint32_t Kind(std::uint32_t knoop, unsigned char teken) const;
    [[nodiscard]] std::uint32_t Volgende(std::uint32_t knoop, unsigned char teken) const;
    void Lees(char teken);
    void LeesGewoon(char teken);
    std::uint32_t ZieLaatste();
    void LeesVreemd(unsigned char teken);

    std::vector<std::uint32_t> antwoord_; ///< per question, its place in `gezien_`
    std::vector<bool> gezien_;

    // Questions of eight characters without "-", by far the most: a table by hash; 0 is free.
    struct Plek {
        Stuk stuk = 0;
        std::uint32_t antwoord = 0;
    };
    std::vector<Plek> stukken_;
    Stuk laatste_ = 0; ///< the last eight characters of the text
    int lengte_ = 0;   ///< characters since the last "-", counted to eight

    // All others.
    std::vector<Knoop> knopen_{1};
    std::vector<std::uint32_t> wortel_; ///< children of the root, by character
    std::uint32_t stand_ = 0;
};

} // namespace plexoran
