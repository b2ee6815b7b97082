// The expected contents of the databases in tests/gegevens/access: tables as text, UTF-8, a line
// per row, cells between tabs, \N for NULL, escapes \\ \t \n \r. The first line holds the names.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "hulp/ledenmaker.h"

namespace plexoran {

inline std::string Accessbestand(const std::string& naam)
{
    return std::string(GEGEVENS) + "/access/" + naam;
}

/// The member database in which the member file "Jeugd" has another number than 105.
inline std::string DatabaseMetJeugdnummer(std::uint32_t nummer)
{
    std::string bytes = LeesAlsBytes(Accessbestand("Members.mdb"));
    const auto naam = bytes.find("Jeugd");
    constexpr std::size_t ervoor = 6; // the number in four bytes, and the mark of a short text
    if (naam == std::string::npos || bytes[naam - ervoor] != 105)
        throw std::runtime_error("Members.mdb is anders dan gedacht");
    for (std::size_t i = 0; i < 4; ++i)
        bytes[naam - ervoor + i] = static_cast<char>(nummer >> 8 * i & 0xFFU);
    return bytes;
}

using Verwachtecel = std::optional<std::string>;
/// Per row the cells by column name.
using Verwachtetabel = std::vector<std::map<std::string, Verwachtecel>>;

inline Verwachtecel CelUit(const std::string& ruw)
{
    if (ruw == "\\N")
        return std::nullopt;
    std::string uit;
    for (std::size_t i = 0; i < ruw.size(); ++i) {
        if (ruw[i] != '\\') {
            uit += ruw[i];
            continue;
        }
        const auto letter = std::string("\\tnr").find(ruw.at(++i));
        if (letter == std::string::npos)
            throw std::runtime_error("onbekende escape in " + ruw);
        uit += "\\\t\n\r"[letter];
    }
    return uit;
}

inline std::vector<std::string> Gesplitst(const std::string& tekst, char op)
{
    std::vector<std::string> stukken(1);
    for (const char teken : tekst) {
        if (teken == op)
            stukken.emplace_back();
        else
            stukken.back() += teken;
    }
    return stukken;
}

inline Verwachtetabel LeesTsv(const std::string& naam)
{
    auto regels = Gesplitst(LeesAlsBytes(Accessbestand(naam)), '\n');
    if (regels.back().empty())
        regels.pop_back();
    const auto koppen = Gesplitst(regels.at(0), '\t');
    Verwachtetabel tabel;
    for (std::size_t r = 1; r < regels.size(); ++r) {
        const auto cellen = Gesplitst(regels[r], '\t');
        auto& rij = tabel.emplace_back();
        for (std::size_t k = 0; k < koppen.size(); ++k)
            rij[koppen[k]] = CelUit(cellen.at(k));
    }
    return tabel;
}

} // namespace plexoran
