// The e-mail addresses of players, and links by which a mail program takes them as blind copies.
#pragma once

#include <span>
#include <vector>

#include "register/spelertabel.h"

namespace plexoran {

struct Mailadressen {
    std::vector<Tekst> adressen; ///< each once, whatever its capitals, in the order of the players
    std::vector<int> zonder;     ///< the rows of who has none that can be used
};

[[nodiscard]] Mailadressen MailadressenVan(const Spelertabel& tabel, std::span<const int> rijen);

/// Whether it can be an address by its form: one @, a dot within what follows, no blank and nothing
/// that parts addresses.
[[nodiscard]] bool IsMailadres(Tekstblik tekst);

struct Mail {
    std::string link; ///< all of it ASCII
    std::size_t adressen = 0;
};

/// Longer links are cut off or refused by mail programs and systems.
inline constexpr std::size_t LangsteMaillink = 2000;

/// One mail after another, of so many addresses at the most.
[[nodiscard]] std::vector<Mail> MaakMails(std::span<const Tekst> adressen, std::size_t hoogstens);

} // namespace plexoran
