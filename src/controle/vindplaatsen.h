// Where the keys of players stand outside the register, in pairs, sessions and competitions, and
// putting another key in the place of one.
#pragma once

#include <unordered_map>

#include "controle/controle.h"
#include "sessions/zittinglijsten.h"

namespace plexoran {

enum class Bezwaar {
    Geen,
    AnderPaar,  ///< the other key is in another pair of the file
    ZelfdePaar, ///< in one with the same partner: of these pairs one goes
    Beide,      ///< both keys are in the session or the pair: it cannot be rewritten
};

struct Vindplaats {
    struct Bestand {
        Pad pad;
        std::optional<Lijstsoort> soort; ///< none of a pair file
        bool operator==(const Bestand&) const = default;
    };

    std::optional<Zittingplek> zitting{};
    Tekst paar{}; ///< as a pair file has it
    std::vector<Bestand> bestanden{};
    Bezwaar bezwaar = Bezwaar::Geen;
    std::size_t nummer = 0; ///< of the pair file or the session
    bool operator==(const Vindplaats&) const = default;
};

class Vindplaatsen {
  public:
    Vindplaatsen() = default;
    /// Reads all of them; it does not stop on request.
    Vindplaatsen(Schijf& schijf, const Mappen& mappen, const Voortgang& voortgang);

    /// Of the key `weg`, in whose place `blijft` may come: each pair, and each session.
    [[nodiscard]] std::vector<Vindplaats> Van(const Tekst& weg, const Tekst& blijft) const;
    /// Reads the files of these places again, and no others.
    void Herlees(Schijf& schijf, const std::vector<Vindplaats>& plaatsen);
    /// Files that cannot be read, where keys may stand too.
    [[nodiscard]] const std::vector<Fout>& Fouten() const { return fouten_; }

  private:
    struct Plek {
        std::size_t plaats; ///< pair file or session, by its number
        Vindplaats::Bestand bestand;
        Tekst code; ///< the pair, or the position in the session
    };

    void Lees(Schijf& schijf, std::size_t plaats, const Vindplaats::Bestand& bestand);

    std::unordered_map<Tekst, std::vector<Plek>> plekken_; ///< by key
    std::unordered_map<std::size_t, Zittingplek> zittingen_;
    std::vector<Fout> fouten_;
};

/// Puts one key in the place of the other and leaves all other bytes, but a pair that is there
/// twice by that. `Gewijzigd` when both stand there by now.
[[nodiscard]] Uitkomst<void> VervangSleutel(Schijf& schijf, const Vindplaats& plaats,
                                            const Tekst& weg, const Tekst& blijft);

} // namespace plexoran
