#include <algorithm>
#include <unordered_map>

#include "register/geschiedenis.h"

namespace plexoran {
namespace {

using Blikken = std::vector<Tekstblik>;

/// Each with its line end, so that they joined are the text again.
Blikken MetEind(Tekstblik tekst)
{
    constexpr std::size_t kortsteRegel = 64; // of players, mostly
    Blikken uit;
    uit.reserve(tekst.size() / kortsteRegel);
    while (!tekst.empty()) {
        const auto eind = std::min(tekst.find('\n'), tekst.size() - 1) + 1;
        uit.push_back(tekst.substr(0, eind));
        tekst.remove_prefix(eind);
    }
    return uit;
}

class Vergelijker {
  public:
    Vergelijker(Tekstblik voor, Tekstblik na, bool alles)
        : voor_(MetEind(voor)), na_(MetEind(na)), alles_(alles)
    {}

    Tekst Verschil()
    {
        if (!alles_ && HeeftSleutelregel(voor_) && HeeftSleutelregel(na_) && !ZelfdeHier()) {
            // Else all behind it would count as changed.
            Schrijf('-', voor_[links_++]);
            Schrijf('+', na_[rechts_++]);
        }
        while (links_ < voor_.size() && rechts_ < na_.size() && ZelfdeHier())
            Bleef();
        const std::size_t staart = Staart();
        if (links_ + staart < voor_.size() && rechts_ + staart < na_.size())
            Tel(staart);
        while (links_ + staart < voor_.size() || rechts_ + staart < na_.size())
            Stap(staart);
        while (links_ < voor_.size())
            Bleef();
        return std::move(uit_);
    }

  private:
    /// What is compared of a line.
    [[nodiscard]] Tekstblik Inhoud(Tekstblik regel) const
    {
        const auto komma = alles_ ? Tekstblik::npos : regel.find(',');
        return komma == Tekstblik::npos ? regel : regel.substr(komma);
    }

    static bool HeeftSleutelregel(const Blikken& regels)
    {
        return !regels.empty() && regels.front().starts_with("HKEY=");
    }

    [[nodiscard]] bool ZelfdeHier() const { return Inhoud(voor_[links_]) == Inhoud(na_[rechts_]); }

    /// How many lines at the end are the same.
    [[nodiscard]] std::size_t Staart() const
    {
        std::size_t lengte = 0;
        const std::size_t meeste = std::min(voor_.size() - links_, na_.size() - rechts_);
        while (lengte < meeste &&
               Inhoud(voor_[voor_.size() - 1 - lengte]) == Inhoud(na_[na_.size() - 1 - lengte]))
            ++lengte;
        return lengte;
    }

    /// How many of each line are still to come on each side.
    void Tel(std::size_t staart)
    {
        for (std::size_t i = links_; i + staart < voor_.size(); ++i)
            ++over_[Inhoud(voor_[i])].first;
        for (std::size_t i = rechts_; i + staart < na_.size(); ++i)
            ++over_[Inhoud(na_[i])].second;
    }

    void Stap(std::size_t staart)
    {
        const bool kanLinks = links_ + staart < voor_.size();
        const bool kanRechts = rechts_ + staart < na_.size();
        if (!kanLinks) {
            Schrijf('+', na_[rechts_++]);
        } else if (!kanRechts) {
            Schrijf('-', voor_[links_++]);
        } else if (ZelfdeHier()) {
            auto& over = over_[Inhoud(voor_[links_])];
            --over.first;
            --over.second;
            Bleef();
        } else if (over_[Inhoud(voor_[links_])].second == 0 ||
                   over_[Inhoud(na_[rechts_])].first > 0) {
            --over_[Inhoud(voor_[links_])].first;
            Schrijf('-', voor_[links_++]);
        } else {
            --over_[Inhoud(na_[rechts_])].second;
            Schrijf('+', na_[rechts_++]);
        }
    }

    void Bleef()
    {
        const Tekstblik regel = voor_[links_++];
        ++rechts_;
        if (alles_ || netAnders_)
            Zet(' ', regel);
        else
            vorige_ = regel;
        netAnders_ = false;
    }

    void Schrijf(char teken, Tekstblik regel)
    {
        if (!vorige_.empty())
            Zet(' ', std::exchange(vorige_, {}));
        Zet(teken, regel);
        netAnders_ = true;
    }

    void Zet(char teken, Tekstblik regel)
    {
        uit_ += teken;
        uit_ += regel;
        if (regel.back() != '\n')
            uit_ += "\n\\\n"; // the last line has no end
    }

    Blikken voor_;
    Blikken na_;
    bool alles_;
    std::size_t links_ = 0;
    std::size_t rechts_ = 0;
    std::unordered_map<Tekstblik, std::pair<int, int>> over_;
    Tekstblik vorige_;       ///< one that stayed and is not written yet
    bool netAnders_ = false; ///< the line before differed
    Tekst uit_;
};

} // namespace

Tekst Regelverschil(Tekstblik voor, Tekstblik na, bool alles)
{
    return Vergelijker(voor, na, alles).Verschil();
}

} // namespace plexoran
