// Any bytes as a zip, and as the name of a copy: what is unpacked stays in its folder and within
// its bounds, and packed again it comes back the same; a name of ours is read as it was made.
#include <algorithm>
#include <vector>

#include "eis.h"
#include "platform/bronnen/zip.h"
#include "register/kopienaam.h"

using namespace plexoran;

namespace {

void EisBinnen(const Pad& naam)
{
    for (std::size_t begin = 0; begin <= naam.size();) {
        const auto eind = std::min(naam.find('\\', begin), naam.size());
        const Tekst deel = naam.substr(begin, eind - begin);
        Eis(!deel.empty() && IsKaleNaam(deel), "elk deel van een naam blijft in zijn map");
        begin = eind + 1;
    }
}

void EisZip(const Tekst& invoer)
{
    constexpr std::size_t hoogstens = std::size_t{1} << 20U;
    (void)Toelichting(invoer);
    const auto delen = Uitgepakt(invoer, hoogstens);
    if (!delen) {
        Eis(delen.error().soort == Foutsoort::Beschadigd, "een weigering noemt de schade");
        return;
    }
    std::size_t bytes = 0;
    for (const Zipdeel& deel : *delen) {
        EisBinnen(deel.naam);
        bytes += deel.inhoud.size();
    }
    Eis(bytes <= hoogstens, "niet meer dan de grens");
    const auto weer = ZipVan(*delen, "toelichting");
    if (!delen->empty() && weer) // names may be the same in a zip of somebody else
        Eis(Uitgepakt(*weer, hoogstens) == *delen, "ingepakt en weer uitgepakt");
}

void EisNaam(const Tekst& naam)
{
    const auto kopie = KopienaamUit(naam);
    if (!kopie)
        return;
    Eis(kopie->naam == naam && naam.find(kopie->moment) != Tekst::npos, "de naam blijft heel");
    Eis(Dagnummer(Tekstblik(kopie->moment).substr(0, 10)).has_value(), "op een dag die bestaat");
    Eis(Uitgediend(std::vector{naam}, "9999-12-31").size() == (kopie->IsZip() ? 0U : 1U),
        "de laatste reservekopie blijft, een oude kopie gaat");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst invoer = AlsTekst(data, lengte);
    EisZip(invoer);
    EisNaam(invoer);
    return 0;
}
