// The check of the whole administration: every file of the suite in which players stand is read
// once, and what needs attention is listed. Nothing is changed.
#pragma once

#include "platform/schijf/fout.h"
#include "register/mappen.h"
#include "register/spelertabel.h"

namespace plexoran {

/// In the order in which they are shown.
enum class Vondstsoort {
    Onleesbaar,       ///< a file that cannot be read, or not all of it
    DubbeleSleutel,   ///< the player `wat` has the same key
    BovenHKEY,        ///< a key above the highest one issued
    GeenSleutel,      ///< a key, `wat`, that is not six digits
    ZonderAchternaam, ///< a line that is left out; `wat` is what else it says of the player
    OnbekendeGroep,   ///< `wat` is none of the fifty groups
    DubbelNBBnr,      ///< in the import group; `ander` has the number `wat` too
    PaarOnbekend,     ///< nobody has the key `ander` of the pair `wat`
    PaarOverleden,    ///< the player `ander` of the pair `wat` has died
    PaarElders,       ///< the player `ander` of the pair `wat` is in another group-subgroup
    ZittingOnbekend,  ///< nobody has the key `wat`
    Zwevend,          ///< `wat` stands there by name
    Tekens,           ///< `wat` are bytes that the code page leaves undefined, in hexadecimal
    Utf8,             ///< the file holds UTF-8
};

/// A place in the session files.
struct Zittingplek {
    Tekst naam; ///< of the session or the competition
    bool inCompetitie = false;
    int ronde = 0; ///< this and the next only in a competition
    int zitting = 0;
    Tekst plaatsen{}; ///< "N05, O12"
    bool operator==(const Zittingplek&) const = default;
};

/// What was found. It is about a player, a place in a session, or a file.
struct Vondst {
    Vondstsoort soort{};
    Tekst speler{}; ///< key, name and group
    std::optional<Zittingplek> plek{};
    std::string bestand{}; ///< as the system names it, UTF-8
    int regel = 0;         ///< line of the file from 1; 0 where no line is to blame
    Tekst wat{};
    Tekst ander{};
    std::string reden{}; ///< of a file that cannot be read: the words of the system or the reader
};

/// What was looked at.
struct Controletelling {
    std::size_t spelers = 0;
    std::size_t groepen = 0; ///< with players in them
    std::size_t parenbestanden = 0;
    std::size_t zittingen = 0; ///< loose or of a competition
    std::size_t bestanden = 0;
};

struct Controleuitslag {
    std::vector<Vondst> vondsten; ///< by kind, then in the order of the files
    Controletelling telling;
    bool gestopt = false;     ///< by the user; what comes behind was not looked at
    std::int32_t HKEY = 0;    ///< that counts
    std::int32_t hoogste = 0; ///< the highest key of a player that is six digits
    /// Every player's line was read, so that the register can be saved without losing any.
    bool allesGelezen = false;

    /// Raising the highest key issued to `hoogste` mends something and costs nothing.
    [[nodiscard]] bool IsTeVerhogen() const { return allesGelezen && hoogste > HKEY; }
};

[[nodiscard]] Controleuitslag ControleerSuite(Schijf& schijf, const Mappen& mappen,
                                              const Voortgang& voortgang = {});

} // namespace plexoran
