#include "register/dubbelen.h"

#include <algorithm>
#include <array>
#include <functional>

#include "platform/tekst/regels.h"
#include "register/naamverband.h"

namespace plexoran {
namespace {

constexpr std::array<int, static_cast<std::size_t>(Dubbelreden::Aantal)> Punten{
    60, 40, 50, 45, 40, 40, 25, 20, 30, -110, -1000};
constexpr int AndereGroep = -40; ///< where copies stand on purpose
constexpr int Huisadres = 20;    ///< all that an address counts between two first names

class Zoeker {
  public:
    Zoeker(const Spelertabel& tabel, const Sleutelparen& geen, const Voortgang& voortgang)
        : tabel_(tabel), geen_(geen), voortgang_(voortgang),
          aantal_(static_cast<std::size_t>(tabel.Rijen()))
    {}

    Dubbeluitslag Zoek()
    {
        uit_.gestopt = !(LeesSpelers() && (ZoekGelijke(), Meld(2 * aantal_)) &&
                         (ZoekVoorletters(), ZoekEenLetter(), Meld(3 * aantal_)) && Beoordeel());
        const auto beter = [](const Dubbelpaar& een, const Dubbelpaar& ander) {
            return std::tuple(-een.waarde, een.rij, een.latere) <
                   std::tuple(-ander.waarde, ander.rij, ander.latere);
        };
        auto& paren = uit_.paren;
        const std::size_t blijven = std::min(paren.size(), MeesteParen);
        uit_.meer = paren.size() - blijven;
        std::partial_sort(paren.begin(), paren.begin() + static_cast<std::ptrdiff_t>(blijven),
                          paren.end(), beter);
        paren.resize(blijven);
        return std::move(uit_);
    }

  private:
    /// Half a hash of what is compared, and whose it is: the row, or the number of a name.
    using Lot = std::uint64_t;
    using Loten = std::vector<Lot>;
    static constexpr unsigned Helft = 32;

    static Lot Loot(Merk merk, std::size_t wie) { return (Lot{merk} << Helft) | wie; }
    static int Wiens(Lot lot) { return static_cast<int>(lot & 0xFFFF'FFFFU); }
    /// Hands out whose it is of each that is the same.
    template <class Doe> static void PerGelijke(Loten& loten, const Doe& doe)
    {
        std::sort(loten.begin(), loten.end());
        std::vector<int> gelijken;
        for (std::size_t i = 0; i < loten.size(); ++i) {
            gelijken.push_back(Wiens(loten[i]));
            if (i + 1 == loten.size() || loten[i] >> Helft != loten[i + 1] >> Helft) {
                doe(gelijken);
                gelijken.clear();
            }
        }
    }
    [[nodiscard]] const Wie& Van(int rij) const { return wie_[static_cast<std::size_t>(rij - 1)]; }
    [[nodiscard]] bool Meld(std::size_t gedaan) const
    {
        return !voortgang_ || voortgang_(gedaan, 4 * aantal_);
    }

    bool LeesSpelers()
    {
        constexpr std::size_t slag = 1024;
        for (std::size_t i = 0; i < aantal_; ++i) {
            if (i % slag == 0 && !Meld(i))
                return false;
            wie_.push_back(WieIs(tabel_, static_cast<int>(i) + 1));
        }
        return true;
    }

    /// Every one of the first with every one of the other, unless that are too many.
    void Paar(const std::vector<int>& een, const std::vector<int>& ander)
    {
        if (een.size() * ander.size() > MeesteGelijken * MeesteGelijken) {
            uit_.teVaak = true;
            return;
        }
        for (const int rij : een) {
            for (const int latere : ander) {
                if (rij < latere || (rij > latere && &een != &ander))
                    kandidaten_.push_back((static_cast<Lot>(std::min(rij, latere)) << Helft) |
                                          static_cast<Lot>(std::max(rij, latere)));
            }
        }
    }

    void ZoekGelijke()
    {
        Loten loten;
        for (std::size_t rij = 1; rij <= aantal_; ++rij) {
            const Wie& wie = wie_[rij - 1];
            const auto& [laag, hoog] = std::minmax(wie.voor, wie.kern);
            loten.push_back(
                Loot(MerkVan(laag + '|' + hoog), rij)); // also where they changed places
            loten.push_back(Loot(wie.vol, rij));
            std::size_t soort = 0;
            for (const Merk gegeven : {wie.nbbnr, wie.mail, wie.telefoon}) {
                ++soort;
                if (gegeven != 0)
                    loten.push_back(Loot(gegeven + soort, rij));
            }
        }
        PerGelijke(loten, [this](const std::vector<int>& rijen) { Paar(rijen, rijen); });
    }

    void ZoekVoorletters()
    {
        Loten loten;
        for (std::size_t rij = 1; rij <= aantal_; ++rij) {
            if (const Wie& wie = wie_[rij - 1]; !wie.voor.empty())
                loten.push_back(Loot(MerkVan(wie.voor.substr(0, 1) + '|' + wie.kern), rij));
        }
        PerGelijke(loten, [this](const std::vector<int>& rijen) {
            std::vector<int> afgekort;
            std::ranges::copy_if(rijen, std::back_inserter(afgekort),
                                 [this](int rij) { return Van(rij).afgekort; });
            Paar(afgekort, rijen);
        });
    }

    /// Names of which one letter is left out are the same when they differ by one.
    void ZoekEenLetter()
    {
        constexpr std::size_t langste = 60;
        Loten loten;
        for (std::size_t rij = 1; rij <= aantal_; ++rij)
            loten.push_back(Loot(MerkVan(wie_[rij - 1].heel), rij));
        std::vector<std::vector<int>> namen; // the rows of each
        PerGelijke(loten, [&](const std::vector<int>& rijen) { namen.push_back(rijen); });
        loten.clear();
        for (std::size_t naam = 0; naam < namen.size(); ++naam) {
            const Tekst& heel = Van(namen[naam].front()).heel;
            if (heel.size() > langste)
                continue;
            loten.push_back(Loot(MerkVan(heel), naam));
            Tekst zonder = heel.substr(0, heel.size() - 1);
            for (std::size_t weg = zonder.size();; --weg) {
                loten.push_back(Loot(MerkVan(zonder), naam));
                if (weg == 0)
                    break;
                zonder[weg - 1] = heel[weg];
            }
        }
        PerGelijke(loten, [&](const std::vector<int>& gelijken) {
            uit_.teVaak = uit_.teVaak || gelijken.size() > MeesteGelijken;
            for (std::size_t i = 1; i < gelijken.size() && gelijken.size() <= MeesteGelijken; ++i) {
                for (std::size_t j = 0; j < i; ++j) {
                    const auto& een = namen[static_cast<std::size_t>(gelijken[j])];
                    const auto& ander = namen[static_cast<std::size_t>(gelijken[i])];
                    if (ScheeltEenLetter(Van(een.front()).heel, Van(ander.front()).heel))
                        Paar(een, ander);
                }
            }
        });
    }

    bool Beoordeel()
    {
        constexpr std::size_t slag = 65'536;
        std::sort(kandidaten_.begin(), kandidaten_.end());
        kandidaten_.erase(std::unique(kandidaten_.begin(), kandidaten_.end()), kandidaten_.end());
        for (std::size_t i = 0; i < kandidaten_.size(); ++i) {
            if (i % slag == 0 && !Meld(3 * aantal_ + aantal_ * i / kandidaten_.size()))
                return false;
            Beoordeel(static_cast<int>(kandidaten_[i] >> Helft), Wiens(kandidaten_[i]));
        }
        return true;
    }

    void Beoordeel(int rij, int latere)
    {
        const Wie& een = Van(rij);
        const Wie& ander = Van(latere);
        Dubbelpaar paar{.rij = rij, .latere = latere};
        const auto zet = [&](Dubbelreden reden, bool waar) {
            paar.redenen[static_cast<std::size_t>(reden)] = waar;
        };
        const bool mail = een.mail != 0 && een.mail == ander.mail;
        const bool telefoon = een.telefoon != 0 && een.telefoon == ander.telefoon;
        const bool voornaam = LijkenVoornamen(een, ander);
        if (const auto gevonden = Naamverband(een, ander))
            zet(*gevonden, true);
        if (!voornaam && (mail || telefoon))
            zet(Dubbelreden::EenLetter, false); // they live together
        const bool verband = paar.redenen.any();
        zet(Dubbelreden::NBBnr, een.nbbnr != 0 && een.nbbnr == ander.nbbnr);
        const bool lijkt = verband || (voornaam && LijkenAchternamen(een, ander));
        const bool voornamen = voornaam && !een.voor.empty() && !ander.voor.empty();
        zet(Dubbelreden::Email, mail && (voornamen || lijkt));
        zet(Dubbelreden::Telefoon, telefoon && lijkt);
        if (paar.redenen.none() ||
            (!geen_.empty() && geen_.contains(Sleutelpaar(tabel_, rij, latere))))
            return;
        zet(Dubbelreden::AnderNBBnr,
            een.nbbnr != 0 && ander.nbbnr != 0 && een.nbbnr != ander.nbbnr);
        const bool andereGroep = een.groep != ander.groep;
        if (andereGroep && paar.Heeft(Dubbelreden::Naam) && !paar.Heeft(Dubbelreden::AnderNBBnr) &&
            IsKopie(rij, latere)) {
            paar.redenen.reset();
            zet(Dubbelreden::TweeGroepen, true);
        }
        auto tellen = paar.redenen;
        paar.waarde = andereGroep ? AndereGroep : 0;
        if (een.voor != ander.voor &&
            (paar.Heeft(Dubbelreden::Email) || paar.Heeft(Dubbelreden::Telefoon))) {
            paar.waarde += Huisadres;
            for (const auto reden : {Dubbelreden::Email, Dubbelreden::Telefoon})
                tellen.reset(static_cast<std::size_t>(reden));
        }
        for (std::size_t i = 0; i < Punten.size(); ++i)
            paar.waarde += tellen[i] ? Punten[i] : 0;
        uit_.paren.push_back(paar);
    }

    /// As copying a player to another group leaves both.
    [[nodiscard]] bool IsKopie(int rij, int latere) const
    {
        for (auto i = Index(Kolom::Voornaam); i <= Index(Kolom::Status); ++i) {
            const auto kolom = static_cast<Kolom>(i + 1);
            if (tabel_.Cel(rij, kolom) != tabel_.Cel(latere, kolom))
                return false;
        }
        return true;
    }

    const Spelertabel& tabel_;
    const Sleutelparen& geen_;
    const Voortgang& voortgang_;
    std::size_t aantal_;
    std::vector<Wie> wie_;
    Loten kandidaten_; ///< both rows
    Dubbeluitslag uit_;
};

Pad Bestand(const Mappen& mappen)
{
    return Samen(mappen.SPEMAP, "GeenDubbelen.txt");
}

} // namespace

std::pair<Tekst, Tekst> Sleutelpaar(const Spelertabel& tabel, int rij, int latere)
{
    return std::minmax({Tekst(tabel.Cel(rij, Kolom::Key)), Tekst(tabel.Cel(latere, Kolom::Key))});
}

Dubbeluitslag ZoekDubbelen(const Spelertabel& tabel, const Sleutelparen& geen,
                           const Voortgang& voortgang)
{
    return Zoeker(tabel, geen, voortgang).Zoek();
}

void VoegDubbelSamen(Spelertabel& tabel, int blijft, int weg, Rijvelden velden)
{
    for (const Kolom kolom : {Kolom::Nr, Kolom::Key})
        velden[Index(kolom)] = tabel.Cel(blijft, kolom);
    tabel.ZetRij(blijft, velden);
    tabel.VerwijderRijen({&weg, 1});
}

void NeemUitParen(std::vector<Dubbelpaar>& paren, int weg)
{
    std::erase_if(paren, [weg](const auto& paar) { return paar.rij == weg || paar.latere == weg; });
    for (Dubbelpaar& paar : paren) {
        paar.rij -= paar.rij > weg ? 1 : 0;
        paar.latere -= paar.latere > weg ? 1 : 0;
    }
}

Sleutelparen GeenDubbelenUit(Tekstblik inhoud)
{
    Sleutelparen uit;
    for (const Tekstblik regel : Regels(inhoud)) {
        const auto items = Items(regel);
        if (items.size() > 1)
            uit.insert(std::minmax({Tekst(items[0]), Tekst(items[1])}));
    }
    return uit;
}

Uitkomst<Sleutelparen> LeesGeenDubbelen(Schijf& schijf, const Mappen& mappen)
{
    return LeesAlsErIs(schijf, Bestand(mappen)).map([](const std::optional<Tekst>& inhoud) {
        return GeenDubbelenUit(inhoud.value_or(Tekst()));
    });
}

Bewaring BewaarGeenDubbel(Schijf& schijf, const Mappen& mappen, const Spelertabel& tabel, int rij,
                          int latere)
{
    const auto oud = LeesAlsErIs(schijf, Bestand(mappen));
    if (!oud)
        return {.gelukt = Mislukt(oud)};
    Tekst ons = oud->value_or(Tekst());
    if (!ons.empty() && !ons.ends_with('\n'))
        ons += "\r\n";
    const auto& [laag, hoog] = Sleutelpaar(tabel, rij, latere);
    ons +=
        laag + "," + hoog + "," + VolleNaam(tabel, rij) + "," + VolleNaam(tabel, latere) + "\r\n";
    return BewaarSamen(schijf, mappen.SPEMAP, Bestand(mappen), oud->value_or(Tekst()), ons,
                       [](Tekstblik /*nu*/) { return true; });
}

} // namespace plexoran
