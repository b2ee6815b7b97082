// A member database of any size, grown from the one of the tests: its two pages of members are
// repeated behind the end. What is changed besides is told where it happens.
#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace plexoran {

inline constexpr std::size_t AccessBladgrootte = 4096;

inline std::string LeesAlsBytes(const std::string& bestand)
{
    std::ifstream stroom(bestand, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stroom), {}};
    if (!stroom)
        throw std::runtime_error("niet te lezen: " + bestand);
    return bytes;
}

/// `Members.mdb` with all its members `keer` times; they keep their order within each time.
inline std::string MaakLedendatabase(const std::string& bron, unsigned keer)
{
    constexpr std::size_t tabelblad = 27;        // the table "leden"
    constexpr std::size_t kaartblad = 34;        // a bit per page: whether it is one of the table
    constexpr std::size_t ledenbladen[]{33, 35}; // its pages
    constexpr std::size_t rijenteller = 16;      // place on the page of the table
    constexpr std::uint32_t leden = 40;
    std::string bytes = LeesAlsBytes(bron);
    const std::string oud = bytes;
    for (unsigned i = 1; i < keer; ++i) {
        for (const std::size_t blad : ledenbladen) {
            const std::size_t nieuw = bytes.size() / AccessBladgrootte;
            bytes.append(oud, blad * AccessBladgrootte, AccessBladgrootte);
            char& bits = bytes.at(kaartblad * AccessBladgrootte + 4 + nieuw / 8);
            bits = static_cast<char>(static_cast<unsigned char>(bits) | 1U << nieuw % 8);
        }
    }
    for (unsigned i = 0; i < 4; ++i)
        bytes.at(tabelblad * AccessBladgrootte + rijenteller + i) =
            static_cast<char>(leden * keer >> 8 * i & 0xFFU);
    return bytes;
}

} // namespace plexoran
