#include "register/mengen.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

/// What is compared: the number of a row is only its place, its key is how it is found.
constexpr std::size_t eersteVeld = Index(Kolom::Groep);
constexpr int AanHetEind = std::numeric_limits<int>::max();

/// A row of the outcome, which stands on or behind a row of the other program.
struct Plek {
    int bij;
    bool erna;
    Rijblikken cellen;
};

/// How many rows with the same contents there are when both sides have added and removed theirs.
int Blijft(const Drierij& aantal)
{
    if (aantal.ons == aantal.ander)
        return aantal.ons;
    return std::max(0, aantal.ons + aantal.ander - aantal.basis);
}

bool Gelijk(const Rijblikken& een, const Rijblikken& ander)
{
    return std::equal(een.begin() + eersteVeld, een.end(), ander.begin() + eersteVeld);
}

/// `ander` with what we changed since `basis`; nothing when both changed the same field.
std::optional<Rijblikken> Samen(const Rijblikken& basis, const Rijblikken& ons, Rijblikken ander)
{
    for (std::size_t i = eersteVeld; i < ander.size(); ++i) {
        if (ander[i] == ons[i] || ons[i] == basis[i])
            continue;
        if (ander[i] != basis[i])
            return std::nullopt;
        ander[i] = ons[i];
    }
    return ander;
}

class Menger {
  public:
    Menger(const Stand& basis, const Stand& ons, const Stand& ander, const std::set<Tekst>& voorOns,
           Tekstblik importgroep)
        : basis_(basis), ons_(ons), ander_(ander), voorOns_(voorOns), importgroep_(importgroep)
    {
        uit_.HKEY = std::max(ons.HKEY, ander.HKEY);
        opKey_.reserve(static_cast<std::size_t>(ander.tabel.Rijen()));
        const std::pair<const Spelertabel&, int Drierij::*> standen[]{
            {basis.tabel, &Drierij::basis},
            {ons.tabel, &Drierij::ons},
            {ander.tabel, &Drierij::ander}};
        bool alleKeys = true;
        for (const auto& [tabel, kant] : standen)
            alleKeys = Indexeer(opKey_, tabel, kant) && alleKeys;
        for (const auto& [tabel, kant] : standen) {
            // After the search of all three: a key that stands twice in one identifies nobody.
            for (int rij = 1; !alleKeys && rij <= tabel.Rijen(); ++rij) {
                if (Rijen(tabel, rij).onbruikbaar)
                    ++(opInhoud_[tabel.Inhoud(rij)].*kant);
            }
        }
    }

    Menging Meng()
    {
        plekken_.reserve(static_cast<std::size_t>(ander_.tabel.Rijen() + ons_.tabel.Rijen()));
        for (int rij = 1; rij <= ander_.tabel.Rijen(); ++rij)
            NeemVanAnder(rij);
        const auto onze = static_cast<std::ptrdiff_t>(plekken_.size());
        NeemOnze();
        const auto eerder = [](const Plek& een, const Plek& twee) {
            return std::pair(een.bij, een.erna) < std::pair(twee.bij, twee.erna);
        };
        // The other's are in order.
        std::stable_sort(plekken_.begin() + onze, plekken_.end(), eerder);
        std::inplace_merge(plekken_.begin(), plekken_.begin() + onze, plekken_.end(), eerder);
        for (Plek& plek : plekken_) {
            const Tekst nr = std::to_string(uit_.tabel.Rijen() + 1);
            plek.cellen[Index(Kolom::Nr)] = nr;
            uit_.tabel.VoegToe(plek.cellen);
        }
        return std::move(uit_);
    }

  private:
    [[nodiscard]] const Drierij& Rijen(const Spelertabel& tabel, int rij) const
    {
        return opKey_.at(tabel.Cel(rij, Kolom::Key));
    }

    /// Whether our player is another one than the other program's of the same key: both gave it out
    /// since the register was read here.
    [[nodiscard]] bool IsDubbelUitgegeven(const Drierij& rijen) const
    {
        const auto key = Geheel32(ons_.tabel.Cel(rijen.ons, Kolom::Key));
        if (rijen.basis != 0 || !key || *key <= basis_.HKEY || *key > ander_.HKEY)
            return false;
        return rijen.ander == 0 ||
               !Gelijk(ons_.tabel.Cellen(rijen.ons), ander_.tabel.Cellen(rijen.ander));
    }

    void NeemVanAnder(int rij)
    {
        const Drierij& rijen = Rijen(ander_.tabel, rij);
        if (rijen.onbruikbaar) {
            NeemZonderKey(rij);
            return;
        }
        const Rijblikken ander = ander_.tabel.Cellen(rij);
        if (rijen.ons == 0 || IsDubbelUitgegeven(rijen)) {
            NeemZonderOns(rijen, ander);
            return;
        }
        const Rijblikken ons = ons_.tabel.Cellen(rijen.ons);
        // Of a player that both added, what one left empty counts as filled in by the other.
        const Rijblikken basis = rijen.basis == 0 ? Rijblikken() : basis_.tabel.Cellen(rijen.basis);
        auto samen = Samen(basis, ons, ander);
        if (!samen)
            samen = Bots(rijen) ? ons : ander;
        else if (!Gelijk(*samen, ons))
            uit_.overgenomen.push_back(VolleNaam(ander_.tabel, rij));
        plekken_.push_back({rij, false, *samen});
    }

    /// Empty for who is no member of the federation, or not from its lists.
    [[nodiscard]] Tekst Lidnummer(const Rijblikken& cellen) const
    {
        return importgroep_.empty() || cellen[Index(Kolom::Groep)] != importgroep_
                   ? Tekst()
                   : OpgemaaktNBBnr(ZonderSpaties(cellen[Index(Kolom::NBBnr)]));
    }

    /// A player whom only the other program has: added there, or deleted here.
    void NeemZonderOns(const Drierij& rijen, const Rijblikken& ander)
    {
        if (rijen.basis == 0) {
            uit_.overgenomen.push_back(VolleNaam(ander_.tabel, rijen.ander));
            nieuweLeden_.insert(Lidnummer(ander));
        } else if (Gelijk(basis_.tabel.Cellen(rijen.basis), ander) || Bots(rijen))
            return;
        plekken_.push_back({rijen.ander, false, ander});
    }

    /// Of rows with the same contents those stay that come first.
    void NeemZonderKey(int rij)
    {
        const Tekst inhoud = ander_.tabel.Inhoud(rij);
        const Drierij& aantal = opInhoud_.at(inhoud);
        auto& rijen = onbruikbareVanAnder_[inhoud];
        rijen.push_back(rij);
        const int nummer = static_cast<int>(rijen.size());
        if (nummer > Blijft(aantal))
            return;
        if (nummer > aantal.ons)
            uit_.overgenomen.push_back(VolleNaam(ander_.tabel, rij));
        plekken_.push_back({rij, false, ander_.tabel.Cellen(rij)});
    }

    /// Whether ours counts when both sides did something else with a player.
    bool Bots(const Drierij& rijen)
    {
        Verschil& botsing = uit_.botsingen.emplace_back();
        if (rijen.ons != 0)
            botsing.links = ons_.tabel.Velden(rijen.ons);
        if (rijen.ander != 0)
            botsing.rechts = ander_.tabel.Velden(rijen.ander);
        botsing.key = (botsing.links ? *botsing.links : *botsing.rechts)[Index(Kolom::Key)];
        return voorOns_.contains(botsing.key);
    }

    /// Our rows that the other program does not have.
    void NeemOnze()
    {
        int laatsteOude = ons_.tabel.Rijen();
        while (laatsteOude > 0 && IsNieuw(laatsteOude))
            --laatsteOude;
        int bij = 0;
        for (int rij = 1; rij <= ons_.tabel.Rijen(); ++rij) {
            const int plaats = rij > laatsteOude ? AanHetEind : bij;
            const Drierij& rijen = Rijen(ons_.tabel, rij);
            if (rijen.onbruikbaar)
                bij = NeemOnzeZonderKey(rij, bij, plaats);
            else if (rijen.basis != 0 && rijen.ander == 0)
                NeemZonderAnder(rijen, plaats);
            else if (rijen.ander == 0 || IsDubbelUitgegeven(rijen))
                VoegNieuweToe(rijen, plaats);
            else
                bij = rijen.ander;
        }
    }

    /// Whether the row was added here since the register was read.
    [[nodiscard]] bool IsNieuw(int rij) const
    {
        const Drierij& rijen = Rijen(ons_.tabel, rij);
        return !rijen.onbruikbaar && rijen.basis == 0 &&
               (rijen.ander == 0 || IsDubbelUitgegeven(rijen));
    }

    /// A player whom the other program deleted.
    void NeemZonderAnder(const Drierij& rijen, int plaats)
    {
        Rijblikken ons = ons_.tabel.Cellen(rijen.ons);
        if (Gelijk(basis_.tabel.Cellen(rijen.basis), ons))
            uit_.overgenomen.push_back(VolleNaam(ons_.tabel, rijen.ons));
        else if (Bots(rijen))
            plekken_.push_back({plaats, true, ons});
    }

    void VoegNieuweToe(const Drierij& rijen, int plaats)
    {
        Rijblikken ons = ons_.tabel.Cellen(rijen.ons);
        if (const Tekst nummer = Lidnummer(ons); !nummer.empty() && nieuweLeden_.contains(nummer))
            return;
        if (auto nieuw = IsDubbelUitgegeven(rijen) ? NieuweKey() : std::nullopt) {
            Tekstblik& key = ons[Index(Kolom::Key)];
            uit_.hernummerd.push_back({Tekst(key), std::move(*nieuw)});
            key = uit_.hernummerd.back().nu;
        }
        plekken_.push_back({plaats, true, ons});
    }

    /// One that nobody has, also where a file holds keys above its highest one; none when the keys
    /// have run out.
    std::optional<Tekst> NieuweKey()
    {
        while (uit_.HKEY < std::numeric_limits<std::int32_t>::max()) {
            Tekst key = std::to_string(++uit_.HKEY);
            if (!opKey_.contains(key))
                return key;
        }
        return std::nullopt;
    }

    /// Rows with the same contents that the other program does not have, as far as they stay.
    /// Returns behind which of its rows we are now.
    int NeemOnzeZonderKey(int rij, int bij, int plaats)
    {
        const Tekst inhoud = ons_.tabel.Inhoud(rij);
        const Drierij& aantal = opInhoud_.at(inhoud);
        const int nummer = ++onzeGenomen_[inhoud];
        if (nummer <= aantal.ander)
            return onbruikbareVanAnder_[inhoud][static_cast<std::size_t>(nummer - 1)];
        if (nummer <= Blijft(aantal))
            plekken_.push_back({plaats, true, ons_.tabel.Cellen(rij)});
        else
            uit_.overgenomen.push_back(VolleNaam(ons_.tabel, rij));
        return bij;
    }

    const Stand& basis_;
    const Stand& ons_;
    const Stand& ander_;
    const std::set<Tekst>& voorOns_;
    const Tekstblik importgroep_;
    Rijindex opKey_;
    std::unordered_map<Tekst, Drierij> opInhoud_; ///< how many of the rows without a usable key
    std::unordered_map<Tekst, std::vector<int>> onbruikbareVanAnder_; ///< its rows, by contents
    std::unordered_map<Tekst, int> onzeGenomen_;
    std::unordered_set<Tekst> nieuweLeden_; ///< of the other program, by their number
    std::vector<Plek> plekken_;
    Menging uit_;
};

} // namespace

bool Indexeer(Rijindex& opKey, const Spelertabel& tabel, int Drierij::*kant)
{
    bool alle = true;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        const Tekstblik key = tabel.Cel(rij, Kolom::Key);
        Drierij& rijen = opKey[key];
        if (rijen.*kant != 0 || !AlsGetal(key, 1))
            rijen.onbruikbaar = true;
        alle = alle && !rijen.onbruikbaar;
        rijen.*kant = rij;
    }
    return alle;
}

Tekst Aanduiding(const Verschil& verschil)
{
    const Rijvelden& velden = verschil.links ? *verschil.links : *verschil.rechts;
    Tekst uit;
    for (const Kolom kolom : {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam}) {
        if (!velden[Index(kolom)].empty())
            uit += velden[Index(kolom)] + " ";
    }
    return uit + "(" + verschil.key + ")";
}

Menging Meng(const Stand& basis, const Stand& ons, const Stand& ander,
             const std::set<Tekst>& voorOns, Tekstblik importgroep)
{
    return Menger(basis, ons, ander, voorOns, importgroep).Meng();
}

Uitkomst<AnderRegister> AnderRegister::Lees(Schijf& schijf, const Mappen& mappen)
{
    return schijf.LeesBestand(mappen.Spelerbestand()).map([&](Tekst inhoud) {
        AnderRegister uit;
        uit.lezing_ = SpelersUit(inhoud);
        uit.inhoud_ = std::move(inhoud);
        uit.importgroep_ = mappen.DFIMPG;
        return uit;
    });
}

bool AnderRegister::IsHeel(const Register& ons) const
{
    return lezing_.tabel && !lezing_.fout && (lezing_.tabel->Rijen() > 0 || ons.tabel.Rijen() == 0);
}

Menging AnderRegister::MengMet(const Register& ons, const std::set<Tekst>& voorOns) const
{
    const Spelerlezing basis = SpelersUit(ons.gelezen.value_or(Tekst()));
    const Spelertabel basistabel = basis.tabel.value_or(Spelertabel());
    return Meng({basistabel, basis.HKEY.value_or(Sleutelbasis)}, {ons.tabel, ons.HKEY},
                {*lezing_.tabel, lezing_.HKEY.value_or(Sleutelbasis)}, voorOns, importgroep_);
}

void AnderRegister::NeemOver(Register& ons, Menging menging) const
{
    ons.tabel = std::move(menging.tabel);
    ons.HKEY = menging.HKEY;
    ons.gelezen = inhoud_;
    ons.kopieNodig = lezing_.verliest;
}

} // namespace plexoran
