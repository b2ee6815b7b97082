#include "federation/ledentekst.h"

namespace plexoran {

Uitkomst<Tekst> LeesLedentekst(Schijf& schijf, const Pad& bestand)
{
    constexpr std::uint64_t grootste = std::uint64_t{512} << 20U;
    const auto stempel = schijf.NeemStempel(bestand);
    if (!stempel)
        return tl::unexpected(stempel.error());
    if (stempel->grootte > grootste)
        return tl::unexpected(Fout{.soort = Foutsoort::Beschadigd,
                                   .bestand = schijf.Toonpad(bestand),
                                   .regel = 0,
                                   .systeem = "het bestand is te groot"});
    return schijf.LeesBestand(bestand);
}

} // namespace plexoran
