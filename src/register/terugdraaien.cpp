// Looking up what the history holds, and undoing it without harm to what was changed since.
#include <algorithm>
#include <limits>
#include <map>
#include <set>

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

std::optional<Handeling> LeesHandeling(Schijf& schijf, const Mappen& mappen, const Tekst& id)
{
    const Tekst naam = id.substr(0, id.rfind(' '));
    const auto inhoud = schijf.LeesBestand(Samen(mappen.Geschiedenismap(), naam));
    auto handelingen = HandelingenUit(inhoud.value_or(Tekst()), naam);
    const auto plek = std::find_if(handelingen.begin(), handelingen.end(),
                                   [&](const Handeling& een) { return een.id == id; });
    return plek == handelingen.end() ? std::nullopt : std::optional(std::move(*plek));
}

void LoopTerug(Schijf& schijf, const Mappen& mappen, const std::function<bool(Handeling&)>& neem)
{
    const Pad map = mappen.Geschiedenismap();
    auto namen = schijf.Bestanden(map).value_or(std::vector<Tekst>());
    std::sort(namen.begin(), namen.end(), std::greater());
    for (const Tekst& naam : namen) {
        const auto inhoud = schijf.LeesBestand(Samen(map, naam));
        if (!inhoud || !naam.ends_with(".txt"))
            continue;
        auto handelingen = HandelingenUit(*inhoud, naam);
        for (auto handeling = handelingen.rbegin(); handeling != handelingen.rend(); ++handeling) {
            if (!neem(*handeling))
                return;
        }
    }
}

std::optional<Handeling> Geschiedenis::Laatste(Handelingsoort soort) const
{
    std::optional<Handeling> uit;
    if (mappen_ == nullptr)
        return uit;
    std::set<Tekst> geweest;  ///< what was undone or done again after what comes now
    std::set<Tekst> ongedaan; ///< and is undone still
    Tekst laatste;            ///< the last of those
    LoopTerug(schijf_, *mappen_, [&](Handeling& handeling) {
        if (handeling.computer != computer_ || handeling.gebruiker != gebruiker_)
            return true;
        if (handeling.soort == Handelingsoort::Gewoon) {
            const bool gezocht = soort == Handelingsoort::Opnieuw
                                     ? handeling.id == laatste
                                     : !ongedaan.contains(handeling.id);
            if (gezocht)
                uit = std::move(handeling);
            return !gezocht && (soort == Handelingsoort::Ongedaan || !laatste.empty());
        }
        if (geweest.insert(handeling.hoort).second && handeling.soort == Handelingsoort::Ongedaan) {
            ongedaan.insert(handeling.hoort);
            if (laatste.empty())
                laatste = handeling.hoort;
        }
        return true;
    });
    return uit;
}

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
