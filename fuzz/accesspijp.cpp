// Any bytes as what comes through the pipes of the child that reads databases: an answer is
// believed only when it is, to the byte, one that the child could have written, however it was cut;
// a question likewise.
#include "platform/accesspijp.h"
#include "eis.h"

using namespace plexoran;

namespace {

constexpr std::size_t kolommen = 2;

/// What was read, written down again.
struct Gelezen {
    bool goed = true;
    bool klaar = false;
    std::string opgeschreven;
};

Gelezen Lees(std::string_view bytes, std::size_t stuk)
{
    Antwoordlezer lezer(kolommen);
    Gelezen uit;
    std::string rijen;
    std::uint32_t aantal = 0;
    for (std::size_t i = 0; uit.goed && i < bytes.size(); i += stuk) {
        uit.goed = lezer.Neem(bytes.substr(i, stuk));
        for (const Ruwerij& rij : lezer.NeemRijen()) {
            Eis(!uit.goed || rij.size() == kolommen, "elke rij heeft haar kolommen");
            if (rij.size() == kolommen)
                VoegRijberichtToe(rijen, rij);
            ++aantal;
        }
        Eis(lezer.Gelezen() == aantal || !uit.goed, "elke rij wordt geteld");
        Eis(aantal <= lezer.Geheel(), "nooit meer rijen dan de tabel zegt");
    }
    uit.klaar = uit.goed && lezer.Klaar();
    Eis(!uit.klaar || !lezer.Melding(), "een fout is geen einde");
    if (uit.klaar)
        uit.opgeschreven = Tabelbericht(aantal) + rijen + Eindbericht(aantal);
    return uit;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte)
{
    const Tekst bytes = AlsTekst(data, lengte);
    const Gelezen ineens = Lees(bytes, bytes.size() + 1);
    const Gelezen perByte = Lees(bytes, 1);
    const Gelezen inStukken = Lees(bytes, 7);
    Eis(ineens.klaar == perByte.klaar && ineens.klaar == inStukken.klaar, "hoe het ook komt");
    Eis(ineens.goed == perByte.goed && ineens.goed == inStukken.goed, "goed of niet goed");
    if (ineens.klaar) {
        Eis(ineens.opgeschreven == bytes, "een antwoord is precies wat een kind schrijft");
        Eis(perByte.opgeschreven == bytes && inStukken.opgeschreven == bytes, "in stukken ook");
        Eis(!Lees(bytes + "x", 4096).klaar, "na het einde komt niets");
        Eis(!Lees(bytes.substr(0, bytes.size() - 1), 4096).klaar, "het einde moet er zijn");
    }
    if (const auto vraag = LeesVraag(bytes))
        Eis(SchrijfVraag(*vraag) == bytes, "een vraag is precies wat het programma schrijft");
    return 0;
}
