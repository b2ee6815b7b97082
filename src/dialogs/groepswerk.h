// What is done with the players of groups: they are listed to choose from, moved, copied, and
// deleted by subgroup.
//
// In the lists a player is one line: a visible text, 60 spaces and the player's key. Whatever its
// length, the last six characters of the line are taken for the key.
#pragma once

#include <vector>

#include "register/spelerbestand.h"

namespace plexoran {

/// The rows that can be moved, in table order: those outside the import group.
[[nodiscard]] std::vector<int> VerplaatsbareRijen(const Spelertabel& tabel, Tekstblik importgroep);
[[nodiscard]] Tekst Verplaatsregel(const Spelertabel& tabel, int rij);

/// The rows of a group, in table order.
[[nodiscard]] std::vector<int> RijenVanGroep(const Spelertabel& tabel, Tekstblik groepscode);
[[nodiscard]] Tekst Kopieerregel(const Spelertabel& tabel, int rij);

/// The key by which a chosen line knows its player.
[[nodiscard]] Tekst Regelkey(const Spelertabel& tabel, int rij);

/// Gives the first row with each key the group's code; keys that are not in the table are skipped.
/// Nothing else of a row changes.
void VerplaatsSpelers(Spelertabel& tabel, const std::vector<Tekst>& keys, Tekstblik groepscode);

struct Kopieeropdracht {
    std::vector<Tekst> keys; ///< of the chosen lines, in list order
    Tekst naarGroep;         ///< code of the target group
    bool metNBBgr = true;    ///< copy column 17
};

/// Appends a row for every key, that of the first row with it, with a new key of its own and
/// without a federation number. A key that is not in the table gives a row that is empty but for
/// its new key and group; the reload after the save drops it. False when there are not keys enough
/// for all; nothing is changed then.
[[nodiscard]] bool KopieerSpelers(Register& spelers, const Kopieeropdracht& opdracht);
/// The same of these very rows, whatever their keys; 0 counts as a key that is not in the table.
[[nodiscard]] bool KopieerRijen(Register& spelers, const std::vector<int>& rijen,
                                Tekstblik naarGroep, bool metNBBgr = true);

/// One field of players to be set to a text.
struct Veldopdracht {
    Kolom veld;
    Tekst nieuw;
    std::vector<int> rijen; ///< of whom it becomes another one, as far as that may be
};

/// The text becomes what the entry of a player makes of it. Nobody's surname becomes blank, only
/// members of the import group have a federation number, and none of them changes group.
[[nodiscard]] Veldopdracht MaakVeldopdracht(const Spelertabel& tabel, const std::vector<int>& rijen,
                                            Kolom veld, Tekstblik waarde, Tekstblik importgroep);
void VoerUit(Spelertabel& tabel, const Veldopdracht& opdracht);

/// The subgroups of a group, trimmed, an empty one as "geen", in order of first appearance.
[[nodiscard]] std::vector<Tekst> SubgroepenVan(const Spelertabel& tabel, Tekstblik groepscode);

/// The players of the group whose column 17 is exactly the subgroup, or empty where the subgroup is
/// "geen" in any case. A column 17 with outer spaces is listed without them and so never matches.
[[nodiscard]] std::vector<int> RijenVanSubgroep(const Spelertabel& tabel, Tekstblik groepscode,
                                                Tekstblik subgroep);

} // namespace plexoran
