// A list of players as any program may write it: text in cells. Which character set, separator,
// quotes and line ends it has is found out, and its rows are taken apart.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/schijf/fout.h"
#include "platform/tekst/codepagina.h"

namespace plexoran {

enum class Lijsttekenset { Utf8, Utf16, Windows1252 };

/// How the rows are taken apart.
struct Lijstvorm {
    Tekst regeleinde{};   ///< empty: any
    char scheiding = ';'; ///< between two cells
    char aanhaling = '"'; ///< NUL for none
    bool operator==(const Lijstvorm&) const = default;
};

enum class Lijstbezwaar { GeenTekst, Lijsttekenset, Aanhaling, TeBreed, TeLang, Leeg, Gestopt };

/// Why a list was not read, and on which line of the file, from 1: text that is none in the
/// character set, a quote that is never closed, a row that is too wide.
struct Lijstfout {
    Lijstbezwaar bezwaar;
    int regel = 0;
};
template <class T> using Lijstuitkomst = tl::expected<T, Lijstfout>;

/// More is no list of players.
inline constexpr std::size_t MeesteLijstkolommen = 200;
inline constexpr std::size_t MeesteLijstrijen = 1'000'000;

/// A file in the code page of the register.
struct Lijsttekst {
    Lijsttekenset tekenset;
    Tekst tekst{};
    std::size_t vervangen = 0;          ///< characters that the code page lacks
    std::optional<Vervanging> eerste{}; ///< of them
    int regel = 0;                      ///< on which that stands
};

/// Without a character set in the one that the bytes themselves show.
[[nodiscard]] Lijstuitkomst<Lijsttekst> Lijsttekstvan(Tekstblik bytes,
                                                      std::optional<Lijsttekenset> tekenset = {});

/// The rows in which there is anything. Cells are without their quotes.
class Spelerslijst {
  public:
    [[nodiscard]] std::size_t Rijen() const { return rijen_.size(); }
    [[nodiscard]] std::size_t Cellen(std::size_t rij) const
    {
        const bool laatste = rij + 1 == rijen_.size();
        return (laatste ? einden_.size() : rijen_[rij + 1].eerste) - rijen_[rij].eerste;
    }
    /// Empty where the row is shorter.
    [[nodiscard]] Tekstblik Cel(std::size_t rij, std::size_t kolom) const;
    /// On which line of the file it begins, from 1.
    [[nodiscard]] int Regel(std::size_t rij) const { return rijen_[rij].regel; }
    /// Of the first row, by which all are judged.
    [[nodiscard]] std::size_t Kolommen() const { return rijen_.empty() ? 0 : Cellen(0); }

  private:
    friend class Lijstontleder;
    struct Rij {
        std::uint32_t eerste; ///< of its cells
        int regel;
    };
    Tekst tekst_;                       ///< of all cells, one behind the other
    std::vector<std::uint32_t> einden_; ///< where each cell ends in it
    std::vector<Rij> rijen_;
};

/// What a text shows of its form.
[[nodiscard]] Lijstvorm HerkenVorm(Tekstblik tekst);

[[nodiscard]] Lijstuitkomst<Spelerslijst> LeesSpelerslijst(Tekstblik tekst, const Lijstvorm& vorm,
                                                           const Voortgang& voortgang = {});

} // namespace plexoran
