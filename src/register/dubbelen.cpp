#include "register/dubbelen.h"

#include <algorithm>
#include <array>
#include <functional>
#include <span>

#include "platform/tekst/regels.h"
#include "register/naamverband.h"

namespace plexoran {
namespace {

constexpr std::array<int, static_cast<std::size_t>(Dubbelreden::Aantal)> Punten{
    60, 40, 50, 45, 40, 40, 25, 20, 30, -45, -1000};
constexpr int AndereGroep = -40; ///< where copies stand on purpose

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
    /// Players, or names, with the same one of these are compared.
    struct Lot {
        std::size_t merk;
        int wie;
        bool operator<(const Lot& ander) const
        {
            return std::pair(merk, wie) < std::pair(ander.merk, ander.wie);
        }
    };
    using Loten = std::vector<Lot>;

    static std::size_t Merk(Tekstblik tekst, std::size_t soort = 0)
    {
        return std::hash<Tekstblik>()(tekst) + soort;
    }
    static void PerMerk(Loten& loten, const std::function<void(std::span<const Lot>)>& doe)
    {
        std::sort(loten.begin(), loten.end());
        for (auto begin = loten.begin(); begin != loten.end();) {
            const auto eind = std::find_if(begin, loten.end(),
                                           [&](const Lot& lot) { return lot.merk != begin->merk; });
            doe({begin, eind});
            begin = eind;
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

    /// Every one of the first with every one of both, unless that are too many.
    void Paar(std::span<const int> een, std::span<const int> ander)
    {
        if (een.size() * ander.size() > MeesteGelijken * MeesteGelijken) {
            uit_.teVaak = true;
            return;
        }
        for (const int rij : een) {
            for (const int latere : ander) {
                if (rij != latere)
                    kandidaten_.emplace_back(std::min(rij, latere), std::max(rij, latere));
            }
        }
    }

    void ZoekGelijke()
    {
        Loten loten;
        for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
            const Wie& wie = Van(rij);
            const auto& [laag, hoog] = std::minmax(wie.voor, wie.kern);
            loten.push_back({Merk(laag + '|' + hoog), rij}); // also where they changed places
            loten.push_back({Merk(wie.vol), rij});
            std::size_t soort = 0;
            for (const Tekst* gegeven : {&wie.nbbnr, &wie.mail, &wie.telefoon}) {
                ++soort;
                if (!gegeven->empty())
                    loten.push_back({Merk(*gegeven, soort), rij});
            }
        }
        PerMerk(loten, [this](std::span<const Lot> gelijken) {
            std::vector<int> rijen;
            for (const Lot& lot : gelijken)
                rijen.push_back(lot.wie);
            Paar(rijen, rijen);
        });
    }

    void ZoekVoorletters()
    {
        Loten loten;
        for (int rij = 1; rij <= tabel_.Rijen(); ++rij) {
            if (const Wie& wie = Van(rij); !wie.voor.empty())
                loten.push_back({Merk(wie.voor.substr(0, 1) + '|' + wie.kern), rij});
        }
        PerMerk(loten, [this](std::span<const Lot> gelijken) {
            std::vector<int> rijen;
            std::vector<int> afgekort;
            for (const Lot& lot : gelijken) {
                rijen.push_back(lot.wie);
                if (Van(lot.wie).afgekort)
                    afgekort.push_back(lot.wie);
            }
            Paar(afgekort, rijen);
        });
    }

    /// Names of which one letter is left out are the same when they differ by one.
    void ZoekEenLetter()
    {
        constexpr std::size_t langste = 60;
        Loten loten;
        for (int rij = 1; rij <= tabel_.Rijen(); ++rij)
            loten.push_back({Merk(Van(rij).heel), rij});
        std::vector<std::vector<int>> namen; // the rows of each
        PerMerk(loten, [&](std::span<const Lot> gelijken) {
            auto& rijen = namen.emplace_back();
            for (const Lot& lot : gelijken)
                rijen.push_back(lot.wie);
        });
        loten.clear();
        for (std::size_t i = 0; i < namen.size(); ++i) {
            Tekst rest = Van(namen[i].front()).heel;
            if (rest.size() > langste)
                continue;
            const int naam = static_cast<int>(i);
            loten.push_back({Merk(rest), naam});
            for (std::size_t weg = rest.size(); weg-- > 0;) {
                Tekst zonder = rest;
                zonder.erase(weg, 1);
                loten.push_back({Merk(zonder), naam});
            }
        }
        PerMerk(loten, [&](std::span<const Lot> gelijken) {
            uit_.teVaak = uit_.teVaak || gelijken.size() > MeesteGelijken;
            for (std::size_t i = 1; i < gelijken.size() && gelijken.size() <= MeesteGelijken; ++i) {
                for (std::size_t j = 0; j < i; ++j) {
                    const auto& een = namen[static_cast<std::size_t>(gelijken[j].wie)];
                    const auto& ander = namen[static_cast<std::size_t>(gelijken[i].wie)];
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
            Beoordeel(kandidaten_[i].first, kandidaten_[i].second);
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
        const bool mail = !een.mail.empty() && een.mail == ander.mail;
        const bool telefoon = !een.telefoon.empty() && een.telefoon == ander.telefoon;
        const bool voornaam = LijkenVoornamen(een, ander);
        auto verband = Naamverband(een, ander);
        if (verband == Dubbelreden::EenLetter && !voornaam && (mail || telefoon))
            verband.reset(); // they live together
        if (verband)
            zet(*verband, true);
        zet(Dubbelreden::NBBnr, !een.nbbnr.empty() && een.nbbnr == ander.nbbnr);
        zet(Dubbelreden::Email, mail && (voornaam || verband));
        zet(Dubbelreden::Telefoon,
            telefoon && (verband || (voornaam && LijkenAchternamen(een, ander))));
        if (paar.redenen.none() || geen_.contains(Sleutelpaar(tabel_, rij, latere)))
            return;
        zet(Dubbelreden::AnderNBBnr,
            !een.nbbnr.empty() && !ander.nbbnr.empty() && een.nbbnr != ander.nbbnr);
        const bool andereGroep = tabel_.Cel(rij, Kolom::Groep) != tabel_.Cel(latere, Kolom::Groep);
        if (andereGroep && !paar.Heeft(Dubbelreden::AnderNBBnr) && IsKopie(rij, latere)) {
            paar.redenen.reset();
            zet(Dubbelreden::TweeGroepen, true);
        }
        paar.waarde = andereGroep ? AndereGroep : 0;
        for (std::size_t i = 0; i < Punten.size(); ++i)
            paar.waarde += paar.redenen[i] ? Punten[i] : 0;
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
    std::vector<std::pair<int, int>> kandidaten_;
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
