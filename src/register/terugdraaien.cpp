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

/// The file that holds an entry.
Tekst Bestandsnaam(const Tekst& id)
{
    return id.substr(0, id.rfind(' '));
}

/// Whether the file was written last before that time; a day at the least, since clocks differ.
bool IsVanVoor(const Tekst& tijd, Schijf& schijf, const Pad& pad)
{
    constexpr std::int64_t dag = 86'400'000'000'000;
    const auto stempel = schijf.NeemStempel(pad);
    return stempel && Tijdtekst("yyyy-MM-dd HH:mm:ss", stempel->tijd + dag) < tijd;
}

} // namespace

std::optional<Handeling> LeesHandeling(Schijf& schijf, const Mappen& mappen, const Tekst& id)
{
    const Tekst naam = Bestandsnaam(id);
    const auto inhoud = schijf.LeesBestand(Samen(mappen.Geschiedenismap(), naam));
    auto handelingen = HandelingenUit(inhoud.value_or(Tekst()), naam);
    const auto plek = std::find_if(handelingen.begin(), handelingen.end(),
                                   [&](const Handeling& een) { return een.id == id; });
    return plek == handelingen.end() ? std::nullopt : std::optional(std::move(*plek));
}

void LoopTerug(Schijf& schijf, const Mappen& mappen, const std::function<bool(Handeling&)>& neem,
               const Tekst& sinds)
{
    const Pad map = mappen.Geschiedenismap();
    auto namen = schijf.Bestanden(map).value_or(std::vector<Tekst>());
    std::sort(namen.begin(), namen.end(), std::greater());
    for (const Tekst& naam : namen) {
        const Pad pad = Samen(map, naam);
        if (!naam.ends_with(".txt") || (!sinds.empty() && IsVanVoor(sinds, schijf, pad)))
            continue;
        const auto inhoud = schijf.LeesBestand(pad);
        if (!inhoud)
            continue;
        auto handelingen = HandelingenUit(*inhoud, naam);
        for (auto handeling = handelingen.rbegin(); handeling != handelingen.rend(); ++handeling) {
            if (!neem(*handeling))
                return;
        }
    }
}

/// Whoever undid it or did it again last: that may stand in the file of an earlier start.
bool Geschiedenis::IsOngedaan(const Handeling& handeling) const
{
    const Pad pad = Samen(mappen_->Geschiedenismap(), Bestandsnaam(handeling.id));
    const bool telbaar = !IsVanVoor(handeling.tijd, schijf_, pad); // else the disk's clock is wrong
    Handeling laatste;
    LoopTerug(
        schijf_, *mappen_,
        [&](Handeling& een) {
            if (een.hoort == handeling.id && een.tijd > laatste.tijd)
                laatste = std::move(een);
            return true;
        },
        telbaar ? handeling.tijd : Tekst());
    return laatste.soort == Handelingsoort::Ongedaan;
}

std::optional<Handeling> Geschiedenis::Laatste(Handelingsoort soort) const
{
    std::optional<Handeling> uit;
    if (mappen_ == nullptr)
        return uit;
    const bool opnieuw = soort == Handelingsoort::Opnieuw;
    std::set<Tekst> geweest;  ///< what was undone or done again after what comes now
    std::set<Tekst> ongedaan; ///< and is undone still
    Tekst laatste;            ///< the last of those that was undone here
    LoopTerug(schijf_, *mappen_, [&](Handeling& handeling) {
        const bool eigen = handeling.computer == computer_ && handeling.gebruiker == gebruiker_;
        if (handeling.soort == Handelingsoort::Gewoon) {
            if (!eigen)
                return true;
            const bool gezocht =
                opnieuw ? handeling.id == laatste : !ongedaan.contains(handeling.id);
            if (gezocht && IsOngedaan(handeling) == opnieuw)
                uit = std::move(handeling);
            return !uit && (!opnieuw || (!gezocht && !laatste.empty()));
        }
        if (geweest.insert(handeling.hoort).second && handeling.soort == Handelingsoort::Ongedaan) {
            ongedaan.insert(handeling.hoort);
            if (eigen && laatste.empty())
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

Menging DraaiSpelersTerug(const Register& nu, const Wijziging& wijziging, Handelingsoort soort,
                          const Paarplaatsen& blijven)
{
    const auto [vanTekst, naarTekst] = VanNaar(wijziging, soort);
    const Spelertabel van = TabelUit(vanTekst);
    Spelertabel naar = TabelUit(naarTekst);
    for (int rij = 1; rij <= van.Rijen(); ++rij) {
        if (blijven.contains(Tekst(van.Cel(rij, Kolom::Key))))
            naar.VoegToe(van.Velden(rij));
    }
    // What comes back has its own key: it is nobody else's, however high it is.
    return Meng({van, std::numeric_limits<std::int32_t>::max()}, {naar, 0}, {nu.tabel, nu.HKEY});
}

Paarplaatsen ZonderSpelerInParen(Schijf& schijf, const Mappen& mappen, const Spelertabel& eerst,
                                 const Spelertabel& dan)
{
    Paarplaatsen uit;
    const Sleutelwijzer over(dan);
    std::vector<Tekst> weg;
    for (int rij = 1; rij <= eerst.Rijen(); ++rij) {
        if (const Tekstblik key = eerst.Cel(rij, Kolom::Key); over.Rij(key) == 0)
            weg.emplace_back(key);
    }
    if (weg.empty())
        return uit;
    for (const Tekst& naam : Parenbestanden(schijf, mappen).value_or(std::vector<Tekst>())) {
        const auto paren = LeesBegrensd(schijf, Samen(mappen.Parenmap(), naam));
        for (const Tekst& key : weg) {
            if (paren && paren->find(key) != Tekst::npos)
                uit.emplace(key, naam);
        }
    }
    return uit;
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
