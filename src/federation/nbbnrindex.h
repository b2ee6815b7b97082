// Which federation numbers occur in the import group, asked as a search in one text: for every
// player "-" and the number in at least 8 digits ("-00012345-00067890"). A number is found wherever
// it stands in that text, so a longer number hides those within its digits, and one that holds a
// "-" can be found across two players. That is kept to the letter.
#pragma once

#include <set>
#include <unordered_map>
#include <vector>

#include "platform/tekst/tekst.h"

namespace plexoran {

/// A number as the index writes it: digits with leading zeros to at least 8, any other text as it
/// is. Outer spaces do not count for digits.
[[nodiscard]] Tekst OpgemaaktNBBnr(Tekstblik nummer);

/// The numbers that will be asked for are known before the first player; of the text only stretches
/// as long as one of them are looked up.
class NBBnrIndex {
  public:
    /// The formatted numbers that will be asked for; they must outlive the index.
    explicit NBBnrIndex(const std::vector<Tekst>& vragen);

    /// Lengthens the text by "-" and this formatted number.
    void Voeg(Tekstblik nummer);
    /// Whether this one of the numbers occurs in the text so far.
    [[nodiscard]] bool Bevat(Tekstblik vraag) const;

    /// Longer ones are searched for one by one; a file should hold few of them.
    static constexpr std::size_t Langste = 64;

  private:
    Tekst tekst_;
    std::unordered_map<Tekstblik, bool> gezien_; ///< per number asked for, but for the longest
    std::set<std::size_t> lengten_;              ///< of those
    bool metStreep_ = false;                     ///< one of them holds a "-"
};

} // namespace plexoran
