#include "register/itemmenging.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "platform/tekst/regels.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

/// An item of a file and what stands between it and the next.
struct Stuk {
    Tekst
        sleutel; ///< what it is found by; of those with the same one, the how-manieth it is counts
    Tekstblik tekst;
    Tekstblik waarde; ///< what is compared
    Tekstblik einde;
};
using Stukken = std::vector<Stuk>;

constexpr Tekstblik Regeleinde = "\r\n";
constexpr std::size_t Paarhelft = 6; ///< a key; a pair is two with a "-" between them

/// The item in each of the three states, null where it is not.
struct Drie {
    const Stuk* basis = nullptr;
    const Stuk* ons = nullptr;
    const Stuk* ander = nullptr;
};

/// A kind of file. `paren`: its items are two players of six characters, each in one item only.
struct Soort {
    std::optional<Stukken> (*uit)(Tekstblik inhoud); ///< nothing where the text is damaged
    Tekstblik scheiding;
    bool paren = false;
};

bool Gelijk(const Stuk* een, const Stuk* ander)
{
    return een == nullptr || ander == nullptr ? een == ander : een->waarde == ander->waarde;
}

Tekstblik Links(Tekstblik paar)
{
    return paar.substr(0, Paarhelft);
}

Tekstblik Rechts(Tekstblik paar)
{
    return paar.substr(paar.size() - Paarhelft);
}

class Itemmenger {
  public:
    Itemmenger(const Soort& soort, const Stukken& basis, const Stukken& ons, const Stukken& ander)
        : soort_(soort), vanOns_(Zoek(ons, &Drie::ons)), vanAnder_(Zoek(ander, &Drie::ander))
    {
        Zoek(basis, &Drie::basis);
    }

    Itemmenging Meng()
    {
        uit_.inhoud.emplace();
        for (const Drie* drie : vanAnder_)
            NeemVanAnder(*drie);
        for (const Drie* drie : vanOns_) {
            if (drie->ander == nullptr)
                NeemOnze(*drie);
        }
        return std::move(uit_);
    }

  private:
    std::vector<const Drie*> Zoek(const Stukken& stukken, const Stuk* Drie::*stand)
    {
        std::vector<const Drie*> uit;
        std::unordered_map<Tekstblik, int> keren;
        for (const Stuk& stuk : stukken) {
            Drie& drie = opSleutel_[stuk.sleutel + '#' + std::to_string(++keren[stuk.sleutel])];
            drie.*stand = &stuk;
            uit.push_back(&drie);
        }
        return uit;
    }

    void NeemVanAnder(const Drie& drie)
    {
        const auto& [basis, ons, ander] = drie;
        if (Gelijk(basis, ander) && !Gelijk(basis, ons)) {
            if (ons != nullptr)
                Schrijf(ons->tekst, ander->einde);
            return;
        }
        if (!Gelijk(basis, ander) && !Gelijk(ons, ander)) {
            if (Gelijk(basis, ons))
                uit_.overgenomen.emplace_back(ander->tekst);
            else
                uit_.botsingen.emplace_back((ons != nullptr ? ons : ander)->tekst);
        }
        Schrijf(ander->tekst, ander->einde);
        if (soort_.paren && ons == nullptr) {
            bezet_.insert(Links(ander->tekst));
            bezet_.insert(Rechts(ander->tekst));
        }
    }

    /// One that the other program does not have.
    void NeemOnze(const Drie& drie)
    {
        const Tekstblik tekst = drie.ons->tekst;
        if (drie.basis != nullptr && Gelijk(drie.basis, drie.ons))
            uit_.overgenomen.emplace_back(tekst);
        else if (drie.basis != nullptr || IsBezet(tekst))
            uit_.botsingen.emplace_back(tekst);
        else
            Schrijf(tekst, soort_.scheiding);
    }

    [[nodiscard]] bool IsBezet(Tekstblik tekst) const
    {
        return soort_.paren && (bezet_.contains(Links(tekst)) || bezet_.contains(Rechts(tekst)));
    }

    void Schrijf(Tekstblik tekst, Tekstblik einde)
    {
        if (open_)
            *uit_.inhoud += soort_.scheiding;
        uit_.inhoud->append(tekst).append(einde);
        open_ = einde.empty();
    }

    const Soort& soort_;
    std::unordered_map<Tekst, Drie> opSleutel_;
    std::vector<const Drie*> vanOns_;
    std::vector<const Drie*> vanAnder_;
    std::unordered_set<Tekstblik> bezet_; ///< players whom the other program paired
    Itemmenging uit_;
    bool open_ = false; ///< nothing parts what was written from what follows
};

// The items of each kind of file. A key of an item that stands there as it is, begins with "=".

Stuk Los(Tekstblik tekst)
{
    return {'=' + Tekst(tekst), tekst, tekst, {}};
}

/// Views into `inhoud`, in their order, which leave nothing out but what parts them.
Stukken MetEinden(Tekstblik inhoud, Stukken stukken)
{
    const auto plek = [&](const Stuk& stuk) {
        return static_cast<std::size_t>(stuk.tekst.data() - inhoud.data());
    };
    for (std::size_t i = 0; i < stukken.size(); ++i) {
        const std::size_t eind = plek(stukken[i]) + stukken[i].tekst.size();
        const std::size_t volgend = i + 1 < stukken.size() ? plek(stukken[i + 1]) : inhoud.size();
        stukken[i].einde = inhoud.substr(eind, volgend - eind);
    }
    return stukken;
}

std::optional<Stukken> Groepstukken(Tekstblik inhoud)
{
    Stukken uit;
    int nummer = 0;
    for (const Tekstblik item : Items(inhoud)) {
        if (!item.starts_with("Gr") || nummer == AantalGroepen) {
            uit.push_back(Los(item));
            continue;
        }
        const Tekstblik naam = item.substr(std::min(item.size(), LengteGroepscode));
        uit.push_back({std::to_string(++nummer), item, naam, {}});
    }
    return MetEinden(inhoud, std::move(uit));
}

std::optional<Stukken> Instelstukken(Tekstblik inhoud)
{
    Stukken uit;
    for (const Tekstblik item : Items(inhoud)) {
        const auto is = item.find('=');
        uit.push_back(Los(item));
        if (is != Tekstblik::npos)
            uit.back().sleutel = Hoofdletters(ZonderSpaties(item.substr(0, is)));
    }
    return MetEinden(inhoud, std::move(uit));
}

/// The position code of a pair is three characters.
std::optional<Stukken> Zittingstukken(Tekstblik inhoud)
{
    constexpr std::size_t lengteCode = 3;
    Stukken uit;
    for (const Tekstblik regel : Regels(inhoud)) {
        for (const Item& item : ItemsVan(regel)) {
            const Tekstblik paar = ZonderSpaties(item.tekst);
            uit.push_back({Tekst(paar.substr(0, lengteCode)), item.rauw, paar, {}});
        }
    }
    return MetEinden(inhoud, std::move(uit));
}

/// The third field of a record is its position code; more than one may have it.
std::optional<Stukken> Uitslagstukken(Tekstblik inhoud)
{
    constexpr std::size_t velden = 7;
    Stukken uit;
    for (const Tekstblik regel : Regels(inhoud)) {
        uit.push_back(Los(regel));
        const auto items = ItemsVan(regel, velden + 1);
        if (items.size() == velden) {
            const auto begin = static_cast<std::size_t>(items[3].rauw.data() - regel.data());
            uit.back().sleutel = regel.substr(0, begin);
        }
    }
    return MetEinden(inhoud, std::move(uit));
}

/// Each line is an item.
std::optional<Stukken> Regelstukken(Tekstblik inhoud)
{
    Stukken uit;
    for (const Tekstblik regel : Regels(inhoud))
        uit.push_back(Los(regel));
    return MetEinden(inhoud, std::move(uit));
}

/// Which of its two players comes first does not make another pair.
std::optional<Stukken> Paarstukken(Tekstblik inhoud)
{
    const auto regels = Regels(inhoud);
    if (regels.size() > 1)
        return std::nullopt;
    Stukken uit;
    Tekstblik rest = regels.empty() ? Tekstblik() : regels.front();
    while (!rest.empty()) {
        const auto hekje = std::min(rest.find('#'), rest.size() - 1);
        const Tekstblik paar = rest.substr(0, rest[hekje] == '#' ? hekje : rest.size());
        rest.remove_prefix(hekje + 1);
        if (paar.empty())
            continue;
        if (paar.size() != 2 * Paarhelft + 1 || paar[Paarhelft] != '-')
            return std::nullopt;
        const auto [laagste, hoogste] = std::minmax({Links(paar), Rechts(paar)});
        uit.push_back({Tekst(laagste).append(hoogste), paar, paar, "#"});
    }
    return uit;
}
/// A name that is missing is not taken for one that was cleared: it stays what it was.
void VulGroepenAan(Stukken& stukken, const Stukken& waarmee)
{
    std::unordered_set<Tekstblik> aanwezig;
    for (const Stuk& stuk : stukken)
        aanwezig.insert(stuk.sleutel);
    Stukken extra;
    for (const Stuk& stuk : waarmee) {
        if (!stuk.sleutel.starts_with('=') && !aanwezig.contains(stuk.sleutel))
            extra.push_back({stuk.sleutel, stuk.tekst, stuk.waarde, Regeleinde});
    }
    stukken.insert(stukken.end(), extra.begin(), extra.end());
}

const Soort* SoortVan(Tekstblik pad)
{
    static constexpr Soort groepen{Groepstukken, Regeleinde};
    static constexpr Soort instellingen{Instelstukken, Regeleinde};
    static constexpr Soort zitting{Zittingstukken, Regeleinde};
    static constexpr Soort uitslag{Uitslagstukken, Regeleinde};
    static constexpr Soort regels{Regelstukken, Regeleinde};
    static constexpr Soort paren{Paarstukken, "#", true};
    const Tekst heel = '\\' + Vervang(Hoofdletters(pad), '/', '\\');
    const Tekstblik naam = Tekstblik(heel).substr(heel.rfind('\\') + 1);
    const Tekstblik map = Tekstblik(heel).substr(0, heel.size() - naam.size());
    if (naam == "RVDGROEPEN.TXT")
        return &groepen;
    if (naam == "PLEXO.INI")
        return &instellingen;
    if (naam == "SPELERS.TXT")
        return &zitting;
    if (naam == "GEENDUBBELEN.TXT")
        return &regels;
    if (naam.starts_with("PERCZIT") && naam.ends_with(".TXT"))
        return &uitslag;
    const bool inParenmap = map.ends_with("\\PARENMAP\\");
    return inParenmap && naam.ends_with(".TXT") ? &paren : nullptr;
}

std::optional<Itemmenging> MengSoort(const Soort& soort, Tekstblik basis, Tekstblik ons,
                                     Tekstblik ander)
{
    auto basisstukken = soort.uit(basis);
    auto onsstukken = soort.uit(ons);
    auto anderstukken = soort.uit(ander);
    if (!basisstukken || !onsstukken || !anderstukken)
        return std::nullopt;
    Tekst codes; // of the groups that have no name in any text
    if (soort.uit == Groepstukken) {
        codes = GroepenTekst(Groepen());
        VulGroepenAan(*basisstukken, *Groepstukken(codes));
        VulGroepenAan(*onsstukken, *basisstukken);
        VulGroepenAan(*anderstukken, *basisstukken);
    }
    Itemmenging uit = Itemmenger(soort, *basisstukken, *onsstukken, *anderstukken).Meng();
    if (soort.paren)
        *uit.inhoud += ander.empty() ? Regeleinde : ander.substr(Regels(ander).front().size());
    return uit;
}

} // namespace

std::optional<Itemmenging> MengTekst(Tekstblik pad, const std::optional<Tekst>& basis,
                                     const std::optional<Tekst>& ons,
                                     const std::optional<Tekst>& ander)
{
    if (ander == basis || ons == ander)
        return Itemmenging{.inhoud = ons, .overgenomen = {}, .botsingen = {}};
    const Soort* soort = SoortVan(pad);
    auto uit = soort == nullptr ? std::nullopt
                                : MengSoort(*soort, basis.value_or(Tekst()), ons.value_or(Tekst()),
                                            ander.value_or(Tekst()));
    if (ons == basis) {
        if (!uit)
            uit.emplace();
        uit->inhoud = ander;
    } else if (uit && (!ons || !ander) && IsLeeg(*uit->inhoud)) {
        uit->inhoud.reset();
    }
    return uit;
}

} // namespace plexoran
