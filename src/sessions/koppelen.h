// Finding the floating players of a session or of a whole competition, and putting the register key
// of a player in the place of one of them.
//
// Files are read at the moment they are used and rewritten one by one, each whole; only those in
// which something is replaced are touched. Linking again after a failure finishes the rest.
#pragma once

#include "platform/schijf/fout.h"
#include "register/spelertabel.h"
#include "sessions/sessiemappen.h"

namespace plexoran {

/// One floating half of a pair: where it was found.
struct Zwevende {
    Zitting zitting;
    Lijstsoort bron = Lijstsoort::Spelers;
    Tekst code;
    Tekst naam;
};

/// "als " + code + four blanks + name; in a competition with "In R<round> - Z<session> " before it.
[[nodiscard]] Tekst Lijstregel(const Zwevende& zwevende);

struct Zoekuitslag {
    std::vector<Zwevende> zwevenden;
    std::vector<Fout> fouten; ///< files that could not be read
    int overgeslagen = 0;     ///< lines of result lists that are no record
    bool gestopt = false;     ///< by the user; the sessions behind it were not looked at
};

/// Session after session, of each the player list first. A file that is missing is passed over.
[[nodiscard]] Zoekuitslag ZoekZwevenden(Schijf& schijf, const std::vector<Zitting>& zittingen,
                                        const Voortgang& voortgang = {});

struct Koppelopdracht {
    std::vector<Zwevende> regels; ///< in list order
    Tekst naam;
    Tekst key;
};

/// Which lines of the list a link works on: in a loose session the chosen one, in a competition
/// every line whose text contains the name, of players who only share a part of it too. In these
/// nothing is replaced, since only a half that equals the name is.
[[nodiscard]] Koppelopdracht MaakKoppelopdracht(const std::vector<Zwevende>& lijst,
                                                std::size_t gekozen, Tekstblik key);

/// A position in a file at which the name became the key.
struct Aangepast {
    Tekst code; ///< as the line of the list has it
    Lijstsoort soort = Lijstsoort::Spelers;
};

struct Koppeluitslag {
    std::vector<Aangepast> aangepast; ///< in the order of the lines, of each the player list first
    std::vector<std::string> gewijzigd; ///< files as the system names them
    /// After a failure: the files that still hold the name as far as the list knows, the one that
    /// failed first.
    std::vector<std::string> nietGewijzigd;
    std::optional<Fout> fout;
};

/// Ends at the first file that cannot be read or written; what was written before it stays. It does
/// not stop half-way on request.
[[nodiscard]] Koppeluitslag Koppel(Schijf& schijf, const Koppelopdracht& opdracht,
                                   const Voortgang& voortgang = {});

/// Takes the lines of the positions that now hold the key out of the list.
void HaalGekoppeldenUit(std::vector<Zwevende>& lijst, const Koppelopdracht& opdracht);

/// A player of the register who can be linked.
struct Koppelspeler {
    Tekst key;
    Tekst naam; ///< first name, particle and surname
    Tekst nbbnr;
    Tekst nbbgr;
};

/// Those of the import group, by surname, first name and particle in text order. A key that is not
/// six digits cannot be linked.
[[nodiscard]] std::vector<Koppelspeler> Koppelspelers(const Spelertabel& tabel,
                                                      Tekstblik importgroep);

/// The first of them who bears the name, capitals or not; -1 when nobody does.
[[nodiscard]] int Naamgenoot(const std::vector<Koppelspeler>& spelers, Tekstblik naam);

/// How many characters the column of the names takes, within limits.
[[nodiscard]] std::size_t Naambreedte(const std::vector<Koppelspeler>& spelers);

/// A line of the list of these players: key, name, federation number and member group, each in a
/// column of a fixed width for a name column of `breedte` characters.
[[nodiscard]] Tekst Koppelregel(const Koppelspeler& speler, std::size_t breedte);

} // namespace plexoran
