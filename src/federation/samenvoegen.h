// Merging the members of one member file into the import group of the register.
//
// A player of the group with the same federation number is refreshed; any other member is added
// with a new key. Players of other groups are never looked at.
#pragma once

#include <tl/expected.hpp>

#include "federation/importregel.h"
#include "platform/schijf/voortgang.h"
#include "platform/tekst/tekstlijst.h"
#include "register/spelerbestand.h"

namespace plexoran {

struct Samenvoegopdracht {
    Tekst importgroep; ///< code of the group
    Tekst subgroep;    ///< name of the member file; becomes the member group in capitals
    Tekstlijst lstN1;  ///< import lines in the order of the file
};

/// What became of the lines of one member file.
struct Samenvoeging {
    std::size_t AantalVerververst = 0; ///< rows refreshed, as often as a line did it
    std::size_t AantalNieuw = 0;       ///< rows added
    Tekst ZonderNBBnr;                 ///< lines without a federation number, each with CR LF
    /// Lines that did neither: their number occurs in the index, but no row bears just that text,
    /// or an earlier line of the file brought it.
    Tekstlijst overgeslagen;
};

enum class Samenvoegfout {
    TeGroot,      ///< what stands as numbers is too long to look for
    GeenSleutels, ///< the register keys have run out
    Gestopt,      ///< the user stopped it
};

/// On an error the register is as it was.
[[nodiscard]] tl::expected<Samenvoeging, Samenvoegfout>
VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht,
               const Voortgang& voortgang = {});

} // namespace plexoran
