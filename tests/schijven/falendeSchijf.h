// A disk that fails on order, for tests: every operation of another disk is counted, those of its
// writers too, and the chosen ones are refused.
#pragma once

#include <functional>
#include <limits>
#include <memory>
#include <utility>

#include "platform/schijf/schijf.h"

namespace plexoran {

/// Must outlive the writers it hands out; the inner disk must outlive it.
class FalendeSchijf : public Schijf {
  public:
    enum class Telt { Alles, AlleenSchrijven };

    /// With `AlleenSchrijven` the operations that change nothing are neither counted nor refused.
    explicit FalendeSchijf(Schijf& binnen, Telt telt = Telt::Alles) : binnen_(binnen), telt_(telt)
    {}

    /// The `nummer`th operation from now is refused, counted from 1, and no other.
    void FaalBij(int nummer) { Faal(nummer, nummer); }
    /// So are all that follow it, as when the program is killed there or the disk breaks.
    void FaalVanaf(int nummer) { Faal(nummer, std::numeric_limits<int>::max()); }
    void FaalNiet() { Faal(0, 0); }
    /// Asked before every operation, those that are not counted too; false refuses it. Not before
    /// `Soort`: that a folder is there is seen without any right to it.
    void Vooraf(std::function<bool(const Pad&)> mag) { mag_ = std::move(mag); }

    /// How many operations were counted since the last call of one of these three.
    [[nodiscard]] int Aantal() const { return aantal_; }

    [[nodiscard]] Uitkomst<Padsoort> Soort(const Pad& pad) override
    {
        return TelLezen(pad).and_then([&] { return binnen_.Soort(pad); });
    }
    [[nodiscard]] Uitkomst<Tekst> LeesBestand(const Pad& pad) override
    {
        return Lezend(pad).and_then([&] { return binnen_.LeesBestand(pad); });
    }
    [[nodiscard]] Uitkomst<Stempel> NeemStempel(const Pad& pad) override
    {
        return Lezend(pad).and_then([&] { return binnen_.NeemStempel(pad); });
    }
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Bestanden(const Pad& map) override
    {
        return Lezend(map).and_then([&] { return binnen_.Bestanden(map); });
    }
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Mappen(const Pad& map) override
    {
        return Lezend(map).and_then([&] { return binnen_.Mappen(map); });
    }
    [[nodiscard]] std::vector<std::string> NeemOvergeslagen(const Pad& map) override
    {
        return binnen_.NeemOvergeslagen(map);
    }
    [[nodiscard]] Uitkomst<void> MaakMap(const Pad& map) override
    {
        return Schrijvend(map).and_then([&] { return binnen_.MaakMap(map); });
    }
    [[nodiscard]] Uitkomst<Pad> Doel(const Pad& pad) override
    {
        return Lezend(pad).and_then([&] { return binnen_.Doel(pad); });
    }
    [[nodiscard]] Uitkomst<std::unique_ptr<Schrijver>> MaakNieuw(const Pad& pad) override
    {
        return Schrijvend(pad)
            .and_then([&] { return binnen_.MaakNieuw(pad); })
            .map([&](std::unique_ptr<Schrijver> binnen) -> std::unique_ptr<Schrijver> {
                return std::make_unique<FalendeSchrijver>(*this, pad, std::move(binnen));
            });
    }
    [[nodiscard]] Uitkomst<void> NeemRechtenOver(const Pad& van, const Pad& naar) override
    {
        return Schrijvend(naar).and_then([&] { return binnen_.NeemRechtenOver(van, naar); });
    }
    [[nodiscard]] Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) override
    {
        return Schrijvend(naar).and_then([&] { return binnen_.Hernoem(van, naar); });
    }
    [[nodiscard]] Uitkomst<void> Verwijder(const Pad& pad) override
    {
        return Schrijvend(pad).and_then([&] { return binnen_.Verwijder(pad); });
    }
    [[nodiscard]] Uitkomst<void> VerwijderMap(const Pad& map) override
    {
        return Schrijvend(map).and_then([&] { return binnen_.VerwijderMap(map); });
    }
    [[nodiscard]] Uitkomst<void> SyncMapVan(const Pad& pad) override
    {
        return Schrijvend(pad).and_then([&] { return binnen_.SyncMapVan(pad); });
    }
    [[nodiscard]] std::string Toonpad(const Pad& pad) const override
    {
        return binnen_.Toonpad(pad);
    }

  private:
    class FalendeSchrijver : public Schrijver {
      public:
        FalendeSchrijver(FalendeSchijf& schijf, Pad pad, std::unique_ptr<Schrijver> binnen)
            : schijf_(schijf), pad_(std::move(pad)), binnen_(std::move(binnen))
        {}
        /// A disk that fills up has taken a part already.
        Uitkomst<void> Schrijf(Tekstblik bytes) override
        {
            if (auto mag = schijf_.Schrijvend(pad_); !mag) {
                const auto helft = binnen_->Schrijf(bytes.substr(0, bytes.size() / 2));
                return helft ? mag : helft;
            }
            return binnen_->Schrijf(bytes);
        }
        Uitkomst<void> Sync() override
        {
            return schijf_.Schrijvend(pad_).and_then([this] { return binnen_->Sync(); });
        }
        Uitkomst<void> Sluit() override
        {
            return schijf_.Schrijvend(pad_).and_then([this] { return binnen_->Sluit(); });
        }

      private:
        FalendeSchijf& schijf_;
        Pad pad_;
        std::unique_ptr<Schrijver> binnen_;
    };

    void Faal(int eerste, int laatste)
    {
        aantal_ = 0;
        eerste_ = eerste;
        laatste_ = laatste;
    }
    [[nodiscard]] Uitkomst<void> Weiger(const Pad& pad, const char* reden) const
    {
        return Mislukt({.bestand = binnen_.Toonpad(pad), .systeem = reden});
    }
    /// Counts one operation and says whether it may go on.
    [[nodiscard]] Uitkomst<void> Tel(const Pad& pad)
    {
        ++aantal_;
        const bool faalt = eerste_ != 0 && aantal_ >= eerste_ && aantal_ <= laatste_;
        return faalt ? Weiger(pad, "schijf vol") : Uitkomst<void>();
    }
    [[nodiscard]] Uitkomst<void> TelLezen(const Pad& pad)
    {
        return telt_ == Telt::Alles ? Tel(pad) : Uitkomst<void>();
    }
    [[nodiscard]] Uitkomst<void> Mag(const Pad& pad) const
    {
        return !mag_ || mag_(pad) ? Uitkomst<void>() : Weiger(pad, "geen toegang");
    }
    [[nodiscard]] Uitkomst<void> Lezend(const Pad& pad)
    {
        return Mag(pad).and_then([&] { return TelLezen(pad); });
    }
    [[nodiscard]] Uitkomst<void> Schrijvend(const Pad& pad)
    {
        return Mag(pad).and_then([&] { return Tel(pad); });
    }

    Schijf& binnen_;
    Telt telt_;
    int aantal_ = 0;
    int eerste_ = 0; ///< 0: none fails
    int laatste_ = 0;
    std::function<bool(const Pad&)> mag_;
};

} // namespace plexoran
