// What the commands of the program changed in the files of the suite, so that it can be looked up
// and undone: the folder "Geschiedenis" in the players folder (docs/bestanden.md). Each start of
// the program that changes anything adds a file of its own to it. Nothing of it is needed to read
// the register, and a failure never holds up a save.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "register/mengen.h"

namespace plexoran {

/// A file as it was before a command and after it; nothing where it was not there. Of the player
/// file only the lines that differ, and the line before and behind those.
struct Wijziging {
    Tekst plaats; ///< the key of a folder and the path in it, such as "SPEMAP\RVDspelers.txt"
    std::optional<Tekst> voor;
    std::optional<Tekst> na;

    [[nodiscard]] bool IsSpelerbestand() const { return plaats == "SPEMAP\\RVDspelers.txt"; }
    /// For the eye: the path in its folder.
    [[nodiscard]] Tekst Naam() const { return plaats.substr(plaats.find('\\') + 1); }
    [[nodiscard]] Pad PadIn(const Mappen& mappen) const;
};

enum class Handelingsoort { Gewoon, Ongedaan, Opnieuw };

/// A command that changed files.
struct Handeling {
    Tekst id{};   ///< the file that holds it, and its number in there
    Tekst tijd{}; ///< "2026-11-22 16:40:11", the computer's own
    Tekst computer{};
    Tekst gebruiker{};
    Tekst wat{};
    Handelingsoort soort = Handelingsoort::Gewoon;
    Tekst hoort{}; ///< which one it undid, or did again
    std::vector<Wijziging> wijzigingen{};
};

/// The lines of a text before and after: ` ` stands in front of one that stayed, `-` of one that
/// went, `+` of one that came. Without `alles` the row number in front of a line does not count,
/// and of those that stayed only the neighbours of a change are in it; empty when nothing changed.
[[nodiscard]] Tekst Regelverschil(Tekstblik voor, Tekstblik na, bool alles);

/// The entries of a history file named `naam`, as far as they are whole.
[[nodiscard]] std::vector<Handeling> HandelingenUit(Tekstblik inhoud, Tekstblik naam);

/// The entry with that id; nothing when it is not there any more.
[[nodiscard]] std::optional<Handeling> LeesHandeling(Schijf& schijf, const Mappen& mappen,
                                                     const Tekst& id);

/// Hands out the entries of all computers, of each the last one first, until `neem` says false.
/// Files that cannot be read are passed over, and those that were written last before `sinds`.
void LoopTerug(Schijf& schijf, const Mappen& mappen, const std::function<bool(Handeling&)>& neem,
               const Tekst& sinds = {});

/// The players that differ before, at the left, and after.
[[nodiscard]] std::vector<Verschil> SpelersIn(const Wijziging& wijziging);

/// By their keys, the names of the pair files in which players stand.
using Paarplaatsen = std::map<Tekst, Tekst>;

/// The players as they become when an entry is undone, or done again. Where something else was
/// changed since, that stays as it is and counts as `botsingen`, what was to come at the left. So
/// do those who would go but stand in `blijven`, by their keys.
[[nodiscard]] Menging DraaiSpelersTerug(const Register& nu, const Wijziging& wijziging,
                                        Handelingsoort soort, const Paarplaatsen& blijven = {});

/// Who is in a table and no more in the next one, but still in pairs.
[[nodiscard]] Paarplaatsen ZonderSpelerInParen(Schijf& schijf, const Mappen& mappen,
                                               const Spelertabel& eerst, const Spelertabel& dan);

/// Makes another file than that of the players what it is when an entry is undone, or done again.
/// Where it was changed since, that stays and is named in the outcome.
[[nodiscard]] Uitkomst<std::vector<Tekst>> DraaiBestandTerug(Schijf& schijf, const Mappen& mappen,
                                                             const Wijziging& wijziging,
                                                             Handelingsoort soort);

class Geschiedenis : public Getuige {
  public:
    explicit Geschiedenis(Schijf& schijf) : schijf_(schijf) {}
    Geschiedenis(const Geschiedenis&) = delete;
    Geschiedenis& operator=(const Geschiedenis&) = delete;
    ~Geschiedenis() override;

    /// From now on what is changed in these folders is kept. Removes what is older than 400 days,
    /// and the oldest of what is more than 200 MB.
    void Open(const Mappen& mappen, Tekst computer, Tekst gebruiker);

    /// Writes what is about to happen to a file to the disk; without `nieuw` it is removed.
    void VoorVervanging(const Pad& pad, std::optional<Tekstblik> nieuw) override;

    /// A better name for what is going on, now that more is known; a second one is put behind it.
    void Noem(const Tekst& wat);
    /// The name of what is going on; empty without.
    [[nodiscard]] Tekst Bezig() const { return bezig_ ? handeling_.wat : Tekst(); }
    /// The save failed: what was to be named counts with the next one.
    void StelUit();

    /// Why nothing could be kept; handed out once.
    [[nodiscard]] std::optional<Fout> NeemFout();

    /// The last one of this user on this computer that can be undone, or done again; whoever undid
    /// it before.
    [[nodiscard]] std::optional<Handeling> Laatste(Handelingsoort soort) const;

  private:
    friend class Noteer;

    void Begin(const Tekst& wat, Handelingsoort soort, Tekst hoort);
    [[nodiscard]] bool IsOngedaan(const Handeling& handeling) const;
    [[nodiscard]] std::optional<Tekst> PlaatsVan(const Pad& pad) const;
    [[nodiscard]] Tekst Kop() const;
    [[nodiscard]] Uitkomst<void> OpenBestand();
    void RuimOp() const;
    void Schrijf(Tekstblik regels);

    Schijf& schijf_;
    const Mappen* mappen_ = nullptr;
    Tekst computer_;
    Tekst gebruiker_;
    std::unique_ptr<Schrijver> schrijver_; ///< of the file of this start, from the first entry on
    Handeling handeling_;                  ///< the one that is going on
    bool begonnen_ = false;                ///< and is in the file
    bool genoemd_ = false;
    bool bezig_ = false;
    Tekst uitgesteld_;
    int nummer_ = 0;
    std::optional<Fout> fout_;
    bool gemeld_ = false;
};

/// While it lives, what happens to the files is part of one entry.
class Noteer {
  public:
    Noteer(Geschiedenis& geschiedenis, const Tekst& wat,
           Handelingsoort soort = Handelingsoort::Gewoon, Tekst hoort = {})
        : geschiedenis_(geschiedenis)
    {
        geschiedenis_.Begin(wat, soort, std::move(hoort));
    }
    Noteer(const Noteer&) = delete;
    Noteer& operator=(const Noteer&) = delete;
    ~Noteer() { geschiedenis_.bezig_ = false; }

    /// Is in the history also when no file changes.
    void Leg() const;

  private:
    Geschiedenis& geschiedenis_;
};

} // namespace plexoran
