// The special add: the names in the player list of a scored session, whose folder's name ends in
// "_Rev", become new players of the register, and a link file tells which pair got which keys.
// Where these files stand is in docs/bestanden.md.
#pragma once

#include <optional>
#include <vector>

#include "register/mengen.h"
#include "sessions/zittinglijsten.h"

namespace plexoran {

/// The group that gets all added players.
inline constexpr Tekstblik Toevoeggroep = "Gr08-";

/// The folder of the sessions.
[[nodiscard]] Pad Zittingenmap(const Mappen& mappen);

/// The folders "*_Rev", capitals or not, in text order. None where the folder of the sessions is
/// missing.
[[nodiscard]] Uitkomst<std::vector<Tekst>> RevZittingen(Schijf& schijf, const Mappen& mappen);

/// The first line of the club name file without outer spaces; empty when there is none.
[[nodiscard]] Uitkomst<Tekst> LeesClubnaam(Schijf& schijf, const Mappen& mappen);

/// Puts the sibling program's player list of the session in the place of the session's own.
/// Nothing happens without a club name or where the sibling has no such list. A club name that is
/// no plain name is `Beschadigd`.
[[nodiscard]] Uitkomst<void> HaalSpelerslijst(Schijf& schijf, const Mappen& mappen,
                                              Tekstblik zitting);

/// A name of the list. They come in pairs: the first players have even places, counted from 0.
struct Sessiespeler {
    Tekst voornaam;
    Tekst tusv;
    Tekst achternaam;
    Tekst paar; ///< pair number: the first three characters of the item
    bool operator==(const Sessiespeler&) const = default;
};

/// First name, particle, surname and pair number, joined by commas.
[[nodiscard]] Tekst Toevoegregel(const Sessiespeler& speler);

struct Sessiespelers {
    std::vector<Sessiespeler> spelers;
    bool metKeys = false; ///< the first pair carries register keys, which may be old

    /// The reading ended there: it is no list.
    [[nodiscard]] bool IsTeVeel() const { return spelers.size() > MeesteNamen; }
};

/// The names in the text of a player list, without the register keys before or behind them.
[[nodiscard]] Sessiespelers SessiespelersUit(Tekstblik inhoud);

/// Those of the session; none when it has no player list.
[[nodiscard]] Uitkomst<Sessiespelers> LeesSessieSpelers(Schijf& schijf, const Mappen& mappen,
                                                        Tekstblik zitting);

/// Whether the name stands for nobody: absent, sitting out, or empty.
[[nodiscard]] bool IsNiemand(const Sessiespeler& speler);

/// Appends a row per name that stands for somebody. Gives the link text: per pair its number, a
/// space, the new key of the first player, " - ", that of the second, "0" for nobody. Nothing when
/// there are not keys enough; the register is as it was then.
[[nodiscard]] std::optional<Tekst> VoegSpelersToe(Register& spelers,
                                                  const std::vector<Sessiespeler>& namen);

/// The link file of a session with its new text, and what it held before.
class Koppelverslag {
  public:
    Koppelverslag(Schijf& schijf, const Mappen& mappen, Tekstblik zitting, Tekst tekst);

    [[nodiscard]] Uitkomst<void> Schrijf();
    /// The file as it was before `Schrijf`; removed when there was none. `Gewijzigd` when someone
    /// else wrote it since.
    [[nodiscard]] Uitkomst<void> ZetTerug();
    /// Whether `Schrijf` came at the file and `ZetTerug` did not make up for it yet.
    [[nodiscard]] bool Staat() const { return staat_; }
    /// Whether the file holds the text as it is now.
    [[nodiscard]] bool IsBij() const { return staat_ && bij_; }
    /// Players got other keys before they were saved.
    void Hernummer(const std::deque<Hernummering>& keys);

  private:
    Schijf& schijf_;
    Pad map_;
    Pad pad_;
    Tekst tekst_;
    std::optional<Tekst> oud_;
    std::optional<Tekst> nu_; ///< what stands there as far as is known
    bool bij_ = true;
    bool staat_ = false; ///< else what stood there before is not known
};

/// The link files that name a key above `HKEY`, which is still to be issued: an add that was killed
/// before the save left them, or the register is an older one. Those that cannot be read are passed
/// over.
[[nodiscard]] std::vector<Pad> VerslagenMetLosseSleutels(Schijf& schijf, const Mappen& mappen,
                                                         std::int32_t HKEY);

} // namespace plexoran
