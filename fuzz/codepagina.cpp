// Bytes to Unicode and back are the same bytes; any Unicode, broken pairs too, becomes bytes that
// stay what they are.
#include <cstring>

#include "eis.h"
#include "platform/tekst/codepagina.h"

using namespace plexoran;

namespace {

/// The plainest UTF-8 decoder for the three lengths that occur.
std::u16string UitUtf8(const std::string& tekst)
{
    std::u16string uit;
    for (std::size_t i = 0; i < tekst.size();) {
        const auto byte = [&](std::size_t n) -> unsigned {
            Eis(i + n < tekst.size(), "UTF-8 is afgebroken");
            return static_cast<unsigned char>(tekst[i + n]);
        };
        const unsigned kop = byte(0);
        const std::size_t lengte = kop < 0x80 ? 1 : kop < 0xE0 ? 2 : 3;
        unsigned teken = lengte == 1 ? kop : lengte == 2 ? kop & 0x1FU : kop & 0x0FU;
        for (std::size_t n = 1; n < lengte; ++n) {
            Eis((byte(n) & 0xC0U) == 0x80U, "UTF-8 zonder vervolg");
            teken = (teken << 6U) | (byte(n) & 0x3FU);
        }
        uit += static_cast<char16_t>(teken);
        i += lengte;
    }
    return uit;
}

void EisBytesTerug(const Tekst& tekst)
{
    const std::u16string breed = NaarUtf16(tekst);
    Eis(ExactNaarCodepagina(breed) == tekst, "bytes komen terug");
    const Omzetting omzetting = NaarCodepagina(breed);
    Eis(omzetting.tekst == tekst && omzetting.vervangen.empty(), "niets wordt vervangen");
    Eis(UitUtf8(NaarUtf8(tekst)) == breed, "UTF-8 is dezelfde tekst");
}

/// The characters that are question marks of another size or number.
bool LijktOpVraagteken(const std::u16string& teken)
{
    return std::u16string_view(u"\u2047\u2048\u2049\uFE16\uFE56\uFF1F").find(teken) !=
           std::u16string_view::npos;
}

void EisOmzetting(const std::u16string& breed)
{
    const Omzetting omzetting = NaarCodepagina(breed);
    EisBytesTerug(omzetting.tekst);
    const auto exact = ExactNaarCodepagina(breed);
    if (exact)
        Eis(*exact == omzetting.tekst && omzetting.vervangen.empty(), "wat past blijft");
    for (const auto& [teken, door] : omzetting.vervangen) {
        Eis(teken.size() == 1 || teken.size() == 2, "een teken tegelijk");
        Eis(!ExactNaarCodepagina(teken), "alleen wat niet past wordt vervangen");
        Eis(door.find('?') == Tekst::npos || LijktOpVraagteken(teken),
            "een vraagteken uit het niets");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    EisBytesTerug(AlsTekst(data, lengte));
    std::u16string breed(lengte / 2, u'\0');
    if (!breed.empty())
        std::memcpy(breed.data(), data, breed.size() * 2);
    EisOmzetting(breed);
    return 0;
}
