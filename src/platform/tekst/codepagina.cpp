#include "platform/tekst/codepagina.h"

#include <algorithm>
#include <array>

#include <QString>

namespace plexoran {
namespace {

/// The bytes 0x80 to 0x9F; every other byte is the character of the same number.
constexpr std::array<char16_t, 32> middenstuk = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char16_t Teken(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0x9F ? middenstuk[byte - 0x80U] : char16_t{byte};
}

std::optional<char> Byte(char32_t teken)
{
    if (teken < 0x80 || (teken >= 0xA0 && teken <= 0xFF))
        return static_cast<char>(teken);
    const auto plek = std::find(middenstuk.begin(), middenstuk.end(), teken);
    if (plek == middenstuk.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (plek - middenstuk.begin()));
}

// The letters of Europe that do not decompose into their likeness, and below them the likenesses.
constexpr std::u16string_view letters = u"ĐƉđƏəǤǥĦħıĸŁłŊŋŦŧƷʒ";
constexpr Tekstblik gelijkeLetters = "DDdEeGgHhikLlNnTtZz";
static_assert(letters.size() == gelijkeLetters.size());

// Those that become two letters, of which the second keeps its caron, and signs that keyboards and
// other programs put in the place of a plain one; these as escapes, since many look alike.
constexpr std::pair<std::u16string_view, Tekstblik> gelijkenissen[] = {
    {u"Ǆ", "D\x8E"},
    {u"ǅ", "D\x9E"},
    {u"ǆ", "d\x9E"},
    {u"ẞ", "SS"},
    {u"\u02B9\u02C8\u2032", "'"},
    {u"\u02BC", "\x92"},
    {u"\u201B", "\x91"},
    {u"\u2033", "\""},
    {u"\u2010\u2011\u2212", "-"},
    {u"\u2012", "\x96"},
    {u"\u2015", "\x97"},
    {u"\u03BC", "\xB5"},
    {u"\u2044\u2215", "/"},
};

/// Empty when nothing is like it.
Tekstblik Gelijkend(char32_t teken)
{
    if (teken > 0xFFFF)
        return {};
    const auto eenheid = static_cast<char16_t>(teken);
    const auto plek = letters.find(eenheid);
    if (plek != letters.npos)
        return gelijkeLetters.substr(plek, 1);
    for (const auto& [tekens, door] : gelijkenissen) {
        if (tekens.find(eenheid) != tekens.npos)
            return door;
    }
    return {};
}

/// The units of the character at `plek`: two for a surrogate pair, otherwise one; a lone
/// surrogate is a character by itself.
std::u16string_view TekenOp(std::u16string_view tekst, std::size_t plek)
{
    const bool paar = plek + 1 < tekst.size() && QChar::isHighSurrogate(tekst[plek]) &&
                      QChar::isLowSurrogate(tekst[plek + 1]);
    return tekst.substr(plek, paar ? 2 : 1);
}

char32_t Nummer(std::u16string_view teken)
{
    return teken.size() == 2 ? QChar::surrogateToUcs4(teken[0], teken[1]) : char32_t{teken[0]};
}

QString AlsQString(std::u16string_view tekst)
{
    return QStringView(tekst.data(), static_cast<qsizetype>(tekst.size())).toString();
}

std::u16string Genormaliseerd(std::u16string_view tekst, QString::NormalizationForm vorm)
{
    return AlsQString(tekst).normalized(vorm).toStdU16String();
}

/// The nearest letters; empty when any part of the character has none, since half a character
/// would be read as another.
Tekst Naaste(std::u16string_view teken)
{
    Tekst uit(Gelijkend(Nummer(teken)));
    if (!uit.empty())
        return uit;
    const std::u16string delen = Genormaliseerd(teken, QString::NormalizationForm_KD);
    for (std::size_t i = 0; i < delen.size();) {
        const auto deel = TekenOp(delen, i);
        i += deel.size();
        const char32_t nummer = Nummer(deel);
        if (QChar::isMark(nummer))
            continue;
        if (const auto byte = Byte(nummer))
            uit += *byte;
        else if (const Tekstblik door = Gelijkend(nummer); !door.empty())
            uit += door;
        else
            return {};
    }
    // A loose accent decomposes into a space with the accent: no likeness is left of it.
    const bool spatie = QChar::category(Nummer(teken)) == QChar::Separator_Space;
    return IsBlanco(uit) && !spatie ? Tekst() : uit;
}

bool IsAsciiteken(char teken)
{
    return static_cast<unsigned char>(teken) < 0x80;
}

} // namespace

std::u16string NaarUtf16(Tekstblik tekst)
{
    std::u16string uit(tekst.size(), u'\0');
    std::transform(tekst.begin(), tekst.end(), uit.begin(),
                   [](char teken) { return Teken(static_cast<unsigned char>(teken)); });
    return uit;
}

std::string NaarUtf8(Tekstblik tekst)
{
    constexpr auto kort = 0x800; // from here on it takes three bytes
    std::string uit;
    uit.reserve(tekst.size());
    for (;;) {
        const auto ander = std::ranges::find_if_not(tekst, IsAsciiteken);
        uit.append(tekst.begin(), ander);
        if (ander == tekst.end())
            return uit;
        const unsigned teken = Teken(static_cast<unsigned char>(*ander));
        if (teken >= kort)
            uit += static_cast<char>(0xE0U | teken >> 12U);
        uit +=
            static_cast<char>(teken >= kort ? 0x80U | (teken >> 6U & 0x3FU) : 0xC0U | teken >> 6U);
        uit += static_cast<char>(0x80U | (teken & 0x3FU));
        tekst.remove_prefix(static_cast<std::size_t>(ander - tekst.begin()) + 1);
    }
}

std::optional<Tekst> ExactNaarCodepagina(std::u16string_view tekst)
{
    Tekst uit;
    uit.reserve(tekst.size());
    for (const char16_t eenheid : tekst) {
        const auto byte = Byte(eenheid);
        if (!byte)
            return std::nullopt;
        uit += *byte;
    }
    return uit;
}

Omzetting NaarCodepagina(std::u16string_view tekst)
{
    // No character of the code page changes by composing, so what fits is composed already.
    if (auto exact = ExactNaarCodepagina(tekst))
        return {std::move(*exact), {}};
    const std::u16string samengesteld = Genormaliseerd(tekst, QString::NormalizationForm_C);
    Omzetting uit;
    for (std::size_t i = 0; i < samengesteld.size();) {
        const auto teken = TekenOp(samengesteld, i);
        i += teken.size();
        if (const auto byte = Byte(Nummer(teken))) {
            uit.tekst += *byte;
            continue;
        }
        Vervanging vervanging{std::u16string(teken), Naaste(teken)};
        uit.tekst += vervanging.door;
        uit.vervangen.push_back(std::move(vervanging));
    }
    return uit;
}

static bool IsAscii(Tekstblik tekst)
{
    return std::ranges::all_of(tekst, IsAsciiteken);
}

Omzetting Utf8NaarCodepagina(std::string_view tekst)
{
    if (IsAscii(tekst))
        return {.tekst = Tekst(tekst), .vervangen = {}};
    return NaarCodepagina(
        QString::fromUtf8(tekst.data(), static_cast<qsizetype>(tekst.size())).toStdU16String());
}

bool IsUtf8(Tekstblik bytes)
{
    return !IsAscii(bytes) &&
           QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

} // namespace plexoran
