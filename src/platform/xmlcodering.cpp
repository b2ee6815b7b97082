#include "platform/xmlcodering.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/codepagina.h"

namespace plexoran {
namespace {

using Uit = tl::expected<std::string, Xmlfout>;

enum class Codering { Utf8, Utf16Klein, Utf16Groot, Windows1252, Onbekend };

struct Herkend {
    Codering codering = Codering::Utf8;
    std::size_t merk = 0; ///< bytes of the mark
    Tekst naam;           ///< as declared, in capitals; empty without a declaration
};

bool IsWit(char teken)
{
    return teken == ' ' || teken == '\t' || teken == '\r' || teken == '\n';
}

Tekstblik ZonderWit(Tekstblik tekst)
{
    while (!tekst.empty() && IsWit(tekst.front()))
        tekst.remove_prefix(1);
    return tekst;
}

/// The value of `encoding` in the declaration with which the bytes begin.
Tekstblik Gedeclareerd(Tekstblik bytes)
{
    constexpr std::size_t ruim = 1024;
    constexpr Tekstblik begin = "<?xml";
    constexpr Tekstblik sleutel = "encoding";
    if (!bytes.starts_with(begin) || bytes.size() == begin.size() || !IsWit(bytes[begin.size()]))
        return {};
    bytes = bytes.substr(0, ruim);
    bytes = bytes.substr(0, bytes.find("?>"));
    const auto plaats = bytes.find(sleutel);
    if (plaats == Tekstblik::npos)
        return {};
    Tekstblik rest = ZonderWit(bytes.substr(plaats + sleutel.size()));
    if (!rest.starts_with('='))
        return {};
    rest = ZonderWit(rest.substr(1));
    if (rest.empty() || (rest.front() != '"' && rest.front() != '\''))
        return {};
    return rest.substr(1, rest.find(rest.front(), 1) - 1);
}

Codering Genoemd(Tekstblik naam)
{
    constexpr std::array<Tekstblik, 4> utf = {"", "UTF-8", "UTF8", "UTF-16"};
    constexpr std::array<Tekstblik, 9> westers = {"WINDOWS-1252", "CP1252",    "CP-1252",
                                                  "X-CP1252",     "US-ASCII",  "ASCII",
                                                  "ISO-8859-1",   "ISO8859-1", "LATIN1"};
    if (std::find(utf.begin(), utf.end(), naam) != utf.end())
        return Codering::Utf8;
    const bool bekend = std::find(westers.begin(), westers.end(), naam) != westers.end();
    return bekend ? Codering::Windows1252 : Codering::Onbekend;
}

Herkend Herken(Tekstblik bytes)
{
    const auto begintMet = [&](Tekstblik merk) { return bytes.starts_with(merk); };
    if (begintMet({"\xFF\xFE\0\0", 4}) || begintMet({"\0\0\xFE\xFF", 4}))
        return {Codering::Onbekend, 0, "UTF-32"};
    if (begintMet("\xEF\xBB\xBF"))
        return {Codering::Utf8, 3, {}};
    if (begintMet("\xFF\xFE"))
        return {Codering::Utf16Klein, 2, {}};
    if (begintMet("\xFE\xFF"))
        return {Codering::Utf16Groot, 2, {}};
    if (bytes.size() >= 2 && bytes[0] != '\0' && bytes[1] == '\0')
        return {Codering::Utf16Klein, 0, {}};
    if (bytes.size() >= 2 && bytes[0] == '\0' && bytes[1] != '\0')
        return {Codering::Utf16Groot, 0, {}};
    Tekst naam = Hoofdletters(Gedeclareerd(bytes));
    return {Genoemd(naam), 0, std::move(naam)};
}

tl::unexpected<Xmlfout> Afgewezen(std::size_t plaats, std::string wat)
{
    return tl::unexpected(Xmlfout{plaats, std::move(wat)});
}

std::uint8_t Byte(Tekstblik tekst, std::size_t plaats)
{
    return static_cast<std::uint8_t>(tekst[plaats]);
}

/// How many bytes from `plaats` are ASCII that XML allows, in whole blocks of a length of which
/// compilers make vector code.
std::size_t GewoneBytes(Tekstblik tekst, std::size_t plaats)
{
    constexpr std::size_t blok = 32;
    std::size_t eind = plaats;
    for (; eind + blok <= tekst.size(); eind += blok) {
        std::uint8_t vreemd = 0;
        for (std::size_t i = 0; i < blok; ++i) {
            const std::uint8_t byte = Byte(tekst, eind + i);
            const bool wit = byte == '\n' || byte == '\r' || byte == '\t';
            vreemd = static_cast<std::uint8_t>(vreemd | (((byte < 0x20) & !wit) | (byte >= 0x80)));
        }
        if (vreemd != 0)
            break;
    }
    return eind - plaats;
}

/// The length of the UTF-8 character at `plaats`; 0 when the bytes there are none, are longer than
/// the character needs, or stand for one that XML does not allow.
std::size_t LengteUtf8(Tekstblik tekst, std::size_t plaats)
{
    const std::uint8_t eerste = Byte(tekst, plaats);
    if (eerste < 0x80)
        return MagInXml(eerste) ? 1 : 0;
    const std::size_t lengte = eerste >= 0xF0 ? 4 : eerste >= 0xE0 ? 3 : 2;
    if (eerste < 0xC2 || eerste > 0xF4 || plaats + lengte > tekst.size())
        return 0;
    char32_t teken = eerste & (0xFFU >> (lengte + 1));
    for (std::size_t i = 1; i < lengte; ++i) {
        const std::uint8_t volgende = Byte(tekst, plaats + i);
        if ((volgende & 0xC0U) != 0x80)
            return 0;
        teken = (teken << 6U) | (volgende & 0x3FU);
    }
    constexpr std::array<char32_t, 5> laagste = {0, 0, 0x80, 0x800, 0x10000};
    return teken >= laagste[lengte] && MagInXml(teken) ? lengte : 0;
}

Uit UitUtf8(Tekstblik bytes, std::size_t merk)
{
    for (std::size_t i = merk; i < bytes.size();) {
        // A block with other characters comes next, one by one; the last may reach beyond it.
        const std::size_t blokeind = std::min(bytes.size(), i + GewoneBytes(bytes, i) + 32);
        i = blokeind - std::min<std::size_t>(blokeind - i, 32);
        while (i < blokeind) {
            const std::size_t lengte = LengteUtf8(bytes, i);
            if (lengte == 0)
                return Afgewezen(i, "dit is geen UTF-8-teken dat in XML mag staan");
            i += lengte;
        }
    }
    return std::string(bytes.substr(merk));
}

void VoegUtf8Toe(std::string& uit, char32_t teken)
{
    const auto vervolg = [&](unsigned schuif) {
        uit += static_cast<char>(0x80U | ((teken >> schuif) & 0x3FU));
    };
    if (teken < 0x80) {
        uit += static_cast<char>(teken);
    } else if (teken < 0x800) {
        uit += static_cast<char>(0xC0U | (teken >> 6U));
        vervolg(0);
    } else if (teken < 0x10000) {
        uit += static_cast<char>(0xE0U | (teken >> 12U));
        vervolg(6);
        vervolg(0);
    } else {
        uit += static_cast<char>(0xF0U | (teken >> 18U));
        vervolg(12);
        vervolg(6);
        vervolg(0);
    }
}

char32_t Eenheid(Tekstblik bytes, std::size_t plaats, bool groot)
{
    const unsigned een = Byte(bytes, plaats);
    const unsigned twee = Byte(bytes, plaats + 1);
    return groot ? een << 8U | twee : twee << 8U | een;
}

Uit UitUtf16(Tekstblik bytes, std::size_t merk, bool groot)
{
    std::string uit;
    uit.reserve(bytes.size() / 2 + bytes.size() / 16);
    for (std::size_t i = merk; i < bytes.size(); i += 2) {
        if (i + 1 == bytes.size())
            return Afgewezen(i, "het bestand eindigt midden in een UTF-16-teken");
        char32_t teken = Eenheid(bytes, i, groot);
        const std::size_t begin = i;
        if (teken >= 0xD800 && teken < 0xDC00 && i + 3 < bytes.size()) {
            const char32_t laag = Eenheid(bytes, i + 2, groot);
            if (laag >= 0xDC00 && laag <= 0xDFFF) {
                teken = 0x10000 + ((teken - 0xD800) << 10U) + (laag - 0xDC00);
                i += 2;
            }
        }
        if (!MagInXml(teken))
            return Afgewezen(begin, "dit is geen UTF-16-teken dat in XML mag staan");
        VoegUtf8Toe(uit, teken);
    }
    return uit;
}

Uit UitWindows1252(Tekstblik bytes)
{
    const auto fout = std::find_if(bytes.begin(), bytes.end(), [](char teken) {
        return !MagInXml(static_cast<std::uint8_t>(teken));
    });
    if (fout != bytes.end())
        return Afgewezen(static_cast<std::size_t>(fout - bytes.begin()),
                         "dit teken mag niet in XML staan");
    return NaarUtf8(bytes);
}

} // namespace

tl::expected<std::string, Xmlfout> XmlNaarUtf8(Tekstblik bytes)
{
    const Herkend herkend = Herken(bytes);
    switch (herkend.codering) {
    case Codering::Utf8:
        return UitUtf8(bytes, herkend.merk);
    case Codering::Utf16Klein:
    case Codering::Utf16Groot:
        return UitUtf16(bytes, herkend.merk, herkend.codering == Codering::Utf16Groot);
    case Codering::Windows1252:
        return UitWindows1252(bytes);
    case Codering::Onbekend:
        break;
    }
    return Afgewezen(0, "de codering is onbekend: " + NaarUtf8(herkend.naam));
}

bool IsUtf8(Tekstblik bytes)
{
    bool gezien = false;
    for (std::size_t i = 0; i < bytes.size();) {
        if (Byte(bytes, i) < 0x80) {
            ++i;
            continue;
        }
        const std::size_t lengte = LengteUtf8(bytes, i);
        if (lengte == 0)
            return false;
        gezien = true;
        i += lengte;
    }
    return gezien;
}

Tekstblik XmlDoorzoekbaar(Tekstblik bytes, std::string& ruimte)
{
    const Herkend herkend = Herken(bytes);
    const bool groot = herkend.codering == Codering::Utf16Groot;
    if (!groot && herkend.codering != Codering::Utf16Klein)
        return bytes;
    constexpr char ander = '\x80';
    ruimte.clear();
    for (std::size_t i = herkend.merk; i + 1 < bytes.size(); i += 2) {
        const char32_t teken = Eenheid(bytes, i, groot);
        ruimte += teken < 0x80 ? static_cast<char>(teken) : ander;
    }
    return ruimte;
}

} // namespace plexoran
