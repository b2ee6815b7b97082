// A disk that fails on order, for tests: every operation of another disk is counted, those of its
// writers too, and the chosen ones are refused.
#pragma once

#include <functional>
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
    void FaalBij(int nummer);
    /// So are all that follow it, as when the program is killed there or the disk breaks.
    void FaalVanaf(int nummer);
    void FaalNiet();
    /// Asked before every operation, those that are not counted too; false refuses it. Not before
    /// `Soort`: that a folder is there is seen without any right to it.
    void Vooraf(std::function<bool(const Pad&)> mag) { mag_ = std::move(mag); }

    /// How many operations were counted since the last call of one of these three.
    [[nodiscard]] int Aantal() const { return aantal_; }

    [[nodiscard]] Uitkomst<Padsoort> Soort(const Pad& pad) override;
    [[nodiscard]] Uitkomst<Tekst> LeesBestand(const Pad& pad) override;
    [[nodiscard]] Uitkomst<Stempel> NeemStempel(const Pad& pad) override;
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Bestanden(const Pad& map) override;
    [[nodiscard]] Uitkomst<std::vector<Tekst>> Mappen(const Pad& map) override;

    [[nodiscard]] std::vector<std::string> NeemOvergeslagen(const Pad& map) override
    {
        return binnen_.NeemOvergeslagen(map);
    }
    [[nodiscard]] Uitkomst<void> MaakMap(const Pad& map) override;
    [[nodiscard]] Uitkomst<Pad> Doel(const Pad& pad) override;
    [[nodiscard]] Uitkomst<std::unique_ptr<Schrijver>> MaakNieuw(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> NeemRechtenOver(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) override;
    [[nodiscard]] Uitkomst<void> Verwijder(const Pad& pad) override;
    [[nodiscard]] Uitkomst<void> SyncMapVan(const Pad& pad) override;

    [[nodiscard]] std::string Toonpad(const Pad& pad) const override;

  private:
    class FalendeSchrijver;

    /// Counts one operation and says whether it may go on.
    [[nodiscard]] Uitkomst<void> Lezend(const Pad& pad);
    [[nodiscard]] Uitkomst<void> Schrijvend(const Pad& pad);
    [[nodiscard]] Uitkomst<void> Tel(const Pad& pad);
    [[nodiscard]] Uitkomst<void> Mag(const Pad& pad) const;

    Schijf& binnen_;
    Telt telt_;
    int aantal_ = 0;
    int eerste_ = 0; ///< 0: none fails
    int laatste_ = 0;
    std::function<bool(const Pad&)> mag_;
};

} // namespace plexoran
