// Any text as a member CSV: every line is taken, named as left out, or ends the reading; an import
// line has its commas, and the boxes only empty fields.
#include <algorithm>

#include "eis.h"
#include "federation/ledencsv.h"
#include "platform/tekst/regels.h"

using namespace plexoran;

namespace {

constexpr std::ptrdiff_t Kommas = Importveld::Aantal - 1;

struct Telling {
    std::size_t gewoon = 0;
    std::size_t metIsTeken = 0;
};

/// The lines with something on them, up to the one that ended the reading.
Telling Tel(const Tekst& inhoud, int teKorteRegel)
{
    Telling telling;
    int nummer = 0;
    for (const Tekstblik regel : Regels(inhoud)) {
        if (++nummer == teKorteRegel)
            break;
        if (regel.find('=') != Tekstblik::npos)
            ++telling.metIsTeken;
        else if (!IsBlanco(regel))
            ++telling.gewoon;
    }
    return telling;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst inhoud = AlsTekst(data, lengte);
    const auto alles = LeesLedencsv(inhoud, {});
    Eis(alles.has_value() == (inhoud.find('\0') == Tekst::npos), "alleen een NUL is een fout");
    if (!alles)
        return 0;
    const Telling telling = Tel(inhoud, alles->teKorteRegel);
    Eis(alles->lstN1.size() == telling.gewoon, "elke regel is een lid");
    Eis(alles->metIsTeken.size() == telling.metIsTeken, "elke kopregel is genoemd");
    for (const Tekstblik regel : alles->lstN1)
        Eis(std::count(regel.begin(), regel.end(), ',') >= Kommas, "elf velden");

    const auto kaal =
        LeesLedencsv(inhoud, {.naw = false, .tel = false, .email = false, .mv = false});
    Eis(kaal.has_value() && kaal->lstN1.size() >= alles->lstN1.size(), "minder kolommen nodig");
    for (std::size_t i = 0; i < alles->lstN1.size(); ++i) {
        const Tekstblik regel = kaal->lstN1[i];
        const bool gelijk =
            std::count(regel.begin(), regel.end(), ',') != Kommas ||
            SplitsImportregel(regel)[10] == Tekstblik(regel).substr(regel.rfind(',') + 1);
        Eis(gelijk, "het nummer staat achteraan");
    }
    return 0;
}
