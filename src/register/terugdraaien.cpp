// Undoing what the history holds, without harm to what was changed since.
#include <limits>
#include <map>

#include "register/geschiedenis.h"
#include "register/itemmenging.h"

namespace plexoran {
namespace {

Spelertabel TabelUit(const std::optional<Tekst>& tekst)
{
    return SpelersUit(tekst.value_or(Tekst())).tabel.value_or(Spelertabel());
}

/// As the command left the file, or found it; and as it is to become.
std::pair<const std::optional<Tekst>&, const std::optional<Tekst>&>
VanNaar(const Wijziging& wijziging, Handelingsoort soort)
{
    if (soort == Handelingsoort::Ongedaan)
        return {wijziging.na, wijziging.voor};
    return {wijziging.voor, wijziging.na};
}

} // namespace

std::vector<Verschil> SpelersIn(const Wijziging& wijziging)
{
    std::map<Tekst, Verschil> spelers;
    for (const auto& [tekst, kant] : {std::pair(&wijziging.voor, &Verschil::links),
                                      std::pair(&wijziging.na, &Verschil::rechts)}) {
        const Spelertabel tabel = TabelUit(*tekst);
        for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
            Rijvelden velden = tabel.Velden(rij);
            velden[Index(Kolom::Nr)].clear(); // is only its place
            Verschil& verschil = spelers[velden[Index(Kolom::Key)]];
            verschil.key = velden[Index(Kolom::Key)];
            verschil.*kant = std::move(velden);
        }
    }
    std::vector<Verschil> uit;
    for (auto& [key, verschil] : spelers) {
        if (verschil.links != verschil.rechts)
            uit.push_back(std::move(verschil));
    }
    return uit;
}

Menging DraaiSpelersTerug(const Register& nu, const Wijziging& wijziging, Handelingsoort soort)
{
    const auto [vanTekst, naarTekst] = VanNaar(wijziging, soort);
    const Spelertabel van = TabelUit(vanTekst);
    const Spelertabel naar = TabelUit(naarTekst);
    // What comes back has its own key: it is nobody else's, however high it is.
    return Meng({van, std::numeric_limits<std::int32_t>::max()}, {naar, 0}, {nu.tabel, nu.HKEY});
}

Uitkomst<std::vector<Tekst>> DraaiBestandTerug(Schijf& schijf, const Mappen& mappen,
                                               const Wijziging& wijziging, Handelingsoort soort)
{
    const auto [van, naar] = VanNaar(wijziging, soort);
    const Pad pad = wijziging.PadIn(mappen);
    const auto nu = AlsErIs(schijf.LeesBestand(pad));
    if (!nu)
        return Mislukt(nu);
    auto menging = MengTekst(pad, van, naar, *nu);
    if (!menging)
        return std::vector<Tekst>{wijziging.Naam()};
    for (Tekst& item : menging->botsingen)
        item = wijziging.Naam() + ": " + item;
    if (menging->inhoud == *nu)
        return std::move(menging->botsingen);
    const auto gedaan = menging->inhoud ? VervangOngewijzigd(schijf, pad, *menging->inhoud, *nu)
                                        : VerwijderBlijvend(schijf, pad);
    return gedaan.map([&] { return std::move(menging->botsingen); });
}

} // namespace plexoran
