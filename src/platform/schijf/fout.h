// The one kind of error of the house. Rules return it and never word a message; the window that
// started the action puts it into Dutch. And how work tells on its way how far it is.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include <tl/expected.hpp>

namespace plexoran {

enum class Foutsoort {
    Ontbreekt,        ///< the file or folder is not there
    Beschadigd,       ///< it was read, but does not hold what it should
    Geweigerd,        ///< the system refused: rights, a full disk, a broken device
    Gewijzigd,        ///< someone else changed the file since it was read
    GeenReservekopie, ///< the copy that must come before a save could not be made
    NietVast,         ///< the new file is in place and whole, but may not survive a loss of power
};

struct [[nodiscard]] Fout {
    Foutsoort soort = Foutsoort::Geweigerd;
    std::string bestand{}; ///< as the system names it, UTF-8, for the eye only
    int regel = 0;         ///< line of the file from 1; 0 where no line is to blame
    std::string systeem{}; ///< the system's own words, or what a reader found; UTF-8; may be empty
};

/// The words of the system for what went wrong: in Dutch for the errors that disks give, else its
/// own; UTF-8.
[[nodiscard]] std::string Systeemmelding(const std::error_code& code);

template <class T> using Uitkomst = tl::expected<T, Fout>;

/// What a routine returns that fails: `return Mislukt({.soort = Foutsoort::Ontbreekt});`, or
/// `return Mislukt(uitkomst);` with the error of another outcome.
[[nodiscard]] inline tl::unexpected<Fout> Mislukt(Fout fout)
{
    return tl::unexpected(std::move(fout));
}
template <class T> [[nodiscard]] tl::unexpected<Fout> Mislukt(const Uitkomst<T>& uitkomst)
{
    return tl::unexpected(uitkomst.error());
}

/// Of what was looked for: nothing where it is missing, which is then no error.
template <class T> [[nodiscard]] Uitkomst<std::optional<T>> AlsErIs(Uitkomst<T> uitkomst)
{
    if (uitkomst)
        return std::optional<T>(std::move(*uitkomst));
    if (uitkomst.error().soort == Foutsoort::Ontbreekt)
        return std::nullopt;
    return Mislukt(uitkomst);
}

/// Whether a save put the new file in place, be it without surviving a loss of power.
[[nodiscard]] inline bool StaatOpSchijf(const Uitkomst<void>& opslag)
{
    return opslag || opslag.error().soort == Foutsoort::NietVast;
}

/// How work that can take longer than a moment tells how far it is.
/// Called now and then with what is done of the whole (0 where the whole is not known). The answer
/// is false when the user wants to stop; work that cannot stop safely goes on. An empty one is
/// never called.
using Voortgang = std::function<bool(std::size_t gedaan, std::size_t geheel)>;

} // namespace plexoran
