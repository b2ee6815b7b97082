// The rules of entering one player, without a display.
#pragma once

#include <optional>

#include "register/veldregels.h"

namespace plexoran {

/// What the main window hands to the entry dialog and reads back.
struct Ingave {
    Tekst IngaveModus; ///< "Aanmaken" for a new player, else empty
    int rij = 0;       ///< table row that is changed; for a new player the row it will have
    Tekst groeptekst;  ///< the shown group, code and name
    bool importgroep = false;
    /// In: the texts to start from. Out, when the dialog was accepted: the texts as edited.
    Rijvelden IngaveVelden;
};

/// The fields before it are shown only.
inline constexpr int EersteIngaveveld = static_cast<int>(Kolom::Voornaam);

/// A field number as a return field of fast entry: 4 to 18, the sex field excepted.
[[nodiscard]] bool KanTerugkeerveld(int veld);

/// The text with which a field opens: a sex that is empty becomes "M", the group column shows
/// capitals.
[[nodiscard]] Tekst Begintekst(Kolom veld, Tekstblik tekst);

/// A key typed into a field whose text has `lengte` characters: the character to insert, or none
/// when the key is swallowed.
[[nodiscard]] std::optional<char> TypTeken(Kolom veld, char teken, std::size_t lengte);

} // namespace plexoran
