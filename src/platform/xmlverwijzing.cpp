#include "platform/xmlverwijzing.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace plexoran {
namespace {

constexpr std::size_t nergens = std::string_view::npos;

bool IsBekendGetal(std::string_view cijfers)
{
    const bool zestientallig = cijfers.starts_with('x');
    cijfers.remove_prefix(zestientallig ? 1 : 0);
    unsigned teken = 0;
    const char* const eind = cijfers.data() + cijfers.size();
    const auto [tot, fout] = std::from_chars(cijfers.data(), eind, teken, zestientallig ? 16 : 10);
    return fout == std::errc() && tot == eind && MagInXml(teken);
}

/// Whether the text behind a "&" is a reference that the parser puts right.
bool IsBekend(std::string_view rest)
{
    constexpr std::array<std::string_view, 5> namen = {"amp", "lt", "gt", "quot", "apos"};
    constexpr std::size_t langste = 32; // leading zeros and all
    const auto eind = rest.substr(0, langste).find(';');
    if (eind == nergens)
        return false;
    const std::string_view naam = rest.substr(0, eind);
    if (naam.starts_with('#'))
        return IsBekendGetal(naam.substr(1));
    return std::find(namen.begin(), namen.end(), naam) != namen.end();
}

/// Walks over the sections in which a "&" is no reference. Asked for places in rising order, it
/// looks at every byte once.
class Letterlijk {
  public:
    explicit Letterlijk(std::string_view tekst) : tekst_(tekst) {}

    bool Bevat(std::size_t plaats)
    {
        while (eind_ <= plaats) {
            begin_ = tekst_.find('<', eind_);
            if (begin_ == nergens || begin_ >= plaats) {
                eind_ = std::min(begin_, plaats); // not past the next section
                return false;
            }
            eind_ = EindVanSectie();
        }
        return plaats > begin_;
    }

  private:
    /// Behind the section that begins at `begin_`; behind its first character when it is none.
    [[nodiscard]] std::size_t EindVanSectie() const
    {
        struct Sectie {
            std::string_view begin;
            std::string_view eind;
        };
        constexpr std::array<Sectie, 3> secties = {Sectie{"<!--", "-->"},
                                                   Sectie{"<![CDATA[", "]]>"}, Sectie{"<?", "?>"}};
        for (const auto& [begin, eind] : secties) {
            if (!tekst_.substr(begin_).starts_with(begin))
                continue;
            const auto plaats = tekst_.find(eind, begin_ + begin.size());
            return plaats == nergens ? nergens : plaats + eind.size();
        }
        return begin_ + 1;
    }

    std::string_view tekst_;
    std::size_t begin_ = 0;
    std::size_t eind_ = 0;
};

} // namespace

std::optional<Xmlfout> OnbekendeVerwijzing(std::string_view utf8)
{
    Letterlijk letterlijk(utf8);
    for (auto plaats = utf8.find('&'); plaats != nergens; plaats = utf8.find('&', plaats + 1)) {
        if (IsBekend(utf8.substr(plaats + 1)) || letterlijk.Bevat(plaats))
            continue;
        constexpr std::size_t getoond = 32;
        const std::string_view rest = utf8.substr(plaats, getoond);
        std::string naam(rest.substr(0, rest.find_first_of("; \t\r\n<", 1)));
        return Xmlfout{plaats, "de verwijzing is onbekend: " + std::move(naam)};
    }
    return std::nullopt;
}

} // namespace plexoran
